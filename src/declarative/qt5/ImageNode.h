#ifndef DATALOG_DECLARATIVE_QT5_IMAGENODE_H
#define DATALOG_DECLARATIVE_QT5_IMAGENODE_H

#include <QSGImageNode>
#include <QScopedPointer>

class QQuickWindow;
class ScenePainter;

/** Shows the image of a ScenePainter in a window. For the render thread, while the other waits. */
class ImageNode : public QSGTransformNode
{
public:
    explicit ImageNode(QQuickWindow *window);
    ~ImageNode() override;

    /**
     * @p oldNode, or a new node if there is none yet, showing what @p painter holds now; null, and
     * no node any more, when that is nothing.
     */
    static ImageNode *updated(QSGNode *oldNode, QQuickWindow *window, const ScenePainter &painter,
                              bool smooth);

    /**
     * Shows what @p painter holds now, at its area. The image is only uploaded when it changed
     * since the last call.
     */
    void show(const ScenePainter &painter, bool smooth);

private:
    QQuickWindow *m_window;
    QSGImageNode *m_image = nullptr;
    QScopedPointer<QSGTexture> m_texture;
    quint64 m_generation = 0;
};

#endif

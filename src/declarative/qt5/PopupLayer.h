#ifndef DATALOG_DECLARATIVE_QT5_POPUPLAYER_H
#define DATALOG_DECLARATIVE_QT5_POPUPLAYER_H

#include "declarative/qt5/ScenePainter.h"
#include "declarative/qt5/SceneView.h"

#include <QMatrix4x4>
#include <QQuickItem>

class SceneHost;
class SceneInput;

/**
 * Shows the open pop-ups of an item's scene above everything else in the window.
 *
 * A pop-up reaches beyond its item, where the item's siblings would be drawn over it and take its
 * taps, and a clipping parent would cut it. While a pop-up is open the layer takes every mouse
 * event of the window, so that a press outside closes the pop-up and does nothing else.
 */
class PopupLayer : public QQuickItem
{
    Q_OBJECT

public:
    /** A layer for the scene of @p owner, in no window until open pop-ups need it. */
    PopupLayer(QQuickItem *owner, SceneHost *host, SceneInput *input);

    /** Joins the owner's window when pop-ups are open, and leaves it when none are. */
    void followPopups();

    bool contains(const QPointF &) const override { return true; }

protected:
    void updatePolish() override;
    QSGNode *updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *data) override;

    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseUngrabEvent() override;
    void hoverMoveEvent(QHoverEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    /** What it takes to paint, there only while pop-ups are open. */
    struct Surface {
        explicit Surface(QGraphicsScene *scene)
            : view(scene)
            , painter(&view)
        {
        }

        SceneView view;
        ScenePainter painter;
    };

    void open(QQuickWindow *window);
    void close();
    void exposed(const QRegion &region);
    QPointF toScene(const QPointF &position) const { return m_owner->mapFromItem(this, position); }

    QQuickItem *m_owner;
    SceneHost *m_host;
    SceneInput *m_input;
    QScopedPointer<Surface> m_surface;
    QMatrix4x4 m_matrix;
};

#endif

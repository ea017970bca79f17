#ifndef DATALOG_DECLARATIVE_QT5_SCENEVIEW_H
#define DATALOG_DECLARATIVE_QT5_SCENEVIEW_H

#include <QGraphicsView>
#include <QRegion>

/**
 * A view of a part of a scene that never appears on the screen: it takes events, tells what has to
 * be painted again, and paints when asked to.
 *
 * To the scene it is a view like any other, which is what makes it worth having: QGraphicsScene's
 * own signal of changes knows only whole items, and a widget is one item.
 */
class SceneView : public QGraphicsView
{
    Q_OBJECT

public:
    explicit SceneView(QGraphicsScene *scene);

    /** The part of the scene to see, in scene coordinates. */
    void setArea(const QRect &area);
    /** Paints @p rect of the scene with @p painter, whose coordinates are the scene's. */
    void draw(QPainter *painter, const QRect &rect);
    /** Handles @p event, positions in it as if the area began at (0, 0). */
    bool deliver(QEvent *event) { return viewportEvent(event); }

    /**
     * Keeps @p widget, a window that is never shown on the screen, out of what assistive tools list
     * as the windows of the application.
     */
    static void disguiseWindow(const QWidget *widget);

signals:
    /** @p region of the scene, inside the area, has to be painted again. */
    void exposed(const QRegion &region);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QPoint m_origin;
    bool m_drawing = false;
};

#endif

#ifndef DATALOG_DECLARATIVE_QT5_SCENEHOST_H
#define DATALOG_DECLARATIVE_QT5_SCENEHOST_H

#include <QGraphicsScene>
#include <QGraphicsView>
#include <QList>
#include <QRegion>

class QGraphicsProxyWidget;

/** A scene that tells what its focused item says about input methods. */
class HostedScene : public QGraphicsScene
{
    Q_OBJECT

public:
    using QGraphicsScene::inputMethodQuery;
    using QGraphicsScene::QGraphicsScene;
};

/** A view that is never shown: it turns window events into scene events and is asked directly. */
class DeliveryView : public QGraphicsView
{
    Q_OBJECT

public:
    explicit DeliveryView(QGraphicsScene *scene);

    /** Handles @p event, in scene coordinates, as if it came from the window system. */
    bool deliver(QEvent *event) { return viewportEvent(event); }
};

/**
 * The Graphics View side of an item: a scene, the root of what is put into it, and the view that
 * events go through. Scene coordinates are the item's own.
 */
class SceneHost : public QObject
{
    Q_OBJECT

public:
    SceneHost();
    ~SceneHost() override;

    HostedScene *scene() { return &m_scene; }
    DeliveryView *view() { return &m_view; }
    QGraphicsItem *root() const { return m_root; }

    /**
     * Pop-ups that are open, the topmost last: windows of hosted widgets, which become scene items
     * of their own and reach beyond the widget.
     */
    QList<QGraphicsProxyWidget *> popups() const;
    /** What the open pop-ups cover; empty without one. */
    QRectF popupArea() const;
    /** Closes every open pop-up, as a press outside does. */
    void closePopups();

signals:
    /** Something in @p region, in scene coordinates, looks different now. */
    void changed(const QRegion &region);

private:
    void collect(const QList<QRectF> &rects);

    HostedScene m_scene;
    DeliveryView m_view;
    QGraphicsItem *m_root;
};

#endif

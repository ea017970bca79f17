#ifndef DATALOG_DECLARATIVE_QT5_SCENEHOST_H
#define DATALOG_DECLARATIVE_QT5_SCENEHOST_H

#include "declarative/qt5/SceneView.h"

#include <QGraphicsScene>
#include <QList>

class QDeclarativeItem;
class QGraphicsProxyWidget;

/**
 * A scene that tells what its focused item says about input methods, when it was at work, and for
 * which item.
 */
class HostedScene : public QGraphicsScene
{
    Q_OBJECT

public:
    using QGraphicsScene::inputMethodQuery;

    /** The item that shows the scene; null once its end has begun. */
    QDeclarativeItem *owner() const { return m_owner; }
    void setOwner(QDeclarativeItem *owner) { m_owner = owner; }

signals:
    /** Items may have come, gone, moved or changed their looks. */
    void processed();

protected:
    bool event(QEvent *event) override;

private:
    QDeclarativeItem *m_owner = nullptr;
};

/**
 * The Graphics View side of an item: a scene, the root of what is put into it, and the view that
 * events go through. Scene coordinates are the item's own.
 */
class SceneHost
{
public:
    enum { MaximalSide = 8192 }; ///< of a hosted widget: more than any screen has

    SceneHost();
    ~SceneHost();

    HostedScene *scene() { return &m_scene; }
    SceneView *view() { return &m_view; }
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
    /**
     * Moves open pop-ups that reach out of @p bounds into them: above the widget they belong to
     * where they don't fit below it. Widgets only know the edges of the screen.
     */
    void keepPopupsWithin(const QRectF &bounds);
    /**
     * Lets widgets that were without area for a while be painted again. Qt takes such a widget off
     * the screen, and forgets to put a hosted one back when it gets an area: from then on it would
     * swallow every update of it.
     */
    void restoreMapping();
    /**
     * Tells the views of everything that changed up to now. A change takes several turns of the
     * event loop from a widget to a view, a scroll fewer than others: whoever paints what the views
     * know at some moment would paint a part of a widget as it is and leave a part as it was.
     */
    void catchUp();
    /**
     * Keeps hosted widgets within the maximal side: painting one makes an image of its size, and a
     * script can ask for any size.
     */
    void boundWidgets();

private:
    HostedScene m_scene;
    SceneView m_view;
    QGraphicsItem *m_root;
};

#endif

#include "declarative/qt5/SceneHost.h"

#include <QCoreApplication>
#include <QEvent>
#include <QGraphicsProxyWidget>
#include <QGraphicsRectItem>
#include <QWidget>

namespace
{

/** Adds the visible windows among the proxies below @p parent, which shows a widget itself. */
void addWindows(const QGraphicsItem *parent, QList<QGraphicsProxyWidget *> *windows)
{
    const QList<QGraphicsItem *> children = parent->childItems();
    for (QGraphicsItem *child : children) {
        QGraphicsProxyWidget *proxy = qgraphicsitem_cast<QGraphicsProxyWidget *>(child);
        if (proxy && proxy->isVisible()) {
            *windows << proxy;
            addWindows(proxy, windows);
        }
    }
}

/** The widget that @p popup belongs to, in scene coordinates. */
QRectF anchorOf(const QGraphicsProxyWidget *popup)
{
    const QGraphicsProxyWidget *parent
        = qgraphicsitem_cast<QGraphicsProxyWidget *>(popup->parentItem());
    const QWidget *widget = popup->widget() ? popup->widget()->parentWidget() : nullptr;
    return parent && widget ? parent->mapRectToScene(parent->subWidgetRect(widget)) : QRectF();
}

/** How far to move @p low .. @p high so that it lies in @p from .. @p to, its start at least. */
qreal shiftInto(qreal low, qreal high, qreal from, qreal to)
{
    return qMax(qMin(qreal(0), to - high), from - low);
}

} // namespace

bool HostedScene::event(QEvent *event)
{
    const bool handled = QGraphicsScene::event(event);
    // The scene calls itself through the event loop to see to items that changed.
    if (event->type() == QEvent::MetaCall)
        emit processed();
    return handled;
}

SceneHost::SceneHost()
    : m_view(&m_scene)
    , m_root(new QGraphicsRectItem)
{
    m_scene.setItemIndexMethod(QGraphicsScene::NoIndex);
    m_root->setFlag(QGraphicsItem::ItemHasNoContents);
    m_scene.addItem(m_root);
}

SceneHost::~SceneHost()
{
    m_scene.disconnect();
    delete m_root;
}

QList<QGraphicsProxyWidget *> SceneHost::popups() const
{
    QList<QGraphicsProxyWidget *> windows;
    const QList<QGraphicsItem *> contents = m_root->childItems();
    for (const QGraphicsItem *content : contents)
        addWindows(content, &windows);
    return windows;
}

QRectF SceneHost::popupArea() const
{
    QRectF area;
    const QList<QGraphicsProxyWidget *> open = popups();
    for (const QGraphicsProxyWidget *popup : open)
        area |= popup->sceneBoundingRect();
    return area;
}

void SceneHost::closePopups()
{
    // The last first: closing a pop-up closes what it opened.
    while (!popups().isEmpty()) {
        QGraphicsProxyWidget *popup = popups().constLast();
        if (popup->widget())
            popup->widget()->close();
        popup->hide();
    }
}

void SceneHost::keepPopupsWithin(const QRectF &bounds)
{
    const QList<QGraphicsProxyWidget *> open = popups();
    for (QGraphicsProxyWidget *popup : open) {
        const QRectF area = popup->sceneBoundingRect();
        const QRectF anchor = anchorOf(popup);
        qreal dy = shiftInto(area.top(), area.bottom(), bounds.top(), bounds.bottom());
        if (dy < 0 && anchor.top() - area.height() >= bounds.top())
            dy = anchor.top() - area.bottom();
        const qreal dx = shiftInto(area.left(), area.right(), bounds.left(), bounds.right());
        if (dx != 0 || dy != 0)
            popup->moveBy(dx, dy);
    }
}

void SceneHost::boundWidgets()
{
    const QList<QGraphicsItem *> contents = m_root->childItems();
    for (QGraphicsItem *content : contents) {
        QGraphicsProxyWidget *proxy = qgraphicsitem_cast<QGraphicsProxyWidget *>(content);
        if (proxy && qMax(proxy->size().width(), proxy->size().height()) > MaximalSide)
            proxy->setMaximumSize(MaximalSide, MaximalSide);
    }
}

void SceneHost::restoreMapping()
{
    const QList<QGraphicsItem *> contents = m_root->childItems();
    for (const QGraphicsItem *content : contents) {
        const QGraphicsProxyWidget *proxy
            = qgraphicsitem_cast<const QGraphicsProxyWidget *>(content);
        QWidget *widget = proxy ? proxy->widget() : nullptr;
        if (widget && widget->isVisible() && !widget->size().isEmpty()
            && !widget->testAttribute(Qt::WA_Mapped)) {
            widget->setAttribute(Qt::WA_Mapped);
            widget->repaint(); // what was asked for meanwhile
        }
    }
}

void SceneHost::catchUp()
{
    // The way of a change: the widgets ask their windows, those the proxies, they the scene, and
    // that the views.
    QList<QGraphicsProxyWidget *> windows;
    addWindows(m_root, &windows);
    for (QGraphicsProxyWidget *window : qAsConst(windows)) {
        if (window->widget())
            QCoreApplication::sendPostedEvents(window->widget(), QEvent::UpdateRequest);
    }
    QCoreApplication::sendPostedEvents(&m_scene, QEvent::MetaCall);
    const QList<QGraphicsView *> views = m_scene.views();
    for (QGraphicsView *view : views)
        QCoreApplication::sendPostedEvents(view, QEvent::UpdateRequest);
}

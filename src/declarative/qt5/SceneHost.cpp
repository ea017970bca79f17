#include "declarative/qt5/SceneHost.h"

#include <QGraphicsProxyWidget>
#include <QGraphicsRectItem>

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

} // namespace

DeliveryView::DeliveryView(QGraphicsScene *scene)
    : QGraphicsView(scene)
{
    // The view must never scroll, or events would land beside what they meant: its own scene
    // rectangle is one pixel at the origin, whatever the real scene holds.
    setFrameShape(NoFrame);
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSceneRect(0, 0, 1, 1);
}

SceneHost::SceneHost()
    : m_view(&m_scene)
    , m_root(new QGraphicsRectItem)
{
    m_scene.setItemIndexMethod(QGraphicsScene::NoIndex);
    m_root->setFlag(QGraphicsItem::ItemHasNoContents);
    m_scene.addItem(m_root);
    connect(&m_scene, &QGraphicsScene::changed, this, &SceneHost::collect);
}

SceneHost::~SceneHost()
{
    disconnect(&m_scene, nullptr, this, nullptr);
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
    while (!popups().isEmpty()) {
        QGraphicsProxyWidget *popup = popups().constLast();
        popup->close();
        popup->hide();
    }
}

void SceneHost::collect(const QList<QRectF> &rects)
{
    QRegion region;
    for (const QRectF &rect : rects)
        region += rect.toAlignedRect();
    emit changed(region);
}

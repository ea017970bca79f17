#include "declarative/qt5/HostedAccess.h"

#include "declarative/qt5/AccessibleFactory.h"
#include "declarative/qt5/AccessibleWidget.h"
#include "declarative/qt5/QDeclarativeItem.h"
#include "declarative/qt5/SceneHost.h"
#include "declarative/qt5/SceneInput.h"

#include <QAbstractItemView>
#include <QGraphicsProxyWidget>
#include <QQuickWindow>
#include <qqml.h>

namespace
{

/** The type behind "Accessible" in scripts, which the engine registers with its items. */
const char kAttachedType[] = "QQuickAccessibleAttached*";

/** The current cell of a view, which has an interface of its own; null without one. */
QAccessibleInterface *currentCell(const QAbstractItemView *view, QAccessibleInterface *told)
{
    QAccessibleTableInterface *table = told->tableInterface();
    const QModelIndex current = view->currentIndex();
    return table && current.isValid() ? table->cellAt(current.row(), current.column()) : nullptr;
}

void forget(QAccessibleInterface *told)
{
    if (told)
        QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(told));
}

} // namespace

HostedAccess::HostedAccess(QDeclarativeItem *item, SceneHost *host, SceneInput *input)
    : m_item(item)
    , m_host(host)
    , m_input(input)
{
    AccessibleFactory::install();
    m_host->scene()->setOwner(item);
    // The engine asks for an interface as soon as a script says something of an item, which may be
    // before the item hosts anything.
    if (attached(item))
        forget(QAccessible::queryAccessibleInterface(item));
}

HostedAccess::~HostedAccess()
{
    followWindow(nullptr);
    m_host->scene()->setOwner(nullptr);
    forget(m_interface);
}

QObject *HostedAccess::attached(QObject *item, bool create)
{
    const QMetaObject *type = QMetaType::metaObjectForType(QMetaType::type(kAttachedType));
    const QQmlAttachedPropertiesFunc make
        = type ? qmlAttachedPropertiesFunction(nullptr, type) : nullptr;
    return make ? qmlAttachedPropertiesObject(item, make, create) : nullptr;
}

void HostedAccess::followWindow(QQuickWindow *window)
{
    for (const QMetaObject::Connection &connection : qAsConst(m_connections))
        QObject::disconnect(connection);
    m_connections.clear();
    if (!window)
        return;
    attached(m_item, true); // without it the item's widgets would be out of reach
    const auto place = [this] {
        if (QAccessible::isActive())
            placeOnScreen();
    };
    // Wherever the item is moved to, a frame follows.
    m_connections = {QObject::connect(window, &QQuickWindow::afterAnimating, m_item, place),
                     QObject::connect(window, &QWindow::xChanged, m_item, place),
                     QObject::connect(window, &QWindow::yChanged, m_item, place)};
}

void HostedAccess::tellFocus() const
{
    if (!QAccessible::isActive())
        return;
    QAccessibleInterface *inside = focus();
    if (!inside)
        inside = QAccessible::queryAccessibleInterface(m_item);
    if (!inside || inside->object() == m_input->focusWidget())
        return; // the widget has told already
    QAccessibleEvent event(inside, QAccessible::Focus);
    QAccessible::updateAccessibility(&event);
}

QVector<QWidget *> HostedAccess::hosted() const
{
    QVector<QWidget *> found;
    const QList<QGraphicsItem *> contents = m_host->root()->childItems();
    for (QGraphicsItem *content : contents) {
        QGraphicsProxyWidget *proxy = qgraphicsitem_cast<QGraphicsProxyWidget *>(content);
        if (proxy && proxy->widget())
            found << proxy->widget();
    }
    return found;
}

QVector<QWidget *> HostedAccess::tellingWidgets() const
{
    QVector<QWidget *> found;
    const QVector<QWidget *> all = hosted();
    for (QWidget *widget : all) {
        adopt(widget);
        if (AccessibleFactory::hasSomethingToTell(widget))
            found << widget;
    }
    return found;
}

/** A widget may have been asked for an interface before it was hosted: it gets another one. */
void HostedAccess::adopt(QWidget *widget) const
{
    QAccessibleInterface *told = QAccessible::queryAccessibleInterface(widget);
    if (told && AccessibleFactory::canBePart(widget) && !dynamic_cast<AccessibleWidget *>(told))
        forget(told);
}

void HostedAccess::adoptWidgets() const
{
    const QVector<QWidget *> all = hosted();
    for (QWidget *widget : all) {
        SceneView::disguiseWindow(widget);
        if (QAccessible::isActive())
            adopt(widget);
    }
}

QAccessibleInterface *HostedAccess::focus() const
{
    QWidget *widget = m_item->hasActiveFocus() ? m_input->focusWidget() : nullptr;
    QAccessibleInterface *told = QAccessible::queryAccessibleInterface(widget);
    if (!told)
        return nullptr;
    const QAbstractItemView *view = qobject_cast<QAbstractItemView *>(widget);
    QAccessibleInterface *inside = view ? currentCell(view, told) : nullptr;
    if (!inside)
        inside = told->focusChild();
    return inside ? inside : told;
}

void HostedAccess::placeOnScreen() const
{
    if (m_item->window())
        m_input->setScreenPosition(m_item->mapToGlobal(QPointF()));
}

#include "declarative/qt5/AccessibleFactory.h"

#include "declarative/qt5/AccessibleItem.h"
#include "declarative/qt5/AccessibleList.h"
#include "declarative/qt5/AccessibleWidget.h"
#include "declarative/qt5/HostedAccess.h"
#include "declarative/qt5/QDeclarativeItem.h"
#include "declarative/qt5/SceneHost.h"

#include <QAbstractItemView>
#include <QGraphicsProxyWidget>
#include <QListView>

namespace
{

bool isIgnored(QDeclarativeItem *item)
{
    // Without attached properties it is too early to know: they ask while they are being made.
    const QObject *attached = HostedAccess::attached(item);
    return attached && attached->property("ignored").toBool();
}

QAccessibleInterface *interfaceOf(QDeclarativeItem *item)
{
    HostedAccess *access = item->hostedAccess();
    return access && !isIgnored(item) ? new AccessibleItem(item) : nullptr;
}

QAccessibleInterface *interfaceOf(QWidget *widget)
{
    if (QListView *list = qobject_cast<QListView *>(widget))
        return new AccessibleList(list);
    return AccessibleFactory::canBePart(widget) ? new AccessibleWidget(widget) : nullptr;
}

/** Asked with each class of an object, the most derived first. */
QAccessibleInterface *make(const QString &, QObject *object)
{
    if (QDeclarativeItem *item = qobject_cast<QDeclarativeItem *>(object))
        return interfaceOf(item);
    return AccessibleFactory::ownerOf(object) ? interfaceOf(static_cast<QWidget *>(object))
                                              : nullptr;
}

/** What widgets say that only hold others, or draw. */
bool isDecoration(QAccessible::Role role)
{
    return role == QAccessible::Client || role == QAccessible::Border
        || role == QAccessible::LayeredPane || role == QAccessible::NoRole;
}

} // namespace

void AccessibleFactory::install()
{
    QAccessible::installFactory(&make); // which takes it just once
}

QDeclarativeItem *AccessibleFactory::ownerOf(const QObject *object)
{
    const QWidget *widget = qobject_cast<const QWidget *>(object);
    const QGraphicsProxyWidget *proxy = widget ? widget->graphicsProxyWidget() : nullptr;
    const HostedScene *scene = proxy ? qobject_cast<HostedScene *>(proxy->scene()) : nullptr;
    // Pop-ups hang on what opened them.
    return scene && !widget->parentWidget() ? scene->owner() : nullptr;
}

bool AccessibleFactory::canBePart(const QWidget *widget)
{
    return qobject_cast<const QListView *>(widget)
        || !qobject_cast<const QAbstractItemView *>(widget);
}

bool AccessibleFactory::hasSomethingToTell(QWidget *widget)
{
    QAccessibleInterface *told = QAccessible::queryAccessibleInterface(widget);
    if (!told)
        return false;
    if (!isDecoration(told->role()) || !told->text(QAccessible::Name).isEmpty())
        return true;
    const QList<QWidget *> children
        = widget->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget *child : children) {
        if (!child->isWindow() && hasSomethingToTell(child))
            return true;
    }
    return false;
}

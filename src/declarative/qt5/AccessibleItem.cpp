#include "declarative/qt5/AccessibleItem.h"

#include "declarative/qt5/HostedAccess.h"
#include "declarative/qt5/QDeclarativeItem.h"

#include <QQuickWindow>
#include <QWidget>

namespace
{

bool isTold(QQuickItem *item)
{
    const QObject *attached = HostedAccess::attached(item);
    return attached && !attached->property("ignored").toBool();
}

/** Adds the items below @p parent that say something, or what is in those that don't. */
void addItems(const QQuickItem *parent, QVector<QObject *> *found)
{
    const QList<QQuickItem *> items = parent->childItems();
    for (QQuickItem *item : items) {
        if (isTold(item))
            *found << item;
        else
            addItems(item, found);
    }
}

QVariant attachedProperty(QObject *item, const char *name)
{
    const QObject *attached = HostedAccess::attached(item);
    return attached ? attached->property(name) : QVariant();
}

QAccessibleInterface *innermost(QAccessibleInterface *told, int x, int y)
{
    while (QAccessibleInterface *inside = told->childAt(x, y))
        told = inside;
    return told;
}

} // namespace

AccessibleItem::AccessibleItem(QDeclarativeItem *item)
    : QAccessibleObject(item)
{
    access()->setInterface(this);
}

AccessibleItem::~AccessibleItem()
{
    if (access())
        access()->setInterface(nullptr);
}

QDeclarativeItem *AccessibleItem::item() const
{
    return static_cast<QDeclarativeItem *>(object());
}

HostedAccess *AccessibleItem::access() const
{
    return item() ? item()->hostedAccess() : nullptr;
}

QWindow *AccessibleItem::window() const
{
    return item()->window();
}

QRect AccessibleItem::rect() const
{
    const QQuickWindow *window = item()->window();
    if (!window)
        return QRect();
    const QRect inWindow
        = item()->mapRectToScene(QRectF(QPointF(), item()->size())).toAlignedRect();
    return inWindow.translated(window->mapToGlobal(QPoint()));
}

QAccessibleInterface *AccessibleItem::parent() const
{
    for (QQuickItem *above = item()->parentItem(); above; above = above->parentItem()) {
        if (isTold(above))
            return QAccessible::queryAccessibleInterface(above);
    }
    return QAccessible::queryAccessibleInterface(item()->window());
}

QVector<QObject *> AccessibleItem::children() const
{
    QVector<QObject *> found;
    const QVector<QWidget *> widgets = access()->tellingWidgets();
    for (QWidget *widget : widgets)
        found << widget;
    addItems(item(), &found);
    return found;
}

int AccessibleItem::childCount() const
{
    return children().size();
}

QAccessibleInterface *AccessibleItem::child(int index) const
{
    access()->placeOnScreen(); // where it may be asked for next
    return QAccessible::queryAccessibleInterface(children().value(index));
}

int AccessibleItem::indexOfChild(const QAccessibleInterface *child) const
{
    return child ? children().indexOf(child->object()) : -1;
}

QAccessibleInterface *AccessibleItem::childAt(int x, int y) const
{
    for (int i = childCount() - 1; i >= 0; --i) { // the last is on top
        QAccessibleInterface *candidate = child(i);
        if (candidate && !candidate->state().invisible && candidate->rect().contains(x, y))
            return innermost(candidate, x, y);
    }
    return nullptr;
}

QAccessibleInterface *AccessibleItem::focusChild() const
{
    return access()->focus();
}

QString AccessibleItem::text(QAccessible::Text type) const
{
    if (type == QAccessible::Name)
        return attachedProperty(item(), "name").toString();
    if (type == QAccessible::Description)
        return attachedProperty(item(), "description").toString();
    return QString();
}

QAccessible::Role AccessibleItem::role() const
{
    const int role = attachedProperty(item(), "role").toInt();
    return role == QAccessible::NoRole ? QAccessible::Client : QAccessible::Role(role);
}

bool AccessibleItem::isSeen() const
{
    const QQuickWindow *window = item()->window();
    return window && window->isVisible() && item()->isVisible() && item()->opacity() > 0
        && !rect().isEmpty();
}

QAccessible::State AccessibleItem::state() const
{
    QAccessible::State state;
    const QQuickWindow *window = item()->window();
    state.invisible = !isSeen();
    state.offscreen = window && !window->geometry().intersects(rect());
    state.disabled = !item()->isEnabled();
    state.focusable = item()->activeFocusOnTab() || attachedProperty(item(), "focusable").toBool();
    state.focused = item()->hasActiveFocus() && !focusChild();
    return state;
}

void *AccessibleItem::interface_cast(QAccessible::InterfaceType type)
{
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface *>(this)
                                                : nullptr;
}

QStringList AccessibleItem::actionNames() const
{
    return state().focusable ? QStringList(setFocusAction()) : QStringList();
}

void AccessibleItem::doAction(const QString &name)
{
    if (name == setFocusAction())
        item()->forceActiveFocus(Qt::OtherFocusReason);
}

#include "declarative/qt5/AccessibleWidget.h"

#include "declarative/qt5/AccessibleFactory.h"
#include "declarative/qt5/QDeclarativeItem.h"

#include <QQuickWindow>
#include <QWidget>

AccessibleWidget::AccessibleWidget(QWidget *widget, QAccessible::Role role)
    : QAccessibleWidget(widget, role)
{
}

QWindow *AccessibleWidget::window() const
{
    const QDeclarativeItem *item = AccessibleFactory::ownerOf(object());
    return item ? item->window() : nullptr;
}

QAccessibleInterface *AccessibleWidget::parent() const
{
    QDeclarativeItem *item = AccessibleFactory::ownerOf(object());
    return item ? QAccessible::queryAccessibleInterface(item) : QAccessibleWidget::parent();
}

QVector<QWidget *> AccessibleWidget::children() const
{
    QVector<QWidget *> found;
    const QList<QWidget *> inside
        = widget()->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget *child : inside) {
        if (!child->isWindow() && AccessibleFactory::hasSomethingToTell(child))
            found << child;
    }
    return found;
}

QAccessibleInterface *AccessibleWidget::child(int index) const
{
    return QAccessible::queryAccessibleInterface(children().value(index));
}

int AccessibleWidget::indexOfChild(const QAccessibleInterface *child) const
{
    return child ? children().indexOf(qobject_cast<QWidget *>(child->object())) : -1;
}

QAccessible::State AccessibleWidget::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.active = false; // which is what windows are
    state.movable = false;
    state.sizeable = false;
    return state;
}

void AccessibleWidget::doAction(const QString &name)
{
    QDeclarativeItem *item = AccessibleFactory::ownerOf(object());
    if (item && name == setFocusAction())
        item->forceActiveFocus(Qt::OtherFocusReason);
    QAccessibleWidget::doAction(name);
}

#include "viewer/TabExit.h"

#include <QKeyEvent>

void TabExit::activate(QAbstractItemView *view, QQuickItem *item)
{
    item->setActiveFocusOnTab(true);
    view->setTabKeyNavigation(false);
    if (!view->findChild<TabExit *>(QString(), Qt::FindDirectChildrenOnly))
        new TabExit(view, item, true);
}

void TabExit::activateBackwards(QWidget *first, QQuickItem *item)
{
    new TabExit(first, item, false);
}

TabExit::TabExit(QWidget *widget, QQuickItem *item, bool isForward)
    : QObject(widget)
    , m_item(item)
    , m_isForward(isForward)
{
    widget->installEventFilter(this);
}

bool TabExit::eventFilter(QObject *, QEvent *event)
{
    if (event->type() != QEvent::KeyPress || !m_item)
        return false;
    const int key = static_cast<QKeyEvent *>(event)->key();
    if ((key != Qt::Key_Tab || !m_isForward) && key != Qt::Key_Backtab)
        return false;
    const bool isForward = key == Qt::Key_Tab;
    if (QQuickItem *next = m_item->nextItemInFocusChain(isForward))
        next->forceActiveFocus(isForward ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
}

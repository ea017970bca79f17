#include "viewer/ViewStyle.h"

#include "viewer/TabExit.h"
#include "viewer/TouchDelegate.h"
#include "viewer/TouchFlick.h"

namespace
{

const int kDefaultRowHeight = 44;

} // namespace

ViewStyle::ViewStyle(QObject *parent)
    : QObject(parent)
    , m_rowHeight(kDefaultRowHeight)
    , m_isDark(false)
{
}

void ViewStyle::setItem(QQuickItem *item)
{
    if (item == m_item)
        return;
    m_item = item;
    apply();
    emit itemChanged();
}

void ViewStyle::setRowHeight(int pixels)
{
    if (pixels == m_rowHeight)
        return;
    m_rowHeight = pixels;
    apply();
    emit rowHeightChanged();
}

void ViewStyle::setDark(bool isDark)
{
    if (isDark == m_isDark)
        return;
    m_isDark = isDark;
    apply();
    emit darkChanged();
}

void ViewStyle::dress(QAbstractItemView *view, const QString &styleSheet, TouchDelegate *delegate)
{
    TabExit::activate(view, m_item);
    view->setStyleSheet(styleSheet);
    const QAbstractItemDelegate *previous = view->itemDelegate();
    view->setItemDelegate(delegate);
    delete previous;
    TouchFlick::activate(view);
}

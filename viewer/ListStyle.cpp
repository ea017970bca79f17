#include "viewer/ListStyle.h"

#include "lists/LogDataSetFilterListItem.h"
#include "lists/LogDataSetListItem.h"
#include "lists/LogVariableListItem.h"
#include "viewer/TabExit.h"
#include "viewer/ThemeColors.h"
#include "viewer/TouchDelegate.h"
#include "viewer/TouchFlick.h"

#include <QListView>

namespace
{

const int kDefaultRowHeight = 44;

const char kStyleSheet[]
    = "QListView { background: %surface%; border: none; color: %text%; outline: 0;"
      " font-family: 'Open Sans'; font-size: 15px }"
      "QListView::item { padding-left: 10px; border-bottom: 1px solid %line% }"
      "QListView::item:selected { background: %selected%; color: %text% }"
      "QListView::indicator { width: 24px; height: 24px }"
      "QListView::indicator:checked { image: url(:/datalog/images/checkbox_full.png) }"
      "QListView::indicator:unchecked { image: url(:/datalog/images/checkbox_empty.png) }"
      "QScrollBar:vertical { background: %surface%; width: 12px; border: none; margin: 0 }"
      "QScrollBar::handle:vertical { background: %handle%; border-radius: 4px; margin: 2px;"
      " min-height: 44px }"
      "QScrollBar::add-line, QScrollBar::sub-line { height: 0 }"
      "QScrollBar::add-page, QScrollBar::sub-page { background: none }";

template <class Item> QListView *viewOf(QQuickItem *item)
{
    auto *list = qobject_cast<Item *>(item);
    return list ? list->listView() : nullptr;
}

QListView *listView(QQuickItem *item)
{
    if (QListView *view = viewOf<LogVariableListItem>(item))
        return view;
    if (QListView *view = viewOf<LogDataSetFilterListItem>(item))
        return view;
    return viewOf<LogDataSetListItem>(item);
}

} // namespace

ListStyle::ListStyle(QObject *parent)
    : QObject(parent)
    , m_rowHeight(kDefaultRowHeight)
    , m_isDark(false)
{
}

void ListStyle::setList(QQuickItem *list)
{
    if (list == m_list)
        return;
    m_list = list;
    apply();
    emit listChanged();
}

void ListStyle::setRowHeight(int pixels)
{
    if (pixels == m_rowHeight)
        return;
    m_rowHeight = pixels;
    apply();
    emit rowHeightChanged();
}

void ListStyle::setDark(bool isDark)
{
    if (isDark == m_isDark)
        return;
    m_isDark = isDark;
    apply();
    emit darkChanged();
}

TouchDelegate *ListStyle::newDelegate(QListView *view)
{
    return new TouchDelegate(m_rowHeight, view);
}

void ListStyle::apply()
{
    QListView *view = listView(m_list);
    if (!view)
        return;
    TabExit::activate(view, m_list);
    view->setStyleSheet(ThemeColors::filled(kStyleSheet, m_isDark));
    view->setItemDelegate(newDelegate(view));
    TouchFlick::activate(view);
    view->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view->setTextElideMode(Qt::ElideRight);
}

#include "viewer/TableStyle.h"

#include "table/LogTableView.h"
#include "table/LogTableViewItem.h"
#include "table/ScrollBarStyle.h"
#include "viewer/CellDelegate.h"
#include "viewer/TabExit.h"
#include "viewer/ThemeColors.h"
#include "viewer/TouchFlick.h"

#include <QHeaderView>
#include <QScrollBar>

namespace
{

const int kDefaultRowHeight = 44;

// The scroll bars have a style of their own, made for fingers.
const char kStyleSheet[]
    = "QTableView { background: %surface%; border: none; color: %text%; outline: 0;"
      " font-family: 'Open Sans'; font-size: 14px; gridline-color: %line%;"
      " alternate-background-color: %stripe% }"
      "QTableView::item { padding: 0 6px }"
      "QHeaderView { background: %page%; border: none }"
      "QHeaderView::section { background: %page%; color: %text%; border: none;"
      " border-right: 1px solid %border%; border-bottom: 1px solid %border%; padding: 3px 8px;"
      " font-family: 'Open Sans'; font-size: 13px }"
      "QTableCornerButton::section { background: %page%; border: none;"
      " border-right: 1px solid %border%; border-bottom: 1px solid %border% }";

/** The module's own, in other colours on a dark page. */
QString barStyle(QString style, bool isDark)
{
    if (!isDark)
        return style;
    style.replace(QLatin1String("#FFFFFF"), QLatin1String("%surface%"));
    style.replace(QLatin1String("#F7F7F7"), QLatin1String("%pressed%"));
    style.replace(QLatin1String("#D4DFEC"), QLatin1String("%border%"));
    style.replace(QLatin1String("#BEBEBE"), QLatin1String("%border%"));
    style.replace(QLatin1String("#c5e4f5"), QLatin1String("%handle%"));
    return ThemeColors::filled(style.toLatin1().constData(), true);
}

} // namespace

TableStyle::TableStyle(QObject *parent)
    : QObject(parent)
    , m_rowHeight(kDefaultRowHeight)
    , m_isDark(false)
{
}

void TableStyle::setTable(QQuickItem *table)
{
    if (table == m_table)
        return;
    m_table = table;
    apply();
    emit tableChanged();
}

void TableStyle::setRowHeight(int pixels)
{
    if (pixels == m_rowHeight)
        return;
    m_rowHeight = pixels;
    apply();
    emit rowHeightChanged();
}

void TableStyle::setDark(bool isDark)
{
    if (isDark == m_isDark)
        return;
    m_isDark = isDark;
    apply();
    emit darkChanged();
}

void TableStyle::apply()
{
    auto *item = qobject_cast<LogTableViewItem *>(m_table.data());
    if (!item)
        return;
    LogTableView *view = item->tableView();
    TabExit::activate(view, item);
    view->horizontalScrollBar()->setStyleSheet(barStyle(ScrollBarStyle::horizontal(), m_isDark));
    view->verticalScrollBar()->setStyleSheet(barStyle(ScrollBarStyle::vertical(), m_isDark));
    view->setStyleSheet(ThemeColors::filled(kStyleSheet, m_isDark));
    QAbstractItemDelegate *previous = view->itemDelegate();
    view->setItemDelegate(new CellDelegate(m_rowHeight, view));
    delete previous;
    TouchFlick::activate(view);
    view->setCornerButtonEnabled(false);
    view->setSelectionMode(QAbstractItemView::NoSelection);
}

#include "viewer/TableStyle.h"

#include "table/CheckboxItemDelegate.h"
#include "table/LogTableView.h"
#include "table/LogTableViewItem.h"
#include "table/ScrollBarStyle.h"
#include "viewer/CellDelegate.h"
#include "viewer/ThemeColors.h"

#include <QHeaderView>
#include <QScrollBar>

namespace
{

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

// The module's boxes are white.
const char kDarkBoxes[]
    = "QCheckBox::indicator { width: 18px; height: 18px; border: 2px solid %mutedText%;"
      " border-radius: 4px; background: %surface% }"
      "QCheckBox::indicator:checked { width: 22px; height: 22px; border: none; background: none;"
      " image: url(:datalog/images/checkbox_full.png) }";

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
    : ViewStyle(parent)
{
}

void TableStyle::apply()
{
    auto *table = qobject_cast<LogTableViewItem *>(item());
    if (!table)
        return;
    LogTableView *view = table->tableView();
    view->horizontalScrollBar()->setStyleSheet(barStyle(ScrollBarStyle::horizontal(), isDark()));
    view->verticalScrollBar()->setStyleSheet(barStyle(ScrollBarStyle::vertical(), isDark()));
    dress(view, ThemeColors::filled(kStyleSheet, isDark()), new CellDelegate(rowHeight(), view));
    table->findChild<CheckboxItemDelegate *>()->setBoxStyleSheet(
        isDark() ? ThemeColors::filled(kDarkBoxes, true) : QString());
    view->setCornerButtonEnabled(false);
    view->setSelectionMode(QAbstractItemView::NoSelection);
}

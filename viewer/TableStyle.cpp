#include "viewer/TableStyle.h"

#include "table/CheckboxItemDelegate.h"
#include "table/LogTableView.h"
#include "table/LogTableViewItem.h"
#include "viewer/CellDelegate.h"
#include "viewer/ColumnWidths.h"
#include "viewer/ThemeColors.h"

#include <QFrame>
#include <QHeaderView>
#include <QScrollBar>

namespace
{

const char kStyleSheet[]
    = "QTableView { background: %surface%; border: none; color: %text%; outline: 0;"
      " font-family: 'Open Sans'; font-size: 14px; gridline-color: %line%;"
      " alternate-background-color: %stripe% }"
      "QTableView::item { padding: 0 6px; border: none }"
      "QHeaderView { background: %page%; border: none }"
      "QHeaderView::section { background: %page%; color: %text%; border: none;"
      " border-right: 1px solid %border%; border-bottom: 1px solid %border%; padding: 3px 8px;"
      " font-family: 'Open Sans'; font-size: 13px }"
      "#corner { background: %page%; border: none; border-left: 1px solid %border% }"
      "QTableCornerButton::section { background: %page%; border: none;"
      " border-right: 1px solid %border%; border-bottom: 1px solid %border% }";

// The module's boxes are white.
const char kDarkBoxes[]
    = "QCheckBox::indicator { width: 18px; height: 18px; border: 2px solid %mutedText%;"
      " border-radius: 4px; background: %surface% }"
      "QCheckBox::indicator:checked { width: 22px; height: 22px; border: none; background: none;"
      " image: url(:datalog/images/checkbox_full.png) }";

// Each bar is as thick as a fingertip, and so is what can be taken hold of; what is drawn is slim.
const char kScrollBars[]
    = "QScrollBar { background: %page%; border: none; margin: 0 }"
      "QScrollBar:vertical { width: 30px; border-left: 1px solid %border% }"
      "QScrollBar:horizontal { height: 30px; border-top: 1px solid %border% }"
      "QScrollBar::handle { background: %handle%; border-radius: 4px }"
      "QScrollBar::handle:hover, QScrollBar::handle:pressed { background: %mutedText% }"
      "QScrollBar::handle:vertical { margin: 2px 10px; min-height: 56px }"
      "QScrollBar::handle:horizontal { margin: 10px 2px; min-width: 56px }"
      "QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0 }"
      "QScrollBar::add-page, QScrollBar::sub-page { background: none }";

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
    // The module gives each bar a style of its own, which goes before that of the table.
    view->horizontalScrollBar()->setStyleSheet(ThemeColors::filled(kScrollBars, isDark()));
    view->verticalScrollBar()->setStyleSheet(ThemeColors::filled(kScrollBars, isDark()));
    dress(view, ThemeColors::filled(kStyleSheet, isDark()), new CellDelegate(rowHeight(), view));
    table->checkBoxes()->setBoxStyleSheet(isDark() ? ThemeColors::filled(kDarkBoxes, true)
                                                   : QString());
    ColumnWidths::activate(table);
    if (!view->cornerWidget()) {
        auto *corner = new QFrame; // between the scroll bars
        corner->setObjectName(QStringLiteral("corner"));
        view->setCornerWidget(corner);
    }
    view->setCornerButtonEnabled(false);
    view->setSelectionMode(QAbstractItemView::NoSelection);
}

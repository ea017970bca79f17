#ifndef DATALOG_TESTS_TABLE_SHOWNCOLUMNS_H
#define DATALOG_TESTS_TABLE_SHOWNCOLUMNS_H

#include "table/LogTableView.h"
#include "table/LogTableViewItem.h"

#include <QHeaderView>
#include <QStringList>

/** Columns that show, such as "0,3". */
inline QString shownColumns(const LogTableViewItem &item)
{
    QStringList columns;
    for (int column = 0; column < item.tableView()->horizontalHeader()->count(); ++column) {
        if (!item.tableView()->isColumnHidden(column))
            columns << QString::number(column);
    }
    return columns.join(QLatin1String(","));
}

inline QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

#endif

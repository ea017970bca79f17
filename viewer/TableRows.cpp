#include "viewer/TableRows.h"

#include "table/LogTableView.h"
#include "table/LogTableViewItem.h"
#include "viewer/PlottedRows.h"

namespace
{

const QAbstractItemModel *modelOf(const LogTableViewItem *table)
{
    return table && table->dataSource() ? table->tableView()->model() : nullptr;
}

bool isWindow(const LogTableViewItem *table)
{
    return modelOf(table) && modelOf(table) == table->dataSource()->observationFilteredTableModel();
}

const PlottedRows *plottedRows(const LogTableViewItem *table)
{
    return qobject_cast<const PlottedRows *>(modelOf(table));
}

} // namespace

bool TableRows::areObservations(const LogTableViewItem *table)
{
    return isWindow(table) || plottedRows(table)
        || (modelOf(table) && modelOf(table) == table->dataSource()->tableModel());
}

int TableRows::logRow(const LogTableViewItem *table, int row)
{
    if (!areObservations(table) || row < 0 || row >= modelOf(table)->rowCount())
        return -1;
    if (const PlottedRows *rows = plottedRows(table))
        return rows->logRow(row);
    if (!isWindow(table))
        return row;
    const LogObservationSortFilterProxyModel *proxy
        = table->dataSource()->observationFilteredTableModel();
    return proxy->mapToSource(proxy->index(row, 0)).row();
}

int TableRows::shownRow(const LogTableViewItem *table, int logRow)
{
    if (!areObservations(table))
        return -1;
    if (const PlottedRows *rows = plottedRows(table))
        return rows->shownRow(logRow);
    const QModelIndex source = table->dataSource()->tableModel()->index(logRow, 0);
    if (!isWindow(table) || !source.isValid())
        return source.row();
    return table->dataSource()->observationFilteredTableModel()->mapFromSource(source).row();
}

CellSearch::CellText TableRows::cellText(const LogTableViewItem *table)
{
    const QPointer<const QAbstractItemModel> model = modelOf(table);
    if (!areObservations(table)) {
        return [model](int row, int column) {
            return model ? model->index(row, column).data().toString() : QString();
        };
    }
    if (const PlottedRows *rows = plottedRows(table))
        return rows->cellText();
    const CellGridPointer grid = table->dataSource()->tableModel()->grid();
    if (!isWindow(table))
        return [grid](int row, int column) { return grid->text(column - 1, row); };
    const RowChoice rows = table->dataSource()->observationFilteredTableModel()->sourceRows();
    return [grid, rows](int row, int column) { return grid->text(column - 1, rows.at(row)); };
}

#include "table/LogConstTableViewModel.h"

#include <QColor>
#include <QDebug>

static const int kMinimumRowCount = 12;

LogConstTableViewModel::LogConstTableViewModel(QObject *parent)
    : QAbstractTableModel(parent)
    , _rowCount(0)
    , _columnCount(0)
{
}

void LogConstTableViewModel::setColumnHeaderData(const QStringList &headers)
{
    beginResetModel();
    _columnHeaders = headers;
    _columnCount = headers.size();
    endResetModel();
}

void LogConstTableViewModel::setGridData(const QList<QStringList> &grid)
{
    beginResetModel();
    _grid = grid;
    _rowCount = grid.value(0).size();
    endResetModel();
}

int LogConstTableViewModel::rowCount(const QModelIndex &parent) const
{
    if (parent.isValid() || _rowCount == 0)
        return 0;
    return qMax(_rowCount, kMinimumRowCount);
}

int LogConstTableViewModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : _columnCount;
}

QVariant LogConstTableViewModel::headerData(int section, Qt::Orientation orientation,
                                            int role) const
{
    if (role != Qt::DisplayRole)
        return QVariant();
    if (orientation == Qt::Vertical)
        return section;
    if (section < 0 || section >= _columnHeaders.size())
        return QVariant();
    return _columnHeaders.at(section).split(QLatin1Char(':')).join(QLatin1String("\n"));
}

QVariant LogConstTableViewModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return QVariant();
    if (role == Qt::DisplayRole)
        return cellText(index.row(), index.column());
    if (role == Qt::ForegroundRole)
        return QColor(Qt::black);
    return QVariant();
}

QVariant LogConstTableViewModel::cellText(int row, int column) const
{
    if (column < _grid.size())
        return row < _grid.at(column).size() ? QVariant(_grid.at(column).at(row)) : QVariant();
    // A constant without values is as long as the first one; the rows that only fill up the table
    // are no reason to complain.
    if (row < _rowCount)
        qDebug() << "Const column index equal or greater than than grid count";
    return QVariant();
}

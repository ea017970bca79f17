#include "table/LogTableViewPlottedModel.h"

#include "model/StringListGrid.h"

LogTableViewPlottedModel::LogTableViewPlottedModel(QObject *parent)
    : QAbstractTableModel(parent)
    , _grid(new StringListGrid)
    , _columnCount(0)
    , _rowCount(0)
{
}

void LogTableViewPlottedModel::setColumnHeaderData(const QList<QStringList> &headers)
{
    _columnHeaders = headers;
    _columnCount = headers.size();
}

void LogTableViewPlottedModel::setGridData(const QList<QStringList> &columns)
{
    setGrid(CellGridPointer(new StringListGrid(columns)));
}

void LogTableViewPlottedModel::setGrid(const CellGridPointer &grid)
{
    _grid = grid ? grid : CellGridPointer(new StringListGrid);
    _rowCount = _grid->cellCount(0);
    // The headers have changed already, so nothing is gained by announcing the reset beforehand.
    beginResetModel();
    endResetModel();
}

int LogTableViewPlottedModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : _rowCount;
}

int LogTableViewPlottedModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : _columnCount;
}

QVariant LogTableViewPlottedModel::headerData(int section, Qt::Orientation orientation,
                                              int role) const
{
    if (role != Qt::DisplayRole || orientation != Qt::Horizontal)
        return QVariant();
    if (section < 0 || section >= _columnHeaders.size())
        return QVariant();
    return _columnHeaders.at(section).join(QLatin1String("\n"));
}

QVariant LogTableViewPlottedModel::data(const QModelIndex &index, int role) const
{
    if (role != Qt::DisplayRole || !index.isValid())
        return QVariant();
    // Columns may be shorter than the first one, or missing where there is only a header.
    if (index.row() >= _grid->cellCount(index.column()))
        return QVariant();
    return _grid->text(index.column(), index.row());
}

#include "table/LogTableViewModel.h"

#include "model/StringListGrid.h"

#include <QColor>

#include <limits>

LogTableViewModel::LogTableViewModel(QObject *parent)
    : QAbstractTableModel(parent)
    , _grid(new StringListGrid)
    , _excludedRowCount(0)
    , _rowCount(0)
    , _columnCount(0)
{
}

void LogTableViewModel::setColumnHeaderData(const QList<QStringList> &headers)
{
    beginResetModel();
    _columnHeaders = headers;
    _columnCount = headers.size() + 1;
    endResetModel();
}

void LogTableViewModel::setGridData(const QList<QStringList> &columns)
{
    setGrid(CellGridPointer(new StringListGrid(columns)));
}

void LogTableViewModel::setGrid(const CellGridPointer &grid)
{
    beginResetModel();
    _grid = grid ? grid : CellGridPointer(new StringListGrid);
    _rowCount = _grid->cellCount(0);
    _excludedRows.fill(false, _rowCount);
    _excludedRowCount = 0;
    endResetModel();
}

int LogTableViewModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : _rowCount;
}

int LogTableViewModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : _columnCount;
}

QVariant LogTableViewModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole)
        return QVariant();
    if (orientation == Qt::Vertical)
        return section < std::numeric_limits<int>::max() ? QVariant(section + 1) : QVariant();
    if (section == 0)
        return tr("Exclude");
    if (section < 0 || section > _columnHeaders.size())
        return QVariant();
    return _columnHeaders.at(section - 1).join(QLatin1String("\n"));
}

QVariant LogTableViewModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return QVariant();
    if (role == Qt::DisplayRole)
        return cellText(index);
    if (role == Qt::CheckStateRole)
        return checkState(index);
    // Cells without flags are drawn as disabled; told so, their text stays black and readable.
    if (role == Qt::ForegroundRole)
        return QColor(Qt::black);
    return QVariant();
}

QVariant LogTableViewModel::cellText(const QModelIndex &index) const
{
    const int column = index.column() - 1;
    if (column < 0 || index.row() >= _grid->cellCount(column))
        return QVariant();
    return _grid->text(column, index.row());
}

QVariant LogTableViewModel::checkState(const QModelIndex &index) const
{
    if (index.column() != 0)
        return QVariant();
    return int(rowExcluded(index.row()) ? Qt::Checked : Qt::Unchecked);
}

Qt::ItemFlags LogTableViewModel::flags(const QModelIndex &index) const
{
    if (index.column() != 0)
        return Qt::NoItemFlags;
    return Qt::ItemIsUserCheckable | Qt::ItemIsEnabled;
}

bool LogTableViewModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::CheckStateRole || index.column() != 0)
        return false;
    if (index.row() < 0 || !index.model() || index.row() >= _excludedRows.size())
        return false;
    const bool hadExcludedRows = hasExcludedRows();
    setRowExcluded(index.row(), value.toBool());
    emit dataChanged(index, index);
    if (!hadExcludedRows || !hasExcludedRows())
        emit hasExcludedRowsChanged();
    return true;
}

void LogTableViewModel::setRowExcluded(int row, bool excluded)
{
    _excludedRowCount += int(excluded) - int(_excludedRows.testBit(row));
    _excludedRows.setBit(row, excluded);
}

int LogTableViewModel::columnSpan(int column) const
{
    if (column < 0 || column >= _grid->columnCount())
        return 0;
    return _grid->cellCount(column) > 2 ? 1 : _columnHeaders.size();
}

bool LogTableViewModel::rowExcluded(int row) const
{
    return row >= 0 && row < _excludedRows.size() && _excludedRows.testBit(row);
}

QVector<int> LogTableViewModel::excludeRows() const
{
    QVector<int> flags(_excludedRows.size(), 0);
    for (int row = 0; _excludedRowCount > 0 && row < flags.size(); ++row)
        flags[row] = _excludedRows.testBit(row) ? 1 : 0;
    return flags;
}

void LogTableViewModel::clearExcludedRows()
{
    _excludedRows.fill(false);
    _excludedRowCount = 0;
    emit dataChanged(createIndex(0, 0), createIndex(rowCount(), columnCount()));
    emit hasExcludedRowsChanged();
}

#include "viewer/FilledRows.h"

FilledRows::FilledRows(QAbstractItemModel *table, QObject *parent)
    : QIdentityProxyModel(parent)
{
    setSourceModel(table);
}

int FilledRows::rowCount(const QModelIndex &parent) const
{
    int count = QIdentityProxyModel::rowCount(parent);
    while (count > 1 && isEmpty(count - 1))
        --count;
    return count;
}

bool FilledRows::isEmpty(int row) const
{
    const QAbstractItemModel *table = sourceModel();
    for (int column = 0; column < table->columnCount(); ++column) {
        if (!table->index(row, column).data().toString().isEmpty())
            return false;
    }
    return true;
}

QVariant FilledRows::headerData(int section, Qt::Orientation orientation, int role) const
{
    return orientation == Qt::Vertical && role == Qt::DisplayRole
        ? QVariant(section + 1)
        : QIdentityProxyModel::headerData(section, orientation, role);
}

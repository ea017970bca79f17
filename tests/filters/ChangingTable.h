#ifndef DATALOG_TESTS_FILTERS_CHANGINGTABLE_H
#define DATALOG_TESTS_FILTERS_CHANGINGTABLE_H

#include <QAbstractTableModel>
#include <QVector>

#include <algorithm>

/**
 * A table that changes in every way a table can. The first column has check boxes; all columns show
 * the rows' keys, even ones the negative of it. No key is there twice.
 */
class ChangingTable : public QAbstractTableModel
{
    Q_OBJECT

public:
    ChangingTable()
        : m_columns(3)
        , m_lastKey(0)
    {
    }
    int rowCount(const QModelIndex &parent = QModelIndex()) const override
    {
        return parent.isValid() ? 0 : m_keys.size();
    }
    int columnCount(const QModelIndex &parent = QModelIndex()) const override
    {
        return parent.isValid() ? 0 : m_columns;
    }
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override
    {
        if (!index.isValid())
            return QVariant();
        const int key = m_keys.at(index.row());
        if (index.column() == 0 && role == Qt::CheckStateRole)
            return m_checkedKeys.contains(key);
        return role == Qt::DisplayRole ? QVariant(index.column() % 2 ? key : -key) : QVariant();
    }
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override
    {
        if (!index.isValid() || index.column() != 0 || role != Qt::CheckStateRole)
            return false;
        m_checkedKeys.removeAll(m_keys.at(index.row()));
        if (value.toBool())
            m_checkedKeys.append(m_keys.at(index.row()));
        emit dataChanged(index, index);
        return true;
    }
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override
    {
        if (role != Qt::DisplayRole)
            return QVariant();
        return orientation == Qt::Vertical ? section + 1 : 100 + section;
    }
    Qt::ItemFlags flags(const QModelIndex &index) const override
    {
        if (!index.isValid())
            return Qt::NoItemFlags;
        const Qt::ItemFlags common = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
        return index.column() == 0 ? common | Qt::ItemIsUserCheckable : common;
    }
    bool insertRows(int row, int count, const QModelIndex &parent = QModelIndex()) override
    {
        beginInsertRows(parent, row, row + count - 1);
        for (int i = 0; i < count; ++i)
            m_keys.insert(row, newKey());
        endInsertRows();
        return true;
    }
    bool removeRows(int row, int count, const QModelIndex &parent = QModelIndex()) override
    {
        beginRemoveRows(parent, row, row + count - 1);
        m_keys.remove(row, count);
        endRemoveRows();
        return true;
    }
    bool insertColumns(int column, int count, const QModelIndex &parent = QModelIndex()) override
    {
        beginInsertColumns(parent, column, column + count - 1);
        m_columns += count;
        endInsertColumns();
        return true;
    }
    bool removeColumns(int column, int count, const QModelIndex &parent = QModelIndex()) override
    {
        beginRemoveColumns(parent, column, column + count - 1);
        m_columns -= count;
        endRemoveColumns();
        return true;
    }
    void moveToEnd(int row)
    {
        if (!beginMoveRows(QModelIndex(), row, row, QModelIndex(), m_keys.size()))
            return;
        std::rotate(m_keys.begin() + row, m_keys.begin() + row + 1, m_keys.end());
        endMoveRows();
    }
    void turnAround()
    {
        emit layoutAboutToBeChanged();
        std::reverse(m_keys.begin(), m_keys.end());
        foreach (const QModelIndex &held, persistentIndexList())
            changePersistentIndex(held, index(m_keys.size() - 1 - held.row(), held.column()));
        emit layoutChanged();
    }
    void changeKeys(int top, int bottom)
    {
        for (int row = top; row <= bottom; ++row)
            m_keys[row] = newKey();
        emit dataChanged(index(top, 1), index(bottom, m_columns - 1));
    }
    void announceHeader(int top, int bottom) { emit headerDataChanged(Qt::Vertical, top, bottom); }
    void reset(int rows)
    {
        beginResetModel();
        m_keys.clear();
        for (int row = 0; row < rows; ++row)
            m_keys.append(newKey());
        endResetModel();
    }

private:
    /** Keys in no order; their number is prime. */
    int newKey() { return m_lastKey = (m_lastKey + 61813) % 100003; }

    int m_columns;
    int m_lastKey;
    QVector<int> m_keys;
    QList<int> m_checkedKeys;
};

#endif

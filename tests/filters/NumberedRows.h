#ifndef DATALOG_TESTS_FILTERS_NUMBEREDROWS_H
#define DATALOG_TESTS_FILTERS_NUMBEREDROWS_H

#include <QAbstractTableModel>
#include <QVector>

/** A table of two columns that can grow and shrink: its rows' numbers, and a key to sort by. */
class NumberedRows : public QAbstractTableModel
{
    Q_OBJECT

public:
    explicit NumberedRows(int rowCount)
        : m_keys(rowCount, 0)
    {
    }
    int rowCount(const QModelIndex &parent = QModelIndex()) const override
    {
        return parent.isValid() ? 0 : m_keys.size();
    }
    int columnCount(const QModelIndex &parent = QModelIndex()) const override
    {
        return parent.isValid() ? 0 : 2;
    }
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override
    {
        if (role != Qt::DisplayRole || !index.isValid())
            return QVariant();
        return index.column() == 0 ? index.row() : m_keys.at(index.row());
    }
    void setKey(int row, int key)
    {
        m_keys[row] = key;
        emit dataChanged(index(row, 1), index(row, 1));
    }
    void announce(int top, int left, int bottom, int right)
    {
        emit dataChanged(createIndex(top, left), createIndex(bottom, right));
    }
    void announceNothing() { emit dataChanged(QModelIndex(), QModelIndex()); }
    void insert(int row, int count)
    {
        beginInsertRows(QModelIndex(), row, row + count - 1);
        m_keys.insert(row, count, 0);
        endInsertRows();
    }
    void remove(int row, int count)
    {
        beginRemoveRows(QModelIndex(), row, row + count - 1);
        m_keys.remove(row, count);
        endRemoveRows();
    }
    void reset(int rowCount)
    {
        beginResetModel();
        m_keys = QVector<int>(rowCount, 0);
        endResetModel();
    }

private:
    QVector<int> m_keys;
};

#endif

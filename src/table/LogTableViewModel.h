#ifndef DATALOG_TABLE_LOGTABLEVIEWMODEL_H
#define DATALOG_TABLE_LOGTABLEVIEWMODEL_H

#include "model/CellGrid.h"

#include <QAbstractTableModel>
#include <QBitArray>
#include <QStringList>
#include <QVector>

/**
 * The observations of a data set: a first column of check boxes that exclude rows from the graph,
 * then one column for each column of the data.
 *
 * Model column c shows data column c - 1. The cells are those of a grid that is shared with the
 * data set; the model adds only which rows are excluded.
 */
class LogTableViewModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    explicit LogTableViewModel(QObject *parent = nullptr);

    /** @param headers for each data column the parts of its header, shown one below the other. */
    void setColumnHeaderData(const QList<QStringList> &headers);
    /**
     * Shows these cells, every row kept.
     * @param columns for each data column its cells; the first one's length is the row count.
     */
    void setGridData(const QList<QStringList> &columns);
    /** As setGridData(), without a copy of the cells. Null stands for a grid without columns. */
    void setGrid(const CellGridPointer &grid);
    /** The cells shown, never null. */
    CellGridPointer grid() const { return _grid; }

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    /** Data cells have no flags at all: they are there to be read. */
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    /** Excludes or keeps a row: the check state of column 0 is all that can be set. */
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;

    /**
     * Columns that a cell spans: all of them for a data column of one or two cells, 1 for a longer
     * one and 0 where there is none. @p column counts the grid's columns.
     */
    int columnSpan(int column) const;
    bool hasExcludedRows() const { return _excludedRowCount > 0; }
    /** False for a row that there is not. */
    bool rowExcluded(int row) const;
    /** For each row 1 when it is excluded, else 0. */
    QVector<int> excludeRows() const;
    /**
     * Keeps every row.
     *
     * The range that dataChanged() tells ends one row and one column past the last cell, which
     * views take for a change of the whole table. Whoever looks cells up by it must clip it first.
     */
    void clearExcludedRows();

signals:
    void hasExcludedRowsChanged();

private:
    QVariant checkState(const QModelIndex &index) const;
    QVariant cellText(const QModelIndex &index) const;
    void setRowExcluded(int row, bool excluded);

    QList<QStringList> _columnHeaders;
    CellGridPointer _grid;
    QBitArray _excludedRows;
    int _excludedRowCount;
    int _rowCount;
    int _columnCount;
};

#endif

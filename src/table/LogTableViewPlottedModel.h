#ifndef DATALOG_TABLE_LOGTABLEVIEWPLOTTEDMODEL_H
#define DATALOG_TABLE_LOGTABLEVIEWPLOTTEDMODEL_H

#include "model/CellGrid.h"

#include <QAbstractTableModel>
#include <QStringList>

/** A plain table of texts to be read, without row numbers. */
class LogTableViewPlottedModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    explicit LogTableViewPlottedModel(QObject *parent = nullptr);

    /**
     * Replaces the headers, and with them the column count, silently: the cells that follow through
     * setGridData() reset the model.
     * @param headers for each column the parts of its header, shown one below the other.
     */
    void setColumnHeaderData(const QList<QStringList> &headers);
    /** @param columns for each column its cells; the first one's length is the row count. */
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

private:
    QList<QStringList> _columnHeaders;
    CellGridPointer _grid;
    int _columnCount;
    int _rowCount;
};

#endif

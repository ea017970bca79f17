#ifndef DATALOG_TABLE_LOGCONSTTABLEVIEWMODEL_H
#define DATALOG_TABLE_LOGCONSTTABLEVIEWMODEL_H

#include <QAbstractTableModel>
#include <QStringList>

/**
 * The header constants of a data set: one column a constant, its values down the rows. A table that
 * has values has at least 12 rows, those below the values empty.
 */
class LogConstTableViewModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    explicit LogConstTableViewModel(QObject *parent = nullptr);

    /** @param headers one text a constant; its parts, between colons, show on lines of their own.
     */
    void setColumnHeaderData(const QStringList &headers);
    /** @param grid for each constant its values; the first one's length counts as the rows. */
    void setGridData(const QList<QStringList> &grid);

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    /** Rows are numbered from 0 here. */
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

private:
    QVariant cellText(int row, int column) const;

    QStringList _columnHeaders;
    QList<QStringList> _grid;
    int _rowCount;
    int _columnCount;
};

#endif

#ifndef DATALOG_TABLE_LOGTABLEVIEWANALYSISMODEL_H
#define DATALOG_TABLE_LOGTABLEVIEWANALYSISMODEL_H

#include <QAbstractTableModel>
#include <QStringList>

class Observation;

/** Holds the place of an analysis table: it takes no data and shows nothing. */
class LogTableViewAnalysisModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    explicit LogTableViewAnalysisModel(QObject *parent = nullptr);

    /** Does nothing. */
    void setColumnHeaderData(const QList<QStringList> &headers);
    /** Does nothing; the observations stay their owner's. */
    void setGridData(const QList<Observation *> &observations);

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
};

#endif

#ifndef DATALOG_VIEWER_FILLEDROWS_H
#define DATALOG_VIEWER_FILLEDROWS_H

#include <QIdentityProxyModel>

/** A table up to its last row that holds a text, which the module lets empty ones follow. */
class FilledRows : public QIdentityProxyModel
{
    Q_OBJECT

public:
    /** @param table tells of changes by resets alone. */
    explicit FilledRows(QAbstractItemModel *table, QObject *parent = nullptr);

    /** One row at least, where there is any. */
    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    /** Rows are counted from 1. */
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    bool isEmpty(int row) const;
};

#endif

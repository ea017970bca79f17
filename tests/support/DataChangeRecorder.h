#ifndef DATALOG_TESTS_SUPPORT_DATACHANGERECORDER_H
#define DATALOG_TESTS_SUPPORT_DATACHANGERECORDER_H

#include <QAbstractItemModel>
#include <QStringList>

/**
 * Writes down each dataChanged() of a model as "top,left-bottom,right". A spy can't: indexes are no
 * values it could keep on Qt 4.8, and they do not stay true.
 */
class DataChangeRecorder : public QObject
{
    Q_OBJECT

public:
    explicit DataChangeRecorder(const QAbstractItemModel *model)
    {
        connect(model,
                SIGNAL(dataChanged(QModelIndex,QModelIndex)), this,
                       SLOT(record(QModelIndex,QModelIndex)));
    }
    QStringList taken()
    {
        QStringList changes = m_changes;
        m_changes.clear();
        return changes;
    }

private slots:
    void record(const QModelIndex &topLeft, const QModelIndex &bottomRight)
    {
        m_changes << QString::fromLatin1("%1,%2-%3,%4")
                         .arg(topLeft.row())
                         .arg(topLeft.column())
                         .arg(bottomRight.row())
                         .arg(bottomRight.column());
    }

private:
    QStringList m_changes;
};

#endif

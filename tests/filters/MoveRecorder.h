#ifndef DATALOG_TESTS_FILTERS_MOVERECORDER_H
#define DATALOG_TESTS_FILTERS_MOVERECORDER_H

#include <QAbstractItemModel>
#include <QStringList>

/** Writes down which rows and columns of a model come and go, such as "+2-5" and "-0-1". */
class MoveRecorder : public QObject
{
    Q_OBJECT

public:
    explicit MoveRecorder(const QAbstractItemModel *model)
        : m_model(model)
    {
        connect(model,
                SIGNAL(rowsInserted(QModelIndex,int,int)), SLOT(addRows(QModelIndex,int,int)));
        connect(model,
                SIGNAL(rowsRemoved(QModelIndex,int,int)), SLOT(dropRows(QModelIndex,int,int)));
        connect(model,
                SIGNAL(columnsInserted(QModelIndex,int,int)),
                       SLOT(addColumns(QModelIndex,int,int)));
        connect(model,
                SIGNAL(columnsRemoved(QModelIndex,int,int)),
                       SLOT(dropColumns(QModelIndex,int,int)));
        connect(model, SIGNAL(modelReset()), SLOT(reset()));
    }
    /** All since the last call, with the number of rows there were after each. */
    QString taken()
    {
        QString moves = m_moves.join(QLatin1String(" "));
        m_moves.clear();
        return moves;
    }

private slots:
    void addRows(const QModelIndex &, int first, int last) { record("+", first, last); }
    void dropRows(const QModelIndex &, int first, int last) { record("-", first, last); }
    void addColumns(const QModelIndex &, int first, int last) { record("columns+", first, last); }
    void dropColumns(const QModelIndex &, int first, int last) { record("columns-", first, last); }
    void reset() { m_moves << QString::fromLatin1("reset=%1").arg(m_model->rowCount()); }

private:
    void record(const char *what, int first, int last)
    {
        m_moves << QString::fromLatin1("%1%2-%3=%4")
                       .arg(QLatin1String(what))
                       .arg(first)
                       .arg(last)
                       .arg(m_model->rowCount());
    }

    const QAbstractItemModel *m_model;
    QStringList m_moves;
};

#endif

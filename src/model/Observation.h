#ifndef DATALOG_MODEL_OBSERVATION_H
#define DATALOG_MODEL_OBSERVATION_H

#include "model/RowStore.h"

#include <QObject>
#include <QSharedPointer>
#include <QStringList>

/** One row of a data set. */
class Observation : public QObject
{
    Q_OBJECT

public:
    explicit Observation(const QStringList &values, QObject *parent = nullptr);
    /** A row of a store, whose cells are listed when they are first asked for. */
    Observation(const QSharedPointer<const RowStore> &store, int row, QObject *parent = nullptr);

    /** The row's cells as the log has them, quotes included. */
    const QStringList &values() const;
    bool checked() const { return m_checked; }
    void setChecked(bool checked) { m_checked = checked; }

private:
    mutable QStringList m_values;
    mutable QSharedPointer<const RowStore> m_store; ///< null once the cells are listed
    int m_row;
    bool m_checked;
};

#endif

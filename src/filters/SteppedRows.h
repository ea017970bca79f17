#ifndef DATALOG_FILTERS_STEPPEDROWS_H
#define DATALOG_FILTERS_STEPPEDROWS_H

#include <QVector>

/** Every step-th row of a run of rows: as many as there are, told by three numbers. */
class SteppedRows
{
public:
    /** No rows. */
    SteppedRows();
    /**
     * The rows from @p begin up to, but without, @p end that lie whole steps after @p origin.
     * @param origin at most @p begin; may lie before the first row there is.
     * @param step at least 1.
     */
    SteppedRows(qint64 origin, qint64 begin, qint64 end, qint64 step);

    int count() const { return m_count; }
    /** The row at a position from 0 up to, but without, count(). */
    int at(int i) const { return int(m_first + i * m_step); }
    /** The rows, ascending. */
    QVector<int> toVector() const;
    /** Where @p row stands among these rows, -1 when it does not. */
    int positionOf(int row) const;
    /** @p count of these rows, from a position on; both have to lie within. */
    SteppedRows mid(int position, int count) const;

    bool operator==(const SteppedRows &other) const;
    /**
     * Whether the two differ at most in where they begin and end. A single row has no steps of its
     * own: it lies on others' or not.
     */
    bool onStepsOf(const SteppedRows &other) const;
    /** The run of rows that is in both; none unless they lie on the same steps. */
    SteppedRows sharedRun(const SteppedRows &other) const;

private:
    qint64 pastLast() const { return m_first + (m_count - 1) * m_step + 1; }

    qint64 m_first;
    qint64 m_step;
    int m_count;
};

#endif

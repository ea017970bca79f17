#ifndef DATALOG_FILTERS_ROWCHOICE_H
#define DATALOG_FILTERS_ROWCHOICE_H

#include "filters/SteppedRows.h"

#include <QVector>

/**
 * Rows that were chosen from a table, in the order they are wanted.
 *
 * Nearly always these are every so-manyth row of a run, which is told by three numbers; only rows
 * in another order, or with some left out, are listed one by one.
 */
class RowChoice
{
public:
    /** Rows at even steps. */
    explicit RowChoice(const SteppedRows &rows);
    /** Rows one by one. */
    explicit RowChoice(const QVector<int> &rows);

    int count() const { return m_isListed ? m_list.size() : m_stepped.count(); }
    int at(int i) const { return m_isListed ? m_list.at(i) : m_stepped.at(i); }
    /** Whether these are the rows from 0 up to, but without, @p rows: all there are, in order. */
    bool isAllOf(int rows) const;
    QVector<int> toVector() const;

private:
    SteppedRows m_stepped;
    QVector<int> m_list;
    bool m_isListed;
};

#endif

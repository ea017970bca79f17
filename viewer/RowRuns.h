#ifndef DATALOG_VIEWER_ROWRUNS_H
#define DATALOG_VIEWER_ROWRUNS_H

#include <QPair>
#include <QString>
#include <QVector>

/** Rows of a log, as runs of neighbours, so that a million of them stay short. */
class RowRuns
{
public:
    RowRuns() = default;

    /** @param flags for each row 0 or, when it belongs here, anything else. */
    static RowRuns ofFlags(const QVector<int> &flags);
    /**
     * Reads what text() writes; blanks do not matter. Rows that do not ascend, or are no rows, set
     * @p ok to false.
     */
    static RowRuns read(const QString &text, bool *ok);

    /** Such as "3-5, 9", counted from 1 as the table does. */
    QString text() const;
    bool isEmpty() const { return m_runs.isEmpty(); }
    /** Each with its first and its last row, counted from 0, in ascending order. */
    const QVector<QPair<int, int>> &runs() const { return m_runs; }

private:
    QVector<QPair<int, int>> m_runs;
};

#endif

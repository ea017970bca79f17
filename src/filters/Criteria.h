#ifndef DATALOG_FILTERS_CRITERIA_H
#define DATALOG_FILTERS_CRITERIA_H

#include <QList>
#include <QStringList>
#include <QVector>

class LogDataSetFilter;

/**
 * The criteria that a user has added, in that order, and the one owner of them.
 *
 * Criteria on the same variable are joined by AND; a criterion on one variable never touches the
 * values of another.
 */
class Criteria
{
public:
    Criteria();
    ~Criteria();

    /**
     * Appends @p filter and takes it over, from its parent too. One that is here already is listed
     * once more; null is ignored.
     */
    void add(LogDataSetFilter *filter);
    /** Drops @p filter wherever it is listed and deletes it, listed or not; null does nothing. */
    void remove(LogDataSetFilter *filter);
    /** Deletes all criteria. */
    void clear();

    QList<LogDataSetFilter *> filters() const { return m_filters; }

    /**
     * A copy of @p values with the gap text in place of those that an active criterion on
     * @p variableName rejects. A text that is no number counts as 0.
     */
    QStringList applyFilters(const QString &variableName, const QStringList &values) const;
    /**
     * The active criteria on @p variableName, for series that are numbers already: a number, read
     * as QString::toFloat reads it, is kept where all of them accept it. Valid until a criterion is
     * removed.
     */
    QVector<LogDataSetFilter *> participating(const QString &variableName) const;

private:
    Q_DISABLE_COPY(Criteria)
    QList<LogDataSetFilter *> m_filters;
};

#endif

#include "filters/LogObservationSortFilterProxyModel.h"

#include "filters/SourceChangeRelay.h"
#include "filters/SteppedRows.h"

#include <typeinfo>

// Visits of source rows that a change may cost where it is told run by run: tens of milliseconds.
static const qint64 kMostVisits = 10000000;

static bool areSame(const SteppedRows &a, const SteppedRows &b)
{
    const int last = a.count() - 1;
    return a.count() == b.count() && (last < 0 || (a.at(0) == b.at(0) && a.at(last) == b.at(last)));
}

LogObservationSortFilterProxyModel::LogObservationSortFilterProxyModel(QObject *parent)
    : QSortFilterProxyModel(parent)
    , m_sortFilterType(Head)
    , m_rangeSize(50)
    , m_frequency(1)
    , m_emptied(false)
    , m_relay(new SourceChangeRelay(this))
{
}

LogObservationSortFilterProxyModel::~LogObservationSortFilterProxyModel() { }

LogObservationSortFilterProxyModel::LogObservationSortFilterType
LogObservationSortFilterProxyModel::sortFilterType() const
{
    return m_sortFilterType;
}

int LogObservationSortFilterProxyModel::rangeSize() const
{
    return m_rangeSize;
}

int LogObservationSortFilterProxyModel::frequency() const
{
    return m_frequency;
}

void LogObservationSortFilterProxyModel::setSortFilterType(LogObservationSortFilterType type)
{
    const SteppedRows before = shownRows();
    m_sortFilterType = type;
    refilterFrom(before);
}

void LogObservationSortFilterProxyModel::setRangeSize(int rangeSize)
{
    const SteppedRows before = shownRows();
    m_rangeSize = rangeSize;
    refilterFrom(before);
}

void LogObservationSortFilterProxyModel::setFrequency(int frequency)
{
    const SteppedRows before = shownRows();
    m_frequency = frequency;
    refilterFrom(before);
}

void LogObservationSortFilterProxyModel::setSourceModel(QAbstractItemModel *sourceModel)
{
    m_relay->disconnectSource();
    QSortFilterProxyModel::setSourceModel(sourceModel);
    m_relay->connectSource();
}

RowChoice LogObservationSortFilterProxyModel::sourceRows() const
{
    // Without columns there is nothing to sort by, nor an index to map. The source is asked for
    // them: the base class would first look at each of its rows.
    if (sortColumn() < 0 || !sourceModel() || sourceModel()->columnCount() == 0)
        return RowChoice(shownRows());
    QVector<int> rows(rowCount());
    for (int row = 0; row < rows.size(); ++row)
        rows[row] = mapToSource(index(row, 0)).row();
    return RowChoice(rows);
}

bool LogObservationSortFilterProxyModel::filterAcceptsRow(int sourceRow, const QModelIndex &) const
{
    if (m_emptied)
        return false;
    qint64 position = sourceRow;
    if (m_sortFilterType == Head && m_rangeSize <= sourceRow)
        return false;
    if (m_sortFilterType == Tail) {
        const qint64 windowStart = sourceRowCount() - m_rangeSize;
        if (windowStart > sourceRow)
            return false;
        position -= windowStart;
    }
    return step() == 1 || position % step() == 0; // the base class asks for each of a million rows
}

qint64 LogObservationSortFilterProxyModel::sourceRowCount() const
{
    return sourceModel() ? sourceModel()->rowCount() : 0;
}

qint64 LogObservationSortFilterProxyModel::step() const
{
    return m_frequency == 0 ? 1 : qAbs(qint64(m_frequency));
}

/** The rows that filterAcceptsRow() accepts, without asking it for each. */
SteppedRows LogObservationSortFilterProxyModel::shownRows() const
{
    if (m_emptied)
        return SteppedRows();
    const qint64 rows = sourceRowCount();
    if (m_sortFilterType == Head)
        return SteppedRows(0, 0, qMin(rows, qint64(m_rangeSize)), step());
    const qint64 windowStart = m_sortFilterType == Tail ? rows - m_rangeSize : 0;
    return SteppedRows(windowStart, qMax(qint64(0), windowStart), rows, step());
}

void LogObservationSortFilterProxyModel::refilterFrom(const SteppedRows &before)
{
    const SteppedRows after = shownRows();
    // The base class would ask for each row, to find that all is as it was. What a subclass accepts
    // is not known here.
    const bool isExtended = typeid(*this) != typeid(LogObservationSortFilterProxyModel);
    if (areSame(before, after) && !isExtended)
        return;
    const bool inOneRun = sortColumn() < 0 && after.onStepsOf(before);
    refilter(inOneRun ? 1 : qMin(before.count(), after.count()));
}

/** Filters anew after rows of the source came or went. */
void LogObservationSortFilterProxyModel::refilterMoved()
{
    refilter(shownRows().count());
}

/**
 * Filters anew, where up to @p mostRuns runs of rows come or go.
 *
 * The base class goes through all of the source for each run, which would take some twenty minutes
 * for every second row of a million. Where it is too much, all rows go and then the new ones come,
 * in one run each.
 */
void LogObservationSortFilterProxyModel::refilter(qint64 mostRuns)
{
    if (mostRuns * sourceRowCount() > kMostVisits) {
        m_emptied = true;
        invalidateFilter();
        m_emptied = false;
    }
    invalidateFilter();
}

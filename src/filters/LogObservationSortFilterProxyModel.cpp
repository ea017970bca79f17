#include "filters/LogObservationSortFilterProxyModel.h"

#include "filters/SourceChangeRelay.h"
#include "filters/SteppedRows.h"

#include <typeinfo>

// Visits of source rows that a change may cost where it is told run by run: tens of milliseconds.
static const qint64 kMostVisits = 10000000;

LogObservationSortFilterProxyModel::LogObservationSortFilterProxyModel(QObject *parent)
    : QSortFilterProxyModel(parent)
    , m_sortFilterType(Head)
    , m_rangeSize(50)
    , m_frequency(1)
    , m_mapsBySteps(false)
    , m_isMoving(false)
    , m_isListed(false)
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
    const SteppedRows before = acceptedRows();
    m_sortFilterType = type;
    refilterFrom(before);
}

void LogObservationSortFilterProxyModel::setRangeSize(int rangeSize)
{
    const SteppedRows before = acceptedRows();
    m_rangeSize = rangeSize;
    refilterFrom(before);
}

void LogObservationSortFilterProxyModel::setFrequency(int frequency)
{
    const SteppedRows before = acceptedRows();
    m_frequency = frequency;
    refilterFrom(before);
}

void LogObservationSortFilterProxyModel::setSourceModel(QAbstractItemModel *sourceModel)
{
    if (sourceModel && sourceModel == this->sourceModel())
        return;
    m_relay->disconnectSource();
    m_mapsBySteps = false;
    m_relay->connectAhead(sourceModel);
    QSortFilterProxyModel::setSourceModel(sourceModel);
    m_relay->connectSource();
}

RowChoice LogObservationSortFilterProxyModel::sourceRows() const
{
    if (m_isMoving || mapsBySteps())
        return RowChoice(m_shown);
    // Without columns there is nothing to sort by, nor an index to map. The source is asked for
    // them: the base class would first look at each of its rows.
    if (sortColumn() < 0 || !sourceModel() || sourceModel()->columnCount() == 0)
        return RowChoice(acceptedRows());
    QVector<int> rows(rowCount());
    for (int row = 0; row < rows.size(); ++row)
        rows[row] = mapToSource(index(row, 0)).row();
    return RowChoice(rows);
}

/** What a subclass accepts is not known here. */
bool LogObservationSortFilterProxyModel::isExtended() const
{
    return typeid(*this) != typeid(LogObservationSortFilterProxyModel);
}

/** Asked by the base class alone, for each row there is, when it makes its lists. */
bool LogObservationSortFilterProxyModel::filterAcceptsRow(int sourceRow, const QModelIndex &) const
{
    m_isListed = true;
    if (m_isMoving)
        return m_shown.positionOf(sourceRow) >= 0;
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

/** The rows that the settings let through, without asking for each. */
SteppedRows LogObservationSortFilterProxyModel::acceptedRows() const
{
    const qint64 rows = sourceRowCount();
    if (m_sortFilterType == Head)
        return SteppedRows(0, 0, qMin(rows, qint64(m_rangeSize)), step());
    const qint64 windowStart = m_sortFilterType == Tail ? rows - m_rangeSize : 0;
    return SteppedRows(windowStart, qMax(qint64(0), windowStart), rows, step());
}

void LogObservationSortFilterProxyModel::refilterFrom(const SteppedRows &before)
{
    const SteppedRows after = acceptedRows();
    // The base class would ask for each row, to find that all is as it was.
    if (before == after && !isExtended())
        return;
    const bool inOneRun = sortColumn() < 0 && after.onStepsOf(before);
    const qint64 mostRuns = inOneRun ? 1 : qMin(before.count(), after.count());
    // By steps, either one run moves or all do.
    const bool canStep = inOneRun || takesTooLong(mostRuns);
    if (mapsBySteps() && canStep && !m_isListed)
        return moveBySteps();
    handOver();
    refilter(mostRuns);
}

/** Filters anew after rows of the source came or went. */
void LogObservationSortFilterProxyModel::refilterMoved()
{
    refilter(acceptedRows().count());
}

/**
 * Whether the base class can't be asked to let that many runs of rows come or go. It goes through
 * all of the source for each, which is some twenty minutes for every second row of a million.
 */
bool LogObservationSortFilterProxyModel::takesTooLong(qint64 runs) const
{
    return runs * sourceRowCount() > kMostVisits;
}

/**
 * Has the base class filter anew, where up to @p mostRuns runs of rows come or go. Where that takes
 * too long, all rows go and then the new ones come, in one run each. A setting that changes while
 * they are on their way counts once all have gone.
 */
void LogObservationSortFilterProxyModel::refilter(qint64 mostRuns)
{
    if (m_isMoving)
        return;
    if (takesTooLong(mostRuns)) {
        m_shown = SteppedRows();
        m_isMoving = true;
        invalidateFilter();
        m_isMoving = false;
    }
    invalidateFilter();
}

// How the range filter maps rows by steps, and when it leaves them to its base class.

#include "filters/LogObservationSortFilterProxyModel.h"

typedef QSortFilterProxyModel Base;

/** Also false once the source is gone. */
bool LogObservationSortFilterProxyModel::mapsBySteps() const
{
    return m_mapsBySteps && sourceModel();
}

/** The base class's own indexes hold a pointer into its lists. */
bool LogObservationSortFilterProxyModel::isByStep(const QModelIndex &proxyIndex) const
{
    return proxyIndex.model() == this && !proxyIndex.internalPointer();
}

/** Called when the source has been reset, before the base class hears of it and drops its lists. */
void LogObservationSortFilterProxyModel::startSteps()
{
    const bool isTable = qobject_cast<const QAbstractTableModel *>(sourceModel()) != nullptr;
    m_mapsBySteps = isTable && sortColumn() < 0 && !isExtended();
    m_isListed = false;
    m_shown = acceptedRows();
}

/**
 * Leaves the rows to the base class, up to the next reset.
 *
 * The base class lists what shows, also when the settings have changed already: it has to know what
 * there was to tell what comes and goes. It finds the persistent indexes through both ways of
 * mapping. The same rows show at the same places, so nobody is told.
 */
void LogObservationSortFilterProxyModel::handOver()
{
    if (!mapsBySteps())
        return;
    m_mapsBySteps = false;
    const bool wasMoving = m_isMoving;
    const bool wasBlocked = blockSignals(true);
    m_isMoving = true;
    invalidate();
    rowCount(); // makes the lists, unless persistent indexes needed them already
    m_isMoving = wasMoving;
    blockSignals(wasBlocked);
}

// Settings

/**
 * Lets rows go and come until those are shown that the settings let through. A handler of the
 * signals may change the settings again; the last ones count.
 */
void LogObservationSortFilterProxyModel::moveBySteps()
{
    if (m_isMoving)
        return;
    m_isMoving = true;
    while (mapsBySteps() && !m_isListed && !(m_shown == acceptedRows()))
        moveOneEnd(acceptedRows());
    if (!(m_shown == acceptedRows()))
        handOver(); // a handler had the base class make its lists
    m_isMoving = false;
    if (!mapsBySteps())
        refilterMoved();
}

/**
 * Takes away what is not among the rows @p after, then adds what is missing: the last rows first,
 * as the base class does, and one run at each call. On other steps, all rows go and come.
 */
void LogObservationSortFilterProxyModel::moveOneEnd(const SteppedRows &after)
{
    const SteppedRows kept = m_shown.sharedRun(after);
    const int begin = kept.count() > 0 ? m_shown.positionOf(kept.at(0)) : 0;
    const int end = begin + kept.count();
    if (end < m_shown.count())
        return removeShown(end, m_shown.count(), m_shown.mid(0, end));
    if (begin > 0)
        return removeShown(0, begin, kept);
    const int missing = kept.count() > 0 ? after.positionOf(kept.at(0)) : 0;
    if (missing + kept.count() < after.count())
        insertShown(kept.count(), after.count() - missing,
                    after.mid(missing, after.count() - missing));
    else
        insertShown(0, missing, after);
}

/** Takes away the rows from position @p begin up to, but without, @p end. */
void LogObservationSortFilterProxyModel::removeShown(int begin, int end, const SteppedRows &left)
{
    beginRemoveRows(QModelIndex(), begin, end - 1);
    m_shown = left;
    endRemoveRows();
}

/** Adds rows, which are then at the positions from @p begin up to, but without, @p end. */
void LogObservationSortFilterProxyModel::insertShown(int begin, int end, const SteppedRows &all)
{
    beginInsertRows(QModelIndex(), begin, end - 1);
    m_shown = all;
    endInsertRows();
}

// Indexes

QModelIndex LogObservationSortFilterProxyModel::mapToSource(const QModelIndex &proxyIndex) const
{
    if (!isByStep(proxyIndex))
        return Base::mapToSource(proxyIndex);
    if (!sourceModel() || proxyIndex.row() >= m_shown.count())
        return QModelIndex();
    return sourceModel()->index(m_shown.at(proxyIndex.row()), proxyIndex.column());
}

QModelIndex LogObservationSortFilterProxyModel::mapFromSource(const QModelIndex &sourceIndex) const
{
    if (!mapsBySteps() || sourceIndex.model() != sourceModel())
        return Base::mapFromSource(sourceIndex);
    return index(m_shown.positionOf(sourceIndex.row()), sourceIndex.column());
}

QModelIndex LogObservationSortFilterProxyModel::index(int row, int column,
                                                      const QModelIndex &parent) const
{
    if (!mapsBySteps())
        return Base::index(row, column, parent);
    const bool isCell
        = row >= 0 && row < rowCount(parent) && column >= 0 && column < columnCount(parent);
    return isCell ? createIndex(row, column) : QModelIndex();
}

QModelIndex LogObservationSortFilterProxyModel::parent(const QModelIndex &child) const
{
    return isByStep(child) ? QModelIndex() : Base::parent(child);
}

QModelIndex LogObservationSortFilterProxyModel::sibling(int row, int column,
                                                        const QModelIndex &index) const
{
    return isByStep(index) ? this->index(row, column) : Base::sibling(row, column, index);
}

// Extent and headers

int LogObservationSortFilterProxyModel::rowCount(const QModelIndex &parent) const
{
    if (!mapsBySteps())
        return Base::rowCount(parent);
    return parent.isValid() ? 0 : m_shown.count();
}

int LogObservationSortFilterProxyModel::columnCount(const QModelIndex &parent) const
{
    if (!mapsBySteps())
        return Base::columnCount(parent);
    return parent.isValid() ? 0 : sourceModel()->columnCount();
}

bool LogObservationSortFilterProxyModel::hasChildren(const QModelIndex &parent) const
{
    if (!mapsBySteps())
        return Base::hasChildren(parent);
    return rowCount(parent) > 0 && columnCount(parent) > 0;
}

/** The source's section for one of this model, -1 for one that there is not. */
int LogObservationSortFilterProxyModel::sourceSection(int section,
                                                      Qt::Orientation orientation) const
{
    const bool isRow = orientation == Qt::Vertical;
    if (section < 0 || section >= (isRow ? rowCount() : columnCount()))
        return -1;
    return isRow ? m_shown.at(section) : section;
}

QVariant LogObservationSortFilterProxyModel::headerData(int section, Qt::Orientation orientation,
                                                        int role) const
{
    if (!mapsBySteps())
        return Base::headerData(section, orientation, role);
    const int source = sourceSection(section, orientation);
    return source < 0 ? QVariant() : sourceModel()->headerData(source, orientation, role);
}

bool LogObservationSortFilterProxyModel::setHeaderData(int section, Qt::Orientation orientation,
                                                       const QVariant &value, int role)
{
    if (!mapsBySteps())
        return Base::setHeaderData(section, orientation, value, role);
    const int source = sourceSection(section, orientation);
    return source >= 0 && sourceModel()->setHeaderData(source, orientation, value, role);
}

void LogObservationSortFilterProxyModel::sort(int column, Qt::SortOrder order)
{
    handOver();
    Base::sort(column, order);
}

#include "filters/SourceChangeRelay.h"

#include "filters/LogObservationSortFilterProxyModel.h"

SourceChangeRelay::SourceChangeRelay(LogObservationSortFilterProxyModel *proxy)
    : QObject(proxy)
    , m_proxy(proxy)
{
}

void SourceChangeRelay::connectAhead(const QAbstractItemModel *source)
{
    if (!source)
        return;
    connect(source, SIGNAL(modelReset()), SLOT(startSteps()));
    const char *const otherChanges[] = {
        SIGNAL(rowsAboutToBeInserted(QModelIndex,int,int)),
               SIGNAL(rowsAboutToBeRemoved(QModelIndex,int,int)),
                      SIGNAL(rowsAboutToBeMoved(QModelIndex,int,int,QModelIndex,int)),
                             SIGNAL(columnsAboutToBeInserted(QModelIndex,int,int)),
                                    SIGNAL(columnsAboutToBeRemoved(QModelIndex,int,int)),
                                           SIGNAL(columnsAboutToBeMoved(QModelIndex,int,int,QModelIndex,int)),
                                                  SIGNAL(headerDataChanged(Qt::Orientation,int,int)),
                                                         SIGNAL(layoutAboutToBeChanged()),
                                                  };
    for (const char *change : otherChanges)
        connect(source, change, SLOT(handOver()));
}

void SourceChangeRelay::connectSource()
{
    const QAbstractItemModel *source = m_proxy->sourceModel();
    if (!source)
        return;
    // The base class's handler has a signature of its own on each engine, so none is given.
    const char *dataChange = SIGNAL(dataChanged(QModelIndex,QModelIndex));
    disconnect(source, dataChange, m_proxy, nullptr);
    connect(source, dataChange, this, SLOT(relayDataChange(QModelIndex,QModelIndex)));
    connect(source, SIGNAL(rowsInserted(QModelIndex,int,int)), this, SLOT(moveWindow()));
    connect(source, SIGNAL(rowsRemoved(QModelIndex,int,int)), this, SLOT(moveWindow()));
}

void SourceChangeRelay::disconnectSource()
{
    if (m_proxy->sourceModel())
        disconnect(m_proxy->sourceModel(), nullptr, this, nullptr);
}

void SourceChangeRelay::relayDataChange(const QModelIndex &topLeft, const QModelIndex &bottomRight)
{
    if (!topLeft.isValid() || !bottomRight.isValid())
        return;
    const QAbstractItemModel *source = m_proxy->sourceModel();
    const QModelIndex parent = topLeft.parent();
    const int bottom = qMin(bottomRight.row(), source->rowCount(parent) - 1);
    const int right = qMin(bottomRight.column(), source->columnCount(parent) - 1);
    if (bottom < topLeft.row() || right < topLeft.column())
        return;
    const int sortColumn = m_proxy->sortColumn();
    if (m_proxy->dynamicSortFilter() && sortColumn >= topLeft.column() && sortColumn <= right)
        m_proxy->invalidate();
    announce(topLeft, bottom, right);
}

/** Announces the smallest range of the proxy that holds what it shows of these source cells. */
void SourceChangeRelay::announce(const QModelIndex &topLeft, int bottom, int right)
{
    const QModelIndex parent = m_proxy->mapFromSource(topLeft.parent());
    if (topLeft.parent().isValid() && !parent.isValid())
        return;
    int first = 0;
    int last = -1;
    if (m_proxy->sortColumn() >= 0) {
        findExtent(topLeft, bottom, &first, &last);
    } else {
        first = positionFrom(topLeft.row(), parent);
        last = positionFrom(bottom + 1, parent) - 1;
    }
    if (first <= last)
        emit m_proxy->dataChanged(m_proxy->index(first, topLeft.column(), parent),
                                  m_proxy->index(last, right, parent));
}

/** Where the proxy, when it is sorted, shows the first and the last of these source rows, if any.
 */
void SourceChangeRelay::findExtent(const QModelIndex &top, int bottom, int *first, int *last) const
{
    for (int row = top.row(); row <= bottom; ++row) {
        const int position = m_proxy->mapFromSource(top.sibling(row, top.column())).row();
        if (position < 0)
            continue;
        *first = *last < 0 ? position : qMin(*first, position);
        *last = qMax(*last, position);
    }
}

/**
 * The position of the first row that the proxy shows of those from @p sourceRow on. Unsorted, the
 * rows shown keep their order, so that halving finds it.
 */
int SourceChangeRelay::positionFrom(int sourceRow, const QModelIndex &parent) const
{
    int low = 0;
    int high = m_proxy->rowCount(parent);
    while (low < high) {
        const int middle = low + (high - low) / 2;
        if (m_proxy->mapToSource(m_proxy->index(middle, 0, parent)).row() < sourceRow)
            low = middle + 1;
        else
            high = middle;
    }
    return low;
}

void SourceChangeRelay::startSteps()
{
    m_proxy->startSteps();
}

void SourceChangeRelay::handOver()
{
    m_proxy->handOver();
}

void SourceChangeRelay::moveWindow()
{
    m_proxy->refilterMoved();
}

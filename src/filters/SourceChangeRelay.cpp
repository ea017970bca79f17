#include "filters/SourceChangeRelay.h"

#include "filters/LogObservationSortFilterProxyModel.h"

SourceChangeRelay::SourceChangeRelay(LogObservationSortFilterProxyModel *proxy)
    : QObject(proxy)
    , m_proxy(proxy)
{
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
    const QModelIndex parent = topLeft.parent();
    int top = topLeft.row();
    while (top <= bottom && !m_proxy->filterAcceptsRow(top, parent))
        ++top;
    while (top < bottom && !m_proxy->filterAcceptsRow(bottom, parent))
        --bottom;
    // Unsorted, the shown rows keep their order, so that the two ends tell the range.
    const bool sorted = m_proxy->sortColumn() >= 0;
    QModelIndex first;
    QModelIndex last;
    for (int row = top; row <= bottom; row = sorted || row == bottom ? row + 1 : bottom) {
        const QModelIndex shown = m_proxy->mapFromSource(topLeft.sibling(row, topLeft.column()));
        if (shown.isValid() && (!first.isValid() || shown.row() < first.row()))
            first = shown;
        if (shown.isValid() && shown.row() >= last.row())
            last = shown;
    }
    if (first.isValid())
        emit m_proxy->dataChanged(first, last.sibling(last.row(), right));
}

void SourceChangeRelay::moveWindow()
{
    m_proxy->refilterMoved();
}

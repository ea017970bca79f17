#ifndef DATALOG_FILTERS_SOURCECHANGERELAY_H
#define DATALOG_FILTERS_SOURCECHANGERELAY_H

#include <QModelIndex>
#include <QObject>

class LogObservationSortFilterProxyModel;

/**
 * Hears for the range filter what its source model says where the base class falls short:
 *
 * - A range of changed data may end past the source's last cell. The base class would look such
 *   cells up in its lists, beyond their ends; here, in its place, the range is clipped first.
 * - Rows that come or go move the window over the other rows too, whereas the base class asks only
 *   about the new ones.
 * - A reset lets the proxy map its rows by steps; whatever else the source is about to do ends it,
 *   before the base class hears of that.
 *
 * It stands beside the proxy so that the proxy's own signals and slots stay as they are.
 */
class SourceChangeRelay : public QObject
{
    Q_OBJECT

public:
    /** @param proxy whose source is heard, also the parent. */
    explicit SourceChangeRelay(LogObservationSortFilterProxyModel *proxy);

    /** Hears @p source as far as it has to be known before the base class connects to it. */
    void connectAhead(const QAbstractItemModel *source);
    /**
     * Hears the proxy's source model; to be called once the base class has connected to it. What
     * else of the proxy is connected to the source's dataChanged() is disconnected.
     */
    void connectSource();
    void disconnectSource();

private slots:
    void startSteps();
    void handOver();
    void relayDataChange(const QModelIndex &topLeft, const QModelIndex &bottomRight);
    void moveWindow();

private:
    void announce(const QModelIndex &topLeft, int bottom, int right);
    void findExtent(const QModelIndex &top, int bottom, int *first, int *last) const;
    int positionFrom(int sourceRow, const QModelIndex &parent) const;

    LogObservationSortFilterProxyModel *m_proxy;
};

#endif

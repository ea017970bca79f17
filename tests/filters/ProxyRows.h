#ifndef DATALOG_TESTS_FILTERS_PROXYROWS_H
#define DATALOG_TESTS_FILTERS_PROXYROWS_H

#include "filters/LogObservationSortFilterProxyModel.h"
#include "support/TextTable.h"

typedef LogObservationSortFilterProxyModel Proxy;
Q_DECLARE_METATYPE(Proxy::LogObservationSortFilterType)
Q_DECLARE_METATYPE(QVector<int>)

inline void configure(Proxy *proxy, Proxy::LogObservationSortFilterType type, int rangeSize,
                      int frequency)
{
    proxy->setSortFilterType(type);
    proxy->setRangeSize(rangeSize);
    proxy->setFrequency(frequency);
}

/** The source rows shown, as the proxy maps them one by one. */
inline QVector<int> mappedRows(const QAbstractProxyModel &proxy)
{
    QVector<int> rows;
    for (int row = 0; row < proxy.rowCount(); ++row)
        rows << proxy.mapToSource(proxy.index(row, 0)).row();
    return rows;
}

/** The numbers of a text such as "2 3 5". */
inline QVector<int> numbers(const char *text)
{
    QVector<int> result;
    foreach (const QString &number, listsOf(text).value(0))
        result << number.toInt();
    return result;
}

inline QVector<int> range(int begin, int end)
{
    QVector<int> rows;
    for (int row = begin; row < end; ++row)
        rows << row;
    return rows;
}

#endif

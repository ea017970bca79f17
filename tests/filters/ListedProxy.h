#ifndef DATALOG_TESTS_FILTERS_LISTEDPROXY_H
#define DATALOG_TESTS_FILTERS_LISTEDPROXY_H

#include "filters/LogObservationSortFilterProxyModel.h"

/**
 * The range filter as it is told in words: the base class asks for each row and lists them all.
 * What the real one shows is held against it.
 */
class ListedProxy : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    explicit ListedProxy(QAbstractItemModel *source)
        : m_type(LogObservationSortFilterProxyModel::Head)
        , m_rangeSize(50)
        , m_frequency(1)
    {
        setSourceModel(source);
        connect(source, SIGNAL(rowsInserted(QModelIndex,int,int)), SLOT(refilter()));
        connect(source, SIGNAL(rowsRemoved(QModelIndex,int,int)), SLOT(refilter()));
    }
    void setSortFilterType(int type)
    {
        m_type = type;
        invalidateFilter();
    }
    void setRangeSize(int rangeSize)
    {
        m_rangeSize = rangeSize;
        invalidateFilter();
    }
    void setFrequency(int frequency)
    {
        m_frequency = frequency;
        invalidateFilter();
    }

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex &) const override
    {
        int position = sourceRow;
        if (m_type == LogObservationSortFilterProxyModel::Head && sourceRow >= m_rangeSize)
            return false;
        if (m_type == LogObservationSortFilterProxyModel::Tail) {
            position = sourceRow - (sourceModel()->rowCount() - m_rangeSize);
            if (position < 0)
                return false;
        }
        return position % m_frequency == 0;
    }

private slots:
    void refilter() { invalidateFilter(); }

private:
    int m_type;
    int m_rangeSize;
    int m_frequency;
};

#endif

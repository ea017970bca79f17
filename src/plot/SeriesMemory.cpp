#include "plot/SeriesMemory.h"

void SeriesMemory::remember(const CurveSeries &series)
{
    // A copy shares the values, so these stay where they are for as long as it is kept.
    m_series.insert(series.y(), QSharedPointer<const CurveSeries>(new CurveSeries(series)));
}

void SeriesMemory::clear()
{
    m_series.clear();
}

CurveSeries *SeriesMemory::newSeries(const QVector<double> &x, const QVector<double> &y) const
{
    const QSharedPointer<const CurveSeries> known = m_series.value(y.constData());
    return known && known->isOf(x, y) ? new CurveSeries(*known) : new CurveSeries(x, y);
}

#ifndef DATALOG_PLOT_SERIESMEMORY_H
#define DATALOG_PLOT_SERIESMEMORY_H

#include "plot/CurveSeries.h"

#include <QHash>
#include <QSharedPointer>

/**
 * What curves that go away knew about their samples, for curves of the very same samples that come
 * in their place: to look at a million samples again takes longer than to draw them.
 */
class SeriesMemory
{
public:
    void remember(const CurveSeries &series);
    void clear();
    /**
     * A series of these samples, which belongs to the caller. It is told from what is remembered
     * only where both vectors share their values with it; equal values are not enough.
     */
    CurveSeries *newSeries(const QVector<double> &x, const QVector<double> &y) const;

private:
    QHash<const double *, QSharedPointer<const CurveSeries>> m_series; ///< by where y lies
};

#endif

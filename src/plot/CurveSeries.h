#ifndef DATALOG_PLOT_CURVESERIES_H
#define DATALOG_PLOT_CURVESERIES_H

#include "plot/RangeExtremes.h"

#include <QVector>

#include <qwt_series_data.h>

/**
 * The samples of a curve, shared with whoever made the vectors instead of copied.
 *
 * A log may hold "nan" or "inf" where a number should be. Such samples take part in nothing: they
 * don't widen the bounding rectangle, and the samples between two of them are a run of their own.
 */
class CurveSeries : public QwtSeriesData<QPointF>
{
public:
    /** Neighbouring samples that can be drawn, from first to last, both included. */
    struct Run {
        int first;
        int last;
        bool isAscending; ///< no x is less than the one before it

        int size() const { return last - first + 1; }
    };

    /** Takes as many samples as both vectors have. */
    CurveSeries(const QVector<double> &x, const QVector<double> &y);

    size_t size() const override;
    QPointF sample(size_t i) const override;
    /** Around all samples of all runs; invalid when there is none. */
    QRectF boundingRect() const override;

    const QVector<Run> &runs() const { return m_runs; }
    const double *x() const { return m_x.constData(); }
    const double *y() const { return m_y.constData(); }
    /** Whether the samples are those in these vectors, and not just equal ones. */
    bool isOf(const QVector<double> &x, const QVector<double> &y) const;
    /** Where y is least and greatest, within a run. */
    const RangeExtremes &yExtremes() const { return m_yExtremes; }

private:
    void findRuns();
    int findRun(int first, Run *run) const;
    void findBounds();

    QVector<double> m_x;
    QVector<double> m_y;
    RangeExtremes m_yExtremes;
    QVector<Run> m_runs;
};

Q_DECLARE_TYPEINFO(CurveSeries::Run, Q_PRIMITIVE_TYPE);

#endif

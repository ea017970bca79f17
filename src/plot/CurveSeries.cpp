#include "plot/CurveSeries.h"

#include <cmath>

namespace
{

// Scales are computed from the distance of two values, which must stay a number as well.
const double kLargest = 1e150;

bool isDrawable(double value)
{
    return std::fabs(value) <= kLargest; // false for NaN, too
}

struct Bounds {
    double least;
    double greatest;

    explicit Bounds(double value)
        : least(value)
        , greatest(value)
    {
    }

    void add(double value)
    {
        least = qMin(least, value);
        greatest = qMax(greatest, value);
    }
};

} // namespace

CurveSeries::CurveSeries(const QVector<double> &x, const QVector<double> &y)
    : m_x(x)
    , m_y(y)
    , m_yExtremes(y)
{
    findRuns();
    findBounds();
}

size_t CurveSeries::size() const
{
    return static_cast<size_t>(qMin(m_x.size(), m_y.size()));
}

QPointF CurveSeries::sample(size_t i) const
{
    return QPointF(m_x.at(static_cast<int>(i)), m_y.at(static_cast<int>(i)));
}

QRectF CurveSeries::boundingRect() const
{
    return d_boundingRect;
}

bool CurveSeries::isOf(const QVector<double> &x, const QVector<double> &y) const
{
    return m_x.constData() == x.constData() && m_x.size() == x.size()
        && m_y.constData() == y.constData() && m_y.size() == y.size();
}

void CurveSeries::findRuns()
{
    const int count = qMin(m_x.size(), m_y.size());
    int i = 0;
    while (i < count) {
        Run run = {i, i - 1, true};
        i = findRun(i, &run);
        if (run.size() > 0)
            m_runs.append(run);
    }
}

/** Fills @p run from @p first up to what can't be drawn; returns where to look for the next one. */
int CurveSeries::findRun(int first, Run *run) const
{
    const int count = qMin(m_x.size(), m_y.size());
    const double *x = m_x.constData();
    const double *y = m_y.constData();
    int i = first;
    for (; i < count && isDrawable(x[i]) && isDrawable(y[i]); ++i) {
        if (i > first && x[i] < x[i - 1])
            run->isAscending = false;
    }
    run->last = i - 1;
    return i + 1;
}

void CurveSeries::findBounds()
{
    if (m_runs.isEmpty())
        return;
    Bounds x(m_x.at(m_runs.first().first));
    Bounds y(m_y.at(m_runs.first().first));
    for (int i = 0; i < m_runs.size(); ++i) {
        const Run &run = m_runs.at(i);
        const RangeExtremes::Extremes extremes = m_yExtremes.within(run.first, run.last);
        y.add(m_y.at(extremes.least));
        y.add(m_y.at(extremes.greatest));
        x.add(m_x.at(run.first));
        x.add(m_x.at(run.last));
        for (int at = run.first; !run.isAscending && at < run.last; ++at)
            x.add(m_x.at(at));
    }
    d_boundingRect = QRectF(x.least, y.least, x.greatest - x.least, y.greatest - y.least);
}

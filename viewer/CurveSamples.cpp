#include "viewer/CurveSamples.h"

#include "plot/CurveSeries.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace
{

// So many pixels to either side count as the same column.
const double kColumn = 2;

/** In an ascending run. */
int nearestInRun(const CurveSeries &series, const CurveSeries::Run &run, double x)
{
    const double *begin = series.x() + run.first;
    const double *end = series.x() + run.last + 1;
    const double *above = std::lower_bound(begin, end, x);
    if (above == end)
        --above;
    if (above != begin && x - above[-1] <= *above - x)
        above = std::lower_bound(begin, above, above[-1]);
    return int(above - series.x());
}

bool areAscending(const QList<const CurveSeries *> &pieces)
{
    for (const CurveSeries *series : pieces) {
        for (const CurveSeries::Run &run : series->runs()) {
            if (!run.isAscending)
                return false;
        }
    }
    return true;
}

} // namespace

CurveSamples::CurveSamples(const QList<const CurveSeries *> &pieces)
    : m_pieces(pieces)
    , m_isAscending(areAscending(pieces))
{
}

Sample CurveSamples::sample(int piece, int index) const
{
    Sample sample;
    sample.piece = piece;
    sample.index = index;
    sample.x = m_pieces.at(piece)->x()[index];
    sample.y = m_pieces.at(piece)->y()[index];
    return sample;
}

Sample CurveSamples::nearest(const QPointF &point, const QSizeF &scale) const
{
    return m_isAscending ? nearestByX(point.x()) : nearestInColumn(point, scale);
}

Sample CurveSamples::nearestByX(double x) const
{
    Sample best;
    double least = std::numeric_limits<double>::infinity();
    for (int piece = 0; piece < m_pieces.size(); ++piece) {
        const CurveSeries &series = *m_pieces.at(piece);
        for (const CurveSeries::Run &run : series.runs()) {
            const int index = nearestInRun(series, run, x);
            const double distance = std::fabs(series.x()[index] - x);
            if (distance < least) {
                least = distance;
                best = sample(piece, index);
            }
        }
    }
    return best;
}

/** Of the samples in the point's column the one at its height, else the one nearest in x. */
Sample CurveSamples::nearestInColumn(const QPointF &point, const QSizeF &scale) const
{
    const double column = kColumn / std::fabs(scale.width());
    int bestPiece = -1;
    int bestIndex = -1;
    double leastX = std::numeric_limits<double>::infinity();
    double leastY = leastX;
    for (int piece = 0; piece < m_pieces.size(); ++piece) {
        const double *x = m_pieces.at(piece)->x();
        const double *y = m_pieces.at(piece)->y();
        for (const CurveSeries::Run &run : m_pieces.at(piece)->runs()) {
            for (int i = run.first; i <= run.last; ++i) {
                const double dx = std::fabs(x[i] - point.x());
                const double dy = std::fabs(y[i] - point.y());
                const bool isLevel = dx == leastX || (dx <= column && leastX <= column);
                if (isLevel ? dy >= leastY : dx > leastX)
                    continue;
                leastX = dx;
                leastY = dy;
                bestPiece = piece;
                bestIndex = i;
            }
        }
    }
    return bestPiece >= 0 ? sample(bestPiece, bestIndex) : Sample();
}

/** The sample itself where there is no other. */
Sample CurveSamples::neighbour(const Sample &from, bool isForward) const
{
    const int way = isForward ? 1 : -1;
    int index = from.index + way;
    for (int piece = from.piece; piece >= 0 && piece < m_pieces.size(); piece += way) {
        const QVector<CurveSeries::Run> &runs = m_pieces.at(piece)->runs();
        for (int i = 0; i < runs.size(); ++i) {
            const CurveSeries::Run &run = runs.at(isForward ? i : runs.size() - 1 - i);
            if (isForward && run.last >= index)
                return sample(piece, qMax(run.first, index));
            if (!isForward && run.first <= index)
                return sample(piece, qMin(run.last, index));
        }
        index = isForward ? 0 : std::numeric_limits<int>::max();
    }
    return from;
}

Sample CurveSamples::stepped(const Sample &from, int steps) const
{
    Sample result = from;
    for (int i = 0; i < std::abs(steps) && result.isValid(); ++i)
        result = neighbour(result, steps > 0);
    return result;
}

SampleStatistics CurveSamples::between(const Sample &a, const Sample &b) const
{
    SampleStatistics statistics;
    if (!a.isValid() || !b.isValid())
        return statistics;
    const Sample &from = b.isBefore(a) ? b : a;
    const Sample &to = b.isBefore(a) ? a : b;
    statistics.min = statistics.max = from.y;
    long double sum = 0; // its digits keep the mean of millions exact
    for (int piece = from.piece; piece <= to.piece; ++piece) {
        const CurveSeries &series = *m_pieces.at(piece);
        for (const CurveSeries::Run &run : series.runs()) {
            const int first = piece == from.piece ? qMax(run.first, from.index) : run.first;
            const int last = piece == to.piece ? qMin(run.last, to.index) : run.last;
            if (first > last)
                continue;
            const RangeExtremes::Extremes extremes = series.yExtremes().within(first, last);
            statistics.min = qMin(statistics.min, series.y()[extremes.least]);
            statistics.max = qMax(statistics.max, series.y()[extremes.greatest]);
            for (int i = first; i <= last; ++i)
                sum += series.y()[i];
            statistics.count += last - first + 1;
        }
    }
    statistics.mean = double(sum / statistics.count);
    return statistics;
}

#include "plot/CanvasMapper.h"

#include <QPainter>
#include <QTransform>

#include <qwt_painter.h>
#include <qwt_pixel_matrix.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace
{

// Beyond this painters, and the rounding to whole pixels, run out of digits.
const double kFarthest = 1e9;

// Columns in each unit of the canvas for painters without whole pixels: those that scale have a
// column a pixel, up to what is enough for printers; drawings made of lines can be magnified.
const double kVectorResolution = 4;
const double kGreatestResolution = 8;

// What a column keeps of a line. Lines with fewer samples are drawn as they are.
const int kPointsInColumn = 4;

// Shorter stretches of a line that winds are not worth a search for what of them is visible.
const int kLongStretch = 64;

// Up to here points are drawn one by one even if several fall into one place.
const int kManyPoints = 20000;

double within(double position)
{
    return qBound(-kFarthest, position, kFarthest);
}

double resolutionOf(const QPainter &painter)
{
    const QTransform &transform = painter.deviceTransform();
    const double scale
        = std::sqrt(transform.m11() * transform.m11() + transform.m12() * transform.m12());
    return scale > 1 ? qMin(scale, kGreatestResolution) : kVectorResolution;
}

} // namespace

CanvasMapper::CanvasMapper(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap,
                           const QRectF &canvas)
    : m_xMap(xMap)
    , m_yMap(yMap)
    , m_canvas(canvas)
    , m_isAligned(QwtPainter::roundingAlignment(painter))
    , m_resolution(m_isAligned ? 1 : resolutionOf(*painter))
{
}

QPointF CanvasMapper::map(double x, double y) const
{
    const QPointF point(within(m_xMap.transform(x)), within(m_yMap.transform(y)));
    return m_isAligned ? QPointF(qRound(point.x()), qRound(point.y())) : point;
}

double CanvasMapper::cellOf(double position) const
{
    return m_isAligned ? qRound(within(position)) : std::floor(within(position) * m_resolution);
}

double CanvasMapper::columnOf(double x) const
{
    return cellOf(m_xMap.transform(x));
}

double CanvasMapper::rowOf(double y) const
{
    return cellOf(m_yMap.transform(y));
}

/** Adds a sample, unless it lies where the one before it does. */
void CanvasMapper::append(QPolygonF *polygon, const CurveSeries &series, int i) const
{
    const QPointF point = map(series.x()[i], series.y()[i]);
    if (polygon->isEmpty() || polygon->last() != point)
        polygon->append(point);
}

/** The samples of an ascending run that the canvas shows, and the two that lines go on to. */
CurveSeries::Run CanvasMapper::visiblePart(const CurveSeries &series,
                                           const CurveSeries::Run &run) const
{
    const double margin = 2;
    const double left = m_xMap.invTransform(m_canvas.left() - margin);
    const double right = m_xMap.invTransform(m_canvas.right() + margin);
    const double *begin = series.x() + run.first;
    const double *end = series.x() + run.last + 1;
    const double *from = std::lower_bound(begin, end, qMin(left, right));
    const double *to = std::upper_bound(from, end, qMax(left, right));
    CurveSeries::Run part = run;
    part.first = qMax(run.first, static_cast<int>(from - series.x()) - 1);
    part.last = qMin(run.last, static_cast<int>(to - series.x()));
    return part;
}

/** The last sample, up to @p last, in the same column as the first; x ascends. */
int CanvasMapper::lastInColumn(const double *x, int first, int last) const
{
    const double column = columnOf(x[first]);
    int inside = first;
    int step = 1;
    while (step <= last - inside && columnOf(x[inside + step]) == column) {
        inside += step;
        step *= 2;
    }
    int outside = step <= last - inside ? inside + step : last + 1;
    while (outside - inside > 1) {
        const int middle = inside + (outside - inside) / 2;
        (columnOf(x[middle]) == column ? inside : outside) = middle;
    }
    return inside;
}

QPolygonF CanvasMapper::line(const CurveSeries &series, const CurveSeries::Run &run) const
{
    if (run.isAscending)
        return ascendingLine(series, run);
    return run.size() > kManyPoints ? windingLine(series, run) : corners(series, run);
}

/**
 * The line of a run whose x go back now and then, as clock times do at midnight: stretch by
 * stretch, each from its first sample to its last, wherever these are.
 */
QPolygonF CanvasMapper::windingLine(const CurveSeries &series, const CurveSeries::Run &run) const
{
    QPolygonF polygon;
    int first = run.first;
    while (first <= run.last) {
        int last = first;
        while (last < run.last && series.x()[last] <= series.x()[last + 1])
            ++last;
        append(&polygon, series, first);
        if (last - first >= kLongStretch) {
            const CurveSeries::Run stretch = {first, last, true};
            polygon += ascendingLine(series, stretch);
            append(&polygon, series, last);
        } else {
            for (int i = first + 1; i <= last; ++i)
                append(&polygon, series, i);
        }
        first = last + 1;
    }
    return polygon;
}

QPolygonF CanvasMapper::ascendingLine(const CurveSeries &series, const CurveSeries::Run &run) const
{
    const CurveSeries::Run part = visiblePart(series, run);
    const bool isLong = part.size() > kPointsInColumn * m_resolution * m_canvas.width();
    return isLong ? outline(series, part) : corners(series, part);
}

QPolygonF CanvasMapper::corners(const CurveSeries &series, const CurveSeries::Run &run) const
{
    QPolygonF polygon;
    polygon.reserve(run.size());
    for (int i = run.first; i <= run.last; ++i)
        append(&polygon, series, i);
    return polygon;
}

QPolygonF CanvasMapper::outline(const CurveSeries &series, const CurveSeries::Run &run) const
{
    QPolygonF polygon;
    int first = run.first;
    while (first <= run.last) {
        const int last = lastInColumn(series.x(), first, run.last);
        const RangeExtremes::Extremes extremes = series.yExtremes().within(first, last);
        append(&polygon, series, first);
        append(&polygon, series, qMin(extremes.least, extremes.greatest));
        append(&polygon, series, qMax(extremes.least, extremes.greatest));
        append(&polygon, series, last);
        first = last + 1;
    }
    return polygon;
}

QPolygonF CanvasMapper::points(const CurveSeries &series, const CurveSeries::Run &run) const
{
    const CurveSeries::Run part = run.isAscending ? visiblePart(series, run) : run;
    const bool isDistinct = m_isAligned || part.size() > kManyPoints;
    return isDistinct && areCellsCountable() ? distinctPoints(series, part) : corners(series, part);
}

/** Cells are counted with an int; the canvas of a very large export has more of them. */
bool CanvasMapper::areCellsCountable() const
{
    const double columns = std::ceil(m_canvas.width() * m_resolution) + 2;
    const double rows = std::ceil(m_canvas.height() * m_resolution) + 2;
    return columns * rows <= std::numeric_limits<int>::max();
}

QPolygonF CanvasMapper::distinctPoints(const CurveSeries &series, const CurveSeries::Run &run) const
{
    const QRectF cells(m_canvas.topLeft() * m_resolution, m_canvas.size() * m_resolution);
    QwtPixelMatrix taken(cells.toAlignedRect());
    const QRectF area(taken.rect());
    QPolygonF polygon;
    for (int i = run.first; i <= run.last; ++i) {
        const double column = columnOf(series.x()[i]);
        const double row = rowOf(series.y()[i]);
        if (!area.contains(column, row))
            continue;
        if (!taken.testAndSetPixel(static_cast<int>(column), static_cast<int>(row), true))
            polygon.append(map(series.x()[i], series.y()[i]));
    }
    return polygon;
}

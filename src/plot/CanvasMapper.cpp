#include "plot/CanvasMapper.h"

#include <QPainter>

#include <qwt_painter.h>
#include <qwt_pixel_matrix.h>

#include <cmath>

namespace
{

// Beyond this painters, and the rounding to whole pixels, run out of digits.
const double kFarthest = 1e9;

double within(double position)
{
    return qBound(-kFarthest, position, kFarthest);
}

} // namespace

CanvasMapper::CanvasMapper(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap,
                           const QRectF &canvas)
    : m_xMap(xMap)
    , m_yMap(yMap)
    , m_canvas(canvas)
    , m_isAligned(QwtPainter::roundingAlignment(painter))
{
}

QPointF CanvasMapper::map(double x, double y) const
{
    const QPointF point(within(m_xMap.transform(x)), within(m_yMap.transform(y)));
    return m_isAligned ? QPointF(qRound(point.x()), qRound(point.y())) : point;
}

void CanvasMapper::append(QPolygonF *polygon, const QPointF &point) const
{
    if (polygon->isEmpty() || polygon->last() != point)
        polygon->append(point);
}

QPolygonF CanvasMapper::line(const CurveSeries &series, const CurveSeries::Run &run) const
{
    QPolygonF polygon;
    polygon.reserve(run.size());
    for (int i = run.first; i <= run.last; ++i)
        append(&polygon, map(series.x()[i], series.y()[i]));
    return polygon;
}

QPolygonF CanvasMapper::points(const CurveSeries &series, const CurveSeries::Run &run) const
{
    QwtPixelMatrix taken(m_canvas.toAlignedRect());
    QPolygonF polygon;
    for (int i = run.first; i <= run.last; ++i) {
        const QPointF point = map(series.x()[i], series.y()[i]);
        if (!m_isAligned)
            append(&polygon, point);
        else if (!taken.testAndSetPixel(qRound(point.x()), qRound(point.y()), true))
            polygon.append(point);
    }
    return polygon;
}

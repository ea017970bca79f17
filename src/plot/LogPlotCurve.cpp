#include "plot/LogPlotCurve.h"

#include "plot/CanvasMapper.h"
#include "plot/CurveSeries.h"

#include <QPainter>

#include <qwt_clipper.h>
#include <qwt_painter.h>
#include <qwt_symbol.h>

namespace
{

/** The part of @p run between two samples, both included; it may come out empty. */
CurveSeries::Run cut(CurveSeries::Run run, int from, int to)
{
    run.first = qMax(run.first, from);
    run.last = qMin(run.last, to);
    return run;
}

QVector<CurveSeries::Run> cut(const QVector<CurveSeries::Run> &runs, int from, int to)
{
    QVector<CurveSeries::Run> result;
    for (int i = 0; i < runs.size(); ++i) {
        const CurveSeries::Run run = cut(runs.at(i), from, to);
        if (run.size() > 0)
            result.append(run);
    }
    return result;
}

/** Lines are cut where their pen no longer reaches into the canvas. */
QRectF clipRect(const QPainter &painter, const QRectF &canvas)
{
    const qreal margin = qMax(qreal(1.0), painter.pen().widthF());
    return canvas.adjusted(-margin, -margin, margin, margin);
}

} // namespace

LogPlotCurve::LogPlotCurve(const QwtText &title)
    : QwtPlotCurve(title)
{
    setData(QVector<double>(), QVector<double>());
}

void LogPlotCurve::setData(const QVector<double> &x, const QVector<double> &y)
{
    setSeries(new CurveSeries(x, y));
}

void LogPlotCurve::setSeries(CurveSeries *series)
{
    setSamples(series);
}

const CurveSeries &LogPlotCurve::curveSeries() const
{
    return *static_cast<const CurveSeries *>(data());
}

void LogPlotCurve::drawLines(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap,
                             const QRectF &canvas, int from, int to) const
{
    const CanvasMapper mapper(painter, xMap, yMap, canvas);
    const QRectF clip = clipRect(*painter, canvas);
    const QVector<CurveSeries::Run> runs = cut(curveSeries().runs(), from, to);
    for (int i = 0; i < runs.size(); ++i) {
        const QPolygonF line = mapper.line(curveSeries(), runs.at(i));
        QwtPainter::drawPolyline(painter, QwtClipper::clipPolygonF(clip, line, false));
    }
}

void LogPlotCurve::drawDots(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap,
                            const QRectF &canvas, int from, int to) const
{
    const CanvasMapper mapper(painter, xMap, yMap, canvas);
    const QVector<CurveSeries::Run> runs = cut(curveSeries().runs(), from, to);
    for (int i = 0; i < runs.size(); ++i)
        QwtPainter::drawPoints(painter, mapper.points(curveSeries(), runs.at(i)));
}

void LogPlotCurve::drawSymbols(QPainter *painter, const QwtSymbol &symbol, const QwtScaleMap &xMap,
                               const QwtScaleMap &yMap, const QRectF &canvas, int from,
                               int to) const
{
    const CanvasMapper mapper(painter, xMap, yMap, canvas);
    const QVector<CurveSeries::Run> runs = cut(curveSeries().runs(), from, to);
    for (int i = 0; i < runs.size(); ++i)
        symbol.drawSymbols(painter, mapper.points(curveSeries(), runs.at(i)));
}

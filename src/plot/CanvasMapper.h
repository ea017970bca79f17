#ifndef DATALOG_PLOT_CANVASMAPPER_H
#define DATALOG_PLOT_CANVASMAPPER_H

#include "plot/CurveSeries.h"

#include <QPolygonF>
#include <QRectF>

#include <qwt_scale_map.h>

class QPainter;

/**
 * Turns samples into points of a canvas.
 *
 * Where the painter has whole pixels, points lie on them, so that lines are as sharp as the rest of
 * the plot. Points far outside are kept, within what painters can count with.
 */
class CanvasMapper
{
public:
    CanvasMapper(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap,
                 const QRectF &canvas);

    /** The corners of the line through the samples of a run. */
    QPolygonF line(const CurveSeries &series, const CurveSeries::Run &run) const;
    /** Where the samples of a run lie on the canvas, each place once. */
    QPolygonF points(const CurveSeries &series, const CurveSeries::Run &run) const;

private:
    QPointF map(double x, double y) const;
    void append(QPolygonF *polygon, const QPointF &point) const;

    QwtScaleMap m_xMap;
    QwtScaleMap m_yMap;
    QRectF m_canvas;
    bool m_isAligned;
};

#endif

#ifndef DATALOG_PLOT_CANVASMAPPER_H
#define DATALOG_PLOT_CANVASMAPPER_H

#include "plot/CurveSeries.h"

#include <QPolygonF>
#include <QRectF>

#include <qwt_scale_map.h>

class QPainter;

/**
 * Turns samples into points of a canvas: as many as it takes to look the same, not more.
 *
 * Of a long line whose x ascend, each column of pixels gets its first and last point and the
 * extremes between: the line through these covers the same pixels, spikes of one sample included.
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
    /** Where the samples of a run lie on the canvas; if they are many, each place once. */
    QPolygonF points(const CurveSeries &series, const CurveSeries::Run &run) const;

private:
    QPointF map(double x, double y) const;
    void append(QPolygonF *polygon, const CurveSeries &series, int i) const;
    double columnOf(double x) const;
    double rowOf(double y) const;
    double cellOf(double position) const;
    CurveSeries::Run visiblePart(const CurveSeries &series, const CurveSeries::Run &run) const;
    int lastInColumn(const double *x, int first, int last) const;
    QPolygonF ascendingLine(const CurveSeries &series, const CurveSeries::Run &run) const;
    QPolygonF windingLine(const CurveSeries &series, const CurveSeries::Run &run) const;
    QPolygonF corners(const CurveSeries &series, const CurveSeries::Run &run) const;
    QPolygonF outline(const CurveSeries &series, const CurveSeries::Run &run) const;
    bool areCellsCountable() const;
    QPolygonF distinctPoints(const CurveSeries &series, const CurveSeries::Run &run) const;

    QwtScaleMap m_xMap;
    QwtScaleMap m_yMap;
    QRectF m_canvas;
    bool m_isAligned; ///< the painter has whole pixels, and points are put on them
    double m_resolution; ///< columns that make a difference, in each unit of the canvas
};

#endif

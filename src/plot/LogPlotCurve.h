#ifndef DATALOG_PLOT_LOGPLOTCURVE_H
#define DATALOG_PLOT_LOGPLOTCURVE_H

#include <QVector>

#include <qwt_plot_curve.h>

class CurveSeries;

/**
 * A curve of a log: the values are shared, not copied, samples that are no number leave a gap, and
 * however long a line is, drawing it takes as long as the plot is wide.
 */
class LogPlotCurve : public QwtPlotCurve
{
public:
    explicit LogPlotCurve(const QwtText &title);

    /** Draws as many samples as both vectors have. */
    void setData(const QVector<double> &x, const QVector<double> &y);
    /** Draws these samples, which it owns from now on. */
    void setSeries(CurveSeries *series);
    const CurveSeries &curveSeries() const;

protected:
    void drawLines(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap,
                   const QRectF &canvas, int from, int to) const override;
    void drawDots(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap,
                  const QRectF &canvas, int from, int to) const override;
    void drawSymbols(QPainter *painter, const QwtSymbol &symbol, const QwtScaleMap &xMap,
                     const QwtScaleMap &yMap, const QRectF &canvas, int from,
                     int to) const override;
};

#endif

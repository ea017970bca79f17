#ifndef DATALOG_VIEWER_PLOTSHEET_H
#define DATALOG_VIEWER_PLOTSHEET_H

#include <QPicture>
#include <QSharedPointer>
#include <QSize>
#include <QTransform>
#include <QVector>

#include <qwt_scale_map.h>

#include <functional>

class LogPlotCurve;
class QPainter;
class QwtPlot;

/**
 * A plot as it is now, to be painted without its widgets: in another thread as well, and whatever
 * becomes of the plot meanwhile. Curves share their samples with it. Hidden ones are not there.
 */
class PlotSheet
{
public:
    /** Is told, again and again, which part is painted, and says whether to go on. */
    typedef std::function<bool(double)> Watcher;

    PlotSheet(QwtPlot *plot, const QSize &size);

    /** False when @p watcher, which may be empty, did not want to go on. */
    bool paint(QPainter *painter, const Watcher &watcher) const;

private:
    class Recorder;
    struct Curve {
        QSharedPointer<const LogPlotCurve> curve;
        QwtScaleMap xMap;
        QwtScaleMap yMap;
    };

    void addCurve(const LogPlotCurve &curve, const QwtScaleMap *maps);
    void paintFrame(QPainter *painter) const;
    double samples() const;
    bool paintCurve(QPainter *painter, const Curve &curve,
                    const std::function<bool(int)> &goesOn) const;

    QPicture m_frame; ///< all but the curves
    QVector<Curve> m_curves;
    QRectF m_canvas;
    QTransform m_transform;
};

#endif

#ifndef DATALOG_VIEWER_PLOTCURVES_H
#define DATALOG_VIEWER_PLOTCURVES_H

#include <QColor>
#include <QList>
#include <QString>

class CurveSeries;
class QwtPlot;
class QwtPlotCurve;

/**
 * A variable's curve on one axis: its pieces, which criteria cut. They belong to the plot, and go
 * when it makes its curves anew.
 */
struct PlotCurve {
    QString name;
    int axis = 0; ///< the plot widget's number of its vertical axis
    QColor color;
    QList<QwtPlotCurve *> pieces;

    bool isSame(const PlotCurve &other) const
    {
        return name == other.name && axis == other.axis && color == other.color;
    }
    QList<const CurveSeries *> series() const;
    /** Whether any of the pieces is. */
    bool isVisible() const;
    void setVisible(bool isVisible) const;
};

namespace PlotCurves
{

/** All curves of a plot that a LogViewerItem fills: the left ones first, by name. */
QList<PlotCurve> of(const QwtPlot &plot);

} // namespace PlotCurves

#endif

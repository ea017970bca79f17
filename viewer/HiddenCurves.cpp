#include "viewer/HiddenCurves.h"

#include "plot/LogViewerItem.h"
#include "viewer/PlotCurves.h"

#include <qwt_plot.h>
#include <qwt_plot_curve.h>

namespace
{

QList<PlotCurve> curvesOn(const QwtPlot &plot, int axis)
{
    QList<PlotCurve> curves;
    const QList<PlotCurve> all = PlotCurves::of(plot);
    for (const PlotCurve &curve : all) {
        if (curve.axis == axis)
            curves.append(curve);
    }
    return curves;
}

} // namespace

QStringList HiddenCurves::names(const QwtPlot &plot, int axis)
{
    QStringList names;
    const QList<PlotCurve> curves = curvesOn(plot, axis);
    for (const PlotCurve &curve : curves) {
        if (!curve.isVisible())
            names.append(curve.name);
    }
    return names;
}

void HiddenCurves::setHidden(LogViewerItem *view, int axis, const QStringList &names)
{
    const QStringList before = HiddenCurves::names(*view->plot(), axis);
    const QList<PlotCurve> curves = curvesOn(*view->plot(), axis);
    for (const PlotCurve &curve : curves) {
        const bool isShown = !names.contains(curve.name);
        if (isShown != before.contains(curve.name))
            continue;
        // Only the first piece has a legend entry; telling each of them would redraw for each.
        view->curveChecked(curve.pieces.first(), isShown);
        curve.setVisible(isShown);
    }
    view->plot()->replot();
}

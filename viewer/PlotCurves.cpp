#include "viewer/PlotCurves.h"

#include "plot/CurveSeries.h"

#include <qwt_plot.h>
#include <qwt_plot_curve.h>

#include <algorithm>

QList<const CurveSeries *> PlotCurve::series() const
{
    QList<const CurveSeries *> series;
    for (const QwtPlotCurve *piece : pieces)
        series.append(static_cast<const CurveSeries *>(piece->data()));
    return series;
}

bool PlotCurve::isVisible() const
{
    return std::any_of(pieces.begin(), pieces.end(),
                       [](const QwtPlotCurve *piece) { return piece->isVisible(); });
}

void PlotCurve::setVisible(bool isVisible) const
{
    for (QwtPlotCurve *piece : pieces)
        piece->setVisible(isVisible);
}

/** The pieces of a variable follow each other. */
QList<PlotCurve> PlotCurves::of(const QwtPlot &plot)
{
    QList<PlotCurve> curves;
    const QwtPlotItemList items = plot.itemList(QwtPlotItem::Rtti_PlotCurve);
    for (QwtPlotItem *item : items) {
        auto *piece = static_cast<QwtPlotCurve *>(item);
        const QString name = piece->title().text();
        const bool isNew = curves.isEmpty() || curves.last().name != name
            || curves.last().axis != piece->yAxis();
        if (isNew) {
            PlotCurve curve;
            curve.name = name;
            curve.axis = piece->yAxis();
            curve.color = piece->pen().color();
            curves.append(curve);
        }
        curves.last().pieces.append(piece);
    }
    return curves;
}

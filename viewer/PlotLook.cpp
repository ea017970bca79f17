#include "viewer/PlotLook.h"

#include <QSet>

#include <qwt_legend.h>
#include <qwt_plot.h>
#include <qwt_plot_curve.h>
#include <qwt_plot_grid.h>

namespace
{

const char kGridColor[] = "#E3E7EB";

QList<QwtPlotCurve *> curves(const QwtPlot &plot)
{
    QList<QwtPlotCurve *> curves;
    const QwtPlotItemList items = plot.itemList(QwtPlotItem::Rtti_PlotCurve);
    for (QwtPlotItem *item : items)
        curves.append(static_cast<QwtPlotCurve *>(item));
    return curves;
}

bool isSameVariable(const QwtPlotItem &a, const QwtPlotItem &b)
{
    return a.yAxis() == b.yAxis() && a.title().text() == b.title().text();
}

void dropLegendEntry(QwtPlotCurve *curve)
{
    curve->setItemAttribute(QwtPlotItem::Legend, false);
    // The attribute alone tells the legend of entries that come, not of those that go.
    curve->plot()->updateLegend(curve);
}

} // namespace

PlotLook::PlotLook(QObject *parent)
    : QObject(parent)
    , m_hasCurves(false)
{
}

void PlotLook::setView(LogViewerItem *view)
{
    if (view == m_view || !view)
        return;
    m_view = view;
    addGrid();
    connect(view, &LogViewerItem::plotUpdated, this, &PlotLook::dress);
    if (auto *legend = qobject_cast<QwtLegend *>(view->plot()->legend()))
        connect(legend, &QwtLegend::checked, this, &PlotLook::showPieces);
    dress();
    emit viewChanged();
}

/** The plot owns what is attached to it. */
void PlotLook::addGrid()
{
    auto *grid = new QwtPlotGrid;
    grid->setMajorPen(QColor(QLatin1String(kGridColor)), 1);
    grid->attach(m_view->plot());
}

void PlotLook::dress()
{
    QwtPlot *plot = m_view->plot();
    const QList<QwtPlotCurve *> all = curves(*plot);
    QSet<int> axes;
    const QwtPlotCurve *previous = nullptr;
    for (QwtPlotCurve *curve : all) {
        axes.insert(curve->yAxis());
        // The pieces of a variable follow each other.
        const bool isFirstPiece = !previous || !isSameVariable(*previous, *curve);
        if (!isFirstPiece)
            dropLegendEntry(curve);
        previous = curve;
    }
    plot->enableAxis(QwtPlot::yLeft, axes.contains(QwtPlot::yLeft) || axes.isEmpty());
    plot->enableAxis(QwtPlot::yRight, axes.contains(QwtPlot::yRight));
    plot->replot();
    m_hasCurves = !all.isEmpty();
    emit curvesChanged();
}

void PlotLook::showPieces(const QVariant &itemInfo, bool on)
{
    const QwtPlotItem *tapped = m_view->plot()->infoToItem(itemInfo);
    if (!tapped)
        return;
    const QList<QwtPlotCurve *> all = curves(*m_view->plot());
    for (QwtPlotCurve *curve : all) {
        if (isSameVariable(*tapped, *curve))
            curve->setVisible(on);
    }
    m_view->plot()->replot();
}

#include "viewer/PlotLook.h"

#include "viewer/AxisTitles.h"
#include "viewer/ClockScaleDraw.h"
#include "viewer/ClockScaleEngine.h"
#include "viewer/CurveColors.h"
#include "viewer/ElidedTextEngine.h"
#include "viewer/NumberScaleDraw.h"
#include "viewer/PlotTheme.h"
#include "viewer/PlottedData.h"

#include <QSet>

#include <qwt_legend.h>
#include <qwt_plot.h>
#include <qwt_plot_curve.h>
#include <qwt_plot_grid.h>
#include <qwt_text.h>

namespace
{

const int kAxes[] = {QwtPlot::xBottom, QwtPlot::yLeft, QwtPlot::yRight};

void dropLegendEntry(QwtPlotCurve *curve)
{
    curve->setItemAttribute(QwtPlotItem::Legend, false);
    // The attribute alone tells the legend of entries that come, not of those that go.
    curve->plot()->updateLegend(curve);
}

} // namespace

PlotLook::PlotLook(QObject *parent)
    : QObject(parent)
    , m_clockBase(-1)
    , m_hasLegend(true)
    , m_isDark(false)
    , m_isOfInstrument(false)
    , m_hasCurves(false)
{
}

void PlotLook::setView(LogViewerItem *view)
{
    if (view == m_view || !view)
        return;
    m_view = view;
    addGrid();
    for (int axis : kAxes)
        view->plot()->setAxisScaleDraw(axis, new NumberScaleDraw);
    connect(view, &LogViewerItem::plotUpdated, this, &PlotLook::dress);
    if (auto *legend = qobject_cast<QwtLegend *>(view->plot()->legend()))
        connect(legend, &QwtLegend::checked, this, &PlotLook::showPieces);
    applyLegend();
    dress();
    emit viewChanged();
}

void PlotLook::setHasLegend(bool hasLegend)
{
    if (hasLegend == m_hasLegend)
        return;
    m_hasLegend = hasLegend;
    applyLegend();
    emit hasLegendChanged();
}

/** All curves are made anew, for who follows them to see their colours. */
void PlotLook::setDark(bool isDark)
{
    if (isDark == m_isDark)
        return;
    m_isDark = isDark;
    if (m_view)
        m_view->updatePlot();
    emit darkChanged();
}

void PlotLook::setOfInstrument(bool isOfInstrument)
{
    if (isOfInstrument == m_isOfInstrument)
        return;
    m_isOfInstrument = isOfInstrument;
    if (m_view)
        m_view->updatePlot();
    emit ofInstrumentChanged();
}

/** A hidden legend would keep its room. */
void PlotLook::applyLegend()
{
    if (m_view && !m_hasLegend)
        m_view->plot()->insertLegend(nullptr);
}

/** The plot owns what is attached to it. */
void PlotLook::addGrid()
{
    auto *grid = new QwtPlotGrid;
    grid->attach(m_view->plot());
}

void PlotLook::dress()
{
    CurveColors::complete(m_view);
    QwtPlot *plot = m_view->plot();
    const QList<PlotCurve> curves = PlotCurves::of(*plot);
    QSet<int> axes;
    for (const PlotCurve &curve : curves) {
        axes.insert(curve.axis);
        for (int i = 1; i < curve.pieces.size(); ++i)
            dropLegendEntry(curve.pieces.at(i));
    }
    plot->enableAxis(QwtPlot::yLeft, axes.contains(QwtPlot::yLeft) || axes.isEmpty());
    plot->enableAxis(QwtPlot::yRight, axes.contains(QwtPlot::yRight));
    labelClockTimes();
    writeTitles(curves);
    PlotTheme::setOfInstrument(m_view, m_isOfInstrument);
    PlotTheme::apply(m_view, m_isDark);
    plot->replot();
    m_hasCurves = !curves.isEmpty();
    emit curvesChanged();
}

/** The module draws the seconds since the first time. */
void PlotLook::labelClockTimes()
{
    LogDataSourceItem *source = m_view->dataSource();
    const int base = source ? PlottedData(source).xClockBase() : -1;
    if (base == m_clockBase)
        return;
    m_clockBase = base;
    QwtPlot *plot = m_view->plot();
    const bool isClock = base >= 0;
    plot->setAxisScaleDraw(QwtPlot::xBottom,
                           isClock ? static_cast<QwtScaleDraw *>(new ClockScaleDraw(base))
                                   : new NumberScaleDraw);
    plot->setAxisScaleEngine(QwtPlot::xBottom,
                             isClock ? new ClockScaleEngine(base) : new QwtLinearScaleEngine);
}

/** The names of many curves are longer than an axis. */
void PlotLook::writeTitle(int axis, const QString &text)
{
    QwtText title = m_view->plot()->axisTitle(axis);
    title.setText(text, QwtText::PlainText);
    m_view->plot()->setAxisTitle(axis, ElidedTextEngine::elided(title));
}

/** An axis without a curve is not shown, or has no title. */
void PlotLook::writeTitles(const QList<PlotCurve> &curves)
{
    if (curves.isEmpty() || !m_view->dataSource())
        return;
    const PlottedData data(m_view->dataSource());
    writeTitle(QwtPlot::xBottom, AxisTitles::horizontal(data));
    for (int axis : {QwtPlot::yLeft, QwtPlot::yRight})
        writeTitle(axis, AxisTitles::vertical(data, curves, axis));
}

void PlotLook::showPieces(const QVariant &itemInfo, bool on)
{
    const QwtPlotItem *tapped = m_view->plot()->infoToItem(itemInfo);
    if (!tapped)
        return;
    const QList<PlotCurve> curves = PlotCurves::of(*m_view->plot());
    for (const PlotCurve &curve : curves) {
        if (curve.axis == tapped->yAxis() && curve.name == tapped->title().text())
            curve.setVisible(on);
    }
    m_view->plot()->replot();
}

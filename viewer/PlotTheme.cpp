#include "viewer/PlotTheme.h"

#include "viewer/CurveColors.h"
#include "viewer/ThemeColors.h"

#include <qwt_plot.h>
#include <qwt_plot_curve.h>
#include <qwt_plot_grid.h>

namespace
{

const char kIsDark[] = "isDark";
const char kIsOfInstrument[] = "isOfInstrument";

// For the plot and all in it, as the plot's own.
const char kStyleSheet[] = "background-color: %plot%; color: %plotText%; font-family: OpenSans;"
                           " font-size: 14px;";

/** The colour that a curve counts as having: not the one that it was painted in earlier. */
QColor colorOf(const LogViewerItem &view, const QwtPlotCurve &curve)
{
    const bool isRight = curve.yAxis() == LogViewerItem::RightAxis;
    const auto axis = isRight ? LogViewerItem::RightAxis : LogViewerItem::LeftAxis;
    const QString color = view.variableColors(axis).value(curve.title().text());
    return color.isEmpty() ? QColor(CurveColors::Fallback) : QColor(color);
}

void applyToCurves(const LogViewerItem &view, bool isDark)
{
    const bool isOfInstrument = view.plot()->property(kIsOfInstrument).toBool();
    const QwtPlotItemList items = view.plot()->itemList(QwtPlotItem::Rtti_PlotCurve);
    for (QwtPlotItem *item : items) {
        auto *curve = static_cast<QwtPlotCurve *>(item);
        CurveColors::paint(curve,
                           ThemeColors::ofCurve(colorOf(view, *curve), isDark, isOfInstrument));
    }
}

void applyToGrid(const QwtPlot &plot, bool isDark)
{
    const QwtPlotItemList items = plot.itemList(QwtPlotItem::Rtti_PlotGrid);
    for (QwtPlotItem *item : items)
        static_cast<QwtPlotGrid *>(item)->setMajorPen(ThemeColors::color("grid", isDark), 1);
}

} // namespace

namespace PlotTheme
{

void apply(LogViewerItem *view, bool isDark)
{
    QwtPlot *plot = view->plot();
    if (isDark != PlotTheme::isDark(view)) {
        plot->setProperty(kIsDark, isDark);
        plot->setStyleSheet(ThemeColors::filled(kStyleSheet, isDark));
    }
    const bool wasAutomatic = plot->autoReplot();
    plot->setAutoReplot(false);
    applyToGrid(*plot, isDark);
    applyToCurves(*view, isDark);
    plot->setAutoReplot(wasAutomatic);
}

bool isDark(const LogViewerItem *view)
{
    return view->plot()->property(kIsDark).toBool();
}

void setOfInstrument(LogViewerItem *view, bool on)
{
    view->plot()->setProperty(kIsOfInstrument, on);
}

} // namespace PlotTheme

TemporaryPlotTheme::TemporaryPlotTheme(LogViewerItem *view, bool isDark)
    : m_view(view)
    , m_wasDark(PlotTheme::isDark(view))
{
    if (m_wasDark != isDark)
        PlotTheme::apply(view, isDark);
}

TemporaryPlotTheme::~TemporaryPlotTheme()
{
    if (m_view && m_wasDark != PlotTheme::isDark(m_view))
        PlotTheme::apply(m_view, m_wasDark);
}

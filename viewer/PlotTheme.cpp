#include "viewer/PlotTheme.h"

#include "viewer/CurveColors.h"
#include "viewer/ThemeColors.h"

#include <qwt_plot.h>
#include <qwt_plot_curve.h>
#include <qwt_plot_grid.h>

namespace
{

const char kIsDark[] = "isDark";

// For the plot and all in it, as the plot's own.
const char kStyleSheet[] = "background-color: %plot%; color: %plotText%; font-family: OpenSans;"
                           " font-size: 14px;";

void applyToCurve(const LogViewerItem &view, QwtPlotCurve *curve, bool isDark)
{
    const bool isRight = curve->yAxis() == LogViewerItem::RightAxis;
    const auto axis = isRight ? LogViewerItem::RightAxis : LogViewerItem::LeftAxis;
    const QString own = view.variableColors(axis).value(curve->title().text());
    if (!own.isEmpty())
        CurveColors::paint(curve, ThemeColors::ofCurve(QColor(own), isDark));
    else if (isDark)
        CurveColors::paint(curve, ThemeColors::ofCurve(curve->pen().color(), true));
    else
        CurveColors::paint(curve, QColor(CurveColors::Fallback));
}

void applyToCurves(const LogViewerItem &view, bool isDark)
{
    const QwtPlotItemList items = view.plot()->itemList(QwtPlotItem::Rtti_PlotCurve);
    for (QwtPlotItem *item : items)
        applyToCurve(view, static_cast<QwtPlotCurve *>(item), isDark);
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
    const bool wasDark = PlotTheme::isDark(view);
    if (isDark != wasDark) {
        plot->setProperty(kIsDark, isDark);
        plot->setStyleSheet(ThemeColors::filled(kStyleSheet, isDark));
    }
    const bool wasAutomatic = plot->autoReplot();
    plot->setAutoReplot(false);
    applyToGrid(*plot, isDark);
    // Curves are made with the colours for a light page.
    if (isDark || wasDark)
        applyToCurves(*view, isDark);
    plot->setAutoReplot(wasAutomatic);
}

bool isDark(const LogViewerItem *view)
{
    return view->plot()->property(kIsDark).toBool();
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

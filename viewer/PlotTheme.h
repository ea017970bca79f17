#ifndef DATALOG_VIEWER_PLOTTHEME_H
#define DATALOG_VIEWER_PLOTTHEME_H

#include "plot/LogViewerItem.h"

/** The colours of a plot on a light and on a dark page. */
namespace PlotTheme
{

/** Dresses the plot and all curves that it has now; does not redraw. */
void apply(LogViewerItem *view, bool isDark);
/** What was applied last; a plot is light until then. */
bool isDark(const LogViewerItem *view);
/** Whether curves have the plot's own colours on a light page; apply() shows it. */
void setOfInstrument(LogViewerItem *view, bool on);

} // namespace PlotTheme

/** A plot has the colours asked for while this lives, and then those from before. */
class TemporaryPlotTheme
{
public:
    TemporaryPlotTheme(LogViewerItem *view, bool isDark);
    ~TemporaryPlotTheme();

private:
    Q_DISABLE_COPY(TemporaryPlotTheme)

    QPointer<LogViewerItem> m_view;
    bool m_wasDark;
};

#endif

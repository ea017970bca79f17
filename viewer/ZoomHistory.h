#ifndef DATALOG_VIEWER_ZOOMHISTORY_H
#define DATALOG_VIEWER_ZOOMHISTORY_H

#include "viewer/PlotScales.h"

#include <QList>

/** The scales a user looked at, to step back through, and forward again. */
class ZoomHistory
{
public:
    /** Steps that are kept; the oldest ones go. */
    static const int kMostSteps = 200;

    bool canGoBack() const { return !m_past.isEmpty(); }
    bool canGoForward() const { return !m_future.isEmpty(); }

    /** To be called before a change. What had been stepped back from is forgotten. */
    void record(const PlotScales &current);
    /** The scales before the last change; @p current is what to go forward to. */
    PlotScales back(const PlotScales &current);
    PlotScales forward(const PlotScales &current);
    void clear();

private:
    QList<PlotScales> m_past;
    QList<PlotScales> m_future;
};

#endif

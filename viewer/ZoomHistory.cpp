#include "viewer/ZoomHistory.h"

void ZoomHistory::record(const PlotScales &current)
{
    m_future.clear();
    m_past.append(current);
    if (m_past.size() > kMostSteps)
        m_past.removeFirst();
}

PlotScales ZoomHistory::back(const PlotScales &current)
{
    if (!canGoBack())
        return current;
    m_future.append(current);
    return m_past.takeLast();
}

PlotScales ZoomHistory::forward(const PlotScales &current)
{
    if (!canGoForward())
        return current;
    m_past.append(current);
    return m_future.takeLast();
}

void ZoomHistory::clear()
{
    m_past.clear();
    m_future.clear();
}

#ifndef DATALOG_VIEWER_TEMPORARYLEGEND_H
#define DATALOG_VIEWER_TEMPORARYLEGEND_H

#include <QList>

class QwtPlot;
class QwtPlotItem;

/**
 * Names the curves in a picture of a plot that has no legend of its own, for as long as it lives:
 * those that are visible.
 */
class TemporaryLegend
{
public:
    explicit TemporaryLegend(QwtPlot *plot);
    ~TemporaryLegend();

private:
    Q_DISABLE_COPY(TemporaryLegend)

    QwtPlot *m_plot; ///< null when there is nothing to undo
    QList<QwtPlotItem *> m_unnamed;
};

#endif

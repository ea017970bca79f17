#ifndef DATALOG_VIEWER_PLOTLOOK_H
#define DATALOG_VIEWER_PLOTLOOK_H

#include "plot/LogViewerItem.h"

#include <QPointer>

class QwtPlotItem;

/**
 * Dresses a plot for the viewer: a light grid, vertical axes only where there are curves, and one
 * legend entry for a variable, however many pieces its curve has. A tap on it hides and shows them
 * all.
 */
class PlotLook : public QObject
{
    Q_OBJECT
    Q_PROPERTY(LogViewerItem *view READ view WRITE setView NOTIFY viewChanged)
    Q_PROPERTY(bool hasCurves READ hasCurves NOTIFY curvesChanged)

public:
    explicit PlotLook(QObject *parent = nullptr);

    LogViewerItem *view() const { return m_view; }
    void setView(LogViewerItem *view);
    /** Whether the plot shows anything. */
    bool hasCurves() const { return m_hasCurves; }

signals:
    void viewChanged();
    void curvesChanged();

private:
    void addGrid();
    void dress();
    void showPieces(const QVariant &itemInfo, bool on);

    QPointer<LogViewerItem> m_view;
    bool m_hasCurves;
};

#endif

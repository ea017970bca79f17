#ifndef DATALOG_VIEWER_PLOTLOOK_H
#define DATALOG_VIEWER_PLOTLOOK_H

#include "plot/LogViewerItem.h"
#include "viewer/PlotCurves.h"

#include <QPointer>

class QwtPlotItem;

/**
 * Dresses a plot for the viewer: a light grid, vertical axes only where there are curves, clock
 * times along the horizontal one where that is what it shows, titles of axes with units, and with
 * an ellipsis where they don't fit, and one legend entry for a variable, however many pieces its
 * curve has. A tap on it hides and shows them all.
 */
class PlotLook : public QObject
{
    Q_OBJECT
    Q_PROPERTY(LogViewerItem *view READ view WRITE setView NOTIFY viewChanged)
    Q_PROPERTY(bool hasLegend READ hasLegend WRITE setHasLegend NOTIFY hasLegendChanged)
    Q_PROPERTY(bool isDark READ isDark WRITE setDark NOTIFY darkChanged)
    Q_PROPERTY(
        bool isOfInstrument READ isOfInstrument WRITE setOfInstrument NOTIFY ofInstrumentChanged)
    Q_PROPERTY(bool hasCurves READ hasCurves NOTIFY curvesChanged)

public:
    explicit PlotLook(QObject *parent = nullptr);

    LogViewerItem *view() const { return m_view; }
    void setView(LogViewerItem *view);
    /** Whether the plot names its curves itself. One that has lost its legend gets none back. */
    bool hasLegend() const { return m_hasLegend; }
    void setHasLegend(bool hasLegend);
    /** Whether the plot is drawn on a dark page. */
    bool isDark() const { return m_isDark; }
    void setDark(bool isDark);
    /** Whether curves on a light page have the plot's own colours, not some that differ more. */
    bool isOfInstrument() const { return m_isOfInstrument; }
    void setOfInstrument(bool isOfInstrument);
    /** Whether the plot shows anything. */
    bool hasCurves() const { return m_hasCurves; }

signals:
    void viewChanged();
    void hasLegendChanged();
    void darkChanged();
    void ofInstrumentChanged();
    void curvesChanged();

private:
    void addGrid();
    void applyLegend();
    void labelClockTimes();
    void writeTitle(int axis, const QString &text);
    void writeTitles(const QList<PlotCurve> &curves);
    void dress();
    void showPieces(const QVariant &itemInfo, bool on);

    QPointer<LogViewerItem> m_view;
    int m_clockBase; ///< of the horizontal axis; -1 while it shows numbers
    bool m_hasLegend;
    bool m_isDark;
    bool m_isOfInstrument;
    bool m_hasCurves;
};

#endif

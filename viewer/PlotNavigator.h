#ifndef DATALOG_VIEWER_PLOTNAVIGATOR_H
#define DATALOG_VIEWER_PLOTNAVIGATOR_H

#include "plot/LogViewerItem.h"
#include "viewer/ScaleMath.h"
#include "viewer/ZoomHistory.h"

#include <QElapsedTimer>
#include <QPointer>
#include <QRectF>
#include <QTimer>

class QwtPlot;

/**
 * Moves a plot's scales as a user asks for it, on each axis alone or on several together, and keeps
 * the way back.
 *
 * The plot itself holds the scales, so whoever else sets them is seen too. What is fixed here is
 * written into the data source's graph definition, autoscale off included. Positions are those of
 * the view. Axes without a scale of their own are left alone.
 */
class PlotNavigator : public QObject
{
    Q_OBJECT
    Q_PROPERTY(LogViewerItem *view READ view WRITE setView NOTIFY viewChanged)
    Q_PROPERTY(int axes READ axes WRITE setAxes NOTIFY axesChanged)
    Q_PROPERTY(bool canGoBack READ canGoBack NOTIFY scalesChanged)
    Q_PROPERTY(bool canGoForward READ canGoForward NOTIFY scalesChanged)
    Q_PROPERTY(bool isZoomed READ isZoomed NOTIFY scalesChanged)
    Q_PROPERTY(QRectF canvas READ canvas NOTIFY scalesChanged)
    Q_PROPERTY(bool isClockTime READ isClockTime NOTIFY scalesChanged)

public:
    /** Sets of axes. */
    enum Axes { NoAxes = 0, Left = 1, Right = 2, Vertical = 3, Bottom = 4, AllAxes = 7 };
    Q_ENUM(Axes)
    /** What makes a step: successive turns of a wheel, or keys, are one step back. */
    enum StepKind { Gesture, Wheel, Keys };

    explicit PlotNavigator(QObject *parent = nullptr);

    LogViewerItem *view() const { return m_view; }
    void setView(LogViewerItem *view);
    /** The axes that a user chose to move; all of them at first. */
    int axes() const { return m_axes; }
    void setAxes(int axes);
    bool canGoBack() const { return m_history.canGoBack(); }
    bool canGoForward() const { return m_history.canGoForward(); }
    /** Whether some axis does not follow the data. */
    bool isZoomed() const;
    /** Where the curves are drawn. */
    QRectF canvas() const;
    /** Whether the horizontal axis shows clock times. */
    bool isClockTime() const { return m_clockBase >= 0; }

    /** Wheel turns and keys with less than this between them are one step. */
    void setStepPause(int milliseconds) { m_stepPause = milliseconds; }
    PlotScales scales() const;
    /** Axes that are shown. */
    int shownAxes() const;
    /** The axis over whose scale a position is; the chosen ones for the canvas. */
    int axesAt(const QPointF &position) const;

    /** What follows is one step back. */
    void beginStep(StepKind kind = Gesture);
    /** What follows is one step back, until this is called with false. */
    Q_INVOKABLE void joinSteps(bool isJoined);
    /** Takes the ranges of @p axes; those an axis can't show leave it as it is. */
    void show(const PlotScales &scales, int axes);
    void zoom(int axes, double factor, const QPointF &at);
    /** Moves the content by a distance of @p from as it was at @p start. */
    void drag(int axes, const PlotScales &start, const QPointF &from, const QPointF &to);
    void pinch(int axes, const PlotScales &start, const QPointF from[2], const QPointF to[2]);
    void zoomTo(int axes, const QRectF &area);

    // For keys and buttons; each is a step.
    Q_INVOKABLE void zoomBy(int axes, double factor);
    /** @param x, y parts of the canvas by which the view moves, right and up. */
    Q_INVOKABLE void panBy(int axes, double x, double y);
    Q_INVOKABLE void autoscale(int axes);
    Q_INVOKABLE void back();
    Q_INVOKABLE void forward();
    /** Follows the data again, with no way back: something else is shown. */
    Q_INVOKABLE void reset();

    /** A bound of one axis as text to be edited; clock times as such. */
    Q_INVOKABLE QString limitText(int axis, bool isUpper) const;
    Q_INVOKABLE bool isAutoscaled(int axis) const;
    Q_INVOKABLE bool isShown(int axis) const { return shownAxes() & axis; }
    /** Fixes one axis; empty, or what is wrong with the texts. */
    Q_INVOKABLE QString setLimits(int axis, const QString &lower, const QString &upper);

    /** Pixels of the view. */
    double toPixelX(double x) const;
    double toPixelY(int axis, double y) const;
    double toX(double pixel) const;
    double toY(int axis, double pixel) const;

signals:
    void viewChanged();
    void axesChanged();
    /** What the plot shows, or where it does, changed. */
    void scalesChanged();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QwtPlot *plot() const { return m_view->plot(); }
    /** A place as a part of the way along an axis, which the plot widget numbers so. */
    double partOf(int axis, const QPointF &position) const;
    void change(const PlotScales &scales, int axes);
    void fix(int axis, const AxisRange &range);
    double value(int axis, const QString &text, bool *ok) const;
    void followContent();
    void releaseChanged(const QList<QStringList> &content, const PlotScales &seen);
    QList<QStringList> content() const;

    QPointer<LogViewerItem> m_view;
    ZoomHistory m_history;
    QTimer m_replot;
    QElapsedTimer m_lastStep;
    StepKind m_stepKind;
    bool m_isStepRecorded;
    bool m_isJoined;
    int m_stepPause;
    int m_axes;
    int m_clockBase; ///< of the horizontal axis; -1 where it is no clock time
    QList<QStringList> m_content; ///< variables of each axis
};

#endif

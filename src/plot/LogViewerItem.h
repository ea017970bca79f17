#ifndef DATALOG_PLOT_LOGVIEWERITEM_H
#define DATALOG_PLOT_LOGVIEWERITEM_H

#include "datasource/LogDataSourceItem.h"
#include "declarative/DeclarativeItem.h"

#include <QMap>
#include <QPointer>
#include <QScopedPointer>
#include <QStringList>
#include <QVariant>

class LogPlotCurve;
class QGraphicsProxyWidget;
class QwtPlot;
class QwtPlotCurve;
class QwtPlotItem;
class SeriesMemory;

/**
 * The graph of a data source's chosen variables: one curve for each piece of each variable, left
 * ones in reds, right ones in greens, with a legend in which a tap hides and shows a curve.
 *
 * Nothing is drawn until lines or symbols are switched on for an axis. What is set here on an axis
 * is written into the data source's graph definition as well. Without a data source, or once it is
 * gone, settings are just kept here, and the plot empties with the next updatePlot(); the curves
 * shown until then stay.
 *
 * Only the first 500 curves have a legend entry; a criterion can cut a variable into more pieces.
 *
 * Five variables an axis have a colour of their own. Any more are drawn in "#333" until a colour
 * gets free.
 */
class LogViewerItem : public QDeclarativeItem
{
    Q_OBJECT
    Q_ENUMS(LogViewerViewOptions)
    Q_ENUMS(LogViewerAxis)
    Q_PROPERTY(
        LogDataSourceItem *dataSource READ dataSource WRITE setDataSource NOTIFY dataSourceChanged)

public:
    /** For scripts to name their views by. */
    enum LogViewerViewOptions { HeaderView = 0, DataSetView = 1, PlotView = 2 };
    /**
     * The plot widget's own axis numbers; the lists of variables count differently. Scripts can
     * pass any number.
     */
#ifdef Q_MOC_RUN // the older engine's moc can't read an enumeration with a type
    enum LogViewerAxis{LeftAxis = 0, RightAxis = 1, BottomAxis = 2};
#else
    enum LogViewerAxis : int { LeftAxis = 0, RightAxis = 1, BottomAxis = 2 };
#endif

    explicit LogViewerItem(QDeclarativeItem *parent = nullptr);
    ~LogViewerItem() override;

    LogDataSourceItem *dataSource() const;
    /** Follows @p source from now on; null follows none. Redraws nothing and emits nothing. */
    void setDataSource(LogDataSourceItem *source);

    /** False for the bottom axis and for what is no axis. */
    bool linesEnabled(LogViewerAxis axis) const;
    bool symbolsEnabled(LogViewerAxis axis) const;

    /** Shows or hides a curve, legend entry and all, until the next updatePlot(); redraws. */
    void curveChecked(QwtPlotItem *item, bool on);

    // The steps of updatePlot(); they don't redraw.
    void updateXData();
    void updateLeftYData();
    void updateRightYData();

    /** For programs: the colour of each variable on a vertical axis, to be given back later. */
    QMap<QString, QString> variableColors(LogViewerAxis axis) const;
    /**
     * For programs: gives variables their colours before an updatePlot() chooses them. Those of
     * variables that are not on the axis then are dropped.
     */
    void setVariableColors(LogViewerAxis axis, const QMap<QString, QString> &colors);

    /** A path to keep for the caller; nothing is read from it. */
    QString logFilePath() const;
    void setLogFilePath(const QString &path);

    /** For programs: the plot itself, to draw it elsewhere, say. It belongs to this item. */
    QwtPlot *plot() const;

public Q_SLOTS:
    /** Fits the plot to the item and redraws; does nothing while the item has no size. */
    void replot();
    /** Makes all curves anew, all of them visible, redraws, and emits plotUpdated(). */
    void updatePlot();
    /** Bounds of the scale as last drawn; 0 for what is no axis. */
    double axisMinScale(LogViewerAxis axis);
    double axisMaxScale(LogViewerAxis axis);
    /**
     * Fixes a scale; replot() shows it. Bounds that are no numbers, or too far apart to have a
     * distance, change nothing. Equal bounds show that value in the middle of the axis.
     */
    void setAxisScale(LogViewerAxis axis, double min, double max);
    /** Lets a scale follow the data again; replot() shows it. */
    void enableAutoScale(LogViewerAxis axis);
    void setLinesEnabled(LogViewerAxis axis, bool enabled);
    void setSymbolsEnabled(LogViewerAxis axis, bool enabled);
    /** @param axis as the variable lists count: 1 left, 2 right. */
    QString hexColorForAxisAndVariableName(int axis, const QString &variableName);

Q_SIGNALS:
    void dataSourceChanged();
    void logViewerViewOptionChanged();
    void plotUpdated();

private Q_SLOTS:
    void resizePlot();
    void legendChecked(const QVariant &itemInfo, bool on);

private:
    struct AxisStyle;

    void makePlot();
    void makeLegend();
    void fitPlot();
    void dropCurves();
    void setLegendLayoutEnabled(bool enabled);
    void addCurves(const AxisSeries &x, const AxisSeries &y, const QMap<QString, QString> &colors,
                   const AxisStyle &style);
    static LogPlotCurve *newCurve(const QString &name, const QString &color,
                                  const AxisStyle &style);
    void showCurve(QwtPlotItem *item, bool on);

    static const QStringList _leftYColorPalette;
    static const QStringList _rightYColorPalette;

    QwtPlot *_plot;
    QList<QwtPlotCurve *> _curves;
    QString _logFilePath;
    QGraphicsProxyWidget *_proxy;
    QPointer<LogDataSourceItem> _dataSource; ///< scripts may delete it first
    QMap<QString, QString> _leftColors;
    QMap<QString, QString> _rightColors;
    bool _leftLines;
    bool _leftSymbols;
    bool _rightLines;
    bool _rightSymbols;
    QScopedPointer<SeriesMemory> m_knownSeries; ///< while curves are replaced
};

#endif

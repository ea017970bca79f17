#include "plot/LogViewerItem.h"

#include "plot/AxisColors.h"
#include "plot/LogPlotCurve.h"
#include "plot/SeriesMemory.h"

#include <QGraphicsProxyWidget>
#include <QLayout>

#include <qwt_legend.h>
#include <qwt_legend_label.h>
#include <qwt_plot.h>
#include <qwt_scale_div.h>
#include <qwt_symbol.h>

#include <cmath>
#include <limits>

namespace
{

const char *const kStyleSheet = "background-color: white;font-family: OpenSans;font-size: 14px;";
const int kPlotMargin = 10;
const qreal kMaximalSide = 8192; // more than any screen has

// A noisy criterion cuts a long log into many thousand pieces. Nobody reads that many entries, and
// the legend's work grows with their square.
const int kMostLegendEntries = 500;

// How the variable lists, unlike the plot, number the vertical axes.
enum { LeftListAxis = 1, RightListAxis = 2 };

/** The data source's setters for one axis, in the order of LogViewerAxis. */
struct AxisSetters {
    void (LogDataSourceItem::*setMin)(const QString &);
    void (LogDataSourceItem::*setMax)(const QString &);
    void (LogDataSourceItem::*setAutoscale)(bool);
};

const AxisSetters kSetters[]
    = {{&LogDataSourceItem::setLeftMin, &LogDataSourceItem::setLeftMax,
        &LogDataSourceItem::setLeftAutoscale},
       {&LogDataSourceItem::setRightMin, &LogDataSourceItem::setRightMax,
        &LogDataSourceItem::setRightAutoscale},
       {&LogDataSourceItem::setHorizontalMin, &LogDataSourceItem::setHorizontalMax,
        &LogDataSourceItem::setHorizontalAutoscale}};

/** Scripts can pass any number. */
bool isAxis(int axis)
{
    return axis >= LogViewerItem::LeftAxis && axis <= LogViewerItem::BottomAxis;
}

/** Calls a setter of @p source, which a handler of an earlier call may have deleted. */
template <class Value, class Argument>
void write(const QPointer<LogDataSourceItem> &source, void (LogDataSourceItem::*setter)(Argument),
           const Value &value)
{
    if (source)
        (source.data()->*setter)(value);
}

QString scaleText(double bound)
{
    return QString::number(bound, 'g', 6);
}

bool isNumber(double value)
{
    return std::fabs(value) <= std::numeric_limits<double>::max();
}

/** A scale needs some extent to draw anything on: so much on either side of a single value. */
double marginAround(double value)
{
    const double half = std::fabs(value) / 2;
    return half > 0.0 ? half : 0.5;
}

/** Names are shown as they are, even if they look like markup. */
QwtText plainText(const QString &text)
{
    return QwtText(text, QwtText::PlainText);
}

QStringList palette(const char *c0, const char *c1, const char *c2, const char *c3, const char *c4)
{
    return QStringList() << QLatin1String(c0) << QLatin1String(c1) << QLatin1String(c2)
                         << QLatin1String(c3) << QLatin1String(c4);
}

} // namespace

const QStringList LogViewerItem::_leftYColorPalette
    = palette("#D90C00", "#FF0000", "#FF0700", "#FF7D38", "#FFAB7E");
const QStringList LogViewerItem::_rightYColorPalette
    = palette("#002E00", "#0C6400", "#428000", "#54B100", "#BFE88F");

/** How the curves of one vertical axis look. */
struct LogViewerItem::AxisStyle {
    QwtPlot::Axis axis;
    bool lines;
    bool symbols;
    QwtSymbol::Style symbol;
    int symbolSize;
};

LogViewerItem::LogViewerItem(QDeclarativeItem *parent)
    : QDeclarativeItem(parent)
    , _plot(nullptr)
    , _proxy(nullptr)
    , _leftLines(false)
    , _leftSymbols(false)
    , _rightLines(false)
    , _rightSymbols(false)
    , m_knownSeries(new SeriesMemory)
{
    setFlag(QGraphicsItem::ItemHasNoContents, false);
    makePlot();
    makeLegend();
    _plot->show();
    connect(this, SIGNAL(widthChanged()), SLOT(resizePlot()));
    connect(this, SIGNAL(heightChanged()), SLOT(resizePlot()));
}

LogViewerItem::~LogViewerItem()
{
    qDeleteAll(_curves);
}

void LogViewerItem::makePlot()
{
    _plot = new QwtPlot(QwtText());
    _plot->setStyleSheet(QLatin1String(kStyleSheet));
    _plot->enableAxis(QwtPlot::yRight);
    _plot->setAxisTitle(QwtPlot::xBottom, QString());
    _plot->setAxisTitle(QwtPlot::yRight, QString());
    _plot->setAxisTitle(QwtPlot::yLeft, QString());
    _proxy = new QGraphicsProxyWidget(graphicsParent(this));
    _proxy->setWidget(_plot);
    _plot->setContentsMargins(kPlotMargin, kPlotMargin, kPlotMargin, kPlotMargin);
}

void LogViewerItem::makeLegend()
{
    QwtLegend *legend = new QwtLegend;
    legend->setDefaultItemMode(QwtLegendData::Checkable);
    QFont font = legend->font();
    font.setStyleStrategy(QFont::PreferAntialias);
    legend->setFont(font);
    _plot->insertLegend(legend, QwtPlot::BottomLegend);
    connect(legend, SIGNAL(checked(QVariant,bool,int)), SLOT(legendChecked(QVariant,bool)));
}

LogDataSourceItem *LogViewerItem::dataSource() const
{
    return _dataSource;
}

void LogViewerItem::setDataSource(LogDataSourceItem *source)
{
    if (_dataSource) {
        disconnect(_dataSource, SIGNAL(dataSetUpdated()), this, SLOT(updatePlot()));
        disconnect(_dataSource, SIGNAL(graphDataUpdated()), this, SLOT(updatePlot()));
    }
    _dataSource = source;
    if (_dataSource) {
        connect(_dataSource, SIGNAL(dataSetUpdated()), SLOT(updatePlot()));
        connect(_dataSource, SIGNAL(graphDataUpdated()), SLOT(updatePlot()));
    }
}

QString LogViewerItem::logFilePath() const
{
    return _logFilePath;
}

void LogViewerItem::setLogFilePath(const QString &path)
{
    _logFilePath = path;
}

QwtPlot *LogViewerItem::plot() const
{
    return _plot;
}

// Size and redraw

void LogViewerItem::replot()
{
    fitPlot();
}

void LogViewerItem::resizePlot()
{
    fitPlot();
}

void LogViewerItem::fitPlot()
{
    if (!(width() > 0 && height() > 0))
        return;
    // The plot keeps an image of its canvas: one as large as a script can ask for would be 27 GB.
    const qreal fittingWidth = qMin<qreal>(width(), kMaximalSide);
    const qreal fittingHeight = qMin<qreal>(height(), kMaximalSide);
    _proxy->setMinimumWidth(fittingWidth);
    _proxy->setMaximumWidth(fittingWidth);
    _proxy->setMinimumHeight(fittingHeight);
    _proxy->setMaximumHeight(fittingHeight);
    _plot->replot();
}

// Curves

void LogViewerItem::updatePlot()
{
    setLegendLayoutEnabled(false);
    dropCurves();
    updateXData();
    updateLeftYData();
    updateRightYData();
    m_knownSeries->clear();
    setLegendLayoutEnabled(true);
    _plot->replot();
    emit plotUpdated();
}

/** Most of them come back with the samples they had: what one change touches is one variable. */
void LogViewerItem::dropCurves()
{
    for (int i = 0; i < _curves.size(); ++i)
        m_knownSeries->remember(static_cast<LogPlotCurve *>(_curves.at(i))->curveSeries());
    qDeleteAll(_curves);
    _curves.clear();
}

/** Each entry that comes or goes would lay out all of them, which takes long for many pieces. */
void LogViewerItem::setLegendLayoutEnabled(bool enabled)
{
    QwtLegend *legend = qobject_cast<QwtLegend *>(_plot->legend());
    if (!legend)
        return;
    QLayout *layout = legend->contentsWidget()->layout();
    layout->setEnabled(enabled);
    if (enabled)
        layout->activate();
}

void LogViewerItem::updateXData()
{
    const QString title = _dataSource ? _dataSource->xData().first : QString();
    _plot->setAxisTitle(QwtPlot::xBottom, plainText(title));
}

void LogViewerItem::updateLeftYData()
{
    if (!_leftLines && !_leftSymbols)
        return;
    const AxisSeries x = _dataSource ? _dataSource->XLeftData() : AxisSeries();
    const AxisSeries y = _dataSource ? _dataSource->YLeftData() : AxisSeries();
    const QString title = _dataSource ? _dataSource->YLeftAxisTitle() : QString();
    const AxisStyle style = {QwtPlot::yLeft, _leftLines, _leftSymbols, QwtSymbol::Rect, 6};
    AxisColors::update(&_leftColors, x.keys(), _leftYColorPalette);
    addCurves(x, y, _leftColors, style);
    _plot->setAxisTitle(QwtPlot::yLeft, plainText(title));
}

void LogViewerItem::updateRightYData()
{
    if (!_rightLines && !_rightSymbols)
        return;
    const AxisSeries x = _dataSource ? _dataSource->XRightData() : AxisSeries();
    const AxisSeries y = _dataSource ? _dataSource->YRightData() : AxisSeries();
    const QString title = _dataSource ? _dataSource->YRightAxisTitle() : QString();
    const AxisStyle style = {QwtPlot::yRight, _rightLines, _rightSymbols, QwtSymbol::Diamond, 8};
    AxisColors::update(&_rightColors, x.keys(), _rightYColorPalette);
    addCurves(x, y, _rightColors, style);
    _plot->setAxisTitle(QwtPlot::yRight, plainText(title));
}

void LogViewerItem::addCurves(const AxisSeries &x, const AxisSeries &y,
                              const QMap<QString, QString> &colors, const AxisStyle &style)
{
    for (AxisSeries::const_iterator it = x.constBegin(); it != x.constEnd(); ++it) {
        const QList<QVector<double>> &xPieces = it.value();
        const QList<QVector<double>> yPieces = y.value(it.key());
        const QString color = colors.value(it.key(), AxisColors::fallback());
        for (int i = 0; i < yPieces.size(); ++i) {
            LogPlotCurve *curve = newCurve(it.key(), color, style);
            // Whatever else is left out, each variable has an entry.
            const bool isListed = i == 0 || _curves.size() < kMostLegendEntries;
            curve->setItemAttribute(QwtPlotItem::Legend, isListed);
            curve->setSeries(m_knownSeries->newSeries(xPieces.value(i), yPieces.at(i)));
            curve->attach(_plot);
            curve->setYAxis(style.axis);
            _curves.append(curve);
            showCurve(curve, true);
        }
    }
}

LogPlotCurve *LogViewerItem::newCurve(const QString &name, const QString &color,
                                      const AxisStyle &style)
{
    LogPlotCurve *curve = new LogPlotCurve(plainText(name));
    curve->setPen(QPen(QColor(color)));
    curve->setStyle(style.lines ? QwtPlotCurve::Lines : QwtPlotCurve::Dots);
    if (style.symbols) {
        QwtSymbol *symbol = new QwtSymbol(style.symbol);
        symbol->setSize(style.symbolSize, style.symbolSize);
        symbol->setColor(QColor(color));
        curve->setSymbol(symbol);
    }
    curve->setRenderHint(QwtPlotItem::RenderAntialiased);
    return curve;
}

void LogViewerItem::showCurve(QwtPlotItem *item, bool on)
{
    item->setVisible(on);
    const QwtLegend *legend = qobject_cast<QwtLegend *>(_plot->legend());
    if (!legend)
        return;
    const QList<QWidget *> widgets = legend->legendWidgets(_plot->itemToInfo(item));
    if (widgets.size() != 1)
        return;
    if (QwtLegendLabel *label = qobject_cast<QwtLegendLabel *>(widgets.first()))
        label->setChecked(on);
}

void LogViewerItem::curveChecked(QwtPlotItem *item, bool on)
{
    showCurve(item, on);
    _plot->replot();
}

void LogViewerItem::legendChecked(const QVariant &itemInfo, bool on)
{
    if (!itemInfo.canConvert<QwtPlotItem *>())
        return;
    if (QwtPlotItem *item = _plot->infoToItem(itemInfo))
        curveChecked(item, on);
}

QString LogViewerItem::hexColorForAxisAndVariableName(int axis, const QString &variableName)
{
    if (axis == LeftListAxis)
        return _leftColors.value(variableName, AxisColors::fallback());
    if (axis == RightListAxis)
        return _rightColors.value(variableName, AxisColors::fallback());
    return AxisColors::fallback();
}

QMap<QString, QString> LogViewerItem::variableColors(LogViewerAxis axis) const
{
    return axis == LeftAxis ? _leftColors
        : axis == RightAxis ? _rightColors
                            : QMap<QString, QString>();
}

void LogViewerItem::setVariableColors(LogViewerAxis axis, const QMap<QString, QString> &colors)
{
    if (axis == LeftAxis)
        _leftColors = colors;
    else if (axis == RightAxis)
        _rightColors = colors;
}

// Axis settings

double LogViewerItem::axisMinScale(LogViewerAxis axis)
{
    return isAxis(axis) ? _plot->axisScaleDiv(axis).lowerBound() : 0.0;
}

double LogViewerItem::axisMaxScale(LogViewerAxis axis)
{
    return isAxis(axis) ? _plot->axisScaleDiv(axis).upperBound() : 0.0;
}

void LogViewerItem::setAxisScale(LogViewerAxis axis, double min, double max)
{
    if (!isAxis(axis) || !isNumber(min) || !isNumber(max) || !isNumber(max - min))
        return;
    const double margin = min != max ? 0.0 : marginAround(min);
    if (!isNumber(min - margin) || !isNumber(max + margin))
        return;
    _plot->setAxisScale(axis, min - margin, max + margin);
    write(_dataSource, kSetters[axis].setMax, scaleText(max));
    write(_dataSource, kSetters[axis].setMin, scaleText(min));
}

void LogViewerItem::enableAutoScale(LogViewerAxis axis)
{
    if (!isAxis(axis))
        return;
    _plot->setAxisAutoScale(axis);
    write(_dataSource, kSetters[axis].setAutoscale, true);
}

bool LogViewerItem::linesEnabled(LogViewerAxis axis) const
{
    return (axis == LeftAxis && _leftLines) || (axis == RightAxis && _rightLines);
}

bool LogViewerItem::symbolsEnabled(LogViewerAxis axis) const
{
    return (axis == LeftAxis && _leftSymbols) || (axis == RightAxis && _rightSymbols);
}

void LogViewerItem::setLinesEnabled(LogViewerAxis axis, bool enabled)
{
    if (axis == LeftAxis) {
        _leftLines = enabled;
        write(_dataSource, &LogDataSourceItem::setLeftLines, enabled);
    } else if (axis == RightAxis) {
        _rightLines = enabled;
        write(_dataSource, &LogDataSourceItem::setRightLines, enabled);
    }
    updatePlot();
}

void LogViewerItem::setSymbolsEnabled(LogViewerAxis axis, bool enabled)
{
    if (axis == LeftAxis) {
        _leftSymbols = enabled;
        write(_dataSource, &LogDataSourceItem::setLeftSymbols, enabled);
    } else if (axis == RightAxis) {
        _rightSymbols = enabled;
        write(_dataSource, &LogDataSourceItem::setRightSymbols, enabled);
    }
    updatePlot();
}

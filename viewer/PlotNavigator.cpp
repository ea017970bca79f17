#include "viewer/PlotNavigator.h"

#include "viewer/ClockTime.h"
#include "viewer/PlottedData.h"

#include <QEvent>

#include <qwt_plot.h>
#include <qwt_scale_map.h>
#include <qwt_scale_widget.h>

#include <algorithm>
#include <cmath>

namespace
{

const int kAxes = 3;
const int kStepPause = 800;

// Fingers nearer to each other than this along an axis tell no scale for it.
const double kLeastFingerDistance = 48;

int bit(int axis)
{
    return axis == QwtPlot::yLeft ? PlotNavigator::Left
        : axis == QwtPlot::yRight ? PlotNavigator::Right
                                  : PlotNavigator::Bottom;
}

/** The one axis of a set. */
int axisOf(int axes)
{
    return axes & PlotNavigator::Left ? QwtPlot::yLeft
        : axes & PlotNavigator::Right ? QwtPlot::yRight
                                      : QwtPlot::xBottom;
}

LogViewerItem::LogViewerAxis viewAxis(int axis)
{
    return static_cast<LogViewerItem::LogViewerAxis>(axis);
}

double along(int axis, const QPointF &position)
{
    return axis == QwtPlot::xBottom ? position.x() : position.y();
}

} // namespace

PlotNavigator::PlotNavigator(QObject *parent)
    : QObject(parent)
    , m_stepKind(Gesture)
    , m_isStepRecorded(false)
    , m_isJoined(false)
    , m_stepPause(kStepPause)
    , m_axes(AllAxes)
    , m_clockBase(-1)
{
    m_replot.setSingleShot(true);
    m_replot.setInterval(0);
    connect(&m_replot, &QTimer::timeout, this, [this] {
        if (m_view)
            plot()->replot();
    });
}

void PlotNavigator::setView(LogViewerItem *view)
{
    if (view == m_view || !view)
        return;
    m_view = view;
    connect(view, &LogViewerItem::plotUpdated, this, &PlotNavigator::followContent);
    for (int axis = 0; axis < kAxes; ++axis)
        connect(plot()->axisWidget(axis), &QwtScaleWidget::scaleDivChanged, this,
                &PlotNavigator::scalesChanged);
    plot()->canvas()->installEventFilter(this);
    followContent();
    emit viewChanged();
}

/** The canvas finds its place in the plot later than the plot its size. */
bool PlotNavigator::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize || event->type() == QEvent::Move)
        emit scalesChanged();
    return QObject::eventFilter(watched, event);
}

void PlotNavigator::setAxes(int axes)
{
    if (axes == m_axes)
        return;
    m_axes = axes;
    emit axesChanged();
}

bool PlotNavigator::isZoomed() const
{
    for (int axis = 0; m_view && axis < kAxes; ++axis) {
        if (plot()->axisEnabled(axis) && !plot()->axisAutoScale(axis))
            return true;
    }
    return false;
}

QRectF PlotNavigator::canvas() const
{
    return m_view ? QRectF(plot()->canvas()->geometry()) : QRectF();
}

PlotScales PlotNavigator::scales() const
{
    PlotScales scales;
    for (int axis = 0; axis < kAxes; ++axis) {
        scales[axis].isAuto = plot()->axisAutoScale(axis);
        scales[axis].min = plot()->axisScaleDiv(axis).lowerBound();
        scales[axis].max = plot()->axisScaleDiv(axis).upperBound();
    }
    return scales;
}

int PlotNavigator::shownAxes() const
{
    int axes = NoAxes;
    for (int axis = 0; m_view && axis < kAxes; ++axis)
        axes |= plot()->axisEnabled(axis) ? bit(axis) : NoAxes;
    return axes;
}

int PlotNavigator::axesAt(const QPointF &position) const
{
    const QRectF area = canvas();
    if (area.contains(position))
        return m_axes;
    if (position.y() > area.bottom() && position.x() >= area.left() && position.x() <= area.right())
        return Bottom;
    if (position.y() < area.top() || position.y() > area.bottom())
        return m_axes;
    return (position.x() < area.left() ? Left : Right) & shownAxes();
}

double PlotNavigator::partOf(int axis, const QPointF &position) const
{
    const QwtScaleMap map = plot()->canvasMap(axis);
    const double length = map.p2() - map.p1();
    const double place = along(axis, position) - along(axis, canvas().topLeft()) - map.p1();
    return length != 0 ? place / length : 0.5;
}

// Changes

void PlotNavigator::beginStep(StepKind kind)
{
    if (m_isJoined)
        return;
    const bool goesOn = kind != Gesture && kind == m_stepKind && m_lastStep.isValid()
        && m_lastStep.elapsed() < m_stepPause;
    if (!goesOn)
        m_isStepRecorded = false;
    m_stepKind = kind;
    m_lastStep.start();
}

void PlotNavigator::joinSteps(bool isJoined)
{
    m_isJoined = false;
    beginStep();
    m_isJoined = isJoined;
}

void PlotNavigator::show(const PlotScales &scales, int axes)
{
    PlotScales wanted = this->scales();
    const PlotScales before = wanted;
    for (int axis = 0; axis < kAxes; ++axis) {
        const AxisRange &range = scales[axis];
        const bool isPossible = range.isAuto || ScaleMath::isUsable(range.min, range.max);
        if ((axes & shownAxes() & bit(axis)) && isPossible)
            wanted[axis] = range;
    }
    if (wanted == before)
        return;
    if (!m_isStepRecorded)
        m_history.record(before);
    m_isStepRecorded = true;
    change(wanted, axes & shownAxes());
}

void PlotNavigator::change(const PlotScales &scales, int axes)
{
    const PlotScales before = this->scales();
    for (int axis = 0; axis < kAxes; ++axis) {
        if (!(axes & bit(axis)) || scales[axis] == before[axis])
            continue;
        if (scales[axis].isAuto)
            m_view->enableAutoScale(viewAxis(axis));
        else
            fix(axis, scales[axis]);
    }
    // The next change counts from these scales; drawing can wait for those that are under way.
    plot()->updateAxes();
    m_replot.start();
    emit scalesChanged();
}

/** The module records bounds, but not that they are to be used. */
void PlotNavigator::fix(int axis, const AxisRange &range)
{
    m_view->setAxisScale(viewAxis(axis), range.min, range.max);
    LogDataSourceItem *source = m_view->dataSource();
    if (!source)
        return;
    if (axis == QwtPlot::yLeft)
        source->setLeftAutoscale(false);
    else if (axis == QwtPlot::yRight)
        source->setRightAutoscale(false);
    else
        source->setHorizontalAutoscale(false);
}

void PlotNavigator::zoom(int axes, double factor, const QPointF &at)
{
    PlotScales wanted = scales();
    for (int axis = 0; axis < kAxes; ++axis)
        wanted[axis] = ScaleMath::zoomed(wanted[axis], factor, partOf(axis, at));
    show(wanted, axes);
}

void PlotNavigator::drag(int axes, const PlotScales &start, const QPointF &from, const QPointF &to)
{
    PlotScales wanted = start;
    for (int axis = 0; axis < kAxes; ++axis)
        wanted[axis] = ScaleMath::panned(start[axis], partOf(axis, to) - partOf(axis, from));
    show(wanted, axes);
}

void PlotNavigator::pinch(int axes, const PlotScales &start, const QPointF from[2],
                          const QPointF to[2])
{
    PlotScales wanted = start;
    for (int axis = 0; axis < kAxes; ++axis) {
        const double before = along(axis, from[1]) - along(axis, from[0]);
        const double now = along(axis, to[1]) - along(axis, to[0]);
        const bool isSpread = std::fabs(before) >= kLeastFingerDistance
            && std::fabs(now) >= kLeastFingerDistance && (before > 0) == (now > 0);
        const ScaleMath::Fingers first = {partOf(axis, from[0]), partOf(axis, from[1])};
        const ScaleMath::Fingers second = {partOf(axis, to[0]), partOf(axis, to[1])};
        wanted[axis] = ScaleMath::pinched(start[axis], first, second, isSpread);
    }
    show(wanted, axes);
}

void PlotNavigator::zoomTo(int axes, const QRectF &area)
{
    PlotScales wanted = scales();
    for (int axis = 0; axis < kAxes; ++axis)
        wanted[axis] = ScaleMath::cropped(wanted[axis], partOf(axis, area.topLeft()),
                                          partOf(axis, area.bottomRight()));
    beginStep();
    show(wanted, axes);
}

void PlotNavigator::zoomBy(int axes, double factor)
{
    beginStep(Keys);
    zoom(axes, factor, canvas().center());
}

void PlotNavigator::panBy(int axes, double x, double y)
{
    PlotScales wanted = scales();
    for (int axis = 0; axis < kAxes; ++axis)
        wanted[axis] = ScaleMath::panned(wanted[axis], axis == QwtPlot::xBottom ? -x : -y);
    const int moved = (x != 0 ? Bottom : NoAxes) | (y != 0 ? Vertical : NoAxes);
    beginStep(Keys);
    show(wanted, axes & moved);
}

void PlotNavigator::autoscale(int axes)
{
    beginStep();
    show(PlotScales(), axes);
}

void PlotNavigator::back()
{
    if (canGoBack())
        change(m_history.back(scales()), AllAxes);
    m_isStepRecorded = false;
}

void PlotNavigator::forward()
{
    if (canGoForward())
        change(m_history.forward(scales()), AllAxes);
    m_isStepRecorded = false;
}

void PlotNavigator::reset()
{
    m_history.clear();
    m_isStepRecorded = false;
    if (m_view)
        change(PlotScales(), AllAxes);
}

// Typed limits

QString PlotNavigator::limitText(int axis, bool isUpper) const
{
    if (!m_view)
        return QString();
    const AxisRange range = scales()[axisOf(axis)];
    const double bound = isUpper ? range.max : range.min;
    if (axis == Bottom && isClockTime())
        return ClockTime::text(m_clockBase + bound);
    // As many digits as it takes to tell neighbouring pixels apart.
    const double digits
        = std::log10(qMax(std::fabs(range.min), std::fabs(range.max)) / range.span());
    return QString::number(bound, 'g', qBound(6, 6 + int(digits), 17));
}

bool PlotNavigator::isAutoscaled(int axis) const
{
    return !m_view || plot()->axisAutoScale(axisOf(axis));
}

double PlotNavigator::value(int axis, const QString &text, bool *ok) const
{
    if (axis != Bottom || !isClockTime())
        return text.trimmed().toDouble(ok);
    return ClockTime::seconds(text, ok) - m_clockBase;
}

QString PlotNavigator::setLimits(int axis, const QString &lower, const QString &upper)
{
    bool isNumber[2] = {false, false};
    AxisRange range;
    range.isAuto = false;
    range.min = value(axis, lower, &isNumber[0]);
    range.max = value(axis, upper, &isNumber[1]);
    for (int i = 0; i < 2; ++i) {
        const QString text = i == 0 ? lower : upper;
        if (isNumber[i])
            continue;
        if (text.trimmed().isEmpty())
            return tr("Both limits are needed.");
        return (axis == Bottom && isClockTime() ? tr("\"%1\" is no clock time such as 13:05:00.")
                                                : tr("\"%1\" is no number such as -2.5."))
            .arg(text);
    }
    if (!(range.min < range.max))
        return tr("The lower limit must be less than the upper one.");
    if (!ScaleMath::isUsable(range.min, range.max))
        return tr("The limits are too close to each other, or too large.");
    PlotScales wanted = scales();
    wanted[axisOf(axis)] = range;
    beginStep();
    show(wanted, axis);
    return QString();
}

// Positions

double PlotNavigator::toPixelX(double x) const
{
    return plot()->canvasMap(QwtPlot::xBottom).transform(x) + canvas().left();
}

double PlotNavigator::toPixelY(int axis, double y) const
{
    return plot()->canvasMap(axis).transform(y) + canvas().top();
}

double PlotNavigator::toX(double pixel) const
{
    return plot()->canvasMap(QwtPlot::xBottom).invTransform(pixel - canvas().left());
}

double PlotNavigator::toY(int axis, double pixel) const
{
    return plot()->canvasMap(axis).invTransform(pixel - canvas().top());
}

// What is shown

/** The variables of each axis, by the plot widget's numbers. */
QList<QStringList> PlotNavigator::content() const
{
    const LogDataSourceItem *source = m_view->dataSource();
    if (!source)
        return {QStringList(), QStringList(), QStringList()};
    return {source->YLeftData().keys(), source->YRightData().keys(),
            QStringList(source->xData().first)};
}

/**
 * An axis that shows something else altogether follows the data again, for its bounds mean nothing
 * any more. Whoever changes the variables and then sets a scale of its own is left to do so first.
 */
void PlotNavigator::followContent()
{
    LogDataSourceItem *source = m_view->dataSource();
    m_clockBase = source ? PlottedData(source).xClockBase() : -1;
    const QList<QStringList> before = m_content;
    const QList<QStringList> now = content();
    // An axis is empty in passing, while another choice of variables is made.
    m_content = before.isEmpty() ? now : before;
    for (int axis = 0; axis < kAxes; ++axis) {
        if (!now.at(axis).isEmpty())
            m_content[axis] = now.at(axis);
    }
    if (before != m_content && !before.isEmpty()) {
        const PlotScales seen = scales();
        QTimer::singleShot(0, this, [this, before, seen] { releaseChanged(before, seen); });
    }
    emit scalesChanged();
}

void PlotNavigator::releaseChanged(const QList<QStringList> &before, const PlotScales &seen)
{
    if (!m_view)
        return;
    const PlotScales current = scales();
    PlotScales wanted = current;
    for (int axis = 0; axis < kAxes; ++axis) {
        const QStringList &now = m_content.at(axis);
        const bool stays = before.at(axis).isEmpty()
            || std::any_of(now.begin(), now.end(), [&before, axis](const QString &name) {
                               return before.at(axis).contains(name);
                           });
        if (!stays && current[axis] == seen[axis])
            wanted[axis] = AxisRange();
    }
    if (!(wanted == current))
        change(wanted, AllAxes);
}

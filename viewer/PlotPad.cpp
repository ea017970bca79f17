#include "viewer/PlotPad.h"

#include <QCursor>
#include <QGuiApplication>
#include <QQuickWindow>
#include <QStyleHints>

#include <cmath>

namespace
{

// How far a pointer or a finger strays while it taps.
const double kTapDistance = 8;
// Less than this along one side is no rectangle, but a stretch of the other side's axis.
const double kLeastBandSide = 10;
// A notch of the wheel, an eighth of whose turn counts 120.
const double kWheelStep = 120;
const double kZoomPerStep = 0.8;
const double kPanPerStep = 0.1;
// As wide as what a finger hits elsewhere.
const double kHandleReach = 22;
// Two fingers are two taps only near each other.
const double kDoubleTapDistance = 40;

double distance(const QPointF &a, const QPointF &b)
{
    return std::hypot(a.x() - b.x(), a.y() - b.y());
}

} // namespace

PlotPad::PlotPad(QQuickItem *parent)
    : QQuickItem(parent)
    , m_zoomMode(false)
    , m_action(Nothing)
    , m_drawsBand(false)
    , m_isRight(false)
    , m_axes(PlotNavigator::NoAxes)
    , m_handle(-1)
    , m_handleX(0)
    , m_hasPointer(false)
{
    setAcceptedMouseButtons(Qt::LeftButton | Qt::RightButton);
    setAcceptHoverEvents(true);
    setAcceptTouchEvents(true);
}

void PlotPad::setNavigator(PlotNavigator *navigator)
{
    if (navigator == m_navigator)
        return;
    m_navigator = navigator;
    emit navigatorChanged();
}

void PlotPad::setZoomMode(bool on)
{
    if (on == m_zoomMode)
        return;
    m_zoomMode = on;
    emit zoomModeChanged();
}

void PlotPad::setBand(const QRectF &band)
{
    if (band == m_band)
        return;
    m_band = band;
    emit bandChanged();
}

void PlotPad::setHandles(const QVariantList &handles)
{
    if (handles == m_handles)
        return;
    m_handles = handles;
    emit handlesChanged();
}

void PlotPad::cancel()
{
    finish();
}

void PlotPad::finish()
{
    m_action = Nothing;
    setBand(QRectF());
}

// A press, however it is made

void PlotPad::press(const QPointF &position, bool drawsBand)
{
    if (!m_navigator)
        return;
    m_action = Undecided;
    m_drawsBand = drawsBand;
    m_start = position;
    m_axes = m_navigator->axesAt(position);
    m_startScales = m_navigator->scales();
    m_handle = drawsBand ? -1 : handleAt(position);
    m_handleX = m_handles.value(m_handle).toDouble();
    emit touched();
}

void PlotPad::move(const QPointF &position)
{
    if (m_action == Undecided && distance(position, m_start) > kTapDistance)
        decide(position);
    if (m_action == Handle)
        dragHandle(position);
    else if (m_action == Pan)
        m_navigator->drag(m_axes, m_startScales, m_start, position);
    else if (m_action == Band)
        setBand(bandTo(position));
}

/** Up and down the view moves, even where a handle is. */
void PlotPad::decide(const QPointF &position)
{
    const QPointF way = position - m_start;
    if (m_handle >= 0 && std::fabs(way.x()) >= std::fabs(way.y())) {
        m_action = Handle;
        return;
    }
    m_action = m_drawsBand ? Band : Pan;
    m_navigator->beginStep();
}

void PlotPad::release(const QPointF &position)
{
    const Action action = m_action;
    if (action == Band)
        zoomToBand();
    finish();
    if (action == Undecided)
        tap(position);
}

void PlotPad::tap(const QPointF &position)
{
    if (m_navigator->canvas().contains(position))
        emit tapped(position);
}

void PlotPad::doubleTap(const QPointF &position)
{
    finish();
    m_navigator->autoscale(m_navigator->axesAt(position));
}

/** On a scale, the rectangle is as high, or as wide, as the canvas. */
QRectF PlotPad::bandTo(const QPointF &position) const
{
    const QRectF canvas = m_navigator->canvas();
    const auto inside = [&canvas](const QPointF &point) {
        return QPointF(qBound(canvas.left(), point.x(), canvas.right()),
                       qBound(canvas.top(), point.y(), canvas.bottom()));
    };
    QRectF band = QRectF(inside(m_start), inside(position)).normalized();
    const bool spansHeight = !(m_axes & PlotNavigator::Vertical) || band.height() < kLeastBandSide;
    const bool spansWidth = !(m_axes & PlotNavigator::Bottom) || band.width() < kLeastBandSide;
    if (spansHeight == spansWidth)
        return band;
    if (spansHeight)
        band = QRectF(band.left(), canvas.top(), band.width(), canvas.height());
    else
        band = QRectF(canvas.left(), band.top(), canvas.width(), band.height());
    return band;
}

/** The axes that the rectangle cuts. */
int PlotPad::bandAxes() const
{
    const QRectF canvas = m_navigator->canvas();
    int axes = m_axes;
    if (m_band.height() >= canvas.height() || m_band.height() < kLeastBandSide)
        axes &= ~PlotNavigator::Vertical;
    if (m_band.width() >= canvas.width() || m_band.width() < kLeastBandSide)
        axes &= ~PlotNavigator::Bottom;
    return axes;
}

void PlotPad::zoomToBand()
{
    m_navigator->zoomTo(bandAxes(), m_band);
    setZoomMode(false);
}

// Handles

/** The nearest one in reach; -1 when there is none. */
int PlotPad::handleAt(const QPointF &position) const
{
    const QRectF canvas = m_navigator->canvas();
    if (!canvas.contains(position))
        return -1;
    int nearest = -1;
    double least = kHandleReach;
    for (int i = 0; i < m_handles.size(); ++i) {
        const double x = m_handles.at(i).toDouble();
        const double away = std::fabs(x - position.x());
        if (x >= canvas.left() && x <= canvas.right() && away <= least) {
            nearest = i;
            least = away;
        }
    }
    return nearest;
}

void PlotPad::dragHandle(const QPointF &position)
{
    const QRectF canvas = m_navigator->canvas();
    const QPointF at(m_handleX + position.x() - m_start.x(), position.y());
    emit handleDragged(m_handle,
                       QPointF(qBound(canvas.left(), at.x(), canvas.right()),
                               qBound(canvas.top(), at.y(), canvas.bottom())));
}

// Mouse

void PlotPad::mousePressEvent(QMouseEvent *event)
{
    m_isRight = event->button() == Qt::RightButton;
    press(event->localPos(),
          m_isRight || m_zoomMode || event->modifiers().testFlag(Qt::ShiftModifier));
}

void PlotPad::mouseMoveEvent(QMouseEvent *event)
{
    move(event->localPos());
}

/** A right click is the way back of those who drew the rectangle with that button. */
void PlotPad::mouseReleaseEvent(QMouseEvent *event)
{
    if (m_action == Undecided && m_isRight) {
        finish();
        m_navigator->back();
    } else if (m_navigator) {
        release(event->localPos());
    }
}

void PlotPad::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (m_navigator && event->button() == Qt::LeftButton)
        doubleTap(event->localPos());
}

void PlotPad::mouseUngrabEvent()
{
    finish();
}

void PlotPad::itemChange(ItemChange change, const ItemChangeData &data)
{
    if (change == ItemVisibleHasChanged)
        m_hasPointer = false;
    else if (change == ItemSceneChange && data.window)
        data.window->installEventFilter(this);
    QQuickItem::itemChange(change, data);
}

bool PlotPad::eventFilter(QObject *watched, QEvent *event)
{
    m_hasPointer = m_hasPointer || event->type() == QEvent::MouseMove;
    return QQuickItem::eventFilter(watched, event);
}

/**
 * The window tells a pointer that rests, too, whenever something around it moves or comes up, as
 * the plot does when it takes the table's place.
 */
void PlotPad::hoverMoveEvent(QHoverEvent *event)
{
    if (!m_navigator || !m_hasPointer || event->posF() == m_lastHover)
        return;
    m_lastHover = event->posF();
    if (handleAt(m_lastHover) >= 0)
        setCursor(Qt::SizeHorCursor);
    else
        unsetCursor();
    if (m_navigator->canvas().contains(m_lastHover))
        emit hovered(m_lastHover);
}

void PlotPad::wheelEvent(QWheelEvent *event)
{
    if (!m_navigator)
        return;
    int axes = m_navigator->axesAt(event->position());
    if (event->modifiers() & Qt::ControlModifier)
        axes = PlotNavigator::Bottom;
    else if (event->modifiers() & Qt::ShiftModifier)
        axes = PlotNavigator::Vertical;
    const QPointF steps = QPointF(event->angleDelta()) / kWheelStep;
    m_navigator->beginStep(PlotNavigator::Wheel);
    if (steps.y() != 0)
        m_navigator->zoom(axes, std::pow(kZoomPerStep, steps.y()), event->position());
    else
        m_navigator->drag(PlotNavigator::Bottom, m_navigator->scales(), QPointF(),
                          QPointF(steps.x() * kPanPerStep * m_navigator->canvas().width(), 0));
    event->accept();
}

// Fingers

void PlotPad::startPinch(const QList<QTouchEvent::TouchPoint> &points)
{
    if (m_action != Pan)
        m_navigator->beginStep();
    m_action = Pinch;
    setBand(QRectF());
    m_startScales = m_navigator->scales();
    for (int i = 0; i < 2; ++i)
        m_pinchStart[i] = points.at(i).pos();
    const int axes[] = {m_navigator->axesAt(m_pinchStart[0]), m_navigator->axesAt(m_pinchStart[1])};
    m_axes = axes[0] == axes[1] ? axes[0] : m_navigator->axes();
}

void PlotPad::touchEvent(QTouchEvent *event)
{
    QList<QTouchEvent::TouchPoint> down;
    for (const QTouchEvent::TouchPoint &point : event->touchPoints()) {
        if (point.state() != Qt::TouchPointReleased)
            down.append(point);
    }
    event->accept();
    if (!m_navigator)
        return;
    if (event->type() == QEvent::TouchCancel) {
        finish();
    } else if (down.size() == 1 && event->touchPointStates() & Qt::TouchPointPressed) {
        press(down.first().pos(), m_zoomMode);
    } else if (down.size() == 2 && m_action != Pinch) {
        startPinch(down);
    } else if (down.size() == 2) {
        const QPointF now[] = {down.at(0).pos(), down.at(1).pos()};
        m_navigator->pinch(m_axes, m_startScales, m_pinchStart, now);
    } else if (down.size() == 1 && m_action != Pinch) {
        move(down.first().pos());
    } else if (down.isEmpty()) {
        lift(event->touchPoints().first().pos());
    }
}

/** The last finger went up. */
void PlotPad::lift(const QPointF &position)
{
    const int interval = QGuiApplication::styleHints()->mouseDoubleClickInterval();
    const bool isTap = m_action == Undecided;
    const bool isSecond = isTap && m_lastTap.isValid() && m_lastTap.elapsed() < interval
        && distance(position, m_lastTapPosition) < kDoubleTapDistance;
    m_lastTap.invalidate();
    if (isSecond) {
        doubleTap(position);
        return;
    }
    release(position);
    if (isTap)
        m_lastTap.start();
    m_lastTapPosition = position;
}

void PlotPad::touchUngrabEvent()
{
    finish();
}

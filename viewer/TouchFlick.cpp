#include "viewer/TouchFlick.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTimerEvent>

namespace
{

const int kTick = 16; // ms
const qint64 kStill = 80; // ms after which a finger that does not move has stopped
const double kFastest = 8; // pixels per ms
const double kSlowest = 0.03;
const double kFriction = 0.94; // of the speed, each tick
const double kSmoothing = 0.6; // of the newest measure

bool isOfMouse(const QEvent *event)
{
    return event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonRelease
        || event->type() == QEvent::MouseMove || event->type() == QEvent::MouseButtonDblClick;
}

double limited(double speed)
{
    return qBound(-kFastest, speed, kFastest);
}

} // namespace

void TouchFlick::activate(QAbstractItemView *view)
{
    if (!view->findChild<TouchFlick *>(QString(), Qt::FindDirectChildrenOnly))
        new TouchFlick(view);
}

TouchFlick::TouchFlick(QAbstractItemView *view)
    : FlickCharm(view)
    , m_view(view)
    , m_replays(0)
    , m_isDown(false)
    , m_isDrag(false)
{
    view->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    view->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    activateOn(view);
}

/** The window makes events of a mouse from those of a finger, and says so. */
bool TouchFlick::eventFilter(QObject *watched, QEvent *event)
{
    // The kind of event goes first: a view on its way out is none any more, and has no mouse.
    if (!isOfMouse(event) || !m_view || watched != m_view->viewport())
        return false;
    auto *mouse = static_cast<QMouseEvent *>(event);
    if (isReplay(mouse))
        return FlickCharm::eventFilter(watched, event);
    if (mouse->source() == Qt::MouseEventNotSynthesized)
        return false;
    return handle(mouse);
}

/** What the charm hands back comes without a source, and before anything else that does. */
bool TouchFlick::isReplay(const QMouseEvent *event)
{
    if (m_replays == 0 || event->source() != Qt::MouseEventNotSynthesized
        || event->type() == QEvent::MouseMove)
        return false;
    --m_replays;
    return true;
}

bool TouchFlick::handle(QMouseEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        return press(event);
    case QEvent::MouseButtonDblClick:
        return pressAgain(event);
    case QEvent::MouseMove:
        return move(event);
    default:
        return release(event);
    }
}

bool TouchFlick::press(QMouseEvent *event)
{
    // A finger that stops the rows does just that.
    const bool wasRunning = m_runOn.isActive();
    m_runOn.stop();
    m_isDown = true;
    m_isDrag = wasRunning;
    m_pressed = m_last = event->pos();
    m_offset = scrolled();
    m_speed = QPointF();
    m_clock.start();
    return wasRunning || FlickCharm::eventFilter(m_view->viewport(), event);
}

/** A second, quick tap is a tap like the first one; some come with a press before, some without. */
bool TouchFlick::pressAgain(QMouseEvent *event)
{
    if (m_isDown)
        return true;
    QMouseEvent copy(QEvent::MouseButtonPress, event->localPos(), event->windowPos(),
                     event->screenPos(), event->button(), event->buttons(), event->modifiers(),
                     event->source());
    return press(&copy);
}

bool TouchFlick::move(QMouseEvent *event)
{
    if (!m_isDown)
        return false;
    const QPoint way = event->pos() - m_pressed;
    if (!m_isDrag && way.manhattanLength() < QApplication::startDragDistance())
        return true;
    // Told more than once, the charm would scroll as well.
    if (!m_isDrag)
        FlickCharm::eventFilter(m_view->viewport(), event);
    m_isDrag = true;
    measureSpeed(event->pos());
    scrollTo(m_offset - way);
    return true;
}

void TouchFlick::measureSpeed(const QPoint &position)
{
    const double elapsed = qMax<qint64>(1, m_clock.restart());
    m_speed = kSmoothing * QPointF(m_last - position) / elapsed + (1 - kSmoothing) * m_speed;
    m_speed = QPointF(limited(m_speed.x()), limited(m_speed.y()));
    m_last = position;
}

bool TouchFlick::release(QMouseEvent *event)
{
    if (!m_isDown)
        return false;
    m_isDown = false;
    if (!m_isDrag) {
        m_replays = 2;
        return FlickCharm::eventFilter(m_view->viewport(), event);
    }
    FlickCharm::eventFilter(m_view->viewport(), event);
    endGesture();
    m_offset = scrolled();
    if (m_clock.elapsed() < kStill && m_speed.manhattanLength() > kSlowest)
        m_runOn.start(kTick, this);
    return true;
}

/** The charm waits for the next touch to end a drag, which would cost the user a tap. */
void TouchFlick::endGesture()
{
    QTimerEvent tick(0);
    FlickCharm::timerEvent(&tick);
}

void TouchFlick::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != m_runOn.timerId() || !m_view)
        return FlickCharm::timerEvent(event);
    m_offset += m_speed * kTick;
    m_speed *= kFriction;
    scrollTo(m_offset);
    if (m_speed.manhattanLength() < kSlowest)
        m_runOn.stop();
}

QPointF TouchFlick::scrolled() const
{
    return QPointF(m_view->horizontalScrollBar()->value(), m_view->verticalScrollBar()->value());
}

void TouchFlick::scrollTo(const QPointF &offset)
{
    m_view->horizontalScrollBar()->setValue(qRound(offset.x()));
    if (m_view)
        m_view->verticalScrollBar()->setValue(qRound(offset.y()));
}

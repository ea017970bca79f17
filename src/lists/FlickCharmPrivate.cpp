#include "lists/FlickCharmPrivate.h"

#include <QCoreApplication>
#include <QCursor>
#include <QMouseEvent>
#include <QWidget>

namespace
{

const int kFastest = 64;

/** A speed within limits, and one less than it was. */
int decelerated(int speed)
{
    const int limited = qBound(-kFastest, speed, kFastest);
    if (limited == 0)
        return 0;
    return limited > 0 ? limited - 1 : limited + 1;
}

QPoint decelerated(const QPoint &speed)
{
    return QPoint(decelerated(speed.x()), decelerated(speed.y()));
}

bool isPress(const QMouseEvent *event)
{
    return event->type() == QEvent::MouseButtonPress;
}

bool isRelease(const QMouseEvent *event)
{
    return event->type() == QEvent::MouseButtonRelease;
}

bool isMove(const QMouseEvent *event)
{
    return event->type() == QEvent::MouseMove;
}

} // namespace

FlickCharmPrivate::~FlickCharmPrivate()
{
    qDeleteAll(flickData);
}

void FlickCharmPrivate::add(QWidget *viewport, QWidget *area)
{
    remove(viewport);
    flickData.insert(viewport, new FlickData(area));
    connect(viewport, SIGNAL(destroyed(QObject*)), SLOT(forget(QObject*)));
}

void FlickCharmPrivate::remove(QWidget *viewport)
{
    disconnect(viewport, SIGNAL(destroyed(QObject*)), this, SLOT(forget(QObject*)));
    delete flickData.take(viewport);
}

void FlickCharmPrivate::forget(QObject *viewport)
{
    // By now the viewport is no widget any more, so it is looked for rather than cast to one.
    foreach (QWidget *key, flickData.keys()) {
        if (key == viewport)
            delete flickData.take(key);
    }
}

bool FlickCharmPrivate::handle(QObject *viewport, QMouseEvent *event, FlickData *data)
{
    switch (data->state) {
    case FlickData::Steady:
        return handleSteady(event, data);
    case FlickData::Pressed:
        return handlePressed(viewport, event, data);
    case FlickData::ManualScroll:
        return handleManualScroll(event, data);
    case FlickData::AutoScroll:
        return handleAutoScroll(event, data);
    case FlickData::Stop:
        return handleStop(event, data);
    }
    return false;
}

bool FlickCharmPrivate::handleSteady(QMouseEvent *event, FlickData *data)
{
    if (!isPress(event) || event->button() != Qt::LeftButton)
        return false;
    data->start(event->pos());
    data->state = FlickData::Pressed;
    return true;
}

bool FlickCharmPrivate::handlePressed(QObject *viewport, QMouseEvent *event, FlickData *data)
{
    if (isRelease(event)) {
        data->state = FlickData::Steady;
        replayTap(viewport, event, data);
        return true;
    }
    if (!isMove(event))
        return false;
    data->dragPos = QCursor::pos();
    data->state = FlickData::ManualScroll;
    return true;
}

bool FlickCharmPrivate::handleManualScroll(QMouseEvent *event, FlickData *data)
{
    if (isMove(event)) {
        setScrollOffset(data->widget, data->offset - (event->pos() - data->pressPos), data);
        return true;
    }
    if (!isRelease(event))
        return false;
    data->state = FlickData::AutoScroll;
    return true;
}

bool FlickCharmPrivate::handleAutoScroll(QMouseEvent *event, FlickData *data)
{
    if (isPress(event)) {
        data->start(event->pos());
        data->state = FlickData::Stop;
        return true;
    }
    if (!isRelease(event))
        return false;
    data->speed = QPoint(0, 0);
    data->state = FlickData::Steady;
    return true;
}

bool FlickCharmPrivate::handleStop(QMouseEvent *event, FlickData *data)
{
    if (isRelease(event)) {
        data->state = FlickData::Steady;
        return true;
    }
    if (!isMove(event))
        return false;
    data->dragPos = QCursor::pos();
    data->state = FlickData::ManualScroll;
    return true;
}

void FlickCharmPrivate::replayTap(QObject *viewport, QMouseEvent *release, FlickData *data)
{
    const QPoint globalPressPos = release->globalPos() + data->pressPos - release->pos();
    QEvent *pressCopy = new QMouseEvent(QEvent::MouseButtonPress, data->pressPos, globalPressPos,
                                        Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QEvent *releaseCopy
        = new QMouseEvent(QEvent::MouseButtonRelease, release->pos(), release->globalPos(),
                          release->button(), release->buttons(), release->modifiers());
    data->ignored << pressCopy << releaseCopy;
    QCoreApplication::postEvent(viewport, pressCopy);
    QCoreApplication::postEvent(viewport, releaseCopy);
}

bool FlickCharmPrivate::tick(FlickData *data)
{
    if (data->state == FlickData::ManualScroll) {
        const QPoint cursor = QCursor::pos();
        data->speed = cursor - data->dragPos;
        data->dragPos = cursor;
        return true;
    }
    if (data->state != FlickData::AutoScroll)
        return false;
    const QPoint speed = decelerated(data->speed);
    // Each tick goes on from where the area stands, by as much as a drag of that length would.
    data->start(data->pressPos);
    data->speed = speed;
    if (speed.isNull())
        data->state = FlickData::Steady;
    setScrollOffset(data->widget, data->offset - speed, data);
    return true;
}

#include "lists/FlickCharm.h"

#include "lists/FlickCharmPrivate.h"

#include <QAbstractScrollArea>
#include <QDebug>
#include <QMouseEvent>
#include <QPointer>

namespace
{

bool isPressReleaseOrMove(const QEvent *event)
{
    return event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonRelease
        || event->type() == QEvent::MouseMove;
}

} // namespace

FlickCharm::FlickCharm(QObject *parent)
    : QObject(parent)
    , d(new FlickCharmPrivate)
{
}

FlickCharm::~FlickCharm()
{
    d->ticker.stop();
}

void FlickCharm::activateOn(QWidget *widget)
{
    QAbstractScrollArea *area = qobject_cast<QAbstractScrollArea *>(widget);
    if (!area) {
        qDebug() << "FlickCharm only works on QAbstractScrollArea (and derived classes)";
        qDebug() << "or QWebView (and derived classes)";
        return;
    }
    area->viewport()->installEventFilter(this);
    area->installEventFilter(this);
    d->add(area->viewport(), area);
}

void FlickCharm::deactivateFrom(QWidget *widget)
{
    QAbstractScrollArea *area = qobject_cast<QAbstractScrollArea *>(widget);
    if (!area)
        return;
    area->viewport()->removeEventFilter(this);
    area->removeEventFilter(this);
    d->remove(area->viewport());
}

bool FlickCharm::eventFilter(QObject *object, QEvent *event)
{
    if (!object->isWidgetType() || !isPressReleaseOrMove(event))
        return false;
    QMouseEvent *mouseEvent = static_cast<QMouseEvent *>(event);
    FlickData *data = d->flickData.value(static_cast<QWidget *>(object));
    if (mouseEvent->modifiers() != Qt::NoModifier || !data)
        return false;
    if (data->ignored.removeAll(event))
        return false;
    return d->handle(object, mouseEvent, data);
}

void FlickCharm::timerEvent(QTimerEvent *event)
{
    bool isActive = false;
    const QPointer<FlickCharm> self(this);
    // An area that scrolls may make another one go away, so each is looked up again; or this charm.
    foreach (QWidget *viewport, d->flickData.keys()) {
        if (FlickData *data = d->flickData.value(viewport))
            isActive = d->tick(data) || isActive;
        if (!self)
            return;
    }
    if (!isActive)
        d->ticker.stop();
    QObject::timerEvent(event);
}

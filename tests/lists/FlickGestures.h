#ifndef DATALOG_TESTS_LISTS_FLICKGESTURES_H
#define DATALOG_TESTS_LISTS_FLICKGESTURES_H

// Scroll areas, and fingers on them, for the tests of the flick charm.

#include "lists/FlickCharm.h"
#include "support/TestCompat.h"

#include <QApplication>
#include <QListWidget>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTimerEvent>

/** Writes down the mouse events that reach a viewport, as "press 5,7 left". */
class EventRecorder : public QObject
{
    Q_OBJECT

public:
    explicit EventRecorder(QObject *watched) { watched->installEventFilter(this); }

    QStringList taken()
    {
        const QStringList events = m_events;
        m_events.clear();
        return events;
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        const bool isMouse = event->type() == QEvent::MouseButtonPress
            || event->type() == QEvent::MouseButtonRelease || event->type() == QEvent::MouseMove
            || event->type() == QEvent::MouseButtonDblClick;
        if (isMouse)
            m_events << text(static_cast<QMouseEvent *>(event));
        return false;
    }

private:
    static const char *nameOf(QEvent::Type type)
    {
        if (type == QEvent::MouseMove)
            return "move";
        if (type == QEvent::MouseButtonDblClick)
            return "double";
        return type == QEvent::MouseButtonPress ? "press" : "release";
    }
    static QString text(const QMouseEvent *event)
    {
        return QString::fromLatin1("%1 %2,%3 %4")
            .arg(QLatin1String(nameOf(event->type())))
            .arg(event->pos().x())
            .arg(event->pos().y())
            .arg(int(event->button()));
    }

    QStringList m_events;
};

/** An area whose bars have the range that a test says, and nothing in it. */
class BareArea : public QAbstractScrollArea
{
    Q_OBJECT

public:
    BareArea(int acrossMaximum, int downMaximum)
    {
        horizontalScrollBar()->setRange(0, acrossMaximum);
        verticalScrollBar()->setRange(0, downMaximum);
    }
    int across() const { return horizontalScrollBar()->value(); }
    int down() const { return verticalScrollBar()->value(); }
    void scrollTo(int across, int down)
    {
        horizontalScrollBar()->setValue(across);
        verticalScrollBar()->setValue(down);
    }
};

/** An area that a charm is active on, and what gets past the charm. */
class CharmedArea : public BareArea
{
    Q_OBJECT

public:
    explicit CharmedArea(int acrossMaximum = 100, int downMaximum = 100)
        : BareArea(acrossMaximum, downMaximum)
        , m_recorder(viewport())
    {
        m_charm.activateOn(this);
    }
    FlickCharm *charm() { return &m_charm; }
    QStringList taken() { return m_recorder.taken(); }

private:
    EventRecorder m_recorder;
    FlickCharm m_charm;
};

inline void send(QWidget *viewport, QEvent::Type type, const QPoint &position,
                 Qt::MouseButton button = Qt::LeftButton,
                 Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    const Qt::MouseButton caused = type == QEvent::MouseMove ? Qt::NoButton : button;
    const Qt::MouseButtons held
        = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::MouseButtons(button);
    QMouseEvent event(type, position, viewport->mapToGlobal(position), caused, held, modifiers);
    QApplication::sendEvent(viewport, &event);
}

inline void press(QAbstractScrollArea *area, int x, int y)
{
    send(area->viewport(), QEvent::MouseButtonPress, QPoint(x, y));
}

inline void move(QAbstractScrollArea *area, int x, int y)
{
    send(area->viewport(), QEvent::MouseMove, QPoint(x, y));
}

/** Lets go, and lets the charm's posted events arrive. */
inline void release(QAbstractScrollArea *area, int x, int y)
{
    send(area->viewport(), QEvent::MouseButtonRelease, QPoint(x, y));
    QCoreApplication::processEvents();
}

inline void drag(QAbstractScrollArea *area, const QPoint &from, const QPoint &to)
{
    press(area, from.x(), from.y());
    move(area, from.x(), from.y());
    move(area, to.x(), to.y());
    release(area, to.x(), to.y());
}

inline void tick(FlickCharm *charm)
{
    QTimerEvent event(1);
    QCoreApplication::sendEvent(charm, &event);
}

inline void fill(QListWidget *list)
{
    for (int i = 0; i < 200; ++i)
        list->addItem(QString::number(i));
    list->resize(200, 150);
    list->show();
    QCoreApplication::processEvents();
}

inline QStringList tapAt(int x, int y)
{
    return QStringList() << QString::fromLatin1("press %1,%2 1").arg(x).arg(y)
                         << QString::fromLatin1("release %1,%2 1").arg(x).arg(y);
}

#endif

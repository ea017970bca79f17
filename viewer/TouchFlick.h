#ifndef DATALOG_VIEWER_TOUCHFLICK_H
#define DATALOG_VIEWER_TOUCHFLICK_H

#include "lists/FlickCharm.h"

#include <QBasicTimer>
#include <QElapsedTimer>
#include <QPointF>
#include <QPointer>

class QAbstractItemView;
class QMouseEvent;

/**
 * Lets a finger scroll one list or table by dragging its rows, and leaves the mouse alone, which
 * has scroll bars and a wheel.
 *
 * The charm tells drags from taps and hands taps back. Its own steps are a share of what there is
 * to scroll, so that a finger's way moves a short list by all its rows and a long one by none; here
 * the rows stay under the finger, and run on when it lifts while it moves. A finger that trembles
 * still taps, and a tap after a drag is a tap.
 */
class TouchFlick : public FlickCharm
{
    Q_OBJECT

public:
    /** Has @p view scrolled by fingers from now on, and by pixels; again, it changes nothing. */
    static void activate(QAbstractItemView *view);

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    explicit TouchFlick(QAbstractItemView *view);
    bool isReplay(const QMouseEvent *event);
    bool handle(QMouseEvent *event);
    bool press(QMouseEvent *event);
    bool pressAgain(QMouseEvent *event);
    bool move(QMouseEvent *event);
    bool release(QMouseEvent *event);
    void endGesture();
    void measureSpeed(const QPoint &position);
    QPointF scrolled() const;
    void scrollTo(const QPointF &offset);

    QPointer<QAbstractItemView> m_view;
    QBasicTimer m_runOn;
    QElapsedTimer m_clock;
    QPoint m_pressed; ///< where the finger came down
    QPoint m_last; ///< where it was when the speed was measured
    QPointF m_offset; ///< of the view: when the finger came down, then while it runs on
    QPointF m_speed; ///< pixels per millisecond
    int m_replays; ///< events of a tap handed back that are still to come
    bool m_isDown;
    bool m_isDrag;
};

#endif

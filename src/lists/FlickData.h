#ifndef DATALOG_LISTS_FLICKDATA_H
#define DATALOG_LISTS_FLICKDATA_H

#include <QList>
#include <QPoint>

class QEvent;
class QWidget;

/** How far the gesture on one scroll area has come. */
struct FlickData {
    enum State {
        Steady, ///< no gesture
        Pressed, ///< the finger is down and has not moved: a tap, so far
        ManualScroll, ///< the area follows the finger
        AutoScroll, ///< the finger has left a dragged area
        Stop ///< the finger is down again on an area that was dragged
    };

    explicit FlickData(QWidget *area);

    /** Makes a gesture start here, at the area's present scroll offset and with nothing applied. */
    void start(const QPoint &position);

    State state;
    QWidget *widget; ///< the scroll area
    QPoint pressPos; ///< where the gesture began, in viewport coordinates
    QPoint offset; ///< scroll offset at that time
    QPoint dragPos; ///< last global cursor position of the drag
    QPoint speed; ///< movement per tick
    QPoint appliedStep; ///< sum of the scroll-bar steps of this gesture
    QList<QEvent *> ignored; ///< posted by the charm itself, to be let through once
};

/** The values of @p widget's scroll bars; (0, 0) when it is no scroll area. */
QPoint scrollOffset(QWidget *widget);

/**
 * Moves the scroll bars of @p widget by what @p target, in units of drag, asks for beyond the
 * gesture's steps so far. Each bar turns drag into steps by its own measure; a bar without a range
 * stays where it is. Anything but a scroll area is left alone.
 */
void setScrollOffset(QWidget *widget, const QPoint &target, FlickData *data);

#endif

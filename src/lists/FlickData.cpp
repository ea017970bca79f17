#include "lists/FlickData.h"

#include <QAbstractScrollArea>
#include <QPointer>
#include <QScrollBar>

#include <cmath>

namespace
{

// Drag per step, as a share of the bar's range. Rows are far more than columns: lists are scrolled
// quickly down and carefully across.
const float kAcrossFactor = 3.0f;
const float kDownFactor = 0.0175f;

/** @p drag in steps of a bar that takes @p dragPerStep for each. */
int stepsOf(int drag, float dragPerStep)
{
    return int(std::floor(float(drag) / dragPerStep));
}

/** Steps from the start of a gesture to where it is now. A bar without a range takes none. */
int stepsBetween(int start, int now, int maximum, float factor)
{
    if (maximum <= 0)
        return 0;
    const float dragPerStep = float(maximum) * factor;
    return stepsOf(now, dragPerStep) - stepsOf(start, dragPerStep);
}

} // namespace

FlickData::FlickData(QWidget *area)
    : state(Steady)
    , widget(area)
{
}

void FlickData::start(const QPoint &position)
{
    speed = QPoint(0, 0);
    appliedStep = QPoint(0, 0);
    pressPos = position;
    offset = scrollOffset(widget);
}

QPoint scrollOffset(QWidget *widget)
{
    const QAbstractScrollArea *area = qobject_cast<QAbstractScrollArea *>(widget);
    if (!area)
        return QPoint(0, 0);
    return QPoint(area->horizontalScrollBar()->value(), area->verticalScrollBar()->value());
}

void setScrollOffset(QWidget *widget, const QPoint &target, FlickData *data)
{
    const QAbstractScrollArea *area = qobject_cast<QAbstractScrollArea *>(widget);
    if (!area)
        return;
    QScrollBar *across = area->horizontalScrollBar();
    const QPointer<QScrollBar> down(area->verticalScrollBar());
    // The offset at the press is part of every target. Its own steps come off again, or a gesture
    // on an area that is not at its start would begin with a jump.
    const QPoint steps
        = QPoint(stepsBetween(data->offset.x(), target.x(), across->maximum(), kAcrossFactor),
                 stepsBetween(data->offset.y(), target.y(), down->maximum(), kDownFactor))
        - data->appliedStep;
    data->appliedStep += steps;
    across->setValue(across->value() + steps.x());
    // Whoever listens to the bar may have taken the area away, and the gesture with it.
    if (down)
        down->setValue(down->value() + steps.y());
}

#ifndef DATALOG_VIEWER_SCALEMATH_H
#define DATALOG_VIEWER_SCALEMATH_H

#include "viewer/PlotScales.h"

/** How a scale changes when a user zooms and pans. Places are parts of the way along the axis. */
namespace ScaleMath
{

/** Whether an axis can show it: numbers, ascending, and far enough apart to tell ticks apart. */
bool isUsable(double min, double max);

/** @p factor times as wide, with the value at @p part staying where it is. */
AxisRange zoomed(const AxisRange &range, double factor, double part);
/** As wide as before, with the content moved by @p part of the axis towards its upper end. */
AxisRange panned(const AxisRange &range, double part);
/** Just the stretch between two places, in any order. */
AxisRange cropped(const AxisRange &range, double part, double otherPart);

/** Where two fingers are along an axis. */
struct Fingers {
    double first;
    double second;
};

/**
 * The range in which what was under the fingers at @p start of the gesture is under them @p now.
 * With @p isSpread false they are too close to each other along this axis, and it just follows them
 * without a change of width.
 */
AxisRange pinched(const AxisRange &range, const Fingers &start, const Fingers &now, bool isSpread);

} // namespace ScaleMath

#endif

#include "viewer/ScaleMath.h"

#include <algorithm>
#include <cmath>

namespace
{

// Beyond this the distance of two bounds, and what is computed from it, runs out of range.
const double kLargest = 1e150;

// Neighbouring pixels and ticks need different numbers; a double has 15 to 17 digits.
const double kLeastRelativeSpan = 1e-11;
const double kLeastSpan = 1e-150;

AxisRange fixed(double min, double max)
{
    AxisRange range;
    range.isAuto = false;
    range.min = min;
    range.max = max;
    return range;
}

double centre(const ScaleMath::Fingers &fingers)
{
    return (fingers.first + fingers.second) / 2;
}

} // namespace

namespace ScaleMath
{

bool isUsable(double min, double max)
{
    const double farthest = std::max(std::fabs(min), std::fabs(max));
    if (!(farthest <= kLargest))
        return false; // NaN, too
    return max - min >= std::max(kLeastSpan, farthest * kLeastRelativeSpan);
}

AxisRange zoomed(const AxisRange &range, double factor, double part)
{
    const double value = range.at(part);
    const double span = range.span() * factor;
    return fixed(value - part * span, value + (1 - part) * span);
}

AxisRange panned(const AxisRange &range, double part)
{
    const double distance = part * range.span();
    return fixed(range.min - distance, range.max - distance);
}

AxisRange cropped(const AxisRange &range, double part, double otherPart)
{
    return fixed(range.at(std::min(part, otherPart)), range.at(std::max(part, otherPart)));
}

AxisRange pinched(const AxisRange &range, const Fingers &start, const Fingers &now, bool isSpread)
{
    if (!isSpread)
        return panned(range, centre(now) - centre(start));
    const double value = range.at(start.first);
    const double span = (range.at(start.second) - value) / (now.second - now.first);
    const double min = value - now.first * span;
    return fixed(min, min + span);
}

} // namespace ScaleMath

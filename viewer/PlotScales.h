#ifndef DATALOG_VIEWER_PLOTSCALES_H
#define DATALOG_VIEWER_PLOTSCALES_H

#include <array>

/** What one axis shows. */
struct AxisRange {
    bool isAuto = true; ///< follows the data; the bounds are what it shows now
    double min = 0;
    double max = 0;

    double span() const { return max - min; }
    /** The value at a part of the way from min, 0, to max, 1. */
    double at(double part) const { return min + part * span(); }
    bool operator==(const AxisRange &other) const
    {
        return isAuto == other.isAuto && (isAuto || (min == other.min && max == other.max));
    }
};

/** What all axes show, by the plot widget's own axis numbers: left, right, bottom. */
typedef std::array<AxisRange, 3> PlotScales;

#endif

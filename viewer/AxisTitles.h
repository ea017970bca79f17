#ifndef DATALOG_VIEWER_AXISTITLES_H
#define DATALOG_VIEWER_AXISTITLES_H

#include "viewer/PlotCurves.h"

class PlottedData;

/**
 * Titles that say in what an axis counts: the variables, each once, and their unit or units. The
 * plot's own titles have names only, joined as if one were taken from the other.
 */
namespace AxisTitles
{

/** Empty without a variable. Clock times have their unit at the ticks. */
QString horizontal(const PlottedData &data);
/** Of the @p curves, those of the vertical axis @p axis, as the plot numbers it. */
QString vertical(const PlottedData &data, const QList<PlotCurve> &curves, int axis);

} // namespace AxisTitles

#endif

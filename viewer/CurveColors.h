#ifndef DATALOG_VIEWER_CURVECOLORS_H
#define DATALOG_VIEWER_CURVECOLORS_H

#include "plot/LogViewerItem.h"

#include <QColor>

/**
 * Colours for the curves of an axis beyond the five that the plot has colours for. The plot draws
 * all of those in one dark grey; here some more of them can be told apart.
 */
namespace CurveColors
{
Q_NAMESPACE

/** How many curves of a vertical axis there are colours for: the plot's own, and all. */
enum Count { OfThePlot = 5, OfAnAxis = 12 };
Q_ENUM_NS(Count)

/** What the plot draws the others in. */
const QRgb Fallback = 0xFF333333;

/** Draws a curve, line and symbols, in @p color. */
void paint(QwtPlotCurve *curve, const QColor &color);
/**
 * The further colours of a vertical axis, as on a light page: violets and browns left, blues and
 * teals right.
 */
QStringList further(LogViewerItem::LogViewerAxis axis);
/**
 * Gives the grey variables of @p view the further colours that are free, to stay with them as the
 * plot's own do. Those that are left when all are taken stay grey.
 */
void complete(LogViewerItem *view);

} // namespace CurveColors

#endif

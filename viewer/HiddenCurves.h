#ifndef DATALOG_VIEWER_HIDDENCURVES_H
#define DATALOG_VIEWER_HIDDENCURVES_H

#include <QStringList>

class LogViewerItem;
class QwtPlot;

/** The variables whose curves a user hid. */
namespace HiddenCurves
{

/** Those whose pieces on the vertical @p axis are all hidden. */
QStringList names(const QwtPlot &plot, int axis);
/** Hides just these on the vertical @p axis until the curves are made anew. */
void setHidden(LogViewerItem *view, int axis, const QStringList &names);

} // namespace HiddenCurves

#endif

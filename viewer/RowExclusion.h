#ifndef DATALOG_VIEWER_ROWEXCLUSION_H
#define DATALOG_VIEWER_ROWEXCLUSION_H

#include <QVector>

class LogTableViewModel;

/** Leaves rows of a log out of the plot. */
namespace RowExclusion
{

/** Excludes or keeps @p rows. However many, the plot is computed twice at most. */
void set(LogTableViewModel *model, const QVector<int> &rows, bool isExcluded);

} // namespace RowExclusion

#endif

#ifndef DATALOG_VIEWER_SILENTCHANGE_H
#define DATALOG_VIEWER_SILENTCHANGE_H

#include <functional>

class LogDataSourceItem;
class QStandardItemModel;

/**
 * Changes of many ticks at once. Each that a model told would compute all series anew, so they are
 * made silently, and the series computed in the end.
 */
namespace SilentChange
{

/** Ticks just the rows that are wanted. */
void tick(QStandardItemModel *model, const std::function<bool(int row)> &isWanted);
/** Has the series computed, upon which lists of the variables repaint. */
void computeSeries(LogDataSourceItem *source);

} // namespace SilentChange

#endif

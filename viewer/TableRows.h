#ifndef DATALOG_VIEWER_TABLEROWS_H
#define DATALOG_VIEWER_TABLEROWS_H

#include "viewer/CellSearch.h"

class LogTableViewItem;

/** Rows of a table item that shows observations, and those of the log. */
namespace TableRows
{

/** Whether the rows are observations, which check boxes come before. */
bool areObservations(const LogTableViewItem *table);
/** The log's row behind a shown one; -1 where there is none. */
int logRow(const LogTableViewItem *table, int row);
/** The shown row of a row of the log; -1 where it is not shown. */
int shownRow(const LogTableViewItem *table, int logRow);
/** Reads the cells as they are now, and faster than the models do. */
CellSearch::CellText cellText(const LogTableViewItem *table);

} // namespace TableRows

#endif

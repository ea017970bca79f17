#ifndef DATALOG_LISTS_HOSTEDLIST_H
#define DATALOG_LISTS_HOSTEDLIST_H

class LogDataSourceItem;
class QAbstractItemModel;
class QDeclarativeItem;
class QGraphicsProxyWidget;
class QListView;

/** What the items that show one list of a data source have in common. */
namespace HostedList
{

/** Shows @p view at the top left of @p item, which owns the result, and that the view. */
QGraphicsProxyWidget *host(QListView *view, QDeclarativeItem *item);

/** Shows @p model, which may be null, and forgets what was selected in the one before. */
void show(QAbstractItemModel *model, QListView *view);

/**
 * Repaints @p view from now on when @p source changed check marks in bulk, which its models don't
 * announce row by row. Either source may be null.
 */
void follow(LogDataSourceItem *previous, LogDataSourceItem *source, QListView *view);

} // namespace HostedList

#endif

#ifndef DATALOG_LISTS_LOGDATASETFILTERLISTITEM_H
#define DATALOG_LISTS_LOGDATASETFILTERLISTITEM_H

#include "datasource/LogDataSourceItem.h"
#include "declarative/DeclarativeItem.h"

#include <QPointer>

class QGraphicsProxyWidget;
class QListView;

/** The criteria of a data source, to be ticked in a list. */
class LogDataSetFilterListItem : public QDeclarativeItem
{
    Q_OBJECT
    Q_PROPERTY(
        LogDataSourceItem *dataSource READ dataSource WRITE setDataSource NOTIFY dataSourceChanged)

public:
    explicit LogDataSetFilterListItem(QDeclarativeItem *parent = nullptr);

    LogDataSourceItem *dataSource() const { return _dataSource; }
    /** Shows the list of @p source from now on; null shows an empty list. Emits nothing. */
    void setDataSource(LogDataSourceItem *source);

    /** For programs: the list itself. It belongs to this item. */
    QListView *listView() const { return _listView; }

Q_SIGNALS:
    void dataSourceChanged();

public Q_SLOTS:
    /** Fits the list to the item. */
    void resizeProxy();

private:
    QGraphicsProxyWidget *_proxy;
    QListView *_listView;
    QPointer<LogDataSourceItem> _dataSource; ///< scripts may delete it first
};

#endif

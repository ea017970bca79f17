#include "lists/LogDataSetFilterListItem.h"

#include "lists/HostedList.h"

#include <QGraphicsProxyWidget>
#include <QListView>

LogDataSetFilterListItem::LogDataSetFilterListItem(QDeclarativeItem *parent)
    : QDeclarativeItem(parent)
    , _proxy(nullptr)
    , _listView(new QListView)
{
    _proxy = HostedList::host(_listView, this);
    connect(this, SIGNAL(widthChanged()), SLOT(resizeProxy()));
    connect(this, SIGNAL(heightChanged()), SLOT(resizeProxy()));
}

void LogDataSetFilterListItem::setDataSource(LogDataSourceItem *source)
{
    HostedList::follow(_dataSource, source, _listView);
    _dataSource = source;
    HostedList::show(source ? source->activeFilterModel() : nullptr, _listView);
}

void LogDataSetFilterListItem::resizeProxy()
{
    _proxy->resize(width(), height());
}

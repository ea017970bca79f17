#include "lists/LogDataSetListItem.h"

#include "lists/HostedList.h"

#include <QGraphicsProxyWidget>
#include <QListView>

LogDataSetListItem::LogDataSetListItem(QDeclarativeItem *parent)
    : QDeclarativeItem(parent)
    , _proxy(nullptr)
    , _listView(new QListView)
{
    _proxy = HostedList::host(_listView, this);
    connect(this, SIGNAL(widthChanged()), SLOT(resizeProxy()));
    connect(this, SIGNAL(heightChanged()), SLOT(resizeProxy()));
}

void LogDataSetListItem::setDataSource(LogDataSourceItem *source)
{
    HostedList::follow(_dataSource, source, _listView);
    _dataSource = source;
    HostedList::show(source ? source->dataSetModel() : nullptr, _listView);
}

void LogDataSetListItem::resizeProxy()
{
    _proxy->resize(width(), height());
}

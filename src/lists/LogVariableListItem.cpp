#include "lists/LogVariableListItem.h"

#include "lists/HostedList.h"

#include <QGraphicsProxyWidget>
#include <QListView>

LogVariableListItem::LogVariableListItem(QDeclarativeItem *parent)
    : QDeclarativeItem(parent)
    , _proxy(nullptr)
    , _listView(new QListView)
    , _variableListAxis(VariableListAxis_X)
{
    _proxy = HostedList::host(_listView, this);
    connect(this, SIGNAL(widthChanged()), SLOT(resizeProxy()));
    connect(this, SIGNAL(heightChanged()), SLOT(resizeProxy()));
}

LogDataSourceItem *LogVariableListItem::dataSource() const
{
    return _dataSource;
}

void LogVariableListItem::setDataSource(LogDataSourceItem *source)
{
    HostedList::follow(_dataSource, source, _listView);
    _dataSource = source;
    updateModel();
}

LogVariableListItem::LogVariableListAxis LogVariableListItem::variableListAxis() const
{
    return _variableListAxis;
}

void LogVariableListItem::setVariableListAxis(LogVariableListAxis axis)
{
    _variableListAxis = axis;
    updateModel();
}

void LogVariableListItem::updateModel()
{
    if (!_dataSource)
        return;
    if (_variableListAxis == VariableListAxis_Y)
        HostedList::show(_dataSource->yVariableModel(), _listView);
    else if (_variableListAxis == VariableListAxis_Z)
        HostedList::show(_dataSource->zVariableModel(), _listView);
    else
        HostedList::show(_dataSource->xVariableModel(), _listView);
}

QListView *LogVariableListItem::listView() const
{
    return _listView;
}

void LogVariableListItem::resizeProxy()
{
    _proxy->resize(width(), height());
}

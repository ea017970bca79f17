#include "Stage.h"

#include "filters/LogDataFilterBuilderItem.h"
#include "lists/LogDataSetFilterListItem.h"
#include "lists/LogDataSetListItem.h"
#include "lists/LogVariableListItem.h"
#include "parsing/DataLog.h"
#include "plot/LogViewerItem.h"
#include "table/LogTableViewItem.h"

namespace
{

typedef QObject *(*Maker)();

template <class T> QObject *make()
{
    return new T;
}

// What scripts can create, some of it twice, so that sources and views can be crossed over.
const Maker kMakers[] = {make<LogDataSourceItem>,
                         make<LogDataSourceItem>,
                         make<LogViewerItem>,
                         make<LogViewerItem>,
                         make<LogTableViewItem>,
                         make<LogTableViewItem>,
                         make<LogVariableListItem>,
                         make<LogVariableListItem>,
                         make<LogDataSetListItem>,
                         make<LogDataFilterBuilderItem>,
                         make<LogDataSetFilterListItem>,
                         make<DataLog>,
                         make<PropertyWrapper>,
                         make<VariableGroup>,
                         make<Variable>,
                         make<LogObservationSortFilterProxyModel>};

} // namespace

Stage::Stage(bool watched)
    : m_watched(watched)
{
    m_window.resize(300, 200);
    m_window.show();
    for (size_t i = 0; i < sizeof kMakers / sizeof kMakers[0]; ++i) {
        m_objects << QPointer<QObject>();
        make(int(i));
    }
}

Stage::~Stage()
{
    for (int i = 0; i < m_objects.size(); ++i)
        delete m_objects.at(i);
}

QList<LogDataSourceItem *> Stage::sources() const
{
    QList<LogDataSourceItem *> sources;
    for (int i = 0; i < m_objects.size(); ++i) {
        if (LogDataSourceItem *source = qobject_cast<LogDataSourceItem *>(m_objects.at(i)))
            sources << source;
    }
    return sources;
}

void Stage::make(int index)
{
    QObject *object = kMakers[index]();
    m_objects[index] = object;
    if (QDeclarativeItem *item = qobject_cast<QDeclarativeItem *>(object)) {
        item->setParentItem(m_window.contentItem());
        item->setWidth(150);
        item->setHeight(100);
    }
    if (LogDataSourceItem *source = qobject_cast<LogDataSourceItem *>(object))
        watch(source);
}

void Stage::watch(LogDataSourceItem *source)
{
    if (!m_watched)
        return;
    // Not the table model: clearing its exclusions announces one row more than there is.
    QAbstractItemModel *const models[]
        = {source->constTableModel(),  source->analysisTableModel(), source->dataSetModel(),
           source->xVariableModel(),   source->yVariableModel(),     source->zVariableModel(),
           source->activeFilterModel()};
    for (size_t i = 0; i < sizeof models / sizeof models[0]; ++i)
        new QAbstractItemModelTester(
            models[i], QAbstractItemModelTester::FailureReportingMode::QtTest, models[i]);
}

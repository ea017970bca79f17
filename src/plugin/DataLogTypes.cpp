#include "plugin/DataLogTypes.h"

#include "datasource/LogDataSourceItem.h"
#include "declarative/DeclarativeTypes.h"
#include "filters/LogDataFilterBuilderItem.h"
#include "lists/LogDataSetFilterListItem.h"
#include "lists/LogDataSetListItem.h"
#include "lists/LogVariableListItem.h"
#include "parsing/DataLog.h"
#include "plot/LogViewerItem.h"
#include "table/LogTableViewItem.h"

namespace
{

const int kMajor = 1;
const int kMinor = 0;
const char kEnumsUri[] = "DataLogEnums";
const char kNeedsWidgets[]
    = "DataLog: its views are widgets, which this program can't show. Create a QApplication "
      "instead of a QGuiApplication or QCoreApplication before the module is imported.";

template <class T> void registerType(const char *uri, const char *name)
{
    registerDeclarativeType<T>(uri, kMajor, kMinor, name);
}

/** Registers an item that shows widgets. */
template <class T> void registerView(const char *uri, const char *name)
{
    if (widgetsAvailable())
        registerType<T>(uri, name);
    else
        registerUnavailableType(uri, kMajor, kMinor, name, QLatin1String(kNeedsWidgets));
}

} // namespace

void registerDataLogTypes(const char *uri)
{
    Q_INIT_RESOURCE(datalog_resources);
    if (!widgetsAvailable())
        qWarning("%s", kNeedsWidgets);
    registerType<DataLog>(uri, "DataLog");
    registerView<LogViewerItem>(uri, "LogViewerItem");
    registerView<LogTableViewItem>(uri, "LogTableViewItem");
    registerType<LogDataSourceItem>(uri, "LogDataSourceItem");
    registerView<LogVariableListItem>(uri, "LogVariableListItem");
    registerView<LogDataSetListItem>(uri, "LogDataSetListItem");
    registerView<LogDataFilterBuilderItem>(uri, "LogDataFilterBuilderItem");
    registerView<LogDataSetFilterListItem>(uri, "LogDataSetFilterListItem");
    registerType<PropertyWrapper>(uri, "PropertyWrapper");
    registerType<VariableGroup>(uri, "VariableGroup");
    registerType<Variable>(uri, "Variable");
    registerType<LogObservationSortFilterProxyModel>(kEnumsUri, "ObservationFilterRange");
    registerView<LogViewerItem>(kEnumsUri, "LogViewerAxis");
}

#include "plugin/DataLogPlugin.h"

#include "plugin/DataLogTypes.h"

void DataLogPlugin::registerTypes(const char *uri)
{
    registerDataLogTypes(uri);
}

DATALOG_EXPORT_PLUGIN(datalogplugin, DataLogPlugin)

#include "SamplePlugin.h"

#include "declarative/DeclarativeTypes.h"

#include <QTimer>

void SamplePlugin::registerTypes(const char *uri)
{
    registerDeclarativeType<QTimer>(uri, 1, 0, "Clock");
    registerDeclarativeType<QTimer>("SampleExtras", 1, 0, "Watch");
}

DATALOG_EXPORT_PLUGIN(sampleplugin, SamplePlugin)

#ifndef DATALOG_PLUGIN_DATALOGPLUGIN_H
#define DATALOG_PLUGIN_DATALOGPLUGIN_H

#include "declarative/DeclarativePlugin.h"

/** What the engine loads when a script imports the module. */
class DataLogPlugin : public QDeclarativeExtensionPlugin
{
    Q_OBJECT
    DATALOG_PLUGIN_METADATA

public:
    /** Registers the module's types. @param uri the one it is imported under. */
    void registerTypes(const char *uri) override;
};

#endif

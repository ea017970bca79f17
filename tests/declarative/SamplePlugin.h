#ifndef DATALOG_TESTS_DECLARATIVE_SAMPLEPLUGIN_H
#define DATALOG_TESTS_DECLARATIVE_SAMPLEPLUGIN_H

#include "declarative/DeclarativePlugin.h"

/** A plugin as the product's own is written: one text for both engines. */
class SamplePlugin : public QDeclarativeExtensionPlugin
{
    Q_OBJECT
    DATALOG_PLUGIN_METADATA

public:
    void registerTypes(const char *uri) override;
};

#endif

#ifndef DATALOG_PLUGIN_DATALOGTYPES_H
#define DATALOG_PLUGIN_DATALOGTYPES_H

/**
 * Registers the module's types under @p uri, and its enumerations under "DataLogEnums".
 *
 * Items that show widgets need the application object of widgets. Without it a warning says so, and
 * scripts that use those items fail with the same words.
 */
void registerDataLogTypes(const char *uri);

#endif

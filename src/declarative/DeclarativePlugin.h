#ifndef DATALOG_DECLARATIVE_DECLARATIVEPLUGIN_H
#define DATALOG_DECLARATIVE_DECLARATIVEPLUGIN_H

// QDeclarativeExtensionPlugin, whichever engine loads it, and its export. The class says
// DATALOG_PLUGIN_METADATA after Q_OBJECT, its .cpp ends with DATALOG_EXPORT_PLUGIN(target, Class);
// neither takes a semicolon.

#include <qglobal.h>

#if QT_VERSION < 0x050000

#include <QDeclarativeExtensionPlugin>
#include <QtPlugin>

#define DATALOG_PLUGIN_METADATA
#define DATALOG_EXPORT_PLUGIN(target, Class) Q_EXPORT_PLUGIN2(target, Class)

#else

#include <QQmlExtensionPlugin>

typedef QQmlExtensionPlugin QDeclarativeExtensionPlugin;

#define DATALOG_PLUGIN_METADATA Q_PLUGIN_METADATA(IID QQmlExtensionInterface_iid)
#define DATALOG_EXPORT_PLUGIN(target, Class)

#endif

#endif

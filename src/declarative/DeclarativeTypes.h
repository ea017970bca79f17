#ifndef DATALOG_DECLARATIVE_DECLARATIVETYPES_H
#define DATALOG_DECLARATIVE_DECLARATIVETYPES_H

// Registration of types with the engine, whichever engine it is.

#include <QMetaType>
#include <QString>

#if QT_VERSION < 0x050000
#include <qdeclarative.h>
#else
#include <qqml.h>
#endif

/**
 * Whether widgets can be made: the application object is the one of widgets. A program of the newer
 * engine can run without it, and making a widget there ends the program.
 */
bool widgetsAvailable();

/**
 * Registers @p name so that a script that uses it fails with @p reason instead of with an unknown
 * type. Returns the engine's type id.
 */
int registerUnavailableType(const char *uri, int major, int minor, const char *name,
                            const QString &reason);

/**
 * Registers @p T under @p name, creatable from scripts, with the meta types "T*" and
 * "QDeclarativeListProperty<T>". Returns the engine's type id.
 */
template <class T>
int registerDeclarativeType(const char *uri, int major, int minor, const char *name)
{
    const int type = qmlRegisterType<T>(uri, major, minor, name);
#if QT_VERSION >= 0x050000
    // moc writes a list property's type as the source spells it; without the alias a script gets
    // an opaque value in place of a list.
    const QByteArray className(T::staticMetaObject.className());
    QMetaType::registerNormalizedTypedef("QDeclarativeListProperty<" + className + '>',
                                         QMetaType::type("QQmlListProperty<" + className + '>'));
#endif
    return type;
}

#endif

#ifndef DATALOG_TESTS_SUPPORT_METAOBJECTTEXT_H
#define DATALOG_TESTS_SUPPORT_METAOBJECTTEXT_H

#include "support/MetaMethodText.h"

#include <QMetaEnum>
#include <QMetaObject>
#include <QMetaProperty>
#include <QStringList>

/** What a class itself tells scripts: signals, slots, properties, enumerations, in order. */
namespace MetaObjectText
{

inline QString argumentNames(const QMetaMethod &method)
{
    QStringList names;
    const QList<QByteArray> given = method.parameterNames();
    for (int i = 0; i < given.size(); ++i)
        names << QString::fromLatin1(given.at(i));
    return names.join(QLatin1String(","));
}

inline QString methodLine(const QMetaMethod &method)
{
    static const char *const kAccess[] = {"private", "protected", "public"};
    static const char *const kKind[] = {"method", "signal", "slot", "constructor"};
    QString line = QLatin1String(kKind[method.methodType()]);
    if (method.methodType() != QMetaMethod::Signal)
        line.prepend(QLatin1String(kAccess[method.access()]) + QLatin1Char(' '));
    const QString result = QLatin1String(method.typeName());
    const bool returns = !result.isEmpty() && result != QLatin1String("void");
    line += QLatin1Char(' ') + metaMethodSignature(method);
    if (!argumentNames(method).isEmpty())
        line += QLatin1String(" names ") + argumentNames(method);
    return returns ? line + QLatin1String(" returns ") + result : line;
}

inline QString propertyLine(const QMetaProperty &property)
{
    QString line = QLatin1String("property ") + QLatin1String(property.name())
        + QLatin1String(" : ") + QLatin1String(property.typeName());
    line += QLatin1String(property.isWritable() ? " read write" : " read");
    if (property.hasNotifySignal())
        line += QLatin1String(" notify ") + metaMethodSignature(property.notifySignal());
    return line;
}

inline QString enumeratorLine(const QMetaEnum &enumerator)
{
    QString line = QLatin1String("enum ") + QLatin1String(enumerator.name());
    for (int i = 0; i < enumerator.keyCount(); ++i) {
        line += QLatin1Char(' ') + QLatin1String(enumerator.key(i)) + QLatin1Char('=')
            + QString::number(enumerator.value(i));
    }
    return line;
}

inline QString describe(const QMetaObject &type)
{
    QStringList lines;
    lines << QLatin1String("class ") + QLatin1String(type.className()) + QLatin1String(" : ")
            + QLatin1String(type.superClass()->className());
    for (int i = type.methodOffset(); i < type.methodCount(); ++i)
        lines << methodLine(type.method(i));
    for (int i = type.propertyOffset(); i < type.propertyCount(); ++i)
        lines << propertyLine(type.property(i));
    for (int i = type.enumeratorOffset(); i < type.enumeratorCount(); ++i)
        lines << enumeratorLine(type.enumerator(i));
    return lines.join(QLatin1String("\n")) + QLatin1Char('\n');
}

} // namespace MetaObjectText

#endif

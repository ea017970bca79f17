#ifndef DATALOG_TESTS_SUPPORT_METAMETHODTEXT_H
#define DATALOG_TESTS_SUPPORT_METAMETHODTEXT_H

#include <QMetaMethod>
#include <QString>
#include <QStringList>

/** A method as "name(types)". */
inline QString metaMethodSignature(const QMetaMethod &method)
{
#if QT_VERSION >= 0x050000
    return QString::fromLatin1(method.methodSignature());
#else
    return QString::fromLatin1(method.signature());
#endif
}

/** A method as "signal name(types)", "slot ..." or "method ...". */
inline QString metaMethodText(const QMetaMethod &method)
{
    const char *kind = method.methodType() == QMetaMethod::Signal ? "signal "
        : method.methodType() == QMetaMethod::Slot                ? "slot "
                                                                  : "method ";
    return QLatin1String(kind) + metaMethodSignature(method);
}

/** The methods that a class adds to those of its base class, in order. */
inline QStringList ownMetaMethods(const QMetaObject &type)
{
    QStringList texts;
    for (int i = type.methodOffset(); i < type.methodCount(); ++i)
        texts.append(metaMethodText(type.method(i)));
    return texts;
}

#endif

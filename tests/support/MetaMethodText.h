#ifndef DATALOG_TESTS_SUPPORT_METAMETHODTEXT_H
#define DATALOG_TESTS_SUPPORT_METAMETHODTEXT_H

#include <QMetaMethod>
#include <QString>
#include <QStringList>

/** A method as "signal name(types)", "slot ..." or "method ...". */
inline QString metaMethodText(const QMetaMethod &method)
{
#if QT_VERSION >= 0x050000
    const QByteArray signature = method.methodSignature();
#else
    const QByteArray signature(method.signature());
#endif
    const char *kind = method.methodType() == QMetaMethod::Signal ? "signal "
        : method.methodType() == QMetaMethod::Slot                ? "slot "
                                                                  : "method ";
    return QLatin1String(kind) + QString::fromLatin1(signature);
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

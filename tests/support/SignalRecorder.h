#ifndef DATALOG_TESTS_SUPPORT_SIGNALRECORDER_H
#define DATALOG_TESTS_SUPPORT_SIGNALRECORDER_H

#include "support/MetaMethodText.h"

#include <QObject>

/** Records the signals that an object's own class declares: which were emitted, in order. */
class SignalRecorder : public QObject
{
    Q_OBJECT

public:
    explicit SignalRecorder(const QObject *object)
    {
        const QMetaObject *type = object->metaObject();
        const QMetaMethod slot = metaObject()->method(metaObject()->indexOfSlot("record()"));
        for (int i = type->methodOffset(); i < type->methodCount(); ++i) {
            if (type->method(i).methodType() == QMetaMethod::Signal)
                connect(object, type->method(i), this, slot);
        }
    }

    /** The names recorded since the last call, separated by blanks. */
    QString take()
    {
        const QString names = m_names.join(QLatin1String(" "));
        m_names.clear();
        return names;
    }

private slots:
    void record()
    {
        const QMetaMethod method = sender()->metaObject()->method(senderSignalIndex());
        const QString signature = metaMethodSignature(method);
        m_names.append(signature.left(signature.indexOf(QLatin1Char('('))));
    }

private:
    QStringList m_names;
};

#endif

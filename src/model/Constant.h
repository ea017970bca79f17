#ifndef DATALOG_MODEL_CONSTANT_H
#define DATALOG_MODEL_CONSTANT_H

#include "model/PropertyWrapper.h"

#include <QStringList>

/** A header constant with the values that a log gives for it. */
class Constant : public PropertyWrapper
{
    Q_OBJECT

public:
    explicit Constant(QObject *parent = nullptr);

    const QStringList &values() const { return m_values; }
    void appendValue(const QString &value) { m_values.append(value); }

private:
    QStringList m_values;
};

#endif

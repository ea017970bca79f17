#include "model/PropertyWrapper.h"

PropertyWrapper::PropertyWrapper(QObject *parent)
    : QObject(parent)
{
}

PropertyWrapper::PropertyWrapper(const QVariant &value, QObject *parent)
    : QObject(parent)
    , m_value(value)
{
}

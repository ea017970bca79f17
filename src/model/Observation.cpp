#include "model/Observation.h"

#include "model/RowStore.h"

Observation::Observation(const QStringList &values, QObject *parent)
    : QObject(parent)
    , m_values(values)
    , m_row(-1)
    , m_checked(false)
{
}

Observation::Observation(const QSharedPointer<const RowStore> &store, int row, QObject *parent)
    : QObject(parent)
    , m_store(store)
    , m_row(row)
    , m_checked(false)
{
}

const QStringList &Observation::values() const
{
    if (m_store) {
        m_values = m_store->rowTexts(m_row);
        m_store.clear();
    }
    return m_values;
}

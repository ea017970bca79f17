#include "graphdef/GuardedXmlDevice.h"

#include "graphdef/EntityExpansion.h"

GuardedXmlDevice::GuardedXmlDevice(QIODevice *source)
    : m_source(source)
    , m_bytes(0)
    , m_attributes(0)
    , m_namespaces(0)
    , m_isTripped(false)
{
    open(QIODevice::ReadOnly | QIODevice::Unbuffered);
}

void GuardedXmlDevice::check(QXmlStreamReader &reader)
{
    bool isTripped = m_isTripped && reader.hasError();
    if (reader.isStartElement()) {
        m_namespaces += reader.namespaceDeclarations().size();
        isTripped = m_namespaces > MaxNamespaces;
    } else if (reader.isDTD()) {
        // A reference has three bytes at least.
        const qint64 references = qMax(m_source->size(), m_bytes) / 3;
        const EntityExpansion entities(reader.entityDeclarations());
        isTripped = references * entities.longest() > MaxExpansion;
    }
    if (isTripped)
        reader.raiseError(QLatin1String("The document is too large or too complex."));
}

qint64 GuardedXmlDevice::readData(char *data, qint64 maxSize)
{
    if (m_isTripped)
        return 0;
    const qint64 size = m_source->read(data, maxSize);
    m_isTripped = !withinLimits(data, size);
    return m_isTripped ? 0 : size;
}

qint64 GuardedXmlDevice::writeData(const char *, qint64)
{
    return -1;
}

bool GuardedXmlDevice::withinLimits(const char *data, qint64 size)
{
    m_bytes += qMax(qint64(0), size);
    if (m_bytes > MaxBytes)
        return false;
    // The value of an attribute can't hold a "<", so each one starts a tag, or something else that
    // has no attributes.
    for (qint64 i = 0; i < size; ++i) {
        if (data[i] == '<')
            m_attributes = 0;
        else if (data[i] == '=' && ++m_attributes > MaxAttributes)
            return false;
    }
    return true;
}

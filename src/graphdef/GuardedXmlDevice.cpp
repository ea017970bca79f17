#include "graphdef/GuardedXmlDevice.h"

#include "graphdef/EntityExpansion.h"

#include <QTextCodec>

namespace
{

/** Whether no "=" can come out of other bytes than its own, as in codes that shift letters. */
bool decodesPlainly(const QTextCodec &codec)
{
    const QChar equals = QLatin1Char('=');
    return !codec.toUnicode("+AD0-", 5).contains(equals)
        && !codec.toUnicode("&AD0-", 5).contains(equals);
}

/** Whether the encoding, if it is known at all, writes markup with the bytes of ASCII. */
bool keepsMarkup(const QString &encoding)
{
    const QTextCodec *codec = QTextCodec::codecForName(encoding.toLatin1());
    if (!codec)
        return true;
    const QByteArray markup = codec->fromUnicode(QLatin1String("<!%="));
    return markup.contains('<') && markup.contains('!') && markup.contains('%')
        && markup.contains('=') && decodesPlainly(*codec);
}

} // namespace

GuardedXmlDevice::GuardedXmlDevice(QIODevice *source)
    : m_source(source)
    , m_bytes(0)
    , m_comparisons(0)
    , m_namespaces(0)
    , m_isTripped(false)
{
    open(QIODevice::ReadOnly | QIODevice::Unbuffered);
}

void GuardedXmlDevice::check(QXmlStreamReader &reader)
{
    if (isTooCostly(reader)) {
        reader.raiseError(QLatin1String("The document is too large or too complex."));
    } else if (reader.isStartDocument()) {
        const QString encoding = reader.documentEncoding().toString();
        if (!keepsMarkup(encoding))
            reader.raiseError(QString::fromLatin1("Encoding %1 is unsupported").arg(encoding));
    }
}

bool GuardedXmlDevice::isTooCostly(const QXmlStreamReader &reader)
{
    if (m_isTripped && reader.hasError())
        return true;
    if (reader.isStartElement())
        return isTooCostlyElement(reader);
    return reader.isDTD() && expandsTooFar(reader);
}

bool GuardedXmlDevice::isTooCostlyElement(const QXmlStreamReader &reader)
{
    m_limits.startContent();
    // Those with a declared default are among them.
    const qint64 attributes = reader.attributes().size();
    // A declaration has eight bytes at least, and the reader goes through them at each element.
    m_comparisons += attributes * attributes + m_limits.declarations() / 8;
    m_namespaces += reader.namespaceDeclarations().size();
    return m_comparisons > MaxComparisons || m_namespaces > MaxNamespaces;
}

bool GuardedXmlDevice::expandsTooFar(const QXmlStreamReader &reader) const
{
    // A reference has three bytes at least.
    const qint64 references = qMax(m_source->size(), m_bytes) / 3;
    const EntityExpansion entities(reader.entityDeclarations());
    return references * entities.longest() > MaxExpansion;
}

qint64 GuardedXmlDevice::readData(char *data, qint64 maxSize)
{
    if (m_isTripped)
        return 0;
    const qint64 size = m_source->read(data, maxSize);
    m_bytes += qMax(qint64(0), size);
    m_isTripped = m_bytes > MaxBytes || !m_limits.take(data, size);
    return m_isTripped ? 0 : size;
}

qint64 GuardedXmlDevice::writeData(const char *, qint64)
{
    return -1;
}

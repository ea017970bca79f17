#include "graphdef/MarkupLimits.h"

namespace
{

bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

} // namespace

MarkupLimits::MarkupLimits()
    : m_last('\0')
    , m_beforeLast('\0')
    , m_attributes(0)
    , m_declarations(0)
    , m_hasEntities(false)
    , m_hasAttributeLists(false)
    , m_isInContent(false)
{
}

bool MarkupLimits::take(const char *data, qint64 size)
{
    for (qint64 i = 0; i < size; ++i) {
        // Zero bytes pad the markup of wide encodings and are allowed in no other.
        if (data[i] != '\0' && !take(data[i]))
            return false;
    }
    return true;
}

bool MarkupLimits::take(char c)
{
    // The value of an attribute can't hold a "<", so each one starts a tag, or something else that
    // has no attributes.
    if (c == '<')
        m_attributes = 0;
    else if (c == '=')
        ++m_attributes;
    if (m_beforeLast == '<' && m_last == '!') {
        m_hasEntities = m_hasEntities || c == 'E';
        m_hasAttributeLists = m_hasAttributeLists || c == 'A';
    }
    if (m_hasAttributeLists && !m_isInContent)
        ++m_declarations;
    const bool isWithin = m_attributes <= MaxAttributes && m_declarations <= MaxDeclarations
        && !isParameterEntity(c);
    m_beforeLast = m_last;
    m_last = c;
    return isWithin;
}

/**
 * "<!ENTITY % name": an entity that stands for declarations. The reader expands those before
 * anybody can tell how long they get, and nobody who writes a definition needs them.
 */
bool MarkupLimits::isParameterEntity(char c) const
{
    return m_hasEntities && m_last == '%' && isBlank(m_beforeLast) && isBlank(c);
}

#include "graphdef/EntityExpansion.h"

EntityExpansion::EntityExpansion(const QXmlStreamEntityDeclarations &declarations)
    : m_longest(0)
{
    if (declarations.size() > MaxEntities) {
        m_longest = MaxLength;
        return;
    }
    for (int i = 0; i < declarations.size(); ++i) {
        const QString name = declarations.at(i).name().toString();
        // The first declaration of a name counts.
        if (!m_texts.contains(name))
            m_texts.insert(name, declarations.at(i).value().toString());
    }
    const QList<QString> names = m_texts.keys();
    for (int i = 0; i < names.size(); ++i)
        m_longest = qMax(m_longest, lengthOf(names.at(i)));
}

/** Entities that refer to themselves count as empty inside: the XML reader refuses them. */
qint64 EntityExpansion::lengthOf(const QString &name)
{
    if (!m_lengths.contains(name)) {
        m_lengths.insert(name, 0);
        m_lengths.insert(name, measure(m_texts.value(name)));
    }
    return m_lengths.value(name);
}

/** The length of a text with the entities in it expanded; references count for themselves too. */
qint64 EntityExpansion::measure(const QString &text)
{
    qint64 length = qMax(1, text.size());
    int start = text.indexOf(QLatin1Char('&'));
    while (start >= 0 && length < MaxLength) {
        const int end = text.indexOf(QLatin1Char(';'), start);
        const QString name = text.mid(start + 1, end - start - 1);
        if (m_texts.contains(name))
            length += lengthOf(name);
        start = text.indexOf(QLatin1Char('&'), start + 1);
    }
    return qMin(length, qint64(MaxLength));
}

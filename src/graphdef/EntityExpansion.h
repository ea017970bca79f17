#ifndef DATALOG_GRAPHDEF_ENTITYEXPANSION_H
#define DATALOG_GRAPHDEF_ENTITYEXPANSION_H

#include <QHash>
#include <QString>
#include <QXmlStreamReader>

/**
 * How long the texts get that stand for the entities of a document, which may refer to each other:
 * a few lines can stand for more text than there is memory. Told without making the texts.
 */
class EntityExpansion
{
public:
    enum {
        MaxEntities = 1000, ///< with more of them, they are not measured but taken as too long
        MaxLength = 1 << 30
    };

    explicit EntityExpansion(const QXmlStreamEntityDeclarations &declarations);

    /**
     * Characters of the longest text, or some more, and MaxLength at the most. 0 without entities.
     */
    qint64 longest() const { return m_longest; }

private:
    qint64 lengthOf(const QString &name);
    qint64 measure(const QString &text);

    QHash<QString, QString> m_texts;
    QHash<QString, qint64> m_lengths;
    qint64 m_longest;
};

#endif

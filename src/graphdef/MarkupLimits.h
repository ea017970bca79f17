#ifndef DATALOG_GRAPHDEF_MARKUPLIMITS_H
#define DATALOG_GRAPHDEF_MARKUPLIMITS_H

#include <QtGlobal>

/**
 * Looks through the bytes of an XML document, before a reader sees them, for what would cost it far
 * more than its size. Works in every encoding that writes markup as in ASCII, with zero bytes in
 * between or not.
 */
class MarkupLimits
{
public:
    enum {
        MaxAttributes = 2048, ///< of a tag, and equals signs in the text behind it
        MaxDeclarations = 64 * 1024 ///< bytes of a document type that declares attributes
    };

    MarkupLimits();

    /** Takes the next bytes; false when they go beyond the limits. */
    bool take(const char *data, qint64 size);
    /** From here on there are no declarations any more. */
    void startContent() { m_isInContent = true; }
    /** Bytes since the first declaration of attributes, up to the content and a bit more. */
    int declarations() const { return m_declarations; }

private:
    bool take(char c);
    bool isParameterEntity(char c) const;

    char m_last;
    char m_beforeLast;
    int m_attributes;
    int m_declarations;
    bool m_hasEntities;
    bool m_hasAttributeLists;
    bool m_isInContent;
};

#endif

#ifndef DATALOG_GRAPHDEF_GUARDEDXMLDEVICE_H
#define DATALOG_GRAPHDEF_GUARDEDXMLDEVICE_H

#include "graphdef/MarkupLimits.h"

#include <QIODevice>
#include <QXmlStreamReader>

/**
 * Stands between a file and an XML stream reader and ends documents that would cost the reader far
 * more than their size: its time grows with the square of a tag's attributes, with the attributes
 * that are declared and with the namespaces that are open, and entities can make a text of any
 * length out of a short file.
 *
 * The limits lie far above what a definition holds. What trips them reads as a document that ends
 * there; check() then makes that the reader's error. Encodings that write markup in other bytes
 * than ASCII does, which hide it from the limits, are not supported.
 */
class GuardedXmlDevice : public QIODevice
{
public:
    enum {
        MaxBytes = 64 * 1024 * 1024,
        MaxNamespaces = 256, ///< of a document
        MaxExpansion = 16 * 1024 * 1024, ///< characters that all entities of a document may give
        MaxComparisons = 100 * 1000 * 1000 ///< of attributes' names, about, in a document
    };

    /** @param source an open device that outlives this one. */
    explicit GuardedXmlDevice(QIODevice *source);

    bool isSequential() const override { return true; }

    /** Raises an error in @p reader, which reads this device, if its last token trips a limit. */
    void check(QXmlStreamReader &reader);

protected:
    qint64 readData(char *data, qint64 maxSize) override;
    qint64 writeData(const char *data, qint64 size) override;

private:
    bool isTooCostly(const QXmlStreamReader &reader);
    bool isTooCostlyElement(const QXmlStreamReader &reader);
    bool expandsTooFar(const QXmlStreamReader &reader) const;

    QIODevice *m_source;
    MarkupLimits m_limits;
    qint64 m_bytes;
    qint64 m_comparisons;
    int m_namespaces;
    bool m_isTripped;
};

#endif

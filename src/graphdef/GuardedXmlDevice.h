#ifndef DATALOG_GRAPHDEF_GUARDEDXMLDEVICE_H
#define DATALOG_GRAPHDEF_GUARDEDXMLDEVICE_H

#include <QIODevice>
#include <QXmlStreamReader>

/**
 * Stands between a file and an XML stream reader and ends documents that would cost the reader far
 * more than their size: its time grows with the square of a tag's attributes and of the namespaces
 * that are open, and entities can make a text of any length out of a short file.
 *
 * The limits lie far above what a definition holds. What trips them reads as a document that ends
 * there; check() then makes that the reader's error.
 */
class GuardedXmlDevice : public QIODevice
{
public:
    enum {
        MaxBytes = 64 * 1024 * 1024,
        MaxAttributes = 2048, ///< of a tag, and equals signs in the text behind it
        MaxNamespaces = 4096, ///< of a document
        MaxExpansion = 16 * 1024 * 1024 ///< characters that all entities of a document may give
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
    bool withinLimits(const char *data, qint64 size);

    QIODevice *m_source;
    qint64 m_bytes;
    int m_attributes;
    int m_namespaces;
    bool m_isTripped;
};

#endif

#ifndef DATALOG_PARSING_LINEREADER_H
#define DATALOG_PARSING_LINEREADER_H

#include <QByteArray>
#include <QScopedPointer>
#include <QTextStream>

class QIODevice;

/**
 * Reads a text device line by line as UTF-8 bytes, with the results that a QTextStream with the
 * UTF-8 codec on a device in text mode gives: lines end with a line feed, carriage returns are
 * dropped wherever they stand, a byte order mark is skipped, and one that tells UTF-16 or UTF-32 is
 * obeyed. A character that the end of the device cuts off is left out: a log that is still being
 * written may end so. Unlike the stream it decodes nothing, which is most of what reading a log
 * costs.
 */
class LineReader
{
public:
    /**
     * @param device open for reading, in binary mode; it must outlive the reader.
     * @param maxSize of a line, in bytes, or in characters where it needs decoding. A longer one is
     *        not kept: reading should end there.
     */
    explicit LineReader(QIODevice *device, int maxSize = 1 << 30);
    ~LineReader();

    bool atEnd();
    /** Moves on to the next line; to be called only when not at the end. */
    void next();
    /** The line's bytes without its end; valid until the next line is read. */
    const char *data() const { return m_data; }
    int size() const { return m_size; }
    /** Whether the line is longer than the reader takes; it is then empty. */
    bool isTooLong() const { return m_isTooLong; }
    /** Whether the line has but ASCII characters. If not, its UTF-8 may be malformed. */
    bool isAscii() const;
    /** Bytes of the device that lie behind the reader. */
    qint64 bytesRead() const { return m_bytesRead; }

private:
    bool fill();
    void detectEncoding();
    void nextDecoded();
    void setLine(const char *data, int size);
    void refuseLine();

    QIODevice *m_device;
    int m_maxSize;
    QScopedPointer<QTextStream> m_decoder; ///< set for other encodings than UTF-8
    QByteArray m_block; ///< whole characters
    QByteArray m_cutOff; ///< the start of the character that the next block goes on with
    int m_at; ///< start of what is not handed out yet in m_block
    QByteArray m_joined; ///< a line that needs bytes of its own
    const char *m_data;
    int m_size;
    qint64 m_bytesRead;
    bool m_isTooLong;
    bool m_ownsFirstLine; ///< there is text, but no line of it was handed out yet
};

#endif

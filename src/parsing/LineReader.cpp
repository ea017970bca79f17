#include "parsing/LineReader.h"

#include "model/CellText.h"

#include <QIODevice>

#include <cstring>

namespace
{

const int kBlockSize = 64 * 1024;
const char kUtf8Mark[] = "\xef\xbb\xbf";

bool startsWithWideMark(const QByteArray &bytes)
{
    const QByteArray utf32BigEndian("\x00\x00\xfe\xff", 4);
    return bytes.startsWith("\xff\xfe") || bytes.startsWith("\xfe\xff")
        || bytes.startsWith(utf32BigEndian);
}

/** Bytes that the UTF-8 character has that starts with @p lead, 1 for one that starts none. */
int characterSize(uchar lead)
{
    if (lead < 0xc2 || lead > 0xf4)
        return 1;
    return lead < 0xe0 ? 2 : lead < 0xf0 ? 3 : 4;
}

/** Bytes at the end that are the start of a character and not the whole of it. */
int cutOffSize(const QByteArray &bytes)
{
    for (int size = 1; size <= 3 && size <= bytes.size(); ++size) {
        const uchar byte = uchar(bytes.at(bytes.size() - size));
        const bool continues = (byte & 0xc0) == 0x80;
        if (!continues)
            return characterSize(byte) > size ? size : 0;
    }
    return 0;
}

} // namespace

LineReader::LineReader(QIODevice *device, int maxSize)
    : m_device(device)
    , m_maxSize(maxSize)
    , m_at(0)
    , m_data("")
    , m_size(0)
    , m_bytesRead(0)
    , m_isTooLong(false)
    , m_ownsFirstLine(false)
{
    detectEncoding();
}

LineReader::~LineReader() { }

void LineReader::detectEncoding()
{
    const QByteArray start = m_device->peek(4);
    if (startsWithWideMark(start)) {
        m_device->setTextModeEnabled(true);
        m_decoder.reset(new QTextStream(m_device));
        m_decoder->setCodec("UTF-8");
        return;
    }
    m_ownsFirstLine = !start.isEmpty();
    fill();
    if (m_block.startsWith(kUtf8Mark)) {
        m_at = int(sizeof kUtf8Mark) - 1;
        m_bytesRead = m_at;
    }
}

/** Replaces a block that is used up by the next one; false at the end of the device. */
bool LineReader::fill()
{
    m_at = 0;
    do {
        const int kept = m_cutOff.size();
        m_block = m_cutOff;
        m_block.resize(kept + kBlockSize);
        const qint64 got = m_device->read(m_block.data() + kept, kBlockSize);
        if (got <= 0) {
            m_bytesRead += kept;
            m_block.clear();
            m_cutOff.clear();
            return false;
        }
        m_block.resize(kept + int(got));
        m_cutOff = m_block.right(cutOffSize(m_block));
        m_block.chop(m_cutOff.size());
    } while (m_block.isEmpty());
    return true;
}

bool LineReader::atEnd()
{
    if (m_decoder)
        return m_decoder->atEnd();
    if (m_ownsFirstLine)
        return false;
    // A carriage return at the very end is no line, for it is dropped.
    while (true) {
        while (m_at < m_block.size() && m_block.at(m_at) == '\r') {
            ++m_at;
            ++m_bytesRead;
        }
        if (m_at < m_block.size())
            return false;
        if (!fill())
            return true;
    }
}

void LineReader::next()
{
    m_ownsFirstLine = false;
    if (m_decoder) {
        nextDecoded();
        return;
    }
    m_joined.resize(0);
    while (true) {
        const char *start = m_block.constData() + m_at;
        const int left = m_block.size() - m_at;
        const char *end = left > 0
            ? static_cast<const char *>(std::memchr(start, '\n', size_t(left)))
            : nullptr;
        const int length = end ? int(end - start) : left;
        m_at += length + (end ? 1 : 0);
        m_bytesRead += length + (end ? 1 : 0);
        if (length > m_maxSize - m_joined.size()) {
            refuseLine();
            return;
        }
        if (end && m_joined.isEmpty()) {
            setLine(start, length);
            return;
        }
        m_joined.append(start, length);
        if (end || !fill()) {
            setLine(m_joined.constData(), m_joined.size());
            return;
        }
    }
}

void LineReader::nextDecoded()
{
    const QString line = m_decoder->readLine(qint64(m_maxSize) + 1);
    m_bytesRead = m_device->pos();
    if (line.size() > m_maxSize) {
        refuseLine();
        return;
    }
    m_joined = line.toUtf8();
    setLine(m_joined.constData(), m_joined.size());
}

void LineReader::refuseLine()
{
    m_isTooLong = true;
    m_joined.clear();
    setLine(m_joined.constData(), 0);
}

/** Takes a line as it stands, or a copy without carriage returns when it has any. */
void LineReader::setLine(const char *data, int size)
{
    m_data = data;
    m_size = size;
    if (size == 0 || !std::memchr(data, '\r', size_t(size)))
        return;
    if (isAscii()) {
        m_joined = QByteArray(data, size);
        m_joined.replace('\r', "");
    } else {
        // Bytes that a carriage return keeps apart must not come together as a character.
        QString text = CellText(data, size).toString();
        m_joined = text.remove(QLatin1Char('\r')).toUtf8();
    }
    m_data = m_joined.constData();
    m_size = m_joined.size();
}

bool LineReader::isAscii() const
{
    const char *at = m_data;
    const char *const end = m_data + m_size;
    // Eight bytes at a time: nearly every line of a log is plain.
    for (; end - at >= 8; at += 8) {
        quint64 word;
        std::memcpy(&word, at, sizeof word);
        if (word & Q_UINT64_C(0x8080808080808080))
            return false;
    }
    for (; at != end; ++at) {
        if (*at & 0x80)
            return false;
    }
    return true;
}

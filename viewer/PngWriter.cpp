#include "viewer/PngWriter.h"

#include <QIODevice>
#include <QtEndian>

#include <zlib.h>

namespace
{

const char kSignature[] = "\x89PNG\r\n\x1a\n";
const char kColorBits = 8;
const char kOpaqueColor = 2;
const char kUnitMeter = 1;
const char kToldByLineAbove = 2;
const int kColors = 3;
const int kCompression = 3; // from 4 on, half as much time again for a sixth of the size
const int kChunkSize = 1 << 16;

QByteArray bigEndian(int number)
{
    QByteArray bytes(int(sizeof number), 0);
    qToBigEndian(quint32(number), bytes.data());
    return bytes;
}

/** The colours of a line of pixels, red, green and blue. */
void takeColors(const QRgb *pixels, QByteArray *colors)
{
    char *to = colors->data();
    for (const char *const end = to + colors->size(); to != end; ++pixels) {
        *to++ = char(qRed(*pixels));
        *to++ = char(qGreen(*pixels));
        *to++ = char(qBlue(*pixels));
    }
}

/** What has to be added to the line above, after the mark for it. */
void takeDifferences(const QByteArray &line, const QByteArray &above, QByteArray *differences)
{
    char *const to = differences->data() + 1;
    const char *const from = line.constData();
    const char *const fromAbove = above.constData();
    for (int i = 0; i < line.size(); ++i)
        to[i] = char(from[i] - fromAbove[i]);
}

/** Packs lines, and hands out what comes of it piece by piece. */
class Packer
{
public:
    Packer()
        : m_stream()
        , m_packed(kChunkSize, Qt::Uninitialized)
        , m_isGood(deflateInit(&m_stream, kCompression) == Z_OK)
    {
        startPiece();
    }
    ~Packer() { deflateEnd(&m_stream); }

    bool isGood() const { return m_isGood; }
    void take(const QByteArray &line)
    {
        // The stream only reads it; its older interface just does not say so.
        m_stream.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(line.constData()));
        m_stream.avail_in = uInt(line.size());
    }
    /** A piece that is full, or the last one with @p isLast; empty when there is none yet. */
    QByteArray nextPiece(bool isLast)
    {
        const bool isAll = deflate(&m_stream, isLast ? Z_FINISH : Z_NO_FLUSH) == Z_STREAM_END;
        if (m_stream.avail_out > 0 && !isAll)
            return QByteArray();
        const QByteArray piece = m_packed.left(m_packed.size() - int(m_stream.avail_out));
        startPiece();
        return piece;
    }

private:
    Q_DISABLE_COPY(Packer)
    void startPiece()
    {
        m_stream.next_out = reinterpret_cast<Bytef *>(m_packed.data());
        m_stream.avail_out = uInt(m_packed.size());
    }

    z_stream m_stream;
    QByteArray m_packed;
    bool m_isGood;
};

} // namespace

PngWriter::PngWriter(QIODevice *device, const Watcher &watcher)
    : m_device(device)
    , m_watcher(watcher)
{
}

bool PngWriter::write(const QImage &image)
{
    const QImage opaque = image.convertToFormat(QImage::Format_RGB32);
    return !opaque.isNull() && writeHeader(opaque) && writePixels(opaque)
        && writeChunk("IEND", QByteArray());
}

bool PngWriter::writeHeader(const QImage &image)
{
    const QByteArray signature(kSignature);
    if (m_device->write(signature) != signature.size())
        return false;
    const char methods[] = {kColorBits, kOpaqueColor, 0, 0, 0};
    const QByteArray resolution
        = bigEndian(image.dotsPerMeterX()) + bigEndian(image.dotsPerMeterY()) + kUnitMeter;
    return writeChunk("IHDR",
                      bigEndian(image.width()) + bigEndian(image.height())
                          + QByteArray(methods, int(sizeof methods)))
        && writeChunk("pHYs", resolution);
}

bool PngWriter::writePixels(const QImage &image)
{
    Packer packer;
    QByteArray line(image.width() * kColors, 0);
    QByteArray above(line.size(), 0);
    QByteArray differences(line.size() + 1, kToldByLineAbove);
    for (int y = 0; packer.isGood() && y < image.height(); ++y) {
        takeColors(reinterpret_cast<const QRgb *>(image.constScanLine(y)), &line);
        takeDifferences(line, above, &differences);
        line.swap(above);
        packer.take(differences);
        if (m_watcher && !m_watcher(double(y) / image.height()))
            return false;
        const bool isLast = y == image.height() - 1;
        QByteArray piece;
        do {
            piece = packer.nextPiece(isLast);
            if (!piece.isEmpty() && !writeChunk("IDAT", piece))
                return false;
        } while (piece.size() == kChunkSize);
    }
    return packer.isGood();
}

/** Each part of the file has its size before it and a checksum behind it. */
bool PngWriter::writeChunk(const char *type, const QByteArray &data)
{
    const QByteArray content = type + data;
    const uLong sum
        = crc32(0, reinterpret_cast<const Bytef *>(content.constData()), uInt(content.size()));
    const QByteArray chunk = bigEndian(data.size()) + content + bigEndian(int(sum));
    return m_device->write(chunk) == chunk.size();
}

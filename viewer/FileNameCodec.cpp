#include "viewer/FileNameCodec.h"

namespace
{

const int kUtf8 = 106;
const ushort kByte = 0xdc00; // what a lone byte is added to

/** Bytes of the character that begins with @p lead, were it well-formed. */
int lengthAfter(uchar lead)
{
    if (lead < 0xc0)
        return 1;
    return lead < 0xe0 ? 2 : (lead < 0xf0 ? 3 : 4);
}

bool isLoneByte(const QChar *text, int i)
{
    const ushort unit = text[i].unicode();
    return unit >= kByte + 0x80 && unit <= kByte + 0xff
        && (i == 0 || !text[i - 1].isHighSurrogate());
}

} // namespace

void FileNameCodec::install()
{
    if (codecForLocale()->mibEnum() == kUtf8)
        setCodecForLocale(new FileNameCodec); // it is the library's now
}

QString FileNameCodec::convertToUnicode(const char *bytes, int size, ConverterState *) const
{
    QString text = QString::fromUtf8(bytes, size);
    if (text.toUtf8() == QByteArray::fromRawData(bytes, size))
        return text;
    text.clear();
    for (int i = 0; i < size;) {
        const int length = qMin(lengthAfter(uchar(bytes[i])), size - i);
        const QByteArray character(bytes + i, length);
        const QString read = QString::fromUtf8(character);
        const bool isCharacter = read.toUtf8() == character;
        text += isCharacter ? read : QString(QChar(kByte + uchar(bytes[i])));
        i += isCharacter ? length : 1;
    }
    return text;
}

QByteArray FileNameCodec::convertFromUnicode(const QChar *text, int size, ConverterState *) const
{
    QByteArray bytes;
    int begin = 0;
    for (int i = 0; i < size; ++i) {
        if (!isLoneByte(text, i))
            continue;
        bytes += QString(text + begin, i - begin).toUtf8() + char(text[i].unicode() - kByte);
        begin = i + 1;
    }
    return bytes + QString(text + begin, size - begin).toUtf8();
}

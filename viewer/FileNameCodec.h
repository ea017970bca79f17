#ifndef DATALOG_VIEWER_FILENAMECODEC_H
#define DATALOG_VIEWER_FILENAMECODEC_H

#include <QTextCodec>

/**
 * Names of files as text, and back as the bytes that they were. To the system a name is any bytes;
 * Qt reads them as UTF-8 and can't find a file again whose name is none. Here a byte that is no
 * part of a character becomes one half of a surrogate pair, U+DC80 to U+DCFF, which no character
 * does.
 */
class FileNameCodec : public QTextCodec
{
public:
    /**
     * Has all names of files go this way, arguments of the program included, where the language
     * settings mean UTF-8, as no settings do. Other encodings have a character for each byte or
     * know which they lack.
     */
    static void install();

    QByteArray name() const override { return QByteArrayLiteral("datalog-file-names"); }
    int mibEnum() const override { return -3140; } // no registered encoding has a negative number

protected:
    QString convertToUnicode(const char *bytes, int size, ConverterState *state) const override;
    QByteArray convertFromUnicode(const QChar *text, int size,
                                  ConverterState *state) const override;
};

#endif

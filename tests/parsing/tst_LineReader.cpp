#include "parsing/LineReader.h"
#include "support/TempDir.h"
#include "support/TestCompat.h"

#include <random>

namespace
{

const int kBlock = 64 * 1024;

const char *const kPieces[] = {"\n",
                               "\n",
                               "\r\n",
                               "\r",
                               "a",
                               "bc",
                               "1.5\t",
                               " ",
                               "\xc3\xa9",
                               "\xe2\x82\xac",
                               "\xf0\x9f\x98\x80",
                               "\xef\xbb\xbf",
                               "\xc2\xa0",
                               "\xff",
                               "\xfe",
                               "\xe2\x82",
                               "\x80",
                               "\xf0\x9f",
                               "\xc0\xaf",
                               "\xed\xa0\x80",
                               "\xc3",
                               "\xf4\x90\x80\x80"};
const char *const kStarts[] = {"", "", "", "", "\xef\xbb\xbf", "\xef\xbb", "\xff\xfe", "\xfe\xff"};

template <int N> const char *oneOf(std::mt19937 &random, const char *const (&texts)[N])
{
    return texts[random() % N];
}

/** Pieces of lines, good and bad, at least @p size bytes of them. */
QByteArray soup(std::mt19937 &random, int size)
{
    QByteArray bytes = oneOf(random, kStarts);
    while (bytes.size() < size) {
        if (random() % 24 == 0)
            bytes.append('\0');
        else
            bytes += oneOf(random, kPieces);
    }
    return bytes;
}

/**
 * A line as far as it is anybody's promise: malformed bytes give some replacement characters, and
 * half a surrogate pair, which just UTF-16 can hold, has no form in UTF-8.
 */
QString settled(const QString &line)
{
    const QByteArray utf8 = "x" + line.toUtf8();
    const QString text = QString::fromUtf8(utf8.constData(), qMax(1, utf8.size()));
    QString result;
    for (int i = 1; i < text.size(); ++i) {
        if (text.at(i) != QChar(QChar::ReplacementCharacter) || text.at(i - 1) != text.at(i))
            result.append(text.at(i));
    }
    return result;
}

/** The text of bytes within a file, where a byte order mark is a character like any other. */
QString decoded(const LineReader &line)
{
    QByteArray bytes("x");
    bytes.append(line.data(), line.size());
    return QString::fromUtf8(bytes.constData(), qMax(1, bytes.size())).mid(1);
}

QStringList streamLines(const QString &path)
{
    QStringList lines;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return lines;
    QTextStream stream(&file);
    stream.setCodec("UTF-8");
    while (!stream.atEnd())
        lines.append(settled(stream.readLine()));
    return lines;
}

QStringList readerLines(const QString &path)
{
    QStringList lines;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return lines;
    LineReader reader(&file);
    while (!reader.atEnd()) {
        reader.next();
        lines.append(settled(decoded(reader)));
    }
    return lines;
}

/** The first line in which the two differ, for a message that can be read. */
QByteArray difference(const QStringList &actual, const QStringList &expected)
{
    int at = 0;
    while (at < actual.size() && at < expected.size() && actual.at(at) == expected.at(at))
        ++at;
    const QString text = QString::fromLatin1("line %1 of %2 and %3: \"%4\" for \"%5\"");
    return text.arg(at)
        .arg(actual.size())
        .arg(expected.size())
        .arg(actual.value(at).left(200), expected.value(at).left(200))
        .toUtf8();
}

} // namespace

class tst_LineReader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lines_data();
    void lines();
    void oneLongLine();
    void plainLines_data();
    void plainLines();
    void bytesRead_data();
    void bytesRead();
    void smallSoups_data();
    void smallSoups();
    void soupsAroundTheBlockSize_data();
    void soupsAroundTheBlockSize();

private:
    TempDir m_dir;
};

void tst_LineReader::lines_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("lines"); // each with a bar behind it
    const QString b = QString::fromUtf8("\xc3\xa9|b|");
    QTest::newRow("nothing") << QByteArray() << QString();
    QTest::newRow("line feed") << QByteArray("\n") << QString::fromLatin1("|");
    QTest::newRow("no end") << QByteArray("a") << QString::fromLatin1("a|");
    QTest::newRow("line feeds") << QByteArray("a\n\nb\n") << QString::fromLatin1("a||b|");
    QTest::newRow("both") << QByteArray("a\r\n\r\nb\r\n") << QString::fromLatin1("a||b|");
    QTest::newRow("carriage returns") << QByteArray("a\rb\r\rc") << QString::fromLatin1("abc|");
    QTest::newRow("carriage return only") << QByteArray("\r") << QString::fromLatin1("|");
    QTest::newRow("carriage return last") << QByteArray("a\n\r") << QString::fromLatin1("a|");
    QTest::newRow("UTF-8") << QByteArray("\xc3\xa9\nb") << b;
    QTest::newRow("mark") << QByteArray("\xef\xbb\xbf\xc3\xa9\nb") << b;
    QTest::newRow("mark only") << QByteArray("\xef\xbb\xbf") << QString::fromLatin1("|");
    QTest::newRow("mark of UTF-16, little") << QByteArray("\xff\xfe\xe9\0\n\0b\0", 8) << b;
    QTest::newRow("mark of UTF-16, big") << QByteArray("\xfe\xff\0\xe9\0\r\0\n\0b", 10) << b;
    QTest::newRow("mark of UTF-32, big")
        << QByteArray("\0\0\xfe\xff\0\0\0\xe9\0\0\0\n\0\0\0b", 16) << b;
    QTest::newRow("mark of UTF-32, little")
        << QByteArray("\xff\xfe\0\0\xe9\0\0\0\n\0\0\0b\0\0\0", 16) << b;
    QTest::newRow("mark in the text")
        << QByteArray("a\n\xef\xbb\xbfz") << QString::fromUtf8("a|\xef\xbb\xbfz|");
    QTest::newRow("NUL") << QByteArray("a\0b\nc", 5)
                         << QString::fromLatin1("a") + QChar(0) + QLatin1String("b|c|");
    QTest::newRow("malformed") << QByteArray("a\xff\nb") << QString::fromUtf8("a\xef\xbf\xbd|b|");
    QTest::newRow("split by a carriage return")
        << QByteArray("\xe2\r\x82\xac") << QString::fromUtf8("\xef\xbf\xbd|");
    QTest::newRow("cut off at the end")
        << QByteArray("a\nb\xe2\x82") << QString::fromLatin1("a|b|");
    QTest::newRow("just a cut-off character behind")
        << QByteArray("a\n\xf0\x9f\x98") << QString::fromLatin1("a|");
}

void tst_LineReader::lines()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, lines);
    const QString path = m_dir.write(QLatin1String("lines"), bytes);
    QString read;
    foreach (const QString &line, readerLines(path))
        read += line + QLatin1Char('|');
    QCOMPARE(read, lines);
    QCOMPARE(streamLines(path), readerLines(path));
}

void tst_LineReader::oneLongLine()
{
    const QByteArray line(3 * kBlock + 5, 'y');
    const QString path = m_dir.write(QLatin1String("long"), "x\n" + line + "\nz");
    const QStringList lines = readerLines(path);
    QCOMPARE(lines.size(), 3);
    QCOMPARE(lines.at(1), QString::fromLatin1(line));
    QCOMPARE(lines.at(2), QString::fromLatin1("z"));
}

void tst_LineReader::plainLines_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<bool>("plain");
    QTest::newRow("empty") << QByteArray("\n") << true;
    QTest::newRow("short") << QByteArray("abc") << true;
    QTest::newRow("eight") << QByteArray("12345678") << true;
    QTest::newRow("long") << QByteArray("1234567890123456789") << true;
    QTest::newRow("delete and NUL") << QByteArray("\x7f\0", 2) << true;
    QTest::newRow("first") << QByteArray("\xc3\xa9"
                                         "2345678901")
                           << false;
    QTest::newRow("in the first eight") << QByteArray("123\xc3\xa9"
                                                      "678901")
                                        << false;
    QTest::newRow("eighth and ninth") << QByteArray("1234567\xc3\xa9") << false;
    QTest::newRow("last") << QByteArray("12345678901\xc3\xa9") << false;
    QTest::newRow("malformed") << QByteArray("12345678\x80") << false;
}

void tst_LineReader::plainLines()
{
    QFETCH(QByteArray, line);
    QFETCH(bool, plain);
    QFile file(m_dir.write(QLatin1String("plain"), line));
    QVERIFY(file.open(QIODevice::ReadOnly));
    LineReader reader(&file);
    QVERIFY(!reader.atEnd());
    reader.next();
    QCOMPARE(reader.isAscii(), plain);
}

void tst_LineReader::bytesRead_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("counts"); // at the start, behind each line, at the end
    QTest::newRow("nothing") << QByteArray() << QString::fromLatin1("0 0");
    QTest::newRow("lines") << QByteArray("a\nbc\r\nd") << QString::fromLatin1("0 2 6 7 7");
    QTest::newRow("mark") << QByteArray("\xef\xbb\xbf"
                                        "a\nb")
                          << QString::fromLatin1("3 5 6 6");
    QTest::newRow("carriage return last") << QByteArray("a\n\r") << QString::fromLatin1("0 2 3");
    QTest::newRow("cut off") << QByteArray("a\n\xe2\x82") << QString::fromLatin1("0 2 4");
    // The stream that decodes it has read ahead.
    QTest::newRow("UTF-16") << QByteArray("\xff\xfe"
                                          "a\0\n\0b\0",
                                          8)
                            << QString::fromLatin1("0 8 8 8");
}

void tst_LineReader::bytesRead()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, counts);
    QFile file(m_dir.write(QLatin1String("bytes"), bytes));
    QVERIFY(file.open(QIODevice::ReadOnly));
    LineReader reader(&file);
    QStringList seen(QString::number(reader.bytesRead()));
    while (!reader.atEnd()) {
        reader.next();
        seen.append(QString::number(reader.bytesRead()));
    }
    seen.append(QString::number(reader.bytesRead()));
    QCOMPARE(seen.join(QLatin1String(" ")), counts);
}

void tst_LineReader::smallSoups_data()
{
    QTest::addColumn<int>("firstSeed");
    for (int seed = 0; seed < 3000; seed += 300)
        QTest::newRow(QByteArray::number(seed).constData()) << seed;
}

void tst_LineReader::smallSoups()
{
    QFETCH(int, firstSeed);
    for (int seed = firstSeed; seed < firstSeed + 300; ++seed) {
        std::mt19937 random = std::mt19937(quint32(seed));
        const QByteArray bytes = soup(random, int(random() % 80));
        const QString path = m_dir.write(QLatin1String("soup"), bytes);
        const QStringList actual = readerLines(path);
        const QStringList expected = streamLines(path);
        QVERIFY2(actual == expected,
                 QByteArray("seed " + QByteArray::number(seed) + ": " + bytes.toHex() + ": "
                            + difference(actual, expected))
                     .constData());
    }
}

void tst_LineReader::soupsAroundTheBlockSize_data()
{
    QTest::addColumn<int>("size");
    for (int size = kBlock - 6; size <= kBlock + 6; ++size)
        QTest::newRow(QByteArray::number(size).constData()) << size;
    for (int size = 2 * kBlock - 3; size <= 2 * kBlock + 3; ++size)
        QTest::newRow(QByteArray::number(size).constData()) << size;
}

void tst_LineReader::soupsAroundTheBlockSize()
{
    QFETCH(int, size);
    for (int seed = 0; seed < 5; ++seed) {
        std::mt19937 random = std::mt19937(quint32(size + 1000000 * seed));
        const QByteArray bytes = soup(random, size);
        const QString path = m_dir.write(QLatin1String("soup"), bytes);
        const QStringList actual = readerLines(path);
        const QStringList expected = streamLines(path);
        QVERIFY2(actual == expected, difference(actual, expected).constData());
    }
}

QTEST_GUILESS_MAIN(tst_LineReader)
#include "tst_LineReader.moc"

#include "viewer/FileNameCodec.h"

#include "support/TestCompat.h"

#include <QFile>

class tst_FileNameCodec : public QObject
{
    Q_OBJECT

private slots:
    void readsAndWritesAgain_data();
    void readsAndWritesAgain();
    void readsEveryByte();
    void keepsHalvesOfCharactersApart();
    void isUsedForFiles();
    void isNotFoundAsAnEncoding();
};

void tst_FileNameCodec::readsAndWritesAgain_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");

    const auto row = [](const char *name, const char *bytes, const QString &text) {
        QTest::newRow(name) << QByteArray(bytes) << text;
    };
    const auto lone = [](uchar byte) { return QString(QChar(0xdc00 + byte)); };
    row("nothing", "", "");
    row("ASCII", "a b.log", "a b.log");
    row("UTF-8", "\xc3\xa9\xe2\x82\xac\xf0\x9f\x98\x80", QString::fromUtf8("é€😀"));
    row("Latin-1", "caf\xe9.log", "caf" + lone(0xe9) + ".log");
    row("cut after one byte", "\xe2", lone(0xe2));
    row("cut before the last byte", "a\xe2\x82", "a" + lone(0xe2) + lone(0x82));
    row("cut, then another", "\xe2\x82\xc3\xa9", lone(0xe2) + lone(0x82) + QString::fromUtf8("é"));
    row("continuation", "\x80", lone(0x80));
    row("longer than needed", "\xc0\xaf", lone(0xc0) + lone(0xaf));
    row("half of a pair", "\xed\xb3\xa9", lone(0xed) + lone(0xb3) + lone(0xa9));
    row("beyond Unicode", "\xf4\x90\x80\x80", lone(0xf4) + lone(0x90) + lone(0x80) + lone(0x80));
    row("what stands for errors", "\xef\xbf\xbd", QString(QChar(0xfffd)));
    row("byte order mark",
        "\xef\xbb\xbf"
        "a",
        lone(0xef) + lone(0xbb) + lone(0xbf) + "a");
    row("never in UTF-8", "\xff\xfe", lone(0xff) + lone(0xfe));
}

void tst_FileNameCodec::readsAndWritesAgain()
{
    QFETCH(QByteArray, bytes);
    QTextCodec *const codec = new FileNameCodec;
    QTEST(codec->toUnicode(bytes), "text");
    QCOMPARE(codec->fromUnicode(codec->toUnicode(bytes)), bytes);
}

/** All pairs, so that no two names are taken for one. */
void tst_FileNameCodec::readsEveryByte()
{
    QTextCodec *const codec = new FileNameCodec;
    QSet<QString> texts;
    for (int first = 1; first < 256; ++first) {
        for (int second = 1; second < 256; ++second) {
            const QByteArray bytes{1, char(first)};
            const QByteArray pair = bytes + char(second);
            const QString text = codec->toUnicode(pair);
            texts.insert(text);
            QCOMPARE(codec->fromUnicode(text), pair);
        }
    }
    QCOMPARE(texts.size(), 255 * 255);
}

void tst_FileNameCodec::keepsHalvesOfCharactersApart()
{
    QTextCodec *const codec = new FileNameCodec;
    const QString pair = QString(QChar(0xd83d)) + QChar(0xdcff);
    QCOMPARE(codec->fromUnicode(pair), pair.toUtf8());
    QCOMPARE(pair.toUtf8().size(), 4);
}

void tst_FileNameCodec::isUsedForFiles()
{
    FileNameCodec::install();
    QCOMPARE(QTextCodec::codecForLocale()->name(), QByteArray("datalog-file-names"));
    QCOMPARE(QFile::encodeName(QFile::decodeName("caf\xe9.log")), QByteArray("caf\xe9.log"));
}

void tst_FileNameCodec::isNotFoundAsAnEncoding()
{
    FileNameCodec::install();
    QCOMPARE(QTextCodec::codecForName("UTF-8")->name(), QByteArray("UTF-8"));
    QCOMPARE(QTextCodec::codecForMib(106)->name(), QByteArray("UTF-8"));
    QCOMPARE(QTextCodec::codecForMib(3)->mibEnum(), 3);
}

QTEST_GUILESS_MAIN(tst_FileNameCodec)
#include "tst_FileNameCodec.moc"

#include "viewer/LocalPath.h"

#include "support/TestCompat.h"
#include "viewer/FileNameCodec.h"

class tst_LocalPath : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void namesFiles_data();
    void namesFiles();
    void readsWhatItIsMadeOf_data();
    void readsWhatItIsMadeOf();
};

void tst_LocalPath::initTestCase()
{
    FileNameCodec::install();
}

void tst_LocalPath::namesFiles_data()
{
    QTest::addColumn<QByteArray>("url");
    QTest::addColumn<QByteArray>("path");

    const auto row = [](const char *name, const char *url, const char *path) {
        QTest::newRow(name) << QByteArray(url) << QByteArray(path);
    };
    row("plain", "file:///logs/a.log", "/logs/a.log");
    row("blank", "file:///logs/a%20b.log", "/logs/a b.log");
    row("percent", "file:///logs/100%25.log", "/logs/100%.log");
    row("percent twice", "file:///logs/a%2520.log", "/logs/a%20.log");
    row("mark and question", "file:///logs/a%23b%3Fc.log", "/logs/a#b?c.log");
    row("plus", "file:///logs/a+b.log", "/logs/a+b.log");
    row("line feed", "file:///logs/a%0Ab.log", "/logs/a\nb.log");
    row("UTF-8", "file:///logs/%C3%A9.log", "/logs/\xc3\xa9.log");
    row("Latin-1", "file:///logs/caf%E9.log", "/logs/caf\xe9.log");
    row("cut UTF-8", "file:///logs/%E2%82", "/logs/\xe2\x82");
    row("another machine", "file://there/logs/a%20b.log", "//there/logs/a b.log");
    row("no file", "https://example.org/a.log", "https://example.org/a.log");
}

void tst_LocalPath::namesFiles()
{
    QFETCH(QByteArray, url);
    const QString path = LocalPath::of(QUrl::fromEncoded(url));
    QTEST(QFile::encodeName(path), "path");
    if (path.startsWith('/'))
        QCOMPARE(LocalPath::of(LocalPath::toUrl(path)), path);
}

void tst_LocalPath::readsWhatItIsMadeOf_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("plain") << "/logs/a.log";
    QTest::newRow("address") << "/logs/a%20b%41.log";
    QTest::newRow("marks") << "/logs/a#b?c&d;e=f:g@h.log";
    QTest::newRow("backslash") << "/logs/a\\b.log";
    QTest::newRow("beyond ASCII") << QString::fromUtf8("/Protokolle/µ€😀.log");
}

void tst_LocalPath::readsWhatItIsMadeOf()
{
    QFETCH(QString, path);
    QCOMPARE(LocalPath::of(QUrl::fromLocalFile(path)), path);
    QCOMPARE(LocalPath::of(LocalPath::toUrl(path)), path);
    QCOMPARE(LocalPath::toUrl(path).toLocalFile(), path);
}

QTEST_GUILESS_MAIN(tst_LocalPath)
#include "tst_LocalPath.moc"

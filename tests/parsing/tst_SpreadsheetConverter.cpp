#include "parsing/SpreadsheetConverter.h"

#include "FakePython.h"
#include "support/MessageCapture.h"
#include "support/TestCompat.h"

#include <QTextCodec>

#include <cerrno>
#include <csignal>

class tst_SpreadsheetConverter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void timeouts();
    void arguments_data();
    void arguments();
    void output_data();
    void output();
    void noInterpreter_data();
    void noInterpreter();
    void endless();
    void endlessAfterPrinting();
    void endlessAfterClosingItsOutput();
    void flood_data();
    void flood();
    void leavesAChildBehind();
    void standardInputIsOpen();
};

void tst_SpreadsheetConverter::initTestCase()
{
    // File names are then UTF-8 whatever the environment of the test says.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
}

void tst_SpreadsheetConverter::timeouts()
{
    SpreadsheetConverter converter;
    QCOMPARE(converter.timeout(), 30000);
    converter.setTimeout(17);
    QCOMPARE(converter.timeout(), 17);
}

void tst_SpreadsheetConverter::arguments_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("plain") << QByteArray("/logs/day.xls");
    QTest::newRow("blanks") << QByteArray(" two  words.xls ");
    QTest::newRow("quotes") << QByteArray("\"a\" 'b'.xls");
    QTest::newRow("unbalanced quotes") << QByteArray("a\"b'c.xls");
    QTest::newRow("shell") << QByteArray("$(touch x);`id`&&a|b>c<d*?[e]~.xls");
    QTest::newRow("backslashes") << QByteArray("a\\b\\\\c\\n.xls");
    QTest::newRow("line feed and tab") << QByteArray("a\nb\tc.xls");
    QTest::newRow("option") << QByteArray("-c");
    QTest::newRow("percent") << QByteArray("100%1%20.xls");
    QTest::newRow("UTF-8") << QByteArray("\xc3\xa9\xe2\x82\xac\xf0\x9f\x98\x80.xls");
}

void tst_SpreadsheetConverter::arguments()
{
    QFETCH(QByteArray, name);
    const FakePython python("echo out.csv");
    QCOMPARE(SpreadsheetConverter().convert(QString::fromUtf8(name)),
             QString::fromLatin1("out.csv"));
    QCOMPARE(python.arguments(),
             QList<QByteArray>() << QByteArray("/home/tarvo/Scripts/ExcelToCSV.py") << name);
}

void tst_SpreadsheetConverter::output_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QString>("path");
    const QString path = QString::fromLatin1("/a/b.csv");
    QTest::newRow("plain") << QByteArray("printf /a/b.csv") << path;
    QTest::newRow("line feed") << QByteArray("echo /a/b.csv") << path;
    QTest::newRow("blanks around") << QByteArray("printf ' \\t\\r\\n /a/b.csv \\n\\n'") << path;
    QTest::newRow("blanks inside")
        << QByteArray("printf '/a/b \\n\\t c.csv'") << QString::fromLatin1("/a/b c.csv");
    QTest::newRow("zero byte behind") << QByteArray("printf '/a/b.csv\\0junk'") << path;
    QTest::newRow("zero byte before") << QByteArray("printf '\\0/a/b.csv'") << QString();
    QTest::newRow("Latin-1") << QByteArray("printf '/\\351.csv'")
                             << QString::fromUtf8("/\xc3\xa9.csv");
    QTest::newRow("nothing") << QByteArray("true") << QString();
    QTest::newRow("just blanks") << QByteArray("printf ' \\n'") << QString();
    QTest::newRow("fails") << QByteArray("exit 3") << QString();
    QTest::newRow("fails with a message") << QByteArray("echo broken >&2; exit 1") << QString();
    QTest::newRow("prints and fails") << QByteArray("echo /a/b.csv; exit 1") << path;
    QTest::newRow("message beside") << QByteArray("echo note >&2; echo /a/b.csv") << path;
    QTest::newRow("crashes") << QByteArray("kill -SEGV $$") << QString();
    QTest::newRow("prints in parts") << QByteArray("printf /a; printf /b; echo .csv") << path;
}

void tst_SpreadsheetConverter::output()
{
    QFETCH(QByteArray, script);
    QFETCH(QString, path);
    const FakePython python(script);
    const MessageCapture capture;
    QCOMPARE(SpreadsheetConverter().convert(QLatin1String("day.xls")), path);
    QCOMPARE(capture.messages(), QStringList());
}

void tst_SpreadsheetConverter::noInterpreter_data()
{
    QTest::addColumn<QByteArray>("path");
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("no such directory") << QByteArray("/no/such/directory");
}

void tst_SpreadsheetConverter::noInterpreter()
{
    QFETCH(QByteArray, path);
    const OtherPath other(path);
    const MessageCapture capture;
    QCOMPARE(SpreadsheetConverter().convert(QLatin1String("day.xls")), QString());
    QCOMPARE(capture.messages(), QStringList());
}

void tst_SpreadsheetConverter::endless()
{
    const FakePython python("echo $$ > \"$FAKE/pid\"; exec sleep 600");
    const MessageCapture capture;
    SpreadsheetConverter converter;
    converter.setTimeout(1000);
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(converter.convert(QLatin1String("day.xls")), QString());
    QVERIFY(timer.elapsed() >= 900);
    QVERIFY(timer.elapsed() < 60000);
    QCOMPARE(capture.messages(), QStringList());
    // Nothing of it is left running.
    const int pid = python.fileContents(QLatin1String("pid")).trimmed().toInt();
    QVERIFY(pid > 1);
    QCOMPARE(kill(pid, 0), -1);
    QCOMPARE(errno, ESRCH);
}

void tst_SpreadsheetConverter::endlessAfterPrinting()
{
    const FakePython python("echo /a/b.csv; exec sleep 600");
    SpreadsheetConverter converter;
    converter.setTimeout(1000);
    QCOMPARE(converter.convert(QLatin1String("day.xls")), QString::fromLatin1("/a/b.csv"));
}

void tst_SpreadsheetConverter::endlessAfterClosingItsOutput()
{
    const FakePython python("echo /a/b.csv; exec >&- 2>&-; exec sleep 600");
    SpreadsheetConverter converter;
    converter.setTimeout(1000);
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(converter.convert(QLatin1String("day.xls")), QString::fromLatin1("/a/b.csv"));
    QVERIFY(timer.elapsed() < 60000);
}

void tst_SpreadsheetConverter::flood_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QString>("path");
    QTest::newRow("endless output") << QByteArray("exec yes /a/b.csv") << QString();
    QTest::newRow("endless output without lines") << QByteArray("exec cat /dev/zero") << QString();
    QTest::newRow("too much output")
        << QByteArray("echo /a/b.csv; head -c 1048576 /dev/zero | tr '\\0' ' '") << QString();
    QTest::newRow("much output") << QByteArray(
        "echo /a/b.csv; head -c 1000000 /dev/zero | tr '\\0' ' '")
                                 << QString::fromLatin1("/a/b.csv");
    QTest::newRow("much on the standard error")
        << QByteArray("head -c 50000000 /dev/zero >&2; echo /a/b.csv")
        << QString::fromLatin1("/a/b.csv");
}

void tst_SpreadsheetConverter::flood()
{
    QFETCH(QByteArray, script);
    QFETCH(QString, path);
    const FakePython python(script);
    QElapsedTimer timer;
    timer.start();
    // The full wait of 30 s is not needed to see that there is too much.
    QCOMPARE(SpreadsheetConverter().convert(QLatin1String("day.xls")), path);
    QVERIFY2(timer.elapsed() < 25000, QByteArray::number(timer.elapsed()).constData());
}

void tst_SpreadsheetConverter::leavesAChildBehind()
{
    // It holds the standard output open long after the script has gone.
    const FakePython python("sleep 40 & echo $! > \"$FAKE/pid\"; echo /a/b.csv");
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(SpreadsheetConverter().convert(QLatin1String("day.xls")),
             QString::fromLatin1("/a/b.csv"));
    QVERIFY2(timer.elapsed() < 25000, QByteArray::number(timer.elapsed()).constData());
    kill(python.fileContents(QLatin1String("pid")).trimmed().toInt(), SIGKILL);
}

void tst_SpreadsheetConverter::standardInputIsOpen()
{
    // A closed one would let the reader go on at once.
    const FakePython python("read line; echo unexpected");
    SpreadsheetConverter converter;
    converter.setTimeout(500);
    QCOMPARE(converter.convert(QLatin1String("day.xls")), QString());
}

QTEST_GUILESS_MAIN(tst_SpreadsheetConverter)
#include "tst_SpreadsheetConverter.moc"

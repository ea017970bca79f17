#include "ParserFixture.h"
#include "support/TestCompat.h"

namespace
{

const char kLog[] = "[Header]\nCreated,now\n[Data]\ng,g,g\na,b,c\nu,v,w\n1,2,3\n";

QString failure(const QString &path, const char *cause)
{
    return QString::fromLatin1("LogParser: Failed to read file at path %1: %2.")
        .arg(path, QLatin1String(cause));
}

/** @p text as UTF-16 with a byte order mark, the high byte first. */
QByteArray utf16(const QByteArray &text)
{
    QByteArray bytes("\xfe\xff");
    for (int i = 0; i < text.size(); ++i)
        bytes.append('\0').append(text.at(i));
    return bytes;
}

} // namespace

/** Logs at and beyond what can be held. */
class tst_LogLimits : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaults();
    void lowered_data();
    void lowered();
    void stopsAtTheLine();
    void threeGigabytesWithoutALine();
};

void tst_LogLimits::defaults()
{
    const LogLimits limits = LogParser().limits();
    QCOMPARE(limits.lineBytes, 67108864);
    QCOMPARE(limits.cellsInLine, 1048576);
    QCOMPARE(limits.lines, 134217728);
    // The longest line that can be fits every text, and the cells of all lines every list.
    QVERIFY(qint64(limits.lineBytes) * qint64(sizeof(QChar)) < Q_INT64_C(1) << 31);
    QVERIFY(qint64(limits.cellsInLine) * qint64(sizeof(void *)) < Q_INT64_C(1) << 31);
    QVERIFY(qint64(limits.lines) * qint64(sizeof(double)) < Q_INT64_C(1) << 31);
}

void tst_LogLimits::lowered_data()
{
    QTest::addColumn<int>("lineBytes");
    QTest::addColumn<int>("cellsInLine");
    QTest::addColumn<int>("lines");
    QTest::addColumn<QByteArray>("log");
    QTest::addColumn<QString>("cause");
    const QByteArray log(kLog);
    const QString none;
    QTest::newRow("all limits reached") << 11 << 3 << 7 << log << none;
    QTest::newRow("last line too long") << 11 << 9 << 9 << log + "1,2,34567890"
                                        << QString::fromLatin1("line 8 is longer than 11 bytes");
    QTest::newRow("last line as long as can be") << 11 << 9 << 9 << log + "1,2,3456789" << none;
    QTest::newRow("bytes count, not characters")
        << 11 << 9 << 9 << log + "1,2,345678\xc3\xa9\n"
        << QString::fromLatin1("line 8 is longer than 11 bytes");
    QTest::newRow("header line too long")
        << 10 << 9 << 9 << log << QString::fromLatin1("line 2 is longer than 10 bytes");
    QTest::newRow("first line too long")
        << 7 << 9 << 9 << log << QString::fromLatin1("line 1 is longer than 7 bytes");
    QTest::newRow("UTF-16, as long as can be") << 11 << 9 << 9 << utf16(log) << none;
    QTest::newRow("UTF-16, too long")
        << 10 << 9 << 9 << utf16(log) << QString::fromLatin1("line 2 is longer than 10 bytes");
    QTest::newRow("data cells") << 99 << 3 << 9 << log + "1,2,3,4\n"
                                << QString::fromLatin1("line 8 has more than 3 cells");
    QTest::newRow("data cells beyond ASCII") << 99 << 3 << 9 << log + "1,2,3,\xc3\xa9\n"
                                             << QString::fromLatin1("line 8 has more than 3 cells");
    QTest::newRow("header cells") << 99 << 2 << 9 << log
                                  << QString::fromLatin1("line 4 has more than 2 cells");
    QTest::newRow("lines") << 99 << 9 << 6 << log
                           << QString::fromLatin1("it has more than 6 lines");
    QTest::newRow("lines of a second block")
        << 99 << 9 << 13 << log + log << QString::fromLatin1("it has more than 13 lines");
    QTest::newRow("lines behind an error") << 99 << 9 << 3 << QByteArray("x\n1\n2\n3\n")
                                           << QString::fromLatin1("it has more than 3 lines");
}

void tst_LogLimits::lowered()
{
    QFETCH(int, lineBytes);
    QFETCH(int, cellsInLine);
    QFETCH(int, lines);
    QFETCH(QByteArray, log);
    QFETCH(QString, cause);
    LogLimits limits;
    limits.lineBytes = lineBytes;
    limits.cellsInLine = cellsInLine;
    limits.lines = lines;
    ParserFixture fixture;
    fixture.parse(kLog);
    fixture.parser.setLimits(limits);
    const QString path = fixture.dir.write(QLatin1String("large.log"), log);
    const QString error = fixture.parsePath(path);
    QCOMPARE(error, cause.isEmpty() ? QString() : failure(path, cause.toLatin1().constData()));
    // What is refused leaves nothing of itself, nor of the log before it.
    QCOMPARE(fixture.count(), cause.isEmpty() ? 1 : 0);
    QCOMPARE(fixture.table().rawData().isEmpty(), !cause.isEmpty());
    QVERIFY(!fixture.parser.isParsing());
    // And the next log is read as ever.
    fixture.parser.setLimits(LogLimits());
    QCOMPARE(fixture.parse(kLog), QString());
    QCOMPARE(shown(fixture.table().columnData(0)), QString::fromLatin1("1/2/3"));
}

void tst_LogLimits::stopsAtTheLine()
{
    LogLimits limits;
    limits.lineBytes = 100;
    ParserFixture fixture;
    fixture.parser.setLimits(limits);
    const QByteArray log = QByteArray(kLog) + QByteArray(101, 'x');
    const QString path
        = fixture.dir.write(QLatin1String("large.log"), log + QByteArray(10000000, '\n'));
    QCOMPARE(fixture.parsePath(path), failure(path, "line 8 is longer than 100 bytes"));
    QVERIFY(fixture.parser.bytesRead() < 200);
}

void tst_LogLimits::threeGigabytesWithoutALine()
{
    ParserFixture fixture;
    const QString path = fixture.dir.write(QLatin1String("large.log"), kLog);
    QFile file(path);
    const qint64 size = Q_INT64_C(3) << 30; // all but the start are holes, which take no room
    QVERIFY(file.resize(size));
    QCOMPARE(fixture.parsePath(path), failure(path, "line 8 is longer than 67108864 bytes"));
    QCOMPARE(fixture.parser.bytesTotal(), size);
    QVERIFY(fixture.parser.bytesRead() < 68 * 1024 * 1024);
}

QTEST_GUILESS_MAIN(tst_LogLimits)
#include "tst_LogLimits.moc"

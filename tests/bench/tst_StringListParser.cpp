#include "bench/StringListParser.h"

#include "bench/LogWriter.h"
#include "support/TestCompat.h"

#include <QTemporaryFile>
#include <QtTest>

/** The yardstick has to do the whole work, or it measures nothing. */
class tst_StringListParser : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsCellsThreeTimes();
    void blocks();
    void remarks();
    void quotedTime();
    void longRow();
    void refusesOtherFiles_data();
    void refusesOtherFiles();
    void missingFile();
    void secondReadReplacesFirst();
    void generatedLog();
    void handlesEvents();

private:
    static bool read(StringListParser *parser, const QByteArray &text);
};

namespace
{

const char kPreamble[] = "[Header]\n"
                         "Created\t2016-03-14\n"
                         "[Data]\n"
                         "System\tSystem\tClimate\n"
                         "Obs\tTime\tTair\n"
                         "\thh:mm:ss\tC\n";

QStringList cells(const char *text)
{
    return QString::fromLatin1(text).split(QLatin1Char('|'));
}

/** Counts the events that reach it. */
class EventCounter : public QObject
{
public:
    EventCounter()
        : count(0)
    {
    }
    void customEvent(QEvent *) override { ++count; }

    int count;
};

} // namespace

bool tst_StringListParser::read(StringListParser *parser, const QByteArray &text)
{
    QTemporaryFile file;
    return file.open() && file.write(text) == text.size() && file.flush()
        && parser->read(file.fileName());
}

void tst_StringListParser::keepsCellsThreeTimes()
{
    StringListParser parser;
    QVERIFY(read(&parser, QByteArray(kPreamble) + "1\t10:00:00\t20.5\n 2\t10:00:01\t20.6 \n"));
    const QList<QStringList> rows = QList<QStringList>()
        << cells("1|10:00:00|20.5") << cells("2|10:00:01|20.6");
    QCOMPARE(parser.dataSetCount(), 1);
    QCOMPARE(parser.rows(), rows);
    QCOMPARE(parser.observations(0), rows);
    QCOMPARE(parser.columns(0),
             QList<QStringList>() << cells("1|2") << cells("10:00:00|10:00:01")
                                  << cells("20.5|20.6"));
    QCOMPARE(parser.headerRows(0),
             QList<QStringList>() << cells("System|System|Climate") << cells("Obs|Time|Tair")
                                  << cells("|hh:mm:ss|C"));
    QCOMPARE(parser.cellCount(), qint64(6));
}

void tst_StringListParser::blocks()
{
    StringListParser parser;
    QVERIFY(read(&parser, QByteArray(kPreamble) + "1\ta\tb\n" + kPreamble + "1\tc\td\n2\te\tf\n"));
    QCOMPARE(parser.dataSetCount(), 2);
    QCOMPARE(parser.columns(0).at(2), cells("b"));
    QCOMPARE(parser.columns(1).at(2), cells("d|f"));
    QCOMPARE(parser.rows().size(), 3);
}

void tst_StringListParser::remarks()
{
    StringListParser parser;
    QVERIFY(read(&parser, QByteArray(kPreamble) + "\"Door\" open\nWatered\ttray 1\n\n"));
    QCOMPARE(parser.observations(0),
             QList<QStringList>() << cells("Remarks|Door open") << cells("Remarks|Watered|tray 1")
                                  << cells("Remarks|"));
    QCOMPARE(parser.columns(0).at(2), cells("tray 1"));
}

void tst_StringListParser::quotedTime()
{
    StringListParser parser;
    QVERIFY(read(&parser, QByteArray(kPreamble) + "1\t\"10:00:00\"\t20.5\n"));
    QCOMPARE(parser.columns(0).at(1), cells("10:00:00"));
    QCOMPARE(parser.observations(0).at(0).at(1), QString::fromLatin1("\"10:00:00\""));
}

void tst_StringListParser::longRow()
{
    StringListParser parser;
    QVERIFY(read(&parser, QByteArray(kPreamble) + "1\ta\tb\tc\n2\td\te\n"));
    QCOMPARE(parser.columns(0).size(), 4);
    QCOMPARE(parser.columns(0).at(3), cells("c"));
    QCOMPARE(parser.cellCount(), qint64(7));
}

void tst_StringListParser::refusesOtherFiles_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("other text") << QByteArray("Obs\tTime\n") << false;
    QTest::newRow("text after the mark") << QByteArray("[Header] 3\n") << false;
    QTest::newRow("mark in lower case") << QByteArray(" [header]\n") << true;
}

void tst_StringListParser::refusesOtherFiles()
{
    QFETCH(QByteArray, text);
    QFETCH(bool, accepted);
    StringListParser parser;
    QCOMPARE(read(&parser, text), accepted);
}

void tst_StringListParser::missingFile()
{
    StringListParser parser;
    QVERIFY(!parser.read(QLatin1String("/no/such/file.log")));
}

void tst_StringListParser::secondReadReplacesFirst()
{
    StringListParser parser;
    QVERIFY(read(&parser, QByteArray(kPreamble) + "1\ta\tb\n"));
    QVERIFY(read(&parser, QByteArray(kPreamble) + "9\tc\td\n"));
    QCOMPARE(parser.dataSetCount(), 1);
    QCOMPARE(parser.rows(), QList<QStringList>() << cells("9|c|d"));
}

void tst_StringListParser::generatedLog()
{
    QTemporaryFile file;
    QVERIFY(file.open());
    QVERIFY(LogWriter(700, 20).write(&file));
    QVERIFY(file.flush());
    StringListParser parser;
    QVERIFY(parser.read(file.fileName()));
    QCOMPARE(parser.cellCount(), qint64(700 * 20));
    QCOMPARE(parser.headerRows(0).at(1).size(), 20);
    QCOMPARE(parser.columns(0).at(0).last(), QString::fromLatin1("700"));
}

void tst_StringListParser::handlesEvents()
{
    EventCounter counter;
    QCoreApplication::postEvent(&counter, new QEvent(QEvent::User));
    StringListParser parser;
    QVERIFY(read(&parser, kPreamble));
    QCOMPARE(counter.count, 1);
}

QTEST_GUILESS_MAIN(tst_StringListParser)
#include "tst_StringListParser.moc"

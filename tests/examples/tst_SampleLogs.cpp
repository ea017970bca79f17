#include "model/LogDataSet.h"
#include "model/Observation.h"
#include "model/VariableGroup.h"
#include "parsing/LogParser.h"

#include "support/TestCompat.h"

#include <QDir>
#include <QtTest>

/** Reads each file of the sample logs: what its README promises is what the parser makes of it. */
class tst_SampleLogs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void chamberBlocks_data();
    void chamberBlocks();
    void chamberGroups();
    void chamberColumnsLineUp_data();
    void chamberColumnsLineUp();
    void chamberConstants();
    void chamberClockPassesMidnight();
    void chamberRemarks();
    void chamberMissingCells();
    void chamberQuotedTimes();
    void commasHoldTheSameAsTabs();
    void oneBlockIsComplete();
    void brokenFiles_data();
    void brokenFiles();
    void everyBrokenFileIsTried();
    void badBytes();

private:
    static QString path(const char *name);
    static QString read(LogParser *parser, const QString &name);
};

namespace
{

const char kChamberLog[] = "climate-chamber.log";
const char kChamberCsv[] = "climate-chamber.csv";

QStringList words(const char *text)
{
    return QString::fromUtf8(text).split(QLatin1Char(' '));
}

} // namespace

QString tst_SampleLogs::path(const char *name)
{
    return QString::fromUtf8(DATALOG_SOURCE_DIR "/examples/logs/") + QLatin1String(name);
}

/** Gives the error text. */
QString tst_SampleLogs::read(LogParser *parser, const QString &file)
{
    const bool byCommas = file.endsWith(QLatin1String(".csv"));
    parser->setLogParserType(byCommas ? LogParser::CsvType : LogParser::LogType);
    QString error = QLatin1String("untouched");
    parser->parseFileAtPath(file, error);
    return error;
}

void tst_SampleLogs::chamberBlocks_data()
{
    QTest::addColumn<QString>("file");
    QTest::newRow("tabs") << path(kChamberLog);
    QTest::newRow("commas") << path(kChamberCsv);
}

void tst_SampleLogs::chamberBlocks()
{
    QFETCH(QString, file);
    LogParser parser;
    QCOMPARE(read(&parser, file), QString());
    const QList<LogDataSet *> sets = parser.tabularParser().dataSets();
    QCOMPARE(sets.size(), 3);
    QCOMPARE(sets.at(0)->variables().size(), 30);
    QCOMPARE(sets.at(1)->variables().size(), 12);
    QCOMPARE(sets.at(2)->variables().size(), 34);
    QCOMPARE(sets.at(0)->observations().size(), 5000);
    QCOMPARE(sets.at(1)->observations().size(), 404);
    QCOMPARE(sets.at(2)->observations().size(), 301);
    QCOMPARE(sets.at(0)->dataSetCreatedDate(), QString::fromLatin1("2016-03-14 16:38:02"));
    QCOMPARE(sets.at(2)->dataSetCreatedDate(), QString::fromLatin1("2016-03-16 08:01:15"));
    parser.tabularParser().clear();
}

void tst_SampleLogs::chamberGroups()
{
    LogParser parser;
    read(&parser, path(kChamberLog));
    QStringList names;
    QList<int> sizes;
    foreach (const VariableGroup *group, parser.tabularParser().groups(0)) {
        names.append(group->option());
        sizes.append(group->variables().size());
    }
    QCOMPARE(names, words("Climate Gas Light Power System"));
    QCOMPARE(sizes, QList<int>() << 9 << 6 << 5 << 5 << 5);
    QCOMPARE(parser.tabularParser().groups(2).size(), 6);
    parser.tabularParser().clear();
}

void tst_SampleLogs::chamberColumnsLineUp_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("firstUnit");
    QTest::newRow("tabs") << path(kChamberLog) << QString();
    QTest::newRow("commas") << path(kChamberCsv) << QString::fromLatin1("\t");
}

void tst_SampleLogs::chamberColumnsLineUp()
{
    QFETCH(QString, file);
    QFETCH(QString, firstUnit);
    LogParser parser;
    read(&parser, file);
    for (int block = 0; block < 3; ++block) {
        const QList<QStringList> headers = parser.tabularParser().headerData(block);
        QCOMPARE(headers.first(), words("System Obs") << firstUnit);
        QCOMPARE(headers.at(1), words("System Time hh:mm:ss"));
    }
    const QList<QStringList> headers = parser.tabularParser().headerData(0);
    QCOMPARE(headers.at(6), words("Climate Tair °C"));
    QCOMPARE(headers.at(21), words("Light PAR µmol/m²/s"));
    QCOMPARE(headers.last(), words("Power Power W"));
    parser.tabularParser().clear();
}

void tst_SampleLogs::chamberConstants()
{
    LogParser parser;
    read(&parser, path(kChamberLog));
    const QStringList keys = parser.tabularParser().constHeader(0);
    const QList<QStringList> values = parser.tabularParser().constData(0);
    QCOMPARE(parser.tabularParser().constGroups(0), words("Sys Cal Probe Const"));
    QVERIFY(!keys.contains(QLatin1String("Operator")));
    QCOMPARE(values.at(keys.indexOf(QLatin1String("Probe:"))),
             QStringList() << QLatin1String("Pt100 air") << QLatin1String("Pt100 soil")
                           << QLatin1String("Pt100 case"));
    QCOMPARE(values.at(keys.indexOf(QLatin1String("Cal:Date"))), words("2016-02-29 2016-03-07"));
    QCOMPARE(values.at(keys.indexOf(QLatin1String("Sys:Serial"))), words("CC-1042"));
    parser.tabularParser().clear();
}

void tst_SampleLogs::chamberClockPassesMidnight()
{
    LogParser parser;
    read(&parser, path(kChamberLog));
    const QStringList times = parser.tabularParser().dataForColumn(0, 1);
    const int midnight = times.indexOf(QLatin1String("00:00:00"));
    QCOMPARE(times.at(3), QString::fromLatin1("16:40:00"));
    QCOMPARE(times.value(midnight - 1), QString::fromLatin1("23:59:40"));
    QCOMPARE(times.last(), QString::fromLatin1("20:25:20"));
    parser.tabularParser().clear();
}

void tst_SampleLogs::chamberRemarks()
{
    LogParser parser;
    read(&parser, path(kChamberLog));
    const TabularParser &tabular = parser.tabularParser();
    QCOMPARE(tabular.observations(0).at(0)->values(),
             QStringList() << QLatin1String("Remarks")
                           << QLatin1String("Run 17: response to light and CO2 and temperature; "
                                            "then a frost test"));
    QCOMPARE(tabular.observations(0).at(1)->values(),
             QStringList() << QLatin1String("Remarks") << QLatin1String("Trays 1 to 6 planted")
                           << QLatin1String("40 d"));
    QCOMPARE(tabular.dataForColumn(0, 0).count(QLatin1String("Remarks")), 3);
    QCOMPARE(tabular.dataForColumn(1, 0).count(QLatin1String("Remarks")), 4);
    QCOMPARE(tabular.dataForColumn(2, 0).count(QLatin1String("Remarks")), 1);
    QCOMPARE(tabular.observations(1).at(403)->values(),
             QStringList() << QLatin1String("Remarks") << QString());
    parser.tabularParser().clear();
}

void tst_SampleLogs::chamberMissingCells()
{
    LogParser parser;
    read(&parser, path(kChamberLog));
    const TabularParser &tabular = parser.tabularParser();
    const QStringList variables = tabular.variables(0);
    const int tdew = variables.indexOf(QLatin1String("Tdew"));
    const int oxygen = variables.indexOf(QLatin1String("O2"));
    const int heater = variables.indexOf(QLatin1String("Heater"));
    QCOMPARE(tabular.dataForColumn(0, tdew).count(QString()), 30);
    QCOMPARE(tabular.dataForColumn(0, oxygen).count(QString()), 18);
    // Three remarks reach but the first columns, and three rows end before the last group.
    QCOMPARE(tabular.dataForColumn(0, heater - 1).size(), 5000 - 3);
    QCOMPARE(tabular.dataForColumn(0, heater).size(), 5000 - 3 - 3);
    QCOMPARE(tabular.observations(0).at(1253)->values().size(), 25);
    parser.tabularParser().clear();
}

void tst_SampleLogs::chamberQuotedTimes()
{
    LogParser parser;
    read(&parser, path(kChamberLog));
    const TabularParser &tabular = parser.tabularParser();
    QCOMPARE(tabular.dataForColumn(1, 1).at(0), QString::fromLatin1("21:10:00"));
    QCOMPARE(tabular.observations(1).at(0)->values().at(1), QString::fromLatin1("\"21:10:00\""));
    parser.tabularParser().clear();
}

void tst_SampleLogs::commasHoldTheSameAsTabs()
{
    LogParser tabs;
    LogParser commas;
    read(&tabs, path(kChamberLog));
    read(&commas, path(kChamberCsv));
    for (int block = 0; block < 3; ++block) {
        QCOMPARE(commas.tabularParser().variables(block), tabs.tabularParser().variables(block));
        QCOMPARE(commas.tabularParser().constData(block), tabs.tabularParser().constData(block));
        QCOMPARE(commas.tabularParser().columnData(block), tabs.tabularParser().columnData(block));
    }
    tabs.tabularParser().clear();
    commas.tabularParser().clear();
}

void tst_SampleLogs::oneBlockIsComplete()
{
    LogParser parser;
    QCOMPARE(read(&parser, path("one-block.log")), QString());
    QCOMPARE(parser.tabularParser().dataSets().size(), 1);
    const QList<QStringList> columns = parser.tabularParser().columnData(0);
    QCOMPARE(columns.size(), 12);
    foreach (const QStringList &column, columns) {
        QCOMPARE(column.size(), 500);
        QVERIFY(!column.contains(QString()));
    }
    parser.tabularParser().clear();
}

void tst_SampleLogs::brokenFiles_data()
{
    const QString accepted;
    const QString refused = QString::fromLatin1("Log File must start with [Header] section.");
    QTest::addColumn<QString>("error");
    QTest::addColumn<int>("dataSets");
    QTest::addColumn<int>("columns");
    QTest::addColumn<int>("observations");

    QTest::newRow("empty") << accepted << 0 << 0 << 0;
    QTest::newRow("no-header-mark") << refused << 0 << 0 << 0;
    QTest::newRow("text-after-header-mark") << refused << 0 << 0 << 0;
    QTest::newRow("ends-after-header-mark") << accepted << 0 << 0 << 0;
    QTest::newRow("ends-after-created-date") << accepted << 1 << 0 << 0;
    QTest::newRow("ends-after-constant") << accepted << 1 << 0 << 0;
    QTest::newRow("ends-after-data-mark") << accepted << 1 << 0 << 0;
    QTest::newRow("ends-after-group-row") << accepted << 1 << 0 << 0;
    QTest::newRow("ends-after-variable-row") << accepted << 1 << 0 << 0;
    QTest::newRow("ends-after-unit-row") << accepted << 1 << 5 << 0;
    QTest::newRow("crlf-line-ends") << accepted << 1 << 5 << 3;
    QTest::newRow("cr-only-line-ends") << refused << 0 << 0 << 0;
    QTest::newRow("byte-order-mark") << accepted << 1 << 5 << 3;
    QTest::newRow("invalid-utf8") << accepted << 1 << 5 << 3;
    QTest::newRow("nul-bytes") << accepted << 1 << 5 << 3;
    QTest::newRow("long-and-short-rows") << accepted << 1 << 7 << 7;
    QTest::newRow("ten-thousand-columns") << accepted << 1 << 10000 << 3;
}

void tst_SampleLogs::brokenFiles()
{
    QFETCH(QString, error);
    QFETCH(int, dataSets);
    QFETCH(int, columns);
    QFETCH(int, observations);
    const QByteArray file = QByteArray("broken/") + QTest::currentDataTag() + ".log";
    LogParser parser;
    QCOMPARE(read(&parser, path(file.constData())), error);
    QCOMPARE(parser.tabularParser().dataSets().size(), dataSets);
    QCOMPARE(parser.tabularParser().headerData(0).size(), columns);
    QCOMPARE(parser.tabularParser().observations(0).size(), observations);
    parser.tabularParser().clear();
}

void tst_SampleLogs::everyBrokenFileIsTried()
{
    const int tried = 17;
    QCOMPARE(QDir(path("broken")).entryList(QStringList() << QLatin1String("*.log")).size(), tried);
}

void tst_SampleLogs::badBytes()
{
    LogParser parser;
    read(&parser, path("broken/invalid-utf8.log"));
    const QChar unreadable(QChar::ReplacementCharacter);
    QCOMPARE(parser.tabularParser().headerData(0).at(2).last(), unreadable + QLatin1String("C"));
    QVERIFY(parser.tabularParser().dataForColumn(0, 2).at(1).contains(unreadable));
    QVERIFY(parser.tabularParser().dataForColumn(0, 4).at(2).startsWith(QLatin1String("400.8")));

    read(&parser, path("broken/nul-bytes.log"));
    QCOMPARE(parser.tabularParser().dataForColumn(0, 2).at(1).size(), 6);
    QCOMPARE(parser.tabularParser().dataForColumn(0, 2).at(1).at(3), QChar(0));
    QCOMPARE(parser.tabularParser().dataForColumn(0, 4).at(1), QString(QChar(0)));
    parser.tabularParser().clear();
}

QTEST_GUILESS_MAIN(tst_SampleLogs)
#include "tst_SampleLogs.moc"

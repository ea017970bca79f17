#include "FakePython.h"
#include "QuietParserTest.h"

namespace
{

const char kLog[] = "[Header]\n"
                    "Created,2024-05-01 10:00\n"
                    "[Data]\n"
                    "Zeta,Alpha,Zeta\n"
                    "Obs,Time,T\n"
                    ",s,C\n"
                    "1,\"10:00:01\",20.5\n"
                    "door \"open\"\n"
                    "2,10:00:02,20.6,extra\n"
                    "[Header]\n"
                    "Created,second date\n"
                    "[Data]\n"
                    "g,g\n"
                    "a,b\n"
                    "u,v\n"
                    "1,2,3\n";
const char kOneRow[] = "[Header]\nCreated,d\n[Data]\ng,g,g\na,b,c\n,v,w\n1,2,3\n";

} // namespace

/** One parser over several reads, and what it leaves behind. */
class tst_LogParserLifetime : public QuietParserTest
{
    Q_OBJECT

private Q_SLOTS:
    void parsesStartAfresh();
    void failedParseEmptiesTheDataSets();
    void emptyPathKeepsTheDataSets();
    void dataSetsOutliveTheParser();
    void noSignals();
    void spreadsheet();
};

void tst_LogParserLifetime::parsesStartAfresh()
{
    m_fixture->parse(kLog);
    QPointer<LogDataSet> old(table().dataSets().at(0));
    QCOMPARE(m_fixture->parse(kOneRow), QString());
    QVERIFY(old.isNull());
    QCOMPARE(m_fixture->count(), 1);
    QCOMPARE(table().dataSets().at(0)->dataSetIndex(), 0);
    QCOMPARE(shown(table().rawData()), QString::fromLatin1("1|2|3"));
    // An error is forgotten as well.
    m_fixture->parse("x\n");
    QCOMPARE(m_fixture->parse(kLog), QString());
    QCOMPARE(m_fixture->count(), 2);
}

void tst_LogParserLifetime::failedParseEmptiesTheDataSets()
{
    m_fixture->parse(kLog);
    QVERIFY(!m_fixture->parsePath(m_fixture->dir.filePath(QLatin1String("missing"))).isEmpty());
    QCOMPARE(m_fixture->count(), 0);
    QVERIFY(table().rawData().isEmpty());
    m_fixture->parse(kLog);
    QVERIFY(!m_fixture->parse("x\n").isEmpty());
    QCOMPARE(m_fixture->count(), 0);
}

void tst_LogParserLifetime::emptyPathKeepsTheDataSets()
{
    m_fixture->parse(kLog);
    const int step = m_fixture->parser.parseStep();
    QCOMPARE(m_fixture->parsePath(QString()),
             QString::fromLatin1("LogFile Path must not be empty."));
    QCOMPARE(m_fixture->count(), 2);
    QCOMPARE(table().rawData().size(), 5);
    QCOMPARE(int(m_fixture->parser.parseStep()), step);
}

void tst_LogParserLifetime::dataSetsOutliveTheParser()
{
    m_fixture->parse(kLog);
    LogParser *parser = new LogParser;
    parser->setLogParserType(LogParser::CsvType);
    QString error;
    parser->parseFileAtPath(m_fixture->dir.filePath(QLatin1String("file.log")), error);
    const QList<LogDataSet *> sets = parser->tabularParser().dataSets();
    const QPointer<LogDataSet> first(sets.at(0));
    delete parser;
    QVERIFY(first);
    QCOMPARE(first->dataSetName(), QString::fromLatin1("0: 2024-05-01 10:00 #Obs=3"));
    QCOMPARE(shown(sets.at(1)->columnData()), QString::fromLatin1("1/2/3"));
    QCOMPARE(shown(valuesOf(first->observations())),
             QString::fromLatin1("1|\"10:00:01\"|20.5/Remarks|door open/2|10:00:02|20.6|extra"));
    qDeleteAll(sets);
}

void tst_LogParserLifetime::noSignals()
{
    QSignalSpy complete(&m_fixture->parser, SIGNAL(parsingComplete()));
    QSignalSpy failed(&m_fixture->parser, SIGNAL(parseError(QString)));
    m_fixture->parse(kLog);
    m_fixture->parse("x\n");
    m_fixture->parsePath(QString());
    QCOMPARE(complete.count(), 0);
    QCOMPARE(failed.count(), 0);
}

void tst_LogParserLifetime::spreadsheet()
{
    const FakePython python("cat \"$FAKE/answer\"");
    const QString converted = m_fixture->dir.write(QLatin1String("converted out"), kLog);
    QFile answer(python.filePath(QLatin1String("answer")));
    QVERIFY(answer.open(QIODevice::WriteOnly));
    answer.write(" \n" + QFile::encodeName(converted) + " \n" + QByteArray(1, '\0') + "junk");
    answer.close();
    m_fixture->parser.setLogParserType(LogParser::ExcelType);
    QCOMPARE(m_fixture->parsePath(QLatin1String("day one.xls")), QString());
    QCOMPARE(m_fixture->count(), 2);
    QCOMPARE(shown(table().columnData(1)), QString::fromLatin1("1/2/3"));
    QCOMPARE(python.arguments().last(), QByteArray("day one.xls"));
}

QTEST_GUILESS_MAIN(tst_LogParserLifetime)
#include "tst_LogParserLifetime.moc"

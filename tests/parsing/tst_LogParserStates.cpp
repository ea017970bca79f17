#include "ParserFixture.h"
#include "support/MetaMethodText.h"
#include "support/TestCompat.h"

#include <QMetaMethod>

typedef void (LogParser::*Handler)(const QString &line);

/** The parser's surface, and its states called one by one. */
class tst_LogParserStates : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void metaObject();
    void slotThroughTheMetaObject();
    void numbers();
    void initialState();
    void typeChoosesTheSeparator_data();
    void typeChoosesTheSeparator();
    void stepOfEachState_data();
    void stepOfEachState();
    void stepAfterAParse_data();
    void stepAfterAParse();
    void startState();
    void headerStartState();
    void headerParseState();
    void unitRowGetsATab_data();
    void unitRowGetsATab();
    void dataParseState();
    void transpose_data();
    void transpose();
    void headerStartForgetsTheRows();

private:
    void call(Handler handler, const char *line);

    QScopedPointer<ParserFixture> m_fixture;
};

void tst_LogParserStates::init()
{
    m_fixture.reset(new ParserFixture);
}

void tst_LogParserStates::cleanup()
{
    m_fixture.reset();
}

void tst_LogParserStates::call(Handler handler, const char *line)
{
    (m_fixture->parser.*handler)(QString::fromUtf8(line));
}

void tst_LogParserStates::metaObject()
{
    const QMetaObject &type = LogParser::staticMetaObject;
    QCOMPARE(QByteArray(type.className()), QByteArray("LogParser"));
    QCOMPARE(QByteArray(type.superClass()->className()), QByteArray("QObject"));
    QCOMPARE(ownMetaMethods(type),
             QStringList() << QLatin1String("signal parsingComplete()")
                           << QLatin1String("signal parseError(QString)")
                           << QLatin1String("slot parseFileAtPath(QString,QString&)"));
    const QMetaMethod slot = type.method(type.methodOffset() + 2);
    QCOMPARE(slot.parameterNames(),
             QList<QByteArray>() << QByteArray("path") << QByteArray("errorMessage"));
    QCOMPARE(int(slot.access()), int(QMetaMethod::Public));
    QCOMPARE(type.propertyCount(), type.propertyOffset());
    QCOMPARE(type.enumeratorCount(), type.enumeratorOffset());
}

void tst_LogParserStates::slotThroughTheMetaObject()
{
    QString error;
    QVERIFY(QMetaObject::invokeMethod(&m_fixture->parser, "parseFileAtPath",
                                      Q_ARG(QString, QString()), Q_ARG(QString &, error)));
    QCOMPARE(error, QString::fromLatin1("LogFile Path must not be empty."));
}

void tst_LogParserStates::numbers()
{
    QCOMPARE(int(LogParser::LogType), 0);
    QCOMPARE(int(LogParser::CsvType), 1);
    QCOMPARE(int(LogParser::ExcelType), 2);
    QCOMPARE(int(LogParser::Start), 0);
    QCOMPARE(int(LogParser::HeaderStart), 1);
    QCOMPARE(int(LogParser::HeaderParse), 2);
    QCOMPARE(int(LogParser::DataStart), 3);
    QCOMPARE(int(LogParser::DataHeaderGroupParse), 6);
    QCOMPARE(int(LogParser::DataHeaderVariableParse), 7);
    QCOMPARE(int(LogParser::DataHeaderUnitParse), 8);
    QCOMPARE(int(LogParser::DataParse), 9);
    QCOMPARE(int(LogParser::Error), 12);
}

void tst_LogParserStates::initialState()
{
    QObject parent;
    LogParser *parser = new LogParser(&parent);
    QCOMPARE(parser->parent(), &parent);
    QCOMPARE(LogParser().parent(), static_cast<QObject *>(nullptr));
    QCOMPARE(int(parser->parseStep()), 0);
    QCOMPARE(int(parser->logParserType()), 0);
    QCOMPARE(parser->tabularParser().separator(), QChar(QLatin1Char('\t')));
    QCOMPARE(parser->tabularParser().dataSetCount(), 0);
    QVERIFY(parser->tabularParser().dataSets().isEmpty());
    QVERIFY(!parser->isParsing());
    // A member, not a child.
    QVERIFY(parser->children().isEmpty());
    QVERIFY(!parser->tabularParser().parent());
}

void tst_LogParserStates::typeChoosesTheSeparator_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("separator");
    QTest::newRow("log") << 0 << QString::fromLatin1("\t");
    QTest::newRow("csv") << 1 << QString::fromLatin1(",");
    QTest::newRow("spreadsheet") << 2 << QString::fromLatin1(",");
    QTest::newRow("any other") << 3 << QString::fromLatin1("\t");
}

void tst_LogParserStates::typeChoosesTheSeparator()
{
    QFETCH(int, type);
    QFETCH(QString, separator);
    LogParser parser;
    parser.tabularParser().setSeparator(QLatin1Char(';'));
    parser.setLogParserType(LogParser::LogParserType(type));
    QCOMPARE(int(parser.logParserType()), type);
    QCOMPARE(QString(parser.tabularParser().separator()), separator);
}

void tst_LogParserStates::stepOfEachState_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<int>("step");
    QTest::newRow("start") << 0 << 0;
    // The first header line is at once taken as such, too.
    QTest::newRow("header start") << 1 << 2;
    QTest::newRow("header") << 2 << 2;
    // The line after the mark is at once taken as the group row.
    QTest::newRow("data start") << 3 << 6;
    QTest::newRow("groups") << 4 << 6;
    QTest::newRow("variables") << 5 << 7;
    QTest::newRow("units") << 6 << 8;
    QTest::newRow("data") << 7 << 9;
}

void tst_LogParserStates::stepOfEachState()
{
    QFETCH(int, state);
    QFETCH(int, step);
    static const Handler handlers[] = {
        &LogParser::startState,
        &LogParser::headerStartState,
        &LogParser::headerParseState,
        &LogParser::dataStartState,
        &LogParser::dataHeaderGroupParseState,
        &LogParser::dataHeaderVariableParseState,
        &LogParser::dataHeaderUnitParseState,
        &LogParser::dataParseState,
    };
    // Called out of order, and without a data set: nothing happens but the step.
    call(handlers[state], "a,b,c");
    QCOMPARE(int(m_fixture->parser.parseStep()), step);
    QVERIFY(m_fixture->table().rawData().isEmpty());
}

void tst_LogParserStates::stepAfterAParse_data()
{
    QTest::addColumn<QByteArray>("log");
    QTest::addColumn<int>("step");
    QTest::newRow("nothing") << QByteArray() << 0;
    QTest::newRow("mark") << QByteArray("[Header]\n") << 0;
    QTest::newRow("created line") << QByteArray("[Header]\nCreated,d\n") << 2;
    QTest::newRow("data mark") << QByteArray("[Header]\nCreated,d\n[Data]\n") << 2;
    QTest::newRow("groups") << QByteArray("[Header]\nc\n[Data]\ng\n") << 6;
    QTest::newRow("variables") << QByteArray("[Header]\nc\n[Data]\ng\nv\n") << 7;
    QTest::newRow("units") << QByteArray("[Header]\nc\n[Data]\ng\nv\nu\n") << 8;
    QTest::newRow("row") << QByteArray("[Header]\nc\n[Data]\ng\nv\nu\n1,2,3\n") << 9;
    QTest::newRow("row beyond ASCII")
        << QByteArray("[Header]\nc\n[Data]\ng\nv\nu\n1,2,\xc3\xa9\n") << 9;
    QTest::newRow("second mark") << QByteArray("[Header]\nc\n[Data]\ng\nv\nu\n[Header]\n") << 9;
    QTest::newRow("second block") << QByteArray("[Header]\nc\n[Data]\ng\nv\nu\n[Header]\nc\n") << 2;
    QTest::newRow("wrong start") << QByteArray("Header\n") << 12;
    QTest::newRow("wrong start, more lines") << QByteArray("Header\n[Header]\nc\n") << 12;
}

void tst_LogParserStates::stepAfterAParse()
{
    QFETCH(QByteArray, log);
    QFETCH(int, step);
    m_fixture->parse(log);
    QCOMPARE(int(m_fixture->parser.parseStep()), step);
    // The next parse begins at the start, whatever became of this one.
    m_fixture->parse(QByteArray());
    QCOMPARE(int(m_fixture->parser.parseStep()), 0);
}

void tst_LogParserStates::startState()
{
    TabularParser &table = m_fixture->parser.tabularParser();
    table.setDataSetCount(4);
    call(&LogParser::startState, "[hEADER]");
    QCOMPARE(table.dataSetCount(), 0);
    table.setDataSetCount(4);
    call(&LogParser::startState, "no mark");
    QCOMPARE(table.dataSetCount(), 0);
    // Only the read loop tells of the error.
    QCOMPARE(int(m_fixture->parser.parseStep()), 0);
    QVERIFY(table.dataSets().isEmpty());
}

void tst_LogParserStates::headerStartState()
{
    call(&LogParser::headerStartState, "Created:,today,x");
    QCOMPARE(m_fixture->count(), 1);
    QCOMPARE(m_fixture->table().dataSetCount(), 1);
    const LogDataSet *set = m_fixture->table().dataSets().at(0);
    QCOMPARE(set->dataSetCreatedDate(), QString::fromLatin1("today"));
    QCOMPARE(shown(set->constHeader()), QString::fromLatin1("Created:"));
    QCOMPARE(shown(set->constData()), QString::fromLatin1("today"));
    call(&LogParser::headerStartState, "one cell");
    QCOMPARE(m_fixture->count(), 2);
    QCOMPARE(m_fixture->table().dataSets().at(1)->dataSetCreatedDate(), QString());
    QCOMPARE(m_fixture->table().dataSets().at(1)->dataSetIndex(), 1);
}

void tst_LogParserStates::headerParseState()
{
    call(&LogParser::headerStartState, "Created,today");
    call(&LogParser::headerParseState, "B:x,1");
    call(&LogParser::headerParseState, "[Header]");
    call(&LogParser::headerParseState, "[DATA]");
    call(&LogParser::headerParseState, "A:y,2,3");
    call(&LogParser::headerParseState, "skipped,4");
    QCOMPARE(shown(m_fixture->table().constHeader(0)), QString::fromLatin1("A:y|B:x"));
    QCOMPARE(shown(m_fixture->table().constData(0)), QString::fromLatin1("2/1"));
}

void tst_LogParserStates::unitRowGetsATab_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("units");
    QTest::addColumn<QString>("columns");
    QTest::newRow("trimmed") << 0 << "s\tC"
                             << "g|a|/g|b|s/g|c|C";
    QTest::newRow("first unit given") << 0 << "n\ts\tC"
                                      << "g|a|/g|b|n/g|c|s";
    QTest::newRow("no units") << 0 << ""
                              << "g|a|/g|b|/g|c|";
    QTest::newRow("commas") << 1 << "n,s,C"
                            << "g|a|\tn/g|b|s/g|c|C";
    QTest::newRow("commas, first unit empty") << 1 << ",s,C"
                                              << "g|a|\t/g|b|s/g|c|C";
}

void tst_LogParserStates::unitRowGetsATab()
{
    QFETCH(int, type);
    QFETCH(QString, units);
    QFETCH(QString, columns);
    m_fixture->parser.setLogParserType(LogParser::LogParserType(type));
    call(&LogParser::headerStartState, "Created");
    call(&LogParser::dataStartState, type ? "g,g,g" : "g\tg\tg");
    call(&LogParser::dataHeaderVariableParseState, type ? "a,b,c" : "a\tb\tc");
    m_fixture->parser.dataHeaderUnitParseState(units);
    QCOMPARE(shown(m_fixture->table().headerData(0)), columns);
    QCOMPARE(shown(m_fixture->parser.transposeHeaderList()), columns);
}

void tst_LogParserStates::dataParseState()
{
    call(&LogParser::headerStartState, "Created");
    call(&LogParser::dataParseState, "1,2,3");
    call(&LogParser::dataParseState, "[header]");
    QCOMPARE(m_fixture->count(), 1);
    call(&LogParser::dataParseState, "[Data]");
    call(&LogParser::dataParseState, "[Header] ,");
    QCOMPARE(shown(valuesOf(m_fixture->table().observations(0))),
             QString::fromLatin1("1|2|3/Remarks|[Data]/Remarks|[Header] |"));
}

void tst_LogParserStates::transpose_data()
{
    QTest::addColumn<QString>("groups");
    QTest::addColumn<QString>("variables");
    QTest::addColumn<QString>("units");
    QTest::addColumn<QString>("columns");
    QTest::newRow("even") << "g,h"
                          << "a,b"
                          << "u,v"
                          << "g|a|u/h|b|v";
    QTest::newRow("few variables") << "g,g,g,g,g"
                                   << "a,b,c"
                                   << "u"
                                   << "g|a|u/g|b|/g|c|/g||/g||";
    QTest::newRow("few groups") << "g"
                                << "a,b,c"
                                << "u,v"
                                << "g|a|u";
    QTest::newRow("empty group row") << ""
                                     << "a,b"
                                     << "u,v"
                                     << "|a|u";
    QTest::newRow("empty cells stay") << ",g,"
                                      << ",,"
                                      << ",u,"
                                      << "||/g||u/||";
}

void tst_LogParserStates::transpose()
{
    QFETCH(QString, groups);
    QFETCH(QString, variables);
    QFETCH(QString, units);
    QFETCH(QString, columns);
    m_fixture->parser.dataHeaderGroupParseState(groups);
    m_fixture->parser.dataHeaderVariableParseState(variables);
    // A third row that gets no tab.
    m_fixture->parser.dataHeaderGroupParseState(units);
    QCOMPARE(shown(m_fixture->parser.transposeHeaderList()), columns);
}

void tst_LogParserStates::headerStartForgetsTheRows()
{
    call(&LogParser::dataHeaderGroupParseState, "g,h");
    call(&LogParser::headerStartState, "Created");
    call(&LogParser::dataStartState, "i");
    QCOMPARE(shown(m_fixture->parser.transposeHeaderList()), QString::fromLatin1("i||"));
}

QTEST_GUILESS_MAIN(tst_LogParserStates)
#include "tst_LogParserStates.moc"

#include "QuietParserTest.h"

namespace
{

const char kLog[] = "[Header]\n"
                    "Created:,2024-05-01 10:00\n"
                    "Sys:Name,probe,ignored\n"
                    "Sys:Name,second\n"
                    "Const:,1\n"
                    "skipped,1,2\n"
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

} // namespace

/** What a log file reads as. */
class tst_LogParser : public QuietParserTest
{
    Q_OBJECT

private Q_SLOTS:
    void wholeLog();
    void wholeLogSeparatedByTabs();
    void firstLine_data();
    void firstLine();
    void createdDate_data();
    void createdDate();
    void constants_data();
    void constants();
    void columns_data();
    void columns();
    void rows_data();
    void rows();
    void blocks_data();
    void blocks();
    void trimmedLines_data();
    void trimmedLines();
    void rawRowsOfAFailedParse_data();
    void rawRowsOfAFailedParse();

private:
    static QByteArray dataLog(const QByteArray &rows);
};

QByteArray tst_LogParser::dataLog(const QByteArray &rows)
{
    return "[Header]\nCreated,d\n[Data]\ng,g,g\na,b,c\n,v,w\n" + rows;
}

void tst_LogParser::wholeLog()
{
    QCOMPARE(m_fixture->parse(kLog), QString());
    QCOMPARE(m_fixture->count(), 2);
    QCOMPARE(shown(table().constHeader(0)), QString::fromLatin1("Const:|Created:|Sys:Name"));
    QCOMPARE(shown(table().constData(0)), QString::fromLatin1("1/2024-05-01 10:00/probe|second"));
    QCOMPARE(shown(table().constGroups(0)), QString::fromLatin1("Created|Sys|Const"));
    QCOMPARE(shown(table().headerData(0)),
             QString::fromLatin1("Zeta|Obs|\t/Alpha|Time|s/Zeta|T|C/?|?|?"));
    QCOMPARE(shown(table().variables(0)), QString::fromLatin1("Obs|Time|T"));
    QCOMPARE(shown(namesOf(table().groups(0))), QString::fromLatin1("?/Alpha|Time/Zeta|Obs|T"));
    QCOMPARE(shown(table().columnData(0)),
             QString::fromLatin1("1|Remarks|2/10:00:01|door open|10:00:02/20.5|20.6/extra"));
    QCOMPARE(shown(valuesOf(table().observations(0))),
             QString::fromLatin1("1|\"10:00:01\"|20.5/Remarks|door open/2|10:00:02|20.6|extra"));
    QCOMPARE(shown(table().rawData()),
             QString::fromLatin1("1|\"10:00:01\"|20.5/Remarks|door open/Remarks|door open/"
                                 "2|10:00:02|20.6|extra/1|2|3"));
    QCOMPARE(table().dataSets().at(0)->dataSetName(),
             QString::fromLatin1("0: 2024-05-01 10:00 #Obs=3"));
    QCOMPARE(table().dataSets().at(1)->dataSetName(), QString::fromLatin1("1: second date #Obs=1"));
    QCOMPARE(table().dataSets().at(1)->dataSetIndex(), 1);
    QCOMPARE(table().dataSetCount(), 2);
}

void tst_LogParser::wholeLogSeparatedByTabs()
{
    m_fixture->parser.setLogParserType(LogParser::LogType);
    QCOMPARE(m_fixture->parse(QByteArray(kLog).replace(',', '\t')), QString());
    QCOMPARE(shown(table().constData(0)), QString::fromLatin1("1/2024-05-01 10:00/probe|second"));
    // The first unit is empty: trimming took it away, and it is back.
    QCOMPARE(shown(table().headerData(0)),
             QString::fromLatin1("Zeta|Obs|/Alpha|Time|s/Zeta|T|C/?|?|?"));
    QCOMPARE(shown(table().columnData(0)),
             QString::fromLatin1("1|Remarks|2/10:00:01|door open|10:00:02/20.5|20.6/extra"));
    // A first unit that is there moves on.
    QCOMPARE(shown(table().headerData(1)), QString::fromLatin1("g|a|/g|b|u/?|?|?"));
}

void tst_LogParser::firstLine_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("exact") << QByteArray("[Header]") << true;
    QTest::newRow("lower case") << QByteArray("[header]") << true;
    QTest::newRow("mixed case") << QByteArray("[hEaDeR]") << true;
    QTest::newRow("blanks around") << QByteArray("  [Header]\t ") << true;
    QTest::newRow("non-breaking spaces around") << QByteArray("\xc2\xa0[Header]\xc2\xa0") << true;
    QTest::newRow("byte order mark") << QByteArray("\xef\xbb\xbf[Header]") << true;
    QTest::newRow("more text") << QByteArray("[Header] more") << false;
    QTest::newRow("more cells") << QByteArray("[Header],") << false;
    QTest::newRow("quoted") << QByteArray("\"[Header]\"") << false;
    QTest::newRow("no brackets") << QByteArray("Header") << false;
    QTest::newRow("data mark") << QByteArray("[Data]") << false;
    QTest::newRow("blank inside") << QByteArray("[ Header ]") << false;
    QTest::newRow("empty") << QByteArray("") << false;
}

void tst_LogParser::firstLine()
{
    QFETCH(QByteArray, line);
    QFETCH(bool, accepted);
    const QString error = m_fixture->parse(line + "\nCreated,d\n");
    QCOMPARE(error,
             accepted ? QString()
                      : QString::fromLatin1("Log File must start with [Header] section."));
    QCOMPARE(m_fixture->count(), accepted ? 1 : 0);
}

void tst_LogParser::createdDate_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("date");
    QTest::addColumn<QString>("constants");
    QTest::newRow("plain") << QByteArray("Created,today") << "today"
                           << "";
    QTest::newRow("also a constant") << QByteArray("Created:,today") << "today"
                                     << "Created:";
    QTest::newRow("third cell") << QByteArray("Created,today,x") << "today"
                                << "";
    QTest::newRow("one cell") << QByteArray("Created") << ""
                              << "";
    QTest::newRow("empty line") << QByteArray("") << ""
                                << "";
    QTest::newRow("second header mark") << QByteArray("[Header]") << ""
                                        << "";
    QTest::newRow("percent signs") << QByteArray("c,%1 %L3 50%") << "%1 %L3 50%"
                                   << "";
    QTest::newRow("blanks inside the line") << QByteArray("c, d ,x") << " d "
                                            << "";
}

void tst_LogParser::createdDate()
{
    QFETCH(QByteArray, line);
    QFETCH(QString, date);
    QFETCH(QString, constants);
    QCOMPARE(m_fixture->parse("[Header]\n" + line + "\n"), QString());
    QCOMPARE(m_fixture->count(), 1);
    const LogDataSet *set = table().dataSets().at(0);
    QCOMPARE(set->dataSetCreatedDate(), date);
    QCOMPARE(set->dataSetName(), QLatin1String("0: ") + date + QLatin1String(" [No Data]"));
    QCOMPARE(shown(set->constHeader()), constants);
    QVERIFY(set->variables().isEmpty());
}

void tst_LogParser::constants_data()
{
    QTest::addColumn<QByteArray>("lines");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("values");
    QTest::addColumn<QString>("groups");
    QTest::newRow("none") << QByteArray("") << ""
                          << ""
                          << "";
    QTest::newRow("order") << QByteArray("B:x,1\nA:y,2\nB:z,3\n") << "A:y|B:x|B:z"
                           << "2/1/3"
                           << "B|A";
    QTest::newRow("repeated") << QByteArray("k:,1\nl:,x\nk:,2\n") << "k:|l:"
                              << "1|2/x"
                              << "k|l";
    QTest::newRow("three cells") << QByteArray("k:,1,2\n") << "k:"
                                 << "1"
                                 << "k";
    QTest::newRow("without a colon") << QByteArray("k,1,2\n") << ""
                                     << ""
                                     << "";
    QTest::newRow("one cell") << QByteArray("k:\n") << ""
                              << ""
                              << "";
    QTest::newRow("empty lines") << QByteArray("\n\nk:,1\n\n") << "k:"
                                 << "1"
                                 << "k";
    QTest::newRow("header mark") << QByteArray("[Header]\nk:,1\n") << "k:"
                                 << "1"
                                 << "k";
    QTest::newRow("almost the data mark") << QByteArray("[Data] x\n[Data],\nk:,1\n") << "k:"
                                          << "1"
                                          << "k";
    QTest::newRow("groups tell case") << QByteArray("a:,1\nA:,2\n") << "A:|a:"
                                      << "2/1"
                                      << "a|A";
    QTest::newRow("not ASCII") << QByteArray("\xc3\xa9:x,\xc2\xb0\n")
                               << QString::fromUtf8("\xc3\xa9:x") << QString::fromUtf8("\xc2\xb0")
                               << QString::fromUtf8("\xc3\xa9");
}

void tst_LogParser::constants()
{
    QFETCH(QByteArray, lines);
    QFETCH(QString, keys);
    QFETCH(QString, values);
    QFETCH(QString, groups);
    QCOMPARE(m_fixture->parse("[Header]\nCreated,d\n" + lines + "[Data]\n"), QString());
    QCOMPARE(shown(table().constHeader(0)), keys);
    QCOMPARE(shown(table().constData(0)), values);
    QCOMPARE(shown(table().constGroups(0)), groups);
}

void tst_LogParser::columns_data()
{
    QTest::addColumn<QByteArray>("rows");
    QTest::addColumn<QString>("headers");
    QTest::addColumn<QString>("groups");
    QTest::newRow("even") << QByteArray("g,h\na,b\n,v\n") << "g|a|\t/h|b|v"
                          << "g|a/h|b";
    QTest::newRow("few variables")
        << QByteArray("g,g,g,g,g\na,b,c\nu\n") << "g|a|\tu/g|b|/g|c|/g||/g||"
        << "g|a|b|c||";
    QTest::newRow("more variables and units") << QByteArray("g\na,b,c\nu,v\n") << "g|a|\tu"
                                              << "g|a";
    QTest::newRow("same names") << QByteArray("g,g\na,a\nu,u\n") << "g|a|\tu/g|a|u"
                                << "g|a|a";
    QTest::newRow("empty rows") << QByteArray("\n\n\n") << "||\t"
                                << "|";
    QTest::newRow("data mark in the second place")
        << QByteArray("[Data]\n[data]\n[Data]\n") << "[Data]|[data]|\t[Data]"
        << "[Data]|[data]";
    QTest::newRow("header mark as a row") << QByteArray("g\n[Header]\nu\n") << "g|[Header]|\tu"
                                          << "g|[Header]";
    QTest::newRow("header marks") << QByteArray("[Header]\n[Header]\n[Header]\n")
                                  << "[Header]|[Header]|\t[Header]"
                                  << "[Header]|[Header]";
    QTest::newRow("two rows") << QByteArray("g,h\na,b\n") << ""
                              << "";
    QTest::newRow("one row") << QByteArray("g,h\n") << ""
                             << "";
    QTest::newRow("no row") << QByteArray("") << ""
                            << "";
}

void tst_LogParser::columns()
{
    QFETCH(QByteArray, rows);
    QFETCH(QString, headers);
    QFETCH(QString, groups);
    QCOMPARE(m_fixture->parse("[Header]\nCreated,d\n[Data]\n" + rows), QString());
    QCOMPARE(m_fixture->count(), 1);
    QCOMPARE(shown(table().headerData(0)), headers);
    QCOMPARE(shown(namesOf(table().groups(0))), groups);
    QCOMPARE(table().columnData(0).size(), table().headerData(0).size());
    QVERIFY(table().observations(0).isEmpty());
}

void tst_LogParser::rows_data()
{
    QTest::addColumn<QByteArray>("rows");
    QTest::addColumn<QString>("observations");
    QTest::addColumn<QString>("columns");
    QTest::newRow("none") << QByteArray("") << ""
                          << "//";
    QTest::newRow("even") << QByteArray("1,2,3\n4,5,6\n") << "1|2|3/4|5|6"
                          << "1|4/2|5/3|6";
    QTest::newRow("no last line feed") << QByteArray("1,2,3\n4,5,6") << "1|2|3/4|5|6"
                                       << "1|4/2|5/3|6";
    QTest::newRow("note") << QByteArray("a note\n") << "Remarks|a note"
                          << "Remarks/a note/";
    QTest::newRow("two cells") << QByteArray("a,b\n") << "Remarks|a|b"
                               << "Remarks/a/b";
    QTest::newRow("empty line") << QByteArray("\n") << "Remarks|"
                                << "Remarks//";
    QTest::newRow("blank line") << QByteArray(" \t\n") << "Remarks|"
                                << "Remarks//";
    QTest::newRow("quoted time") << QByteArray("1,\"10:00\",3\n") << "1|\"10:00\"|3"
                                 << "1/10:00/3";
    QTest::newRow("positions differ after a short row")
        << QByteArray("1,2,3\nnote\n4,5,6\n") << "1|2|3/Remarks|note/4|5|6"
        << "1|Remarks|4/2|note|5/3|6";
    QTest::newRow("two more cells") << QByteArray("1,2,3,4,5\n") << "1|2|3|4|5"
                                    << "1/2/3/4/5";
    QTest::newRow("second data mark") << QByteArray("[Data]\n") << "Remarks|[Data]"
                                      << "Remarks/[Data]/";
    QTest::newRow("header mark and more") << QByteArray("[Header],x\n") << "Remarks|[Header]|x"
                                          << "Remarks/[Header]/x";
    QTest::newRow("not a number") << QByteArray("x,y,z\n") << "x|y|z"
                                  << "x/y/z";
    QTest::newRow("trailing separators") << QByteArray(",,\n") << "||"
                                         << "//";
}

void tst_LogParser::rows()
{
    QFETCH(QByteArray, rows);
    QFETCH(QString, observations);
    QFETCH(QString, columns);
    QCOMPARE(m_fixture->parse(dataLog(rows)), QString());
    QCOMPARE(m_fixture->count(), 1);
    QCOMPARE(shown(valuesOf(table().observations(0))), observations);
    QCOMPARE(shown(table().columnData(0)), columns);
    QCOMPARE(shown(table().variables(0)), QString::fromLatin1("a|b|c"));
}

void tst_LogParser::blocks_data()
{
    QTest::addColumn<QByteArray>("tail"); // behind a first block with one row
    QTest::addColumn<QString>("names");
    const QString first = QString::fromLatin1("0: d #Obs=1");
    QTest::newRow("one") << QByteArray("") << first;
    QTest::newRow("mark at the end") << QByteArray("[Header]\n") << first;
    QTest::newRow("mark in another case")
        << QByteArray("[HEADER]\nc,e\n") << first + QLatin1String("|1: e [No Data]");
    QTest::newRow("blanks around the mark")
        << QByteArray(" [Header] \nc,e\n") << first + QLatin1String("|1: e [No Data]");
    QTest::newRow("non-breaking space behind the mark")
        << QByteArray("[Header]\xc2\xa0\nc,e\n") << first + QLatin1String("|1: e [No Data]");
    QTest::newRow("mark twice") << QByteArray("[Header]\n[Header]\nc:,e\n")
                                << first + QLatin1String("|1:  [No Data]");
    QTest::newRow("data mark at once") << QByteArray("[Header]\n[Data]\ng\nv\nu\n1,2,3\n1\n")
                                       << first + QLatin1String("|1:  #Obs=2");
    QTest::newRow("three") << QByteArray("[Header]\nc,e\n[Data]\ng\nv\nu\n[Header]\nc,f\n")
                           << first + QLatin1String("|1: e #Obs=0|2: f [No Data]");
}

void tst_LogParser::blocks()
{
    QFETCH(QByteArray, tail);
    QFETCH(QString, names);
    QCOMPARE(m_fixture->parse(dataLog("1,2,3\n") + tail), QString());
    QStringList seen;
    for (int i = 0; i < m_fixture->count(); ++i)
        seen.append(table().dataSets().at(i)->dataSetName());
    QCOMPARE(shown(seen), names);
    QCOMPARE(table().dataSetCount(), seen.size());
}

void tst_LogParser::trimmedLines_data()
{
    QTest::addColumn<QByteArray>("row");
    QTest::addColumn<QString>("observation");
    QTest::newRow("blanks") << QByteArray("  1\t2\t3  ") << "1|2|3";
    QTest::newRow("empty cells at the ends") << QByteArray("\t\t1\t2\t3\t\t") << "1|2|3";
    QTest::newRow("empty cells in the middle") << QByteArray("1\t\t\t3") << "1|||3";
    QTest::newRow("just separators") << QByteArray("\t\t\t\t") << "Remarks|";
    QTest::newRow("other white space") << QByteArray("\v\f1\t2\t3\f\v") << "1|2|3";
    QTest::newRow("no white space") << QByteArray("\x1f"
                                                  "1\t2\t3\x1c")
                                    << "\x1f"
                                       "1|2|3\x1c";
    QTest::newRow("beyond ASCII") << QByteArray("\xc2\xa0\xe3\x80\x80"
                                                "1\t2\t3\xe2\x80\xa8")
                                  << "1|2|3";
    QTest::newRow("blanks of a cell inside") << QByteArray("1 \t 2 \t 3") << "1 | 2 | 3";
}

void tst_LogParser::trimmedLines()
{
    QFETCH(QByteArray, row);
    QFETCH(QString, observation);
    m_fixture->parser.setLogParserType(LogParser::LogType);
    QCOMPARE(m_fixture->parse(dataLog(row + '\n')), QString());
    QCOMPARE(shown(valuesOf(table().observations(0))), observation);
}

void tst_LogParser::rawRowsOfAFailedParse_data()
{
    QTest::addColumn<QByteArray>("log");
    QTest::addColumn<QString>("rows");
    QTest::newRow("nothing more") << QByteArray("x,y,z\n") << "";
    QTest::newRow("not trimmed") << QByteArray("x\n a , b \n\tc\t\n") << " a | b /\tc\t";
    QTest::newRow("no remarks") << QByteArray("x\nnote\n1,2,3\n") << "note/1|2|3";
    QTest::newRow("empty lines") << QByteArray("x\n\na\n\n") << "/a/";
    QTest::newRow("a good log behind") << QByteArray("x\n[Header]\nc,d\n") << "[Header]/c|d";
    QTest::newRow("quotes stay") << QByteArray("x\n\"a,b\"\n") << "\"a|b\"";
    QTest::newRow("carriage returns") << QByteArray("x\r\na,b\r\n") << "a|b";
    QTest::newRow("not ASCII") << QByteArray("x\n\xc3\xa9,\xef\xbb\xbfz\n")
                               << QString::fromUtf8("\xc3\xa9|\xef\xbb\xbfz");
    QTest::newRow("mark in front of a line")
        << QByteArray("x\n\xef\xbb\xbfz\n") << QChar(QChar::ByteOrderMark) + QLatin1String("z");
}

void tst_LogParser::rawRowsOfAFailedParse()
{
    QFETCH(QByteArray, log);
    QFETCH(QString, rows);
    QCOMPARE(m_fixture->parse(log),
             QString::fromLatin1("Log File must start with [Header] section."));
    QCOMPARE(shown(table().rawData()), rows);
    QCOMPARE(m_fixture->count(), 0);
}

QTEST_GUILESS_MAIN(tst_LogParser)
#include "tst_LogParser.moc"

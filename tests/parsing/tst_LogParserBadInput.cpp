#include "FakePython.h"
#include "QuietParserTest.h"

#include <sys/stat.h>
#include <unistd.h>

namespace
{

const char kLog[] = "[Header]\n"
                    "Created:,today\n"
                    "k:\xc3\xa9,v\n"
                    "[Data]\n"
                    "g,g,g\n"
                    "a,b,c\n"
                    ",v,w\n"
                    "1,2,\xe2\x82\xac\n"
                    "note\n";

const char kNoMark[] = "Log File must start with [Header] section.";

QString openError(const QString &path)
{
    return QString::fromLatin1("LogParser: Failed to open file at path %1 for reading.").arg(path);
}

/** @p text as UTF-16 with a byte order mark, the low byte first or last. */
QByteArray utf16(const char *text, bool lowFirst)
{
    const QString marked = QChar(QChar::ByteOrderMark) + QString::fromUtf8(text);
    QByteArray bytes;
    for (int i = 0; i < marked.size(); ++i) {
        const char low = char(marked.at(i).cell());
        const char high = char(marked.at(i).row());
        bytes.append(lowFirst ? low : high).append(lowFirst ? high : low);
    }
    return bytes;
}

/** Nobody instead of the superuser, whom no permission stops, for as long as it lives. */
class AsNobody
{
public:
    AsNobody()
        : m_user(geteuid())
        , m_switched(m_user == 0 && seteuid(65534) == 0)
    {
    }
    ~AsNobody()
    {
        if (m_switched && seteuid(m_user) != 0)
            qFatal("cannot become user %u again", unsigned(m_user));
    }

private:
    uid_t m_user;
    bool m_switched;
};

} // namespace

/** Files that are no logs, or broken ones: each tells its error or reads as well as it can. */
class tst_LogParserBadInput : public QuietParserTest
{
    Q_OBJECT

private Q_SLOTS:
    void emptyPath_data();
    void emptyPath();
    void unreadablePath_data();
    void unreadablePath();
    void fifo();
    void noPermission();
    void errorNamesThePathAsGiven_data();
    void errorNamesThePathAsGiven();
    void badStart_data();
    void badStart();
    void endsEarly_data();
    void endsEarly();
    void sameLogInOtherBytes_data();
    void sameLogInOtherBytes();
    void damagedBytes_data();
    void damagedBytes();
    void oneLongLine_data();
    void oneLongLine();
    void manyColumns();
    void rowsLongerAndShorterThanTheHeader();
    void spreadsheet_data();
    void spreadsheet();
    void spreadsheetWithoutInterpreter();
    void endlessSpreadsheet();
};

void tst_LogParserBadInput::emptyPath_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow("log") << 0;
    QTest::newRow("csv") << 1;
    QTest::newRow("spreadsheet") << 2;
}

void tst_LogParserBadInput::emptyPath()
{
    QFETCH(int, type);
    const FakePython python("true");
    m_fixture->parser.setLogParserType(LogParser::LogParserType(type));
    QCOMPARE(m_fixture->parsePath(QLatin1String("")),
             QString::fromLatin1("LogFile Path must not be empty."));
    QVERIFY(!QFile::exists(python.filePath(QLatin1String("arguments"))));
}

void tst_LogParserBadInput::unreadablePath_data()
{
    QTest::addColumn<QString>("path"); // a relative one is taken from the test's directory
    QTest::newRow("missing file") << "missing.log";
    QTest::newRow("missing directory") << "missing/file.log";
    QTest::newRow("directory") << ".";
    QTest::newRow("directory with a slash") << "./";
    QTest::newRow("file as a directory") << "file.log/file.log";
    QTest::newRow("blank") << "/ ";
    QTest::newRow("device without end") << "/dev/zero";
    QTest::newRow("device without bytes") << "/dev/null";
    QTest::newRow("terminal") << "/dev/ptmx";
    QTest::newRow("NUL in the name") << QString(QLatin1String("file.log")) + QChar(0);
}

void tst_LogParserBadInput::unreadablePath()
{
    QFETCH(QString, path);
    QCOMPARE(m_fixture->parse(kLog), QString());
    const QString full = path.startsWith(QLatin1Char('/')) ? path : m_fixture->dir.filePath(path);
    QCOMPARE(m_fixture->parsePath(full), openError(full));
    QCOMPARE(m_fixture->count(), 0);
    QCOMPARE(int(m_fixture->parser.parseStep()), 0);
}

void tst_LogParserBadInput::fifo()
{
    // To open one for reading is to wait for a writer, and there will be none.
    const QString path = m_fixture->dir.filePath(QLatin1String("fifo"));
    QCOMPARE(mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    QCOMPARE(m_fixture->parsePath(path), openError(path));
    const QString link = m_fixture->dir.filePath(QLatin1String("link"));
    QVERIFY(QFile::link(path, link));
    QCOMPARE(m_fixture->parsePath(link), openError(link));
}

void tst_LogParserBadInput::noPermission()
{
    const QString path = m_fixture->dir.write(QLatin1String("secret.log"), kLog);
    QVERIFY(QFile::setPermissions(path, QFile::Permissions()));
    // The file itself is what refuses, not the way to it.
    QCOMPARE(chmod(QFile::encodeName(m_fixture->dir.path()).constData(), 0755), 0);
    QString error;
    bool isThere;
    {
        const AsNobody nobody;
        isThere = QFileInfo(path).isFile();
        error = m_fixture->parsePath(path);
    }
    QVERIFY(isThere);
    QCOMPARE(error, openError(path));
    QVERIFY(QFile::setPermissions(path, QFile::ReadOwner));
    QCOMPARE(m_fixture->parsePath(path), QString());
}

void tst_LogParserBadInput::errorNamesThePathAsGiven_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("percent signs") << "/missing/%1%2%L1.log";
    QTest::newRow("blanks") << "  /missing  .log ";
    QTest::newRow("not ASCII") << QString::fromUtf8("/missing/\xe2\x82\xac");
    QTest::newRow("a path of 5000 characters") << QString(5000, QLatin1Char('x'));
}

void tst_LogParserBadInput::errorNamesThePathAsGiven()
{
    QFETCH(QString, path);
    QCOMPARE(m_fixture->parsePath(path), openError(path));
}

void tst_LogParserBadInput::badStart_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("other text") << QByteArray("hello\n");
    QTest::newRow("empty line first") << QByteArray("\n[Header]\nc,d\n");
    QTest::newRow("mark and more") << QByteArray("[Header],\nc,d\n");
    QTest::newRow("NUL bytes") << QByteArray(1000, '\0');
    QTest::newRow("carriage returns for line ends") << QByteArray(kLog).replace('\n', '\r');
    QTest::newRow("two byte order marks") << QByteArray("\xef\xbb\xbf\xef\xbb\xbf[Header]\nc,d\n");
    QTest::newRow("byte order mark only") << QByteArray("\xef\xbb\xbf");
    QTest::newRow("UTF-16 without a mark") << utf16(kLog, true).mid(2);
    QTest::newRow("invalid UTF-8") << QByteArray("\xff[Header]\nc,d\n");
    QTest::newRow("picture") << QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16);
}

void tst_LogParserBadInput::badStart()
{
    QFETCH(QByteArray, bytes);
    QCOMPARE(m_fixture->parse(kLog), QString());
    QCOMPARE(m_fixture->parse(bytes), QString::fromLatin1(kNoMark));
    QCOMPARE(m_fixture->count(), 0);
    QCOMPARE(int(m_fixture->parser.parseStep()), 12);
}

void tst_LogParserBadInput::endsEarly_data()
{
    QTest::addColumn<int>("lines");
    QTest::addColumn<int>("dataSets");
    QTest::addColumn<QString>("constants");
    QTest::addColumn<QString>("headers");
    const QString key = QString::fromUtf8("Created:|k:\xc3\xa9");
    QTest::newRow("empty file") << 0 << 0 << ""
                                << "";
    QTest::newRow("after the header mark") << 1 << 0 << ""
                                           << "";
    QTest::newRow("after the created line") << 2 << 1 << "Created:"
                                            << "";
    QTest::newRow("after a constant") << 3 << 1 << key << "";
    QTest::newRow("after the data mark") << 4 << 1 << key << "";
    QTest::newRow("after the groups") << 5 << 1 << key << "";
    QTest::newRow("after the variables") << 6 << 1 << key << "";
    QTest::newRow("after the units") << 7 << 1 << key << "g|a|\t/g|b|v/g|c|w";
}

void tst_LogParserBadInput::endsEarly()
{
    QFETCH(int, lines);
    QFETCH(int, dataSets);
    QFETCH(QString, constants);
    QFETCH(QString, headers);
    QByteArray log;
    for (int i = 0; i < lines; ++i)
        log += QByteArray(kLog).split('\n').at(i) + '\n';
    for (int cut = 0; cut < 2; ++cut) {
        QCOMPARE(m_fixture->parse(log), QString());
        QCOMPARE(m_fixture->count(), dataSets);
        QCOMPARE(shown(table().constHeader(0)), constants);
        QCOMPARE(shown(table().headerData(0)), headers);
        QVERIFY(table().observations(0).isEmpty());
        // Once more without the last line feed.
        log.chop(1);
    }
}

void tst_LogParserBadInput::sameLogInOtherBytes_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const QByteArray log(kLog);
    QTest::newRow("as it is") << log;
    QTest::newRow("CRLF") << QByteArray(log).replace('\n', "\r\n");
    QTest::newRow("CR CR LF") << QByteArray(log).replace('\n', "\r\r\n");
    QTest::newRow("CR in odd places") << QByteArray(log).replace(',', "\r,\r");
    QTest::newRow("byte order mark") << "\xef\xbb\xbf" + log;
    QTest::newRow("byte order mark and CRLF")
        << "\xef\xbb\xbf" + QByteArray(log).replace('\n', "\r\n");
    QTest::newRow("UTF-16, low byte first") << utf16(kLog, true);
    QTest::newRow("UTF-16, high byte first") << utf16(kLog, false);
    QTest::newRow("no last line feed") << log.left(log.size() - 1);
    QTest::newRow("cut-off character at the end") << log.left(log.size() - 1) + "\xf0\x9f\x98";
}

void tst_LogParserBadInput::sameLogInOtherBytes()
{
    QFETCH(QByteArray, bytes);
    QCOMPARE(m_fixture->parse(bytes), QString());
    QCOMPARE(m_fixture->count(), 1);
    QCOMPARE(table().dataSets().at(0)->dataSetName(), QString::fromLatin1("0: today #Obs=2"));
    QCOMPARE(shown(table().constHeader(0)), QString::fromUtf8("Created:|k:\xc3\xa9"));
    QCOMPARE(shown(table().headerData(0)), QString::fromLatin1("g|a|\t/g|b|v/g|c|w"));
    QCOMPARE(shown(table().columnData(0)), QString::fromUtf8("1|Remarks/2|note/\xe2\x82\xac"));
    QCOMPARE(shown(valuesOf(table().observations(0))),
             QString::fromUtf8("1|2|\xe2\x82\xac/Remarks|note"));
}

void tst_LogParserBadInput::damagedBytes_data()
{
    QTest::addColumn<QByteArray>("row");
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("time");
    QTest::addColumn<QString>("last");
    const QString bad(QChar(QChar::ReplacementCharacter));
    QTest::newRow("stray byte") << QByteArray("1,2,x\xff") << "1"
                                << "2" << QLatin1Char('x') + bad;
    QTest::newRow("continuation only") << QByteArray("\x80,2,3") << bad << "2"
                                       << "3";
    QTest::newRow("character cut by a separator")
        << QByteArray("1\xc3,2,3") << QLatin1Char('1') + bad << "2"
        << "3";
    QTest::newRow("character cut by the line's end") << QByteArray("1,2,3\xc3") << "1"
                                                     << "2" << QLatin1Char('3') + bad;
    QTest::newRow("quoted time, damaged") << QByteArray("1,\"\xff\",3") << "1" << bad << "3";
    QTest::newRow("NUL in a cell")
        << QByteArray("1,2,a\0b", 7) << "1"
        << "2" << QLatin1Char('a') + QString(QChar(0)) + QLatin1Char('b');
    QTest::newRow("NUL first") << QByteArray("\0,2,3", 5) << QString(QChar(0)) << "2"
                               << "3";
    QTest::newRow("NUL for a cell beside an umlaut")
        << QByteArray("\xc3\xa4,\0,3", 6) << QString(QChar(0xe4)) << QString(QChar(0)) << "3";
    QTest::newRow("byte order mark before a row")
        << QByteArray("\xef\xbb\xbf"
                      "1,2,3")
        << QChar(QChar::ByteOrderMark) + QLatin1String("1") << "2"
        << "3";
}

void tst_LogParserBadInput::damagedBytes()
{
    QFETCH(QByteArray, row);
    QFETCH(QString, first);
    QFETCH(QString, time);
    QFETCH(QString, last);
    QCOMPARE(m_fixture->parse(kLog + row + "\n7,8,9\n"), QString());
    const QList<Observation *> rows = table().observations(0);
    QCOMPARE(rows.size(), 4);
    QCOMPARE(rows.at(2)->values().size(), 3);
    QCOMPARE(table().columnData(0).at(0).at(2), first);
    QCOMPARE(table().columnData(0).at(1).at(2), time);
    QCOMPARE(table().columnData(0).at(2).at(1), last);
    QCOMPARE(shown(rows.at(3)->values()), QString::fromLatin1("7|8|9"));
}

void tst_LogParserBadInput::oneLongLine_data()
{
    QTest::addColumn<int>("where");
    QTest::newRow("first line") << 0;
    QTest::newRow("header constant") << 1;
    QTest::newRow("data row") << 2;
    QTest::newRow("remark") << 3;
}

void tst_LogParserBadInput::oneLongLine()
{
    QFETCH(int, where);
    const int size = 50 * 1024 * 1024;
    const QByteArray filler(size, 'x');
    const QByteArray log(kLog);
    QByteArray bytes = where == 0 ? filler + log
        : where == 1              ? QByteArray(log).insert(9, "long:," + filler + '\n')
        : where == 2              ? log + "1,2," + filler + '\n'
                                  : log + filler;
    const QString error = m_fixture->parse(bytes);
    QCOMPARE(error, where == 0 ? QString::fromLatin1(kNoMark) : QString());
    if (where == 1)
        QCOMPARE(table().dataSets().at(0)->dataSetCreatedDate().size(), size);
    if (where == 2)
        QCOMPARE(table().dataForColumn(0, 2).last().size(), size);
    if (where == 3)
        QCOMPARE(table().observations(0).last()->values().at(1).size(), size);
}

void tst_LogParserBadInput::manyColumns()
{
    const int columns = 10000;
    QByteArray log("[Header]\nc,d\n[Data]\n");
    log += QByteArray("g,").repeated(columns - 1) + "h\n";
    log += QByteArray("v,").repeated(columns - 1) + "w\n";
    log += QByteArray(",").repeated(columns - 1) + "u\n";
    for (int row = 0; row < 50; ++row)
        log += QByteArray("12.5,").repeated(columns - 1) + QByteArray::number(row) + '\n';
    log += "note\n1,2,3\n";
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(m_fixture->parse(log), QString());
    const QList<QStringList> cells = table().columnData(0);
    QCOMPARE(cells.size(), columns);
    QCOMPARE(cells.at(0).size(), 52);
    QCOMPARE(cells.at(5).size(), 50);
    QCOMPARE(cells.at(columns - 1).last(), QString::fromLatin1("49"));
    QCOMPARE(shown(table().headerData(0).last()), QString::fromLatin1("h|w|u"));
    QCOMPARE(table().groupForName(QLatin1String("g"), 0)->variables().size(), columns - 1);
    QCOMPARE(table().observations(0).at(3)->values().size(), columns);
    // Time follows the cells; if it followed the columns squared, this would take half a minute.
    QVERIFY(timer.elapsed() < 10000);
}

void tst_LogParserBadInput::rowsLongerAndShorterThanTheHeader()
{
    QCOMPARE(m_fixture->parse(QByteArray(kLog) + "1,2,3,4\n1,2,3,4,5\n1\n1,2,3\n"), QString());
    QCOMPARE(shown(table().headerData(0)), QString::fromLatin1("g|a|\t/g|b|v/g|c|w/?|?|?/?|?|?"));
    QCOMPARE(shown(table().variables(0)), QString::fromLatin1("a|b|c"));
    QCOMPARE(shown(table().columnData(0)),
             QString::fromUtf8("1|Remarks|1|1|Remarks|1/2|note|2|2|1|2/\xe2\x82\xac|3|3|3/4|4/5"));
    QCOMPARE(shown(namesOf(table().groups(0))), QString::fromLatin1("?/g|a|b|c"));
    QVERIFY(table().groupForName(QLatin1String("?"), 0));
}

void tst_LogParserBadInput::spreadsheet_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::newRow("fails") << QByteArray("exit 1");
    QTest::newRow("prints nothing") << QByteArray("true");
    QTest::newRow("prints blanks") << QByteArray("echo ' '");
    QTest::newRow("prints a bad path") << QByteArray("echo /no/such/file.csv");
    QTest::newRow("prints a device") << QByteArray("echo /dev/zero");
    QTest::newRow("prints a terminal") << QByteArray("echo /dev/tty");
    QTest::newRow("prints a named pipe") << QByteArray("mkfifo \"$FAKE/p\"; echo \"$FAKE/p\"");
    QTest::newRow("prints a directory") << QByteArray("echo \"$FAKE\"");
    QTest::newRow("prints a zero byte first") << QByteArray("printf '\\0'; cat \"$0\"");
    QTest::newRow("prints to the wrong stream") << QByteArray("echo \"$0\" >&2");
    QTest::newRow("crashes") << QByteArray("kill -KILL $$");
    QTest::newRow("prints 10 MB") << QByteArray("head -c 10000000 /dev/zero | tr '\\0' x");
}

void tst_LogParserBadInput::spreadsheet()
{
    QFETCH(QByteArray, script);
    m_fixture->parse(kLog);
    const FakePython python(script);
    m_fixture->parser.setLogParserType(LogParser::ExcelType);
    // The spreadsheet itself is there, and not what is read.
    const QString path = m_fixture->dir.write(QLatin1String("odd $(name);\"'.xls"), kLog);
    QCOMPARE(m_fixture->parsePath(path), openError(path));
    QCOMPARE(m_fixture->count(), 0);
    QCOMPARE(python.arguments(),
             QList<QByteArray>() << "/home/tarvo/Scripts/ExcelToCSV.py" << QFile::encodeName(path));
}

void tst_LogParserBadInput::spreadsheetWithoutInterpreter()
{
    m_fixture->parse(kLog);
    const OtherPath noPath("");
    m_fixture->parser.setLogParserType(LogParser::ExcelType);
    const QString path = m_fixture->dir.write(QLatin1String("day.xls"), kLog);
    QCOMPARE(m_fixture->parsePath(path), openError(path));
    QCOMPARE(m_fixture->count(), 0);
}

void tst_LogParserBadInput::endlessSpreadsheet()
{
    const FakePython python("exec sleep 600");
    QCOMPARE(m_fixture->parser.spreadsheetConverter().timeout(), 30000);
    m_fixture->parser.spreadsheetConverter().setTimeout(500);
    m_fixture->parser.setLogParserType(LogParser::ExcelType);
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(m_fixture->parsePath(QLatin1String("day.xls")), openError(QLatin1String("day.xls")));
    QVERIFY(timer.elapsed() < 60000);
    QVERIFY(!m_fixture->parser.isParsing());
}

QTEST_GUILESS_MAIN(tst_LogParserBadInput)
#include "tst_LogParserBadInput.moc"

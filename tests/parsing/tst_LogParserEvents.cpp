#include "ParserFixture.h"
#include "ReadWatcher.h"
#include "support/MessageCapture.h"
#include "support/TestCompat.h"

namespace
{

const char kLog[] = "[Header]\n"
                    "Created,today\n"
                    "Sys:Name,probe\n"
                    "[Data]\n"
                    "g,g,h\n"
                    "a,b,c\n"
                    "u,v,w\n"
                    "1,2,3\n"
                    "note\n"
                    "4,5,6\n";
const int kLines = 10;

class Stopper : public ReadWatcher
{
public:
    Stopper(LogParser *parser, int when)
        : ReadWatcher(parser)
        , m_when(when)
    {
    }

protected:
    void act(int count) override
    {
        if (count == m_when)
            parser()->stop();
    }

private:
    int m_when;
};

/** Starts a second read in the middle of the first. */
class SecondReader : public ReadWatcher
{
public:
    SecondReader(LogParser *parser, const QString &path)
        : ReadWatcher(parser)
        , m_path(path)
    {
    }
    QString error() const { return m_error; }

protected:
    void act(int count) override
    {
        if (count == 5)
            parser()->parseFileAtPath(m_path, m_error);
    }

private:
    QString m_path;
    QString m_error;
};

/** Deletes the parser in the middle of a read, after a look at what it holds. */
class Deleter : public ReadWatcher
{
public:
    Deleter(LogParser *parser, int when)
        : ReadWatcher(parser)
        , m_when(when)
    {
    }
    QPointer<LogDataSet> dataSet() const { return m_dataSet; }
    bool sawDataSet() const { return m_sawDataSet; }

protected:
    void act(int count) override
    {
        if (count != m_when)
            return;
        m_dataSet = parser()->tabularParser().dataSets().value(0);
        m_sawDataSet = !m_dataSet.isNull();
        delete parser();
    }

private:
    int m_when;
    bool m_sawDataSet = false;
    QPointer<LogDataSet> m_dataSet;
};

/** Makes the file longer while it is read. */
class Appender : public ReadWatcher
{
public:
    Appender(LogParser *parser, const QString &path)
        : ReadWatcher(parser)
        , m_path(path)
    {
    }

protected:
    void act(int count) override
    {
        QFile file(m_path);
        if (count == 5 && file.open(QIODevice::Append))
            file.write("7,8,9\n");
    }

private:
    QString m_path;
};

} // namespace

class tst_LogParserEvents : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eventsAfterEachLine();
    void progress_data();
    void progress();
    void noProgressWithoutFile();
    void growingFile();
    void secondReadIsRefused_data();
    void secondReadIsRefused();
    void stop_data();
    void stop();
    void stopInTheErrorTail();
    void stopOutsideARead();
    void deletion_data();
    void deletion();
};

void tst_LogParserEvents::eventsAfterEachLine()
{
    ParserFixture fixture;
    ReadWatcher watcher(&fixture.parser);
    QVERIFY(!fixture.parser.isParsing());
    QCOMPARE(fixture.parse(kLog), QString());
    QVERIFY(!fixture.parser.isParsing());

    QVector<qint64> lineEnds;
    for (int i = 0; kLog[i]; ++i) {
        if (kLog[i] == '\n')
            lineEnds.append(i + 1);
    }
    QCOMPARE(lineEnds.size(), kLines);
    QCOMPARE(watcher.progress(), lineEnds);
    // Each was posted after a line, and handled after the same or the next.
    QVERIFY(watcher.posted() >= kLines - 1);
}

void tst_LogParserEvents::progress_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const QByteArray log(kLog);
    QTest::newRow("log") << log;
    QTest::newRow("no last line feed") << log.left(log.size() - 1);
    QTest::newRow("carriage returns") << QByteArray(log).replace('\n', "\r\n");
    QTest::newRow("lone carriage return last") << log + "\r";
    QTest::newRow("mark") << "\xef\xbb\xbf" + log;
    QTest::newRow("cut-off character last") << log + "\xe2\x82";
    QTest::newRow("refused by its first line") << "x\n" + log;
    QTest::newRow("several blocks of the reader")
        << log + QByteArray("1,2,3,4,5,6,7\n").repeated(10000);
    QTest::newRow("UTF-16") << QByteArray("\xfe\xff\0[\0\n", 6);
    QTest::newRow("empty") << QByteArray();
}

void tst_LogParserEvents::progress()
{
    QFETCH(QByteArray, bytes);
    ParserFixture fixture;
    ReadWatcher watcher(&fixture.parser);
    fixture.parse(bytes);
    QCOMPARE(fixture.parser.bytesTotal(), qint64(bytes.size()));
    QCOMPARE(fixture.parser.bytesRead(), qint64(bytes.size()));
    const QVector<qint64> seen = watcher.progress();
    for (int i = 1; i < seen.size(); ++i)
        QVERIFY(seen.at(i - 1) <= seen.at(i));
    QVERIFY(seen.isEmpty() == bytes.isEmpty());
    QVERIFY(seen.isEmpty() || seen.last() <= bytes.size());
}

void tst_LogParserEvents::noProgressWithoutFile()
{
    ParserFixture fixture;
    QCOMPARE(fixture.parser.bytesRead(), qint64(0));
    QCOMPARE(fixture.parser.bytesTotal(), qint64(0));
    fixture.parse(kLog);
    fixture.parsePath(fixture.dir.filePath(QLatin1String("missing")));
    QCOMPARE(fixture.parser.bytesRead(), qint64(0));
    QCOMPARE(fixture.parser.bytesTotal(), qint64(0));
}

void tst_LogParserEvents::growingFile()
{
    ParserFixture fixture;
    // Longer than what the reader takes at once.
    const QByteArray log = kLog + QByteArray("1,2,3\n").repeated(20000);
    const QString path = fixture.dir.write(QLatin1String("growing.csv"), log);
    Appender appender(&fixture.parser, path);
    QCOMPARE(fixture.parsePath(path), QString());
    QCOMPARE(fixture.table().dataForColumn(0, 0).last(), QString::fromLatin1("7"));
    QCOMPARE(fixture.parser.bytesRead(), qint64(log.size() + 6));
    QCOMPARE(fixture.parser.bytesTotal(), qint64(log.size() + 6));
}

void tst_LogParserEvents::secondReadIsRefused_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("other file") << QString::fromLatin1("other.csv");
    QTest::newRow("missing file") << QString::fromLatin1("missing.csv");
    QTest::newRow("the same file") << QString::fromLatin1("file.log");
}

void tst_LogParserEvents::secondReadIsRefused()
{
    QFETCH(QString, name);
    ParserFixture fixture;
    fixture.dir.write(QLatin1String("other.csv"), "[Header]\nCreated,other\n");
    const QString path = fixture.dir.filePath(name);
    SecondReader second(&fixture.parser, path);
    QCOMPARE(fixture.parse(kLog), QString());
    QCOMPARE(second.error(),
             QString::fromLatin1("LogParser: Failed to read file at path %1: "
                                 "another file is being read.")
                 .arg(path));
    // The first one is complete.
    QCOMPARE(fixture.count(), 1);
    QCOMPARE(fixture.table().dataSets().at(0)->dataSetCreatedDate(), QString::fromLatin1("today"));
    QCOMPARE(shown(valuesOf(fixture.table().observations(0))),
             QString::fromLatin1("1|2|3/Remarks|note/4|5|6"));
    QCOMPARE(fixture.parser.bytesRead(), fixture.parser.bytesTotal());
    // And afterwards another read is welcome.
    QCOMPARE(fixture.parse(kLog), QString());
}

void tst_LogParserEvents::stop_data()
{
    QTest::addColumn<int>("line");
    for (int line = 1; line <= kLines; ++line)
        QTest::newRow(QByteArray::number(line).constData()) << line;
}

void tst_LogParserEvents::stop()
{
    QFETCH(int, line);
    ParserFixture fixture;
    {
        Stopper stopper(&fixture.parser, line);
        const QString path = fixture.dir.filePath(QLatin1String("file.log"));
        QCOMPARE(
            fixture.parse(kLog),
            QString::fromLatin1("LogParser: Reading of file at path %1 was stopped.").arg(path));
        QCOMPARE(stopper.progress().size(), line);
    }
    QVERIFY(!fixture.parser.isParsing());
    QCOMPARE(fixture.count(), 0);
    QVERIFY(fixture.table().rawData().isEmpty());
    QCOMPARE(fixture.parse(kLog), QString());
    QCOMPARE(fixture.count(), 1);
}

void tst_LogParserEvents::stopInTheErrorTail()
{
    ParserFixture fixture;
    Stopper stopper(&fixture.parser, 3);
    QVERIFY(fixture.parse("no mark\na,b\nc,d\ne,f\n").contains(QLatin1String("was stopped")));
    QCOMPARE(stopper.progress().size(), 3);
    QVERIFY(fixture.table().rawData().isEmpty());
}

void tst_LogParserEvents::stopOutsideARead()
{
    ParserFixture fixture;
    fixture.parser.stop();
    QCOMPARE(fixture.parse(kLog), QString());
    fixture.parser.stop();
    QCOMPARE(fixture.count(), 1);
    QCOMPARE(fixture.parse(kLog), QString());
}

void tst_LogParserEvents::deletion_data()
{
    QTest::addColumn<int>("line");
    QTest::addColumn<bool>("hasDataSet");
    QTest::newRow("after the mark") << 1 << false;
    QTest::newRow("in the header") << 3 << true;
    QTest::newRow("in the data") << 8 << true;
    QTest::newRow("after the last line") << kLines << true;
}

void tst_LogParserEvents::deletion()
{
    QFETCH(int, line);
    QFETCH(bool, hasDataSet);
    const TempDir dir;
    const QString path = dir.write(QLatin1String("file.log"), kLog);
    const MessageCapture capture;
    QPointer<LogParser> parser(new LogParser);
    parser->setLogParserType(LogParser::CsvType);
    Deleter deleter(parser, line);
    QString error;
    parser->parseFileAtPath(path, error);
    QVERIFY(parser.isNull());
    QCOMPARE(error,
             QString::fromLatin1("LogParser: Reading of file at path %1 was stopped.").arg(path));
    // What was half read went with the parser.
    QCOMPARE(deleter.sawDataSet(), hasDataSet);
    QVERIFY(deleter.dataSet().isNull());
    QCOMPARE(capture.messages(), QStringList());
}

QTEST_GUILESS_MAIN(tst_LogParserEvents)
#include "tst_LogParserEvents.moc"

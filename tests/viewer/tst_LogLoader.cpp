#include "viewer/LogLoader.h"

#include "TemporaryLog.h"
#include "parsing/FakePython.h"
#include "support/TestCompat.h"

#include <unistd.h>

class tst_LogLoader : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void opens();
    void opensUrls();
    void tellsFailures_data();
    void tellsFailures();
    void tellsThatReadingIsNotPermitted();
    void tellsThatASpreadsheetBecameNoText();
    void recoversFromAFailure();
    void tellsProgress();
    void cancels();
    void refusesASecondRead();
    void survivesItsEndDuringARead();
    void failsWhenTheSourceGoesDuringARead();
    void doesNothingWithoutSource();

private:
    QScopedPointer<LogDataSourceItem> m_source;
    QScopedPointer<LogLoader> m_loader;
};

namespace
{

/** Large enough that events come along while it is read. */
QByteArray largeLog()
{
    QByteArray text = TemporaryLog::twoDataSets();
    for (int i = 0; i < 50000; ++i)
        text += "1\t11:00:00\t500\t1.5\n";
    return text;
}

} // namespace

void tst_LogLoader::init()
{
    m_source.reset(new LogDataSourceItem);
    m_loader.reset(new LogLoader);
    m_loader->setSource(m_source.data());
}

void tst_LogLoader::cleanup()
{
    m_loader.reset();
    m_source.reset();
}

void tst_LogLoader::opens()
{
    const TemporaryLog log;
    QSignalSpy opened(m_loader.data(), SIGNAL(opened()));
    QSignalSpy failed(m_loader.data(), SIGNAL(failed(QString)));
    QSignalSpy reading(m_loader.data(), SIGNAL(readingChanged()));
    QVERIFY(m_loader->open(log.path()));
    QCOMPARE(opened.count(), 1);
    QCOMPARE(failed.count(), 0);
    QCOMPARE(reading.count(), 2);
    QVERIFY(m_loader->isLoaded());
    QVERIFY(!m_loader->isReading());
    QCOMPARE(m_loader->fileName(), QString("test.log"));
    QCOMPARE(m_loader->filePath(), log.path());
    QCOMPARE(m_loader->errorText(), QString());
    QCOMPARE(m_source->dataSetModel()->rowCount(), 2);
}

void tst_LogLoader::opensUrls()
{
    const TemporaryLog log(TemporaryLog::twoDataSets(), "with blank & percent%20.log");
    QVERIFY(m_loader->openUrl(QUrl::fromLocalFile(log.path())));
    QVERIFY(!m_loader->openUrl(QUrl("https://localhost/a.log")));
    QCOMPARE(m_loader->errorText(), QString("https://localhost/a.log: there is no such file"));
}

void tst_LogLoader::tellsFailures_data()
{
    QTest::addColumn<QString>("path"); // below the log's directory
    QTest::addColumn<QString>("cause");

    QTest::newRow("missing") << "missing.log"
                             << "there is no such file";
    QTest::newRow("directory") << "."
                               << "it is a directory";
    QTest::newRow("no log") << "test.log"
                            << "Log File must start with [Header] section.";
}

void tst_LogLoader::tellsFailures()
{
    QFETCH(QString, path);
    QFETCH(QString, cause);
    const TemporaryLog log("Dear diary\n");
    const QString file = log.directory() + '/' + path;
    QSignalSpy failed(m_loader.data(), SIGNAL(failed(QString)));
    QVERIFY(!m_loader->open(file));
    QCOMPARE(m_loader->errorText(), file + ": " + cause);
    QCOMPARE(failed.count(), 1);
    QCOMPARE(failed.at(0).at(0).toString(), m_loader->errorText());
    QVERIFY(!m_loader->isLoaded());
    QVERIFY(!m_loader->isReading());
}

void tst_LogLoader::tellsThatReadingIsNotPermitted()
{
    if (geteuid() == 0)
        QSKIP("everything is permitted to root");
    const TemporaryLog log;
    QVERIFY(QFile::setPermissions(log.path(), QFile::Permissions()));
    QVERIFY(!m_loader->open(log.path()));
    QCOMPARE(m_loader->errorText(), log.path() + ": reading it is not permitted");
}

void tst_LogLoader::tellsThatASpreadsheetBecameNoText()
{
    const FakePython python("exit 1");
    const TemporaryLog sheet("PK: no text at all", "sheet.xlsx");
    QVERIFY(!m_loader->open(sheet.path()));
    QCOMPARE(
        m_loader->errorText(),
        sheet.path()
            + ": the script that turns spreadsheets into text is missing here, or made nothing "
              "of this one");
    QVERIFY(!m_loader->open("missing.xlsx"));
    QCOMPARE(m_loader->errorText(), QString("missing.xlsx: there is no such file"));
    // What it wrote may still be no log.
    const FakePython other("echo diary > \"$FAKE/a.csv\"; echo \"$FAKE/a.csv\"");
    QVERIFY(!m_loader->open(sheet.path()));
    QCOMPARE(m_loader->errorText(), sheet.path() + ": Log File must start with [Header] section.");
}

void tst_LogLoader::recoversFromAFailure()
{
    const TemporaryLog log;
    QVERIFY(m_loader->open(log.path()));
    QVERIFY(!m_loader->open("missing.log"));
    QVERIFY(!m_loader->isLoaded());
    QVERIFY(m_loader->open(log.path()));
    QVERIFY(m_loader->isLoaded());
    QCOMPARE(m_loader->errorText(), QString());
}

void tst_LogLoader::tellsProgress()
{
    const TemporaryLog log(largeLog());
    m_loader->setProgressInterval(0);
    QVector<double> parts;
    connect(m_loader.data(), &LogLoader::progressChanged, this, [this, &parts] {
        if (m_loader->bytesTotal() > 0)
            parts.append(m_loader->bytesRead() / m_loader->bytesTotal());
    });
    QVERIFY(m_loader->open(log.path()));
    QVERIFY(parts.size() >= 2);
    QVERIFY(std::is_sorted(parts.begin(), parts.end()));
    QVERIFY2(parts.first() < 1, "some of it was told before the end");
    QCOMPARE(parts.last(), 1.0);
    QCOMPARE(m_loader->bytesTotal(), double(QFile(log.path()).size()));
}

void tst_LogLoader::cancels()
{
    const TemporaryLog log(largeLog());
    QTimer::singleShot(0, m_loader.data(), &LogLoader::cancel);
    QVERIFY(!m_loader->open(log.path()));
    QCOMPARE(m_loader->errorText(), log.path() + ": reading was cancelled, nothing of it was kept");
    QCOMPARE(m_source->parser()->tabularParser().dataSets().size(), 0);
    QVERIFY(!m_loader->isLoaded());
    QVERIFY(m_loader->open(log.path()));
}

void tst_LogLoader::refusesASecondRead()
{
    const TemporaryLog log(largeLog());
    const TemporaryLog other;
    bool isRefused = false;
    QTimer::singleShot(0, this, [this, &other, &isRefused] {
        isRefused = m_loader->isReading() && !m_loader->open(other.path());
    });
    QVERIFY(m_loader->open(log.path()));
    QVERIFY(isRefused);
    QCOMPARE(m_loader->filePath(), log.path());
    QCOMPARE(m_loader->errorText(), QString());
}

void tst_LogLoader::survivesItsEndDuringARead()
{
    const TemporaryLog log(largeLog());
    QTimer::singleShot(0, this, [this] { m_loader.reset(); });
    LogLoader *loader = m_loader.data();
    QVERIFY(!loader->open(log.path()));
    QVERIFY(!m_source->parser()->isParsing());
}

void tst_LogLoader::failsWhenTheSourceGoesDuringARead()
{
    const TemporaryLog log(largeLog());
    QTimer::singleShot(0, this, [this] { m_source.reset(); });
    QVERIFY(!m_loader->open(log.path()));
    QVERIFY(!m_loader->isLoaded());
    QCOMPARE(m_loader->errorText(), log.path() + ": what read it is gone");
}

void tst_LogLoader::doesNothingWithoutSource()
{
    LogLoader loader;
    QVERIFY(!loader.open("a.log"));
    loader.cancel();
    QCOMPARE(loader.bytesRead(), 0.0);
    QCOMPARE(loader.bytesTotal(), 0.0);
}

QTEST_MAIN(tst_LogLoader)
#include "tst_LogLoader.moc"

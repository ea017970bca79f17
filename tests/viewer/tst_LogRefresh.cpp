#include "viewer/LogLoader.h"

#include "TemporaryLog.h"
#include "support/TestCompat.h"

/** Reading a log once more beside what is open of it. */
class tst_LogRefresh : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void takesTheNewLogAtItsEnd();
    void leavesWhatIsOpenMeanwhile();
    void tellsProgress();
    void isGivenUp();
    void keepsWhatIsOpenWhenItFails_data();
    void keepsWhatIsOpenWhenItFails();
    void makesWayForAnotherLog();
    void endsByCancel();
    void isRefused();
    void survivesTheLoadersEnd();
    void survivesTheSourcesEnd();

private:
    int dataSets() const { return m_source->parser()->tabularParser().dataSets().size(); }
    int rows() const { return m_source->parser()->tabularParser().grid(1)->cellCount(0); }

    QScopedPointer<TemporaryLog> m_log;
    QScopedPointer<LogDataSourceItem> m_source;
    QScopedPointer<LogLoader> m_loader;
};

namespace
{

const QByteArray kRow = "4\t11:00:03\t503\t4.5\n";
const int kManyRows = 50000; // so many that events come along while they are read

} // namespace

void tst_LogRefresh::init()
{
    m_log.reset(new TemporaryLog);
    m_source.reset(new LogDataSourceItem);
    m_loader.reset(new LogLoader);
    m_loader->setSource(m_source.data());
    QVERIFY(m_loader->open(m_log->path()));
    QCOMPARE(rows(), 3);
}

void tst_LogRefresh::cleanup()
{
    m_loader.reset();
    m_source.reset();
    m_log.reset();
}

void tst_LogRefresh::takesTheNewLogAtItsEnd()
{
    m_log->append(kRow);
    QSignalSpy opened(m_loader.data(), SIGNAL(opened()));
    QSignalSpy loaded(m_loader.data(), SIGNAL(loadedChanged()));
    QSignalSpy refreshing(m_loader.data(), SIGNAL(refreshingChanged()));
    int before = 0;
    connect(m_loader.data(), &LogLoader::aboutToReplace, this,
            [this, &before] { before = rows(); });
    QVERIFY(m_loader->refresh());
    QCOMPARE(before, 3);
    QCOMPARE(rows(), 4);
    QCOMPARE(dataSets(), 2);
    QCOMPARE(opened.count(), 1);
    QCOMPARE(loaded.count(), 0);
    QCOMPARE(refreshing.count(), 2);
    QVERIFY(!m_loader->isRefreshing());
    QCOMPARE(m_loader->filePath(), m_log->path());
}

void tst_LogRefresh::leavesWhatIsOpenMeanwhile()
{
    m_log->append(kRow.repeated(kManyRows));
    m_source->selectDataSet(0);
    m_source->setHorizontalVariable("Obs");
    int seen = 0;
    QTimer::singleShot(0, this, [this, &seen] {
        QVERIFY(m_loader->isRefreshing());
        QVERIFY(!m_loader->isReading());
        QVERIFY(m_loader->isLoaded());
        seen = rows();
        m_source->setLeftVariable("T");
        QCOMPARE(m_source->YLeftData().keys(), QStringList("T"));
    });
    QVERIFY(m_loader->refresh());
    QCOMPARE(seen, 3);
    QCOMPARE(rows(), 3 + kManyRows);
}

void tst_LogRefresh::tellsProgress()
{
    m_log->append(kRow.repeated(kManyRows));
    m_loader->setProgressInterval(0);
    QVector<double> parts;
    connect(m_loader.data(), &LogLoader::progressChanged, this,
            [this, &parts] { parts.append(m_loader->bytesRead() / m_loader->bytesTotal()); });
    QVERIFY(m_loader->refresh());
    QVERIFY(parts.size() >= 2);
    QVERIFY(std::is_sorted(parts.begin(), parts.end()));
    QVERIFY(parts.first() < 0.5);
}

void tst_LogRefresh::isGivenUp()
{
    m_log->append(kRow.repeated(kManyRows));
    bool isTold = false;
    QTimer::singleShot(0, this, [this, &isTold] {
        m_loader->giveUpRefresh();
        isTold = !m_loader->isRefreshing();
    });
    QSignalSpy opened(m_loader.data(), SIGNAL(opened()));
    QSignalSpy failed(m_loader.data(), SIGNAL(failed(QString)));
    QVERIFY(!m_loader->refresh());
    QVERIFY(isTold);
    QVERIFY(m_loader->isRefreshGivenUp());
    QCOMPARE(rows(), 3);
    QCOMPARE(opened.count() + failed.count(), 0);
    QVERIFY(m_loader->isLoaded());
    QCOMPARE(m_loader->refreshError(), QString());
    QVERIFY(m_loader->refresh());
    QCOMPARE(rows(), 3 + kManyRows);
    m_loader->giveUpRefresh(); // nothing to give up
    QVERIFY(!m_loader->isRefreshGivenUp());
}

void tst_LogRefresh::keepsWhatIsOpenWhenItFails_data()
{
    QTest::addColumn<QByteArray>("text"); // null for no file
    QTest::addColumn<QString>("cause");

    QTest::newRow("gone") << QByteArray() << "there is no such file";
    QTest::newRow("being written anew")
        << QByteArray("[Hea") << "Log File must start with [Header] section.";
}

void tst_LogRefresh::keepsWhatIsOpenWhenItFails()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, cause);
    QVERIFY(QFile::remove(m_log->path()));
    if (!text.isNull())
        m_log->append(text);
    QSignalSpy failed(m_loader.data(), SIGNAL(failed(QString)));
    QVERIFY(!m_loader->refresh());
    QCOMPARE(m_loader->refreshError(), m_log->path() + ": " + cause);
    QCOMPARE(m_loader->errorText(), QString());
    QCOMPARE(failed.count(), 0);
    QVERIFY(m_loader->isLoaded());
    QCOMPARE(rows(), 3);
    QVERIFY(QFile::remove(m_log->path()) || text.isNull());
    m_log->append(TemporaryLog::twoDataSets() + kRow);
    QVERIFY(m_loader->refresh());
    QCOMPARE(m_loader->refreshError(), QString());
    QCOMPARE(rows(), 4);
}

void tst_LogRefresh::makesWayForAnotherLog()
{
    m_log->append(kRow.repeated(kManyRows));
    const TemporaryLog other(TemporaryLog::twoDataSets() + kRow, "other.log");
    bool isOpened = false;
    QTimer::singleShot(0, this, [this, &other, &isOpened] {
        isOpened = m_loader->isRefreshing() && m_loader->open(other.path());
    });
    QVERIFY(!m_loader->refresh());
    QVERIFY(isOpened);
    QVERIFY(!m_loader->isReading());
    QCOMPARE(m_loader->fileName(), QString("other.log"));
    QCOMPARE(rows(), 4);
    QVERIFY(m_loader->refresh());
    QCOMPARE(rows(), 4);
}

void tst_LogRefresh::endsByCancel()
{
    m_log->append(kRow.repeated(kManyRows));
    QTimer::singleShot(0, m_loader.data(), &LogLoader::cancel);
    QVERIFY(!m_loader->refresh());
    QCOMPARE(rows(), 3);
    QVERIFY(!m_loader->isCancelled());
}

void tst_LogRefresh::isRefused()
{
    m_log->append(kRow.repeated(kManyRows));
    bool isRefused = false;
    const auto refresh = [this, &isRefused] { isRefused = !m_loader->refresh(); };
    QTimer::singleShot(0, this, refresh);
    QVERIFY(m_loader->refresh());
    QVERIFY2(isRefused, "during a refresh");
    isRefused = false;
    QTimer::singleShot(0, this, refresh);
    QVERIFY(m_loader->open(m_log->path()));
    QVERIFY2(isRefused, "during a read");
    QVERIFY(!m_loader->open("missing.log"));
    QVERIFY2(!m_loader->refresh(), "without a log");
    QVERIFY2(!LogLoader().refresh(), "without a source");
}

void tst_LogRefresh::survivesTheLoadersEnd()
{
    m_log->append(kRow.repeated(kManyRows));
    QTimer::singleShot(0, this, [this] { m_loader.reset(); });
    LogLoader *loader = m_loader.data();
    QVERIFY(!loader->refresh());
    QVERIFY(!m_loader);
    QCOMPARE(rows(), 3);
}

void tst_LogRefresh::survivesTheSourcesEnd()
{
    m_log->append(kRow.repeated(kManyRows));
    QTimer::singleShot(0, this, [this] { m_source.reset(); });
    QVERIFY(!m_loader->refresh());
    QVERIFY(!m_loader->isRefreshing());
}

QTEST_MAIN(tst_LogRefresh)
#include "tst_LogRefresh.moc"

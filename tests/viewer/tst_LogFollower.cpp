#include "viewer/LogFollower.h"

#include "TemporaryLog.h"
#include "support/TestCompat.h"

class tst_LogFollower : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void tellsGrowth_data();
    void tellsGrowth();
    void tellsGrowthBeforeItFollowed();
    void tellsNothingElse();
    void gathersChanges();
    void tellsThatTheFileIsGone();
    void waitsOnAnEmptyFile();
    void tellsAnotherFileAtThePath();
    void followsAnotherLog();
    void tellsAFileThatShrank();
    void tellsAFileThatWasGoneForAMoment();
    void tellsALineThatIsFinishedLater();
    void readsForAtMostAThirdOfTheTime();
    void stopsARefreshByTheWay();
    void looksAgainAfterARefreshWasGivenUp();

private:
    void startFollowing();

    QScopedPointer<TemporaryLog> m_log;
    QScopedPointer<LogDataSourceItem> m_source;
    QScopedPointer<LogLoader> m_loader;
    QScopedPointer<LogFollower> m_follower;
    QScopedPointer<QSignalSpy> m_changed;
};

namespace
{

const int kNever = 3600 * 1000; // ms

} // namespace

void tst_LogFollower::init()
{
    m_log.reset(new TemporaryLog);
    m_source.reset(new LogDataSourceItem);
    m_loader.reset(new LogLoader);
    m_loader->setSource(m_source.data());
    QVERIFY(m_loader->open(m_log->path()));
    m_follower.reset(new LogFollower);
    m_follower->setIntervals(20, 50);
    m_changed.reset(new QSignalSpy(m_follower.data(), SIGNAL(changed())));
}

void tst_LogFollower::cleanup()
{
    m_follower.reset();
    m_loader.reset();
    m_source.reset();
    m_log.reset();
}

/** What the follower is told last is a read that it has seen. */
void tst_LogFollower::startFollowing()
{
    m_follower->setLoader(m_loader.data());
    m_follower->setFollowing(true);
    QVERIFY(m_loader->open(m_log->path()));
    m_changed->clear();
}

void tst_LogFollower::tellsGrowth_data()
{
    QTest::addColumn<int>("lookInterval");

    QTest::newRow("told by the system") << kNever;
    QTest::newRow("looked for") << 50;
}

void tst_LogFollower::tellsGrowth()
{
    QFETCH(int, lookInterval);
    m_follower->setIntervals(20, lookInterval);
    startFollowing();
    for (int i = 1; i <= 3; ++i) {
        m_log->append("4\t11:00:03\t503\t4.5\n");
        QVERIFY(waitForCount(*m_changed, i));
        QVERIFY(m_loader->open(m_log->path()));
    }
    QVERIFY(!m_follower->isGone());
}

void tst_LogFollower::tellsGrowthBeforeItFollowed()
{
    m_follower->setLoader(m_loader.data());
    QVERIFY(m_loader->open(m_log->path()));
    m_log->append("4\t11:00:03\t503\t4.5\n");
    m_follower->setFollowing(true);
    QVERIFY(waitForCount(*m_changed, 1));
}

void tst_LogFollower::tellsNothingElse()
{
    startFollowing();
    QFile neighbour(m_log->directory() + "/other.log");
    QVERIFY(neighbour.open(QIODevice::WriteOnly));
    neighbour.close();
    QVERIFY(!waitForCount(*m_changed, 1, 300));
    m_follower->setFollowing(false);
    m_log->append("4\t11:00:03\t503\t4.5\n");
    QVERIFY(!waitForCount(*m_changed, 1, 300));
}

void tst_LogFollower::gathersChanges()
{
    m_follower->setIntervals(400, 50);
    startFollowing();
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < 20; ++i) {
        m_log->append("4\t11:00:03\t503\t4.5\n");
        QCoreApplication::processEvents();
    }
    QVERIFY(waitForCount(*m_changed, 1));
    QCOMPARE(m_changed->count(), 1);
    QVERIFY(timer.elapsed() >= 300);
}

void tst_LogFollower::tellsThatTheFileIsGone()
{
    startFollowing();
    QVERIFY(QFile::remove(m_log->path()));
    QTRY_VERIFY(m_follower->isGone());
    QCOMPARE(m_changed->count(), 0);
    m_log->write(TemporaryLog::twoDataSets() + "4\t11:00:03\t503\t4.5\n");
    QVERIFY(waitForCount(*m_changed, 1));
    QVERIFY(!m_follower->isGone());
    QVERIFY(QFile::remove(m_log->path()));
    QTRY_VERIFY(m_follower->isGone());
    m_follower->setFollowing(false);
    QVERIFY(!m_follower->isGone());
}

void tst_LogFollower::waitsOnAnEmptyFile()
{
    startFollowing();
    m_log->write(QByteArray());
    QVERIFY(!waitForCount(*m_changed, 1, 300));
    QVERIFY(!m_follower->isGone());
    m_log->append(TemporaryLog::twoDataSets());
    QVERIFY(waitForCount(*m_changed, 1));
}

void tst_LogFollower::tellsAnotherFileAtThePath()
{
    startFollowing();
    const QString fresh = m_log->directory() + "/fresh.log";
    QVERIFY(QFile::copy(m_log->path(), fresh));
    {
        QFile file(fresh);
        QVERIFY(file.open(QIODevice::Append));
        file.write("4\t11:00:03\t503\t4.5\n");
    }
    QCOMPARE(std::rename(fresh.toLocal8Bit(), m_log->path().toLocal8Bit()), 0);
    QVERIFY(waitForCount(*m_changed, 1));
    QVERIFY(m_loader->open(m_log->path()));
    // The new one is followed from now on.
    m_log->append("5\t11:00:03\t503\t4.5\n");
    QVERIFY(waitForCount(*m_changed, 2));
}

void tst_LogFollower::followsAnotherLog()
{
    startFollowing();
    const TemporaryLog other;
    QVERIFY(m_loader->open(other.path()));
    m_log->append("4\t11:00:03\t503\t4.5\n");
    QVERIFY(!waitForCount(*m_changed, 1, 300));
    QFile file(other.path());
    QVERIFY(file.open(QIODevice::Append));
    file.write("4\t11:00:03\t503\t4.5\n");
    file.close();
    QVERIFY(waitForCount(*m_changed, 1));
}

void tst_LogFollower::tellsAFileThatShrank()
{
    startFollowing();
    m_log->write(TemporaryLog::twoDataSets().left(200));
    QVERIFY(waitForCount(*m_changed, 1));
    QVERIFY(m_loader->refresh());
    QCOMPARE(m_source->parser()->tabularParser().dataSets().size(), 1);
}

void tst_LogFollower::tellsAFileThatWasGoneForAMoment()
{
    m_follower->setIntervals(100, kNever);
    startFollowing();
    QVERIFY(QFile::remove(m_log->path()));
    QTRY_VERIFY(m_follower->isGone());
    m_log->write(TemporaryLog::twoDataSets() + "4\t11:00:03\t503\t4.5\n");
    QVERIFY(waitForCount(*m_changed, 1));
    QVERIFY(!m_follower->isGone());
    QVERIFY(m_loader->refresh());
    QCOMPARE(m_source->parser()->tabularParser().grid(1)->cellCount(0), 4);
    // The one that came back is followed.
    m_log->append("5\t11:00:04\t504\t5.5\n");
    QVERIFY(waitForCount(*m_changed, 2));
}

void tst_LogFollower::tellsALineThatIsFinishedLater()
{
    startFollowing();
    m_log->append("4\t11:00:03\t50");
    QVERIFY(waitForCount(*m_changed, 1));
    QVERIFY(m_loader->refresh());
    m_log->append("3\t4.5\n");
    QVERIFY(waitForCount(*m_changed, 2));
    QVERIFY(m_loader->refresh());
    const TabularParser &log = m_source->parser()->tabularParser();
    QCOMPARE(log.dataForColumn(1, 2), (QStringList{"500", "501", "502", "503"}));
    QCOMPARE(log.dataForColumn(1, 3).last(), QString("4.5"));
}

void tst_LogFollower::readsForAtMostAThirdOfTheTime()
{
    m_log->append(QByteArray("4\t11:00:03\t503\t4.5\n").repeated(100000));
    m_follower->setIntervals(1, 5);
    startFollowing();
    for (int round = 1; round <= 3; ++round) {
        QElapsedTimer timer;
        timer.start();
        QVERIFY(m_loader->refresh());
        const qint64 reading = timer.restart();
        QVERIFY2(reading > 5, "it takes longer than the follower waits in any case");
        m_changed->clear();
        m_log->append("4\t11:00:03\t503\t4.5\n");
        QVERIFY(waitForCount(*m_changed, 1, 60000));
        const qint64 pause = timer.elapsed();
        QVERIFY2(pause >= 2 * reading, qPrintable(QString("%1 %2").arg(reading).arg(pause)));
    }
}

void tst_LogFollower::stopsARefreshByTheWay()
{
    m_log->append(QByteArray("4\t11:00:03\t503\t4.5\n").repeated(50000));
    startFollowing();
    QTimer::singleShot(0, this, [this] { m_follower->setFollowing(false); });
    QVERIFY(!m_loader->refresh());
    QVERIFY(m_loader->isRefreshGivenUp());
    QVERIFY(m_loader->isLoaded());
}

void tst_LogFollower::looksAgainAfterARefreshWasGivenUp()
{
    m_log->append(QByteArray("4\t11:00:03\t503\t4.5\n").repeated(50000));
    startFollowing();
    m_log->append("4\t11:00:03\t503\t4.5\n");
    QVERIFY(waitForCount(*m_changed, 1));
    QTimer::singleShot(0, m_loader.data(), &LogLoader::giveUpRefresh);
    QVERIFY(!m_loader->refresh());
    QVERIFY(waitForCount(*m_changed, 2));
    QVERIFY(m_loader->refresh());
    QVERIFY(!waitForCount(*m_changed, 3, 300));
}

QTEST_MAIN(tst_LogFollower)
#include "tst_LogFollower.moc"

#include "Complaints.h"
#include "ViewerUser.h"
#include "viewer/LogFollower.h"
#include "viewer/RecentFiles.h"

#include <QApplication>
#include <QSettings>

#include <functional>

/** All by finger, on an instrument's screen: neither a mouse nor keys are there. */
class tst_Fingers : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void opensARecentLog();
    void readsTheLogAgain();
    void followsTheLogAndStops();
    void cancelsAReadAndGoesBack();

private:
    ViewerUser &user() const { return *m_user; }
    int rows() const { return user().source()->tableModel()->rowCount(); }
    QString fileName() const { return user().text("fileName"); }
    /** Does it as soon as an item is shown. */
    void whenShown(const char *name, const std::function<void()> &action);

    QScopedPointer<Complaints> m_complaints;
    QScopedPointer<QTemporaryDir> m_settings;
    QScopedPointer<TemporaryLog> m_log;
    QScopedPointer<ViewerUser> m_user;
    QTimer m_look;
};

namespace
{

const QByteArray kRow = "11\t10:00:11\t31.5\t39\t4011\n";

} // namespace

void tst_Fingers::initTestCase()
{
    QApplication::setStyle("fusion");
}

void tst_Fingers::init()
{
    m_complaints.reset(new Complaints);
    m_settings.reset(new QTemporaryDir);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_settings->path());
    m_log.reset(new TemporaryLog(TemporaryLog::oneDataSet()));
    m_user.reset(new ViewerUser(*m_log, QSize(800, 480)));
    QVERIFY(user().isReady());
    QTRY_COMPARE(user().window()->size(), QSize(800, 480));
    m_user->find<LogFollower>("follower")->setIntervals(20, 100);
}

/** Nothing that is done here may make the engine complain. */
void tst_Fingers::cleanup()
{
    m_look.stop();
    m_look.disconnect();
    m_user.reset();
    m_log.reset();
    const QString text = m_complaints->text();
    m_complaints.reset();
    QCOMPARE(text, QString());
}

void tst_Fingers::whenShown(const char *name, const std::function<void()> &action)
{
    connect(&m_look, &QTimer::timeout, this, [this, name, action] {
        if (!user().isShown(name))
            return;
        m_look.stop();
        action();
    });
    m_look.start(20);
}

// The log

void tst_Fingers::opensARecentLog()
{
    const TemporaryLog other(TemporaryLog::oneDataSet(4), "other.log");
    user().find<RecentFiles>("recentFiles")->add(other.path());
    QVERIFY(user().tap("recentButton"));
    QVERIFY(user().tap("recent0"));
    QTRY_COMPARE(fileName(), QString("other.log"));
    QTRY_COMPARE(rows(), 4);
    QVERIFY(user().tap("recentButton"));
    QVERIFY(user().tap("recent1"));
    QTRY_COMPARE(fileName(), QString("test.log"));
    QTRY_COMPARE(rows(), 10);
}

void tst_Fingers::readsTheLogAgain()
{
    m_log->append(kRow);
    QCOMPARE(rows(), 10);
    QVERIFY(user().tap("reloadButton"));
    QTRY_COMPARE(rows(), 11);
}

void tst_Fingers::followsTheLogAndStops()
{
    const auto *follower = user().find<LogFollower>("follower");
    QVERIFY(user().tap("followButton"));
    QTRY_VERIFY(follower->isFollowing());
    m_log->append(kRow);
    QTRY_COMPARE(rows(), 11);
    QVERIFY(user().tap("followButton"));
    QTRY_VERIFY(!follower->isFollowing());
    m_log->append(kRow);
    QVERIFY(user().tap("reloadButton"));
    QTRY_COMPARE(rows(), 12);
}

void tst_Fingers::cancelsAReadAndGoesBack()
{
    const TemporaryLog large(TemporaryLog::oneDataSet() + kRow.repeated(1000000), "large.log");
    user().find<RecentFiles>("recentFiles")->add(large.path());
    bool isTapped = false;
    whenShown("cancelButton", [this, &isTapped] { isTapped = user().tap("cancelButton"); });
    QVERIFY(user().tap("recentButton"));
    QVERIFY(user().tap("recent0"));
    QTRY_VERIFY_WITH_TIMEOUT(user().isShown("errorPane"), 60000);
    QVERIFY(isTapped);
    QCOMPARE(user().text("errorTitle"), QString("Reading was cancelled"));
    QVERIFY(user().tap("back"));
    QTRY_VERIFY(!user().isShown("errorPane"));
    QTRY_COMPARE(rows(), 10);
    QCOMPARE(fileName(), QString("test.log"));
}

QTEST_MAIN(tst_Fingers)
#include "tst_Fingers.moc"

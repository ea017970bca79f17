#include "ViewerUser.h"
#include "viewer/LogFollower.h"
#include "viewer/LogLoader.h"
#include "viewer/LogTroubles.h"
#include "viewer/RecentFiles.h"

#include <QApplication>
#include <QSettings>

#include <functional>

#include <qwt_scale_div.h>

/** A log that grows while it is looked at, with a mouse and keys. */
class tst_Following : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void followsAGrowingLog();
    void followsALogFromItsFirstLine();
    void keepsWhatIsShown();
    void tellsThatAFollowedLogIsGone();
    void tellsThatAFollowedLogCannotBeRead();
    void finishesALineLater();
    void tellsOnceWhatIsNotShownAgain();
    void staysUsableWhileRefreshing();
    void stopsRefreshingByAClick();
    void takesOver_data();
    void takesOver();
    void leavesTheRecentLogsAlone();
    void leavesTheVariablesWhereTheyAre();

private:
    void startFollowing();
    bool duringARefresh(const std::function<void()> &action);
    LogLoader *loader() const { return m_user->window()->findChild<LogLoader *>(); }
    int rows() const { return m_user->source()->tableModel()->rowCount(); }
    QStringList left() const { return m_user->source()->YLeftData().keys(); }

    QScopedPointer<QTemporaryDir> m_settings;
    QScopedPointer<TemporaryLog> m_log;
    QScopedPointer<ViewerUser> m_user;
};

namespace
{

const QByteArray kRow = "11\t10:00:11\t31.5\t39\t4011\n";
const int kManyRows = 600000;

} // namespace

void tst_Following::initTestCase()
{
    QApplication::setStyle("fusion");
}

void tst_Following::init()
{
    m_settings.reset(new QTemporaryDir);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_settings->path());
    m_log.reset(new TemporaryLog(TemporaryLog::oneDataSet()));
    m_user.reset(new ViewerUser(*m_log));
    QVERIFY(m_user->isReady());
    m_user->find<LogFollower>("follower")->setIntervals(20, 100);
}

void tst_Following::cleanup()
{
    m_user.reset();
    m_log.reset();
}

void tst_Following::startFollowing()
{
    QVERIFY(m_user->click("followButton"));
    QTRY_VERIFY(m_user->find<LogFollower>("follower")->isFollowing());
}

/** Does it once the window shows that a large log is read that has grown; false if it never does.
 */
bool tst_Following::duringARefresh(const std::function<void()> &action)
{
    bool isDone = false;
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [this, &timer, &action, &isDone] {
        if (!m_user->isShown("refreshLine"))
            return;
        timer.stop();
        action();
        isDone = true;
    });
    timer.start(20);
    m_log->append(kRow.repeated(kManyRows));
    return QTest::qWaitFor([&isDone] { return isDone; }, 60000);
}

void tst_Following::followsAGrowingLog()
{
    m_log->append(kRow);
    startFollowing();
    QTRY_COMPARE(rows(), 11);
    m_user->source()->setLeftVariable("RH");
    m_log->append(kRow);
    QTRY_COMPARE(rows(), 12);
    m_log->append(kRow);
    QTRY_COMPARE(rows(), 13);
    QCOMPARE(left(), QStringList{"RH"});
    m_log->write(TemporaryLog::oneDataSet(4));
    QTRY_COMPARE(rows(), 4);
    // Another one is put in its place.
    const TemporaryLog other(TemporaryLog::oneDataSet(6), "other.log");
    QVERIFY(QFile::copy(other.path(), m_log->path() + ".new"));
    QCOMPARE(
        std::rename(QFile::encodeName(m_log->path() + ".new"), QFile::encodeName(m_log->path())),
        0);
    QTRY_COMPARE(rows(), 6);
    QCOMPARE(left(), QStringList{"RH"});
    QVERIFY(!m_user->isShown("openingNotice"));
}

/** What is shown of it is chosen when there is something to choose. */
void tst_Following::followsALogFromItsFirstLine()
{
    m_log->write(QByteArray());
    m_user->key(Qt::Key_F5);
    QTRY_COMPARE(rows(), 0);
    startFollowing();
    m_log->append("[Header]\nCreated\t2020-01-01\n[Data]\n");
    QTRY_COMPARE(m_user->source()->dataSetModel()->rowCount(), 1);
    m_log->write(TemporaryLog::oneDataSet());
    QTRY_COMPARE(rows(), 10);
    QVERIFY(!left().isEmpty());
    m_user->source()->setLeftVariable("RH");
    m_log->append(kRow);
    QTRY_COMPARE(rows(), 11);
    QCOMPARE(left(), QStringList{"RH"});
}

void tst_Following::keepsWhatIsShown()
{
    startFollowing();
    LogDataSourceItem *source = m_user->source();
    source->setHorizontalVariable("T");
    source->setLeftVariable("RH");
    source->buildFilter(3, 0, "42"); // RH > 42
    LogTableViewModel *table = source->tableModel();
    QVERIFY(table->setData(table->index(1, 0), Qt::Checked, Qt::CheckStateRole));
    m_user->plot()->setAxisScale(LogViewerItem::LeftAxis, 40, 47.25);
    m_log->append(kRow);
    QTRY_COMPARE(rows(), 11);
    QCOMPARE(source->xData().first, QString("T"));
    QCOMPARE(left(), QStringList{"RH"});
    QCOMPARE(source->activeFilterModel()->rowCount(), 1);
    QVERIFY(table->rowExcluded(1));
    const QwtScaleDiv scale = m_user->plot()->plot()->axisScaleDiv(QwtPlot::yLeft);
    QCOMPARE(scale.lowerBound(), 40.0);
    QCOMPARE(scale.upperBound(), 47.25);
}

void tst_Following::tellsThatAFollowedLogIsGone()
{
    startFollowing();
    QVERIFY(QFile::remove(m_log->path()));
    QTRY_VERIFY(m_user->isShown("openingNotice"));
    QCOMPARE(m_user->text("openingNotice"),
             QString("test.log is gone. It is followed, and shown again when it is back."));
    // What was read of it stays.
    QCOMPARE(rows(), 10);
    QVERIFY(!m_user->isShown("errorPane"));
    m_log->write(TemporaryLog::oneDataSet(5));
    QTRY_COMPARE(rows(), 5);
    QTRY_VERIFY(!m_user->isShown("openingNotice"));
}

void tst_Following::tellsThatAFollowedLogCannotBeRead()
{
    startFollowing();
    m_user->source()->setLeftVariable("RH");
    m_log->write("[Hea");
    QTRY_VERIFY(m_user->isShown("openingNotice"));
    QCOMPARE(m_user->text("openingNotice"),
             m_log->path()
                 + ": Log File must start with [Header] section. What was read before is shown "
                   "until it can be read again.");
    QCOMPARE(rows(), 10);
    QVERIFY(!m_user->isShown("errorPane"));
    m_log->write(TemporaryLog::oneDataSet(5));
    QTRY_COMPARE(rows(), 5);
    QVERIFY(!m_user->isShown("openingNotice"));
    QCOMPARE(left(), QStringList{"RH"});
}

void tst_Following::finishesALineLater()
{
    startFollowing();
    m_log->append("11\t10:00:11");
    QTRY_COMPARE(rows(), 11);
    QTRY_VERIFY(m_user->isShown("troublesButton"));
    m_log->append("\t31.5\t39\t4011\n");
    QTRY_COMPARE(m_user->source()->parser()->tabularParser().dataForColumn(0, 4).value(10),
                 QString("4011"));
    QCOMPARE(rows(), 11);
    QTRY_VERIFY(!m_user->isShown("troublesButton"));
}

/** Though the next refresh has nothing to tell. */
void tst_Following::tellsOnceWhatIsNotShownAgain()
{
    m_user->source()->setLeftVariable("RH");
    startFollowing();
    m_log->write(TemporaryLog::oneDataSet().replace("\tRH\t", "\tVPD\t"));
    QTRY_VERIFY(m_user->isShown("openingNotice"));
    const QString notice("Not shown as before: there is no variable \"RH\" in data set 1");
    QCOMPARE(m_user->text("openingNotice"), notice);
    m_log->append(kRow);
    QTRY_COMPARE(rows(), 11);
    QCOMPARE(m_user->text("openingNotice"), notice);
    QVERIFY(m_user->click("dismissOpeningNotice"));
    QTRY_VERIFY(!m_user->isShown("openingNotice"));
}

void tst_Following::staysUsableWhileRefreshing()
{
    startFollowing();
    bool hasChanged = false;
    QVERIFY(duringARefresh([this, &hasChanged] {
        QVERIFY(m_user->item("openButton")->isEnabled());
        QVERIFY(m_user->item("reloadButton")->isEnabled());
        QVERIFY(!m_user->isShown("cancelButton"));
        QVERIFY(m_user->clickTab("viewTabs", 1));
        m_user->source()->setLeftVariable("RH");
        hasChanged = loader()->isRefreshing();
    }));
    QVERIFY2(hasChanged, "within the read");
    QTRY_COMPARE_WITH_TIMEOUT(rows(), 10 + kManyRows, 60000);
    // What was chosen meanwhile is what is shown.
    QCOMPARE(left(), QStringList{"RH"});
    QCOMPARE(m_user->item("viewTabs")->property("currentIndex").toInt(), 1);
    QTRY_VERIFY(!m_user->isShown("refreshLine"));
}

void tst_Following::stopsRefreshingByAClick()
{
    startFollowing();
    bool isStopped = false;
    QVERIFY(duringARefresh([this, &isStopped] {
        m_user->click("followButton");
        isStopped = !loader()->isRefreshing() && !m_user->isShown("refreshLine");
    }));
    QVERIFY(isStopped);
    QVERIFY(!m_user->find<LogFollower>("follower")->isFollowing());
    QVERIFY(!m_user->isShown("errorPane"));
    QVERIFY(!m_user->isShown("openingNotice"));
    QCOMPARE(rows(), 10);
}

void tst_Following::takesOver_data()
{
    QTest::addColumn<QByteArray>("way");
    QTest::addColumn<int>("rows");

    QTest::newRow("dialog") << QByteArray("openUrl") << 4;
    QTest::newRow("recent logs") << QByteArray("openRecent") << 4;
    QTest::newRow("key to read again") << QByteArray() << 10 + kManyRows;
}

void tst_Following::takesOver()
{
    QFETCH(QByteArray, way);
    QFETCH(int, rows);
    const TemporaryLog other(TemporaryLog::oneDataSet(4), "other.log");
    const QVariant asked
        = way == "openUrl" ? QVariant(QUrl::fromLocalFile(other.path())) : QVariant(other.path());
    startFollowing();
    QVERIFY(duringARefresh([this, &way, &asked] {
        if (way.isEmpty())
            m_user->key(Qt::Key_F5);
        else
            QMetaObject::invokeMethod(m_user->find<QObject>("opening"), way.constData(),
                                      Q_ARG(QVariant, asked));
    }));
    QTRY_COMPARE_WITH_TIMEOUT(this->rows(), rows, 60000);
    QTRY_VERIFY(!loader()->isReading());
    QVERIFY(loader()->isLoaded());
    QCOMPARE(m_user->text("fileName"), QString(way.isEmpty() ? "test.log" : "other.log"));
    QVERIFY(!m_user->isShown("errorPane"));
}

/** The list may be open, with a row of it under the finger. */
void tst_Following::leavesTheRecentLogsAlone()
{
    QSignalSpy reset(m_user->find<RecentFiles>("recentFiles"), SIGNAL(modelReset()));
    startFollowing();
    m_log->append(kRow);
    QTRY_COMPARE(rows(), 11);
    QCOMPARE(reset.count(), 0);
}

void tst_Following::leavesTheVariablesWhereTheyAre()
{
    m_user->window()->resize(800, 420);
    QVERIFY(m_user->settled());
    QQuickItem *list = m_user->item("variables");
    QTRY_VERIFY(list->height() < list->property("contentHeight").toDouble());
    QVERIFY(m_user->click("variableRow1"));
    for (int i = 0; i < 4; ++i)
        m_user->key(Qt::Key_Down);
    QTRY_VERIFY(list->property("contentY").toDouble() > list->property("originY").toDouble());
    const double scrolled = list->property("contentY").toDouble();
    startFollowing();
    m_log->append(kRow);
    QTRY_COMPARE(rows(), 11);
    QVERIFY(m_user->settled());
    QCOMPARE(list->property("contentY").toDouble(), scrolled);
    QCOMPARE(list->property("currentIndex").toInt(), 4);
}

QTEST_MAIN(tst_Following)
#include "tst_Following.moc"

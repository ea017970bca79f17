#include "ViewerUser.h"
#include "viewer/LogLoader.h"
#include "viewer/LogTroubles.h"
#include "viewer/RecentFiles.h"
#include "viewer/SetupFiles.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QSettings>

#include <qwt_scale_div.h>

/** The ways to a log, with a mouse, keys and drops. */
class tst_Opening : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void opensADroppedLog();
    void appliesADroppedSetup();
    void ignoresOtherDrops();
    void opensRecentLogs();
    void fitsItsRecentLogs();
    void tellsAndForgetsMissingLogs();
    void reloadsByKeyAndButton();
    void keepsWhatIsShown();
    void tellsWhatIsNotShownAgain();
    void remembersOverAFailedReload();
    void saysThatReadingWasCancelled_data();
    void saysThatReadingWasCancelled();
    void takesDropsWhileReading();
    void opensAnotherWhileReading_data();
    void opensAnotherWhileReading();
    void listsTroubles();
    void fitsItsWindow_data();
    void fitsItsWindow();

private:
    LogLoader *loader() const { return m_user->window()->findChild<LogLoader *>(); }
    int rows() const { return m_user->source()->tableModel()->rowCount(); }

    QScopedPointer<QTemporaryDir> m_settings;
    QScopedPointer<TemporaryLog> m_log;
    QScopedPointer<ViewerUser> m_user;
};

namespace
{

const QByteArray kRow = "11\t10:00:11\t31.5\t39\t4011\n";

} // namespace

void tst_Opening::initTestCase()
{
    QApplication::setStyle("fusion");
}

void tst_Opening::init()
{
    m_settings.reset(new QTemporaryDir);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_settings->path());
    m_log.reset(new TemporaryLog(TemporaryLog::oneDataSet()));
    m_user.reset(new ViewerUser(*m_log));
    QVERIFY(m_user->isReady());
}

void tst_Opening::cleanup()
{
    m_user.reset();
    m_log.reset();
}

// Drops

void tst_Opening::opensADroppedLog()
{
    const TemporaryLog other(TemporaryLog::oneDataSet(4), "other one.log");
    QVERIFY(m_user->drop({other.path()}));
    QTRY_COMPARE(m_user->text("fileName"), QString("other one.log"));
    QTRY_COMPARE(rows(), 4);
    QVERIFY(!m_user->isShown("dropHint"));
    QVERIFY(m_user->drop({m_log->path(), other.path()}));
    QTRY_COMPARE(rows(), 10);
    QTRY_VERIFY(m_user->isShown("openingNotice"));
    QCOMPARE(m_user->text("openingNotice"),
             QString("One log is shown at a time: only the first of 2 was opened."));
}

void tst_Opening::appliesADroppedSetup()
{
    const QString setup = m_log->directory() + "/setup.json";
    auto *files = m_user->find<SetupFiles>("setupFiles");
    m_user->source()->setLeftVariable("RH");
    QVERIFY(files->save(QUrl::fromLocalFile(setup)));
    m_user->source()->setLeftVariable("T");
    QVERIFY(m_user->drop({setup}));
    QTRY_COMPARE(m_user->source()->YLeftData().keys(), QStringList{"RH"});
    QVERIFY(files->notice().contains("setup.json"));
    // With a log, the setup is applied to that.
    const TemporaryLog other(TemporaryLog::oneDataSet(4), "other.log");
    QVERIFY(m_user->drop({setup, other.path()}));
    QTRY_COMPARE(rows(), 4);
    QTRY_COMPARE(m_user->source()->YLeftData().keys(), QStringList{"RH"});
}

void tst_Opening::ignoresOtherDrops()
{
    QMimeData data;
    data.setText("/etc/hostname");
    QDragEnterEvent enter(QPoint(300, 300), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(m_user->window(), &enter);
    QVERIFY(!enter.isAccepted());
    QVERIFY(!m_user->isShown("dropHint"));
}

// Recent files

void tst_Opening::fitsItsRecentLogs()
{
    const auto height = [this] { return m_user->item("recentList")->height(); };
    QVERIFY(m_user->click("recentButton"));
    QTRY_VERIFY(m_user->isShown("recent0"));
    QVERIFY(m_user->settled());
    QCOMPARE(height(), m_user->item("recent0")->height());
    QVERIFY(m_user->click("clearRecent"));
    QTRY_VERIFY(m_user->isShown("noRecent"));
    QVERIFY(m_user->settled());
    QVERIFY(height() >= 44);
}

void tst_Opening::opensRecentLogs()
{
    const TemporaryLog other(TemporaryLog::oneDataSet(4), "other.log");
    QVERIFY(m_user->drop({other.path()}));
    QTRY_COMPARE(rows(), 4);
    QVERIFY(m_user->click("recentButton"));
    QTRY_VERIFY(m_user->isShown("recent1"));
    QTRY_VERIFY(m_user->item("recentList")->hasActiveFocus());
    QVERIFY(m_user->isForFingers("recent1"));
    QVERIFY(m_user->click("recent1"));
    QTRY_COMPARE(m_user->text("fileName"), QString("test.log"));
    QTRY_VERIFY(!m_user->isShown("recent1"));
    // By keys: the one before is second again.
    QVERIFY(m_user->click("recentButton"));
    QTRY_VERIFY(m_user->item("recentList")->hasActiveFocus());
    m_user->key(Qt::Key_Down);
    m_user->key(Qt::Key_Return);
    QTRY_COMPARE(m_user->text("fileName"), QString("other.log"));
}

void tst_Opening::tellsAndForgetsMissingLogs()
{
    const QString path = m_log->directory() + "/gone.log";
    QVERIFY(QFile::copy(m_log->path(), path));
    QVERIFY(m_user->drop({path}));
    QTRY_COMPARE(m_user->text("fileName"), QString("gone.log"));
    QVERIFY(m_user->drop({m_log->path()}));
    QTRY_COMPARE(m_user->text("fileName"), QString("test.log"));
    QVERIFY(QFile::remove(path));
    QVERIFY(m_user->click("recentButton"));
    QTRY_VERIFY(m_user->isShown("recent1"));
    QVERIFY(m_user->click("recent1"));
    QTRY_COMPARE(m_user->text("openingNotice"), path + ": there is no such file any more");
    // What is open stays open.
    QCOMPARE(m_user->text("fileName"), QString("test.log"));
    QVERIFY(loader()->isLoaded());

    QTRY_VERIFY(!m_user->isShown("recent1"));
    QVERIFY(m_user->click("recentButton"));
    QTRY_VERIFY(m_user->isShown("recent1"));
    QVERIFY(m_user->settled());
    auto *forget = m_user->item("recent1")->findChild<QQuickItem *>("forget");
    QVERIFY(m_user->click(forget, forget->boundingRect().center()));
    QTRY_COMPARE(m_user->find<RecentFiles>("recentFiles")->count(), 1);
    QVERIFY(m_user->click("clearRecent"));
    QTRY_COMPARE(RecentFiles().count(), 0);
}

// Reading again

void tst_Opening::reloadsByKeyAndButton()
{
    QCOMPARE(rows(), 10);
    m_log->append(kRow);
    m_user->key(Qt::Key_F5);
    QTRY_COMPARE(rows(), 11);
    m_log->append(kRow);
    QVERIFY(m_user->click("reloadButton"));
    QTRY_COMPARE(rows(), 12);
}

void tst_Opening::keepsWhatIsShown()
{
    LogDataSourceItem *source = m_user->source();
    source->setHorizontalVariable("T");
    source->setLeftVariable("RH");
    source->setRightVariable("CO2");
    source->buildFilter(3, 0, "42"); // RH > 42
    LogTableViewModel *table = source->tableModel();
    QVERIFY(table->setData(table->index(1, 0), Qt::Checked, Qt::CheckStateRole));
    m_user->plot()->setAxisScale(LogViewerItem::LeftAxis, 40, 47.25);
    m_user->plot()->replot();
    source->setObservationFrequency(2);
    const QStringList criteria{source->activeFilterModel()->item(0)->text()};
    const int shown = m_user->leftValues("RH").size();

    m_log->append(kRow + kRow);
    m_user->key(Qt::Key_F5);
    QTRY_COMPARE(rows(), 12);
    QCOMPARE(source->xData().first, QString("T"));
    QCOMPARE(source->YLeftData().keys(), QStringList{"RH"});
    QCOMPARE(source->YRightData().keys(), QStringList{"CO2"});
    QCOMPARE(source->activeFilterModel()->rowCount(), 1);
    QCOMPARE(source->activeFilterModel()->item(0)->text(), criteria.first());
    QVERIFY(source->tableModel()->rowExcluded(1));
    QCOMPARE(source->tableModel()->excludeRows().count(1), 1);
    QCOMPARE(source->observationFrequency(), 2);
    const QwtScaleDiv scale = m_user->plot()->plot()->axisScaleDiv(QwtPlot::yLeft);
    QCOMPARE(scale.lowerBound(), 40.0);
    QCOMPARE(scale.upperBound(), 47.25);
    // The new rows fail the criterion.
    QCOMPARE(m_user->leftValues("RH").size(), shown);
    QCOMPARE(m_user->text("leftHeadState"), QString("1"));
}

void tst_Opening::tellsWhatIsNotShownAgain()
{
    m_log->write(TemporaryLog::oneDataSet().replace("\tRH\t", "\tVPD\t"));
    m_user->source()->setLeftVariable("RH");
    m_user->key(Qt::Key_F5);
    QTRY_VERIFY(m_user->isShown("openingNotice"));
    QCOMPARE(m_user->text("openingNotice"),
             QString("Not shown as before: there is no variable \"RH\" in data set 1"));
    QVERIFY(m_user->click("dismissOpeningNotice"));
    QTRY_VERIFY(!m_user->isShown("openingNotice"));
}

void tst_Opening::remembersOverAFailedReload()
{
    m_user->source()->setLeftVariable("RH");
    m_log->write("half of a log\n");
    m_user->key(Qt::Key_F5);
    QTRY_VERIFY(m_user->isShown("errorPane"));
    m_log->write(TemporaryLog::oneDataSet(3));
    QVERIFY(m_user->click("retry"));
    QTRY_COMPARE(rows(), 3);
    QVERIFY(!m_user->isShown("errorPane"));
    QCOMPARE(m_user->source()->YLeftData().keys(), QStringList{"RH"});
}

void tst_Opening::saysThatReadingWasCancelled_data()
{
    QTest::addColumn<bool>("isByKey");
    QTest::newRow("button") << false;
    QTest::newRow("Escape") << true;
}

void tst_Opening::saysThatReadingWasCancelled()
{
    QFETCH(bool, isByKey);
    const TemporaryLog large(TemporaryLog::oneDataSet() + kRow.repeated(1000000), "large.log");
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [this, &timer, isByKey] {
        if (!m_user->isShown("cancelButton"))
            return;
        timer.stop();
        if (isByKey)
            m_user->key(Qt::Key_Escape);
        else
            m_user->click("cancelButton");
    });
    timer.start(20);
    QVERIFY(m_user->drop({large.path()}));
    QTRY_VERIFY_WITH_TIMEOUT(m_user->isShown("errorPane"), 60000);
    QCOMPARE(m_user->text("errorTitle"), QString("Reading was cancelled"));
    QVERIFY(m_user->text("errorText").endsWith("nothing of it was kept"));
    QCOMPARE(m_user->source()->parser()->tabularParser().dataSets().size(), 0);
    QVERIFY(!loader()->isLoaded());
    QVERIFY(m_user->drop({m_log->path()}));
    QTRY_VERIFY(!m_user->isShown("errorPane"));
    QCOMPARE(rows(), 10);
}

void tst_Opening::opensAnotherWhileReading_data()
{
    QTest::addColumn<QByteArray>("way");
    QTest::newRow("dialog") << QByteArray("openUrl");
    QTest::newRow("recent logs") << QByteArray("openRecent");
}

void tst_Opening::takesDropsWhileReading()
{
    const QString setup = m_log->directory() + "/setup.json";
    m_user->source()->setLeftVariable("RH");
    QVERIFY(m_user->find<SetupFiles>("setupFiles")->save(QUrl::fromLocalFile(setup)));
    const TemporaryLog large(TemporaryLog::oneDataSet() + kRow.repeated(1000000), "large.log");
    const TemporaryLog other(TemporaryLog::oneDataSet(4), "other.log");
    bool isTaken = false;
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [&] {
        if (!m_user->isShown("cancelButton"))
            return;
        timer.stop();
        isTaken = m_user->drop({other.path(), setup});
    });
    timer.start(20);
    QVERIFY(m_user->drop({large.path()}));
    QTRY_COMPARE_WITH_TIMEOUT(m_user->text("fileName"), QString("other.log"), 60000);
    QVERIFY(isTaken);
    QTRY_COMPARE(rows(), 4);
    QTRY_COMPARE(m_user->source()->YLeftData().keys(), QStringList{"RH"});
    QVERIFY(!m_user->isShown("errorPane"));
}

/** A list or a dialog may be older than the read. */
void tst_Opening::opensAnotherWhileReading()
{
    QFETCH(QByteArray, way);
    const TemporaryLog large(TemporaryLog::oneDataSet() + kRow.repeated(1000000), "large.log");
    const TemporaryLog other(TemporaryLog::oneDataSet(4), "other.log");
    const QVariant asked
        = way == "openUrl" ? QVariant(QUrl::fromLocalFile(other.path())) : QVariant(other.path());
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [this, &timer, &way, &asked] {
        if (!m_user->isShown("cancelButton"))
            return;
        timer.stop();
        QMetaObject::invokeMethod(m_user->find<QObject>("opening"), way.constData(),
                                  Q_ARG(QVariant, asked));
    });
    timer.start(20);
    QVERIFY(m_user->drop({large.path()}));
    QTRY_COMPARE_WITH_TIMEOUT(m_user->text("fileName"), QString("other.log"), 60000);
    QTRY_COMPARE(rows(), 4);
    QVERIFY(loader()->isLoaded());
    QVERIFY(!m_user->isShown("errorPane"));
}

// Troubles

void tst_Opening::listsTroubles()
{
    QVERIFY(!m_user->isShown("troublesButton"));
    m_log->append("door opened\n" + QByteArray("note\n").repeated(1332) + "1\t2\t3\n");
    m_user->key(Qt::Key_F5);
    QTRY_VERIFY(m_user->isShown("troublesButton"));
    QCOMPARE(m_user->text("troublesButton"), QString("1,334"));
    QVERIFY(m_user->isForFingers("troublesButton"));
    QVERIFY(m_user->click("troublesButton"));
    QTRY_VERIFY(m_user->isShown("troubleList"));
    auto *list = m_user->item("troubleList");
    QCOMPARE(list->property("count").toInt(), 102);
    QQuickItem *first = nullptr;
    QVERIFY(QMetaObject::invokeMethod(list, "itemAtIndex", Q_RETURN_ARG(QQuickItem *, first),
                                      Q_ARG(int, 0)));
    const auto *section = first->findChild<QQuickItem *>("section");
    QVERIFY(section->isVisible());
    QCOMPARE(section->property("text").toString(), QString("Rows taken for remarks (1,333)"));
    QCOMPARE(first->findChild<QQuickItem *>("line")->property("text").toString(),
             QString("Line 17: door opened"));
    QVERIFY(m_user->click("closeTroubles"));
    QTRY_VERIFY(!m_user->isShown("troubleList"));
    m_log->write(TemporaryLog::oneDataSet());
    m_user->key(Qt::Key_F5);
    QTRY_VERIFY(!m_user->isShown("troublesButton"));
}

void tst_Opening::fitsItsWindow_data()
{
    QTest::addColumn<QSize>("size");

    QTest::newRow("smallest") << QSize(640, 400);
    QTest::newRow("instrument") << QSize(800, 480);
    QTest::newRow("desk") << QSize(1280, 800);
}

void tst_Opening::fitsItsWindow()
{
    QFETCH(QSize, size);
    m_log->append("note\n");
    m_user->key(Qt::Key_F5);
    QTRY_VERIFY(m_user->isShown("troublesButton"));
    m_user->window()->resize(size);
    QTRY_COMPARE(m_user->window()->size(), size);
    QVERIFY(m_user->settled());
    for (const char *name : {"openButton", "recentButton", "troublesButton", "followButton",
                             "reloadButton", "helpButton", "menuButton"})
        QTRY_VERIFY2(m_user->isForFingers(name), name);
    QVERIFY(m_user->item("fileName")->width() >= 40);
}

QTEST_MAIN(tst_Opening)
#include "tst_Opening.moc"

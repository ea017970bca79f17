#include "ViewerUser.h"
#include "viewer/LogLoader.h"

#include <QApplication>
#include <QSettings>

#include <qwt_scale_div.h>

#include <sys/stat.h>

/** Files that can't be shown: what is told of them, and the ways out. */
class tst_FailedOpening : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void tellsWhatCannotBeOpened_data();
    void tellsWhatCannotBeOpened();
    void takesTheFirstOfSeveralDrops();
    void refusesASetupWithoutALog();
    void goesBackToTheLogBefore_data();
    void goesBackToTheLogBefore();
    void hasNoWayBackToTheSameLog();
    void showsErrorsOfLongNames_data();
    void showsErrorsOfLongNames();
    void tellsWhatIsEmpty();

private:
    LogLoader *loader() const { return m_user->window()->findChild<LogLoader *>(); }
    int rows() const { return m_user->source()->tableModel()->rowCount(); }

    QScopedPointer<QTemporaryDir> m_settings;
    QScopedPointer<TemporaryLog> m_log;
    QScopedPointer<ViewerUser> m_user;
};

void tst_FailedOpening::initTestCase()
{
    QApplication::setStyle("fusion");
}

void tst_FailedOpening::init()
{
    m_settings.reset(new QTemporaryDir);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_settings->path());
    m_log.reset(new TemporaryLog(TemporaryLog::oneDataSet()));
    m_user.reset(new ViewerUser(*m_log));
    QVERIFY(m_user->isReady());
}

void tst_FailedOpening::cleanup()
{
    m_user.reset();
    m_log.reset();
}

void tst_FailedOpening::tellsWhatCannotBeOpened_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("cause");

    const QString noLog("Log File must start with [Header] section.");
    QTest::newRow("missing") << "missing.log"
                             << "there is no such file";
    QTest::newRow("folder") << "folder.log"
                            << "it is a directory";
    QTest::newRow("pipe") << "pipe.log"
                          << "it is no ordinary file";
    QTest::newRow("binary") << "binary.log" << noLog;
    QTest::newRow("diary") << "diary.txt" << noLog;
}

void tst_FailedOpening::tellsWhatCannotBeOpened()
{
    QFETCH(QString, name);
    QFETCH(QString, cause);
    const TemporaryLog diary("Dear diary\n", "diary.txt");
    const QDir directory(diary.directory());
    QVERIFY(directory.mkdir("folder.log"));
    QCOMPARE(mkfifo(QFile::encodeName(directory.filePath("pipe.log")), 0600), 0);
    QFile binary(directory.filePath("binary.log"));
    QVERIFY(binary.open(QIODevice::WriteOnly));
    QVERIFY(binary.write(QByteArray("\x7f\0ELF\xff\xfe\0\0", 9).repeated(10000)) > 0);
    binary.close();
    const QString path = directory.filePath(name);
    QVERIFY(m_user->drop({path}));
    QTRY_VERIFY(m_user->isShown("errorPane"));
    QCOMPARE(m_user->text("errorText"), path + ": " + cause);
    QCOMPARE(m_user->text("errorTitle"), QString("This log could not be opened"));
    QVERIFY(m_user->click("back"));
    QTRY_VERIFY(!m_user->isShown("errorPane"));
    QCOMPARE(rows(), 10);
}

/** Even when that is none, so that it is plain what happened. */
void tst_FailedOpening::takesTheFirstOfSeveralDrops()
{
    const TemporaryLog diary("Dear diary\n", "diary.txt");
    const TemporaryLog other;
    QVERIFY(m_user->drop({diary.path(), other.path(), m_log->path()}));
    QTRY_VERIFY(m_user->isShown("errorPane"));
    QVERIFY(m_user->text("errorText").startsWith(diary.path()));
    QCOMPARE(m_user->text("openingNotice"),
             QString("One log is shown at a time: only the first of 3 was opened."));
}

void tst_FailedOpening::refusesASetupWithoutALog()
{
    QVERIFY(!loader()->open(m_log->directory() + "/missing.log"));
    QVERIFY(m_user->drop({m_log->directory() + "/setup.xml"}));
    QTRY_COMPARE(m_user->text("openingNotice"),
                 QString("A setup needs a log to be applied to: open one first."));
    QVERIFY(m_user->isShown("errorPane"));
}

void tst_FailedOpening::goesBackToTheLogBefore_data()
{
    QTest::addColumn<bool>("isByKey");
    QTest::newRow("button") << false;
    QTest::newRow("Escape") << true;
}

/** With all that was chosen there. */
void tst_FailedOpening::goesBackToTheLogBefore()
{
    QFETCH(bool, isByKey);
    m_user->source()->setLeftVariable("RH");
    m_user->plot()->setAxisScale(LogViewerItem::LeftAxis, 40, 47.25);
    const TemporaryLog diary("Dear diary\n", "diary.txt");
    const TemporaryLog another("Dear diary\n", "another.txt"); // when nothing is shown any more
    for (const QString &path : {diary.path(), another.path()}) {
        QVERIFY(m_user->drop({path}));
        QTRY_VERIFY(m_user->isShown("errorPane") && loader()->filePath() == path);
        QCOMPARE(m_user->text("errorText"), path + ": Log File must start with [Header] section.");
        QVERIFY(m_user->isForFingers("back"));
    }
    if (isByKey)
        m_user->key(Qt::Key_Escape);
    else
        QVERIFY(m_user->click("back"));
    QTRY_COMPARE(rows(), 10);
    QTRY_VERIFY(!m_user->isShown("errorPane"));
    QCOMPARE(m_user->text("fileName"), QString("test.log"));
    QCOMPARE(m_user->source()->YLeftData().keys(), QStringList{"RH"});
    const QwtScaleDiv scale = m_user->plot()->plot()->axisScaleDiv(QwtPlot::yLeft);
    QCOMPARE(scale.upperBound(), 47.25);
    QVERIFY(!m_user->isShown("openingNotice"));
}

void tst_FailedOpening::hasNoWayBackToTheSameLog()
{
    m_log->write("half of a log\n");
    m_user->key(Qt::Key_F5);
    QTRY_VERIFY(m_user->isShown("errorPane"));
    QVERIFY(m_user->isShown("retry"));
    QVERIFY(!m_user->isShown("back"));
}

void tst_FailedOpening::showsErrorsOfLongNames_data()
{
    QTest::addColumn<QSize>("size");

    QTest::newRow("smallest") << QSize(640, 400);
    QTest::newRow("instrument") << QSize(800, 480);
    QTest::newRow("desk") << QSize(1280, 800);
}

void tst_FailedOpening::showsErrorsOfLongNames()
{
    QFETCH(QSize, size);
    m_user->window()->resize(size);
    QTRY_COMPARE(m_user->window()->size(), size);
    const QString path = m_log->directory() + QString("/a folder's name").repeated(150);
    QVERIFY(m_user->drop({path}));
    QTRY_VERIFY(m_user->isShown("errorPane"));
    QVERIFY(m_user->settled());
    QCOMPARE(m_user->text("errorText"), path + ": there is no such file");
    for (const char *name : {"openAnother", "retry", "back"})
        QVERIFY2(m_user->isForFingers(name), name);
    QQuickItem *scroller = m_user->item("errorScroller");
    QVERIFY(scroller->height() >= 60);
    const double hidden = scroller->property("contentHeight").toDouble() - scroller->height();
    if (hidden <= 0)
        return;
    scroller->forceActiveFocus();
    for (double at = 0; at < hidden; at += 20)
        m_user->key(Qt::Key_Down);
    QCOMPARE(scroller->property("contentY").toDouble(), hidden);
}

/** And shows nothing of the log before. */
void tst_FailedOpening::tellsWhatIsEmpty()
{
    const TemporaryLog empty(QByteArray(), "empty.log");
    QVERIFY(m_user->drop({empty.path()}));
    QTRY_COMPARE(m_user->text("hint"), QString("empty.log is empty."));
    QVERIFY(m_user->isShown("hint"));
    QCOMPARE(rows(), 0);
    QVERIFY(m_user->isShown("noVariables"));
    const TemporaryLog header("[Header]\n", "header.log");
    QVERIFY(m_user->drop({header.path()}));
    QTRY_COMPARE(m_user->text("hint"), QString("There is no data set in header.log."));
}

QTEST_MAIN(tst_FailedOpening)
#include "tst_FailedOpening.moc"

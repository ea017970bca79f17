#include "SavingTest.h"

#include <qwt_plot.h>

#include <algorithm>
#include <functional>

namespace
{

const int kManyRows = 60000;

} // namespace

/** Saving what takes long, in a window that stays in use. */
class tst_LongSaving : public SavingTest
{
    Q_OBJECT

public slots:
    void noteProgress() { m_seen.append(part("saveProgress")->property("value").toDouble()); }

private slots:
    void cleanup() { close(); }
    void staysAliveWhileItSaves_data();
    void staysAliveWhileItSaves();
    void savesAllOfTheData();
    void savesWhatWasShown();
    void cancelsSaving_data();
    void cancelsSaving();
    void closesOnceAllIsSaved_data();
    void closesOnceAllIsSaved();
    void givesUpWhenClosedAgain_data();
    void givesUpWhenClosedAgain();
    void staysOpenWithoutTheFile();

private:
    /** A log that takes a while to be saved in any way, and the popup about to save it so. */
    void openLarge(int kind);
    /** Does something as soon as saving is under way. */
    void onceSaving(const std::function<void()> &action);

    QVector<double> m_seen; ///< of the progress
};

void tst_LongSaving::openLarge(int kind)
{
    QByteArray rows;
    for (int i = 1; i <= kManyRows; ++i)
        rows += QByteArray::number(i) + "\t11:00:00\t" + QByteArray::number(i * 7919LL % 1009)
            + '\t' + QByteArray::number(i * 104729LL % 997) + '\n';
    ViewerOptions options;
    options.x = "CO2";
    options.left << "T"
                 << "Obs";
    options.style = ViewerOptions::Both;
    open("[Header]\nCreated\t2020\n[Data]\nS\tS\tA\tA\nObs\tTime\tCO2\tT\n"
         "\ths\tppm\tC\n"
             + rows,
         options);
    openPopup();
    choose(kind);
    if (kind > 0)
        return;
    setSize("saveWidth", 5000);
    setSize("saveHeight", 5000);
}

void tst_LongSaving::onceSaving(const std::function<void()> &action)
{
    auto *timer = new QTimer(m_window->window());
    connect(timer, &QTimer::timeout, this, [this, timer, action] {
        if (!popup()->property("isSaving").toBool())
            return;
        timer->stop();
        action();
    });
    timer->start(0);
}

void tst_LongSaving::staysAliveWhileItSaves_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("name");

    QTest::newRow("png") << 0 << "test-plot.png";
    QTest::newRow("svg") << 1 << "test-plot.svg";
    QTest::newRow("pdf") << 2 << "test-plot.pdf";
    QTest::newRow("csv") << 3 << "test-data.csv";
}

void tst_LongSaving::staysAliveWhileItSaves()
{
    QFETCH(int, kind);
    QFETCH(QString, name);
    openLarge(kind);
    connect(part("saveProgress"), SIGNAL(valueChanged()), this, SLOT(noteProgress()));
    m_seen.clear();
    int events = 0;
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [this, &events] {
        events += popup()->property("isSaving").toBool() && !part("savePath")->isEnabled()
            && !part("saveWidth")->isEnabled();
    });
    timer.start(0);
    save();
    QTRY_COMPARE(text("saveDone"), "Saved " + path(name));
    QVERIFY2(events > 2, qPrintable(QString::number(events)));
    QVERIFY(!m_seen.isEmpty());
    QVERIFY(std::is_sorted(m_seen.constBegin(), m_seen.constEnd()));
    QVERIFY(m_seen.last() <= 1);
    QVERIFY(!popup()->property("isSaving").toBool());
    QVERIFY(!part("saveProgress")->isVisible());
    QVERIFY(part("saveKind")->isEnabled());
    QCOMPARE(text("closeSave"), QString("Close"));
}

void tst_LongSaving::savesAllOfTheData()
{
    openLarge(3);
    save();
    QTRY_COMPARE(text("saveDone"), "Saved " + path("test-data.csv"));
    QFile file(path("test-data.csv"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll().count('\n'), kManyRows + 1);
}

/** Whatever becomes of the plot while its picture is drawn. */
void tst_LongSaving::savesWhatWasShown()
{
    openLarge(1);
    setPath(path("before.svg"));
    save();
    QTRY_COMPARE(text("saveDone"), "Saved " + path("before.svg"));
    setPath(path("meanwhile.svg"));
    onceSaving([this] {
        m_window->source()->setLeftVariable("Obs");
        m_window->plot()->setAxisScale(LogViewerItem::BottomAxis, 0, 1);
        m_window->plot()->replot();
    });
    save();
    QTRY_COMPARE(text("saveDone"), "Saved " + path("meanwhile.svg"));
    QCOMPARE(m_window->plot()->axisMaxScale(LogViewerItem::BottomAxis), 1.0);
    QFile before(path("before.svg"));
    QFile meanwhile(path("meanwhile.svg"));
    QVERIFY(before.open(QIODevice::ReadOnly) && meanwhile.open(QIODevice::ReadOnly));
    QVERIFY(before.size() > 0);
    QVERIFY(before.readAll() == meanwhile.readAll());
}

void tst_LongSaving::cancelsSaving_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isByKey");

    QTest::newRow("png by a click") << 0 << "test-plot.png" << false;
    QTest::newRow("svg by Escape") << 1 << "test-plot.svg" << true;
    QTest::newRow("pdf by a click") << 2 << "test-plot.pdf" << false;
    QTest::newRow("csv by a click") << 3 << "test-data.csv" << false;
}

void tst_LongSaving::cancelsSaving()
{
    QFETCH(int, kind);
    QFETCH(QString, name);
    QFETCH(bool, isByKey);
    openLarge(kind);
    QFile file(path(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("mine");
    file.close();
    save();
    QCOMPARE(text("save"), QString("Replace it"));
    onceSaving([this, isByKey] {
        QCOMPARE(text("closeSave"), QString("Cancel"));
        for (const char *name : {"saveKind", "saveWidth", "saveHeight", "savePath", "save"})
            QVERIFY2(!part(name)->isEnabled() && part(name)->opacity() < 1, name);
        if (isByKey)
            m_window->key(Qt::Key_Escape);
        else
            QVERIFY(m_window->click(part("closeSave")));
    });
    save();
    QTRY_COMPARE(text("saveProblem"),
                 QString("Saving was cancelled, the file is as it was before."));
    QVERIFY(popup()->property("visible").toBool());
    QCOMPARE(file.size(), 4);
    QCOMPARE(QDir(m_log->directory()).entryList(QDir::Files).size(), 2);
    // And once more, to the end.
    save();
    save();
    QTRY_COMPARE(text("saveDone"), "Saved " + file.fileName());
    QVERIFY(file.size() > kManyRows);
}

void tst_LongSaving::closesOnceAllIsSaved_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("end");

    QTest::newRow("svg") << 1 << "test-plot.svg" << QByteArray("</svg>");
    QTest::newRow("csv") << 3 << "test-data.csv" << QByteArray("\r");
}

void tst_LongSaving::closesOnceAllIsSaved()
{
    QFETCH(int, kind);
    QFETCH(QString, name);
    QFETCH(QByteArray, end);
    openLarge(kind);
    onceSaving([this] {
        QVERIFY(!m_window->window()->close());
        QVERIFY(m_window->window()->isVisible());
        QVERIFY(part("saveLeaving")->isVisible());
    });
    save();
    QTRY_VERIFY(!m_window->window()->isVisible());
    QFile file(path(name));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QByteArray content = file.readAll();
    content.chop(1); // the end of the last line
    QVERIFY(content.size() > kManyRows);
    QVERIFY(content.endsWith(end));
}

void tst_LongSaving::givesUpWhenClosedAgain_data()
{
    QTest::addColumn<int>("kind");
    QTest::newRow("pdf") << 2;
    QTest::newRow("csv") << 3;
}

void tst_LongSaving::givesUpWhenClosedAgain()
{
    QFETCH(int, kind);
    openLarge(kind);
    onceSaving([this] {
        QVERIFY(!m_window->window()->close());
        QVERIFY(m_window->window()->close());
    });
    save();
    QTRY_VERIFY(!m_window->window()->isVisible());
    QTRY_VERIFY(!popup()->property("isSaving").toBool());
    QCOMPARE(QDir(m_log->directory()).entryList(QDir::Files), QStringList{"test.log"});
}

/** Who cancels then may want to save it in another way. */
void tst_LongSaving::staysOpenWithoutTheFile()
{
    openLarge(3);
    onceSaving([this] {
        QVERIFY(!m_window->window()->close());
        QVERIFY(m_window->click(part("closeSave")));
    });
    save();
    QTRY_COMPARE(text("saveProblem"),
                 QString("Saving was cancelled, the file is as it was before."));
    QVERIFY(m_window->window()->isVisible());
    QVERIFY(!part("saveLeaving")->isVisible());
    QVERIFY(m_window->window()->close());
    QVERIFY(!m_window->window()->isVisible());
}

QTEST_MAIN(tst_LongSaving)
#include "tst_LongSaving.moc"

// Months of use in a minute: what is held does not grow. DATALOG_LOADS and DATALOG_TOGGLES tell how
// many times; the figures are printed.

#include "LongLifeLog.h"
#include "ProcessUse.h"

#include "datasource/LogDataSourceItem.h"
#include "plot/LogViewerItem.h"
#include "plugin/DataLogTypes.h"
#include "support/TempDir.h"
#include "support/TestCompat.h"
#include "table/LogTableViewItem.h"

#include <QApplication>
#include <QQmlEngine>
#include <QQuickView>

class tst_LongLife : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void loads();
    void failedLoads();
    void toggledLoader();

private:
    void compare(const char *what, int times, const ProcessUse &before, const ProcessUse &after);

    TempDir m_dir;
    QString m_small;
    QString m_large;
};

namespace
{

/** Until nothing is left to delete or paint. */
void settle()
{
    for (int i = 0; i < 3; ++i) {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

} // namespace

void tst_LongLife::initTestCase()
{
    QQuickWindow::setSceneGraphBackend(QSGRendererInterface::Software);
    registerDataLogTypes("DataLog");
    m_small = m_dir.write(QLatin1String("small.txt"), longLifeLog(20));
    m_large = m_dir.write(QLatin1String("large.txt"), longLifeLog(700));
}

/** Heap may differ by what caches hold; 40 bytes at each time would be 4 MB in 100,000. */
void tst_LongLife::compare(const char *what, int times, const ProcessUse &before,
                           const ProcessUse &after)
{
    qInfo("%d %s: before %s; after %s", times, what, qPrintable(before.text()),
          qPrintable(after.text()));
    QCOMPARE(after.descriptors, before.descriptors);
    QCOMPARE(after.objects, before.objects);
    const qint64 grown = after.heap - before.heap;
    QVERIFY2(grown < 300 * 1024 + 40 * qint64(times), QByteArray::number(grown).constData());
}

void tst_LongLife::loads()
{
    const int times = timesFromEnvironment("DATALOG_LOADS", 200);
    LogDataSourceItem source;
    LogViewerItem plot;
    LogTableViewItem table;
    plot.setDataSource(&source);
    table.setDataSource(&source);
    table.setLogViewerViewOption(LogTableViewItem::Data);
    plot.setLinesEnabled(LogViewerItem::LeftAxis, true);
    const QObjectList roots = QObjectList() << &source << &plot << &table;
    QSignalSpy loaded(&source, SIGNAL(logFileLoaded()));
    ProcessUse before = ProcessUse::now();
    for (int i = 0; i < times + 20; ++i) {
        if (i == 20) { // caches are filled by then
            settle();
            before = ProcessUse::now(roots);
        }
        // The last one is the small one both times.
        source.setLogFilePath(i % 2 ? m_small : m_large);
        source.selectDataSet(0);
        source.setHorizontalVariable(QLatin1String("Obs"));
        source.setLeftVariable(QLatin1String("a"));
        source.clearCriteria();
        source.buildFilter(2, 0, QLatin1String("1"));
        source.groupList();
        source.variableList();
        settle();
    }
    settle();
    QCOMPARE(loaded.count(), times + 20);
    compare("loads", times, before, ProcessUse::now(roots));
}

void tst_LongLife::failedLoads()
{
    const int times = timesFromEnvironment("DATALOG_LOADS", 200);
    const QStringList paths = QStringList()
        << m_dir.filePath(QLatin1String("missing")) << QLatin1String("/dev/zero") << m_dir.path()
        << m_dir.write(QLatin1String("bad"), "no log\n1\n2\n");
    LogDataSourceItem source;
    QSignalSpy errors(&source, SIGNAL(logFileError(QString)));
    ProcessUse before = ProcessUse::now();
    for (int i = 0; i < times + 20; ++i) {
        if (i == 20) {
            errors.clear();
            before = ProcessUse::now(QObjectList() << &source);
        }
        source.setLogFilePath(paths.at(i % paths.size()));
        if (i >= 20 && errors.size() > 1)
            errors.removeFirst();
    }
    QVERIFY(!errors.isEmpty());
    compare("failed loads", times, before, ProcessUse::now(QObjectList() << &source));
}

void tst_LongLife::toggledLoader()
{
    const int times = timesFromEnvironment("DATALOG_TOGGLES", 60);
    QQuickView view;
    view.setInitialProperties({{QLatin1String("path"), m_small}});
    view.setSource(QUrl::fromLocalFile(QLatin1String(DATALOG_SOURCE_DIR)
                                       + QLatin1String("/tests/reliability/Loaded.qml")));
    QVERIFY2(view.rootObject(), qPrintable(view.errors().value(0).toString()));
    view.show();
    QObject *root = view.rootObject();
    ProcessUse before = ProcessUse::now();
    for (int i = 0; i < times + 20; ++i) {
        if (i == 20) {
            settle();
            view.engine()->collectGarbage();
            before = ProcessUse::now(QObjectList() << &view);
        }
        root->setProperty("active", false);
        settle();
        root->setProperty("active", true);
        if (i % 100 == 99)
            view.engine()->collectGarbage();
    }
    settle();
    view.engine()->collectGarbage();
    settle();
    QCOMPARE(root->property("loads").toInt(), times + 21);
    QVERIFY(root->property("curves").toInt() >= times + 21);
    compare("toggles", times, before, ProcessUse::now(QObjectList() << &view));
}

QTEST_MAIN(tst_LongLife)
#include "tst_LongLife.moc"

// Who goes first: views, sources, windows and engines, in every order.

#include "LongLifeLog.h"

#include "datasource/LogDataSourceItem.h"
#include "filters/LogDataFilterBuilderItem.h"
#include "lists/LogDataSetFilterListItem.h"
#include "lists/LogDataSetListItem.h"
#include "lists/LogVariableListItem.h"
#include "plot/LogViewerItem.h"
#include "plugin/DataLogTypes.h"
#include "support/TempDir.h"
#include "support/TestCompat.h"
#include "table/LogTableViewItem.h"

#include <QApplication>
#include <QPointer>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickWindow>
#include <qwt_plot.h>
#include <qwt_plot_curve.h>

#include <algorithm>

class tst_Lifetimes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void teardown_data();
    void teardown();
    void viewsAndSource_data();
    void viewsAndSource();
    void sourceGoesInAHandler_data();
    void sourceGoesInAHandler();
    void sourceGoesWhileItReloads();
    void crossedOver();

public Q_SLOTS:
    void deleteSource() { delete m_source; }

private:
    QPointer<LogDataSourceItem> m_source;
    TempDir m_dir;
    QString m_log;
};

namespace
{

/** Every kind of view on one source. */
class Views
{
public:
    explicit Views(LogDataSourceItem *source)
    {
        add(new LogViewerItem, source);
        add(new LogTableViewItem, source);
        add(new LogVariableListItem, source);
        add(new LogDataSetListItem, source);
        add(new LogDataSetFilterListItem, source);
        add(new LogDataFilterBuilderItem, source);
    }
    ~Views() { qDeleteAll(m_items); }

    /** All that a view is told by the engine, and all calls that need no arguments. */
    void use()
    {
        for (int i = 0; i < m_items.size(); ++i) {
            QDeclarativeItem *item = m_items.at(i);
            item->setWidth(50 + i);
            item->setHeight(60);
            const QMetaObject *type = item->metaObject();
            for (int m = type->methodOffset(); m < type->methodCount(); ++m) {
                if (type->method(m).parameterCount() == 0
                    && type->method(m).access() == QMetaMethod::Public)
                    type->method(m).invoke(item, Qt::DirectConnection);
            }
            item->property("dataSource");
        }
        QCoreApplication::processEvents();
    }

private:
    template <class T> void add(T *item, LogDataSourceItem *source)
    {
        item->setDataSource(source);
        m_items << item;
    }

    QList<QDeclarativeItem *> m_items;
};

enum { Time = 1, A = 2, B = 3 };

/** Plots one variable, by its row, against the first. */
void choose(LogDataSourceItem *source, int left)
{
    source->setObservationFilterType(LogObservationSortFilterProxyModel::All);
    source->selectDataSet(0);
    source->updateVariableSelection(0, 0, true);
    for (int row = Time; row <= B; ++row)
        source->updateVariableSelection(1, row, row == left);
}

QStringList curveNames(const LogViewerItem &plot)
{
    QStringList names;
    const QwtPlotItemList curves = plot.plot()->itemList(QwtPlotItem::Rtti_PlotCurve);
    for (int i = 0; i < curves.size(); ++i)
        names << curves.at(i)->title().text();
    return names;
}

} // namespace

void tst_Lifetimes::initTestCase()
{
    QQuickWindow::setSceneGraphBackend(QSGRendererInterface::Software);
    registerDataLogTypes("DataLog");
    m_log = m_dir.write(QLatin1String("log.txt"), longLifeLog(20));
}

void tst_Lifetimes::teardown_data()
{
    QTest::addColumn<QString>("order");
    QString order = QLatin1String("cerw");
    do {
        QTest::newRow(order.toLatin1().constData()) << order;
    } while (std::next_permutation(order.begin(), order.end()));
}

/** Component, engine, root object and window go in the order of the letters. */
void tst_Lifetimes::teardown()
{
    QFETCH(QString, order);
    QScopedPointer<QQmlEngine> engine(new QQmlEngine);
    QScopedPointer<QQuickWindow> window(new QQuickWindow);
    const QString file = QLatin1String(DATALOG_SOURCE_DIR "/tests/reliability/Loaded.qml");
    QScopedPointer<QQmlComponent> component(
        new QQmlComponent(engine.data(), QUrl::fromLocalFile(file)));
    QScopedPointer<QObject> root(
        component->createWithInitialProperties({{QLatin1String("path"), m_log}}));
    QVERIFY2(root, qPrintable(component->errorString()));
    QQuickItem *item = qobject_cast<QQuickItem *>(root.data());
    item->setParentItem(window->contentItem());
    window->resize(300, 200);
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.data()));
    QCOMPARE(root->property("loads").toInt(), 1);
    const QPointer<LogDataSourceItem> source(root->findChild<LogDataSourceItem *>());
    QVERIFY(source);
    for (int i = 0; i < order.size(); ++i) {
        if (order.at(i) == QLatin1Char('c'))
            component.reset();
        else if (order.at(i) == QLatin1Char('e'))
            engine.reset();
        else if (order.at(i) == QLatin1Char('r'))
            root.reset();
        else
            window.reset();
        QCoreApplication::processEvents();
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!source);
}

void tst_Lifetimes::viewsAndSource_data()
{
    QTest::addColumn<bool>("viewsFirst");
    QTest::addColumn<bool>("sourceGoesFirst");
    QTest::newRow("views come and go first") << true << false;
    QTest::newRow("views come first and stay") << true << true;
    QTest::newRow("source comes first and stays") << false << false;
    QTest::newRow("source comes and goes first") << false << true;
}

void tst_Lifetimes::viewsAndSource()
{
    QFETCH(bool, viewsFirst);
    QFETCH(bool, sourceGoesFirst);
    QScopedPointer<LogDataSourceItem> source(new LogDataSourceItem);
    if (!viewsFirst) {
        source->setLogFilePath(m_log);
        choose(source.data(), A);
    }
    QScopedPointer<Views> views(new Views(source.data()));
    source->setLogFilePath(m_log);
    choose(source.data(), B);
    views->use();
    if (sourceGoesFirst) {
        source.reset();
        views->use();
        return;
    }
    views.reset();
    source->setLogFilePath(m_log);
    choose(source.data(), A);
    QCOMPARE(source->YLeftData().keys(), QStringList(QLatin1String("a")));
}

void tst_Lifetimes::sourceGoesInAHandler_data()
{
    QTest::addColumn<QByteArray>("signal");
    QTest::addColumn<bool>("duringRead");
    const char *const names[]
        = {SIGNAL(logFileLoaded()),   SIGNAL(logFileError(QString)),
                                             SIGNAL(dataUpdated()),     SIGNAL(graphDataUpdated()),
                                                                               SIGNAL(criteriaUpdated()), SIGNAL(excludedPointsCleared())};
    for (size_t i = 0; i < sizeof names / sizeof names[0]; ++i) {
        QTest::newRow(names[i] + 1) << QByteArray(names[i]) << false;
        QTest::newRow(QByteArray(names[i] + 1) + ", with a read") << QByteArray(names[i]) << true;
    }
}

void tst_Lifetimes::sourceGoesInAHandler()
{
    QFETCH(QByteArray, signal);
    QFETCH(bool, duringRead);
    QPointer<LogDataSourceItem> source(new LogDataSourceItem);
    Views views(source);
    source->setLogFilePath(m_log);
    choose(source, A);
    QSignalSpy emitted(source.data(), signal.constData());
    connect(source.data(), signal.constData(), source.data(), SLOT(deleteLater()));
    // Calls that emit every one of the signals; deleted or not, the source has to get through.
    source->buildFilter(2, 0, QLatin1String("1"));
    source->clearExcludedPoints();
    source->selectDataSet(1);
    source->setLogFilePath(m_dir.filePath(QLatin1String("missing")));
    if (duringRead)
        source->setLogFilePath(m_log);
    source->selectDataSet(0);
    source->setLogFilePath(m_log);
    QVERIFY(emitted.count() > 0);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!source);
    views.use();
}

void tst_Lifetimes::sourceGoesWhileItReloads()
{
    m_source = new LogDataSourceItem;
    m_source->setLogFilePath(m_log);
    choose(m_source, A);
    m_source->setHorizontalGroupVariable(QLatin1String("Sys"), QLatin1String("Obs"));
    m_source->setLeftGroupVariable(QLatin1String("Gas"), QLatin1String("b"));
    connect(m_source.data(), SIGNAL(graphDataUpdated()), SLOT(deleteSource()));
    m_source->reloadGraphDataVariables();
    QVERIFY(!m_source);
}

void tst_Lifetimes::crossedOver()
{
    QScopedPointer<LogDataSourceItem> one(new LogDataSourceItem);
    QScopedPointer<LogDataSourceItem> two(new LogDataSourceItem);
    LogViewerItem left;
    LogViewerItem right;
    left.setLinesEnabled(LogViewerItem::LeftAxis, true);
    right.setLinesEnabled(LogViewerItem::LeftAxis, true);
    left.setDataSource(one.data());
    right.setDataSource(two.data());
    one->setLogFilePath(m_log);
    two->setLogFilePath(m_log);
    choose(one.data(), A);
    choose(two.data(), B);
    QCOMPARE(curveNames(left), QStringList(QLatin1String("a")));
    QCOMPARE(curveNames(right), QStringList(QLatin1String("b")));
    left.setDataSource(two.data());
    right.setDataSource(one.data());
    left.updatePlot();
    right.updatePlot();
    QCOMPARE(curveNames(left), QStringList(QLatin1String("b")));
    QCOMPARE(curveNames(right), QStringList(QLatin1String("a")));
    // Each follows the other's source now, and its own no longer.
    choose(one.data(), Time);
    QCOMPARE(curveNames(left), QStringList(QLatin1String("b")));
    QCOMPARE(curveNames(right), QStringList(QLatin1String("Time")));
    one.reset();
    choose(two.data(), A);
    right.updatePlot();
    QCOMPARE(curveNames(left), QStringList(QLatin1String("a")));
    QCOMPARE(curveNames(right), QStringList());
    right.setDataSource(two.data());
    right.updatePlot();
    QCOMPARE(curveNames(right), QStringList(QLatin1String("a")));
}

QTEST_MAIN(tst_Lifetimes)
#include "tst_Lifetimes.moc"

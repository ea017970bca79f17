#include "filters/NumberedRows.h"
#include "filters/ProxyRows.h"
#include "support/DataChangeRecorder.h"
#include "support/ModelTester.h"
#include "support/TestCompat.h"
#include "table/LogTableViewModel.h"

#include <QTableView>

/** What the range filter does when its source changes. */
class tst_LogObservationSortFilterProxyModelSource : public QObject
{
    Q_OBJECT

private slots:
    void tailFollowsAReset();
    void tailFollowsAppendedRows();
    void stepFollowsInsertedAndRemovedRows();
    void followsTheTableModel();
    void hearsOnlyItsSource();
    void relaysChanges_data();
    void relaysChanges();
    void relaysACheck();
    void survivesTheClearing_data();
    void survivesTheClearing();
    void survivesTheClearingOfAnEmptyTable();
    void survivesTheClearingUnderAView();
};

void tst_LogObservationSortFilterProxyModelSource::tailFollowsAReset()
{
    NumberedRows source(100);
    Proxy proxy;
    ModelTester tester(&proxy);
    proxy.setSourceModel(&source);
    configure(&proxy, Proxy::Tail, 3, 1);
    QCOMPARE(mappedRows(proxy), numbers("97 98 99"));
    source.reset(10);
    QCOMPARE(mappedRows(proxy), numbers("7 8 9"));
    source.reset(0);
    QCOMPARE(proxy.rowCount(), 0);
    source.reset(200);
    QCOMPARE(mappedRows(proxy), numbers("197 198 199"));
    QCOMPARE(proxy.sourceRows().toVector(), numbers("197 198 199"));
}

void tst_LogObservationSortFilterProxyModelSource::tailFollowsAppendedRows()
{
    NumberedRows source(10);
    Proxy proxy;
    ModelTester tester(&proxy);
    proxy.setSourceModel(&source);
    configure(&proxy, Proxy::Tail, 3, 2);
    QCOMPARE(mappedRows(proxy), numbers("7 9"));
    source.insert(10, 1);
    QCOMPARE(mappedRows(proxy), numbers("8 10"));
    source.insert(11, 5);
    QCOMPARE(mappedRows(proxy), numbers("13 15"));
    QCOMPARE(proxy.sourceRows().toVector(), numbers("13 15"));
    source.remove(4, 12);
    QCOMPARE(mappedRows(proxy), numbers("1 3"));
}

void tst_LogObservationSortFilterProxyModelSource::stepFollowsInsertedAndRemovedRows()
{
    NumberedRows source(10);
    Proxy proxy;
    ModelTester tester(&proxy);
    proxy.setSourceModel(&source);
    configure(&proxy, Proxy::Head, 8, 3);
    QCOMPARE(mappedRows(proxy), numbers("0 3 6"));
    source.insert(1, 1);
    QCOMPARE(mappedRows(proxy), numbers("0 3 6"));
    source.remove(0, 7);
    QCOMPARE(mappedRows(proxy), numbers("0 3"));
    proxy.setSortFilterType(Proxy::All);
    source.insert(0, 4);
    QCOMPARE(mappedRows(proxy), numbers("0 3 6"));
}

void tst_LogObservationSortFilterProxyModelSource::followsTheTableModel()
{
    LogTableViewModel source;
    Proxy proxy;
    ModelTester sourceTester(&source);
    ModelTester tester(&proxy);
    proxy.setSourceModel(&source);
    configure(&proxy, Proxy::Tail, 2, 1);
    source.setColumnHeaderData(listsOf("Gas CO2|Time"));
    source.setGridData(listsOf("1 2 3|4 5"));
    QCOMPARE(shownText(proxy), QString::fromLatin1("- 2 5|- 3 -"));
    QCOMPARE(proxy.headerData(1, Qt::Horizontal).toString(), QString::fromLatin1("Gas\nCO2"));
    QCOMPARE(proxy.headerData(0, Qt::Vertical).toInt(), 2);
    source.setColumnHeaderData(listsOf("A"));
    QCOMPARE(shownText(proxy), QString::fromLatin1("- 2|- 3"));
    source.setGridData(listsOf("6 7 8 9"));
    QCOMPARE(shownText(proxy), QString::fromLatin1("- 8|- 9"));
    source.setGridData(QList<QStringList>());
    QCOMPARE(proxy.rowCount(), 0);
}

void tst_LogObservationSortFilterProxyModelSource::hearsOnlyItsSource()
{
    NumberedRows first(5);
    NumberedRows second(5);
    Proxy proxy;
    proxy.setSourceModel(&first);
    proxy.setSourceModel(&second);
    QCOMPARE(proxy.rowCount(), 5);
    DataChangeRecorder changes(&proxy);
    first.announce(0, 0, 0, 0);
    QVERIFY(changes.taken().isEmpty());
    second.announce(0, 0, 0, 0);
    QCOMPARE(changes.taken().size(), 1);
    proxy.setSourceModel(&second);
    QCOMPARE(proxy.rowCount(), 5);
    second.announce(0, 0, 0, 0);
    QCOMPARE(changes.taken().size(), 1);
    proxy.setSourceModel(nullptr);
    second.announce(0, 0, 0, 0);
    QVERIFY(changes.taken().isEmpty());
}

void tst_LogObservationSortFilterProxyModelSource::relaysChanges_data()
{
    QTest::addColumn<QByteArray>("sourceRange"); // top, left, bottom, right
    QTest::addColumn<QString>("announced");
    // Source rows 0, 3, 6 and 9 of 20 are shown.
    QTest::newRow("a shown cell") << QByteArray("3 1 3 1") << QString::fromLatin1("1,1-1,1");
    QTest::newRow("a row between") << QByteArray("4 0 5 1") << QString();
    QTest::newRow("a row past the window") << QByteArray("12 0 12 0") << QString();
    QTest::newRow("over several rows") << QByteArray("2 0 8 1") << QString::fromLatin1("1,0-2,1");
    QTest::newRow("all cells") << QByteArray("0 0 19 1") << QString::fromLatin1("0,0-3,1");
    QTest::newRow("one past the end") << QByteArray("0 0 20 2") << QString::fromLatin1("0,0-3,1");
    QTest::newRow("far past the end")
        << QByteArray("5 1 9999 9999") << QString::fromLatin1("2,1-3,1");
    QTest::newRow("beginning past the last row") << QByteArray("20 0 25 1") << QString();
    QTest::newRow("beginning past the last column") << QByteArray("0 2 3 5") << QString();
}

void tst_LogObservationSortFilterProxyModelSource::relaysChanges()
{
    QFETCH(QByteArray, sourceRange);
    QFETCH(QString, announced);
    const QVector<int> cells = numbers(sourceRange.constData());
    NumberedRows source(20);
    Proxy proxy;
    proxy.setSourceModel(&source);
    configure(&proxy, Proxy::Head, 10, 3);
    DataChangeRecorder changes(&proxy);
    source.announce(cells.at(0), cells.at(1), cells.at(2), cells.at(3));
    QCOMPARE(changes.taken().join(QLatin1String(" ")), announced);
    source.announceNothing();
    QVERIFY(changes.taken().isEmpty());
}

void tst_LogObservationSortFilterProxyModelSource::relaysACheck()
{
    LogTableViewModel source;
    Proxy proxy;
    ModelTester tester(&proxy);
    proxy.setSourceModel(&source);
    configure(&proxy, Proxy::Tail, 2, 1);
    source.setColumnHeaderData(listsOf("A"));
    source.setGridData(listsOf("1 2 3 4"));
    DataChangeRecorder changes(&proxy);
    QVERIFY(proxy.setData(proxy.index(1, 0), Qt::Checked, Qt::CheckStateRole));
    QVERIFY(source.rowExcluded(3));
    QCOMPARE(proxy.index(1, 0).data(Qt::CheckStateRole).toInt(), 2);
    QVERIFY(source.setData(source.index(0, 0), true, Qt::CheckStateRole));
    QCOMPARE(changes.taken().join(QLatin1String(" ")), QString::fromLatin1("1,0-1,0"));
    QCOMPARE(proxy.flags(proxy.index(0, 0)),
             Qt::ItemFlags(Qt::ItemIsUserCheckable | Qt::ItemIsEnabled));
}

void tst_LogObservationSortFilterProxyModelSource::survivesTheClearing_data()
{
    QTest::addColumn<Proxy::LogObservationSortFilterType>("type");
    QTest::addColumn<int>("sortColumn");
    QTest::addColumn<QString>("announced");
    QTest::newRow("all") << Proxy::All << -1 << QString::fromLatin1("0,0-3,2");
    QTest::newRow("head") << Proxy::Head << -1 << QString::fromLatin1("0,0-1,2");
    QTest::newRow("tail") << Proxy::Tail << -1 << QString::fromLatin1("0,0-1,2");
    QTest::newRow("sorted") << Proxy::All << 1 << QString::fromLatin1("0,0-3,2");
    QTest::newRow("sorted tail") << Proxy::Tail << 1 << QString::fromLatin1("0,0-1,2");
}

void tst_LogObservationSortFilterProxyModelSource::survivesTheClearing()
{
    QFETCH(Proxy::LogObservationSortFilterType, type);
    QFETCH(int, sortColumn);
    QFETCH(QString, announced);
    LogTableViewModel source;
    Proxy proxy;
    proxy.setSourceModel(&source);
    configure(&proxy, type, 2, 1);
    source.setColumnHeaderData(listsOf("A|B"));
    source.setGridData(listsOf("4 3 2 1|5 6 7 8"));
    proxy.sort(sortColumn);
    const QVector<int> rows = mappedRows(proxy);
    QVERIFY(proxy.setData(proxy.index(1, 0), true, Qt::CheckStateRole));
    DataChangeRecorder changes(&proxy);
    source.clearExcludedRows();
    QCOMPARE(changes.taken().join(QLatin1String(" ")), announced);
    QCOMPARE(proxy.index(1, 0).data(Qt::CheckStateRole).toInt(), 0);
    QCOMPARE(mappedRows(proxy), rows);
}

void tst_LogObservationSortFilterProxyModelSource::survivesTheClearingOfAnEmptyTable()
{
    LogTableViewModel source;
    Proxy proxy;
    proxy.setSourceModel(&source);
    DataChangeRecorder changes(&proxy);
    source.clearExcludedRows();
    QCOMPARE(proxy.rowCount(), 0);
    source.clearExcludedRows();
    source.setColumnHeaderData(listsOf("A"));
    QCOMPARE(proxy.columnCount(), 2);
    source.clearExcludedRows();
    QVERIFY(changes.taken().isEmpty());
}

void tst_LogObservationSortFilterProxyModelSource::survivesTheClearingUnderAView()
{
    LogTableViewModel source;
    Proxy proxy;
    proxy.setSourceModel(&source);
    source.setColumnHeaderData(listsOf("A|B"));
    source.setGridData(listsOf("1 2 3|4 5 6"));
    QTableView view;
    view.setModel(&proxy);
    view.show();
    QVERIFY(proxy.setData(proxy.index(2, 0), true, Qt::CheckStateRole));
    source.clearExcludedRows();
    QCoreApplication::processEvents();
    QCOMPARE(view.model()->index(2, 0).data(Qt::CheckStateRole).toInt(), 0);
    proxy.setSortFilterType(Proxy::Tail);
    proxy.setRangeSize(1);
    source.clearExcludedRows();
    QCoreApplication::processEvents();
    QCOMPARE(view.model()->rowCount(), 1);
}

QTEST_MAIN(tst_LogObservationSortFilterProxyModelSource)
#include "tst_LogObservationSortFilterProxyModelSource.moc"

#include "filters/NumberedRows.h"
#include "filters/ProxyRows.h"
#include "support/DataChangeRecorder.h"
#include "support/ModelTester.h"
#include "support/TestCompat.h"
#include "table/LogTableViewModel.h"

/** The range filter, sorted by a column. */
class tst_LogObservationSortFilterProxyModelSorting : public QObject
{
    Q_OBJECT

private slots:
    void sourceRowsWhenSorted();
    void sourceRowsWithoutColumns();
    void relaysChangesWhenSorted();
    void sortsAnewWhenASortedColumnChanges();
    void staysUnsortedWithoutDynamicSorting();
};

void tst_LogObservationSortFilterProxyModelSorting::sourceRowsWhenSorted()
{
    NumberedRows source(10);
    Proxy proxy;
    ModelTester tester(&proxy);
    proxy.setSourceModel(&source);
    configure(&proxy, Proxy::Tail, 7, 2);
    proxy.sort(0, Qt::DescendingOrder);
    QCOMPARE(mappedRows(proxy), numbers("9 7 5 3"));
    QCOMPARE(proxy.sourceRows().toVector(), numbers("9 7 5 3"));
    proxy.setRangeSize(3);
    QCOMPARE(proxy.sourceRows().toVector(), numbers("9 7"));
    proxy.sort(-1);
    QCOMPARE(mappedRows(proxy), numbers("7 9"));
    QCOMPARE(proxy.sourceRows().toVector(), numbers("7 9"));
}

void tst_LogObservationSortFilterProxyModelSorting::sourceRowsWithoutColumns()
{
    LogTableViewModel source;
    Proxy proxy;
    proxy.setSourceModel(&source);
    source.setGridData(listsOf("1 2 3"));
    QCOMPARE(proxy.sourceRows().toVector(), range(0, 3));
    proxy.sort(0, Qt::DescendingOrder);
    QCOMPARE(proxy.sourceRows().toVector(), range(0, 3));
}

void tst_LogObservationSortFilterProxyModelSorting::relaysChangesWhenSorted()
{
    NumberedRows source(10);
    Proxy proxy;
    proxy.setSourceModel(&source);
    configure(&proxy, Proxy::All, 50, 2);
    proxy.sort(0, Qt::DescendingOrder); // 8 6 4 2 0
    DataChangeRecorder changes(&proxy);
    source.announce(3, 1, 7, 1);
    QCOMPARE(changes.taken().join(QLatin1String(" ")), QString::fromLatin1("1,1-2,1"));
    source.announce(0, 0, 10, 2);
    QCOMPARE(changes.taken().join(QLatin1String(" ")), QString::fromLatin1("0,0-4,1"));
}

void tst_LogObservationSortFilterProxyModelSorting::sortsAnewWhenASortedColumnChanges()
{
    NumberedRows source(6);
    Proxy proxy;
    ModelTester tester(&proxy);
    proxy.setDynamicSortFilter(true);
    proxy.setSourceModel(&source);
    configure(&proxy, Proxy::Tail, 4, 1);
    proxy.sort(1);
    QCOMPARE(mappedRows(proxy), numbers("2 3 4 5"));
    const QPersistentModelIndex held(proxy.index(0, 0));
    QSignalSpy layout(&proxy, SIGNAL(layoutChanged()));
    DataChangeRecorder changes(&proxy);
    source.setKey(2, 9);
    QCOMPARE(mappedRows(proxy), numbers("3 4 5 2"));
    QCOMPARE(proxy.sourceRows().toVector(), numbers("3 4 5 2"));
    QCOMPARE(held.row(), 3);
    QCOMPARE(layout.count(), 1);
    QCOMPARE(changes.taken().join(QLatin1String(" ")), QString::fromLatin1("3,1-3,1"));
    source.announce(3, 0, 3, 0);
    QCOMPARE(layout.count(), 1);
    QCOMPARE(changes.taken().join(QLatin1String(" ")), QString::fromLatin1("0,0-0,0"));
}

void tst_LogObservationSortFilterProxyModelSorting::staysUnsortedWithoutDynamicSorting()
{
    NumberedRows source(4);
    Proxy proxy;
    proxy.setDynamicSortFilter(false);
    proxy.setSourceModel(&source);
    proxy.sort(1);
    source.setKey(0, 9);
    QCOMPARE(mappedRows(proxy), numbers("0 1 2 3"));
    proxy.sort(1);
    QCOMPARE(mappedRows(proxy), numbers("1 2 3 0"));
}

QTEST_GUILESS_MAIN(tst_LogObservationSortFilterProxyModelSorting)
#include "tst_LogObservationSortFilterProxyModelSorting.moc"

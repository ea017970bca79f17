#include "filters/NumberedRows.h"
#include "filters/ProxyRows.h"
#include "support/ModelTester.h"
#include "support/TestCompat.h"

#include <QMetaEnum>

class tst_LogObservationSortFilterProxyModel : public QObject
{
    Q_OBJECT

private slots:
    void interface();
    void defaults();
    void showsRows_data();
    void showsRows();
    void takesAnyNumber_data();
    void takesAnyNumber();
    void propertiesWrite();
    void filtersEachTimeAndEmitsNothing();
    void settingsOutliveTheSource();
    void withoutASource();
    void ignoresThePattern();
};

/** Counts how often the base class asks for a row. */
struct CountingProxy : Proxy {
    CountingProxy()
        : asked(0)
    {
    }
    bool filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const override
    {
        ++asked;
        return Proxy::filterAcceptsRow(sourceRow, sourceParent);
    }
    mutable int asked;
};

void tst_LogObservationSortFilterProxyModel::interface()
{
    const QMetaObject &meta = Proxy::staticMetaObject;
    QCOMPARE(meta.propertyCount() - meta.propertyOffset(), 3);
    const char *names[] = {"sortFilterType", "rangeSize", "frequency"};
    for (int i = 0; i < 3; ++i) {
        const QMetaProperty property = meta.property(meta.propertyOffset() + i);
        QCOMPARE(property.name(), names[i]);
        QVERIFY(property.isWritable());
        QVERIFY(property.hasNotifySignal());
        QCOMPARE(property.notifySignalIndex(), meta.methodOffset() + i);
    }
    QCOMPARE(meta.indexOfSignal("sortFilterTypeChanged()"), meta.methodOffset());
    QCOMPARE(meta.indexOfSignal("rangeSizedChanged()"), meta.methodOffset() + 1);
    QCOMPARE(meta.indexOfSignal("frequencyChanged()"), meta.methodOffset() + 2);
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 3);

    const QMetaEnum types = meta.enumerator(meta.indexOfEnumerator("LogObservationSortFilterType"));
    QCOMPARE(types.keyCount(), 3);
    QCOMPARE(types.keyToValue("All"), 0);
    QCOMPARE(types.keyToValue("Head"), 1);
    QCOMPARE(types.keyToValue("Tail"), 2);
}

void tst_LogObservationSortFilterProxyModel::defaults()
{
    NumberedRows source(120);
    Proxy proxy;
    ModelTester tester(&proxy);
    proxy.setSourceModel(&source);
    QCOMPARE(proxy.sortFilterType(), Proxy::Head);
    QCOMPARE(proxy.rangeSize(), 50);
    QCOMPARE(proxy.frequency(), 1);
    QCOMPARE(mappedRows(proxy), range(0, 50));
    QCOMPARE(proxy.columnCount(), 2);
}

void tst_LogObservationSortFilterProxyModel::showsRows_data()
{
    QTest::addColumn<int>("rowCount");
    QTest::addColumn<Proxy::LogObservationSortFilterType>("type");
    QTest::addColumn<int>("rangeSize");
    QTest::addColumn<int>("frequency");
    QTest::addColumn<QVector<int>>("rows");
    const Proxy::LogObservationSortFilterType other = Proxy::LogObservationSortFilterType(3);
    QTest::newRow("all") << 7 << Proxy::All << 3 << 1 << range(0, 7);
    QTest::newRow("all, every 10th") << 25 << Proxy::All << 50 << 10 << numbers("0 10 20");
    QTest::newRow("all, range size 0") << 3 << Proxy::All << 0 << 1 << range(0, 3);
    QTest::newRow("all, no rows") << 0 << Proxy::All << 50 << 1 << QVector<int>();
    QTest::newRow("head, every 5th")
        << 120 << Proxy::Head << 50 << 5 << numbers("0 5 10 15 20 25 30 35 40 45");
    QTest::newRow("head, fewer rows") << 4 << Proxy::Head << 50 << 1 << range(0, 4);
    QTest::newRow("head, as many rows") << 4 << Proxy::Head << 4 << 1 << range(0, 4);
    QTest::newRow("head of 0") << 10 << Proxy::Head << 0 << 1 << QVector<int>();
    QTest::newRow("head of -1") << 10 << Proxy::Head << -1 << 1 << QVector<int>();
    QTest::newRow("head, step beyond it") << 10 << Proxy::Head << 5 << 6 << numbers("0");
    QTest::newRow("tail") << 120 << Proxy::Tail << 50 << 1 << range(70, 120);
    QTest::newRow("tail, every 3rd") << 100 << Proxy::Tail << 10 << 3 << numbers("90 93 96 99");
    QTest::newRow("tail, fewer rows") << 30 << Proxy::Tail << 50 << 1 << range(0, 30);
    QTest::newRow("tail, fewer rows, every 3rd") << 5 << Proxy::Tail << 10 << 3 << numbers("1 4");
    QTest::newRow("tail, step beyond it") << 10 << Proxy::Tail << 5 << 6 << numbers("5");
    QTest::newRow("tail, no step in the rows") << 2 << Proxy::Tail << 5 << 9 << QVector<int>();
    QTest::newRow("tail of 0") << 10 << Proxy::Tail << 0 << 1 << QVector<int>();
    QTest::newRow("tail of -1") << 10 << Proxy::Tail << -1 << 1 << QVector<int>();
    QTest::newRow("tail, no rows") << 0 << Proxy::Tail << 5 << 1 << QVector<int>();
    QTest::newRow("every -3rd") << 10 << Proxy::All << 50 << -3 << numbers("0 3 6 9");
    QTest::newRow("tail, every -3rd") << 10 << Proxy::Tail << 5 << -3 << numbers("5 8");
    QTest::newRow("every 0th is every one") << 4 << Proxy::All << 50 << 0 << range(0, 4);
    QTest::newRow("other type is all") << 7 << other << 3 << 2 << numbers("0 2 4 6");
}

void tst_LogObservationSortFilterProxyModel::showsRows()
{
    QFETCH(int, rowCount);
    QFETCH(Proxy::LogObservationSortFilterType, type);
    QFETCH(int, rangeSize);
    QFETCH(int, frequency);
    QFETCH(QVector<int>, rows);
    NumberedRows source(rowCount);
    Proxy proxy;
    ModelTester tester(&proxy);
    proxy.setSourceModel(&source);
    configure(&proxy, type, rangeSize, frequency);
    QCOMPARE(mappedRows(proxy), rows);
    QCOMPARE(proxy.sourceRows().toVector(), rows);
}

void tst_LogObservationSortFilterProxyModel::takesAnyNumber_data()
{
    QTest::addColumn<Proxy::LogObservationSortFilterType>("type");
    QTest::addColumn<int>("rangeSize");
    QTest::addColumn<int>("frequency");
    QTest::addColumn<QVector<int>>("rows");
    QTest::newRow("largest head") << Proxy::Head << INT_MAX << 1 << range(0, 5);
    QTest::newRow("smallest head") << Proxy::Head << INT_MIN << 1 << QVector<int>();
    QTest::newRow("largest tail") << Proxy::Tail << INT_MAX << 1 << range(0, 5);
    QTest::newRow("smallest tail") << Proxy::Tail << INT_MIN << 1 << QVector<int>();
    // Row 4 lies INT_MAX - 1 after the start of the largest window.
    QTest::newRow("largest tail, widest step")
        << Proxy::Tail << INT_MAX << INT_MAX - 1 << numbers("4");
    QTest::newRow("largest step") << Proxy::All << 50 << INT_MAX << numbers("0");
    QTest::newRow("smallest step") << Proxy::All << 50 << INT_MIN << numbers("0");
    QTest::newRow("smallest step of a tail") << Proxy::Tail << 2 << INT_MIN << numbers("3");
}

void tst_LogObservationSortFilterProxyModel::takesAnyNumber()
{
    QFETCH(Proxy::LogObservationSortFilterType, type);
    QFETCH(int, rangeSize);
    QFETCH(int, frequency);
    QFETCH(QVector<int>, rows);
    NumberedRows source(5);
    Proxy proxy;
    proxy.setSourceModel(&source);
    configure(&proxy, type, rangeSize, frequency);
    QCOMPARE(proxy.rangeSize(), rangeSize);
    QCOMPARE(proxy.frequency(), frequency);
    QCOMPARE(mappedRows(proxy), rows);
    QCOMPARE(proxy.sourceRows().toVector(), rows);
}

void tst_LogObservationSortFilterProxyModel::propertiesWrite()
{
    NumberedRows source(10);
    Proxy proxy;
    proxy.setSourceModel(&source);
    QVERIFY(proxy.setProperty("sortFilterType", 2));
    QVERIFY(proxy.setProperty("rangeSize", 4));
    QVERIFY(proxy.setProperty("frequency", 3));
    QCOMPARE(proxy.sortFilterType(), Proxy::Tail);
    QCOMPARE(proxy.property("sortFilterType").toInt(), 2);
    QCOMPARE(proxy.property("rangeSize").toInt(), 4);
    QCOMPARE(proxy.property("frequency").toInt(), 3);
    QCOMPARE(mappedRows(proxy), numbers("6 9"));
}

void tst_LogObservationSortFilterProxyModel::filtersEachTimeAndEmitsNothing()
{
    NumberedRows source(10);
    CountingProxy proxy;
    proxy.setSourceModel(&source);
    QSignalSpy typeSpy(&proxy, SIGNAL(sortFilterTypeChanged()));
    QSignalSpy rangeSpy(&proxy, SIGNAL(rangeSizedChanged()));
    QSignalSpy frequencySpy(&proxy, SIGNAL(frequencyChanged()));
    QSignalSpy removed(&proxy, SIGNAL(rowsRemoved(QModelIndex,int,int)));
    QCOMPARE(proxy.rowCount(), 10);

    proxy.asked = 0;
    proxy.setRangeSize(5);
    QCOMPARE(proxy.asked, 10);
    QCOMPARE(removed.count(), 1);
    proxy.setRangeSize(5);
    QCOMPARE(proxy.asked, 20);
    proxy.setFrequency(1);
    QCOMPARE(proxy.asked, 30);
    proxy.setSortFilterType(Proxy::Head);
    QCOMPARE(proxy.asked, 40);
    QCOMPARE(removed.count(), 1);
    proxy.setSortFilterType(Proxy::All);
    proxy.setFrequency(2);
    QCOMPARE(typeSpy.count() + rangeSpy.count() + frequencySpy.count(), 0);
}

void tst_LogObservationSortFilterProxyModel::settingsOutliveTheSource()
{
    NumberedRows source(100);
    NumberedRows another(20);
    Proxy proxy;
    proxy.setSourceModel(&source);
    configure(&proxy, Proxy::Tail, 10, 3);
    source.reset(50);
    QCOMPARE(mappedRows(proxy), numbers("40 43 46 49"));
    proxy.setSourceModel(&another);
    QCOMPARE(proxy.sortFilterType(), Proxy::Tail);
    QCOMPARE(proxy.rangeSize(), 10);
    QCOMPARE(proxy.frequency(), 3);
    QCOMPARE(mappedRows(proxy), numbers("10 13 16 19"));
}

void tst_LogObservationSortFilterProxyModel::withoutASource()
{
    QObject parent;
    CountingProxy proxy;
    Proxy child(&parent);
    QCOMPARE(child.parent(), &parent);
    configure(&proxy, Proxy::Tail, 10, 3);
    QCOMPARE(proxy.rowCount(), 0);
    QVERIFY(proxy.sourceRows().count() == 0);
    QVERIFY(proxy.filterAcceptsRow(2, QModelIndex())); // 12 rows after the window's start
    {
        NumberedRows source(10);
        proxy.setSourceModel(&source);
        QCOMPARE(proxy.rowCount(), 4);
    }
    QCOMPARE(proxy.rowCount(), 0);
    QVERIFY(proxy.sourceRows().count() == 0);
    proxy.setSourceModel(nullptr);
    QCOMPARE(proxy.rowCount(), 0);
    proxy.setRangeSize(5);
    QVERIFY(proxy.sourceRows().count() == 0);
}

void tst_LogObservationSortFilterProxyModel::ignoresThePattern()
{
    NumberedRows source(10);
    Proxy proxy;
    proxy.setSourceModel(&source);
    proxy.setFilterKeyColumn(0);
    proxy.setFilterRegExp(QRegExp(QLatin1String("^(?!3).*$")));
    QCOMPARE(mappedRows(proxy), range(0, 10));
}

QTEST_GUILESS_MAIN(tst_LogObservationSortFilterProxyModel)
#include "tst_LogObservationSortFilterProxyModel.moc"

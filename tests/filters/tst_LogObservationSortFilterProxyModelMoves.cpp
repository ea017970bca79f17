#include "filters/NumberedRows.h"
#include "filters/ProxyRows.h"
#include "support/TestCompat.h"

/** Which rows come and go when a setting of the range filter changes. */
class tst_LogObservationSortFilterProxyModelMoves : public QObject
{
    Q_OBJECT

private slots:
    void stepsOverManyRows_data();
    void stepsOverManyRows();
    void manySteppedRowsMoveInFewSteps();
    void settingsChangedFromAHandler();
};

void tst_LogObservationSortFilterProxyModelMoves::stepsOverManyRows_data()
{
    QTest::addColumn<Proxy::LogObservationSortFilterType>("type");
    QTest::addColumn<int>("rangeSize");
    QTest::addColumn<int>("frequency");
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("last");
    QTest::newRow("all, every 2nd") << Proxy::All << 50 << 2 << 500000 << 0 << 999998;
    QTest::newRow("all, every 3rd") << Proxy::All << 50 << 3 << 333334 << 0 << 999999;
    QTest::newRow("tail, every 7th") << Proxy::Tail << 900001 << 7 << 128572 << 99999 << 999996;
    QTest::newRow("head, every 2nd") << Proxy::Head << 600000 << 2 << 300000 << 0 << 599998;
}

void tst_LogObservationSortFilterProxyModelMoves::stepsOverManyRows()
{
    QFETCH(Proxy::LogObservationSortFilterType, type);
    QFETCH(int, rangeSize);
    QFETCH(int, frequency);
    QFETCH(int, count);
    QFETCH(int, first);
    QFETCH(int, last);
    NumberedRows source(1000000);
    Proxy proxy;
    proxy.setSourceModel(&source);
    proxy.setSortFilterType(Proxy::All);
    QCOMPARE(proxy.rowCount(), 1000000);
    configure(&proxy, type, rangeSize, frequency);
    QCOMPARE(proxy.rowCount(), count);
    QCOMPARE(proxy.index(0, 0).data().toInt(), first);
    QCOMPARE(proxy.index(count - 1, 0).data().toInt(), last);
    QCOMPARE(proxy.sourceRows().toVector(), mappedRows(proxy));
}

void tst_LogObservationSortFilterProxyModelMoves::manySteppedRowsMoveInFewSteps()
{
    NumberedRows source(100000);
    Proxy proxy;
    proxy.setSourceModel(&source);
    proxy.setSortFilterType(Proxy::All);
    QCOMPARE(proxy.rowCount(), 100000);
    QSignalSpy removed(&proxy, SIGNAL(rowsRemoved(QModelIndex,int,int)));
    QSignalSpy inserted(&proxy, SIGNAL(rowsInserted(QModelIndex,int,int)));
    proxy.setFrequency(2);
    QCOMPARE(removed.count(), 1);
    QCOMPARE(inserted.count(), 1);
    QCOMPARE(proxy.rowCount(), 50000);
    // A window that only shrinks or grows on the same steps leaves the other rows in place.
    proxy.setSortFilterType(Proxy::Head);
    QCOMPARE(proxy.rowCount(), 25);
    QCOMPARE(removed.count(), 2);
    proxy.setRangeSize(60000);
    QCOMPARE(inserted.count(), 2);
    QCOMPARE(removed.count(), 2);
    QCOMPARE(proxy.rowCount(), 30000);
    source.insert(0, 1);
    QCOMPARE(proxy.sourceRows().toVector(), mappedRows(proxy));
    QCOMPARE(proxy.rowCount(), 30000);
}

/** Answers the first removal of rows with a setting of its own. */
class SettingHandler : public QObject
{
    Q_OBJECT

public:
    explicit SettingHandler(Proxy *proxy)
        : m_proxy(proxy)
    {
        connect(proxy, SIGNAL(rowsRemoved(QModelIndex,int,int)), this, SLOT(set()));
    }

    QVector<int> rowsSeen;
    int rowCountSeen = -1;

private slots:
    void set()
    {
        disconnect(m_proxy, nullptr, this, nullptr);
        rowsSeen = m_proxy->sourceRows().toVector();
        rowCountSeen = m_proxy->rowCount();
        m_proxy->setFrequency(5);
    }

private:
    Proxy *m_proxy;
};

void tst_LogObservationSortFilterProxyModelMoves::settingsChangedFromAHandler()
{
    NumberedRows source(100000);
    Proxy proxy;
    proxy.setSourceModel(&source);
    proxy.setSortFilterType(Proxy::All);
    QCOMPARE(proxy.rowCount(), 100000);
    SettingHandler handler(&proxy);
    proxy.setFrequency(2);
    QCOMPARE(handler.rowCountSeen, 0);
    QVERIFY(handler.rowsSeen.isEmpty());
    QCOMPARE(proxy.frequency(), 5);
    QCOMPARE(proxy.rowCount(), 20000);
    QCOMPARE(proxy.sourceRows().toVector(), mappedRows(proxy));
}

QTEST_GUILESS_MAIN(tst_LogObservationSortFilterProxyModelMoves)
#include "tst_LogObservationSortFilterProxyModelMoves.moc"

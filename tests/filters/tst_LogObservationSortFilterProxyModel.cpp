#include "filters/LogObservationSortFilterProxyModel.h"
#include "filters/NumberedRows.h"
#include "support/DataChangeRecorder.h"
#include "support/ModelTester.h"
#include "support/TestCompat.h"
#include "support/TextTable.h"
#include "table/LogTableViewModel.h"

#include <QMetaEnum>
#include <QTableView>

typedef LogObservationSortFilterProxyModel Proxy;
Q_DECLARE_METATYPE(Proxy::LogObservationSortFilterType)
Q_DECLARE_METATYPE(QVector<int>)

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
    void tailFollowsAReset();
    void tailFollowsAppendedRows();
    void stepFollowsInsertedAndRemovedRows();
    void followsTheTableModel();
    void ignoresThePattern();
    void sourceRowsWhenSorted();
    void sourceRowsWithoutColumns();
    void stepsOverManyRows_data();
    void stepsOverManyRows();
    void manySteppedRowsMoveInFewSteps();
    void settingsChangedFromAHandler();
    void relaysChanges_data();
    void relaysChanges();
    void relaysChangesWhenSorted();
    void sortsAnewWhenASortedColumnChanges();
    void staysUnsortedWithoutDynamicSorting();
    void relaysACheck();
    void survivesTheClearing_data();
    void survivesTheClearing();
    void survivesTheClearingOfAnEmptyTable();
    void survivesTheClearingUnderAView();
    void hearsOnlyItsSource();
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

static void configure(Proxy *proxy, Proxy::LogObservationSortFilterType type, int rangeSize,
                      int frequency)
{
    proxy->setSortFilterType(type);
    proxy->setRangeSize(rangeSize);
    proxy->setFrequency(frequency);
}

/** The source rows shown, as the base class maps them. */
static QVector<int> mappedRows(const Proxy &proxy)
{
    QVector<int> rows;
    for (int row = 0; row < proxy.rowCount(); ++row)
        rows << proxy.mapToSource(proxy.index(row, 0)).row();
    return rows;
}

static QVector<int> numbers(const char *text)
{
    QVector<int> result;
    foreach (const QString &number, listsOf(text).value(0))
        result << number.toInt();
    return result;
}

static QVector<int> range(int begin, int end)
{
    QVector<int> rows;
    for (int row = begin; row < end; ++row)
        rows << row;
    return rows;
}

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
    Proxy *child = new Proxy(&parent);
    QCOMPARE(child->parent(), &parent);
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

void tst_LogObservationSortFilterProxyModel::tailFollowsAReset()
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

void tst_LogObservationSortFilterProxyModel::tailFollowsAppendedRows()
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

void tst_LogObservationSortFilterProxyModel::stepFollowsInsertedAndRemovedRows()
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

void tst_LogObservationSortFilterProxyModel::followsTheTableModel()
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

void tst_LogObservationSortFilterProxyModel::ignoresThePattern()
{
    NumberedRows source(10);
    Proxy proxy;
    proxy.setSourceModel(&source);
    proxy.setFilterKeyColumn(0);
    proxy.setFilterRegExp(QRegExp(QLatin1String("^(?!3).*$")));
    QCOMPARE(mappedRows(proxy), range(0, 10));
}

void tst_LogObservationSortFilterProxyModel::sourceRowsWhenSorted()
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

void tst_LogObservationSortFilterProxyModel::sourceRowsWithoutColumns()
{
    LogTableViewModel source;
    Proxy proxy;
    proxy.setSourceModel(&source);
    source.setGridData(listsOf("1 2 3"));
    QCOMPARE(proxy.sourceRows().toVector(), range(0, 3));
    proxy.sort(0, Qt::DescendingOrder);
    QCOMPARE(proxy.sourceRows().toVector(), range(0, 3));
}

void tst_LogObservationSortFilterProxyModel::stepsOverManyRows_data()
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

void tst_LogObservationSortFilterProxyModel::stepsOverManyRows()
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

void tst_LogObservationSortFilterProxyModel::manySteppedRowsMoveInFewSteps()
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

void tst_LogObservationSortFilterProxyModel::settingsChangedFromAHandler()
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

void tst_LogObservationSortFilterProxyModel::relaysChanges_data()
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

void tst_LogObservationSortFilterProxyModel::relaysChanges()
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

void tst_LogObservationSortFilterProxyModel::relaysChangesWhenSorted()
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

void tst_LogObservationSortFilterProxyModel::sortsAnewWhenASortedColumnChanges()
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

void tst_LogObservationSortFilterProxyModel::staysUnsortedWithoutDynamicSorting()
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

void tst_LogObservationSortFilterProxyModel::relaysACheck()
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

void tst_LogObservationSortFilterProxyModel::survivesTheClearing_data()
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

void tst_LogObservationSortFilterProxyModel::survivesTheClearing()
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

void tst_LogObservationSortFilterProxyModel::survivesTheClearingOfAnEmptyTable()
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

void tst_LogObservationSortFilterProxyModel::survivesTheClearingUnderAView()
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

void tst_LogObservationSortFilterProxyModel::hearsOnlyItsSource()
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

QTEST_MAIN(tst_LogObservationSortFilterProxyModel)
#include "tst_LogObservationSortFilterProxyModel.moc"

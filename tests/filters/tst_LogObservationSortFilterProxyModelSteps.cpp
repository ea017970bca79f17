#include "filters/ChangingTable.h"
#include "filters/MoveRecorder.h"
#include "filters/ProxyRows.h"
#include "support/ModelTester.h"
#include "support/TestCompat.h"

#include <QItemSelectionModel>
#include <QStandardItemModel>

/**
 * The range filter while it maps its rows by steps, which is from a reset of its source on, and how
 * it leaves that to its base class.
 */
class tst_LogObservationSortFilterProxyModelSteps : public QObject
{
    Q_OBJECT

private slots:
    void startsAtAReset();
    void leavesOthersToTheBaseClass();
    void movesOnlyWhatChanges_data();
    void movesOnlyWhatChanges();
    void keepsIndexesOfRowsThatStay();
    void handsOver_data();
    void handsOver();
    void handsOverUnasked();
    void handsOverAListOfManyRows();
    void followsHandlers_data();
    void followsHandlers();
    void outlivesItsSource();
    void asksForNoCellsBeyond();
};

enum Change {
    Sort,
    InsertRows,
    RemoveRows,
    MoveRow,
    InsertColumn,
    RemoveColumn,
    TurnAround,
    AnnounceHeader,
    RemoveThroughProxy,
    InsertThroughProxy,
    ChangeStep,
    SetPattern,
    SetRange,
    Reset,
    SetSource
};
Q_DECLARE_METATYPE(Change)

static bool mapsBySteps(const Proxy &proxy)
{
    return proxy.index(0, 0).isValid() && !proxy.index(0, 0).internalPointer();
}

/** The base class lists the rows when it has got one pattern, which does not matter, for another.
 */
static void setPatterns(Proxy *proxy)
{
    proxy->setFilterRegExp(QRegExp(QLatin1String("7")));
    proxy->setFilterRegExp(QRegExp(QLatin1String("8")));
}

static void apply(Change change, ChangingTable *source, Proxy *proxy)
{
    switch (change) {
    case Sort:
        return proxy->sort(2);
    case InsertRows:
        source->insertRows(0, 1);
        return;
    case RemoveRows:
        source->removeRows(0, 1);
        return;
    case MoveRow:
        return source->moveToEnd(0);
    case InsertColumn:
        source->insertColumns(3, 1);
        return;
    case RemoveColumn:
        source->removeColumns(2, 1);
        return;
    case TurnAround:
        return source->turnAround();
    case AnnounceHeader:
        return source->announceHeader(0, 1);
    case RemoveThroughProxy:
        proxy->removeRows(0, 1);
        return;
    case InsertThroughProxy:
        proxy->insertRows(0, 1);
        return;
    case ChangeStep:
        return proxy->setFrequency(2);
    case SetPattern:
        return setPatterns(proxy);
    case SetRange:
        return proxy->setRangeSize(3);
    case Reset:
        return source->reset(4);
    case SetSource:
        return proxy->setSourceModel(nullptr);
    }
}

void tst_LogObservationSortFilterProxyModelSteps::startsAtAReset()
{
    ChangingTable source;
    source.reset(10);
    Proxy proxy;
    ModelTester tester(&proxy);
    proxy.setSourceModel(&source);
    QVERIFY(!mapsBySteps(proxy));
    source.reset(10);
    QVERIFY(mapsBySteps(proxy));
    proxy.sort(2);
    QVERIFY(!mapsBySteps(proxy));
    source.reset(10);
    QVERIFY(!mapsBySteps(proxy));
    proxy.sort(-1);
    source.reset(10);
    QVERIFY(mapsBySteps(proxy));
    QVERIFY(proxy.hasChildren());
    QVERIFY(!proxy.hasChildren(proxy.index(0, 0)));
    QVERIFY(!proxy.headerData(10, Qt::Vertical).isValid());
    QVERIFY(!proxy.setHeaderData(0, Qt::Vertical, 5));
}

void tst_LogObservationSortFilterProxyModelSteps::leavesOthersToTheBaseClass()
{
    struct EvenRows : Proxy {
        bool filterAcceptsRow(int sourceRow, const QModelIndex &parent) const override
        {
            return sourceRow % 2 == 0 && Proxy::filterAcceptsRow(sourceRow, parent);
        }
    };
    ChangingTable source;
    EvenRows evenRows;
    evenRows.setSourceModel(&source);
    source.reset(5);
    QCOMPARE(mappedRows(evenRows), numbers("0 2 4"));

    QStandardItemModel tree;
    Proxy proxy;
    proxy.setSourceModel(&tree);
    tree.clear();
    tree.appendRow(new QStandardItem);
    tree.item(0)->appendRow(new QStandardItem);
    QCOMPARE(proxy.rowCount(proxy.index(0, 0)), 1);
}

void tst_LogObservationSortFilterProxyModelSteps::movesOnlyWhatChanges_data()
{
    QTest::addColumn<Proxy::LogObservationSortFilterType>("type");
    QTest::addColumn<int>("rangeSize");
    QTest::addColumn<QByteArray>("setting");
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("moves");
    // Of 20 rows, every 2nd; each move is followed by the number of rows there are then.
    const QByteArray type = "sortFilterType";
    const QByteArray range = "rangeSize";
    QTest::newRow("nothing") << Proxy::Head << 6 << range << 5 << QString();
    QTest::newRow("rows come behind")
        << Proxy::Head << 6 << range << 10 << QString::fromLatin1("+3-4=5");
    QTest::newRow("rows behind go")
        << Proxy::Head << 6 << range << 2 << QString::fromLatin1("-1-2=1");
    QTest::newRow("rows come before")
        << Proxy::Tail << 6 << range << 10 << QString::fromLatin1("+0-1=5");
    QTest::newRow("rows before go")
        << Proxy::Tail << 6 << range << 2 << QString::fromLatin1("-0-1=1");
    QTest::newRow("all go") << Proxy::Head << 6 << range << 0 << QString::fromLatin1("-0-2=0");
    QTest::newRow("all come") << Proxy::Head << 0 << range << 6 << QString::fromLatin1("+0-2=3");
    QTest::newRow("the first go, others follow the rest")
        << Proxy::Head << 14 << type << 2 << QString::fromLatin1("-0-2=4 +4-6=7");
    QTest::newRow("the last go, others precede the rest")
        << Proxy::Tail << 14 << type << 1 << QString::fromLatin1("-4-6=4 +0-2=7");
    QTest::newRow("none stays") << Proxy::Head << 6 << type << 2
                                << QString::fromLatin1("-0-2=0 +0-2=3");
    QTest::newRow("one stays of many")
        << Proxy::Head << 6 << QByteArray("frequency") << 7 << QString::fromLatin1("-1-2=1");
}

void tst_LogObservationSortFilterProxyModelSteps::movesOnlyWhatChanges()
{
    QFETCH(Proxy::LogObservationSortFilterType, type);
    QFETCH(int, rangeSize);
    QFETCH(QByteArray, setting);
    QFETCH(int, value);
    QFETCH(QString, moves);
    ChangingTable source;
    Proxy proxy;
    ModelTester tester(&proxy);
    proxy.setSourceModel(&source);
    configure(&proxy, type, rangeSize, 2);
    source.reset(20);
    MoveRecorder recorder(&proxy);
    QVERIFY(proxy.setProperty(setting.constData(), value));
    QCOMPARE(recorder.taken(), moves);
    QCOMPARE(mapsBySteps(proxy), proxy.rowCount() > 0);
}

void tst_LogObservationSortFilterProxyModelSteps::keepsIndexesOfRowsThatStay()
{
    ChangingTable source;
    Proxy proxy;
    ModelTester tester(&proxy);
    proxy.setSourceModel(&source);
    configure(&proxy, Proxy::Head, 8, 1);
    source.reset(10);
    const QPersistentModelIndex second(proxy.index(1, 1));
    const QPersistentModelIndex seventh(proxy.index(6, 2));
    proxy.setRangeSize(4);
    QCOMPARE(second.row(), 1);
    QVERIFY(!seventh.isValid());
    proxy.setSortFilterType(Proxy::Tail);
    proxy.setRangeSize(9);
    QVERIFY(mapsBySteps(proxy));
    QVERIFY(!second.isValid());
    const QPersistentModelIndex first(proxy.index(0, 2));
    proxy.setSortFilterType(Proxy::All);
    QCOMPARE(first.row(), 1);
    QCOMPARE(first.column(), 2);
    QCOMPARE(proxy.mapToSource(first).row(), 1);
}

void tst_LogObservationSortFilterProxyModelSteps::handsOver_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<int>("heldRow");
    // Rows 0 to 9 are shown, and row 1 is held: its key is the third smallest, in descending order.
    QTest::newRow("sorting") << Sort << 7;
    QTest::newRow("rows come") << InsertRows << 2;
    QTest::newRow("rows go") << RemoveRows << 0;
    QTest::newRow("a row moves") << MoveRow << 0;
    QTest::newRow("a column comes") << InsertColumn << 1;
    QTest::newRow("a column goes") << RemoveColumn << 1;
    QTest::newRow("rows turn around") << TurnAround << 8;
    QTest::newRow("headers change") << AnnounceHeader << 1;
    QTest::newRow("rows go through the proxy") << RemoveThroughProxy << 0;
    QTest::newRow("rows come through the proxy") << InsertThroughProxy << 2;
    QTest::newRow("other rows between") << ChangeStep << -1;
}

void tst_LogObservationSortFilterProxyModelSteps::handsOver()
{
    QFETCH(Change, change);
    QFETCH(int, heldRow);
    ChangingTable source;
    Proxy proxy;
    ModelTester tester(&proxy);
    proxy.setSourceModel(&source);
    source.reset(10);
    QItemSelectionModel selection(&proxy);
    selection.select(proxy.index(1, 1), QItemSelectionModel::Select);
    const QPersistentModelIndex held(proxy.index(1, 1));
    const QString text = held.data().toString();
    QVERIFY(mapsBySteps(proxy));

    apply(change, &source, &proxy);
    QVERIFY(!mapsBySteps(proxy));
    QCOMPARE(held.row(), heldRow);
    QCOMPARE(selection.isSelected(held), heldRow >= 0);
    if (heldRow >= 0)
        QCOMPARE(proxy.index(heldRow, 1).data().toString(), text);
}

/** The base class has to know the rows there were, also when nobody holds an index of them. */
void tst_LogObservationSortFilterProxyModelSteps::handsOverUnasked()
{
    ChangingTable source;
    Proxy proxy;
    proxy.setSourceModel(&source);
    source.reset(4);
    MoveRecorder recorder(&proxy);
    QSignalSpy layout(&proxy, SIGNAL(layoutChanged()));
    proxy.setFrequency(2);
    QCOMPARE(recorder.taken(), QString::fromLatin1("-3-3=3 -1-1=2"));
    source.reset(4);
    recorder.taken();
    source.insertRows(4, 2);
    QCOMPARE(recorder.taken(), QString::fromLatin1("+2-2=3"));
    QCOMPARE(layout.count(), 0);
}

/** That there is a list is no reason to let all rows go and come. */
void tst_LogObservationSortFilterProxyModelSteps::handsOverAListOfManyRows()
{
    ChangingTable source;
    Proxy proxy;
    proxy.setSourceModel(&source);
    proxy.setSortFilterType(Proxy::All);
    source.reset(20000);
    setPatterns(&proxy);
    QVERIFY(mapsBySteps(proxy));
    MoveRecorder recorder(&proxy);
    proxy.setRangeSize(15000);
    proxy.setSortFilterType(Proxy::Tail);
    QCOMPARE(recorder.taken(), QString::fromLatin1("-0-4999=15000"));
    QVERIFY(!mapsBySteps(proxy));
}

/** Answers the first removal of rows with a change of its own. */
class ChangingHandler : public QObject
{
    Q_OBJECT

public:
    ChangingHandler(Change change, ChangingTable *source, Proxy *proxy)
        : m_change(change)
        , m_source(source)
        , m_proxy(proxy)
    {
        connect(proxy, SIGNAL(rowsRemoved(QModelIndex,int,int)), this, SLOT(change()));
    }

    QVector<int> rowsSeen;

private slots:
    void change()
    {
        disconnect(m_proxy, nullptr, this, nullptr);
        rowsSeen = mappedRows(*m_proxy);
        apply(m_change, m_source, m_proxy);
    }

private:
    Change m_change;
    ChangingTable *m_source;
    Proxy *m_proxy;
};

void tst_LogObservationSortFilterProxyModelSteps::followsHandlers_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<QVector<int>>("rows");
    QTest::newRow("sorting") << Sort << numbers("7 8 9");
    QTest::newRow("rows come") << InsertRows << numbers("8 9 10");
    QTest::newRow("rows go") << RemoveRows << numbers("6 7 8");
    QTest::newRow("rows turn around") << TurnAround << numbers("7 8 9");
    QTest::newRow("another step") << ChangeStep << numbers("7 9");
    QTest::newRow("a pattern") << SetPattern << numbers("7 8 9");
    QTest::newRow("another range") << SetRange << numbers("7 8 9");
    QTest::newRow("a reset") << Reset << numbers("1 2 3");
    QTest::newRow("no source") << SetSource << QVector<int>();
}

void tst_LogObservationSortFilterProxyModelSteps::followsHandlers()
{
    QFETCH(Change, change);
    QFETCH(QVector<int>, rows);
    ChangingTable source;
    Proxy proxy;
    proxy.setSourceModel(&source);
    configure(&proxy, Proxy::Head, 3, 1);
    source.reset(10);
    ModelTester tester(&proxy);
    ChangingHandler handler(change, &source, &proxy);
    proxy.setSortFilterType(Proxy::Tail);
    QVERIFY(handler.rowsSeen.isEmpty());
    QCOMPARE(mappedRows(proxy), rows);
    QCOMPARE(proxy.sourceRows().toVector(), rows);
    MoveRecorder recorder(&proxy);
    setPatterns(&proxy);
    QCOMPARE(recorder.taken(), QString());
    proxy.setSortFilterType(Proxy::Head);
    proxy.setRangeSize(1);
    QCOMPARE(mappedRows(proxy), rows.isEmpty() ? rows : numbers("0"));
}

void tst_LogObservationSortFilterProxyModelSteps::outlivesItsSource()
{
    Proxy proxy;
    {
        ChangingTable source;
        proxy.setSourceModel(&source);
        source.reset(10);
        QCOMPARE(proxy.rowCount(), 10);
    }
    QCOMPARE(proxy.rowCount(), 0);
    QCOMPARE(proxy.columnCount(), 0);
    QVERIFY(!proxy.index(0, 0).isValid());
    proxy.setRangeSize(3);
    QCOMPARE(proxy.sourceRows().count(), 0);
}

void tst_LogObservationSortFilterProxyModelSteps::asksForNoCellsBeyond()
{
    ChangingTable source;
    Proxy proxy;
    proxy.setSourceModel(&source);
    configure(&proxy, Proxy::Head, 5, 2);
    source.reset(10);
    QVERIFY(!proxy.index(3, 0).isValid());
    QVERIFY(!proxy.index(0, 3).isValid());
    QVERIFY(!proxy.index(-1, 0).isValid());
    QVERIFY(!proxy.index(0, 0, proxy.index(0, 0)).isValid());
    QVERIFY(!proxy.index(0, 0).sibling(3, 0).isValid());
    QVERIFY(!proxy.mapFromSource(source.index(3, 0)).isValid());
    QVERIFY(!proxy.mapFromSource(source.index(6, 0)).isValid());
    QVERIFY(!proxy.mapFromSource(QModelIndex()).isValid());
    QVERIFY(!proxy.mapToSource(QModelIndex()).isValid());
    QCOMPARE(proxy.mapFromSource(source.index(4, 2)).row(), 2);
}

QTEST_GUILESS_MAIN(tst_LogObservationSortFilterProxyModelSteps)
#include "tst_LogObservationSortFilterProxyModelSteps.moc"

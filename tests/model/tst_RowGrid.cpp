#include "model/RowGrid.h"

#include "RaggedRows.h"
#include "model/NumberText.h"
#include "model/StringListGrid.h"
#include "support/TestCompat.h"

#include <cmath>

namespace
{

enum { MostCells = 6, Columns = 9 }; // some columns are beyond every row

bool alike(double a, double b)
{
    return a == b || (std::isnan(a) && std::isnan(b));
}

QVector<int> gapsIn(const QStringList &texts)
{
    QVector<int> gaps;
    for (int row = 0; row < texts.size(); ++row) {
        if (texts.at(row) == QLatin1String("---"))
            gaps.append(row);
    }
    return gaps;
}

void compareNumbers(const NumberColumn &column, const QStringList &texts)
{
    QCOMPARE(column.values.size(), texts.size());
    for (int row = 0; row < texts.size(); ++row)
        QVERIFY2(alike(column.values.at(row), texts.at(row).toDouble()), qPrintable(texts.at(row)));
    QCOMPARE(column.gaps, gapsIn(texts));
}

void compareTimes(const TimeColumn &column, const QStringList &texts)
{
    QCOMPARE(column.seconds.size(), texts.size());
    for (int row = 0; row < texts.size(); ++row)
        QCOMPARE(column.seconds.at(row), NumberText::secondsOfDay(texts.at(row)));
    QCOMPARE(column.gaps, gapsIn(texts));
}

void compareWithLists(const CellGrid &grid, const QList<QStringList> &columns)
{
    QCOMPARE(grid.columnCount(), columns.size());
    QCOMPARE(grid.toLists(), columns);
    for (int column = 0; column < columns.size(); ++column) {
        const QStringList &texts = columns.at(column);
        QCOMPARE(grid.cellCount(column), texts.size());
        QCOMPARE(grid.columnTexts(column), texts);
        for (int row = 0; row < texts.size(); ++row)
            QCOMPARE(grid.text(column, row), texts.at(row));
        compareNumbers(grid.numbers(column), texts);
        compareTimes(grid.times(column), texts);
    }
}

void answersNothingOutside(const CellGrid &grid)
{
    const int outside[] = {-1, grid.columnCount(), grid.columnCount() + 1000};
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(grid.cellCount(outside[i]), 0);
        QVERIFY(grid.text(outside[i], 0).isNull());
        QCOMPARE(grid.columnTexts(outside[i]), QStringList());
        QVERIFY(grid.numbers(outside[i]).values.isEmpty());
        QVERIFY(grid.numbers(outside[i]).gaps.isEmpty());
        QVERIFY(grid.times(outside[i]).seconds.isEmpty());
        QVERIFY(grid.times(outside[i]).gaps.isEmpty());
    }
    for (int column = 0; column < grid.columnCount(); ++column) {
        QVERIFY(grid.text(column, -1).isNull());
        QVERIFY(grid.text(column, grid.cellCount(column)).isNull());
    }
}

QStringList cells(const char *latin1)
{
    return QString::fromLatin1(latin1).split(QLatin1Char('|'));
}

} // namespace

class tst_RowGrid : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isEmptyWithoutRows();
    void agreesWithLists_data();
    void agreesWithLists();
    void takesQuotesOffTimes();
    void readsNumbers();
    void readsTimes();
    void tellsGaps();
    void keepsWhatItHasRead();
    void staysAsItWas();
    void keepsItsStore();
    void listGridStaysAsItWas();
};

void tst_RowGrid::isEmptyWithoutRows()
{
    const QSharedPointer<RowStore> store(new RowStore('\t'));
    const RowGrid none(store, 0);
    QCOMPARE(none.columnCount(), 0);
    answersNothingOutside(none);
    const RowGrid headers(store, 3);
    compareWithLists(headers,
                     QList<QStringList>() << QStringList() << QStringList() << QStringList());
    answersNothingOutside(headers);
    answersNothingOutside(StringListGrid(QList<QStringList>()));
}

void tst_RowGrid::agreesWithLists_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("least");

    QTest::newRow("one row") << 1 << 1;
    QTest::newRow("even") << 300 << int(MostCells);
    QTest::newRow("ragged") << 200 << 1;
    QTest::newRow("ragged over pages") << 1000 << 1;
    QTest::newRow("always a time") << 600 << 2;
}

void tst_RowGrid::agreesWithLists()
{
    QFETCH(int, rows);
    QFETCH(int, least);

    RaggedRows plain(7u + uint(rows));
    const QSharedPointer<RowStore> store(new RowStore('\t'));
    for (int i = 0; i < rows; ++i)
        plain.append(*store, least, MostCells);
    const QList<QStringList> columns = plain.columns(Columns);

    const RowGrid rowGrid(store, Columns);
    compareWithLists(rowGrid, columns);
    answersNothingOutside(rowGrid);
    const StringListGrid listGrid(columns);
    compareWithLists(listGrid, columns);
    answersNothingOutside(listGrid);
}

void tst_RowGrid::takesQuotesOffTimes()
{
    RaggedRows plain(0);
    const QSharedPointer<RowStore> store(new RowStore('\t'));
    plain.append(*store, cells("\"1\"|\"10:00:00\"|\"3\""));
    plain.append(*store, cells("2|1\"0:00\":30|4"));
    const RowGrid grid(store, 3);
    QCOMPARE(grid.columnTexts(0), cells("\"1\"|2"));
    QCOMPARE(grid.columnTexts(1), cells("10:00:00|10:00:30"));
    QCOMPARE(grid.text(1, 0), QString::fromLatin1("10:00:00"));
    QCOMPARE(grid.columnTexts(2), cells("\"3\"|4"));
    QCOMPARE(grid.times(1).seconds, QVector<int>() << 36000 << 36030);
    QCOMPARE(grid.numbers(0).values, QVector<double>() << 0 << 2);
    QCOMPARE(store->rowTexts(0), cells("\"1\"|\"10:00:00\"|\"3\""));
}

void tst_RowGrid::readsNumbers()
{
    RaggedRows plain(0);
    const QSharedPointer<RowStore> store(new RowStore(';'));
    plain.append(*store, cells("1.5|\"7\""));
    plain.append(*store, cells("|x"));
    plain.append(*store, cells("Remarks"));
    plain.append(*store, cells("-2e3|8"));
    const RowGrid grid(store, 2);
    QCOMPARE(grid.numbers(0).values, QVector<double>() << 1.5 << 0 << 0 << -2000);
    QVERIFY(grid.numbers(0).gaps.isEmpty());
    QCOMPARE(grid.numbers(1).values, QVector<double>() << 7 << 0 << 8);
    QVERIFY(grid.numbers(1).gaps.isEmpty());
}

void tst_RowGrid::readsTimes()
{
    RaggedRows plain(0);
    const QSharedPointer<RowStore> store(new RowStore('\t'));
    plain.append(*store, cells("00:00:01|\"00:00:02\"|\"00:00:03\""));
    plain.append(*store, cells("5|23:59:59|24:00:00"));
    plain.append(*store, cells("|soon|"));
    const RowGrid grid(store, 3);
    QCOMPARE(grid.times(0).seconds, QVector<int>() << 1 << -1 << -1);
    QCOMPARE(grid.times(1).seconds, QVector<int>() << 2 << 86399 << -1);
    QCOMPARE(grid.times(2).seconds, QVector<int>() << -1 << -1 << -1);
}

void tst_RowGrid::tellsGaps()
{
    RaggedRows plain(0);
    const QSharedPointer<RowStore> store(new RowStore('\t'));
    plain.append(*store, cells("---|\"---\"|\"---\""));
    plain.append(*store, cells("1|-\"-\"-|----"));
    plain.append(*store, cells("----|1"));
    plain.append(*store, cells("--| ---|---"));
    const RowGrid grid(store, 3);
    QCOMPARE(grid.numbers(0).gaps, QVector<int>() << 0);
    QCOMPARE(grid.times(0).gaps, QVector<int>() << 0);
    QCOMPARE(grid.numbers(1).gaps, QVector<int>() << 0 << 1);
    QCOMPARE(grid.times(1).gaps, QVector<int>() << 0 << 1);
    QCOMPARE(grid.numbers(2).gaps, QVector<int>() << 2);
    QCOMPARE(grid.times(2).gaps, QVector<int>() << 2);
}

void tst_RowGrid::keepsWhatItHasRead()
{
    RaggedRows plain(29);
    const QSharedPointer<RowStore> store(new RowStore('\t'));
    for (int i = 0; i < 50; ++i)
        plain.append(*store, 40, 40);
    const RowGrid grid(store, 40);
    const NumberColumn &numbers = grid.numbers(0);
    const TimeColumn &times = grid.times(0);
    const double *const values = numbers.values.constData();
    for (int column = 1; column < 40; ++column) {
        grid.numbers(column);
        grid.times(column);
    }
    QCOMPARE(&grid.numbers(0), &numbers);
    QCOMPARE(numbers.values.constData(), values);
    QCOMPARE(&grid.times(0), &times);
    compareNumbers(numbers, plain.column(0, false));
    compareTimes(times, plain.column(0, false));
}

void tst_RowGrid::staysAsItWas()
{
    RaggedRows plain(31);
    const QSharedPointer<RowStore> store(new RowStore('\t'));
    for (int i = 0; i < 300; ++i)
        plain.append(*store, 1, MostCells);
    const QList<QStringList> before = plain.columns(Columns);
    const RowGrid unread(store, Columns);
    const RowGrid read(store, Columns);
    compareWithLists(read, before);
    for (int i = 0; i < 700; ++i)
        plain.append(*store, 1, Columns);
    compareWithLists(unread, before);
    compareWithLists(read, before);
    answersNothingOutside(unread);
    compareWithLists(RowGrid(store, Columns), plain.columns(Columns));
}

void tst_RowGrid::keepsItsStore()
{
    RaggedRows plain(37);
    QSharedPointer<RowStore> store(new RowStore('\t'));
    for (int i = 0; i < 20; ++i)
        plain.append(*store, 1, MostCells);
    const RowGrid grid(store, MostCells);
    store.clear();
    compareWithLists(grid, plain.columns(MostCells));
}

void tst_RowGrid::listGridStaysAsItWas()
{
    QList<QStringList> columns = QList<QStringList>() << cells("1|2") << cells("a");
    const QList<QStringList> before = columns;
    const StringListGrid grid(columns);
    columns[0].append(QLatin1String("3"));
    columns.append(QStringList());
    compareWithLists(grid, before);
}

QTEST_GUILESS_MAIN(tst_RowGrid)
#include "tst_RowGrid.moc"

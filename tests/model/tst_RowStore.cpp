#include "model/RowStore.h"

#include "RaggedRows.h"
#include "support/TestCompat.h"

namespace
{

struct Collector {
    QList<QStringList> texts;
    void operator()(int i, const CellText &cell) { texts[i].append(cell.toString()); }
};

QList<QStringList> visited(const RowStore &store, const QVector<int> &columns, int rows)
{
    Collector collector;
    for (int i = 0; i < columns.size(); ++i)
        collector.texts.append(QStringList());
    store.visitColumns(columns, rows, collector);
    return collector.texts;
}

QStringList visited(const RowStore &store, int column, int rows)
{
    return visited(store, QVector<int>() << column, rows).first();
}

QStringList cells(const char *latin1)
{
    return QString::fromLatin1(latin1).split(QLatin1Char('|'));
}

void compareRows(const RowStore &store, const RaggedRows &plain)
{
    QCOMPARE(store.rowCount(), plain.rows.size());
    for (int row = 0; row < plain.rows.size(); ++row) {
        const QStringList &expected = plain.rows.at(row);
        QCOMPARE(store.rowTexts(row), expected);
        QCOMPARE(store.row(row).toString(), expected.join(QString(QLatin1Char(store.separator()))));
        for (int cell = 0; cell < expected.size(); ++cell)
            QCOMPARE(store.cell(row, cell).toString(), expected.at(cell));
        QCOMPARE(store.cell(row, expected.size()).size, 0);
        QCOMPARE(store.cell(row, -1).size, 0);
    }
}

void compareColumns(const RowStore &store, const RaggedRows &plain, int columns)
{
    for (int column = 0; column < columns; ++column) {
        const QStringList expected = plain.column(column, false);
        const int length = expected.size();
        QCOMPARE(store.columnLength(column), length);
        QCOMPARE(store.columnLengths(column + 3).at(column), length);
        QCOMPARE(visited(store, column, store.rowCount()), expected);
        QCOMPARE(visited(store, column, store.rowCount() + 10), expected);
        const int half = store.rowCount() / 2;
        QCOMPARE(visited(store, column, half), plain.columnOfFirst(half, column));
        for (int position = 0; position < length; ++position) {
            const int row = store.rowOfCell(column, position);
            QVERIFY(store.rowTexts(row).size() > column);
            QCOMPARE(store.cell(row, column).toString(), expected.at(position));
        }
    }
}

/** Every so-manyth column at once. */
void compareColumnsTogether(const RowStore &store, const RaggedRows &plain, int columns, int step)
{
    QVector<int> chosen;
    QList<QStringList> expected;
    for (int column = step - 1; column < columns; column += step) {
        chosen.append(column);
        expected.append(plain.column(column, false));
    }
    QCOMPARE(visited(store, chosen, store.rowCount()), expected);
}

} // namespace

class tst_RowStore : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsEmpty();
    void storesARow();
    void storesAnEmptyRow();
    void splitsByItsSeparator();
    void tellsPositionsFromRows();
    void answersLikeLists_data();
    void answersLikeLists();
    void findsTheRowOfACell();
    void answersWhileGrowing();
    void readsInAnyOrder();
    void copesWithPagesThatMissAColumn();
    void copesWithAVeryLongRow();
    void copesWithManyColumns();
    void readsInvalidTextAlike_data();
    void readsInvalidTextAlike();
    void keepsByteOrderMarks();
    void staysSmall();
};

void tst_RowStore::startsEmpty()
{
    const RowStore store('\t');
    QCOMPARE(store.separator(), '\t');
    QCOMPARE(store.rowCount(), 0);
    QCOMPARE(store.columnLength(0), 0);
    QCOMPARE(store.columnLength(7), 0);
    QCOMPARE(visited(store, 0, 5), QStringList());
    QCOMPARE(store.bytes(), qint64(0));
}

void tst_RowStore::storesARow()
{
    RowStore store(',');
    store.append("1,,abc", 6, 3);
    QCOMPARE(store.rowCount(), 1);
    QCOMPARE(store.columnLength(2), 1);
    QCOMPARE(store.columnLength(3), 0);
    QCOMPARE(store.rowTexts(0), cells("1||abc"));
    QCOMPARE(store.cell(0, 0).toString(), QString::fromLatin1("1"));
    QCOMPARE(store.cell(0, 1).toString(), QString());
    QCOMPARE(store.cell(0, 2).toString(), QString::fromLatin1("abc"));
    QCOMPARE(store.cell(0, 3).toString(), QString());
}

void tst_RowStore::storesAnEmptyRow()
{
    RowStore store(',');
    store.append("", 0, 1);
    store.append(",", 1, 2);
    QCOMPARE(store.rowCount(), 2);
    QCOMPARE(store.rowTexts(0), QStringList() << QString());
    QCOMPARE(store.rowTexts(1), QStringList() << QString() << QString());
    QCOMPARE(store.columnLength(0), 2);
    QCOMPARE(store.columnLength(1), 1);
    QCOMPARE(store.rowOfCell(1, 0), 1);
}

void tst_RowStore::splitsByItsSeparator()
{
    RowStore store('\t');
    store.append("1,5\t\"a\tb\"", 9, 3);
    QCOMPARE(store.rowTexts(0), cells("1,5|\"a|b\""));
}

void tst_RowStore::tellsPositionsFromRows()
{
    RaggedRows plain(0);
    RowStore store('\t');
    plain.append(store, cells("a0|a1|a2"));
    plain.append(store, cells("b0|b1"));
    plain.append(store, cells("c0|c1|c2|c3"));
    QCOMPARE(store.columnLength(1), 3);
    QCOMPARE(store.columnLength(2), 2);
    QCOMPARE(store.columnLength(3), 1);
    QCOMPARE(store.columnLength(4), 0);
    QCOMPARE(store.rowOfCell(2, 0), 0);
    QCOMPARE(store.rowOfCell(2, 1), 2);
    QCOMPARE(store.rowOfCell(3, 0), 2);
    compareRows(store, plain);
    compareColumns(store, plain, 5);
}

void tst_RowStore::answersLikeLists_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("least");
    QTest::addColumn<int>("most");

    QTest::newRow("one row") << 1 << 5 << 5;
    QTest::newRow("one cell a row") << 600 << 1 << 1;
    QTest::newRow("a full page") << 256 << 3 << 3;
    QTest::newRow("a row more than a page") << 257 << 3 << 3;
    QTest::newRow("even rows over pages") << 1100 << 4 << 4;
    QTest::newRow("ragged, one page") << 200 << 1 << 9;
    QTest::newRow("ragged over pages") << 1500 << 1 << 9;
    QTest::newRow("mostly long") << 1500 << 7 << 9;
}

void tst_RowStore::answersLikeLists()
{
    QFETCH(int, rows);
    QFETCH(int, least);
    QFETCH(int, most);

    RaggedRows plain(uint(rows + most));
    RowStore store('\t');
    for (int i = 0; i < rows; ++i)
        plain.append(store, least, most);
    compareRows(store, plain);
    compareColumns(store, plain, most + 2);
    compareColumnsTogether(store, plain, most + 2, 1);
    compareColumnsTogether(store, plain, most + 2, 2);
    compareColumnsTogether(store, plain, most + 2, 5);
}

void tst_RowStore::findsTheRowOfACell()
{
    RaggedRows plain(7);
    RowStore store(',');
    for (int i = 0; i < 700; ++i)
        plain.append(store, 1, 6);
    for (int column = 0; column < 6; ++column) {
        for (int position = 0; position < store.columnLength(column); ++position)
            QCOMPARE(store.rowOfCell(column, position), plain.rowOfCell(column, position));
    }
}

void tst_RowStore::answersWhileGrowing()
{
    RaggedRows plain(11);
    RowStore store('\t');
    for (int step = 0; step < 14; ++step) {
        // From even rows to ragged ones, over page ends, with everything read between.
        const int least = step < 4 ? 3 : 1;
        const int most = step < 4 ? 3 : 3 + step;
        for (int i = 0; i < 90; ++i)
            plain.append(store, least, most);
        compareRows(store, plain);
        compareColumns(store, plain, most + 2);
    }
}

void tst_RowStore::readsInAnyOrder()
{
    RaggedRows plain(13);
    RowStore store('\t');
    for (int i = 0; i < 2000; ++i)
        plain.append(store, 1, 5);
    for (int i = 0; i < 5000; ++i) {
        const int row = plain.below(2000);
        QCOMPARE(store.rowTexts(row), plain.rows.at(row));
    }
    for (int row = store.rowCount() - 1; row >= 0; --row)
        QCOMPARE(store.cell(row, 0).toString(), plain.rows.at(row).at(0));
}

void tst_RowStore::copesWithPagesThatMissAColumn()
{
    RaggedRows plain(17);
    RowStore store('\t');
    plain.append(store, cells("a|b|first"));
    for (int i = 0; i < 1000; ++i)
        plain.append(store, 1, 2);
    plain.append(store, cells("a|b|second"));
    for (int i = 0; i < 600; ++i)
        plain.append(store, 1, 2);
    QCOMPARE(store.columnLength(2), 2);
    QCOMPARE(store.rowOfCell(2, 0), 0);
    QCOMPARE(store.rowOfCell(2, 1), 1001);
    QCOMPARE(visited(store, 2, store.rowCount()), cells("first|second"));
}

void tst_RowStore::copesWithAVeryLongRow()
{
    RaggedRows plain(19);
    RowStore store('\t');
    const QString huge(17 * 1024 * 1024, QLatin1Char('x'));
    plain.append(store, cells("a|b"));
    plain.append(store, QStringList() << huge << QLatin1String("behind") << huge);
    plain.append(store, cells("c|d"));
    plain.append(store, cells("e"));
    compareRows(store, plain);
    compareColumns(store, plain, 4);
}

void tst_RowStore::copesWithManyColumns()
{
    RaggedRows plain(23);
    RowStore store(',');
    plain.append(store, 10000, 10000);
    plain.append(store, 3, 3);
    plain.append(store, 10000, 10000);
    QCOMPARE(store.columnLength(10000), 0);
    QCOMPARE(store.rowTexts(2), plain.rows.at(2));
    QCOMPARE(store.columnLength(9999), 2);
    QCOMPARE(store.rowOfCell(9999, 1), 2);
    QCOMPARE(visited(store, 9999, store.rowCount()), plain.column(9999, false));
}

void tst_RowStore::readsInvalidTextAlike_data()
{
    QTest::addColumn<QByteArray>("text");

    QTest::newRow("lone continuation") << QByteArray("\x80\t\xbf\tc");
    QTest::newRow("cut short before the separator") << QByteArray("\xe2\x82\t\xf0\x9f\x98\t\xc3");
    QTest::newRow("overlong") << QByteArray("\xc0\xaf\t\xe0\x80\xaf\tc");
    QTest::newRow("surrogate") << QByteArray("\xed\xa0\x80\tb\tc");
    QTest::newRow("beyond the last character") << QByteArray("\xf4\x90\x80\x80\t\xff\xfe\tc");
    QTest::newRow("NUL") << QByteArray("a\0b\t\0\tc\0", 8);
}

void tst_RowStore::readsInvalidTextAlike()
{
    QFETCH(QByteArray, text);

    RowStore store('\t');
    store.append(text.constData(), text.size(), 3);
    const QStringList texts = store.rowTexts(0);
    QCOMPARE(texts.size(), 3);
    for (int cell = 0; cell < 3; ++cell)
        QCOMPARE(store.cell(0, cell).toString(), texts.at(cell));
    QCOMPARE(store.row(0).toString(), texts.join(QLatin1String("\t")));
}

void tst_RowStore::keepsByteOrderMarks()
{
    const QString mark = QString(QChar(QChar::ByteOrderMark));
    const QStringList row = QStringList()
        << mark + QLatin1String("1") << mark + mark << QLatin1String("a") + mark << mark;
    RaggedRows plain(0);
    RowStore store('\t');
    plain.append(store, row);
    plain.append(store, QStringList() << mark);
    compareRows(store, plain);
    compareColumns(store, plain, 5);
}

void tst_RowStore::staysSmall()
{
    RowStore store('\t');
    const QByteArray text("1234.5\t10:00:00\t0.25\t-17.5");
    const int rows = 100000;
    for (int i = 0; i < rows; ++i)
        store.append(text.constData(), text.size(), 4);
    // The text itself and a few bytes a row; a page's growth allowance is only held by the last.
    QVERIFY(store.bytes() >= qint64(rows) * text.size());
    QVERIFY(store.bytes() < qint64(rows) * (text.size() + 6));
}

QTEST_GUILESS_MAIN(tst_RowStore)
#include "tst_RowStore.moc"

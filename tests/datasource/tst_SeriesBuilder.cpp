#include "datasource/SeriesBuilder.h"
#include "filters/Criteria.h"
#include "filters/LogDataSetFilter.h"
#include "model/StringListGrid.h"
#include "support/TestCompat.h"
#include "support/TextTable.h"

class tst_SeriesBuilder : public QObject
{
    Q_OBJECT

private slots:
    void readsColumns_data();
    void readsColumns();
    void readsNothingWithoutAGrid();
    void cutsAtCriteria_data();
    void cutsAtCriteria();
    void joinsCriteria();
    void cutsWhereTheLogHoldsTheGapText_data();
    void cutsWhereTheLogHoldsTheGapText();
    void pairsWithX();
    void givesNoPiecesForXOfAnotherLength();
};

namespace
{

QString textOf(const QVector<double> &numbers)
{
    QStringList texts;
    for (int i = 0; i < numbers.size(); ++i)
        texts << QString::number(numbers.at(i));
    return texts.join(QLatin1String(" "));
}

QString textOf(const QList<CurvePiece> &pieces)
{
    QStringList texts;
    for (int i = 0; i < pieces.size(); ++i)
        texts << textOf(pieces.at(i).y);
    return texts.join(QLatin1String("|"));
}

RowChoice rowsOf(const QString &text)
{
    QVector<int> rows;
    foreach (const QString &row, text.split(QLatin1Char(' ')))
        rows << row.toInt();
    return RowChoice(text.isEmpty() ? QVector<int>() : rows);
}

CellGridPointer gridOf(const QByteArray &columns)
{
    return CellGridPointer(new StringListGrid(listsOf(columns)));
}

void add(Criteria &criteria, LogDataSetFilter::LogDataSetFilterOperator comparison, float value)
{
    LogDataSetFilter::Builder builder;
    builder.variable(QLatin1String("x")).filterOperator(comparison).value(value);
    criteria.add(new LogDataSetFilter(&builder, nullptr));
}

QVector<LogDataSetFilter *> on(const Criteria &criteria)
{
    return criteria.participating(QLatin1String("x"));
}

} // namespace

void tst_SeriesBuilder::readsColumns_data()
{
    QTest::addColumn<QByteArray>("columns");
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("rows");
    QTest::addColumn<QString>("values");
    QTest::newRow("all rows") << QByteArray("1 2 3") << 0 << "0 1 2"
                              << "1 2 3";
    QTest::newRow("some rows") << QByteArray("1 2 3") << 0 << "0 2"
                               << "1 3";
    QTest::newRow("rows in another order") << QByteArray("1 2 3") << 0 << "2 0 1"
                                           << "3 1 2";
    QTest::newRow("a row twice") << QByteArray("1 2") << 0 << "1 1"
                                 << "2 2";
    QTest::newRow("no rows") << QByteArray("1 2") << 0 << ""
                             << "";
    QTest::newRow("no numbers") << QByteArray("1 abc  ---") << 0 << "0 1 2 3"
                                << "1 0 0 0";
    QTest::newRow("rows past the end") << QByteArray("1") << 0 << "0 1 2"
                                       << "1 0 0";
    QTest::newRow("fewer rows than cells") << QByteArray("1 2 3") << 0 << "0 1"
                                           << "1 2";
    QTest::newRow("no such column") << QByteArray("1 2") << 4 << "0 1"
                                    << "0 0";
    QTest::newRow("no such column before") << QByteArray("1 2") << -1 << "0 1"
                                           << "0 0";
    QTest::newRow("times") << QByteArray("|10:00:00 10:00:30 09:59:50") << 1 << "0 1 2"
                           << "0 30 -10";
    QTest::newRow("times of some rows") << QByteArray("|10:00:00 10:00:30 09:59:50") << 1 << "1 2"
                                        << "0 -40";
    QTest::newRow("over midnight") << QByteArray("|23:59:59 00:00:01") << 1 << "0 1"
                                   << "0 -86398";
    QTest::newRow("times elsewhere are numbers")
        << QByteArray("10:00:00 5||10:00:00 7") << 2 << "0 1"
        << "0 7";
    QTest::newRow("no time first") << QByteArray("|x 10:00:00 10:00:05") << 1 << "0 1 2"
                                   << "0 0 5";
    QTest::newRow("no time later") << QByteArray("|00:00:10 x 00:00:15") << 1 << "0 1 2"
                                   << "0 -10 5";
    QTest::newRow("no time at all") << QByteArray("|x y") << 1 << "0 1 2"
                                    << "0 0 0";
    QTest::newRow("gap text as a time") << QByteArray("|00:00:10 ---") << 1 << "0 1"
                                        << "0 -10";
    QTest::newRow("times past the end") << QByteArray("|00:00:10") << 1 << "0 1"
                                        << "0 -10";
}

void tst_SeriesBuilder::readsColumns()
{
    QFETCH(QByteArray, columns);
    QFETCH(int, column);
    QFETCH(QString, rows);
    QFETCH(QString, values);
    const SeriesBuilder builder(gridOf(columns), rowsOf(rows));
    QCOMPARE(textOf(builder.values(column)), values);
}

void tst_SeriesBuilder::readsNothingWithoutAGrid()
{
    const SeriesBuilder builder(CellGridPointer(), rowsOf(QLatin1String("0 1")));
    QCOMPARE(textOf(builder.values(0)), QString::fromLatin1("0 0"));
    QCOMPARE(textOf(builder.values(1)), QString::fromLatin1("0 0"));
    Criteria criteria;
    add(criteria, LogDataSetFilter::GreaterThan, 1);
    const QVector<double> x(2);
    QVERIFY(builder.pieces(0, x, on(criteria)).isEmpty());
    const SeriesBuilder nothing((CellGridPointer()), RowChoice(QVector<int>()));
    QVERIFY(nothing.values(0).isEmpty());
    QVERIFY(nothing.pieces(1, QVector<double>(), on(criteria)).isEmpty());
}

void tst_SeriesBuilder::cutsAtCriteria_data()
{
    QTest::addColumn<QByteArray>("columns");
    QTest::addColumn<int>("column");
    QTest::addColumn<int>("comparison");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("pieces");
    const QByteArray numbers("1 2 3 4 5");
    const int above = LogDataSetFilter::GreaterThan;
    const int other = LogDataSetFilter::NotEqual;
    QTest::newRow("in the middle") << numbers << 0 << other << 3.0 << "1 2|4 5";
    QTest::newRow("at the start") << numbers << 0 << other << 1.0 << "2 3 4 5";
    QTest::newRow("at the end") << numbers << 0 << other << 5.0 << "1 2 3 4";
    QTest::newRow("nowhere") << numbers << 0 << above << 0.0 << "1 2 3 4 5";
    QTest::newRow("everywhere") << numbers << 0 << above << 9.0 << "";
    QTest::newRow("what is no number is 0") << QByteArray("1 a 3") << 0 << above << 0.5 << "1|3";
    QTest::newRow("what is missing is 0") << QByteArray("1 2") << 0 << above << 0.5 << "1 2";
    QTest::newRow("two in a row") << QByteArray("1 0 0 2") << 0 << other << 0.0 << "1|2";
    QTest::newRow("one by one") << QByteArray("1 0 2 0 3") << 0 << other << 0.0 << "1|2|3";
    // A time is tested as the number in its text, which is 0.
    QTest::newRow("times") << QByteArray("|10:00:00 7 10:00:30 7 10:00:40") << 1 << other << 7.0
                           << "0|30|40";
    QTest::newRow("the first kept time is the reference")
        << QByteArray("|7 10:00:00 10:00:30 0 0") << 1 << other << 7.0 << "0 30 -36000 -36000";
}

void tst_SeriesBuilder::cutsAtCriteria()
{
    QFETCH(QByteArray, columns);
    QFETCH(int, column);
    QFETCH(int, comparison);
    QFETCH(double, value);
    QFETCH(QString, pieces);
    Criteria criteria;
    add(criteria, LogDataSetFilter::LogDataSetFilterOperator(comparison), float(value));
    const SeriesBuilder builder(gridOf(columns), rowsOf(QLatin1String("0 1 2 3 4")));
    QCOMPARE(textOf(builder.pieces(column, QVector<double>(5), on(criteria))), pieces);
}

void tst_SeriesBuilder::joinsCriteria()
{
    Criteria criteria;
    add(criteria, LogDataSetFilter::GreaterThan, 1);
    add(criteria, LogDataSetFilter::LessThan, 4);
    const SeriesBuilder builder(gridOf("1 2 3 4 5"), rowsOf(QLatin1String("0 1 2 3 4")));
    QCOMPARE(textOf(builder.pieces(0, QVector<double>(5), on(criteria))),
             QString::fromLatin1("2 3"));
}

void tst_SeriesBuilder::cutsWhereTheLogHoldsTheGapText_data()
{
    QTest::addColumn<QByteArray>("columns");
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("rows");
    QTest::addColumn<QString>("pieces");
    QTest::newRow("numbers") << QByteArray("1 --- 3") << 0 << "0 1 2"
                             << "1|3";
    QTest::newRow("its row is left out") << QByteArray("1 --- 3") << 0 << "0 2"
                                         << "1 3";
    QTest::newRow("only") << QByteArray("--- ---") << 0 << "0 1"
                          << "";
    QTest::newRow("at both ends") << QByteArray("--- 2 ---") << 0 << "0 1 2"
                                  << "2";
    QTest::newRow("nearly") << QByteArray("1 -- ---- 3") << 0 << "0 1 2 3"
                            << "1 0 0 3";
    QTest::newRow("times") << QByteArray("|--- 00:00:10 --- 00:00:15") << 1 << "0 1 2 3"
                           << "0|5";
}

void tst_SeriesBuilder::cutsWhereTheLogHoldsTheGapText()
{
    QFETCH(QByteArray, columns);
    QFETCH(int, column);
    QFETCH(QString, rows);
    QFETCH(QString, pieces);
    const RowChoice chosen = rowsOf(rows);
    const SeriesBuilder builder(gridOf(columns), chosen);
    const QVector<double> x(chosen.count());
    QCOMPARE(textOf(builder.pieces(column, x, QVector<LogDataSetFilter *>())), pieces);
}

void tst_SeriesBuilder::pairsWithX()
{
    Criteria criteria;
    add(criteria, LogDataSetFilter::NotEqual, 3);
    const SeriesBuilder builder(gridOf("1 2 3 4"), rowsOf(QLatin1String("0 1 2 3")));
    const QVector<double> x = QVector<double>() << 10 << 20 << 30 << 40;
    const QList<CurvePiece> pieces = builder.pieces(0, x, on(criteria));
    QCOMPARE(pieces.size(), 2);
    QCOMPARE(textOf(pieces.at(0).x), QString::fromLatin1("10 20"));
    QCOMPARE(textOf(pieces.at(0).y), QString::fromLatin1("1 2"));
    QCOMPARE(textOf(pieces.at(1).x), QString::fromLatin1("40"));
    QCOMPARE(textOf(pieces.at(1).y), QString::fromLatin1("4"));
}

/** A curve must never pair values of different observations. */
void tst_SeriesBuilder::givesNoPiecesForXOfAnotherLength()
{
    const SeriesBuilder builder(gridOf("1 --- 3"), rowsOf(QLatin1String("0 1 2")));
    const QVector<LogDataSetFilter *> none;
    QVERIFY(builder.pieces(0, QVector<double>(), none).isEmpty());
    QVERIFY(builder.pieces(0, QVector<double>(2), none).isEmpty());
    QVERIFY(builder.pieces(0, QVector<double>(4), none).isEmpty());
    QCOMPARE(builder.pieces(0, QVector<double>(3), none).size(), 2);
}

QTEST_GUILESS_MAIN(tst_SeriesBuilder)
#include "tst_SeriesBuilder.moc"

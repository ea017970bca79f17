#include "datasource/SourceFixture.h"

/** The series that the data source computes from what is chosen. */
class tst_LogDataSourceSeries : public QObject
{
    Q_OBJECT

private slots:
    void usesTheFirstHorizontalVariable();
    void plotsNothingWithoutAHorizontalVariable();
    void plotsBothSides();
    void seriesGoWithTheirVariable();
    void xSeriesIsACopy();
    void xSeriesIgnoresCriteria();
    void piecesAreCutAtCriteria_data();
    void piecesAreCutAtCriteria();
    void piecesAreCutWhereTheLogHoldsTheMarker();
    void excludedRowsAreLeftOut();
    void theWindowIsFollowed();
    void timesAreSecondsSinceTheFirst_data();
    void timesAreSecondsSinceTheFirst();
    void transforms_data();
    void transforms();
    void transformsKeepTheReference();
    void piecesOfOneNameAccumulate();
    void titles_data();
    void titles();
    void recomputesOnEveryChange();
    void fewerColumnsThanTheFirstDataSet();
    void moreColumnsThanTheFirstDataSet();
    void sidesCanBeAddedOnTheirOwn();
};

namespace
{

/** Ten observations: their number, a time, and two variables. */
QByteArray tenRows()
{
    QByteArray rows;
    for (int i = 0; i < 10; ++i) {
        const QByteArray number = QByteArray::number(i);
        rows += (i > 0 ? "|" : "") + number + " 10:00:0" + number + " 1" + number + " 2" + number;
    }
    return logBlock("G G G G", "Obs Time co2 H2O", rows);
}

void select(SourceFixture &f, int axis, const char *rows)
{
    foreach (const QByteArray &row, QByteArray(rows).split(' ')) {
        if (!row.isEmpty())
            f.source->updateVariableSelection(axis, row.toInt(), true);
    }
}

/** Adds criteria such as "co2>3", which are applied by the next computation. */
void filter(SourceFixture &f, const char *criteria)
{
    foreach (const QString &criterion, text(criteria).split(QLatin1Char(' '))) {
        QRegExp parts(QLatin1String("(\\w+)([<>=!]+)(.*)"));
        if (!parts.exactMatch(criterion))
            continue;
        LogDataSetFilter::Builder builder;
        builder.variable(parts.cap(1))
            .filterOperator(LogDataSetFilter::operators.indexOf(parts.cap(2)))
            .value(parts.cap(3).toFloat());
        f.source->addFilter(new LogDataSetFilter(&builder, nullptr));
    }
}

} // namespace

void tst_LogDataSourceSeries::usesTheFirstHorizontalVariable()
{
    SourceFixture f;
    f.show(tenRows());
    select(f, 0, "3 2");
    QCOMPARE(f.source->xData().first, text("co2"));
    QCOMPARE(numberTexts(f.source->xData().second), text("10,11,12,13,14,15,16,17,18,19"));
    QCOMPARE(intTexts(f.source->graphedColumns()), text("2"));
    f.source->updateVariableSelection(0, 2, false);
    QCOMPARE(f.source->xData().first, text("H2O"));
    QCOMPARE(intTexts(f.source->graphedColumns()), text("3"));
}

void tst_LogDataSourceSeries::plotsNothingWithoutAHorizontalVariable()
{
    SourceFixture f;
    f.show(tenRows());
    select(f, 1, "2 3");
    QCOMPARE(f.recorder.take(), text("graphDataUpdated graphDataUpdated"));
    QVERIFY(f.source->YLeftData().isEmpty());
    QVERIFY(f.source->XLeftData().isEmpty());
    QVERIFY(f.source->graphedColumns().isEmpty());
    QCOMPARE(f.source->xData().first, QString());
    QVERIFY(f.source->xData().second.isEmpty());
}

void tst_LogDataSourceSeries::plotsBothSides()
{
    SourceFixture f;
    f.show(logBlock("G G G G", "Obs Time co2 H2O", "1 ~ 3 5|2 ~ 4 6"));
    select(f, 2, "3 2");
    select(f, 1, "2 0");
    select(f, 0, "0");
    QCOMPARE(seriesText(f.source->XLeftData()), text("Obs 1,2;co2 1,2"));
    QCOMPARE(seriesText(f.source->YLeftData()), text("Obs 1,2;co2 3,4"));
    QCOMPARE(seriesText(f.source->XRightData()), text("H2O 1,2;co2 1,2"));
    QCOMPARE(seriesText(f.source->YRightData()), text("H2O 5,6;co2 3,4"));
    QCOMPARE(intTexts(f.source->graphedColumns()), text("0,0,2,2,3"));
}

void tst_LogDataSourceSeries::seriesGoWithTheirVariable()
{
    SourceFixture f;
    f.show(tenRows());
    select(f, 0, "0");
    select(f, 1, "2 3");
    f.source->updateVariableSelection(1, 2, false);
    QCOMPARE(f.source->YLeftData().keys(), QList<QString>() << text("H2O"));
    f.source->updateVariableSelection(0, 0, false);
    QVERIFY(f.source->YLeftData().isEmpty());
    QVERIFY(f.source->xData().second.isEmpty());
    QVERIFY(f.source->graphedColumns().isEmpty());
}

void tst_LogDataSourceSeries::xSeriesIsACopy()
{
    SourceFixture f;
    f.show(tenRows());
    select(f, 0, "0");
    f.source->xData().second.clear();
    f.source->graphedColumns().clear();
    QCOMPARE(f.source->xData().second.size(), 10);
    QCOMPARE(f.source->graphedColumns().size(), 1);
}

void tst_LogDataSourceSeries::xSeriesIgnoresCriteria()
{
    SourceFixture f;
    f.show(tenRows());
    filter(f, "Obs>4");
    select(f, 0, "0");
    select(f, 1, "0");
    QCOMPARE(numberTexts(f.source->xData().second), text("0,1,2,3,4,5,6,7,8,9"));
    QCOMPARE(seriesText(f.source->XLeftData()), text("Obs 5,6,7,8,9"));
}

void tst_LogDataSourceSeries::piecesAreCutAtCriteria_data()
{
    QTest::addColumn<QByteArray>("criteria");
    QTest::addColumn<QString>("x");
    QTest::addColumn<QString>("y");
    QTest::newRow("none") << QByteArray() << "co2 0,1,2,3,4,5,6,7,8,9"
                          << "co2 10,11,12,13,14,15,16,17,18,19";
    QTest::newRow("in the middle") << QByteArray("co2!=14 co2!=15") << "co2 0,1,2,3|6,7,8,9"
                                   << "co2 10,11,12,13|16,17,18,19";
    QTest::newRow("the first") << QByteArray("co2!=10") << "co2 1,2,3,4,5,6,7,8,9"
                               << "co2 11,12,13,14,15,16,17,18,19";
    QTest::newRow("the last") << QByteArray("co2!=19") << "co2 0,1,2,3,4,5,6,7,8"
                              << "co2 10,11,12,13,14,15,16,17,18";
    QTest::newRow("everything") << QByteArray("co2>99") << ""
                                << "";
    QTest::newRow("an interval") << QByteArray("CO2>12 co2<16") << "co2 3,4,5"
                                 << "co2 13,14,15";
    QTest::newRow("another variable") << QByteArray("H2O>99") << "co2 0,1,2,3,4,5,6,7,8,9"
                                      << "co2 10,11,12,13,14,15,16,17,18,19";
}

void tst_LogDataSourceSeries::piecesAreCutAtCriteria()
{
    QFETCH(QByteArray, criteria);
    QFETCH(QString, x);
    QFETCH(QString, y);
    SourceFixture f;
    f.show(tenRows());
    filter(f, criteria);
    select(f, 0, "0");
    select(f, 1, "2");
    select(f, 2, "2");
    QCOMPARE(seriesText(f.source->XLeftData()), x);
    QCOMPARE(seriesText(f.source->YLeftData()), y);
    QCOMPARE(seriesText(f.source->XRightData()), x);
    QCOMPARE(seriesText(f.source->YRightData()), y);
    QCOMPARE(intTexts(f.source->graphedColumns()), text("0,2,2"));
}

void tst_LogDataSourceSeries::piecesAreCutWhereTheLogHoldsTheMarker()
{
    SourceFixture f;
    f.show(logBlock("G G G", "Obs Time v", "1 ~ 5|2 \"---\" ---|--- ~ 7"));
    select(f, 0, "0");
    select(f, 1, "1 2");
    QCOMPARE(numberTexts(f.source->xData().second), text("1,2,0"));
    QCOMPARE(seriesText(f.source->XLeftData()), text("Time 1|0;v 1|0"));
    QCOMPARE(seriesText(f.source->YLeftData()), text("Time 0|0;v 5|7"));
}

void tst_LogDataSourceSeries::excludedRowsAreLeftOut()
{
    SourceFixture f;
    f.show(tenRows());
    filter(f, "co2!=12");
    select(f, 0, "0");
    select(f, 1, "2");
    f.exclude(0);
    f.exclude(4);
    f.exclude(5);
    QCOMPARE(numberTexts(f.source->xData().second), text("1,2,3,6,7,8,9"));
    QCOMPARE(seriesText(f.source->XLeftData()), text("co2 1|3,6,7,8,9"));
    QCOMPARE(seriesText(f.source->YLeftData()), text("co2 11|13,16,17,18,19"));
    f.exclude(2);
    QCOMPARE(seriesText(f.source->XLeftData()), text("co2 1,3,6,7,8,9"));
}

void tst_LogDataSourceSeries::theWindowIsFollowed()
{
    SourceFixture f;
    f.show(tenRows());
    select(f, 0, "0");
    select(f, 1, "2");
    f.source->setObservationFrequency(4);
    QCOMPARE(seriesText(f.source->YLeftData()), text("co2 10,14,18"));
    f.exclude(4);
    f.exclude(5);
    QCOMPARE(seriesText(f.source->YLeftData()), text("co2 10,18"));
    f.source->setObservationRange(3);
    f.source->setObservationFilterType(LogObservationSortFilterProxyModel::Tail);
    QCOMPARE(seriesText(f.source->XLeftData()), text("co2 7"));
    f.source->observationFilteredTableModel()->sort(1, Qt::DescendingOrder);
    f.source->setObservationFrequency(1);
    QCOMPARE(seriesText(f.source->XLeftData()), text("co2 9,8,7"));
}

void tst_LogDataSourceSeries::timesAreSecondsSinceTheFirst_data()
{
    QTest::addColumn<QByteArray>("times");
    QTest::addColumn<QByteArray>("criteria");
    QTest::addColumn<QString>("y");
    QTest::newRow("before and after")
        << QByteArray("10:00:00 10:00:30 09:59:50") << QByteArray() << "Time 0,30,-10";
    QTest::newRow("over midnight")
        << QByteArray("23:59:59 00:00:01") << QByteArray() << "Time 0,-86398";
    QTest::newRow("in quotes") << QByteArray("\"10:00:00\" 10:00:\"05\"") << QByteArray()
                               << "Time 0,5";
    QTest::newRow("no time") << QByteArray("10:00:00 noon 10:00:05") << QByteArray()
                             << "Time 0,-36000,5";
    QTest::newRow("no time first")
        << QByteArray("noon 25:00:00 10:00:05 10:00:06") << QByteArray() << "Time 0,0,0,1";
    QTest::newRow("the first unfiltered one")
        << QByteArray("7 10:00:00 10:00:05") << QByteArray("Time!=7") << "Time 0,5";
    QTest::newRow("midnight") << QByteArray("00:00:00 00:00:05") << QByteArray() << "Time 0,5";
}

void tst_LogDataSourceSeries::timesAreSecondsSinceTheFirst()
{
    QFETCH(QByteArray, times);
    QFETCH(QByteArray, criteria);
    QFETCH(QString, y);
    SourceFixture f;
    QByteArray rows;
    foreach (const QByteArray &time, times.split(' '))
        rows += (rows.isEmpty() ? "1 " : "|1 ") + time + " 1";
    f.show(logBlock("G G G", "Obs Time v", rows));
    filter(f, criteria);
    select(f, 0, "1");
    select(f, 1, "1");
    QCOMPARE(seriesText(f.source->YLeftData()), y);
    if (criteria.isEmpty())
        QCOMPARE(text("Time ") + numberTexts(f.source->xData().second), y);
}

void tst_LogDataSourceSeries::transforms_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("cell");
    QTest::addColumn<QTime>("reference");
    QTest::addColumn<double>("value");
    QTest::newRow("a number") << 0 << "1.5e3" << QTime() << 1500.0;
    QTest::newRow("no number") << 2 << "abc" << QTime() << 0.0;
    QTest::newRow("no text") << 2 << "" << QTime() << 0.0;
    QTest::newRow("a time elsewhere") << 2 << "10:00:00" << QTime(9, 0, 0) << 0.0;
    QTest::newRow("the first time") << 1 << "10:00:00" << QTime() << 0.0;
    QTest::newRow("a later time") << 1 << "10:00:00" << QTime(9, 59, 0) << 60.0;
    QTest::newRow("an earlier time") << 1 << "10:00:00" << QTime(10, 0, 1) << -1.0;
    QTest::newRow("no time") << 1 << "noon" << QTime(0, 1, 0) << -60.0;
    QTest::newRow("no time at all") << 1 << "noon" << QTime() << 0.0;
    QTest::newRow("a number as a time") << 1 << "12" << QTime() << 0.0;
}

void tst_LogDataSourceSeries::transforms()
{
    QFETCH(int, column);
    QFETCH(QString, cell);
    QFETCH(QTime, reference);
    QFETCH(double, value);
    const SourceFixture f;
    QCOMPARE(f.source->transformValue(column, cell, reference), value);
}

void tst_LogDataSourceSeries::transformsKeepTheReference()
{
    const SourceFixture f;
    QTime reference;
    f.source->transformValue(1, text("noon"), reference);
    QVERIFY(!reference.isValid());
    f.source->transformValue(0, text("10:00:00"), reference);
    QVERIFY(reference.isNull());
    f.source->transformValue(1, text("10:00:00"), reference);
    QCOMPARE(reference, QTime(10, 0, 0));
    f.source->transformValue(1, text("11:00:00"), reference);
    QCOMPARE(reference, QTime(10, 0, 0));
}

void tst_LogDataSourceSeries::piecesOfOneNameAccumulate()
{
    SourceFixture f;
    f.show(logBlock("G G G G", "Obs Time v v", "1 ~ 3 5|2 ~ 4 6"));
    filter(f, "v!=4");
    select(f, 0, "0");
    select(f, 1, "2 3");
    QCOMPARE(seriesText(f.source->XLeftData()), text("v 1|1,2"));
    QCOMPARE(seriesText(f.source->YLeftData()), text("v 3|5,6"));
}

void tst_LogDataSourceSeries::titles_data()
{
    QTest::addColumn<QByteArray>("names");
    QTest::addColumn<QString>("title");
    QTest::newRow("none") << QByteArray() << "";
    QTest::newRow("one") << QByteArray("co2") << "co2";
    QTest::newRow("in text order") << QByteArray("H2O CO2") << "CO2 - H2O";
    QTest::newRow("one inside another") << QByteArray("r CO2_r CO2") << "CO2 - CO2_r";
    QTest::newRow("case matters") << QByteArray("CO2 o2 co2") << "CO2 - co2";
    QTest::newRow("inside the separator") << QByteArray("b - a") << "- - a - b";
}

void tst_LogDataSourceSeries::titles()
{
    QFETCH(QByteArray, names);
    QFETCH(QString, title);
    SourceFixture f;
    const int count = names.isEmpty() ? 0 : names.count(' ') + 1;
    const QByteArray variables = "Obs Time" + (count > 0 ? ' ' + names : QByteArray());
    f.show(logBlock(variables, variables, "1 2 3 4 5"));
    select(f, 0, "0");
    for (int axis = 1; axis < 3; ++axis) {
        for (int row = 0; row < count; ++row)
            f.source->updateVariableSelection(axis, row + 2, true);
    }
    f.source->setMaxVariableAxisTitleLength(1);
    QCOMPARE(f.source->YLeftAxisTitle(), title);
    QCOMPARE(f.source->YRightAxisTitle(), title);
    QVERIFY(!f.source->YRightAxisTitle().isNull());
}

void tst_LogDataSourceSeries::recomputesOnEveryChange()
{
    SourceFixture f;
    f.show(tenRows());
    select(f, 0, "0");
    select(f, 2, "3");
    f.recorder.take();
    f.exclude(9);
    QCOMPARE(f.recorder.take(), text("graphDataUpdated hasExcludeRowsChanged"));
    f.source->setObservationRange(2);
    f.source->setHorizontalVariable(text("co2"));
    f.source->updateVariableSelection(1, 0, true);
    QCOMPARE(f.recorder.take(), text("graphDataUpdated graphDataUpdated graphDataUpdated"));
    QCOMPARE(seriesText(f.source->XLeftData()), text("Obs 10,11,12,13,14,15,16,17,18"));
    QCOMPARE(seriesText(f.source->YRightData()), text("H2O 20,21,22,23,24,25,26,27,28"));
}

/** The lists show the first data set's variables even then. */
void tst_LogDataSourceSeries::fewerColumnsThanTheFirstDataSet()
{
    SourceFixture f;
    f.show(logBlock("G G G G", "Obs Time co2 H2O", "1 ~ 2 3")
           + logBlock("A A A", "T Clock RH", "7 10:00:00 50|8 10:00:05 51"));
    f.source->selectDataSet(1);
    select(f, 0, "3");
    QCOMPARE(f.source->xData().first, QString());
    QCOMPARE(numberTexts(f.source->xData().second), text("0,0"));
    select(f, 0, "0");
    select(f, 1, "1 2 3");
    QCOMPARE(f.source->xData().first, text("T"));
    QCOMPARE(seriesText(f.source->YLeftData()), text("H2O 0,0;Time 0,5;co2 50,51"));
    filter(f, "H2O>1");
    f.source->setLeftVariable(text("H2O"));
    QVERIFY(f.source->YLeftData().isEmpty());
}

void tst_LogDataSourceSeries::moreColumnsThanTheFirstDataSet()
{
    SourceFixture f;
    f.show(logBlock("G G G", "Obs Time v", "1 ~ 2 3 4")
           + logBlock("A A A A", "a b c d", "1 2 3 4"));
    QCOMPARE(rowTexts(f.source->xVariableModel()), text("Obs,Time,v,?,?"));
    select(f, 0, "0");
    select(f, 1, "3 4");
    QCOMPARE(seriesText(f.source->YLeftData()), text("? 3|4"));
    select(f, 0, "4");
    f.source->updateVariableSelection(0, 0, false);
    QCOMPARE(f.source->xData().first, QString());
    QCOMPARE(numberTexts(f.source->xData().second), text("4"));
    f.source->selectDataSet(1);
    select(f, 0, "2");
    QCOMPARE(f.source->xData().first, text("c"));
}

void tst_LogDataSourceSeries::sidesCanBeAddedOnTheirOwn()
{
    SourceFixture f;
    f.show(tenRows());
    f.source->yVariableModel()->blockSignals(true);
    select(f, 1, "2");
    f.source->updateLeftData();
    QVERIFY(f.source->YLeftData().isEmpty());
    select(f, 0, "0");
    f.source->updateXData();
    f.source->updateLeftData();
    QCOMPARE(f.source->YLeftData().value(text("co2")).size(), 2);
    f.source->updateRightData();
    QVERIFY(f.source->YRightData().isEmpty());
}

QTEST_MAIN(tst_LogDataSourceSeries)
#include "tst_LogDataSourceSeries.moc"

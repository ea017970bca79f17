#include "model/LogDataSet.h"

#include "DataSetTexts.h"
#include "RaggedRows.h"
#include "support/TestCompat.h"

#include <QScopedPointer>

// Whole rows in a data set, mixed with all that is appended one by one.
class tst_LogDataSetRows : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void takesRows();
    void takesRowsLongerThanTheHeader();
    void takesShortRows();
    void takesQuotesOffTheTimeColumn();
    void takesAnEmptyRow();
    void takesRowsBehindCells();
    void takesCellsBehindRows();
    void takesRowsOfAnotherSeparator();
    void takesHeadersBehindRows();
    void agreesRowByRowAndCellByCell_data();
    void agreesRowByRowAndCellByCell();
    void keepsGridUntilItGrows();
    void leavesOldGridsAlone();
    void keepsChecksWhileItGrows();
    void readsThousandsOfColumns();
};

void tst_LogDataSetRows::takesRows()
{
    LogDataSet dataSet(0);
    addColumn(dataSet, "g", "a", "");
    addColumn(dataSet, "g", "b", "");
    addColumn(dataSet, "g", "c", "");
    addRow(dataSet, "1\t10:00:00\tx", '\t');
    addRow(dataSet, text("2\t10:00:01\t\xc2\xb5"), '\t');
    QCOMPARE(shown(dataSet.columnData()), text("1|2/10:00:00|10:00:01/x|\xc2\xb5"));
    QCOMPARE(shownRows(dataSet), text("1|10:00:00|x/2|10:00:01|\xc2\xb5"));
    QCOMPARE(dataSet.headerData().size(), 3);
    QVERIFY(!dataSet.observations().at(0)->checked());
    isConsistent(dataSet);
}

void tst_LogDataSetRows::takesRowsLongerThanTheHeader()
{
    LogDataSet dataSet(0);
    addColumn(dataSet, "g", "a", "m");
    addRow(dataSet, "1");
    addRow(dataSet, "2|3|4");
    QCOMPARE(shown(dataSet.headerData()), text("g|a|m/?|?|?/?|?|?"));
    QCOMPARE(shown(dataSet.columnData()), text("1|2/3/4"));
    QCOMPARE(dataSet.variables(), cells("a"));
    QCOMPARE(groupNames(dataSet), text("?|g"));
    QVERIFY(dataSet.groupForName(text("?"))->variables().isEmpty());
    isConsistent(dataSet);
}

void tst_LogDataSetRows::takesShortRows()
{
    LogDataSet dataSet(0);
    addColumn(dataSet, "g", "a", "");
    addColumn(dataSet, "g", "b", "");
    addColumn(dataSet, "g", "c", "");
    addRow(dataSet, "1|10:00:00|x");
    addRow(dataSet, "Remarks|opened the door");
    addRow(dataSet, "3|10:00:02|z");
    QCOMPARE(shown(dataSet.columnData()),
             text("1|Remarks|3/10:00:00|opened the door|10:00:02/x|z"));
    QCOMPARE(shownRows(dataSet), text("1|10:00:00|x/Remarks|opened the door/3|10:00:02|z"));
    QCOMPARE(dataSet.dataSetName(), text("0:  #Obs=3"));
    isConsistent(dataSet);
}

void tst_LogDataSetRows::takesQuotesOffTheTimeColumn()
{
    LogDataSet dataSet(0);
    addRow(dataSet, "\"1\"|\"10:00:00\"|\"x\"");
    addRow(dataSet, "\"2\"|1\"0:00:01|\"y\"");
    QCOMPARE(shown(dataSet.columnData()), text("\"1\"|\"2\"/10:00:00|10:00:01/\"x\"|\"y\""));
    QCOMPARE(shownRows(dataSet), text("\"1\"|\"10:00:00\"|\"x\"/\"2\"|1\"0:00:01|\"y\""));
    dataSet.addObservation(cells("z")); // from here on cell by cell
    addRow(dataSet, "\"3\"|\"10:00:02\"|\"z\"");
    QCOMPARE(dataSet.dataForColumn(0), cells("\"1\"|\"2\"|\"3\""));
    QCOMPARE(dataSet.dataForColumn(1), cells("10:00:00|10:00:01|10:00:02"));
    QCOMPARE(dataSet.observationTexts(3), cells("\"3\"|\"10:00:02\"|\"z\""));
    isConsistent(dataSet);
}

void tst_LogDataSetRows::takesAnEmptyRow()
{
    LogDataSet dataSet(0);
    addRow(dataSet, "");
    addRow(dataSet, "|");
    QCOMPARE(shown(dataSet.columnData()), text("|/"));
    QCOMPARE(dataSet.observationTexts(0), QStringList() << QString());
    QCOMPARE(dataSet.observationTexts(1), QStringList() << QString() << QString());
    isConsistent(dataSet);
}

void tst_LogDataSetRows::takesRowsBehindCells()
{
    LogDataSet dataSet(0);
    dataSet.appendColumnData(0, text("a"));
    addRow(dataSet, "b|c");
    dataSet.addObservation(cells("d"));
    addRow(dataSet, "e|f|g");
    QCOMPARE(shown(dataSet.columnData()), text("a|b|e/c|f/g"));
    QCOMPARE(shownRows(dataSet), text("b|c/d/e|f|g"));
    isConsistent(dataSet);
}

void tst_LogDataSetRows::takesCellsBehindRows()
{
    LogDataSet dataSet(0);
    addRow(dataSet, "a|b|c");
    addRow(dataSet, "d");
    dataSet.appendColumnData(2, text("e"));
    dataSet.appendColumnData(3, text("f"));
    addRow(dataSet, "g|h");
    dataSet.addObservation(cells("i|j"));
    dataSet.appendColumnData(1, text("k"));
    QCOMPARE(shown(dataSet.columnData()), text("a|d|g/b|h|k/c|e/f"));
    QCOMPARE(shownRows(dataSet), text("a|b|c/d/g|h/i|j"));
    QCOMPARE(dataSet.dataSetName(), text("0:  #Obs=3"));
    isConsistent(dataSet);
}

void tst_LogDataSetRows::takesRowsOfAnotherSeparator()
{
    LogDataSet dataSet(0);
    addRow(dataSet, "a|b,c", '|');
    addRow(dataSet, "d|e,\"f\"", ',');
    addRow(dataSet, "g|h", '|');
    QCOMPARE(shown(dataSet.columnData()), text("a|d|e|g/b,c|f|h"));
    QCOMPARE(dataSet.observationTexts(0), cells("a|b,c"));
    QCOMPARE(dataSet.observationTexts(1), QStringList() << text("d|e") << text("\"f\""));
    QCOMPARE(dataSet.observationTexts(2), cells("g|h"));
    isConsistent(dataSet);
}

void tst_LogDataSetRows::takesHeadersBehindRows()
{
    LogDataSet dataSet(0);
    addRow(dataSet, "a|b");
    QCOMPARE(dataSet.columnData().size(), 2);
    addColumn(dataSet, "g", "late", "");
    QCOMPARE(shown(dataSet.columnData()), text("a/b/"));
    addRow(dataSet, "c|d|e");
    QCOMPARE(shown(dataSet.columnData()), text("a|c/b|d/e"));
    QCOMPARE(dataSet.headerData().size(), 3);
    isConsistent(dataSet);
}

void tst_LogDataSetRows::agreesRowByRowAndCellByCell_data()
{
    QTest::addColumn<int>("looseOf");

    QTest::newRow("all rows as text") << 0;
    QTest::newRow("some cell by cell") << 200;
    QTest::newRow("all cell by cell") << 1;
}

void tst_LogDataSetRows::agreesRowByRowAndCellByCell()
{
    QFETCH(int, looseOf);

    RaggedRows plain(41);
    RowStore unused('\t');
    LogDataSet dataSet(0);
    for (int row = 0; row < 900; ++row) {
        plain.append(unused, 1, 7);
        if (looseOf > 0 && plain.below(looseOf) == 0)
            addCells(dataSet, plain.rows.last());
        else
            addRow(dataSet, plain.rows.last().join(QLatin1String("\t")), '\t');
        if (row % 150 == 0)
            QCOMPARE(dataSet.observations().size(), row + 1);
    }
    QCOMPARE(dataSet.columnData(), plain.columns(7));
    for (int row = 0; row < 900; ++row)
        QCOMPARE(dataSet.observationTexts(row), plain.rows.at(row));
    isConsistent(dataSet);
}

void tst_LogDataSetRows::keepsGridUntilItGrows()
{
    LogDataSet dataSet(0);
    CellGridPointer grid = dataSet.grid();
    QCOMPARE(dataSet.grid().data(), grid.data());
    QCOMPARE(grid->columnCount(), 0);
    addRow(dataSet, "1|2");
    QVERIFY(dataSet.grid() != grid);
    grid = dataSet.grid();
    dataSet.addGroup(text("g"));
    dataSet.columnData();
    dataSet.observations();
    QCOMPARE(dataSet.grid().data(), grid.data());
    dataSet.appendColumnData(0, text("3"));
    QVERIFY(dataSet.grid() != grid);
    grid = dataSet.grid();
    addColumn(dataSet, "g", "v", "");
    QVERIFY(dataSet.grid() != grid);
    QCOMPARE(dataSet.grid()->columnCount(), 3);
}

void tst_LogDataSetRows::leavesOldGridsAlone()
{
    QScopedPointer<LogDataSet> dataSet(new LogDataSet(0));
    addRow(*dataSet, "1|2");
    const CellGridPointer ofRows = dataSet->grid();
    addRow(*dataSet, "3|4|5");
    QCOMPARE(shown(ofRows->toLists()), text("1/2"));
    dataSet->appendColumnData(0, text("6"));
    const CellGridPointer ofCells = dataSet->grid();
    dataSet->appendColumnData(0, text("7"));
    QCOMPARE(shown(ofCells->toLists()), text("1|3|6/2|4/5"));
    dataSet.reset();
    QCOMPARE(shown(ofRows->toLists()), text("1/2"));
    QCOMPARE(shown(ofCells->toLists()), text("1|3|6/2|4/5"));
}

void tst_LogDataSetRows::keepsChecksWhileItGrows()
{
    LogDataSet dataSet(0);
    addRow(dataSet, "1|2");
    Observation *first = dataSet.observations().at(0);
    first->setChecked(true);
    addRow(dataSet, "3|4");
    QCOMPARE(dataSet.observations().size(), 2);
    QCOMPARE(dataSet.observations().at(0), first);
    QVERIFY(dataSet.observations().at(0)->checked());
    QVERIFY(!dataSet.observations().at(1)->checked());
    QCOMPARE(first->values(), cells("1|2"));
}

void tst_LogDataSetRows::readsThousandsOfColumns()
{
    // Work that grows with the square of the columns would be felt here.
    const int columns = 50000;
    QStringList row;
    for (int column = 0; column < columns; ++column)
        row.append(QString::number(column));
    LogDataSet dataSet(0);
    addRow(dataSet, row.join(QLatin1String("|")));
    addRow(dataSet, row.join(QLatin1String("|")));
    addRow(dataSet, "short|row");
    QCOMPARE(dataSet.headerData().size(), columns);
    QCOMPARE(dataSet.observationTexts(0), row);
    QCOMPARE(dataSet.dataForColumn(columns - 1), QStringList() << row.last() << row.last());
    QCOMPARE(dataSet.dataForColumn(0), cells("0|0|short"));
    QCOMPARE(dataSet.columnData().size(), columns);
    QCOMPARE(dataSet.columnData().last(), QStringList() << row.last() << row.last());
}

QTEST_GUILESS_MAIN(tst_LogDataSetRows)
#include "tst_LogDataSetRows.moc"

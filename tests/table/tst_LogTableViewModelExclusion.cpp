#include "support/DataChangeRecorder.h"
#include "support/ModelTester.h"
#include "support/TestCompat.h"
#include "table/FilledModel.h"

#include <QTableView>

/** Rows that are excluded from the plot, and taken in again. */
class tst_LogTableViewModelExclusion : public QObject
{
    Q_OBJECT

private slots:
    void checking();
    void checkingTellsWhetherRowsAreExcluded_data();
    void checkingTellsWhetherRowsAreExcluded();
    void checkingConvertsTheValue_data();
    void checkingConvertsTheValue();
    void refusesOtherData_data();
    void refusesOtherData();
    void rowExcludedOutOfRange();
    void excludeRowsIsACopy();
    void settingCellsKeepsEveryRow();
    void settingHeadersLeavesExclusions();
    void clearing();
    void clearingWithoutCells();
    void clearingUnderAView();
};

void tst_LogTableViewModelExclusion::checking()
{
    FilledModel model("A", "1 2 3 4 5 6");
    ModelTester tester(&model);
    DataChangeRecorder changes(&model);
    QSignalSpy excludedSpy(&model, SIGNAL(hasExcludedRowsChanged()));

    QVERIFY(model.check(4, Qt::Checked));
    QVERIFY(model.rowExcluded(4));
    QVERIFY(model.hasExcludedRows());
    QCOMPARE(model.index(4, 0).data(Qt::CheckStateRole), QVariant(2));
    QCOMPARE(excludedSpy.count(), 1);
    QCOMPARE(changes.taken().join(QLatin1String(" ")), QString::fromLatin1("4,0-4,0"));

    QVERIFY(model.check(1, Qt::Checked));
    QCOMPARE(model.excludeRows(), QVector<int>() << 0 << 1 << 0 << 0 << 1 << 0);
    QCOMPARE(excludedSpy.count(), 1);

    QVERIFY(model.check(4, Qt::Unchecked));
    QVERIFY(!model.rowExcluded(4));
    QVERIFY(model.hasExcludedRows());
    QCOMPARE(excludedSpy.count(), 1);

    QVERIFY(model.check(1, Qt::Unchecked));
    QVERIFY(!model.hasExcludedRows());
    QCOMPARE(excludedSpy.count(), 2);
    QCOMPARE(model.index(1, 0).data(Qt::CheckStateRole), QVariant(0));
    QCOMPARE(changes.taken().join(QLatin1String(" ")),
             QString::fromLatin1("1,0-1,0 4,0-4,0 1,0-1,0"));
}

void tst_LogTableViewModelExclusion::checkingTellsWhetherRowsAreExcluded_data()
{
    QTest::addColumn<int>("before"); // the row excluded before, if any
    QTest::addColumn<int>("row");
    QTest::addColumn<bool>("exclude");
    QTest::addColumn<int>("signalCount");
    QTest::newRow("none to one") << -1 << 0 << true << 1;
    QTest::newRow("none to none") << -1 << 0 << false << 1;
    QTest::newRow("one to none") << 0 << 0 << false << 1;
    QTest::newRow("one to two") << 0 << 1 << true << 0;
    QTest::newRow("the same one again") << 0 << 0 << true << 0;
    QTest::newRow("another one is kept anyway") << 0 << 1 << false << 0;
}

void tst_LogTableViewModelExclusion::checkingTellsWhetherRowsAreExcluded()
{
    QFETCH(int, before);
    QFETCH(int, row);
    QFETCH(bool, exclude);
    QFETCH(int, signalCount);
    FilledModel model("A", "1 2 3");
    if (before >= 0)
        QVERIFY(model.check(before, true));
    DataChangeRecorder changes(&model);
    QSignalSpy spy(&model, SIGNAL(hasExcludedRowsChanged()));
    QVERIFY(model.check(row, exclude));
    QCOMPARE(spy.count(), signalCount);
    QCOMPARE(changes.taken().size(), 1);
    QCOMPARE(model.hasExcludedRows(), model.excludeRows().contains(1));
}

void tst_LogTableViewModelExclusion::checkingConvertsTheValue_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("excluded");
    QTest::newRow("checked") << QVariant(int(Qt::Checked)) << true;
    QTest::newRow("partially checked") << QVariant(int(Qt::PartiallyChecked)) << true;
    QTest::newRow("unchecked") << QVariant(int(Qt::Unchecked)) << false;
    QTest::newRow("true") << QVariant(true) << true;
    QTest::newRow("false") << QVariant(false) << false;
    QTest::newRow("text true") << QVariant(QString::fromLatin1("true")) << true;
    QTest::newRow("text false") << QVariant(QString::fromLatin1("false")) << false;
    QTest::newRow("nothing") << QVariant() << false;
}

void tst_LogTableViewModelExclusion::checkingConvertsTheValue()
{
    QFETCH(QVariant, value);
    QFETCH(bool, excluded);
    FilledModel model("A", "1 2");
    QVERIFY(model.check(1, value));
    QCOMPARE(model.rowExcluded(1), excluded);
    QVERIFY(!model.rowExcluded(0));
}

void tst_LogTableViewModelExclusion::refusesOtherData_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("column");
    QTest::addColumn<int>("role");
    QTest::newRow("column 1") << 0 << 1 << int(Qt::CheckStateRole);
    QTest::newRow("display role") << 0 << 0 << int(Qt::DisplayRole);
    QTest::newRow("edit role") << 0 << 0 << int(Qt::EditRole);
    QTest::newRow("display role of column 1") << 0 << 1 << int(Qt::DisplayRole);
    QTest::newRow("row past the end") << 2 << 0 << int(Qt::CheckStateRole);
    QTest::newRow("negative row") << -1 << 0 << int(Qt::CheckStateRole);
    QTest::newRow("negative column") << 0 << -1 << int(Qt::CheckStateRole);
}

void tst_LogTableViewModelExclusion::refusesOtherData()
{
    QFETCH(int, row);
    QFETCH(int, column);
    QFETCH(int, role);
    FilledModel model("A", "1 2");
    DataChangeRecorder changes(&model);
    QSignalSpy spy(&model, SIGNAL(hasExcludedRowsChanged()));
    QVERIFY(!model.setData(model.createIndex(row, column), true, role));
    QVERIFY(!model.setData(QModelIndex(), true, Qt::CheckStateRole));
    QCOMPARE(model.excludeRows(), QVector<int>(2, 0));
    QCOMPARE(shownText(model), QString::fromLatin1("- 1|- 2"));
    QCOMPARE(spy.count(), 0);
    QVERIFY(changes.taken().isEmpty());
}

void tst_LogTableViewModelExclusion::rowExcludedOutOfRange()
{
    FilledModel model("A", "1 2");
    QVERIFY(model.check(0, true));
    QVERIFY(model.check(1, true));
    QVERIFY(model.rowExcluded(1));
    QVERIFY(!model.rowExcluded(2));
    QVERIFY(!model.rowExcluded(INT_MAX));
    QVERIFY(!model.rowExcluded(-1));
    QVERIFY(!model.rowExcluded(INT_MIN));
}

void tst_LogTableViewModelExclusion::excludeRowsIsACopy()
{
    FilledModel model("A", "1 2");
    QVector<int> flags = model.excludeRows();
    flags[0] = 1;
    QVERIFY(!model.rowExcluded(0));
    QVERIFY(model.check(1, true));
    QCOMPARE(flags, QVector<int>() << 1 << 0);
}

void tst_LogTableViewModelExclusion::settingCellsKeepsEveryRow()
{
    FilledModel model("A", "1 2 3");
    QVERIFY(model.check(0, true));
    QVERIFY(model.check(2, true));
    QSignalSpy spy(&model, SIGNAL(hasExcludedRowsChanged()));
    model.setGridData(listsOf("1 2 3 4"));
    QVERIFY(!model.hasExcludedRows());
    QCOMPARE(model.excludeRows(), QVector<int>(4, 0));
    QCOMPARE(spy.count(), 0);
    QVERIFY(model.check(3, true));
    QCOMPARE(spy.count(), 1);
}

void tst_LogTableViewModelExclusion::settingHeadersLeavesExclusions()
{
    FilledModel model("A", "1 2 3");
    QVERIFY(model.check(1, true));
    model.setColumnHeaderData(listsOf("X|Y"));
    QCOMPARE(model.excludeRows(), QVector<int>() << 0 << 1 << 0);
    QVERIFY(model.hasExcludedRows());
}

void tst_LogTableViewModelExclusion::clearing()
{
    FilledModel model("A|B", "1 2 3|4 5 6");
    QVERIFY(model.check(0, true));
    QVERIFY(model.check(2, true));
    DataChangeRecorder changes(&model);
    QSignalSpy excludedSpy(&model, SIGNAL(hasExcludedRowsChanged()));
    model.clearExcludedRows();
    QVERIFY(!model.hasExcludedRows());
    QCOMPARE(model.excludeRows(), QVector<int>(3, 0));
    QCOMPARE(changes.taken().join(QLatin1String(" ")), QString::fromLatin1("0,0-3,3"));
    QCOMPARE(excludedSpy.count(), 1);
    model.clearExcludedRows();
    QCOMPARE(changes.taken().size(), 1);
    QCOMPARE(excludedSpy.count(), 2);
}

void tst_LogTableViewModelExclusion::clearingWithoutCells()
{
    LogTableViewModel model;
    DataChangeRecorder changes(&model);
    QSignalSpy excludedSpy(&model, SIGNAL(hasExcludedRowsChanged()));
    model.clearExcludedRows();
    QCOMPARE(changes.taken().join(QLatin1String(" ")), QString::fromLatin1("0,0-0,0"));
    QCOMPARE(excludedSpy.count(), 1);
}

void tst_LogTableViewModelExclusion::clearingUnderAView()
{
    FilledModel model("A|B", "1 2 3|4 5 6");
    QTableView view;
    view.setModel(&model);
    view.show();
    QVERIFY(model.check(1, true));
    model.clearExcludedRows();
    QCoreApplication::processEvents();
    QCOMPARE(view.model()->index(1, 0).data(Qt::CheckStateRole), QVariant(0));
    LogTableViewModel empty;
    view.setModel(&empty);
    empty.clearExcludedRows();
    QCoreApplication::processEvents();
    QCOMPARE(view.model()->rowCount(), 0);
}

QTEST_MAIN(tst_LogTableViewModelExclusion)
#include "tst_LogTableViewModelExclusion.moc"

#include "model/StringListGrid.h"
#include "support/DataChangeRecorder.h"
#include "support/ModelTester.h"
#include "support/TestCompat.h"
#include "support/TextTable.h"
#include "table/LogTableViewModel.h"

#include <QColor>
#include <QTableView>

#include <limits>

class tst_LogTableViewModel : public QObject
{
    Q_OBJECT

private slots:
    void startsEmpty();
    void headersAloneGiveTheCheckColumn();
    void counts_data();
    void counts();
    void showsCells_data();
    void showsCells();
    void headers();
    void headersOutOfRange();
    void answersOtherRoles();
    void answersNothingOutOfRange();
    void flags();
    void checking();
    void checkingTellsWhetherRowsAreExcluded_data();
    void checkingTellsWhetherRowsAreExcluded();
    void checkingConvertsTheValue_data();
    void checkingConvertsTheValue();
    void refusesOtherData_data();
    void refusesOtherData();
    void rowExcludedOutOfRange();
    void excludeRowsIsACopy();
    void columnSpan_data();
    void columnSpan();
    void settingHeadersResets();
    void settingCellsResets();
    void settingCellsKeepsEveryRow();
    void settingHeadersLeavesExclusions();
    void sharesAGrid();
    void nullGridIsEmpty();
    void clearing();
    void clearingWithoutCells();
    void clearingUnderAView();
};

/** A model with these headers and columns. */
struct Table : LogTableViewModel {
    Table(const char *headers, const char *columns)
    {
        setColumnHeaderData(listsOf(headers));
        setGridData(listsOf(columns));
    }
    bool check(int row, const QVariant &value)
    {
        return setData(index(row, 0), value, Qt::CheckStateRole);
    }
};

void tst_LogTableViewModel::startsEmpty()
{
    QObject parent;
    LogTableViewModel *model = new LogTableViewModel(&parent);
    ModelTester tester(model);
    QCOMPARE(model->parent(), &parent);
    QCOMPARE(model->rowCount(), 0);
    QCOMPARE(model->columnCount(), 0);
    QVERIFY(!model->hasExcludedRows());
    QVERIFY(!model->rowExcluded(0));
    QVERIFY(model->excludeRows().isEmpty());
    QCOMPARE(model->columnSpan(0), 0);
    QCOMPARE(model->grid()->columnCount(), 0);
}

void tst_LogTableViewModel::headersAloneGiveTheCheckColumn()
{
    LogTableViewModel model;
    ModelTester tester(&model);
    model.setColumnHeaderData(QList<QStringList>());
    model.setGridData(QList<QStringList>());
    QCOMPARE(model.rowCount(), 0);
    QCOMPARE(model.columnCount(), 1);
    QCOMPARE(model.headerData(0, Qt::Horizontal).toString(), QString::fromLatin1("Exclude"));
}

void tst_LogTableViewModel::counts_data()
{
    QTest::addColumn<QByteArray>("headers");
    QTest::addColumn<QByteArray>("columns");
    QTest::addColumn<int>("rowCount");
    QTest::addColumn<int>("columnCount");
    QTest::newRow("empty grid") << QByteArray("A|B") << QByteArray() << 0 << 3;
    QTest::newRow("no headers") << QByteArray() << QByteArray("1 2 3") << 3 << 1;
    QTest::newRow("even") << QByteArray("A|B") << QByteArray("1 2 3|4 5 6") << 3 << 3;
    QTest::newRow("first column is short") << QByteArray("A|B") << QByteArray("1|4 5 6") << 1 << 3;
    QTest::newRow("first column is long") << QByteArray("A|B") << QByteArray("1 2|4") << 2 << 3;
    QTest::newRow("first column is empty") << QByteArray("A|B") << QByteArray("|4 5") << 0 << 3;
    QTest::newRow("more headers than cells") << QByteArray("A|B|C") << QByteArray("1 2") << 2 << 4;
    QTest::newRow("more cells than headers") << QByteArray("A") << QByteArray("1|2|3") << 1 << 2;
}

void tst_LogTableViewModel::counts()
{
    QFETCH(QByteArray, headers);
    QFETCH(QByteArray, columns);
    QFETCH(int, rowCount);
    QFETCH(int, columnCount);
    Table model(headers.constData(), columns.constData());
    ModelTester tester(&model);
    QCOMPARE(model.rowCount(), rowCount);
    QCOMPARE(model.columnCount(), columnCount);
    QCOMPARE(model.excludeRows().size(), rowCount);
    if (rowCount > 0) {
        QCOMPARE(model.rowCount(model.index(0, 0)), 0);
        QCOMPARE(model.columnCount(model.index(0, 0)), 0);
    }
}

void tst_LogTableViewModel::showsCells_data()
{
    QTest::addColumn<QByteArray>("headers");
    QTest::addColumn<QByteArray>("columns");
    QTest::addColumn<QString>("shown");
    QTest::newRow("even") << QByteArray("A|B") << QByteArray("1 2 3|4 5 6")
                          << QString::fromLatin1("- 1 4|- 2 5|- 3 6");
    QTest::newRow("second column is short")
        << QByteArray("A|B") << QByteArray("1 2 3|4") << QString::fromLatin1("- 1 4|- 2 -|- 3 -");
    QTest::newRow("first column is short")
        << QByteArray("A|B") << QByteArray("1|4 5 6") << QString::fromLatin1("- 1 4");
    QTest::newRow("headers without cells")
        << QByteArray("A|B|C") << QByteArray("1 2") << QString::fromLatin1("- 1 - -|- 2 - -");
    QTest::newRow("cells without headers")
        << QByteArray("A") << QByteArray("1 2|3 4") << QString::fromLatin1("- 1|- 2");
    QTest::newRow("text") << QByteArray("A")
                          << QByteArray("\xC2\xB0"
                                        "C")
                          << QString::fromUtf8("- \xC2\xB0"
                                               "C");
}

void tst_LogTableViewModel::showsCells()
{
    QFETCH(QByteArray, headers);
    QFETCH(QByteArray, columns);
    QFETCH(QString, shown);
    Table model(headers.constData(), columns.constData());
    ModelTester tester(&model);
    QCOMPARE(shownText(model), shown);
}

void tst_LogTableViewModel::headers()
{
    Table model("Gas CO2 ppm|Time", "1 2|3 4");
    QCOMPARE(model.headerData(0, Qt::Horizontal), QVariant(QString::fromLatin1("Exclude")));
    QCOMPARE(model.headerData(1, Qt::Horizontal), QVariant(QString::fromLatin1("Gas\nCO2\nppm")));
    QCOMPARE(model.headerData(2, Qt::Horizontal), QVariant(QString::fromLatin1("Time")));
    QCOMPARE(model.headerData(0, Qt::Vertical), QVariant(1));
    QCOMPARE(model.headerData(0, Qt::Vertical).toString(), QString::fromLatin1("1"));
    QCOMPARE(model.headerData(1, Qt::Vertical), QVariant(2));
    QVERIFY(!model.headerData(0, Qt::Horizontal, Qt::ForegroundRole).isValid());
    QVERIFY(!model.headerData(0, Qt::Vertical, Qt::ToolTipRole).isValid());
    QVERIFY(!model.headerData(std::numeric_limits<int>::max(), Qt::Vertical).isValid());
}

void tst_LogTableViewModel::headersOutOfRange()
{
    Table model("A|B", "1|2");
    QVERIFY(!model.headerData(3, Qt::Horizontal).isValid());
    QVERIFY(!model.headerData(-1, Qt::Horizontal).isValid());
    QVERIFY(!model.headerData(INT_MAX, Qt::Horizontal).isValid());
}

void tst_LogTableViewModel::answersOtherRoles()
{
    Table model("A", "1 2");
    ModelTester tester(&model);
    for (int row = 0; row < 2; ++row) {
        for (int column = 0; column < 2; ++column) {
            const QModelIndex cell = model.index(row, column);
            QCOMPARE(qvariant_cast<QColor>(cell.data(Qt::ForegroundRole)), QColor(Qt::black));
            QVERIFY(!cell.data(Qt::EditRole).isValid());
            QVERIFY(!cell.data(Qt::BackgroundRole).isValid());
            QVERIFY(!cell.data(Qt::UserRole).isValid());
        }
    }
    QCOMPARE(model.index(0, 0).data(Qt::CheckStateRole), QVariant(0));
    QVERIFY(!model.index(0, 1).data(Qt::CheckStateRole).isValid());
    QVERIFY(!model.index(0, 0).data(Qt::DisplayRole).isValid());
}

/** Reaches behind index() for indexes that it would not give out. */
struct LooseTable : Table {
    LooseTable(const char *headers, const char *columns)
        : Table(headers, columns)
    {
    }
    using LogTableViewModel::createIndex;
};

void tst_LogTableViewModel::answersNothingOutOfRange()
{
    LooseTable model("A|B", "1 2|3 4");
    QVERIFY(!model.data(QModelIndex()).isValid());
    QVERIFY(!model.data(QModelIndex(), Qt::ForegroundRole).isValid());
    QVERIFY(!model.data(model.createIndex(2, 1)).isValid());
    QVERIFY(!model.data(model.createIndex(0, 3)).isValid());
    QVERIFY(!model.data(model.createIndex(2, 3)).isValid());
    QCOMPARE(model.data(model.createIndex(2, 0), Qt::CheckStateRole), QVariant(0));
}

void tst_LogTableViewModel::flags()
{
    Table model("A|B", "1|2");
    QCOMPARE(model.flags(model.index(0, 0)),
             Qt::ItemFlags(Qt::ItemIsUserCheckable | Qt::ItemIsEnabled));
    QCOMPARE(model.flags(model.index(0, 1)), Qt::ItemFlags(Qt::NoItemFlags));
    QCOMPARE(model.flags(model.index(0, 2)), Qt::ItemFlags(Qt::NoItemFlags));
    QCOMPARE(model.flags(QModelIndex()), Qt::ItemFlags(Qt::NoItemFlags));
}

void tst_LogTableViewModel::checking()
{
    Table model("A", "1 2 3 4 5 6");
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

void tst_LogTableViewModel::checkingTellsWhetherRowsAreExcluded_data()
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

void tst_LogTableViewModel::checkingTellsWhetherRowsAreExcluded()
{
    QFETCH(int, before);
    QFETCH(int, row);
    QFETCH(bool, exclude);
    QFETCH(int, signalCount);
    Table model("A", "1 2 3");
    if (before >= 0)
        QVERIFY(model.check(before, true));
    DataChangeRecorder changes(&model);
    QSignalSpy spy(&model, SIGNAL(hasExcludedRowsChanged()));
    QVERIFY(model.check(row, exclude));
    QCOMPARE(spy.count(), signalCount);
    QCOMPARE(changes.taken().size(), 1);
    QCOMPARE(model.hasExcludedRows(), model.excludeRows().contains(1));
}

void tst_LogTableViewModel::checkingConvertsTheValue_data()
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

void tst_LogTableViewModel::checkingConvertsTheValue()
{
    QFETCH(QVariant, value);
    QFETCH(bool, excluded);
    Table model("A", "1 2");
    QVERIFY(model.check(1, value));
    QCOMPARE(model.rowExcluded(1), excluded);
    QVERIFY(!model.rowExcluded(0));
}

void tst_LogTableViewModel::refusesOtherData_data()
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

void tst_LogTableViewModel::refusesOtherData()
{
    QFETCH(int, row);
    QFETCH(int, column);
    QFETCH(int, role);
    LooseTable model("A", "1 2");
    DataChangeRecorder changes(&model);
    QSignalSpy spy(&model, SIGNAL(hasExcludedRowsChanged()));
    QVERIFY(!model.setData(model.createIndex(row, column), true, role));
    QVERIFY(!model.setData(QModelIndex(), true, Qt::CheckStateRole));
    QCOMPARE(model.excludeRows(), QVector<int>(2, 0));
    QCOMPARE(shownText(model), QString::fromLatin1("- 1|- 2"));
    QCOMPARE(spy.count(), 0);
    QVERIFY(changes.taken().isEmpty());
}

void tst_LogTableViewModel::rowExcludedOutOfRange()
{
    Table model("A", "1 2");
    QVERIFY(model.check(0, true));
    QVERIFY(model.check(1, true));
    QVERIFY(model.rowExcluded(1));
    QVERIFY(!model.rowExcluded(2));
    QVERIFY(!model.rowExcluded(INT_MAX));
    QVERIFY(!model.rowExcluded(-1));
    QVERIFY(!model.rowExcluded(INT_MIN));
}

void tst_LogTableViewModel::excludeRowsIsACopy()
{
    Table model("A", "1 2");
    QVector<int> flags = model.excludeRows();
    flags[0] = 1;
    QVERIFY(!model.rowExcluded(0));
    QVERIFY(model.check(1, true));
    QCOMPARE(flags, QVector<int>() << 1 << 0);
}

void tst_LogTableViewModel::columnSpan_data()
{
    QTest::addColumn<QByteArray>("columns");
    QTest::addColumn<int>("column");
    QTest::addColumn<int>("span");
    QTest::newRow("empty grid") << QByteArray() << 0 << 0;
    QTest::newRow("no cells") << QByteArray("|1") << 0 << 3;
    QTest::newRow("one cell") << QByteArray("1 2 3|1") << 1 << 3;
    QTest::newRow("two cells") << QByteArray("1 2|1") << 0 << 3;
    QTest::newRow("three cells") << QByteArray("1 2 3|1") << 0 << 1;
    QTest::newRow("last column") << QByteArray("1|1 2 3") << 1 << 1;
    QTest::newRow("past the columns") << QByteArray("1 2 3|1") << 2 << 0;
    QTest::newRow("negative") << QByteArray("1 2 3|1") << -1 << 0;
}

void tst_LogTableViewModel::columnSpan()
{
    QFETCH(QByteArray, columns);
    QFETCH(int, column);
    QFETCH(int, span);
    Table model("A|B|C", columns.constData());
    QCOMPARE(model.columnSpan(column), span);
}

void tst_LogTableViewModel::settingHeadersResets()
{
    Table model("A", "1 2");
    ModelTester tester(&model);
    QSignalSpy before(&model, SIGNAL(modelAboutToBeReset()));
    QSignalSpy after(&model, SIGNAL(modelReset()));
    model.setColumnHeaderData(listsOf("X|Y|Z"));
    QCOMPARE(before.count(), 1);
    QCOMPARE(after.count(), 1);
    QCOMPARE(model.columnCount(), 4);
    QCOMPARE(model.rowCount(), 2);
    QCOMPARE(model.headerData(1, Qt::Horizontal).toString(), QString::fromLatin1("X"));
}

void tst_LogTableViewModel::settingCellsResets()
{
    Table model("A", "1 2");
    ModelTester tester(&model);
    QSignalSpy before(&model, SIGNAL(modelAboutToBeReset()));
    QSignalSpy after(&model, SIGNAL(modelReset()));
    model.setGridData(listsOf("7 8 9"));
    QCOMPARE(before.count(), 1);
    QCOMPARE(after.count(), 1);
    QCOMPARE(shownText(model), QString::fromLatin1("- 7|- 8|- 9"));
    model.setGrid(CellGridPointer(new StringListGrid(listsOf("5"))));
    QCOMPARE(before.count(), 2);
    QCOMPARE(after.count(), 2);
    QCOMPARE(shownText(model), QString::fromLatin1("- 5"));
}

void tst_LogTableViewModel::settingCellsKeepsEveryRow()
{
    Table model("A", "1 2 3");
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

void tst_LogTableViewModel::settingHeadersLeavesExclusions()
{
    Table model("A", "1 2 3");
    QVERIFY(model.check(1, true));
    model.setColumnHeaderData(listsOf("X|Y"));
    QCOMPARE(model.excludeRows(), QVector<int>() << 0 << 1 << 0);
    QVERIFY(model.hasExcludedRows());
}

void tst_LogTableViewModel::sharesAGrid()
{
    const CellGridPointer grid(new StringListGrid(listsOf("1 2|3")));
    LogTableViewModel model;
    model.setColumnHeaderData(listsOf("A|B"));
    model.setGrid(grid);
    QCOMPARE(model.grid(), grid);
    QCOMPARE(shownText(model), QString::fromLatin1("- 1 3|- 2 -"));
    model.setGridData(listsOf("9"));
    QCOMPARE(model.grid()->toLists(), listsOf("9"));
}

void tst_LogTableViewModel::nullGridIsEmpty()
{
    Table model("A", "1 2");
    ModelTester tester(&model);
    model.setGrid(CellGridPointer());
    QCOMPARE(model.rowCount(), 0);
    QVERIFY(model.grid());
    QCOMPARE(model.columnSpan(0), 0);
}

void tst_LogTableViewModel::clearing()
{
    Table model("A|B", "1 2 3|4 5 6");
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

void tst_LogTableViewModel::clearingWithoutCells()
{
    LogTableViewModel model;
    DataChangeRecorder changes(&model);
    QSignalSpy excludedSpy(&model, SIGNAL(hasExcludedRowsChanged()));
    model.clearExcludedRows();
    QCOMPARE(changes.taken().join(QLatin1String(" ")), QString::fromLatin1("0,0-0,0"));
    QCOMPARE(excludedSpy.count(), 1);
}

void tst_LogTableViewModel::clearingUnderAView()
{
    Table model("A|B", "1 2 3|4 5 6");
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

QTEST_MAIN(tst_LogTableViewModel)
#include "tst_LogTableViewModel.moc"

#include "model/StringListGrid.h"
#include "support/ModelTester.h"
#include "support/TestCompat.h"
#include "table/FilledModel.h"

#include <QColor>

#include <limits>

/** What the observations show: cells, headers, spans, and what there is not. */
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
    void columnSpan_data();
    void columnSpan();
    void settingHeadersResets();
    void settingCellsResets();
    void sharesAGrid();
    void nullGridIsEmpty();
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
    FilledModel model(headers.constData(), columns.constData());
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
    FilledModel model(headers.constData(), columns.constData());
    ModelTester tester(&model);
    QCOMPARE(shownText(model), shown);
}

void tst_LogTableViewModel::headers()
{
    FilledModel model("Gas CO2 ppm|Time", "1 2|3 4");
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
    FilledModel model("A|B", "1|2");
    QVERIFY(!model.headerData(3, Qt::Horizontal).isValid());
    QVERIFY(!model.headerData(-1, Qt::Horizontal).isValid());
    QVERIFY(!model.headerData(INT_MAX, Qt::Horizontal).isValid());
}

void tst_LogTableViewModel::answersOtherRoles()
{
    FilledModel model("A", "1 2");
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

void tst_LogTableViewModel::answersNothingOutOfRange()
{
    FilledModel model("A|B", "1 2|3 4");
    QVERIFY(!model.data(QModelIndex()).isValid());
    QVERIFY(!model.data(QModelIndex(), Qt::ForegroundRole).isValid());
    QVERIFY(!model.data(model.createIndex(2, 1)).isValid());
    QVERIFY(!model.data(model.createIndex(0, 3)).isValid());
    QVERIFY(!model.data(model.createIndex(2, 3)).isValid());
    QCOMPARE(model.data(model.createIndex(2, 0), Qt::CheckStateRole), QVariant(0));
}

void tst_LogTableViewModel::flags()
{
    FilledModel model("A|B", "1|2");
    QCOMPARE(model.flags(model.index(0, 0)),
             Qt::ItemFlags(Qt::ItemIsUserCheckable | Qt::ItemIsEnabled));
    QCOMPARE(model.flags(model.index(0, 1)), Qt::ItemFlags(Qt::NoItemFlags));
    QCOMPARE(model.flags(model.index(0, 2)), Qt::ItemFlags(Qt::NoItemFlags));
    QCOMPARE(model.flags(QModelIndex()), Qt::ItemFlags(Qt::NoItemFlags));
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
    FilledModel model("A|B|C", columns.constData());
    QCOMPARE(model.columnSpan(column), span);
}

void tst_LogTableViewModel::settingHeadersResets()
{
    FilledModel model("A", "1 2");
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
    FilledModel model("A", "1 2");
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
    FilledModel model("A", "1 2");
    ModelTester tester(&model);
    model.setGrid(CellGridPointer());
    QCOMPARE(model.rowCount(), 0);
    QVERIFY(model.grid());
    QCOMPARE(model.columnSpan(0), 0);
}

QTEST_MAIN(tst_LogTableViewModel)
#include "tst_LogTableViewModel.moc"

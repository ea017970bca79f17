#include "model/StringListGrid.h"
#include "support/ModelTester.h"
#include "support/TestCompat.h"
#include "support/TextTable.h"
#include "table/LogTableViewPlottedModel.h"

class tst_LogTableViewPlottedModel : public QObject
{
    Q_OBJECT

private slots:
    void startsEmpty();
    void showsCells_data();
    void showsCells();
    void headers();
    void answersOtherRoles();
    void settingHeadersIsSilent();
    void settingCellsResets();
    void sharesAGrid();
};

void tst_LogTableViewPlottedModel::startsEmpty()
{
    QObject parent;
    LogTableViewPlottedModel *model = new LogTableViewPlottedModel(&parent);
    ModelTester tester(model);
    QCOMPARE(model->parent(), &parent);
    QCOMPARE(model->rowCount(), 0);
    QCOMPARE(model->columnCount(), 0);
    QCOMPARE(model->grid()->columnCount(), 0);
}

void tst_LogTableViewPlottedModel::showsCells_data()
{
    QTest::addColumn<QByteArray>("headers");
    QTest::addColumn<QByteArray>("columns");
    QTest::addColumn<QString>("shown");
    QTest::newRow("no cells") << QByteArray("A|B") << QByteArray() << QString();
    QTest::newRow("even") << QByteArray("A|B") << QByteArray("1 2|3 4")
                          << QString::fromLatin1("1 3|2 4");
    QTest::newRow("second column is short")
        << QByteArray("A|B") << QByteArray("1 2|3") << QString::fromLatin1("1 3|2 -");
    QTest::newRow("first column is short")
        << QByteArray("A|B") << QByteArray("1|3 4") << QString::fromLatin1("1 3");
    QTest::newRow("header without cells")
        << QByteArray("A|B") << QByteArray("1 2") << QString::fromLatin1("1 -|2 -");
}

void tst_LogTableViewPlottedModel::showsCells()
{
    QFETCH(QByteArray, headers);
    QFETCH(QByteArray, columns);
    QFETCH(QString, shown);
    LogTableViewPlottedModel model;
    model.setColumnHeaderData(listsOf(headers.constData()));
    ModelTester tester(&model);
    model.setGridData(listsOf(columns.constData()));
    QCOMPARE(model.columnCount(), 2);
    QCOMPARE(shownText(model), shown);
}

void tst_LogTableViewPlottedModel::headers()
{
    LogTableViewPlottedModel model;
    model.setColumnHeaderData(listsOf("Gas CO2 ppm|Time"));
    model.setGridData(listsOf("1|2"));
    QCOMPARE(model.headerData(0, Qt::Horizontal), QVariant(QString::fromLatin1("Gas\nCO2\nppm")));
    QCOMPARE(model.headerData(1, Qt::Horizontal), QVariant(QString::fromLatin1("Time")));
    QVERIFY(!model.headerData(0, Qt::Vertical).isValid());
    QVERIFY(!model.headerData(0, Qt::Horizontal, Qt::ToolTipRole).isValid());
    QVERIFY(!model.headerData(2, Qt::Horizontal).isValid());
    QVERIFY(!model.headerData(-1, Qt::Horizontal).isValid());
}

void tst_LogTableViewPlottedModel::answersOtherRoles()
{
    LogTableViewPlottedModel model;
    model.setColumnHeaderData(listsOf("A"));
    model.setGridData(listsOf("1"));
    const QModelIndex cell = model.index(0, 0);
    QVERIFY(!cell.data(Qt::ForegroundRole).isValid());
    QVERIFY(!cell.data(Qt::CheckStateRole).isValid());
    QVERIFY(!cell.data(Qt::EditRole).isValid());
    QVERIFY(!model.data(QModelIndex()).isValid());
    QCOMPARE(model.flags(cell),
             Qt::ItemFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable)
                 | (model.flags(cell) & ~Qt::ItemFlags(63)));
    QVERIFY(!model.setData(cell, QString::fromLatin1("2")));
    QCOMPARE(model.rowCount(cell), 0);
    QCOMPARE(model.columnCount(cell), 0);
}

void tst_LogTableViewPlottedModel::settingHeadersIsSilent()
{
    LogTableViewPlottedModel model;
    QSignalSpy before(&model, SIGNAL(modelAboutToBeReset()));
    QSignalSpy after(&model, SIGNAL(modelReset()));
    model.setColumnHeaderData(listsOf("A|B|C"));
    QCOMPARE(model.columnCount(), 3);
    QCOMPARE(before.count() + after.count(), 0);
}

void tst_LogTableViewPlottedModel::settingCellsResets()
{
    LogTableViewPlottedModel model;
    model.setColumnHeaderData(listsOf("A"));
    model.setGridData(listsOf("1 2"));
    ModelTester tester(&model);
    QSignalSpy before(&model, SIGNAL(modelAboutToBeReset()));
    QSignalSpy after(&model, SIGNAL(modelReset()));
    model.setGridData(listsOf("7 8 9"));
    QCOMPARE(before.count(), 1);
    QCOMPARE(after.count(), 1);
    QCOMPARE(shownText(model), QString::fromLatin1("7|8|9"));
}

void tst_LogTableViewPlottedModel::sharesAGrid()
{
    const CellGridPointer grid(new StringListGrid(listsOf("1 2|3")));
    LogTableViewPlottedModel model;
    model.setColumnHeaderData(listsOf("A|B"));
    model.setGrid(grid);
    QCOMPARE(model.grid(), grid);
    QCOMPARE(shownText(model), QString::fromLatin1("1 3|2 -"));
    model.setGrid(CellGridPointer());
    QCOMPARE(model.rowCount(), 0);
    QVERIFY(model.grid());
}

QTEST_GUILESS_MAIN(tst_LogTableViewPlottedModel)
#include "tst_LogTableViewPlottedModel.moc"

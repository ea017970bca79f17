#include "support/ModelTester.h"
#include "support/TestCompat.h"
#include "support/TextTable.h"
#include "table/LogConstTableViewModel.h"

#include <QColor>

class tst_LogConstTableViewModel : public QObject
{
    Q_OBJECT

private slots:
    void startsEmpty();
    void rowCount_data();
    void rowCount();
    void headers_data();
    void headers();
    void headerRolesAndRange();
    void showsValues();
    void tellsOfAMissingConstant();
    void answersOtherRoles();
    void settingHeadersResets();
    void settingValuesResets();
};

static QStringList words(const char *text)
{
    return listsOf(text).value(0);
}

void tst_LogConstTableViewModel::startsEmpty()
{
    QObject parent;
    LogConstTableViewModel *model = new LogConstTableViewModel(&parent);
    ModelTester tester(model);
    QCOMPARE(model->parent(), &parent);
    QCOMPARE(model->rowCount(), 0);
    QCOMPARE(model->columnCount(), 0);
    QVERIFY(!model->headerData(0, Qt::Horizontal).isValid());
}

void tst_LogConstTableViewModel::rowCount_data()
{
    QTest::addColumn<QByteArray>("values");
    QTest::addColumn<int>("rowCount");
    QTest::newRow("no constants") << QByteArray() << 0;
    QTest::newRow("no values") << QByteArray("|") << 0;
    QTest::newRow("first without values") << QByteArray("|1 2") << 0;
    QTest::newRow("1") << QByteArray("1|") << 12;
    QTest::newRow("3") << QByteArray("1 2 3|1 2 3") << 12;
    QTest::newRow("12") << QByteArray("1 2 3 4 5 6 7 8 9 10 11 12") << 12;
    QTest::newRow("13") << QByteArray("1 2 3 4 5 6 7 8 9 10 11 12 13") << 13;
}

void tst_LogConstTableViewModel::rowCount()
{
    QFETCH(QByteArray, values);
    QFETCH(int, rowCount);
    LogConstTableViewModel model;
    ModelTester tester(&model);
    model.setColumnHeaderData(words("A B"));
    model.setGridData(listsOf(values.constData()));
    QCOMPARE(model.rowCount(), rowCount);
    QCOMPARE(model.columnCount(), 2);
    if (rowCount > 0)
        QCOMPARE(model.rowCount(model.index(0, 0)), 0);
}

void tst_LogConstTableViewModel::headers_data()
{
    QTest::addColumn<QString>("header");
    QTest::addColumn<QString>("shown");
    QTest::newRow("one part") << QString::fromLatin1("Serial") << QString::fromLatin1("Serial");
    QTest::newRow("two parts") << QString::fromLatin1("Sys:Serial")
                               << QString::fromLatin1("Sys\nSerial");
    QTest::newRow("empty parts") << QString::fromLatin1(":Sys::Serial:")
                                 << QString::fromLatin1("\nSys\n\nSerial\n");
    QTest::newRow("empty") << QString::fromLatin1("") << QString::fromLatin1("");
}

void tst_LogConstTableViewModel::headers()
{
    QFETCH(QString, header);
    QFETCH(QString, shown);
    LogConstTableViewModel model;
    model.setColumnHeaderData(QStringList() << QString::fromLatin1("First") << header);
    QCOMPARE(model.headerData(1, Qt::Horizontal), QVariant(shown));
}

void tst_LogConstTableViewModel::headerRolesAndRange()
{
    LogConstTableViewModel model;
    model.setColumnHeaderData(words("A B"));
    model.setGridData(listsOf("1 2|3 4"));
    QCOMPARE(model.headerData(0, Qt::Vertical), QVariant(0));
    QCOMPARE(model.headerData(0, Qt::Vertical).toString(), QString::fromLatin1("0"));
    QCOMPARE(model.headerData(11, Qt::Vertical), QVariant(11));
    QVERIFY(!model.headerData(0, Qt::Vertical, Qt::ToolTipRole).isValid());
    QVERIFY(!model.headerData(0, Qt::Horizontal, Qt::ForegroundRole).isValid());
    QVERIFY(!model.headerData(2, Qt::Horizontal).isValid());
    QVERIFY(!model.headerData(-1, Qt::Horizontal).isValid());
}

void tst_LogConstTableViewModel::showsValues()
{
    LogConstTableViewModel model;
    ModelTester tester(&model);
    model.setColumnHeaderData(words("A B"));
    model.setGridData(listsOf("1 2 3|4 5 6 7"));
    QString shown = QString::fromLatin1("1 4|2 5|3 6|- 7");
    for (int row = 4; row < 12; ++row)
        shown += QLatin1String("|- -");
    QCOMPARE(shownText(model), shown);
}

void tst_LogConstTableViewModel::tellsOfAMissingConstant()
{
    LogConstTableViewModel model;
    model.setColumnHeaderData(words("A B"));
    model.setGridData(listsOf("1 2"));
    const char *line = "Const column index equal or greater than than grid count";
    expectDebugLine(line);
    QVERIFY(!model.index(0, 1).data().isValid());
    expectDebugLine(line);
    QVERIFY(!model.index(1, 1).data().isValid());
    QCOMPARE(model.index(1, 0).data().toString(), QString::fromLatin1("2"));
}

void tst_LogConstTableViewModel::answersOtherRoles()
{
    LogConstTableViewModel model;
    ModelTester tester(&model);
    model.setColumnHeaderData(words("A"));
    model.setGridData(listsOf("1"));
    QCOMPARE(qvariant_cast<QColor>(model.index(0, 0).data(Qt::ForegroundRole)), QColor(Qt::black));
    QCOMPARE(qvariant_cast<QColor>(model.index(11, 0).data(Qt::ForegroundRole)), QColor(Qt::black));
    QVERIFY(!model.index(0, 0).data(Qt::CheckStateRole).isValid());
    QVERIFY(!model.index(0, 0).data(Qt::EditRole).isValid());
    QVERIFY(!model.data(QModelIndex()).isValid());
    QVERIFY(model.flags(model.index(0, 0)) & Qt::ItemIsEnabled);
    QVERIFY(model.flags(model.index(0, 0)) & Qt::ItemIsSelectable);
    QVERIFY(!model.setData(model.index(0, 0), 2, Qt::EditRole));
}

void tst_LogConstTableViewModel::settingHeadersResets()
{
    LogConstTableViewModel model;
    ModelTester tester(&model);
    model.setGridData(listsOf("1|2"));
    QSignalSpy before(&model, SIGNAL(modelAboutToBeReset()));
    QSignalSpy after(&model, SIGNAL(modelReset()));
    model.setColumnHeaderData(words("A B"));
    QCOMPARE(before.count(), 1);
    QCOMPARE(after.count(), 1);
    QCOMPARE(model.columnCount(), 2);
}

void tst_LogConstTableViewModel::settingValuesResets()
{
    LogConstTableViewModel model;
    ModelTester tester(&model);
    model.setColumnHeaderData(words("A"));
    model.setGridData(listsOf("1 2 3"));
    QSignalSpy before(&model, SIGNAL(modelAboutToBeReset()));
    QSignalSpy after(&model, SIGNAL(modelReset()));
    model.setGridData(listsOf("7"));
    QCOMPARE(before.count(), 1);
    QCOMPARE(after.count(), 1);
    QCOMPARE(model.index(0, 0).data().toString(), QString::fromLatin1("7"));
    QVERIFY(!model.index(1, 0).data().isValid());
}

QTEST_GUILESS_MAIN(tst_LogConstTableViewModel)
#include "tst_LogConstTableViewModel.moc"

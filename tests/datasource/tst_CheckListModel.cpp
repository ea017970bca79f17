#include "datasource/CheckListModel.h"
#include "support/ModelTester.h"
#include "support/TestCompat.h"

#include <QListView>
#include <QScopedPointer>
#include <QSortFilterProxyModel>

Q_DECLARE_METATYPE(QStandardItem *)

class tst_CheckListModel : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void startsEmpty();
    void newItemsCanBeCheckedButNotRenamed();
    void appendsRowsOfOneColumn();
    void checkingTellsRealChangesOnly();
    void rowsOutOfRangeAreIgnored();
    void quietChangesTellNothing();
    void quietChangesLeaveSignalsBlockedThatWere();
    void checksOnlyRowsOfAName_data();
    void checksOnlyRowsOfAName();
    void countsWhatConvertsToChecked_data();
    void countsWhatConvertsToChecked();
    void listsCheckedRows();
    void resetEmptiesWithOneReset();
    void resetInvalidatesPersistentIndexes();
    void resetInsideTheModelsOwnChange_data();
    void resetInsideTheModelsOwnChange();

    void rebuild(QStandardItem *changed);

private:
    CheckListModel *m_rebuilt;
};

namespace
{

void fill(CheckListModel &model, const char *names)
{
    foreach (const QString &name, QString::fromUtf8(names).split(QLatin1Char(',')))
        model.appendName(name);
}

QList<int> rows(const char *text)
{
    QList<int> numbers;
    foreach (const QByteArray &number, QByteArray(text).split(','))
        numbers << number.toInt();
    return *text ? numbers : QList<int>();
}

} // namespace

void tst_CheckListModel::initTestCase()
{
    qRegisterMetaType<QStandardItem *>();
}

void tst_CheckListModel::startsEmpty()
{
    CheckListModel model;
    ModelTester tester(&model);
    QCOMPARE(model.rowCount(), 0);
    QCOMPARE(model.columnCount(), 0);
    QCOMPARE(model.firstCheckedRow(), -1);
    QCOMPARE(model.checkedRows(), QList<int>());
}

void tst_CheckListModel::newItemsCanBeCheckedButNotRenamed()
{
    QScopedPointer<QStandardItem> item(CheckListModel::newItem(QLatin1String("co2")));
    QVERIFY(!item->model());
    QCOMPARE(item->text(), QString::fromLatin1("co2"));
    QVERIFY(item->isCheckable());
    QVERIFY(item->isEnabled());
    QVERIFY(!item->isEditable());
    QCOMPARE(item->data(Qt::CheckStateRole).toInt(), int(Qt::Unchecked));
}

void tst_CheckListModel::appendsRowsOfOneColumn()
{
    CheckListModel model;
    ModelTester tester(&model);
    fill(model, "a,,a");
    QCOMPARE(model.rowCount(), 3);
    QCOMPARE(model.columnCount(), 1);
    QCOMPARE(model.item(0)->text(), QString::fromLatin1("a"));
    QCOMPARE(model.item(1)->text(), QString());
    QCOMPARE(model.item(2)->text(), QString::fromLatin1("a"));
    QCOMPARE(model.checkedRows(), QList<int>());
}

void tst_CheckListModel::checkingTellsRealChangesOnly()
{
    CheckListModel model;
    ModelTester tester(&model);
    fill(model, "a,b");
    QSignalSpy changes(&model, SIGNAL(itemChanged(QStandardItem*)));
    model.setChecked(1, false);
    QCOMPARE(changes.count(), 0);
    model.setChecked(1, true);
    QCOMPARE(changes.count(), 1);
    QCOMPARE(changes.at(0).at(0).value<QStandardItem *>(), model.item(1));
    model.setChecked(1, true);
    QCOMPARE(changes.count(), 1);
    model.setChecked(1, false);
    QCOMPARE(changes.count(), 2);
}

void tst_CheckListModel::rowsOutOfRangeAreIgnored()
{
    CheckListModel model;
    ModelTester tester(&model);
    fill(model, "a");
    QSignalSpy changes(&model, SIGNAL(itemChanged(QStandardItem*)));
    model.setChecked(-1, true);
    model.setChecked(1, true);
    model.setCheckedQuietly(99, true);
    QCOMPARE(changes.count(), 0);
    QCOMPARE(model.rowCount(), 1);
    QCOMPARE(model.checkedRows(), QList<int>());
    QVERIFY(!model.isChecked(-1));
    QVERIFY(!model.isChecked(1));
}

void tst_CheckListModel::quietChangesTellNothing()
{
    CheckListModel model;
    ModelTester tester(&model);
    fill(model, "a,b,c");
    QSignalSpy items(&model, SIGNAL(itemChanged(QStandardItem*)));
    QSignalSpy data(&model, SIGNAL(dataChanged(QModelIndex,QModelIndex)));
    model.setCheckedQuietly(0, true);
    QCOMPARE(model.checkedRows(), rows("0"));
    model.checkOnlyQuietly(QLatin1String("c"));
    QCOMPARE(model.checkedRows(), rows("2"));
    model.uncheckAllQuietly();
    QCOMPARE(model.checkedRows(), QList<int>());
    QCOMPARE(items.count(), 0);
    QCOMPARE(data.count(), 0);
    QVERIFY(!model.signalsBlocked());
}

void tst_CheckListModel::quietChangesLeaveSignalsBlockedThatWere()
{
    CheckListModel model;
    fill(model, "a");
    model.blockSignals(true);
    model.setCheckedQuietly(0, true);
    model.uncheckAllQuietly();
    model.checkOnlyQuietly(QLatin1String("a"));
    QVERIFY(model.signalsBlocked());
    model.reset();
    QVERIFY(model.signalsBlocked());
}

void tst_CheckListModel::checksOnlyRowsOfAName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("checked");
    QTest::newRow("case matters") << "CO2"
                                  << "1";
    QTest::newRow("every row of the name") << "co2"
                                           << "0,3";
    QTest::newRow("the whole name") << "H2"
                                    << "";
    QTest::newRow("no such name") << "none"
                                  << "";
    QTest::newRow("no name") << ""
                             << "4";
}

void tst_CheckListModel::checksOnlyRowsOfAName()
{
    QFETCH(QString, name);
    QFETCH(QString, checked);
    CheckListModel model;
    fill(model, "co2,CO2,H2O,co2,");
    model.setChecked(2, true);
    model.checkOnlyQuietly(name);
    QCOMPARE(model.checkedRows(), rows(checked.toLatin1()));
}

void tst_CheckListModel::countsWhatConvertsToChecked_data()
{
    QTest::addColumn<QVariant>("state");
    QTest::addColumn<bool>("isChecked");
    QTest::newRow("checked") << QVariant(2) << true;
    QTest::newRow("unchecked") << QVariant(0) << false;
    QTest::newRow("partially") << QVariant(1) << false;
    QTest::newRow("a text that converts") << QVariant(QString::fromLatin1("2")) << true;
    QTest::newRow("a text that does not") << QVariant(QString::fromLatin1("yes")) << false;
    QTest::newRow("nothing") << QVariant() << false;
    QTest::newRow("a list") << QVariant(QVariantList() << 2) << false;
}

void tst_CheckListModel::countsWhatConvertsToChecked()
{
    QFETCH(QVariant, state);
    QFETCH(bool, isChecked);
    CheckListModel model;
    fill(model, "a");
    model.item(0)->setData(state, Qt::CheckStateRole);
    QCOMPARE(model.isChecked(0), isChecked);
    QCOMPARE(model.checkedRows(), isChecked ? rows("0") : QList<int>());
    QCOMPARE(model.firstCheckedRow(), isChecked ? 0 : -1);
}

void tst_CheckListModel::listsCheckedRows()
{
    CheckListModel model;
    fill(model, "a,b,c,d,e");
    model.setChecked(4, true);
    model.setChecked(2, true);
    QCOMPARE(model.checkedRows(), rows("2,4"));
    QCOMPARE(model.firstCheckedRow(), 2);
}

void tst_CheckListModel::resetEmptiesWithOneReset()
{
    CheckListModel model;
    ModelTester tester(&model);
    fill(model, "a,b");
    QSignalSpy before(&model, SIGNAL(modelAboutToBeReset()));
    QSignalSpy after(&model, SIGNAL(modelReset()));
    QSignalSpy removals(&model, SIGNAL(rowsRemoved(QModelIndex,int,int)));
    model.reset();
    QCOMPARE(model.rowCount(), 0);
    QCOMPARE(model.columnCount(), 0);
    QCOMPARE(before.count(), 1);
    QCOMPARE(after.count(), 1);
    QCOMPARE(removals.count(), 0);
    model.reset();
    QCOMPARE(after.count(), 2);
    fill(model, "c");
    QCOMPARE(model.item(0)->text(), QString::fromLatin1("c"));
    QCOMPARE(model.columnCount(), 1);
}

void tst_CheckListModel::resetInvalidatesPersistentIndexes()
{
    CheckListModel model;
    fill(model, "a,b");
    const QPersistentModelIndex kept(model.index(1, 0));
    model.reset();
    fill(model, "a,b");
    QVERIFY(!kept.isValid());
}

void tst_CheckListModel::resetInsideTheModelsOwnChange_data()
{
    QTest::addColumn<bool>("throughProxy");
    QTest::newRow("list") << false;
    QTest::newRow("list over a proxy") << true;
}

/** What the criteria list does: a check rebuilds the very model whose item was checked. */
void tst_CheckListModel::resetInsideTheModelsOwnChange()
{
    QFETCH(bool, throughProxy);
    CheckListModel model;
    ModelTester tester(&model);
    QSortFilterProxyModel proxy;
    proxy.setSourceModel(&model);
    ModelTester proxyTester(&proxy);
    QListView view;
    view.setModel(throughProxy ? static_cast<QAbstractItemModel *>(&proxy) : &model);
    fill(model, "a,b,c");
    m_rebuilt = &model;
    connect(&model, SIGNAL(itemChanged(QStandardItem*)), SLOT(rebuild(QStandardItem*)));
    view.resize(200, 200);
    view.show();
    for (int row = 0; row < 3; ++row) {
        const QModelIndex index = view.model()->index(row, 0);
        view.setCurrentIndex(index);
        QVERIFY(view.model()->setData(index, Qt::Checked, Qt::CheckStateRole));
        QCoreApplication::processEvents();
        QCOMPARE(model.checkedRows(), QList<int>() << row);
        QCOMPARE(proxy.rowCount(), 3);
    }
}

void tst_CheckListModel::rebuild(QStandardItem *changed)
{
    const int row = changed->row();
    m_rebuilt->reset();
    const char *names[] = {"a", "b", "c"};
    for (int i = 0; i < 3; ++i) {
        QStandardItem *item = CheckListModel::newItem(QLatin1String(names[i]));
        item->setCheckState(i == row ? Qt::Checked : Qt::Unchecked);
        m_rebuilt->appendRow(item);
    }
}

QTEST_MAIN(tst_CheckListModel)
#include "tst_CheckListModel.moc"

#include "datasource/SourceFixture.h"

#include <QPointer>

typedef QDeclarativeListProperty<Variable> VariableProperty;

/** Which variables are on which axis, and the groups behind the choice. */
class tst_LogDataSourceSelection : public QObject
{
    Q_OBJECT

private slots:
    void selectsRows_data();
    void selectsRows();
    void selectionOutOfRange_data();
    void selectionOutOfRange();
    void eachSelectionRecomputes();
    void theSameStateDoesNotRecompute();
    void checkingInAViewRecomputes();
    void selectsOnlyOneName_data();
    void selectsOnlyOneName();
    void selectingByNameIsQuietButRecomputesOnce();
    void selectingAnUnknownNameRecomputes();
    void checkedItems_data();
    void checkedItems();
    void checkedItemsSkipWhatDoesNotConvert();
    void nothingIsCheckedAfterALoad();
    void choosesAGroup_data();
    void choosesAGroup();
    void anUnknownGroupKeepsTheList();
    void groupsOfTheShownDataSet();
    void axesHaveListsOfTheirOwn();
    void variableListsAreCleared();
    void groupIndexes_data();
    void groupIndexes();
    void groupIndexesNeedTheListToBeRead();
    void groupIndexesStayUntilTheListIsReadAgain();
    void variableIndexes();
};

namespace
{

const char *const kSetGroup[] = {"setHorizontalGroup", "setLeftGroup", "setRightGroup"};
const char *const kSetVariable[] = {"setHorizontalVariable", "setLeftVariable", "setRightVariable"};
const char *const kGroupIndex[]
    = {"getHorizontalGroupIndex", "getLeftGroupIndex", "getRightGroupIndex"};
const char *const kVariableIndex[]
    = {"getHorizontalVariableIndex", "getLeftVariableIndex", "getRightVariableIndex"};

QByteArray gasLog()
{
    return logBlock("Sys Sys Gas Gas Gas Met", "Obs Time co2 CO2 H2O co2",
                    "1 10:00:00 1 2 3 4|2 10:00:30 5 6 7 8")
        + logBlock("Gas Air", "O3 T", "");
}

void addAxes()
{
    QTest::addColumn<int>("axis");
    QTest::newRow("horizontal") << 0;
    QTest::newRow("left") << 1;
    QTest::newRow("right") << 2;
}

void call(LogDataSourceItem &source, const char *slot, const char *name)
{
    QVERIFY(QMetaObject::invokeMethod(&source, slot, Q_ARG(QString, text(name))));
}

int ask(LogDataSourceItem &source, const char *slot, const char *name)
{
    int answer = -99;
    QMetaObject::invokeMethod(&source, slot, Q_RETURN_ARG(int, answer), Q_ARG(QString, text(name)));
    return answer;
}

VariableProperty variables(LogDataSourceItem &source, int axis)
{
    switch (axis) {
    case 0:
        return source.horizontalVariables();
    case 1:
        return source.leftVariables();
    default:
        return source.rightVariables();
    }
}

QString checkedOn(SourceFixture &f)
{
    QStringList axes;
    for (int axis = 0; axis < 3; ++axis)
        axes << intTexts(f.source->checkedItemList(axis));
    return axes.join(QLatin1String("|"));
}

} // namespace

void tst_LogDataSourceSelection::selectsRows_data()
{
    addAxes();
}

void tst_LogDataSourceSelection::selectsRows()
{
    QFETCH(int, axis);
    SourceFixture f;
    f.show(gasLog());
    QStandardItemModel *models[]
        = {f.source->xVariableModel(), f.source->yVariableModel(), f.source->zVariableModel()};
    f.source->updateVariableSelection(axis, 1, true);
    f.source->updateVariableSelection(axis, 5, true);
    QCOMPARE(intTexts(f.source->checkedItemList(axis)), text("1,5"));
    QCOMPARE(checkedOn(f).count(QLatin1Char(',')), 1);
    QCOMPARE(models[axis]->index(5, 0).data(Qt::CheckStateRole), QVariant(2));
    f.source->updateVariableSelection(axis, 1, false);
    QCOMPARE(intTexts(f.source->checkedItemList(axis)), text("5"));
    QCOMPARE(models[axis]->index(1, 0).data(Qt::CheckStateRole), QVariant(0));
}

void tst_LogDataSourceSelection::selectionOutOfRange_data()
{
    QTest::addColumn<int>("axis");
    QTest::addColumn<int>("index");
    QTest::newRow("axis 3") << 3 << 0;
    QTest::newRow("axis 4") << 4 << 0;
    QTest::newRow("axis -1") << -1 << 0;
    QTest::newRow("row 99") << 1 << 99;
    QTest::newRow("row past the last") << 0 << 6;
    QTest::newRow("row -1") << 2 << -1;
}

void tst_LogDataSourceSelection::selectionOutOfRange()
{
    QFETCH(int, axis);
    QFETCH(int, index);
    SourceFixture f;
    f.show(gasLog());
    f.source->updateVariableSelection(axis, index, true);
    QCOMPARE(checkedOn(f), text("||"));
    QCOMPARE(intTexts(f.source->checkedItemList(3)), text("0"));
    QCOMPARE(f.recorder.take(), QString());
}

void tst_LogDataSourceSelection::eachSelectionRecomputes()
{
    SourceFixture f;
    f.show(gasLog());
    f.source->updateVariableSelection(0, 2, true);
    f.source->updateVariableSelection(0, 4, true);
    QCOMPARE(checkedOn(f), text("2,4||"));
    QCOMPARE(f.recorder.take(), text("graphDataUpdated graphDataUpdated"));
}

void tst_LogDataSourceSelection::theSameStateDoesNotRecompute()
{
    SourceFixture f;
    f.show(gasLog());
    f.source->updateVariableSelection(1, 2, false);
    QCOMPARE(f.recorder.take(), QString());
    f.source->updateVariableSelection(1, 2, true);
    QCOMPARE(f.recorder.take(), text("graphDataUpdated"));
    f.source->updateVariableSelection(1, 2, true);
    QCOMPARE(f.recorder.take(), QString());
}

void tst_LogDataSourceSelection::checkingInAViewRecomputes()
{
    SourceFixture f;
    f.show(gasLog());
    QAbstractItemModel *models[]
        = {f.source->xVariableModel(), f.source->yVariableModel(), f.source->zVariableModel()};
    for (int axis = 0; axis < 3; ++axis) {
        QVERIFY(models[axis]->setData(models[axis]->index(2, 0), Qt::Checked, Qt::CheckStateRole));
        QCOMPARE(f.recorder.take(), text("graphDataUpdated"));
    }
    QCOMPARE(checkedOn(f), text("2|2|2"));
}

void tst_LogDataSourceSelection::selectsOnlyOneName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("checked");
    QTest::newRow("case matters") << "CO2"
                                  << "3";
    QTest::newRow("every row of the name") << "co2"
                                           << "2,5";
    QTest::newRow("no such name") << "none"
                                  << "";
    QTest::newRow("part of a name") << "H2"
                                    << "";
    QTest::newRow("empty") << ""
                           << "";
}

void tst_LogDataSourceSelection::selectsOnlyOneName()
{
    QFETCH(QString, name);
    QFETCH(QString, checked);
    for (int axis = 0; axis < 3; ++axis) {
        SourceFixture f;
        f.show(gasLog());
        f.source->updateVariableSelection(axis, 4, true);
        call(*f.source, kSetVariable[axis], name.toUtf8());
        QCOMPARE(intTexts(f.source->checkedItemList(axis)), checked);
        QCOMPARE(checkedOn(f).remove(QLatin1Char('|')), checked);
    }
}

void tst_LogDataSourceSelection::selectingByNameIsQuietButRecomputesOnce()
{
    SourceFixture f;
    f.show(gasLog());
    QAbstractItemModel *models[]
        = {f.source->xVariableModel(), f.source->yVariableModel(), f.source->zVariableModel()};
    for (int axis = 0; axis < 3; ++axis) {
        QSignalSpy changes(models[axis], SIGNAL(dataChanged(QModelIndex,QModelIndex)));
        for (int i = 0; i < 2; ++i) {
            call(*f.source, kSetVariable[axis], "co2");
            QCOMPARE(f.recorder.take(), text("graphDataUpdated"));
        }
        QCOMPARE(changes.count(), 0);
    }
    QCOMPARE(seriesText(f.source->YLeftData()), text("co2 1,5|4,8"));
}

void tst_LogDataSourceSelection::selectingAnUnknownNameRecomputes()
{
    SourceFixture f;
    f.show(gasLog());
    f.source->setHorizontalVariable(text("Obs"));
    f.source->setRightVariable(text("H2O"));
    QCOMPARE(seriesText(f.source->YRightData()), text("H2O 3,7"));
    f.recorder.take();
    f.source->setRightVariable(text("none"));
    QCOMPARE(f.recorder.take(), text("graphDataUpdated"));
    QCOMPARE(seriesText(f.source->YRightData()), QString());
    QCOMPARE(intTexts(f.source->checkedItemList(2)), QString());
}

void tst_LogDataSourceSelection::checkedItems_data()
{
    QTest::addColumn<int>("list");
    QTest::addColumn<QString>("checked");
    QTest::newRow("horizontal") << 0 << "0";
    QTest::newRow("left, ascending") << 1 << "2,4";
    QTest::newRow("right") << 2 << "5";
    QTest::newRow("data sets") << 3 << "0";
    QTest::newRow("criteria") << 4 << "0,1";
    QTest::newRow("5") << 5 << "";
    QTest::newRow("-1") << -1 << "";
}

void tst_LogDataSourceSelection::checkedItems()
{
    QFETCH(int, list);
    QFETCH(QString, checked);
    SourceFixture f;
    f.show(gasLog());
    f.source->updateVariableSelection(0, 0, true);
    f.source->updateVariableSelection(1, 4, true);
    f.source->updateVariableSelection(1, 2, true);
    f.source->updateVariableSelection(2, 5, true);
    f.source->buildFilter(2, 0, text("1"));
    f.source->buildFilter(3, 0, text("1"));
    QCOMPARE(intTexts(f.source->checkedItemList(list)), checked);
}

void tst_LogDataSourceSelection::checkedItemsSkipWhatDoesNotConvert()
{
    SourceFixture f;
    f.show(gasLog());
    f.source->yVariableModel()->item(1)->setData(text("2"), Qt::CheckStateRole);
    f.source->yVariableModel()->item(2)->setData(text("yes"), Qt::CheckStateRole);
    f.source->yVariableModel()->item(3)->setData(1, Qt::CheckStateRole);
    QCOMPARE(intTexts(f.source->checkedItemList(1)), text("1"));
}

void tst_LogDataSourceSelection::nothingIsCheckedAfterALoad()
{
    SourceFixture f;
    f.show(gasLog());
    for (int axis = 0; axis < 3; ++axis)
        f.source->updateVariableSelection(axis, 2, true);
    f.load(gasLog());
    QCOMPARE(checkedOn(f), text("||"));
    QCOMPARE(intTexts(f.source->checkedItemList(3)), text("0"));
}

void tst_LogDataSourceSelection::choosesAGroup_data()
{
    addAxes();
}

void tst_LogDataSourceSelection::choosesAGroup()
{
    QFETCH(int, axis);
    SourceFixture f;
    f.show(gasLog());
    QCOMPARE(valueTexts(variables(*f.source, axis)), QString());
    call(*f.source, kSetGroup[axis], "Gas");
    QCOMPARE(valueTexts(variables(*f.source, axis)), text("co2,CO2,H2O"));
    QCOMPARE(variables(*f.source, axis).object, static_cast<QObject *>(f.source.data()));
    QCOMPARE(valueTexts(variables(*f.source, (axis + 1) % 3)), QString());
    QCOMPARE(f.recorder.take(), QString());
    call(*f.source, kSetGroup[axis], "Met");
    QCOMPARE(valueTexts(variables(*f.source, axis)), text("co2"));
}

void tst_LogDataSourceSelection::anUnknownGroupKeepsTheList()
{
    SourceFixture f;
    f.source->setLeftGroup(text("Gas"));
    QCOMPARE(valueTexts(f.source->leftVariables()), QString());
    f.show(gasLog());
    f.source->setLeftGroup(text("Gas"));
    f.source->setLeftGroup(text("gas"));
    f.source->setLeftGroup(text("Air"));
    f.source->setLeftGroup(QString());
    QCOMPARE(valueTexts(f.source->leftVariables()), text("co2,CO2,H2O"));
}

void tst_LogDataSourceSelection::groupsOfTheShownDataSet()
{
    SourceFixture f;
    f.show(gasLog());
    f.source->setLeftGroup(text("Gas"));
    f.source->selectDataSet(1);
    QCOMPARE(valueTexts(f.source->leftVariables()), text("co2,CO2,H2O"));
    f.source->setRightGroup(text("Gas"));
    QCOMPARE(valueTexts(f.source->rightVariables()), text("O3"));
    f.source->setLeftGroup(text("Sys"));
    QCOMPARE(valueTexts(f.source->leftVariables()), text("co2,CO2,H2O"));
}

void tst_LogDataSourceSelection::axesHaveListsOfTheirOwn()
{
    SourceFixture f;
    f.show(gasLog());
    f.source->setHorizontalGroup(text("Sys"));
    f.source->setLeftGroup(text("Gas"));
    f.source->setRightGroup(text("Met"));
    QCOMPARE(valueTexts(f.source->horizontalVariables()), text("Obs,Time"));
    QCOMPARE(valueTexts(f.source->leftVariables()), text("co2,CO2,H2O"));
    QCOMPARE(valueTexts(f.source->rightVariables()), text("co2"));
}

void tst_LogDataSourceSelection::variableListsAreCleared()
{
    SourceFixture f;
    f.show(gasLog());
    f.source->setLeftGroup(text("Gas"));
    VariableProperty list = f.source->leftVariables();
    const QPointer<Variable> first(list.at(&list, 0));
    Variable variable;
    list.append(&list, &variable);
    QCOMPARE(list.count(&list), 3);
    list.clear(&list);
    QCOMPARE(list.count(&list), 0);
    QCOMPARE(f.source->getLeftVariableIndex(text("co2")), -1);
    QVERIFY(first);
    f.source->setLeftGroup(text("Gas"));
    QCOMPARE(valueTexts(f.source->leftVariables()), text("co2,CO2,H2O"));
}

void tst_LogDataSourceSelection::groupIndexes_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<int>("index");
    QTest::newRow("first") << QByteArray("Gas") << 0;
    QTest::newRow("last") << QByteArray("Sys") << 2;
    QTest::newRow("case matters") << QByteArray("gas") << -1;
    QTest::newRow("empty") << QByteArray("") << -1;
}

void tst_LogDataSourceSelection::groupIndexes()
{
    QFETCH(QByteArray, name);
    QFETCH(int, index);
    SourceFixture f;
    f.show(gasLog());
    f.source->groupList();
    for (int axis = 0; axis < 3; ++axis)
        QCOMPARE(ask(*f.source, kGroupIndex[axis], name), index);
}

void tst_LogDataSourceSelection::groupIndexesNeedTheListToBeRead()
{
    SourceFixture f;
    f.show(gasLog());
    for (int axis = 0; axis < 3; ++axis)
        QCOMPARE(ask(*f.source, kGroupIndex[axis], "Gas"), -1);
}

void tst_LogDataSourceSelection::groupIndexesStayUntilTheListIsReadAgain()
{
    SourceFixture f;
    f.show(gasLog());
    f.source->groupList();
    f.source->selectDataSet(1);
    QCOMPARE(f.source->getRightGroupIndex(text("Sys")), 2);
    QCOMPARE(f.source->getRightGroupIndex(text("Air")), -1);
    f.source->groupList();
    QCOMPARE(f.source->getRightGroupIndex(text("Sys")), -1);
    QCOMPARE(f.source->getRightGroupIndex(text("Air")), 0);
}

void tst_LogDataSourceSelection::variableIndexes()
{
    SourceFixture f;
    f.show(gasLog());
    for (int axis = 0; axis < 3; ++axis) {
        QCOMPARE(ask(*f.source, kVariableIndex[axis], "CO2"), -1);
        call(*f.source, kSetGroup[axis], "Gas");
        QCOMPARE(ask(*f.source, kVariableIndex[axis], "co2"), 0);
        QCOMPARE(ask(*f.source, kVariableIndex[axis], "CO2"), 1);
        QCOMPARE(ask(*f.source, kVariableIndex[axis], "H2"), -1);
        QCOMPARE(ask(*f.source, kVariableIndex[axis], "Obs"), -1);
    }
    f.source->setLeftGroup(text("Sys"));
    QCOMPARE(f.source->getLeftVariableIndex(text("co2")), -1);
    QCOMPARE(f.source->getRightVariableIndex(text("co2")), 0);
}

QTEST_MAIN(tst_LogDataSourceSelection)
#include "tst_LogDataSourceSelection.moc"

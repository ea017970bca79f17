#include "model/LogDataSet.h"

#include "DataSetTexts.h"
#include "model/VariableGroupSet.h"
#include "support/TestCompat.h"

#include <QLocale>
#include <QPointer>
#include <QScopedPointer>

#include <limits>

class tst_LogDataSet : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void addsNothingToTheMetaObject();
    void startsEmpty();
    void belongsToItsParent();
    void holdsItsCreatedDate();
    void sortsConstants();
    void collectsValuesOfAKey();
    void groupsConstants_data();
    void groupsConstants();
    void groupsConstantsByCase();
    void sortsGroups();
    void namesGroups();
    void makesAGroupOnce();
    void makesGroupsForVariables();
    void makesAVariableForEachColumn();
    void keepsColumnOrder();
    void appendsCells();
    void growsForCellsBeyondTheHeader();
    void growsForALateCell();
    void ignoresColumnsBeforeTheFirst();
    void readsNoColumnThatIsNotThere();
    void keepsObservations();
    void ownsItsObservations();
    void readsNoRowThatIsNotThere();
    void returnsCopies();
    void names_data();
    void names();
    void namesWithTheLocale();
    void namesByTheFirstColumn();
    void sharesGroups();
    void deletesGroupsOnce();
};

void tst_LogDataSet::cleanup()
{
    QLocale::setDefault(QLocale::c());
}

void tst_LogDataSet::addsNothingToTheMetaObject()
{
    const QMetaObject &meta = LogDataSet::staticMetaObject;
    QCOMPARE(QByteArray(meta.className()), QByteArray("LogDataSet"));
    QCOMPARE(meta.superClass(), &QObject::staticMetaObject);
    QCOMPARE(meta.methodCount(), QObject::staticMetaObject.methodCount());
    QCOMPARE(meta.propertyCount(), QObject::staticMetaObject.propertyCount());
}

void tst_LogDataSet::startsEmpty()
{
    const LogDataSet dataSet(3);
    QCOMPARE(dataSet.dataSetIndex(), 3);
    QCOMPARE(dataSet.dataSetCreatedDate(), QString());
    QVERIFY(dataSet.constHeader().isEmpty());
    QVERIFY(dataSet.constData().isEmpty());
    QVERIFY(dataSet.constGroups().isEmpty());
    QVERIFY(dataSet.headerData().isEmpty());
    QVERIFY(dataSet.columnData().isEmpty());
    QVERIFY(dataSet.variables().isEmpty());
    QVERIFY(dataSet.variableGroups().isEmpty());
    QVERIFY(!dataSet.groupForName(QString()));
    QVERIFY(dataSet.observations().isEmpty());
    isConsistent(dataSet);
}

void tst_LogDataSet::belongsToItsParent()
{
    QScopedPointer<QObject> parent(new QObject);
    QPointer<LogDataSet> dataSet = new LogDataSet(0, parent.data());
    parent.reset();
    QVERIFY(!dataSet);
}

void tst_LogDataSet::holdsItsCreatedDate()
{
    LogDataSet dataSet(0);
    dataSet.setCreatedDate(text("2019-05-04 10:00"));
    QCOMPARE(dataSet.dataSetCreatedDate(), text("2019-05-04 10:00"));
    dataSet.setCreatedDate(QString());
    QCOMPARE(dataSet.dataSetCreatedDate(), QString());
}

void tst_LogDataSet::sortsConstants()
{
    LogDataSet dataSet(0);
    dataSet.appendConstHeaderData(text("B:x"), text("1"));
    dataSet.appendConstHeaderData(text("A:y"), text("2"));
    dataSet.appendConstHeaderData(text("B:z"), text("3"));
    QCOMPARE(dataSet.constHeader(), cells("A:y|B:x|B:z"));
    QCOMPARE(shown(dataSet.constData()), text("2/1/3"));
    QCOMPARE(dataSet.constGroups(), cells("B|A"));
}

void tst_LogDataSet::collectsValuesOfAKey()
{
    LogDataSet dataSet(0);
    dataSet.appendConstHeaderData(text("B:x"), text("2"));
    dataSet.appendConstHeaderData(text("A:y"), text("5"));
    dataSet.appendConstHeaderData(text("B:x"), text("1"));
    dataSet.appendConstHeaderData(text("B:x"), text("2"));
    dataSet.appendConstHeaderData(text("B:x"), QString());
    QCOMPARE(dataSet.constHeader(), cells("A:y|B:x"));
    QCOMPARE(shown(dataSet.constData()), text("5/2|1|2|"));
    QCOMPARE(dataSet.constGroups(), cells("B|A"));
}

void tst_LogDataSet::groupsConstants_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("group");

    QTest::newRow("prefix") << "Chamber:area"
                            << "Chamber";
    QTest::newRow("colon at the end") << "Chamber:"
                                      << "Chamber";
    QTest::newRow("no colon") << "Chamber"
                              << "Chamber";
    QTest::newRow("two colons") << "a:b:c"
                                << "a";
    QTest::newRow("colon in front") << ":a"
                                    << "";
    QTest::newRow("two in front") << "::"
                                  << "";
    QTest::newRow("blanks stay") << " a : b"
                                 << " a ";
    QTest::newRow("empty") << ""
                           << "";
}

void tst_LogDataSet::groupsConstants()
{
    QFETCH(QString, key);
    QFETCH(QString, group);

    LogDataSet dataSet(0);
    dataSet.appendConstHeaderData(key, text("1"));
    QCOMPARE(dataSet.constHeader(), QStringList() << key);
    QCOMPARE(dataSet.constGroups(), QStringList() << group);
}

void tst_LogDataSet::groupsConstantsByCase()
{
    LogDataSet dataSet(0);
    dataSet.appendConstHeaderData(text("a:x"), text("1"));
    dataSet.appendConstHeaderData(text("A:x"), text("1"));
    dataSet.appendConstHeaderData(text("a"), text("1"));
    QCOMPARE(dataSet.constHeader(), cells("A:x|a|a:x"));
    QCOMPARE(dataSet.constGroups(), cells("a|A"));
}

void tst_LogDataSet::sortsGroups()
{
    LogDataSet dataSet(0);
    addColumn(dataSet, "Zeta", "a", "");
    addColumn(dataSet, "Alpha", "b", "");
    QCOMPARE(groupNames(dataSet), text("Alpha|Zeta"));
}

void tst_LogDataSet::namesGroups()
{
    LogDataSet dataSet(0);
    const VariableGroup *group = dataSet.addGroup(text("Gas"));
    QCOMPARE(group->option(), text("Gas"));
    QCOMPARE(group->value(), QVariant(text("Gas")));
    QCOMPARE(group->value().type(), QVariant::String);
    QVERIFY(!group->parent());
    QVERIFY(group->variables().isEmpty());
}

void tst_LogDataSet::makesAGroupOnce()
{
    LogDataSet dataSet(0);
    VariableGroup *group = dataSet.addGroup(text("Gas"));
    QCOMPARE(dataSet.addGroup(text("Gas")), group);
    QCOMPARE(dataSet.groupForName(text("Gas")), group);
    QVERIFY(dataSet.addGroup(text("gas")) != group);
    QVERIFY(!dataSet.groupForName(text("Env")));
    QCOMPARE(groupNames(dataSet), text("Gas|gas"));
}

void tst_LogDataSet::makesGroupsForVariables()
{
    LogDataSet dataSet(0);
    const Variable *variable = dataSet.addVariableToGroup(text("Gas"), text("CO2"));
    QCOMPARE(variable->option(), text("CO2"));
    QCOMPARE(variable->value(), QVariant(text("CO2")));
    QCOMPARE(variable->value().type(), QVariant::String);
    QVERIFY(!variable->parent());
    QCOMPARE(groupNames(dataSet), text("Gas"));
    QCOMPARE(variableNames(dataSet.groupForName(text("Gas"))), text("CO2"));
    QVERIFY(dataSet.variables().isEmpty());
}

void tst_LogDataSet::makesAVariableForEachColumn()
{
    LogDataSet dataSet(0);
    addColumn(dataSet, "Gas", "CO2", "ppm");
    addColumn(dataSet, "Env", "T", "C");
    addColumn(dataSet, "Gas", "CO2", "kPa");
    QCOMPARE(dataSet.variables(), cells("CO2|T|CO2"));
    const QList<Variable *> variables = dataSet.groupForName(text("Gas"))->variables();
    QCOMPARE(variables.size(), 2);
    QVERIFY(variables.at(0) != variables.at(1));
    QCOMPARE(variables.at(0)->option(), variables.at(1)->option());
}

void tst_LogDataSet::keepsColumnOrder()
{
    LogDataSet dataSet(0);
    addColumn(dataSet, "Zeta", "b", "m");
    addColumn(dataSet, "Alpha", "a", "");
    QCOMPARE(shown(dataSet.headerData()), text("Zeta|b|m/Alpha|a|"));
    QCOMPARE(dataSet.variables(), cells("b|a"));
    QCOMPARE(shown(dataSet.columnData()), text("/"));
    isConsistent(dataSet);
}

void tst_LogDataSet::appendsCells()
{
    LogDataSet dataSet(0);
    addColumn(dataSet, "g", "a", "");
    addColumn(dataSet, "g", "b", "");
    dataSet.appendColumnData(0, text("1"));
    dataSet.appendColumnData(1, text("\"2\""));
    dataSet.appendColumnData(0, text("3"));
    QCOMPARE(dataSet.dataForColumn(0), cells("1|3"));
    QCOMPARE(dataSet.dataForColumn(1), cells("\"2\""));
    isConsistent(dataSet);
}

void tst_LogDataSet::growsForCellsBeyondTheHeader()
{
    LogDataSet dataSet(0);
    addColumn(dataSet, "g", "a", "m");
    addCells(dataSet, cells("1|2|3"));
    QCOMPARE(shown(dataSet.headerData()), text("g|a|m/?|?|?/?|?|?"));
    QCOMPARE(shown(dataSet.columnData()), text("1/2/3"));
    QCOMPARE(dataSet.variables(), cells("a"));
    QCOMPARE(groupNames(dataSet), text("?|g"));
    QVERIFY(dataSet.groupForName(text("?"))->variables().isEmpty());
    isConsistent(dataSet);
}

void tst_LogDataSet::growsForALateCell()
{
    LogDataSet dataSet(0);
    dataSet.appendColumnData(2, text("x"));
    QCOMPARE(shown(dataSet.headerData()), text("?|?|?/?|?|?/?|?|?"));
    QCOMPARE(shown(dataSet.columnData()), text("//x"));
    isConsistent(dataSet);
}

void tst_LogDataSet::ignoresColumnsBeforeTheFirst()
{
    LogDataSet dataSet(0);
    dataSet.appendColumnData(-1, text("x"));
    QVERIFY(dataSet.headerData().isEmpty());
    QVERIFY(dataSet.columnData().isEmpty());
}

void tst_LogDataSet::readsNoColumnThatIsNotThere()
{
    LogDataSet dataSet(0);
    addRow(dataSet, "1|2");
    QVERIFY(dataSet.dataForColumn(-1).isEmpty());
    QVERIFY(dataSet.dataForColumn(2).isEmpty());
    QVERIFY(dataSet.dataForColumn(std::numeric_limits<int>::max()).isEmpty());
    dataSet.appendColumnData(0, text("3"));
    QVERIFY(dataSet.dataForColumn(-1).isEmpty());
    QVERIFY(dataSet.dataForColumn(2).isEmpty());
}

void tst_LogDataSet::keepsObservations()
{
    LogDataSet dataSet(0);
    dataSet.addObservation(cells("1|\"10:00:00\"|x"));
    dataSet.addObservation(QStringList());
    const QList<Observation *> observations = dataSet.observations();
    QCOMPARE(observations.size(), 2);
    QCOMPARE(observations.at(0)->values(), cells("1|\"10:00:00\"|x"));
    QCOMPARE(observations.at(1)->values(), QStringList());
    QVERIFY(!observations.at(0)->checked());
    QVERIFY(!observations.at(0)->parent());
    QCOMPARE(dataSet.observations(), observations);
    QVERIFY(dataSet.columnData().isEmpty());
    isConsistent(dataSet);
}

void tst_LogDataSet::ownsItsObservations()
{
    QScopedPointer<LogDataSet> dataSet(new LogDataSet(0));
    addRow(*dataSet, "1|2");
    dataSet->addObservation(cells("3"));
    const QPointer<Observation> stored = dataSet->observations().at(0);
    const QPointer<Observation> loose = dataSet->observations().at(1);
    dataSet.reset();
    QVERIFY(!stored);
    QVERIFY(!loose);
}

void tst_LogDataSet::readsNoRowThatIsNotThere()
{
    LogDataSet dataSet(0);
    QVERIFY(dataSet.observationTexts(-1).isEmpty());
    QVERIFY(dataSet.observationTexts(0).isEmpty());
    addRow(dataSet, "1|2");
    QVERIFY(dataSet.observationTexts(-1).isEmpty());
    QVERIFY(dataSet.observationTexts(1).isEmpty());
    dataSet.addObservation(cells("3"));
    QCOMPARE(dataSet.observationTexts(1), cells("3"));
    QVERIFY(dataSet.observationTexts(2).isEmpty());
}

void tst_LogDataSet::returnsCopies()
{
    LogDataSet dataSet(0);
    addColumn(dataSet, "g", "a", "");
    dataSet.appendColumnData(0, text("1"));
    dataSet.columnData()[0].append(text("2"));
    dataSet.headerData()[0].clear();
    dataSet.variables().clear();
    dataSet.observations().append(nullptr);
    QCOMPARE(shown(dataSet.columnData()), text("1"));
    QCOMPARE(shown(dataSet.headerData()), text("g|a|"));
    QCOMPARE(dataSet.variables(), cells("a"));
    QVERIFY(dataSet.observations().isEmpty());
}

void tst_LogDataSet::names_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("date");
    QTest::addColumn<int>("columns");
    QTest::addColumn<int>("rows");
    QTest::addColumn<QString>("name");

    QTest::newRow("no columns") << 0 << "2019-05-04" << 0 << 0 << "0: 2019-05-04 [No Data]";
    QTest::newRow("three rows") << 1 << "2019-05-04" << 2 << 3 << "1: 2019-05-04 #Obs=3";
    QTest::newRow("columns, no rows") << 2 << "2019-05-04" << 2 << 0 << "2: 2019-05-04 #Obs=0";
    QTest::newRow("no date") << 0 << "" << 1 << 1 << "0:  #Obs=1";
    QTest::newRow("no date, no columns") << 0 << "" << 0 << 0 << "0:  [No Data]";
    QTest::newRow("percent signs") << 4 << "%1 %L3 5%" << 1 << 2 << "4: %1 %L3 5% #Obs=2";
}

void tst_LogDataSet::names()
{
    QFETCH(int, index);
    QFETCH(QString, date);
    QFETCH(int, columns);
    QFETCH(int, rows);

    LogDataSet dataSet(index);
    dataSet.setCreatedDate(date);
    for (int column = 0; column < columns; ++column)
        addColumn(dataSet, "g", "v", "");
    for (int row = 0; row < rows; ++row)
        addRow(dataSet, "1|2");
    QTEST(dataSet.dataSetName(), "name");
}

void tst_LogDataSet::namesWithTheLocale()
{
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    LogDataSet dataSet(1234);
    dataSet.setCreatedDate(text("1234"));
    QCOMPARE(dataSet.dataSetName(), text("1,234: 1234 [No Data]"));
    for (int row = 0; row < 1500; ++row)
        addRow(dataSet, "1|2");
    QCOMPARE(dataSet.dataSetName(), text("1,234: 1234 #Obs=1,500"));
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    QCOMPARE(dataSet.dataSetName(), text("1.234: 1234 #Obs=1.500"));
}

void tst_LogDataSet::namesByTheFirstColumn()
{
    LogDataSet dataSet(0);
    addColumn(dataSet, "g", "a", "");
    dataSet.addObservation(cells("1"));
    dataSet.addObservation(cells("2"));
    dataSet.appendColumnData(1, text("x"));
    QCOMPARE(dataSet.dataSetName(), text("0:  #Obs=0"));
    dataSet.appendColumnData(0, text("x"));
    QCOMPARE(dataSet.dataSetName(), text("0:  #Obs=1"));
    addRow(dataSet, "1|2");
    QCOMPARE(dataSet.dataSetName(), text("0:  #Obs=2"));
}

void tst_LogDataSet::sharesGroups()
{
    QScopedPointer<LogDataSet> dataSet(new LogDataSet(0));
    addColumn(*dataSet, "Gas", "CO2", "");
    addColumn(*dataSet, "Gas", "H2O", "");
    const QPointer<VariableGroup> group = dataSet->groupForName(text("Gas"));
    const QPointer<Variable> variable = group->variables().at(1);
    QSharedPointer<VariableGroupSet> shared = dataSet->groupSet();
    dataSet.reset();
    QVERIFY(group);
    QCOMPARE(shared->group(text("Gas")), group.data());
    QCOMPARE(variableNames(shared->groups().at(0)), text("CO2|H2O"));
    shared.clear();
    QVERIFY(!group);
    QVERIFY(!variable);
}

void tst_LogDataSet::deletesGroupsOnce()
{
    QScopedPointer<LogDataSet> dataSet(new LogDataSet(0));
    QSharedPointer<VariableGroupSet> shared = dataSet->groupSet();
    addColumn(*dataSet, "Gas", "CO2", ""); // seen by who shared before, too
    VariableGroup *group = shared->group(text("Gas"));
    QVERIFY(group);
    QSignalSpy groupGone(group, SIGNAL(destroyed(QObject*)));
    QSignalSpy variableGone(group->variables().at(0), SIGNAL(destroyed(QObject*)));
    shared.clear();
    QCOMPARE(groupGone.count(), 0);
    dataSet.reset();
    QCOMPARE(groupGone.count(), 1);
    QCOMPARE(variableGone.count(), 1);
}

QTEST_GUILESS_MAIN(tst_LogDataSet)
#include "tst_LogDataSet.moc"

#include "datasource/AxisVariables.h"
#include "support/TestCompat.h"

#include <QPointer>

typedef QDeclarativeListProperty<Variable> ListProperty;

class tst_AxisVariables : public QObject
{
    Q_OBJECT

private slots:
    void startsEmpty();
    void showsTheVariablesOfAGroup();
    void findsTheFirstOfAName_data();
    void findsTheFirstOfAName();
    void outlivesTheDataSet();
    void letsGoOfWhatItShowedBefore();
    void scriptsCannotAppend();
    void clearingDeletesNothing();
};

namespace
{

QSharedPointer<VariableGroupSet> newSet()
{
    QSharedPointer<VariableGroupSet> set(new VariableGroupSet);
    const char *names[] = {"co2", "CO2", "co2"};
    for (int i = 0; i < 3; ++i)
        set->addVariable(QLatin1String("Gas"), QLatin1String(names[i]));
    set->addVariable(QLatin1String("Sys"), QLatin1String("Obs"));
    return set;
}

const VariableGroup &groupOf(const QSharedPointer<VariableGroupSet> &set, const char *name)
{
    return *set->group(QLatin1String(name));
}

} // namespace

void tst_AxisVariables::startsEmpty()
{
    AxisVariables axis;
    ListProperty list = axis.property(this);
    QCOMPARE(list.object, static_cast<QObject *>(this));
    QCOMPARE(list.count(&list), 0);
    QVERIFY(!list.at(&list, 0));
    QCOMPARE(axis.indexOf(QLatin1String("co2")), -1);
    QCOMPARE(axis.indexOf(QString()), -1);
}

void tst_AxisVariables::showsTheVariablesOfAGroup()
{
    const QSharedPointer<VariableGroupSet> set = newSet();
    AxisVariables axis;
    axis.show(groupOf(set, "Gas"), set);
    ListProperty list = axis.property(this);
    QCOMPARE(list.count(&list), 3);
    QCOMPARE(list.at(&list, 1)->option(), QString::fromLatin1("CO2"));
    QCOMPARE(list.at(&list, 2), groupOf(set, "Gas").variables().at(2));
    QVERIFY(!list.at(&list, 3));
    QVERIFY(!list.at(&list, -1));
    axis.show(groupOf(set, "Sys"), set);
    QCOMPARE(list.count(&list), 1);
}

void tst_AxisVariables::findsTheFirstOfAName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("index");
    QTest::newRow("first of two") << "co2" << 0;
    QTest::newRow("case matters") << "CO2" << 1;
    QTest::newRow("part of a name") << "co" << -1;
    QTest::newRow("of another group") << "Obs" << -1;
    QTest::newRow("empty") << "" << -1;
}

void tst_AxisVariables::findsTheFirstOfAName()
{
    QFETCH(QString, name);
    QFETCH(int, index);
    const QSharedPointer<VariableGroupSet> set = newSet();
    AxisVariables axis;
    axis.show(groupOf(set, "Gas"), set);
    QCOMPARE(axis.indexOf(name), index);
}

void tst_AxisVariables::outlivesTheDataSet()
{
    QSharedPointer<VariableGroupSet> set = newSet();
    AxisVariables axis;
    axis.show(groupOf(set, "Gas"), set);
    set.clear();
    ListProperty list = axis.property(this);
    QCOMPARE(list.at(&list, 1)->value().toString(), QString::fromLatin1("CO2"));
    QCOMPARE(axis.indexOf(QLatin1String("CO2")), 1);
}

void tst_AxisVariables::letsGoOfWhatItShowedBefore()
{
    QSharedPointer<VariableGroupSet> set = newSet();
    const QPointer<Variable> variable(groupOf(set, "Gas").variables().at(0));
    AxisVariables axis;
    axis.show(groupOf(set, "Gas"), set);
    set.clear();
    QVERIFY(variable);
    const QSharedPointer<VariableGroupSet> next = newSet();
    axis.show(groupOf(next, "Sys"), next);
    QVERIFY(!variable);
}

void tst_AxisVariables::scriptsCannotAppend()
{
    const QSharedPointer<VariableGroupSet> set = newSet();
    AxisVariables axis;
    axis.show(groupOf(set, "Sys"), set);
    ListProperty list = axis.property(this);
    Variable variable;
    list.append(&list, &variable);
    QCOMPARE(list.count(&list), 1);
}

void tst_AxisVariables::clearingDeletesNothing()
{
    const QSharedPointer<VariableGroupSet> set = newSet();
    AxisVariables axis;
    axis.show(groupOf(set, "Sys"), set);
    const QPointer<Variable> variable(groupOf(set, "Sys").variables().at(0));
    ListProperty list = axis.property(this);
    list.clear(&list);
    QCOMPARE(list.count(&list), 0);
    QVERIFY(variable);
    QCOMPARE(groupOf(set, "Sys").variables().size(), 1);
}

QTEST_GUILESS_MAIN(tst_AxisVariables)
#include "tst_AxisVariables.moc"

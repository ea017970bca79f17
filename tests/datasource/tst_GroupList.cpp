#include "datasource/GroupList.h"
#include "model/Variable.h"
#include "support/TestCompat.h"

#include <QScopedPointer>

typedef QDeclarativeListProperty<VariableGroup> ListProperty;

class tst_GroupList : public QObject
{
    Q_OBJECT

private slots:
    void startsEmpty();
    void showsAllGroupsByName();
    void findsTheFirstOfAName();
    void showsNothingWithoutADataSet();
    void outlivesTheDataSet();
    void letsGoOfWhatItShowedBefore();
    void scriptsCanAppend();
    void survivesTheDeathOfWhatWasAppended();
    void clearingDeletesNothing();
};

namespace
{

QSharedPointer<VariableGroupSet> newSet()
{
    QSharedPointer<VariableGroupSet> set(new VariableGroupSet);
    set->addGroup(QLatin1String("Zeta"));
    set->addVariable(QLatin1String("Alpha"), QLatin1String("co2"));
    return set;
}

} // namespace

void tst_GroupList::startsEmpty()
{
    GroupList groups;
    ListProperty list = groups.property(this);
    QCOMPARE(list.object, static_cast<QObject *>(this));
    QCOMPARE(list.count(&list), 0);
    QVERIFY(!list.at(&list, 0));
    QCOMPARE(groups.indexOf(QLatin1String("Alpha")), -1);
}

void tst_GroupList::showsAllGroupsByName()
{
    const QSharedPointer<VariableGroupSet> set = newSet();
    GroupList groups;
    groups.show(set);
    ListProperty list = groups.property(this);
    QCOMPARE(list.count(&list), 2);
    QCOMPARE(list.at(&list, 0), set->group(QLatin1String("Alpha")));
    QCOMPARE(list.at(&list, 1), set->group(QLatin1String("Zeta")));
    QVERIFY(!list.at(&list, 2));
    QVERIFY(!list.at(&list, -1));
}

void tst_GroupList::findsTheFirstOfAName()
{
    GroupList groups;
    groups.show(newSet());
    VariableGroup twin;
    twin.setOption(QLatin1String("Zeta"));
    ListProperty list = groups.property(this);
    list.append(&list, &twin);
    QCOMPARE(groups.indexOf(QLatin1String("Zeta")), 1);
    QCOMPARE(groups.indexOf(QLatin1String("zeta")), -1);
    QCOMPARE(groups.indexOf(QLatin1String("Zet")), -1);
    QCOMPARE(groups.indexOf(QString()), -1);
}

void tst_GroupList::showsNothingWithoutADataSet()
{
    GroupList groups;
    groups.show(newSet());
    groups.show(QSharedPointer<VariableGroupSet>());
    ListProperty list = groups.property(this);
    QCOMPARE(list.count(&list), 0);
    QCOMPARE(groups.indexOf(QLatin1String("Zeta")), -1);
}

void tst_GroupList::outlivesTheDataSet()
{
    GroupList groups;
    groups.show(newSet());
    ListProperty list = groups.property(this);
    QCOMPARE(list.at(&list, 0)->option(), QString::fromLatin1("Alpha"));
    QCOMPARE(list.at(&list, 0)->variables().at(0)->option(), QString::fromLatin1("co2"));
    QCOMPARE(groups.indexOf(QLatin1String("Zeta")), 1);
}

void tst_GroupList::letsGoOfWhatItShowedBefore()
{
    GroupList groups;
    groups.show(newSet());
    ListProperty list = groups.property(this);
    const QPointer<VariableGroup> group(list.at(&list, 0));
    groups.show(newSet());
    QVERIFY(!group);
}

void tst_GroupList::scriptsCanAppend()
{
    GroupList groups;
    ListProperty list = groups.property(this);
    VariableGroup group;
    group.setOption(QLatin1String("Mine"));
    list.append(&list, &group);
    QCOMPARE(list.count(&list), 1);
    QCOMPARE(list.at(&list, 0), &group);
    QCOMPARE(groups.indexOf(QLatin1String("Mine")), 0);
}

void tst_GroupList::survivesTheDeathOfWhatWasAppended()
{
    GroupList groups;
    ListProperty list = groups.property(this);
    QScopedPointer<VariableGroup> group(new VariableGroup);
    group->setOption(QLatin1String("Mine"));
    list.append(&list, group.data());
    list.append(&list, nullptr);
    group.reset();
    QCOMPARE(list.count(&list), 2);
    QVERIFY(!list.at(&list, 0));
    QVERIFY(!list.at(&list, 1));
    QCOMPARE(groups.indexOf(QLatin1String("Mine")), -1);
}

void tst_GroupList::clearingDeletesNothing()
{
    const QSharedPointer<VariableGroupSet> set = newSet();
    GroupList groups;
    groups.show(set);
    ListProperty list = groups.property(this);
    const QPointer<VariableGroup> group(list.at(&list, 0));
    list.clear(&list);
    QCOMPARE(list.count(&list), 0);
    QVERIFY(group);
    QCOMPARE(set->groups().size(), 2);
}

QTEST_GUILESS_MAIN(tst_GroupList)
#include "tst_GroupList.moc"

#include "model/PropertyWrapper.h"

#include "model/Constant.h"
#include "model/Observation.h"
#include "model/Variable.h"
#include "model/VariableGroup.h"
#include "support/MetaMethodText.h"
#include "support/TestCompat.h"

#include <QMetaProperty>
#include <QScopedPointer>

namespace
{

/** Names of the properties that a class adds to QObject's own, in order. */
QString propertyNames(const QMetaObject &meta)
{
    QStringList names;
    for (int i = QObject::staticMetaObject.propertyCount(); i < meta.propertyCount(); ++i)
        names.append(QLatin1String(meta.property(i).name()));
    return names.join(QLatin1String(" "));
}

/** Names of the signals and slots that a class adds to QObject's own, in order. */
QString methodNames(const QMetaObject &meta)
{
    QStringList names;
    for (int i = QObject::staticMetaObject.methodCount(); i < meta.methodCount(); ++i)
        names.append(metaMethodSignature(meta.method(i)));
    return names.join(QLatin1String(" "));
}

} // namespace

class tst_PropertyWrapper : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsEmpty();
    void startsWithAValue();
    void belongsToItsParent();
    void hasItsInterface();
    void itsFamilyAddsNothingToIt();
    void announcesNothing();
    void wrapsStrings();
    void wrapsNothing();
    void constantCollectsValues();
    void groupListsVariables();
    void groupOwnsNoVariables();
    void observationHoldsARow();
    void observationCopiesItsRow();
};

void tst_PropertyWrapper::startsEmpty()
{
    const PropertyWrapper wrapper;
    QVERIFY(!wrapper.value().isValid());
    QCOMPARE(wrapper.option(), QString());
    QVERIFY(!wrapper.parent());
}

void tst_PropertyWrapper::startsWithAValue()
{
    const PropertyWrapper wrapper(QVariant(12));
    QCOMPARE(wrapper.value(), QVariant(12));
    QCOMPARE(wrapper.option(), QString());
    QVERIFY(!wrapper.parent());
}

void tst_PropertyWrapper::belongsToItsParent()
{
    QScopedPointer<QObject> parent(new QObject);
    PropertyWrapper *plain = new PropertyWrapper(parent.data());
    PropertyWrapper *valued = new PropertyWrapper(QVariant(1), parent.data());
    QSignalSpy plainGone(plain, SIGNAL(destroyed(QObject *)));
    QSignalSpy valuedGone(valued, SIGNAL(destroyed(QObject *)));
    parent.reset();
    QCOMPARE(plainGone.count(), 1);
    QCOMPARE(valuedGone.count(), 1);
}

void tst_PropertyWrapper::hasItsInterface()
{
    const QMetaObject &meta = PropertyWrapper::staticMetaObject;
    QCOMPARE(methodNames(meta), QString::fromLatin1("valueChanged() optionChanged()"));
    QCOMPARE(propertyNames(meta), QString::fromLatin1("value option"));

    const QMetaProperty value = meta.property(meta.indexOfProperty("value"));
    QCOMPARE(QByteArray(value.typeName()), QByteArray("QVariant"));
    QVERIFY(value.isWritable());
    QCOMPARE(value.notifySignalIndex(), meta.indexOfSignal("valueChanged()"));
    const QMetaProperty option = meta.property(meta.indexOfProperty("option"));
    QCOMPARE(QByteArray(option.typeName()), QByteArray("QString"));
    QVERIFY(option.isWritable());
    QCOMPARE(option.notifySignalIndex(), meta.indexOfSignal("optionChanged()"));
}

void tst_PropertyWrapper::itsFamilyAddsNothingToIt()
{
    const QMetaObject *const wrappers[] = {
        &VariableGroup::staticMetaObject, &Variable::staticMetaObject, &Constant::staticMetaObject};
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(wrappers[i]->superClass(), &PropertyWrapper::staticMetaObject);
        QCOMPARE(methodNames(*wrappers[i]), methodNames(PropertyWrapper::staticMetaObject));
        QCOMPARE(propertyNames(*wrappers[i]), propertyNames(PropertyWrapper::staticMetaObject));
    }
    QCOMPARE(Observation::staticMetaObject.superClass(), &QObject::staticMetaObject);
    QCOMPARE(methodNames(Observation::staticMetaObject), QString());
    QCOMPARE(propertyNames(Observation::staticMetaObject), QString());
}

void tst_PropertyWrapper::announcesNothing()
{
    PropertyWrapper wrapper;
    QSignalSpy valueChanged(&wrapper, SIGNAL(valueChanged()));
    QSignalSpy optionChanged(&wrapper, SIGNAL(optionChanged()));
    QVERIFY(wrapper.setProperty("value", 2.5));
    QVERIFY(wrapper.setProperty("option", QLatin1String("CO2")));
    QCOMPARE(wrapper.property("value"), QVariant(2.5));
    QCOMPARE(wrapper.property("option").toString(), QString::fromLatin1("CO2"));
    wrapper.setValue(QVariant(3));
    wrapper.setOption(QLatin1String("H2O"));
    QCOMPARE(wrapper.value(), QVariant(3));
    QCOMPARE(wrapper.option(), QString::fromLatin1("H2O"));
    QCOMPARE(valueChanged.count(), 0);
    QCOMPARE(optionChanged.count(), 0);
}

void tst_PropertyWrapper::wrapsStrings()
{
    const QList<QString> names = QList<QString>()
        << QLatin1String("CO2") << QString() << QLatin1String("H2O") << QLatin1String("CO2");
    const QList<PropertyWrapper *> wrappers = PropertyWrapper::fromList<QString>(names);
    QCOMPARE(wrappers.size(), names.size());
    for (int i = 0; i < wrappers.size(); ++i) {
        QCOMPARE(wrappers.at(i)->value().type(), QVariant::String);
        QCOMPARE(wrappers.at(i)->value().toString(), names.at(i));
        QCOMPARE(wrappers.at(i)->option(), names.at(i));
        QVERIFY(!wrappers.at(i)->parent());
    }
    qDeleteAll(wrappers);
}

void tst_PropertyWrapper::wrapsNothing()
{
    QVERIFY(PropertyWrapper::fromList(QList<QString>()).isEmpty());
}

void tst_PropertyWrapper::constantCollectsValues()
{
    Constant constant;
    QVERIFY(constant.values().isEmpty());
    constant.appendValue(QLatin1String("1"));
    constant.appendValue(QString());
    constant.appendValue(QLatin1String("1"));
    QCOMPARE(constant.values(),
             QStringList() << QLatin1String("1") << QString() << QLatin1String("1"));
    QObject parent;
    QCOMPARE((new Constant(&parent))->parent(), &parent);
}

void tst_PropertyWrapper::groupListsVariables()
{
    VariableGroup group;
    Variable first;
    Variable second;
    QVERIFY(group.variables().isEmpty());
    group.appendVariable(&second);
    group.appendVariable(&first);
    QList<Variable *> copy = group.variables();
    QCOMPARE(copy, QList<Variable *>() << &second << &first);
    copy.clear();
    QCOMPARE(group.variables().size(), 2);
}

void tst_PropertyWrapper::groupOwnsNoVariables()
{
    Variable variable;
    QSignalSpy gone(&variable, SIGNAL(destroyed(QObject *)));
    {
        VariableGroup group;
        group.appendVariable(&variable);
    }
    QCOMPARE(gone.count(), 0);
    QVERIFY(!variable.parent());
}

void tst_PropertyWrapper::observationHoldsARow()
{
    const QStringList cells = QStringList() << QLatin1String("1") << QLatin1String("\"10:00:00\"");
    QObject parent;
    Observation *observation = new Observation(cells, &parent);
    QCOMPARE(observation->parent(), &parent);
    QCOMPARE(observation->values(), cells);
    QVERIFY(!observation->checked());
    observation->setChecked(true);
    QVERIFY(observation->checked());
    observation->setChecked(false);
    QVERIFY(!observation->checked());
}

void tst_PropertyWrapper::observationCopiesItsRow()
{
    QStringList cells = QStringList() << QLatin1String("1");
    const Observation observation(cells);
    cells.append(QLatin1String("2"));
    QCOMPARE(observation.values(), QStringList() << QLatin1String("1"));
    QVERIFY(!observation.parent());
}

QTEST_GUILESS_MAIN(tst_PropertyWrapper)
#include "tst_PropertyWrapper.moc"

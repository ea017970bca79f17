#include "graphdef/GraphDefinition.h"

#include "support/TestCompat.h"

typedef GraphDefinition Definition;

namespace
{

QVariantMap mapAt(const QVariantMap &map, const char *key)
{
    return map.value(QLatin1String(key)).toMap();
}

QVariantMap mapAt(const QVariantMap &map, const char *key, const char *innerKey)
{
    return mapAt(mapAt(map, key), innerKey);
}

QVariantMap entry(const char *key, const QVariant &value)
{
    QVariantMap map;
    map.insert(QLatin1String(key), value);
    return map;
}

QString text(const char *latin1)
{
    return QString::fromLatin1(latin1);
}

void fill(Definition &definition)
{
    definition.setAutoscale(Definition::Horizontal, true);
    definition.setMin(Definition::Left, text("1"));
    definition.setMax(Definition::Right, text("2"));
    definition.setLines(Definition::Left, true);
    definition.setSymbols(Definition::Right, false);
    definition.setGroupVariable(Definition::Horizontal, text("Sys"), text("Obs"));
    definition.setGroupVariable(Definition::Left, text("Gas"), text("CO2"));
    definition.setGroupVariable(Definition::Right, text("Env"), text("Tair"));
}

void addAxes()
{
    QTest::addColumn<int>("axis");
    QTest::addColumn<QString>("key");

    QTest::newRow("horizontal") << int(Definition::Horizontal) << "xbottom";
    QTest::newRow("left") << int(Definition::Left) << "yleft";
    QTest::newRow("right") << int(Definition::Right) << "yright";
}

} // namespace

class tst_GraphDefinition : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsEmpty();
    void recordsScaling_data();
    void recordsScaling();
    void keepsBoundsAsText_data();
    void keepsBoundsAsText();
    void addsNoOtherKeys();
    void recordsCurves_data();
    void recordsCurves();
    void hasNoCurvesOnTheHorizontalAxis();
    void recordsGroupAndVariable_data();
    void recordsGroupAndVariable();
    void overwrites();
    void tellsAnEmptyGroupFromNone();
    void tellsGroupsThatAreNoText();
    void assignReplacesOnlyWhatIsThere();
    void assignReplacesScalingAsAWhole();
    void assignsNothing();
    void assignsAnEmptyMapForOtherValues_data();
    void assignsAnEmptyMapForOtherValues();
    void assignIgnoresOtherKeys();
    void scalingSurvivesAStrangeAxis();
    void goesRound();
    void handsOutACopy();
};

void tst_GraphDefinition::startsEmpty()
{
    const QVariantMap map = Definition().toMap();
    QCOMPARE(QStringList(map.keys()).join(QLatin1String(" ")),
             text("scaling xbottom yleft yright"));
    foreach (const QVariant &value, map) {
        QCOMPARE(value.type(), QVariant::Map);
        QVERIFY(value.toMap().isEmpty());
    }
}

void tst_GraphDefinition::recordsScaling_data()
{
    addAxes();
}

void tst_GraphDefinition::recordsScaling()
{
    QFETCH(int, axis);
    QFETCH(QString, key);

    Definition definition;
    definition.setAutoscale(Definition::Axis(axis), false);
    definition.setMin(Definition::Axis(axis), text("-1"));
    definition.setMax(Definition::Axis(axis), text("12.50"));

    QVariantMap expected;
    expected.insert(text("autoscale"), false);
    expected.insert(text("min"), text("-1"));
    expected.insert(text("max"), text("12.50"));
    const QVariantMap scaling = mapAt(definition.toMap(), "scaling");
    QCOMPARE(scaling, entry(key.toLatin1().constData(), expected));
    const QVariantMap axisScaling = mapAt(scaling, key.toLatin1().constData());
    QCOMPARE(axisScaling.value(text("autoscale")).type(), QVariant::Bool);
    QCOMPARE(axisScaling.value(text("min")).type(), QVariant::String);
    QCOMPARE(axisScaling.value(text("max")).type(), QVariant::String);
}

void tst_GraphDefinition::keepsBoundsAsText_data()
{
    QTest::addColumn<QString>("bound");
    QTest::newRow("number") << "5";
    QTest::newRow("trailing zeros") << "5.000";
    QTest::newRow("blanks") << " 5 ";
    QTest::newRow("no number") << "five";
    QTest::newRow("empty") << "";
}

void tst_GraphDefinition::keepsBoundsAsText()
{
    QFETCH(QString, bound);

    Definition definition;
    definition.setMin(Definition::Right, bound);
    definition.setMax(Definition::Right, bound);
    const QVariantMap scaling = mapAt(definition.toMap(), "scaling", "yright");
    QCOMPARE(scaling.value(text("min")).toString(), bound);
    QCOMPARE(scaling.value(text("max")).toString(), bound);
}

void tst_GraphDefinition::addsNoOtherKeys()
{
    Definition definition;
    definition.setMin(Definition::Left, text("5"));
    const QVariantMap map = definition.toMap();
    QCOMPARE(mapAt(map, "scaling"), entry("yleft", entry("min", text("5"))));
    QVERIFY(mapAt(map, "xbottom").isEmpty());
    QVERIFY(mapAt(map, "yleft").isEmpty());
    QVERIFY(mapAt(map, "yright").isEmpty());
}

void tst_GraphDefinition::recordsCurves_data()
{
    QTest::addColumn<int>("axis");
    QTest::addColumn<QString>("key");

    QTest::newRow("left") << int(Definition::Left) << "yleft";
    QTest::newRow("right") << int(Definition::Right) << "yright";
}

void tst_GraphDefinition::recordsCurves()
{
    QFETCH(int, axis);
    QFETCH(QString, key);

    Definition definition;
    definition.setLines(Definition::Axis(axis), true);
    QCOMPARE(mapAt(definition.toMap(), key.toLatin1().constData()), entry("lines", true));
    definition.setSymbols(Definition::Axis(axis), false);
    QVariantMap expected = entry("lines", true);
    expected.insert(text("symbols"), false);
    QCOMPARE(mapAt(definition.toMap(), key.toLatin1().constData()), expected);
}

void tst_GraphDefinition::hasNoCurvesOnTheHorizontalAxis()
{
    Definition definition;
    definition.setLines(Definition::Horizontal, true);
    definition.setSymbols(Definition::Horizontal, true);
    QCOMPARE(definition.toMap(), Definition().toMap());
}

void tst_GraphDefinition::recordsGroupAndVariable_data()
{
    addAxes();
}

void tst_GraphDefinition::recordsGroupAndVariable()
{
    QFETCH(int, axis);
    QFETCH(QString, key);

    Definition definition;
    definition.setGroupVariable(Definition::Axis(axis), text("Gas"), text("CO2"));
    QVariantMap expected = entry("group", text("Gas"));
    expected.insert(text("variable"), text("CO2"));
    QVariantMap whole = Definition().toMap();
    whole.insert(key, expected);
    QCOMPARE(definition.toMap(), whole);
    for (int other = Definition::Horizontal; other <= Definition::Right; ++other) {
        QCOMPARE(definition.hasGroup(Definition::Axis(other)), other == axis);
        QCOMPARE(definition.group(Definition::Axis(other)),
                 other == axis ? text("Gas") : QString());
        QCOMPARE(definition.variable(Definition::Axis(other)),
                 other == axis ? text("CO2") : QString());
    }
}

void tst_GraphDefinition::overwrites()
{
    Definition definition;
    fill(definition);
    definition.setAutoscale(Definition::Horizontal, false);
    definition.setMin(Definition::Left, text("3"));
    definition.setLines(Definition::Left, false);
    definition.setGroupVariable(Definition::Left, text("Env"), QString());
    const QVariantMap map = definition.toMap();
    QCOMPARE(mapAt(map, "scaling", "xbottom"), entry("autoscale", false));
    QCOMPARE(mapAt(map, "scaling", "yleft"), entry("min", text("3")));
    QCOMPARE(mapAt(map, "yleft").value(text("lines")), QVariant(false));
    QCOMPARE(definition.group(Definition::Left), text("Env"));
    QCOMPARE(definition.variable(Definition::Left), QString());
}

void tst_GraphDefinition::tellsAnEmptyGroupFromNone()
{
    Definition definition;
    QVERIFY(!definition.hasGroup(Definition::Left));
    definition.assign(entry("yleft", entry("variable", text("CO2"))));
    QVERIFY(!definition.hasGroup(Definition::Left));
    QCOMPARE(definition.variable(Definition::Left), text("CO2"));
    definition.setGroupVariable(Definition::Left, QString(), text("CO2"));
    QVERIFY(definition.hasGroup(Definition::Left));
    QCOMPARE(definition.group(Definition::Left), QString());
    QCOMPARE(definition.variable(Definition::Left), text("CO2"));
    definition.assign(entry("yright", entry("group", text("Gas"))));
    QVERIFY(definition.hasGroup(Definition::Right));
    QCOMPARE(definition.variable(Definition::Right), QString());
}

void tst_GraphDefinition::tellsGroupsThatAreNoText()
{
    Definition definition;
    definition.assign(entry("xbottom", entry("group", 12)));
    QCOMPARE(definition.group(Definition::Horizontal), text("12"));
    definition.assign(entry("xbottom", entry("group", QVariantMap())));
    QVERIFY(definition.hasGroup(Definition::Horizontal));
    QCOMPARE(definition.group(Definition::Horizontal), QString());
}

void tst_GraphDefinition::assignReplacesOnlyWhatIsThere()
{
    Definition definition;
    fill(definition);
    const QVariantMap before = definition.toMap();
    const QVariantMap left = entry("group", text("Env"));
    definition.assign(entry("yleft", left));
    const QVariantMap after = definition.toMap();
    QCOMPARE(mapAt(after, "yleft"), left);
    QCOMPARE(mapAt(after, "scaling"), mapAt(before, "scaling"));
    QCOMPARE(mapAt(after, "xbottom"), mapAt(before, "xbottom"));
    QCOMPARE(mapAt(after, "yright"), mapAt(before, "yright"));
}

void tst_GraphDefinition::assignReplacesScalingAsAWhole()
{
    Definition definition;
    fill(definition);
    const QVariantMap scaling = entry("yright", entry("max", text("9")));
    definition.assign(entry("scaling", scaling));
    QCOMPARE(mapAt(definition.toMap(), "scaling"), scaling);
    QCOMPARE(definition.group(Definition::Left), text("Gas"));
}

void tst_GraphDefinition::assignsNothing()
{
    Definition definition;
    fill(definition);
    const QVariantMap before = definition.toMap();
    definition.assign(QVariantMap());
    QCOMPARE(definition.toMap(), before);
}

void tst_GraphDefinition::assignsAnEmptyMapForOtherValues_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::newRow("invalid") << QVariant();
    QTest::newRow("text") << QVariant(text("Gas"));
    QTest::newRow("number") << QVariant(3);
    QTest::newRow("list") << QVariant(QVariantList() << 1 << 2);
}

void tst_GraphDefinition::assignsAnEmptyMapForOtherValues()
{
    QFETCH(QVariant, value);

    const char *const keys[] = {"scaling", "xbottom", "yleft", "yright"};
    for (int i = 0; i < 4; ++i) {
        Definition definition;
        fill(definition);
        QVERIFY(!mapAt(definition.toMap(), keys[i]).isEmpty());
        definition.assign(entry(keys[i], value));
        const QVariant stored = definition.toMap().value(text(keys[i]));
        QCOMPARE(stored.type(), QVariant::Map);
        QVERIFY(stored.toMap().isEmpty());
    }
}

void tst_GraphDefinition::assignIgnoresOtherKeys()
{
    Definition definition;
    fill(definition);
    const QVariantMap before = definition.toMap();
    QVariantMap other = entry("YLeft", QVariantMap());
    other.insert(text("title"), text("Gas"));
    definition.assign(other);
    QCOMPARE(definition.toMap(), before);
}

void tst_GraphDefinition::scalingSurvivesAStrangeAxis()
{
    Definition definition;
    definition.assign(entry("scaling", entry("yleft", text("no map"))));
    definition.setMin(Definition::Left, text("5"));
    QCOMPARE(mapAt(definition.toMap(), "scaling"), entry("yleft", entry("min", text("5"))));
}

void tst_GraphDefinition::goesRound()
{
    Definition definition;
    fill(definition);
    const QVariantMap map = definition.toMap();
    definition.assign(definition.toMap());
    QCOMPARE(definition.toMap(), map);
    Definition other;
    other.assign(map);
    QCOMPARE(other.toMap(), map);
    QCOMPARE(other.group(Definition::Right), text("Env"));
    QCOMPARE(other.variable(Definition::Right), text("Tair"));
}

void tst_GraphDefinition::handsOutACopy()
{
    Definition definition;
    fill(definition);
    const QVariantMap before = definition.toMap();
    QVariantMap copy = definition.toMap();
    copy.clear();
    QCOMPARE(definition.toMap(), before);
}

QTEST_GUILESS_MAIN(tst_GraphDefinition)
#include "tst_GraphDefinition.moc"

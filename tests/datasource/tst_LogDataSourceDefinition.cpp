#include "datasource/SourceFixture.h"

/** The graph definition as scripts set, store and restore it. */
class tst_LogDataSourceDefinition : public QObject
{
    Q_OBJECT

private slots:
    void aFreshItemHoldsFourEmptyMaps();
    void recordsOneSetting_data();
    void recordsOneSetting();
    void settingsOfAnAxisAddUp();
    void theSameValueIsAnnouncedAgain();
    void groupAndVariableAreOnlyRecorded();
    void takesOverTheMapsThatAreGiven();
    void whatIsNoMapGivesAnEmptyOne();
    void anEmptyDefinitionChangesNothingButReloads();
    void selectsGroupAndVariable_data();
    void selectsGroupAndVariable();
    void reloadsAxesInOrder();
    void roundTrip();
    void survivesLoadsAndDataSets();

public slots:
    void noteAxes();

private:
    LogDataSourceItem *m_noted;
    QString m_notes;
};

namespace
{

QByteArray gasLog()
{
    return logBlock("Sys Sys Gas Gas", "Obs Time co2 H2O", "1 10:00:00 2 3|4 10:00:30 5 6");
}

/** A definition as a text, "axis.key=value" by order of the keys; texts stand in quotes. */
QString asText(const QVariantMap &map, const QString &prefix = QString())
{
    QStringList entries;
    for (QVariantMap::const_iterator it = map.constBegin(); it != map.constEnd(); ++it) {
        const QString key = prefix + it.key();
        if (it.value().type() == QVariant::Map) {
            const QString inner = asText(it.value().toMap(), key + QLatin1Char('.'));
            entries << (inner.isEmpty() ? key + QLatin1String("={}") : inner);
        } else if (it.value().type() == QVariant::String) {
            entries << key + QLatin1String("='") + it.value().toString() + QLatin1Char('\'');
        } else {
            entries << key + QLatin1Char('=') + it.value().toString();
        }
    }
    return entries.join(QLatin1String(" "));
}

/** What a fresh definition becomes when the empty map of @p map holds @p entry. */
QString withEntry(const char *map, const char *entry)
{
    QString definition = text("scaling={} xbottom={} yleft={} yright={}");
    return definition.replace(text(map) + QLatin1String("={}"), text(entry));
}

QVariantMap axisMap(const char *group, const char *variable)
{
    QVariantMap map;
    if (group)
        map.insert(text("group"), text(group));
    if (variable)
        map.insert(text("variable"), text(variable));
    return map;
}

QVariantMap definitionOf(const char *axis, const QVariant &map)
{
    QVariantMap definition;
    definition.insert(text(axis), map);
    return definition;
}

} // namespace

void tst_LogDataSourceDefinition::aFreshItemHoldsFourEmptyMaps()
{
    SourceFixture f;
    const QVariantMap definition = f.source->graphDefinition();
    QCOMPARE(asText(definition), text("scaling={} xbottom={} yleft={} yright={}"));
    QCOMPARE(f.recorder.take(), QString());
}

void tst_LogDataSourceDefinition::recordsOneSetting_data()
{
    QTest::addColumn<QByteArray>("slot");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("definition");
    const char *axes[][2] = {{"Horizontal", "xbottom"}, {"Left", "yleft"}, {"Right", "yright"}};
    for (int i = 0; i < 3; ++i) {
        const QByteArray name = axes[i][0];
        const QByteArray scaling = QByteArray("scaling.") + axes[i][1];
        QTest::newRow("autoscale " + name) << "set" + name + "Autoscale" << QVariant(true)
                                           << withEntry("scaling", scaling + ".autoscale=true");
        QTest::newRow("min " + name) << "set" + name + "Min" << QVariant(text("5"))
                                     << withEntry("scaling", scaling + ".min='5'");
        QTest::newRow("max " + name) << "set" + name + "Max" << QVariant(text("a lot"))
                                     << withEntry("scaling", scaling + ".max='a lot'");
    }
    for (int i = 1; i < 3; ++i) {
        const QByteArray name = axes[i][0];
        const QByteArray axis = axes[i][1];
        QTest::newRow("lines " + name)
            << "set" + name + "Lines" << QVariant(false) << withEntry(axis, axis + ".lines=false");
        QTest::newRow("symbols " + name) << "set" + name + "Symbols" << QVariant(true)
                                         << withEntry(axis, axis + ".symbols=true");
    }
}

void tst_LogDataSourceDefinition::recordsOneSetting()
{
    QFETCH(QByteArray, slot);
    QFETCH(QVariant, value);
    QFETCH(QString, definition);
    SourceFixture f;
    if (value.type() == QVariant::Bool)
        QVERIFY(QMetaObject::invokeMethod(f.source.data(), slot, Q_ARG(bool, value.toBool())));
    else
        QVERIFY(QMetaObject::invokeMethod(f.source.data(), slot, Q_ARG(QString, value.toString())));
    QCOMPARE(asText(f.source->graphDefinition()), definition);
    QCOMPARE(f.recorder.take(), text("graphDefinitionChanged"));
}

void tst_LogDataSourceDefinition::settingsOfAnAxisAddUp()
{
    SourceFixture f;
    f.source->setLeftMin(text("5"));
    f.source->setLeftMax(QString());
    f.source->setRightMin(text("x"));
    f.source->setLeftAutoscale(true);
    f.source->setLeftAutoscale(false);
    f.source->setLeftMin(text("1e3"));
    f.source->setLeftLines(true);
    f.source->setLeftSymbols(false);
    f.source->setLeftGroupVariable(text("Gas"), text("co2"));
    QCOMPARE(asText(f.source->graphDefinition()),
             text("scaling.yleft.autoscale=false scaling.yleft.max='' scaling.yleft.min='1e3' "
                  "scaling.yright.min='x' xbottom={} yleft.group='Gas' yleft.lines=true "
                  "yleft.symbols=false yleft.variable='co2' yright={}"));
}

void tst_LogDataSourceDefinition::theSameValueIsAnnouncedAgain()
{
    SourceFixture f;
    f.source->setLeftLines(true);
    f.source->setLeftLines(true);
    QCOMPARE(f.recorder.take(), text("graphDefinitionChanged graphDefinitionChanged"));
}

void tst_LogDataSourceDefinition::groupAndVariableAreOnlyRecorded()
{
    SourceFixture f;
    f.show(gasLog());
    f.source->setHorizontalGroupVariable(text("Sys"), text("Obs"));
    f.source->setLeftGroupVariable(text("Gas"), text("co2"));
    f.source->setRightGroupVariable(text("none"), QString());
    QCOMPARE(f.recorder.take(),
             text("graphDefinitionChanged graphDefinitionChanged graphDefinitionChanged"));
    QCOMPARE(asText(f.source->graphDefinition()),
             text("scaling={} xbottom.group='Sys' xbottom.variable='Obs' yleft.group='Gas' "
                  "yleft.variable='co2' yright.group='none' yright.variable=''"));
    QCOMPARE(intTexts(f.source->checkedItemList(0)), QString());
    QCOMPARE(valueTexts(f.source->leftVariables()), QString());
}

void tst_LogDataSourceDefinition::takesOverTheMapsThatAreGiven()
{
    SourceFixture f;
    f.show(gasLog());
    f.source->setLeftLines(true);
    f.source->setRightLines(false);
    f.source->setLeftMin(text("5"));
    f.recorder.take();
    QVariantMap definition = definitionOf("yleft", axisMap("Gas", "H2O"));
    definition.insert(text("other"), axisMap("a", "b"));
    f.source->setGraphDefinition(definition);
    QCOMPARE(asText(f.source->graphDefinition()),
             text("scaling.yleft.min='5' xbottom={} yleft.group='Gas' yleft.variable='H2O' "
                  "yright.lines=false"));
    QCOMPARE(intTexts(f.source->checkedItemList(1)), text("3"));
    QCOMPARE(valueTexts(f.source->leftVariables()), text("co2,H2O"));
    QCOMPARE(f.recorder.take(), text("graphDataUpdated"));
}

void tst_LogDataSourceDefinition::whatIsNoMapGivesAnEmptyOne()
{
    SourceFixture f;
    f.source->setLeftLines(true);
    f.source->setGraphDefinition(definitionOf("yleft", text("no map")));
    f.source->setLeftMin(text("5"));
    QVariantMap scaling;
    scaling.insert(text("yright"), 7);
    f.source->setGraphDefinition(definitionOf("scaling", scaling));
    f.source->setRightMax(text("9"));
    QCOMPARE(asText(f.source->graphDefinition()),
             text("scaling.yright.max='9' xbottom={} yleft={} yright={}"));
}

void tst_LogDataSourceDefinition::anEmptyDefinitionChangesNothingButReloads()
{
    SourceFixture f;
    f.show(gasLog());
    f.source->setLeftGroupVariable(text("Gas"), text("co2"));
    const QString before = asText(f.source->graphDefinition());
    f.recorder.take();
    f.source->setGraphDefinition(QVariantMap());
    QCOMPARE(asText(f.source->graphDefinition()), before);
    QCOMPARE(f.recorder.take(), text("graphDataUpdated"));
    QCOMPARE(intTexts(f.source->checkedItemList(1)), text("2"));
}

void tst_LogDataSourceDefinition::selectsGroupAndVariable_data()
{
    QTest::addColumn<QVariantMap>("map");
    QTest::addColumn<QString>("variables");
    QTest::addColumn<QString>("checked");
    QTest::addColumn<QString>("emitted");
    const QString once = text("graphDataUpdated");
    QTest::newRow("both") << axisMap("Gas", "co2") << "co2,H2O"
                          << "2" << once;
    QTest::newRow("no group key") << axisMap(nullptr, "co2") << "Obs,Time"
                                  << "1"
                                  << "";
    QTest::newRow("empty group") << axisMap("", "co2") << "Obs,Time"
                                 << "2" << once;
    QTest::newRow("no variable key") << axisMap("Gas", nullptr) << "co2,H2O"
                                     << "1"
                                     << "";
    QTest::newRow("empty variable") << axisMap("Gas", "") << "co2,H2O"
                                    << "1"
                                    << "";
    QTest::newRow("both empty") << axisMap("", "") << "Obs,Time"
                                << "1"
                                << "";
    QTest::newRow("unknown group") << axisMap("none", "co2") << "Obs,Time"
                                   << "2" << once;
    QTest::newRow("unknown variable") << axisMap("Gas", "none") << "co2,H2O"
                                      << "" << once;
    QTest::newRow("of another group") << axisMap("Gas", "Obs") << "co2,H2O"
                                      << "0" << once;
}

void tst_LogDataSourceDefinition::selectsGroupAndVariable()
{
    QFETCH(QVariantMap, map);
    QFETCH(QString, variables);
    QFETCH(QString, checked);
    QFETCH(QString, emitted);
    const char *axes[] = {"xbottom", "yleft", "yright"};
    for (int axis = 0; axis < 3; ++axis) {
        SourceFixture f;
        f.show(gasLog());
        f.source->setHorizontalGroup(text("Sys"));
        f.source->setLeftGroup(text("Sys"));
        f.source->setRightGroup(text("Sys"));
        f.source->updateVariableSelection(axis, 1, true);
        f.recorder.take();
        f.source->setGraphDefinition(definitionOf(axes[axis], map));
        QCOMPARE(f.recorder.take(), emitted);
        QCOMPARE(intTexts(f.source->checkedItemList(axis)), checked);
        const QString shown[]
            = {valueTexts(f.source->horizontalVariables()), valueTexts(f.source->leftVariables()),
               valueTexts(f.source->rightVariables())};
        QCOMPARE(shown[axis], variables);
        QCOMPARE(shown[(axis + 1) % 3], text("Obs,Time"));
    }
}

void tst_LogDataSourceDefinition::reloadsAxesInOrder()
{
    SourceFixture f;
    f.show(gasLog());
    f.source->setHorizontalGroupVariable(text("Sys"), text("Obs"));
    f.source->setLeftGroupVariable(text("Gas"), text("co2"));
    f.source->setRightGroupVariable(text("Gas"), text("H2O"));
    f.recorder.take();
    m_noted = f.source.data();
    m_notes.clear();
    connect(m_noted, SIGNAL(graphDataUpdated()), SLOT(noteAxes()));
    f.source->reloadGraphDataVariables();
    QCOMPARE(f.recorder.take(), text("graphDataUpdated graphDataUpdated graphDataUpdated"));
    QCOMPARE(m_notes, text("Obs,Time:0|:|: Obs,Time:0|co2,H2O:2|: Obs,Time:0|co2,H2O:2|co2,H2O:3"));
    QCOMPARE(seriesText(f.source->YLeftData()), text("co2 2,5"));
    QCOMPARE(seriesText(f.source->YRightData()), text("H2O 3,6"));
    QCOMPARE(f.source->xData().first, text("Obs"));
}

/** The group of each axis is shown before its variable is checked. */
void tst_LogDataSourceDefinition::noteAxes()
{
    const QString notes = QString::fromLatin1("%1:%2|%3:%4|%5:%6")
                              .arg(valueTexts(m_noted->horizontalVariables()))
                              .arg(intTexts(m_noted->checkedItemList(0)))
                              .arg(valueTexts(m_noted->leftVariables()))
                              .arg(intTexts(m_noted->checkedItemList(1)))
                              .arg(valueTexts(m_noted->rightVariables()))
                              .arg(intTexts(m_noted->checkedItemList(2)));
    m_notes += (m_notes.isEmpty() ? QString() : text(" ")) + notes;
}

void tst_LogDataSourceDefinition::roundTrip()
{
    SourceFixture f;
    f.show(gasLog());
    f.source->setHorizontalGroupVariable(text("Sys"), text("Obs"));
    f.source->setLeftGroupVariable(text("Gas"), text("co2"));
    f.source->setLeftSymbols(true);
    f.source->setRightMax(text("7"));
    const QVariantMap stored = f.source->graphDefinition();
    f.source->setGraphDefinition(f.source->graphDefinition());
    QCOMPARE(asText(f.source->graphDefinition()), asText(stored));
    QCOMPARE(seriesText(f.source->YLeftData()), text("co2 2,5"));
    SourceFixture other;
    other.show(gasLog());
    other.source->setGraphDefinition(stored);
    QCOMPARE(asText(other.source->graphDefinition()), asText(stored));
    QCOMPARE(seriesText(other.source->YLeftData()), text("co2 2,5"));
}

void tst_LogDataSourceDefinition::survivesLoadsAndDataSets()
{
    SourceFixture f;
    f.source->setLeftGroupVariable(text("Gas"), text("co2"));
    f.source->setRightMax(text("7"));
    const QString before = asText(f.source->graphDefinition());
    f.show(gasLog());
    f.show(gasLog());
    f.load("broken");
    f.source->clearCriteria();
    QCOMPARE(asText(f.source->graphDefinition()), before);
}

QTEST_MAIN(tst_LogDataSourceDefinition)
#include "tst_LogDataSourceDefinition.moc"

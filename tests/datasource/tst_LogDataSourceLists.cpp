#include "datasource/SourceFixture.h"
#include "declarative/DeclarativeTypes.h"

#include <QMetaProperty>
#include <QPointer>

typedef QDeclarativeListProperty<PropertyWrapper> WrapperProperty;
typedef QDeclarativeListProperty<VariableGroup> GroupProperty;

/** The properties and lists that scripts read and write. */
class tst_LogDataSourceLists : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void writesProperties_data();
    void writesProperties();
    void writesTheFilterTypeByNumber_data();
    void writesTheFilterTypeByNumber();
    void loadsThroughTheProperty();
    void listsCannotBeWritten_data();
    void listsCannotBeWritten();
    void readsListsAsProperties();
    void dataSetNames();
    void loadingNamesTheDataSetsShortly();
    void eachReadMakesNewWrappers_data();
    void eachReadMakesNewWrappers();
    void listsFollowTheDataSet();
    void groupsAreInOrderOfTheirNames();
    void groupsCanBeAddedAndCleared();
    void wrappersCanBeClearedButNotAdded();
};

namespace
{

QByteArray twoBlocks()
{
    return logBlock("Zeta Zeta Alpha", "Obs Time co2", "1 10:00:00 400|2 10:00:30 410",
                    "B:x 1|A:y 2|B:z 3")
        + logBlock("Air Air", "T RH", "", "Off:C 4");
}

/** A list property as the engine reads it. */
template <class T> QDeclarativeListProperty<T> readList(QObject *object, const char *name)
{
    const QVariant value = object->property(name);
    if (!value.isValid())
        return QDeclarativeListProperty<T>();
    return *static_cast<const QDeclarativeListProperty<T> *>(value.constData());
}

WrapperProperty listOf(LogDataSourceItem &source, int which)
{
    switch (which) {
    case 0:
        return source.dataSetList();
    case 1:
        return source.variableList();
    default:
        return source.constList();
    }
}

} // namespace

void tst_LogDataSourceLists::initTestCase()
{
    registerDeclarativeType<PropertyWrapper>("Test", 1, 0, "PropertyWrapper");
    registerDeclarativeType<VariableGroup>("Test", 1, 0, "VariableGroup");
    registerDeclarativeType<Variable>("Test", 1, 0, "Variable");
}

void tst_LogDataSourceLists::writesProperties_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<int>("initial");
    QTest::addColumn<QString>("emitted");
    QTest::newRow("title length") << QByteArray("maxVariableAxisTitleLength") << 10000 << "";
    QTest::newRow("range") << QByteArray("observationRange") << 50 << "graphDataUpdated";
    QTest::newRow("step") << QByteArray("observationFrequency") << 1 << "graphDataUpdated";
}

void tst_LogDataSourceLists::writesProperties()
{
    QFETCH(QByteArray, name);
    QFETCH(int, initial);
    QFETCH(QString, emitted);
    SourceFixture f;
    QCOMPARE(f.source->property(name), QVariant(initial));
    QVERIFY(f.source->setProperty(name, 20));
    QCOMPARE(f.source->property(name), QVariant(20));
    QCOMPARE(f.recorder.take(), emitted);
    QVERIFY(f.source->setProperty(name, 20));
    QCOMPARE(f.recorder.take(), emitted);
    QVERIFY(f.source->setProperty(name, -3));
    QCOMPARE(f.source->property(name), QVariant(-3));
}

void tst_LogDataSourceLists::writesTheFilterTypeByNumber_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("shown");
    QTest::newRow("all") << 0 << "1,2,3,4,5";
    QTest::newRow("head") << 1 << "1,2";
    QTest::newRow("tail") << 2 << "4,5";
}

void tst_LogDataSourceLists::writesTheFilterTypeByNumber()
{
    QFETCH(int, type);
    QFETCH(QString, shown);
    SourceFixture f;
    f.show(logBlock("G G G", "Obs Time v", "1 ~ 1|2 ~ 1|3 ~ 1|4 ~ 1|5 ~ 1"));
    f.source->setObservationRange(2);
    f.source->setHorizontalVariable(text("Obs"));
    f.recorder.take();
    QVERIFY(f.source->setProperty("observationFilterType", type));
    QCOMPARE(f.recorder.take(), text("graphDataUpdated"));
    QCOMPARE(f.source->property("observationFilterType").toInt(), type);
    QCOMPARE(int(f.source->observationFilteredTableModel()->sortFilterType()), type);
    QCOMPARE(numberTexts(f.source->xData().second), shown);
}

void tst_LogDataSourceLists::loadsThroughTheProperty()
{
    SourceFixture f;
    const QString path = f.dir.write(text("log.txt"), twoBlocks());
    QVERIFY(f.source->setProperty("logFilePath", path));
    QCOMPARE(f.recorder.take(), text("logFileLoaded"));
    QCOMPARE(f.source->property("logFilePath").toString(), path);
    QCOMPARE(f.source->property("hasExcludedRows"), QVariant(false));
    QVERIFY(!f.source->setProperty("hasExcludedRows", true));
    f.source->selectDataSet(0);
    f.exclude(0);
    QCOMPARE(f.source->property("hasExcludedRows"), QVariant(true));
}

void tst_LogDataSourceLists::listsCannotBeWritten_data()
{
    QTest::addColumn<QByteArray>("name");
    const char *names[]
        = {"variableList", "dataSetList",         "criteriaList",  "groupList",
           "constList",    "horizontalVariables", "leftVariables", "rightVariables"};
    for (size_t i = 0; i < sizeof names / sizeof *names; ++i)
        QTest::newRow(names[i]) << QByteArray(names[i]);
}

void tst_LogDataSourceLists::listsCannotBeWritten()
{
    QFETCH(QByteArray, name);
    SourceFixture f;
    const QMetaObject *type = f.source->metaObject();
    const QMetaProperty property = type->property(type->indexOfProperty(name));
    QVERIFY(property.isReadable());
    QVERIFY(property.isScriptable());
    QVERIFY(!property.isWritable());
    QVERIFY(property.hasNotifySignal());
}

void tst_LogDataSourceLists::readsListsAsProperties()
{
    SourceFixture f;
    f.show(twoBlocks());
    f.source->setLeftGroup(text("Zeta"));
    f.source->buildFilter(2, 0, text("3"));
    LogDataSourceItem *source = f.source.data();
    QCOMPARE(valueTexts(readList<PropertyWrapper>(source, "variableList")), text("Obs,Time,co2"));
    QCOMPARE(valueTexts(readList<PropertyWrapper>(source, "criteriaList")), text("co2>3"));
    QCOMPARE(valueTexts(readList<PropertyWrapper>(source, "constList")), text("B,A"));
    QCOMPARE(valueTexts(readList<PropertyWrapper>(source, "dataSetList")),
             text("0: 2014-05-06 #Obs=2,1: 2014-05-06 #Obs=0"));
    QCOMPARE(valueTexts(readList<VariableGroup>(source, "groupList")), text("Alpha,Zeta"));
    QCOMPARE(valueTexts(readList<Variable>(source, "leftVariables")), text("Obs,Time"));
    QCOMPARE(valueTexts(readList<Variable>(source, "horizontalVariables")), QString());
    QCOMPARE(valueTexts(readList<Variable>(source, "rightVariables")), QString());
    QCOMPARE(readList<PropertyWrapper>(source, "variableList").object,
             static_cast<QObject *>(source));
}

void tst_LogDataSourceLists::dataSetNames()
{
    SourceFixture f;
    f.load(twoBlocks() + "[Header]\nCreated\t2015\n");
    WrapperProperty list = f.source->dataSetList();
    QCOMPARE(valueTexts(list), text("0: 2014-05-06 #Obs=2,1: 2014-05-06 #Obs=0,2: 2015 [No Data]"));
    for (int i = 0; i < 3; ++i)
        QCOMPARE(list.at(&list, i)->option(), list.at(&list, i)->value().toString());
}

/** What a script sees that held the list while another log was read. */
void tst_LogDataSourceLists::loadingNamesTheDataSetsShortly()
{
    SourceFixture f;
    f.load(twoBlocks());
    WrapperProperty list = f.source->dataSetList();
    const QPointer<PropertyWrapper> before(list.at(&list, 0));
    f.load(twoBlocks() + twoBlocks());
    QVERIFY(before);
    QCOMPARE(valueTexts(list), text("Data Set 1,Data Set 2,Data Set 3,Data Set 4"));
    QCOMPARE(list.at(&list, 0)->option(), QString());
    QVERIFY(!list.at(&list, 0)->parent());
    QCOMPARE(valueTexts(f.source->dataSetList()).left(16), text("0: 2014-05-06 #O"));
}

void tst_LogDataSourceLists::eachReadMakesNewWrappers_data()
{
    QTest::addColumn<int>("which");
    QTest::newRow("data sets") << 0;
    QTest::newRow("variables") << 1;
    QTest::newRow("constants") << 2;
}

void tst_LogDataSourceLists::eachReadMakesNewWrappers()
{
    QFETCH(int, which);
    SourceFixture f;
    f.load(twoBlocks());
    WrapperProperty first = listOf(*f.source, which);
    const QString texts = valueTexts(first);
    QVERIFY(!texts.isEmpty());
    const QPointer<PropertyWrapper> wrapper(first.at(&first, 0));
    const QPointer<PropertyWrapper> next(first.at(&first, 1));
    QVERIFY(wrapper && next);
    QCOMPARE(valueTexts(listOf(*f.source, which)), texts);
    QVERIFY(!wrapper);
    QVERIFY(!next);
}

void tst_LogDataSourceLists::listsFollowTheDataSet()
{
    SourceFixture f;
    f.load(twoBlocks());
    QCOMPARE(valueTexts(f.source->variableList()), text("Obs,Time,co2"));
    QCOMPARE(valueTexts(f.source->constList()), text("B,A"));
    QCOMPARE(valueTexts(f.source->groupList()), text("Alpha,Zeta"));
    f.source->selectDataSet(1);
    QCOMPARE(valueTexts(f.source->variableList()), text("T,RH"));
    QCOMPARE(valueTexts(f.source->constList()), text("Off"));
    QCOMPARE(valueTexts(f.source->groupList()), text("Air"));
}

void tst_LogDataSourceLists::groupsAreInOrderOfTheirNames()
{
    SourceFixture f;
    f.load(twoBlocks());
    GroupProperty groups = f.source->groupList();
    QCOMPARE(groups.count(&groups), 2);
    QCOMPARE(groups.at(&groups, 0)->option(), text("Alpha"));
    QCOMPARE(groups.at(&groups, 1)->variables().at(1)->option(), text("Time"));
    QCOMPARE(groups.at(&groups, 0),
             f.source->parser()->tabularParser().groupForName(text("Alpha"), 0));
    const QPointer<VariableGroup> first(groups.at(&groups, 0));
    groups = f.source->groupList();
    QCOMPARE(groups.at(&groups, 0), first.data());
}

void tst_LogDataSourceLists::groupsCanBeAddedAndCleared()
{
    SourceFixture f;
    f.load(twoBlocks());
    GroupProperty groups = f.source->groupList();
    VariableGroup mine;
    mine.setOption(text("Mine"));
    groups.append(&groups, &mine);
    QCOMPARE(groups.count(&groups), 3);
    QCOMPARE(f.source->getLeftGroupIndex(text("Mine")), 2);
    const QPointer<VariableGroup> first(groups.at(&groups, 0));
    groups.clear(&groups);
    QCOMPARE(groups.count(&groups), 0);
    QCOMPARE(f.source->getLeftGroupIndex(text("Alpha")), -1);
    QVERIFY(first);
    QCOMPARE(valueTexts(f.source->groupList()), text("Alpha,Zeta"));
}

void tst_LogDataSourceLists::wrappersCanBeClearedButNotAdded()
{
    SourceFixture f;
    f.load(twoBlocks());
    WrapperProperty list = f.source->variableList();
    PropertyWrapper wrapper;
    list.append(&list, &wrapper);
    QCOMPARE(list.count(&list), 3);
    const QPointer<PropertyWrapper> first(list.at(&list, 0));
    list.clear(&list);
    QCOMPARE(list.count(&list), 0);
    QVERIFY(first);
    QCOMPARE(valueTexts(f.source->variableList()), text("Obs,Time,co2"));
}

QTEST_MAIN(tst_LogDataSourceLists)
#include "tst_LogDataSourceLists.moc"

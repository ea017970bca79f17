// Who outlives whom: lists and the logs they show, the item and a read that it started.

#include "datasource/SourceFixture.h"
#include "model/LogDataSet.h"
#include "model/Observation.h"
#include "support/EventAction.h"

#include <QPointer>

#include <limits>
#include <malloc.h>

class tst_LogDataSourceLifetime : public QObject
{
    Q_OBJECT

private slots:
    void listsOutliveTheirLog_data();
    void listsOutliveTheirLog();
    void groupsGoWhenNobodyShowsThem();
    void dataSetsGoWithTheNextLog();
    void everythingGoesWithTheItem();
    void manySourcesLeaveNothing();
    void aSecondReadIsRefused();
    void anotherSourceMayRead();
    void aReadCanBeStopped();
    void theItemMayDieDuringARead_data();
    void theItemMayDieDuringARead();
    void scriptsMayUseTheItemDuringARead();
    void aDataSetChosenDuringAReadIsForgotten();
};

namespace
{

QByteArray gasLog()
{
    return logBlock("Sys Sys Gas Gas", "Obs Time co2 H2O", "1 10:00:00 2 3|4 10:00:30 5 6",
                    "Gain:A 1")
        + logBlock("Gas Sys Gas", "O3 Time O2", "1 10:00:00 2");
}

/** Touches whatever a script can reach. */
void useAll(LogDataSourceItem &source)
{
    valueTexts(source.groupList());
    valueTexts(source.variableList());
    valueTexts(source.dataSetList());
    valueTexts(source.constList());
    valueTexts(source.criteriaList());
    valueTexts(source.horizontalVariables());
    valueTexts(source.leftVariables());
    valueTexts(source.rightVariables());
    source.setLeftGroup(text("Gas"));
    source.selectDataSet(1);
    source.updateVariableSelection(0, 0, true);
    source.updateVariableSelection(1, 2, true);
    source.buildFilter(0, 0, text("1"));
    source.updateCriteriaSelection(0, false);
    source.setHorizontalVariable(text("Obs"));
    source.setObservationRange(3);
    source.clearExcludedPoints();
    source.setGraphDefinition(source.graphDefinition());
    source.getLeftGroupIndex(text("Gas"));
    source.getLeftVariableIndex(text("co2"));
    source.clearCriteria();
}

/** Bytes that the program holds, 0 where the allocator does not tell. */
qint64 heapInUse()
{
#if defined(__GLIBC__) && __GLIBC_PREREQ(2, 33)
    return qint64(mallinfo2().uordblks);
#else
    return mallinfo().uordblks;
#endif
}

/** Makes data sources one after the other that read a log, are used and dropped. */
void makeAndDrop(int count, const QString &path)
{
    for (int i = 0; i < count; ++i) {
        QScopedPointer<LogDataSourceItem> source(new LogDataSourceItem);
        source->setLogFilePath(path);
        useAll(*source);
        source->setLogFilePath(path);
        source->groupList();
        const QPointer<LogDataSet> dataSet(source->parser()->tabularParser().dataSets().at(0));
        const QPointer<VariableGroup> group(dataSet->variableGroups().at(0));
        source.reset();
        QVERIFY(!dataSet);
        QVERIFY(!group);
    }
}

} // namespace

void tst_LogDataSourceLifetime::listsOutliveTheirLog_data()
{
    QTest::addColumn<QByteArray>("next");
    QTest::newRow("another log") << logBlock("Gas G G", "a b c", "1 ~ 2");
    QTest::newRow("the same log") << gasLog();
    QTest::newRow("a log without data sets") << QByteArray();
    QTest::newRow("a broken log") << QByteArray("broken");
}

void tst_LogDataSourceLifetime::listsOutliveTheirLog()
{
    QFETCH(QByteArray, next);
    SourceFixture f;
    f.show(gasLog());
    f.source->setHorizontalGroup(text("Sys"));
    f.source->setLeftGroup(text("Gas"));
    QDeclarativeListProperty<VariableGroup> groups = f.source->groupList();
    QDeclarativeListProperty<Variable> variables = f.source->leftVariables();
    f.load(next);
    f.source->selectDataSet(0);
    QCOMPARE(valueTexts(groups), text("Gas,Sys"));
    QCOMPARE(groups.at(&groups, 1)->variables().at(1)->option(), text("Time"));
    QCOMPARE(f.source->getHorizontalGroupIndex(text("Sys")), 1);
    QCOMPARE(valueTexts(variables), text("co2,H2O"));
    QCOMPARE(valueTexts(f.source->horizontalVariables()), text("Obs,Time"));
    QCOMPARE(f.source->getLeftVariableIndex(text("H2O")), 1);
    f.load(next);
    QCOMPARE(f.source->getHorizontalVariableIndex(text("Time")), 1);
    useAll(*f.source);
}

void tst_LogDataSourceLifetime::groupsGoWhenNobodyShowsThem()
{
    SourceFixture f;
    f.show(gasLog());
    QDeclarativeListProperty<VariableGroup> groups = f.source->groupList();
    const QPointer<VariableGroup> group(groups.at(&groups, 0));
    const QPointer<Variable> variable(group->variables().at(0));
    f.source->setRightGroup(text("Gas"));
    f.load(gasLog());
    f.source->groupList();
    QVERIFY(group);
    QVERIFY(variable);
    f.source->setRightGroup(text("Gas"));
    QVERIFY(!group);
    QVERIFY(!variable);
}

void tst_LogDataSourceLifetime::dataSetsGoWithTheNextLog()
{
    SourceFixture f;
    f.show(gasLog());
    const QPointer<LogDataSet> dataSet(f.source->parser()->tabularParser().dataSets().at(1));
    f.source->selectDataSet(1);
    QVERIFY(dataSet);
    f.load(gasLog());
    QVERIFY(!dataSet);
    // The table still shows the cells of the log before.
    QCOMPARE(columnTexts(f.source->tableModel(), 3), text("2"));
}

void tst_LogDataSourceLifetime::everythingGoesWithTheItem()
{
    SourceFixture f;
    f.show(gasLog());
    QList<QPointer<QObject>> objects;
    foreach (LogDataSet *dataSet, f.source->parser()->tabularParser().dataSets())
        objects << QPointer<QObject>(dataSet) << QPointer<QObject>(dataSet->observations().at(0))
                << QPointer<QObject>(dataSet->variableGroups().at(0))
                << QPointer<QObject>(dataSet->variableGroups().at(0)->variables().at(0));
    f.source->buildFilter(2, 0, text("1"));
    QDeclarativeListProperty<PropertyWrapper> lists[]
        = {f.source->variableList(), f.source->dataSetList(), f.source->constList(),
           f.source->criteriaList()};
    for (int i = 0; i < 4; ++i)
        objects << QPointer<QObject>(lists[i].at(&lists[i], 0));
    f.source->groupList();
    f.source->setLeftGroup(text("Gas"));
    f.source->clearCriteria();
    for (int i = 0; i < objects.size(); ++i)
        QVERIFY2(objects.at(i), qPrintable(QString::number(i)));
    f.source.reset();
    for (int i = 0; i < objects.size(); ++i)
        QVERIFY2(!objects.at(i), qPrintable(QString::number(i)));
}

void tst_LogDataSourceLifetime::manySourcesLeaveNothing()
{
    const TempDir dir;
    const QString path = dir.write(text("log.txt"), gasLog());
    makeAndDrop(100, path);
    // The smallest block takes 32 bytes: less than one block a source is no leak. What the
    // libraries take once and keep is in one of the two runs only.
    qint64 least = std::numeric_limits<qint64>::max();
    for (int run = 0; run < 2; ++run) {
        const qint64 before = heapInUse();
        makeAndDrop(1000, path);
        least = qMin(least, heapInUse() - before);
    }
    QVERIFY2(least < 32 * 1000, QByteArray::number(least));
}

void tst_LogDataSourceLifetime::aSecondReadIsRefused()
{
    SourceFixture f;
    const QString path = f.dir.write(text("first.txt"), gasLog());
    EventAction action([&f]() { f.source->setLogFilePath(text("second.csv")); });
    f.source->setLogFilePath(path);
    QCOMPARE(action.runs(), 1);
    QCOMPARE(f.recorder.take(), text("logFileError logFileLoaded"));
    QCOMPARE(f.errors.at(0).at(0).toString(),
             text("LogParser: Failed to read file at path second.csv: "
                  "another file is being read."));
    QCOMPARE(f.source->logFilePath(), path);
    QCOMPARE(int(f.source->parser()->logParserType()), int(LogParser::LogType));
    QCOMPARE(rowTexts(f.source->dataSetModel()), text("Data Set 1,Data Set 2"));
    QCOMPARE(valueTexts(f.source->variableList()), text("Obs,Time,co2,H2O"));
    f.load(gasLog(), "second.csv");
    QCOMPARE(f.recorder.take(), text("logFileLoaded"));
}

void tst_LogDataSourceLifetime::anotherSourceMayRead()
{
    SourceFixture first;
    SourceFixture second;
    EventAction action([&second]() { second.load(gasLog()); });
    first.load(gasLog());
    QCOMPARE(action.runs(), 1);
    QCOMPARE(first.recorder.take(), text("logFileLoaded"));
    QCOMPARE(second.recorder.take(), text("logFileLoaded"));
    QCOMPARE(rowTexts(second.source->xVariableModel()), rowTexts(first.source->xVariableModel()));
}

void tst_LogDataSourceLifetime::aReadCanBeStopped()
{
    SourceFixture f;
    f.show(gasLog());
    const QString path = f.dir.write(text("long.txt"), gasLog());
    EventAction action([&f]() { f.source->parser()->stop(); });
    f.source->setLogFilePath(path);
    QCOMPARE(action.runs(), 1);
    QCOMPARE(f.recorder.take(), text("logFileError"));
    QCOMPARE(f.errors.at(0).at(0).toString(),
             text("LogParser: Reading of file at path %1 was stopped.").arg(path));
    QCOMPARE(rowTexts(f.source->dataSetModel()), text("Data Set 1,Data Set 2"));
    QCOMPARE(columnTexts(f.source->tableModel(), 3), text("2,5"));
    QCOMPARE(valueTexts(f.source->variableList()), QString());
    f.show(gasLog());
    QCOMPARE(valueTexts(f.source->variableList()), text("Obs,Time,co2,H2O"));
}

void tst_LogDataSourceLifetime::theItemMayDieDuringARead_data()
{
    QTest::addColumn<bool>("loadedBefore");
    QTest::newRow("its first") << false;
    QTest::newRow("another") << true;
}

void tst_LogDataSourceLifetime::theItemMayDieDuringARead()
{
    QFETCH(bool, loadedBefore);
    SourceFixture f;
    if (loadedBefore) {
        f.show(gasLog());
        useAll(*f.source);
    }
    const QString path = f.dir.write(text("log.txt"), gasLog());
    QPointer<LogDataSet> halfRead;
    f.recorder.take();
    EventAction action([&]() {
        halfRead = f.source->parser()->tabularParser().dataSets().value(0);
        f.source.reset();
    });
    f.source->setLogFilePath(path);
    QCOMPARE(action.runs(), 1);
    QVERIFY(!f.source);
    QVERIFY(!halfRead);
    QCOMPARE(f.recorder.take(), QString());
}

void tst_LogDataSourceLifetime::scriptsMayUseTheItemDuringARead()
{
    SourceFixture f;
    f.show(gasLog());
    f.source->setLeftGroup(text("Gas"));
    f.source->groupList();
    const QString path = f.dir.write(text("next.txt"), gasLog());
    // One action for each line, so that the item is met in every state of a read.
    QList<EventAction *> actions;
    int used = 0;
    std::function<void()> use = [&]() {
        ++used;
        useAll(*f.source);
        if (f.source->parser()->isParsing())
            actions << new EventAction(use);
    };
    actions << new EventAction(use);
    f.source->setLogFilePath(path);
    qDeleteAll(actions);
    QVERIFY(used > 10);
    QCOMPARE(f.errors.count(), 0);
    QCOMPARE(valueTexts(f.source->variableList()), text("Obs,Time,co2,H2O"));
    f.source->selectDataSet(0);
    QCOMPARE(columnTexts(f.source->tableModel(), 3), text("2,5"));
}

/** The lists show the first data set as chosen then; so must everything else. */
void tst_LogDataSourceLifetime::aDataSetChosenDuringAReadIsForgotten()
{
    SourceFixture f;
    f.show(gasLog());
    const QString path = f.dir.write(text("next.txt"), logBlock("G G G", "a b c", "1 2 3"));
    EventAction action([&f]() { f.source->selectDataSet(1); });
    f.source->setLogFilePath(path);
    QCOMPARE(action.runs(), 1);
    QCOMPARE(intTexts(f.source->checkedItemList(3)), text("0"));
    QCOMPARE(f.source->currentDataSetIndex(), 0);
    QCOMPARE(valueTexts(f.source->variableList()), text("a,b,c"));
}

QTEST_MAIN(tst_LogDataSourceLifetime)
#include "tst_LogDataSourceLifetime.moc"

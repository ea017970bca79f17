#include "datasource/SampleLogs.h"
#include "datasource/SourceFixture.h"
#include "support/ModelTester.h"

#include <QTimer>

/** Offers a log while another one is read. */
class ReadWatcher : public QObject
{
    Q_OBJECT

public:
    ReadWatcher(LogDataSourceItem *source, LogParser *parser)
        : wasReading(false)
        , m_source(source)
        , m_parser(parser)
    {
    }

    bool wasReading;

public slots:
    void offer()
    {
        wasReading = m_source->parser()->isParsing();
        m_source->takeLog(*m_parser);
    }

private:
    LogDataSourceItem *m_source;
    LogParser *m_parser;
};

class tst_LogDataSourceLoading : public QObject
{
    Q_OBJECT

private slots:
    void startsEmpty();
    void modelsAreTheItemsOwn();
    void choosesTheParserByTheEndOfThePath_data();
    void choosesTheParserByTheEndOfThePath();
    void readsByTabsOrCommas_data();
    void readsByTabsOrCommas();
    void failsWithOneMessage_data();
    void failsWithOneMessage();
    void aFailedLoadKeepsModelsAndLists();
    void aFailedLoadLeavesAUsableItem();
    void anEmptyPathKeepsTheDataSets();
    void loadingListsDataSetsAndVariables();
    void loadingTellsNothingElse();
    void modelsAreReadyWhenLoaded();
    void loadingShowsNoDataYet();
    void anotherLoadKeepsTheTablesUntilADataSetIsShown();
    void anotherLoadReplacesTheLists();
    void takesALogReadElsewhere();
    void takesNoneWhileOneIsRead();
    void logsWithoutDataSets_data();
    void logsWithoutDataSets();
    void relaysTheParsersSignals();
    void relaysExcludedRows();

public slots:
    void noteModels();

private:
    SourceFixture *m_noted;
    QString m_notes;
};

void tst_LogDataSourceLoading::startsEmpty()
{
    SourceFixture f;
    QCOMPARE(f.source->logFilePath(), QString());
    QCOMPARE(f.source->maxVariableAxisTitleLength(), 10000);
    QCOMPARE(f.source->currentDataSetIndex(), 0);
    QCOMPARE(f.source->observationRange(), 50);
    QCOMPARE(f.source->observationFrequency(), 1);
    QCOMPARE(int(f.source->observationFilterType()), 1);
    QVERIFY(!f.source->hasExcludedRows());
    QCOMPARE(f.source->dataSetModel()->rowCount(), 0);
    QCOMPARE(f.source->xVariableModel()->rowCount(), 0);
    QCOMPARE(f.source->yVariableModel()->rowCount(), 0);
    QCOMPARE(f.source->zVariableModel()->rowCount(), 0);
    QCOMPARE(f.source->activeFilterModel()->rowCount(), 0);
    QCOMPARE(f.source->tableModel()->rowCount(), 0);
    QCOMPARE(f.source->constTableModel()->rowCount(), 0);
    QCOMPARE(f.source->analysisTableModel()->rowCount(), 0);
    QCOMPARE(f.source->xData().first, QString());
    QVERIFY(f.source->xData().second.isEmpty());
    QVERIFY(f.source->graphedColumns().isEmpty());
    QVERIFY(f.source->YLeftData().isEmpty());
    QVERIFY(f.source->YRightData().isEmpty());
    QCOMPARE(valueTexts(f.source->variableList()), QString());
    QCOMPARE(valueTexts(f.source->dataSetList()), QString());
    QCOMPARE(valueTexts(f.source->criteriaList()), QString());
    QCOMPARE(valueTexts(f.source->groupList()), QString());
    QCOMPARE(valueTexts(f.source->constList()), QString());
    QCOMPARE(f.recorder.take(), QString());
}

void tst_LogDataSourceLoading::modelsAreTheItemsOwn()
{
    SourceFixture f;
    LogDataSourceItem &source = *f.source;
    QCOMPARE(source.observationFilteredTableModel()->sourceModel(),
             static_cast<QAbstractItemModel *>(source.tableModel()));
    QList<QAbstractItemModel *> models;
    models << source.tableModel() << source.observationFilteredTableModel()
           << source.analysisTableModel() << source.constTableModel() << source.dataSetModel()
           << source.activeFilterModel() << source.xVariableModel() << source.yVariableModel()
           << source.zVariableModel();
    f.show(twoBlocks());
    for (int i = 0; i < models.size(); ++i) {
        QVERIFY(models.at(i));
        QVERIFY(!models.at(i)->parent());
        QCOMPARE(models.count(models.at(i)), 1);
    }
    QCOMPARE(static_cast<QAbstractItemModel *>(source.zVariableModel()), models.last());
    QCOMPARE(static_cast<QAbstractItemModel *>(source.tableModel()), models.first());
}

void tst_LogDataSourceLoading::choosesTheParserByTheEndOfThePath_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("type");
    QTest::newRow("text") << "/none/log.txt" << 0;
    QTest::newRow("csv") << "/none/log.csv" << 1;
    QTest::newRow("csv in upper case") << "/none/log.CSV" << 0;
    QTest::newRow("csv without a dot") << "/none/logcsv" << 0;
    QTest::newRow("csv before the end") << "/none/log.csv.txt" << 0;
    QTest::newRow("xls") << "/none/log.xls" << 2;
    QTest::newRow("xls in upper case") << "/none/log.XLS" << 0;
    QTest::newRow("xls without a dot") << "/none/logxls" << 0;
    QTest::newRow("xlsx") << "/none/log.xlsx" << 2;
    QTest::newRow("xlsx without a dot") << "/none/myxlsx" << 2;
    QTest::newRow("xlsx in upper case") << "/none/log.XLSX" << 0;
    QTest::newRow("xlsx and more") << "/none/log.xlsxm" << 0;
    QTest::newRow("nothing") << "" << 0;
}

void tst_LogDataSourceLoading::choosesTheParserByTheEndOfThePath()
{
    QFETCH(QString, path);
    QFETCH(int, type);
    SourceFixture f;
    const int before = type == LogParser::LogType ? LogParser::CsvType : LogParser::LogType;
    f.source->parser()->setLogParserType(LogParser::LogParserType(before));
    f.source->setLogFilePath(path);
    QCOMPARE(int(f.source->parser()->logParserType()), type);
    QCOMPARE(f.source->logFilePath(), path);
}

void tst_LogDataSourceLoading::readsByTabsOrCommas_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<char>("separator");
    QTest::newRow("tabs") << QByteArray("log.txt") << '\t';
    QTest::newRow("commas") << QByteArray("log.csv") << ',';
    QTest::newRow("tabs, whatever the case of csv") << QByteArray("log.CSV") << '\t';
}

void tst_LogDataSourceLoading::readsByTabsOrCommas()
{
    QFETCH(QByteArray, name);
    QFETCH(char, separator);
    SourceFixture f;
    f.load(logBlock("G G G", "Obs Time co2", "1 10:00:00 5", "", separator), name);
    QCOMPARE(f.recorder.take(), text("logFileLoaded"));
    QCOMPARE(rowTexts(f.source->xVariableModel()), text("Obs,Time,co2"));
}

void tst_LogDataSourceLoading::failsWithOneMessage_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("message");
    QTest::newRow("empty path") << ""
                                << "LogFile Path must not be empty.";
    QTest::newRow("missing") << "/none/log.txt"
                             << "LogParser: Failed to open file at path /none/log.txt for reading.";
    QTest::newRow("directory") << "/"
                               << "LogParser: Failed to open file at path / for reading.";
    QTest::newRow("spreadsheet that is not converted")
        << "/none/myxlsx"
        << "LogParser: Failed to open file at path /none/myxlsx for reading.";
    QTest::newRow("percent signs")
        << "/none/%1.txt"
        << "LogParser: Failed to open file at path /none/%1.txt for reading.";
}

void tst_LogDataSourceLoading::failsWithOneMessage()
{
    QFETCH(QString, path);
    QFETCH(QString, message);
    SourceFixture f;
    f.source->setLogFilePath(path);
    QCOMPARE(f.recorder.take(), text("logFileError"));
    QCOMPARE(f.errors.at(0).at(0).toString(), message);
    QCOMPARE(f.source->logFilePath(), path);
}

void tst_LogDataSourceLoading::aFailedLoadKeepsModelsAndLists()
{
    SourceFixture f;
    f.show(twoBlocks());
    f.source->selectDataSet(1);
    f.source->updateVariableSelection(1, 2, true);
    f.recorder.take();
    f.load("no header");
    QCOMPARE(f.recorder.take(), text("logFileError"));
    QCOMPARE(f.errors.at(0).at(0).toString(), text("Log File must start with [Header] section."));
    QCOMPARE(rowTexts(f.source->dataSetModel()), text("Data Set 1,Data Set 2"));
    QCOMPARE(checkedDataSets(f), text("1"));
    QCOMPARE(rowTexts(f.source->xVariableModel()), text("Obs,Time,co2"));
    QCOMPARE(intTexts(f.source->checkedItemList(1)), text("2"));
    QCOMPARE(columnTexts(f.source->tableModel(), 3), text("20"));
    QCOMPARE(f.source->currentDataSetIndex(), 0);
}

void tst_LogDataSourceLoading::aFailedLoadLeavesAUsableItem()
{
    SourceFixture f;
    f.show(twoBlocks());
    f.load("no header");
    f.recorder.take();
    QCOMPARE(valueTexts(f.source->variableList()), QString());
    QCOMPARE(valueTexts(f.source->dataSetList()), QString());
    QCOMPARE(valueTexts(f.source->groupList()), QString());
    QCOMPARE(valueTexts(f.source->constList()), QString());
    f.source->setLeftGroup(text("Gas"));
    f.source->updateVariableSelection(0, 0, true);
    f.source->updateVariableSelection(1, 2, true);
    QCOMPARE(seriesText(f.source->YLeftData()), text("co2 400,410"));
    QCOMPARE(f.source->xData().first, QString());
    f.source->selectDataSet(1);
    QCOMPARE(f.recorder.take(),
             text("graphDataUpdated graphDataUpdated dataUpdated graphDataUpdated"));
    QCOMPARE(f.source->tableModel()->rowCount(), 0);
    QVERIFY(f.source->YLeftData().isEmpty());
    f.load(twoBlocks());
    QCOMPARE(f.recorder.take(), text("logFileLoaded"));
}

void tst_LogDataSourceLoading::anEmptyPathKeepsTheDataSets()
{
    SourceFixture f;
    f.show(twoBlocks());
    f.source->setLogFilePath(QString());
    QCOMPARE(f.recorder.take(), text("logFileError"));
    QCOMPARE(valueTexts(f.source->variableList()), text("Obs,Time,co2"));
    f.source->selectDataSet(1);
    QCOMPARE(columnTexts(f.source->tableModel(), 1), text("7"));
}

void tst_LogDataSourceLoading::loadingListsDataSetsAndVariables()
{
    SourceFixture f;
    f.load(twoBlocks() + logBlock("G", "Obs", ""));
    QCOMPARE(rowTexts(f.source->dataSetModel()), text("Data Set 1,Data Set 2,Data Set 3"));
    QCOMPARE(checkedDataSets(f), text("0"));
    QStandardItemModel *models[]
        = {f.source->xVariableModel(), f.source->yVariableModel(), f.source->zVariableModel()};
    for (int axis = 0; axis < 3; ++axis) {
        ModelTester tester(models[axis]);
        QCOMPARE(rowTexts(models[axis]), text("Obs,Time,co2"));
        QCOMPARE(models[axis]->columnCount(), 1);
        QCOMPARE(intTexts(f.source->checkedItemList(axis)), QString());
        for (int row = 0; row < 3; ++row) {
            const QVariant state = models[axis]->index(row, 0).data(Qt::CheckStateRole);
            QCOMPARE(state, QVariant(0));
            QVERIFY(models[axis]->item(row)->isCheckable());
        }
    }
    QVERIFY(f.source->dataSetModel()->item(2)->isCheckable());
    QCOMPARE(f.source->dataSetModel()->index(0, 0).data(Qt::CheckStateRole), QVariant(2));
    QCOMPARE(f.source->dataSetModel()->index(2, 0).data(Qt::CheckStateRole), QVariant(0));
}

void tst_LogDataSourceLoading::loadingTellsNothingElse()
{
    SourceFixture f;
    QSignalSpy changes(f.source->dataSetModel(), SIGNAL(dataChanged(QModelIndex,QModelIndex)));
    f.load(twoBlocks());
    QCOMPARE(f.recorder.take(), text("logFileLoaded"));
    QCOMPARE(changes.count(), 0);
    f.load(twoBlocks());
    QCOMPARE(f.recorder.take(), text("logFileLoaded"));
}

void tst_LogDataSourceLoading::modelsAreReadyWhenLoaded()
{
    SourceFixture f;
    m_noted = &f;
    connect(f.source.data(), SIGNAL(logFileLoaded()), SLOT(noteModels()));
    f.load(twoBlocks());
    QCOMPARE(m_notes, text("Data Set 1,Data Set 2 Obs,Time,co2"));
}

void tst_LogDataSourceLoading::noteModels()
{
    m_notes = rowTexts(m_noted->source->dataSetModel()) + QLatin1Char(' ')
        + rowTexts(m_noted->source->zVariableModel());
}

void tst_LogDataSourceLoading::loadingShowsNoDataYet()
{
    SourceFixture f;
    f.load(twoBlocks());
    QCOMPARE(f.source->tableModel()->rowCount(), 0);
    QCOMPARE(f.source->constTableModel()->rowCount(), 0);
    QVERIFY(f.source->xData().second.isEmpty());
}

void tst_LogDataSourceLoading::anotherLoadKeepsTheTablesUntilADataSetIsShown()
{
    SourceFixture f;
    f.show(twoBlocks());
    f.source->setHorizontalVariable(text("Obs"));
    f.source->setLeftVariable(text("co2"));
    f.load(logBlock("G G G", "n t v", "5 00:00:00 6"));
    QCOMPARE(columnTexts(f.source->tableModel(), 3), text("400,410"));
    QCOMPARE(columnTexts(f.source->constTableModel(), 0).left(2), text("1,"));
    QCOMPARE(seriesText(f.source->YLeftData()), text("co2 400,410"));
    f.source->selectDataSet(0);
    QCOMPARE(columnTexts(f.source->tableModel(), 3), text("6"));
    QCOMPARE(f.source->constTableModel()->rowCount(), 0);
    QVERIFY(f.source->YLeftData().isEmpty());
}

void tst_LogDataSourceLoading::anotherLoadReplacesTheLists()
{
    SourceFixture f;
    f.show(twoBlocks());
    f.source->selectDataSet(1);
    f.source->updateVariableSelection(0, 1, true);
    f.load(logBlock("G", "Only", "", "Key: 1"));
    QCOMPARE(f.source->currentDataSetIndex(), 0);
    QCOMPARE(rowTexts(f.source->dataSetModel()), text("Data Set 1"));
    QCOMPARE(checkedDataSets(f), text("0"));
    QCOMPARE(rowTexts(f.source->xVariableModel()), text("Only"));
    QCOMPARE(intTexts(f.source->checkedItemList(0)), QString());
    QCOMPARE(valueTexts(f.source->variableList()), text("Only"));
    QCOMPARE(valueTexts(f.source->constList()), text("Key"));
}

void tst_LogDataSourceLoading::takesALogReadElsewhere()
{
    SourceFixture f;
    f.show(twoBlocks());
    f.source->selectDataSet(1);
    f.recorder.take();
    LogParser parser;
    parser.setLogParserType(LogParser::CsvType);
    QString error;
    parser.parseFileAtPath(
        f.dir.write(text("other.csv"), logBlock("G G G", "n t v", "5 00:00:00 6", "K:1 2", ',')),
        error);
    QCOMPARE(error, QString());
    f.source->takeLog(parser);
    QCOMPARE(f.recorder.take(), text("logFileLoaded"));
    QVERIFY(parser.tabularParser().dataSets().isEmpty());
    QCOMPARE(f.source->parser()->tabularParser().dataSets().size(), 1);
    QCOMPARE(int(f.source->parser()->logParserType()), int(LogParser::CsvType));
    QCOMPARE(f.source->currentDataSetIndex(), 0);
    QCOMPARE(checkedDataSets(f), text("0"));
    QCOMPARE(rowTexts(f.source->xVariableModel()), text("n,t,v"));
    QCOMPARE(valueTexts(f.source->constList()), text("K"));
    // As after any load, the tables wait for a data set to be shown.
    QCOMPARE(columnTexts(f.source->tableModel(), 3), text("20"));
    f.source->selectDataSet(0);
    QCOMPARE(columnTexts(f.source->tableModel(), 3), text("6"));
}

void tst_LogDataSourceLoading::takesNoneWhileOneIsRead()
{
    SourceFixture f;
    LogParser parser;
    QString error;
    parser.parseFileAtPath(f.dir.write(text("other.txt"), logBlock("G", "Only", "")), error);
    ReadWatcher watcher(f.source.data(), &parser);
    QTimer::singleShot(0, &watcher, SLOT(offer()));
    f.load(twoBlocks());
    QVERIFY(watcher.wasReading);
    QCOMPARE(f.source->parser()->tabularParser().dataSets().size(), 2);
    QCOMPARE(parser.tabularParser().dataSets().size(), 1);
    parser.tabularParser().clear();
}

void tst_LogDataSourceLoading::logsWithoutDataSets_data()
{
    QTest::addColumn<QByteArray>("log");
    QTest::addColumn<QString>("dataSets");
    QTest::newRow("empty") << QByteArray() << "";
    QTest::newRow("a header mark only") << QByteArray("[Header]\n") << "";
    QTest::newRow("a created date only") << QByteArray("[Header]\nCreated\t2014\n") << "Data Set 1";
    QTest::newRow("no rows of names")
        << QByteArray("[Header]\nCreated\t2014\n[Data]\n") << "Data Set 1";
}

void tst_LogDataSourceLoading::logsWithoutDataSets()
{
    QFETCH(QByteArray, log);
    QFETCH(QString, dataSets);
    SourceFixture f;
    f.show(twoBlocks());
    f.load(log);
    QCOMPARE(f.recorder.take(), text("logFileLoaded"));
    QCOMPARE(rowTexts(f.source->dataSetModel()), dataSets);
    QCOMPARE(f.source->xVariableModel()->rowCount(), 0);
    f.source->selectDataSet(0);
    f.source->setHorizontalVariable(text("Obs"));
    QCOMPARE(valueTexts(f.source->variableList()), QString());
    QCOMPARE(valueTexts(f.source->groupList()), QString());
}

void tst_LogDataSourceLoading::relaysTheParsersSignals()
{
    SourceFixture f;
    f.show(twoBlocks());
    f.source->parser()->tabularParser().clear();
    QVERIFY(QMetaObject::invokeMethod(f.source->parser(), "parsingComplete"));
    QCOMPARE(f.recorder.take(), text("dataUpdated"));
    QCOMPARE(f.source->tableModel()->rowCount(), 2);
    QVERIFY(QMetaObject::invokeMethod(f.source->parser(), "parseError",
                                      Q_ARG(QString, text("broken"))));
    QCOMPARE(f.recorder.take(), text("logFileError"));
    QCOMPARE(f.errors.at(0).at(0).toString(), text("broken"));
}

void tst_LogDataSourceLoading::relaysExcludedRows()
{
    SourceFixture f;
    f.show(twoBlocks());
    f.exclude(1);
    QCOMPARE(f.recorder.take(), text("graphDataUpdated hasExcludeRowsChanged"));
    QVERIFY(f.source->hasExcludedRows());
    f.exclude(0);
    QCOMPARE(f.recorder.take(), text("graphDataUpdated"));
    f.exclude(1, false);
    f.exclude(0, false);
    QCOMPARE(f.recorder.take(), text("graphDataUpdated graphDataUpdated hasExcludeRowsChanged"));
    QVERIFY(!f.source->hasExcludedRows());
}

QTEST_MAIN(tst_LogDataSourceLoading)
#include "tst_LogDataSourceLoading.moc"

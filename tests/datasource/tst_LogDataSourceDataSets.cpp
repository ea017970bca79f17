#include "datasource/SampleLogs.h"
#include "datasource/SourceFixture.h"

/** Choosing which data set of a log is shown. */
class tst_LogDataSourceDataSets : public QObject
{
    Q_OBJECT

private slots:
    void variablesAreThoseOfTheFirstDataSet();
    void selectingShowsADataSet();
    void tablesAreFilledWhenDataIsUpdated();
    void selectingAgainShowsItAnew();
    void selectingOutOfRange_data();
    void selectingOutOfRange();
    void untickingTheDataSetShowsItAnew();
    void tickingASecondDataSetLeavesTwoTicked();
    void aDataSetChangeClearsTheAxesQuietly();

public slots:
    void noteTables();

private:
    SourceFixture *m_noted;
    QString m_notes;
};

namespace
{

/** The check box of a data set, as a view ticks it. */
bool tick(SourceFixture &fixture, int row, bool ticked)
{
    QAbstractItemModel *model = fixture.source->dataSetModel();
    return model->setData(model->index(row, 0), ticked ? Qt::Checked : Qt::Unchecked,
                          Qt::CheckStateRole);
}

} // namespace

/** Whatever data set is shown: the lists keep to the first, the series to the shown one. */
void tst_LogDataSourceDataSets::variablesAreThoseOfTheFirstDataSet()
{
    SourceFixture f;
    f.show(twoBlocks());
    f.source->selectDataSet(1);
    QCOMPARE(rowTexts(f.source->xVariableModel()), text("Obs,Time,co2"));
    QCOMPARE(rowTexts(f.source->yVariableModel()), text("Obs,Time,co2"));
    QCOMPARE(rowTexts(f.source->zVariableModel()), text("Obs,Time,co2"));
    QCOMPARE(valueTexts(f.source->variableList()), text("No,Clock,T,RH"));
}

void tst_LogDataSourceDataSets::selectingShowsADataSet()
{
    SourceFixture f;
    f.load(twoBlocks());
    f.recorder.take();
    QSignalSpy changes(f.source->dataSetModel(), SIGNAL(dataChanged(QModelIndex,QModelIndex)));
    f.source->selectDataSet(1);
    QCOMPARE(f.recorder.take(), text("dataUpdated graphDataUpdated"));
    QCOMPARE(changes.count(), 1);
    QCOMPARE(checkedDataSets(f), text("1"));
    QCOMPARE(f.source->currentDataSetIndex(), 1);
    const LogTableViewModel &table = *f.source->tableModel();
    QCOMPARE(table.rowCount(), 1);
    QCOMPARE(table.columnCount(), 5);
    QCOMPARE(columnTexts(&table, 4), text("50"));
    QCOMPARE(table.headerData(3, Qt::Horizontal).toString(), text("Air\nT\n"));
    const LogConstTableViewModel &constants = *f.source->constTableModel();
    QCOMPARE(constants.columnCount(), 2);
    QCOMPARE(constants.headerData(1, Qt::Horizontal).toString(), text("Off\nC"));
    QCOMPARE(constants.index(0, 1).data().toString(), text("4"));
}

void tst_LogDataSourceDataSets::tablesAreFilledWhenDataIsUpdated()
{
    SourceFixture f;
    m_noted = &f;
    m_notes.clear();
    connect(f.source.data(), SIGNAL(dataUpdated()), SLOT(noteTables()));
    f.load(twoBlocks());
    f.source->selectDataSet(1);
    QCOMPARE(m_notes, text("5 columns, 1 rows, 2 constants"));
}

void tst_LogDataSourceDataSets::noteTables()
{
    m_notes = QString::fromLatin1("%1 columns, %2 rows, %3 constants")
                  .arg(m_noted->source->tableModel()->columnCount())
                  .arg(m_noted->source->tableModel()->rowCount())
                  .arg(m_noted->source->constTableModel()->columnCount());
}

void tst_LogDataSourceDataSets::selectingAgainShowsItAnew()
{
    SourceFixture f;
    f.show(twoBlocks());
    f.source->updateVariableSelection(0, 0, true);
    f.exclude(0);
    f.recorder.take();
    f.source->selectDataSet(0);
    QCOMPARE(f.recorder.take(), text("dataUpdated graphDataUpdated"));
    QCOMPARE(intTexts(f.source->checkedItemList(0)), QString());
    QVERIFY(!f.source->hasExcludedRows());
}

void tst_LogDataSourceDataSets::selectingOutOfRange_data()
{
    QTest::addColumn<int>("index");
    QTest::newRow("past the last") << 2;
    QTest::newRow("far past the last") << 5;
    QTest::newRow("before the first") << -1;
}

void tst_LogDataSourceDataSets::selectingOutOfRange()
{
    QFETCH(int, index);
    SourceFixture f;
    f.show(twoBlocks());
    f.source->selectDataSet(1);
    f.source->updateVariableSelection(0, 0, true);
    f.recorder.take();
    f.source->selectDataSet(index);
    QCOMPARE(f.recorder.take(), QString());
    QCOMPARE(checkedDataSets(f), QString());
    QCOMPARE(f.source->currentDataSetIndex(), 1);
    QCOMPARE(intTexts(f.source->checkedItemList(0)), text("0"));
    QCOMPARE(columnTexts(f.source->tableModel(), 1), text("7"));
}

void tst_LogDataSourceDataSets::untickingTheDataSetShowsItAnew()
{
    SourceFixture f;
    f.show(twoBlocks());
    f.source->selectDataSet(1);
    f.source->updateVariableSelection(1, 1, true);
    f.recorder.take();
    QVERIFY(tick(f, 1, false));
    QCOMPARE(f.recorder.take(), text("dataUpdated graphDataUpdated"));
    QCOMPARE(f.source->currentDataSetIndex(), 1);
    QCOMPARE(checkedDataSets(f), QString());
    QCOMPARE(intTexts(f.source->checkedItemList(1)), QString());
    QCOMPARE(columnTexts(f.source->tableModel(), 1), text("7"));
}

void tst_LogDataSourceDataSets::tickingASecondDataSetLeavesTwoTicked()
{
    SourceFixture f;
    f.load(twoBlocks());
    f.recorder.take();
    QVERIFY(tick(f, 1, true));
    QCOMPARE(checkedDataSets(f), text("0,1"));
    QCOMPARE(f.source->currentDataSetIndex(), 1);
    QVERIFY(tick(f, 0, false));
    QCOMPARE(f.source->currentDataSetIndex(), 0);
    QCOMPARE(checkedDataSets(f), text("1"));
    QCOMPARE(f.recorder.take(), text("dataUpdated graphDataUpdated dataUpdated graphDataUpdated"));
}

void tst_LogDataSourceDataSets::aDataSetChangeClearsTheAxesQuietly()
{
    SourceFixture f;
    f.show(twoBlocks());
    for (int axis = 0; axis < 3; ++axis)
        f.source->updateVariableSelection(axis, axis, true);
    QSignalSpy x(f.source->xVariableModel(), SIGNAL(dataChanged(QModelIndex,QModelIndex)));
    QSignalSpy y(f.source->yVariableModel(), SIGNAL(dataChanged(QModelIndex,QModelIndex)));
    QSignalSpy z(f.source->zVariableModel(), SIGNAL(dataChanged(QModelIndex,QModelIndex)));
    f.recorder.take();
    f.source->selectDataSet(1);
    QCOMPARE(f.recorder.take(), text("dataUpdated graphDataUpdated"));
    for (int axis = 0; axis < 3; ++axis)
        QCOMPARE(intTexts(f.source->checkedItemList(axis)), QString());
    QCOMPARE(x.count() + y.count() + z.count(), 0);
    QVERIFY(f.source->xData().second.isEmpty());
    QVERIFY(f.source->graphedColumns().isEmpty());
    QVERIFY(f.source->YLeftData().isEmpty());
}

QTEST_MAIN(tst_LogDataSourceDataSets)
#include "tst_LogDataSourceDataSets.moc"

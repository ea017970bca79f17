#include "datasource/SampleLogs.h"
#include "datasource/SourceFixture.h"

/** Which observations are plotted: the window over them, and those that are excluded. */
class tst_LogDataSourceWindow : public QObject
{
    Q_OBJECT

private slots:
    void windowSettersRecompute_data();
    void windowSettersRecompute();
    void theWindowSurvivesLoads();
    void clearsExcludedPoints();
};

void tst_LogDataSourceWindow::windowSettersRecompute_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("range");
    QTest::addColumn<int>("step");
    QTest::addColumn<QString>("shown");
    QTest::newRow("head") << 1 << 2 << 1 << "1,2";
    QTest::newRow("tail") << 2 << 3 << 2 << "2,4";
    QTest::newRow("all") << 0 << 1 << 3 << "1,4";
    QTest::newRow("nothing") << 1 << 0 << 1 << "";
    QTest::newRow("step 0") << 1 << 9 << 0 << "1,2,3,4";
    QTest::newRow("step below 0") << 0 << 9 << -2 << "1,3";
}

void tst_LogDataSourceWindow::windowSettersRecompute()
{
    QFETCH(int, type);
    QFETCH(int, range);
    QFETCH(int, step);
    QFETCH(QString, shown);
    SourceFixture f;
    plotLeafLog(f);
    f.source->setObservationRange(range);
    QCOMPARE(f.recorder.take(), text("graphDataUpdated"));
    f.source->setObservationFrequency(step);
    QCOMPARE(f.recorder.take(), text("graphDataUpdated"));
    f.source->setObservationFilterType(
        LogObservationSortFilterProxyModel::LogObservationSortFilterType(type));
    QCOMPARE(f.recorder.take(), text("graphDataUpdated"));
    QCOMPARE(numberTexts(f.source->xData().second), shown);
    QCOMPARE(f.source->observationRange(), range);
    QCOMPARE(f.source->observationFrequency(), step);
    QCOMPARE(int(f.source->observationFilterType()), type);
    QCOMPARE(f.source->observationFilteredTableModel()->rangeSize(), range);
    QCOMPARE(f.source->observationFilteredTableModel()->frequency(), step);
}

void tst_LogDataSourceWindow::theWindowSurvivesLoads()
{
    SourceFixture f;
    f.source->setObservationRange(2);
    f.source->setObservationFrequency(7);
    f.load(leafLog());
    f.source->selectDataSet(0);
    f.source->selectDataSet(1);
    QCOMPARE(f.source->observationRange(), 2);
    QCOMPARE(f.source->observationFrequency(), 7);
}

void tst_LogDataSourceWindow::clearsExcludedPoints()
{
    SourceFixture f;
    plotLeafLog(f);
    f.exclude(1);
    f.exclude(2);
    QCOMPARE(seriesText(f.source->YLeftData()), text("CO2 400,430;Tleaf 20,21"));
    f.recorder.take();
    f.source->clearExcludedPoints();
    QCOMPARE(f.recorder.take(),
             text("graphDataUpdated hasExcludeRowsChanged excludedPointsCleared"));
    QVERIFY(!f.source->hasExcludedRows());
    QCOMPARE(seriesText(f.source->YLeftData()), text("CO2 400,410,420,430;Tleaf 20,26,27,21"));
    f.source->clearExcludedPoints();
    QCOMPARE(f.recorder.take(),
             text("graphDataUpdated hasExcludeRowsChanged excludedPointsCleared"));
}

QTEST_MAIN(tst_LogDataSourceWindow)
#include "tst_LogDataSourceWindow.moc"

#include "viewer/PlotSetup.h"

#include "TemporaryLog.h"
#include "plot/LogViewerItem.h"

#include <QtTest>

class tst_PlotSetup : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void choosesWhatSuits();
    void keepsWhatIsAskedFor();
    void choosesNothingBesideAVerticalVariable();
    void setsWindowAndStyle();
    void addsCriteriaThatTakeEffect();
    void changesNothingForAWrongOption_data();
    void changesNothingForAWrongOption();
    void appliesOptionsOnlyOnce();

private:
    QScopedPointer<LogDataSourceItem> m_source;
    QScopedPointer<LogViewerItem> m_view;
    QScopedPointer<DataSets> m_dataSets;
};

void tst_PlotSetup::init()
{
    const TemporaryLog log;
    m_source.reset(new LogDataSourceItem);
    m_view.reset(new LogViewerItem);
    m_view->setDataSource(m_source.data());
    m_dataSets.reset(new DataSets);
    m_dataSets->setSource(m_source.data());
    m_source->setLogFilePath(log.path());
}

void tst_PlotSetup::cleanup()
{
    m_dataSets.reset();
    m_view.reset();
    m_source.reset();
}

void tst_PlotSetup::choosesWhatSuits()
{
    PlotSetup setup((ViewerOptions()));
    QVERIFY(setup.apply(m_dataSets.data(), m_view.data()));
    QCOMPARE(m_dataSets->current(), 0);
    const VariableChoice choice = VariableChoice::of(m_source.data());
    QCOMPARE(choice.x, QStringList{"Obs"});
    QCOMPARE(choice.left, QStringList{"T"});
    QCOMPARE(choice.right, QStringList{"CO2"});
    QCOMPARE(int(m_source->observationFilterType()), 0);
    QCOMPARE(m_source->observationRange(), 50);
    QVERIFY(m_view->linesEnabled(LogViewerItem::LeftAxis));
    QVERIFY(m_view->linesEnabled(LogViewerItem::RightAxis));
    QVERIFY(!m_view->symbolsEnabled(LogViewerItem::LeftAxis));
    QVERIFY(!m_view->symbolsEnabled(LogViewerItem::RightAxis));
}

void tst_PlotSetup::keepsWhatIsAskedFor()
{
    ViewerOptions options;
    options.dataSet = 2;
    options.x = "Time";
    options.left << "T"
                 << "CO2";
    options.right << "T";
    PlotSetup setup(options);
    QVERIFY(setup.apply(m_dataSets.data(), m_view.data()));
    QCOMPARE(m_dataSets->current(), 1);
    const VariableChoice choice = VariableChoice::of(m_source.data());
    QCOMPARE(choice.x, QStringList{"Time"});
    QCOMPARE(choice.left, (QStringList{"CO2", "T"}));
    QCOMPARE(choice.right, QStringList{"T"});
}

void tst_PlotSetup::choosesNothingBesideAVerticalVariable()
{
    ViewerOptions options;
    options.right << "RH";
    PlotSetup setup(options);
    QVERIFY(setup.apply(m_dataSets.data(), m_view.data()));
    QCOMPARE(VariableChoice::of(m_source.data()).left, QStringList());
    QCOMPARE(VariableChoice::of(m_source.data()).right, QStringList{"RH"});
}

void tst_PlotSetup::setsWindowAndStyle()
{
    ViewerOptions options;
    options.range = ViewerOptions::TailRows;
    options.rangeSize = 4;
    options.every = 2;
    options.style = ViewerOptions::Symbols;
    PlotSetup setup(options);
    QVERIFY(setup.apply(m_dataSets.data(), m_view.data()));
    QCOMPARE(m_source->YLeftData().value("T").value(0), (QVector<double>{27.5, 29.5}));
    QVERIFY(!m_view->linesEnabled(LogViewerItem::LeftAxis));
    QVERIFY(m_view->symbolsEnabled(LogViewerItem::RightAxis));
}

void tst_PlotSetup::addsCriteriaThatTakeEffect()
{
    ViewerOptions options;
    options.criteria << CriterionText::read("T>23") << CriterionText::read("T<=25.5");
    PlotSetup setup(options);
    QVERIFY(setup.apply(m_dataSets.data(), m_view.data()));
    QCOMPARE(m_source->activeFilterModel()->rowCount(), 2);
    QCOMPARE(m_source->YLeftData().value("T").value(0), (QVector<double>{23.5, 24.5, 25.5}));
}

void tst_PlotSetup::changesNothingForAWrongOption_data()
{
    QTest::addColumn<int>("dataSet");
    QTest::addColumn<QString>("left");
    QTest::addColumn<QString>("criterion");
    QTest::addColumn<QString>("error");

    QTest::newRow("data set") << 3 << "T"
                              << "T>1"
                              << "there is no data set 3; the log has 2";
    QTest::newRow("variable") << 1 << "CO"
                              << "T>1"
                              << "there is no variable \"CO\" in data set 1; did you mean CO2?";
    QTest::newRow("criterion") << 2 << "T"
                               << "RH>1"
                               << "there is no variable \"RH\" in data set 2; "
                                  "it has Obs, Time, CO2, T";
}

void tst_PlotSetup::changesNothingForAWrongOption()
{
    QFETCH(int, dataSet);
    QFETCH(QString, left);
    QFETCH(QString, criterion);
    ViewerOptions options;
    options.dataSet = dataSet;
    options.left << left;
    options.criteria << CriterionText::read(criterion);
    options.every = 2;
    PlotSetup setup(options);
    QSignalSpy wrong(&setup, SIGNAL(usageError(QString)));
    QVERIFY(!setup.apply(m_dataSets.data(), m_view.data()));
    QCOMPARE(wrong.count(), 1);
    QTEST(wrong.at(0).at(0).toString(), "error");
    QCOMPARE(m_dataSets->current(), -1);
    QCOMPARE(m_source->activeFilterModel()->rowCount(), 0);
    QCOMPARE(m_source->observationFrequency(), 1);
}

/** They are about the log that was named with them. */
void tst_PlotSetup::appliesOptionsOnlyOnce()
{
    ViewerOptions options;
    options.dataSet = 2;
    options.every = 2;
    options.left << "CO2";
    options.criteria << CriterionText::read("CO2>1");
    PlotSetup setup(options);
    QVERIFY(setup.apply(m_dataSets.data(), m_view.data()));
    m_view->setSymbolsEnabled(LogViewerItem::LeftAxis, true);
    const TemporaryLog log;
    m_source->setLogFilePath(log.path());
    QVERIFY(setup.apply(m_dataSets.data(), m_view.data()));
    QCOMPARE(m_dataSets->current(), 0);
    QCOMPARE(VariableChoice::of(m_source.data()).left, QStringList{"T"});
    QCOMPARE(m_source->observationFrequency(), 2);
    QCOMPARE(m_source->activeFilterModel()->rowCount(), 1);
    QVERIFY(m_view->symbolsEnabled(LogViewerItem::LeftAxis));
}

QTEST_MAIN(tst_PlotSetup)
#include "tst_PlotSetup.moc"

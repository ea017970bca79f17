#include "datasource/SourceFixture.h"

/** Notes what a handler of dataUpdated() finds, and does what the test asks for. */
class DataHandler : public QObject
{
    Q_OBJECT

public:
    enum Action { Watch, DropSource, ClearCriteria };

    DataHandler(SourceFixture &fixture, Action action)
        : dataSet(-1)
        , leftSeries(-1)
        , m_fixture(fixture)
        , m_action(action)
    {
        connect(fixture.source.data(), SIGNAL(dataUpdated()), SLOT(handle()));
    }

    QList<int> checkedX;
    QList<int> checkedDataSets;
    QString criteria;
    QString criteriaNames;
    int dataSet;
    int leftSeries;

public Q_SLOTS:
    void handle()
    {
        LogDataSourceItem *source = m_fixture.source.data();
        checkedX = source->checkedItemList(0);
        checkedDataSets = source->checkedItemList(3);
        criteria = rowTexts(source->activeFilterModel());
        criteriaNames = valueTexts(source->criteriaList());
        dataSet = source->currentDataSetIndex();
        leftSeries = source->YLeftData().size();
        if (m_action == DropSource)
            m_fixture.source.reset();
        if (m_action == ClearCriteria) {
            m_action = Watch;
            source->clearCriteria();
        }
    }

private:
    SourceFixture &m_fixture;
    Action m_action;
};

/** Clears the criteria as soon as a view would show the first of them. */
class RowHandler : public QObject
{
    Q_OBJECT

public:
    explicit RowHandler(LogDataSourceItem *source)
        : m_source(source)
    {
        connect(source->activeFilterModel(), SIGNAL(modelReset()), SLOT(handle()));
    }

public Q_SLOTS:
    void handle()
    {
        if (m_source->activeFilterModel()->rowCount() > 0)
            m_source->clearCriteria();
    }

private:
    LogDataSourceItem *m_source;
};

/** What handlers find in the middle of a change, and what they may do there. */
class tst_LogDataSourceOrder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void axesAreClearBeforeTheTablesChange();
    void onlyTheNewDataSetIsChecked();
    void criteriaAreCompleteBeforeTheTablesChange();
    void sourceGoesInAHandler_data();
    void sourceGoesInAHandler();
    void criteriaAreClearedInAHandler();
    void criteriaAreClearedWhileTheyAreListed();
    void aMissingNameGivesAnEmptyTitle();
};

namespace
{

QByteArray twoBlocks()
{
    const QByteArray block = logBlock("G G G", "Obs Time co2", "1 10:00:00 5|2 10:00:01 6");
    return block + block;
}

} // namespace

void tst_LogDataSourceOrder::axesAreClearBeforeTheTablesChange()
{
    SourceFixture f;
    f.show(twoBlocks());
    f.source->updateVariableSelection(0, 0, true);
    const DataHandler handler(f, DataHandler::Watch);
    f.source->selectDataSet(1);
    QCOMPARE(handler.dataSet, 1);
    QVERIFY(handler.checkedX.isEmpty());
}

void tst_LogDataSourceOrder::onlyTheNewDataSetIsChecked()
{
    SourceFixture f;
    f.show(twoBlocks());
    const DataHandler handler(f, DataHandler::Watch);
    f.source->selectDataSet(1);
    QCOMPARE(handler.checkedDataSets, QList<int>() << 1);
}

void tst_LogDataSourceOrder::criteriaAreCompleteBeforeTheTablesChange()
{
    SourceFixture f;
    f.show(twoBlocks());
    f.source->updateVariableSelection(0, 0, true);
    f.source->updateVariableSelection(1, 2, true);
    QCOMPARE(f.source->YLeftData().size(), 1);
    const DataHandler handler(f, DataHandler::Watch);
    f.source->buildFilter(2, 0, QLatin1String("5"));
    QCOMPARE(handler.criteria, QString::fromLatin1("co2>5"));
    QCOMPARE(handler.criteriaNames, QString::fromLatin1("co2>5"));
    QCOMPARE(handler.leftSeries, 0);
}

void tst_LogDataSourceOrder::sourceGoesInAHandler_data()
{
    QTest::addColumn<int>("change");
    QTest::newRow("a data set is chosen") << 0;
    QTest::newRow("a criterion is added") << 1;
    QTest::newRow("the criteria are cleared") << 2;
}

void tst_LogDataSourceOrder::sourceGoesInAHandler()
{
    QFETCH(int, change);
    SourceFixture f;
    f.show(twoBlocks());
    const DataHandler handler(f, DataHandler::DropSource);
    LogDataSourceItem *source = f.source.data();
    if (change == 0)
        QMetaObject::invokeMethod(source, "updateData");
    if (change == 1)
        source->buildFilter(2, 0, QLatin1String("5"));
    if (change == 2)
        source->clearCriteria();
    QVERIFY(!f.source);
}

void tst_LogDataSourceOrder::criteriaAreClearedInAHandler()
{
    SourceFixture f;
    f.show(twoBlocks());
    const DataHandler handler(f, DataHandler::ClearCriteria);
    f.source->buildFilter(2, 0, QLatin1String("5"));
    QCOMPARE(f.source->activeFilterModel()->rowCount(), 0);
    QCOMPARE(valueTexts(f.source->criteriaList()), QString());
}

void tst_LogDataSourceOrder::criteriaAreClearedWhileTheyAreListed()
{
    SourceFixture f;
    f.show(twoBlocks());
    f.source->buildFilter(2, 0, QLatin1String("5"));
    const RowHandler handler(f.source.data());
    f.source->buildFilter(2, 1, QLatin1String("6"));
    QCOMPARE(f.source->activeFilterModel()->rowCount(), 0);
    QCOMPARE(valueTexts(f.source->criteriaList()), QString());
}

void tst_LogDataSourceOrder::aMissingNameGivesAnEmptyTitle()
{
    SourceFixture f;
    f.show("[Header]\nx\n[Data]\nG\tG\tG\nObs\n\t\n1\t2\t3\n");
    f.source->updateVariableSelection(0, 0, true);
    f.source->updateVariableSelection(2, 2, true);
    QCOMPARE(f.source->YRightData().size(), 1);
    QCOMPARE(f.source->YRightAxisTitle(), QString::fromLatin1(""));
    QVERIFY(!f.source->YRightAxisTitle().isNull());
}

QTEST_MAIN(tst_LogDataSourceOrder)
#include "tst_LogDataSourceOrder.moc"

#include "datasource/SampleLogs.h"
#include "datasource/SourceFixture.h"
#include "support/MessageCapture.h"
#include "support/ModelTester.h"

#include <QPointer>

/** Criteria, as the data source keeps them. */
class tst_LogDataSourceCriteria : public QObject
{
    Q_OBJECT

private slots:
    void buildsACriterion();
    void buildsFromTexts_data();
    void buildsFromTexts();
    void everyOperator();
    void refusesWhatIsNoNumber();
    void refusesWhatIsOutOfRange_data();
    void refusesWhatIsOutOfRange();
    void buildsOnTheShownDataSet();
    void rowsCarryTheCriterion();
    void aRebuildEmptiesTheSeriesAndReloadsTheTables();
    void aRebuildReadsCriteriaInOrder();
    void switchesCriteria();
    void switchingOutOfRange();
    void checkingTheSameStateDoesNothing();
    void aForeignItemIsIgnored();
    void inactiveCriteriaKeepValues();
    void clearsCriteria();
    void clearsWithoutCriteria();
    void addsTheSameCriterionTwice();
    void ignoresNull();
    void removesACriterion();
    void removesOneThatIsNotListed();
    void outlivesDataSetsAndLogs();
    void applies_data();
    void applies();
    void marker();
    void wrappersAreNotDeletedAtOnce();
    void itemOwnsCriteria();
};

namespace
{

LogDataSetFilter *newFilter(const char *variable, int comparison, float value)
{
    LogDataSetFilter::Builder builder;
    builder.variable(text(variable)).filterOperator(comparison).value(value);
    return new LogDataSetFilter(&builder, nullptr);
}

/** What a program does on criteriaUpdated(): it asks for the series anew. */
void recompute(SourceFixture &f)
{
    f.source->setHorizontalVariable(text("Obs"));
    f.recorder.take();
}

} // namespace

void tst_LogDataSourceCriteria::buildsACriterion()
{
    SourceFixture f;
    f.show(leafLog());
    ModelTester tester(f.source->activeFilterModel());
    f.source->buildFilter(2, 1, text("25.5"));
    QCOMPARE(f.recorder.take(), text("dataUpdated criteriaUpdated"));
    QCOMPARE(rowTexts(f.source->activeFilterModel()), text("Tleaf>=25.5"));
    QCOMPARE(f.source->activeFilterModel()->columnCount(), 1);
    QCOMPARE(valueTexts(f.source->criteriaList()), text("Tleaf>=25.5"));
    QDeclarativeListProperty<PropertyWrapper> list = f.source->criteriaList();
    QCOMPARE(list.at(&list, 0)->option(), QString());
    QVERIFY(!list.at(&list, 0)->parent());
}

void tst_LogDataSourceCriteria::buildsFromTexts_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("criterion");
    QTest::newRow("an exponent") << "1e3"
                                 << "CO2>1000";
    QTest::newRow("six digits") << "1.23456789"
                                << "CO2>1.23457";
    QTest::newRow("negative") << "-0.5"
                              << "CO2>-0.5";
    QTest::newRow("blanks around") << " 7 "
                                   << "CO2>7";
    QTest::newRow("a comma") << "1,5"
                             << "";
    QTest::newRow("empty") << ""
                           << "";
    QTest::newRow("hexadecimal") << "0x10"
                                 << "";
}

void tst_LogDataSourceCriteria::buildsFromTexts()
{
    QFETCH(QString, value);
    QFETCH(QString, criterion);
    SourceFixture f;
    f.show(leafLog());
    MessageCapture capture;
    f.source->buildFilter(3, 0, value);
    QCOMPARE(rowTexts(f.source->activeFilterModel()), criterion);
    QCOMPARE(capture.messages().size(), criterion.isEmpty() ? 1 : 0);
}

void tst_LogDataSourceCriteria::everyOperator()
{
    SourceFixture f;
    f.show(leafLog());
    for (int comparison = 0; comparison < 6; ++comparison)
        f.source->buildFilter(2, comparison, text("5"));
    const QString expected = text("Tleaf>5,Tleaf>=5,Tleaf<5,Tleaf<=5,Tleaf=5,Tleaf!=5");
    QCOMPARE(rowTexts(f.source->activeFilterModel()), expected);
    QCOMPARE(valueTexts(f.source->criteriaList()), expected);
}

void tst_LogDataSourceCriteria::refusesWhatIsNoNumber()
{
    SourceFixture f;
    plotLeafLog(f);
    MessageCapture capture;
    f.source->buildFilter(2, 1, text("abc"));
    QCOMPARE(capture.messages(),
             QStringList() << text("ERROR: LogDataSourceItem::buildFilter() - Failed to convert "
                                   "value from filter value."));
    QCOMPARE(f.recorder.take(), QString());
    QCOMPARE(f.source->activeFilterModel()->rowCount(), 0);
    QCOMPARE(valueTexts(f.source->criteriaList()), QString());
    QCOMPARE(f.source->YLeftData().size(), 2);
}

void tst_LogDataSourceCriteria::refusesWhatIsOutOfRange_data()
{
    QTest::addColumn<int>("variable");
    QTest::addColumn<int>("comparison");
    QTest::newRow("variable past the last") << 4 << 0;
    QTest::newRow("variable -1") << -1 << 0;
    QTest::newRow("operator past the last") << 0 << 6;
    QTest::newRow("operator -1") << 0 << -1;
}

void tst_LogDataSourceCriteria::refusesWhatIsOutOfRange()
{
    QFETCH(int, variable);
    QFETCH(int, comparison);
    SourceFixture f;
    f.show(leafLog());
    MessageCapture capture;
    f.source->buildFilter(variable, comparison, text("1"));
    QCOMPARE(capture.messages().size(), 1);
    QCOMPARE(f.recorder.take(), QString());
    QCOMPARE(f.source->activeFilterModel()->rowCount(), 0);
}

void tst_LogDataSourceCriteria::buildsOnTheShownDataSet()
{
    SourceFixture f;
    f.show(leafLog());
    f.source->selectDataSet(1);
    f.source->buildFilter(0, 0, text("1"));
    QCOMPARE(rowTexts(f.source->activeFilterModel()), text("T>1"));
}

void tst_LogDataSourceCriteria::rowsCarryTheCriterion()
{
    SourceFixture f;
    f.show(leafLog());
    LogDataSetFilter *filter = newFilter("Tleaf", 0, 3);
    filter->setActive(false);
    f.source->addFilter(filter);
    f.source->addFilter(newFilter("CO2", 0, 3));
    const QModelIndex first = f.source->activeFilterModel()->index(0, 0);
    const int role = Qt::UserRole + 1;
    QCOMPARE(first.data(role).userType(), QMetaType::type("LogDataSetFilter*"));
    QCOMPARE(*static_cast<LogDataSetFilter *const *>(first.data(role).constData()), filter);
    QCOMPARE(first.data(Qt::CheckStateRole), QVariant(0));
    QCOMPARE(f.source->activeFilterModel()->index(1, 0).data(Qt::CheckStateRole), QVariant(2));
    QVERIFY(f.source->activeFilterModel()->item(0)->isCheckable());
    QCOMPARE(intTexts(f.source->checkedItemList(4)), text("1"));
}

void tst_LogDataSourceCriteria::aRebuildEmptiesTheSeriesAndReloadsTheTables()
{
    SourceFixture f;
    plotLeafLog(f);
    f.exclude(1);
    f.recorder.take();
    QSignalSpy resets(f.source->tableModel(), SIGNAL(modelReset()));
    QSignalSpy constResets(f.source->constTableModel(), SIGNAL(modelReset()));
    f.source->addFilter(newFilter("Tleaf", 0, 25));
    QCOMPARE(f.recorder.take(), text("dataUpdated criteriaUpdated"));
    QCOMPARE(resets.count(), 2);
    QCOMPARE(constResets.count(), 2);
    QVERIFY(!f.source->hasExcludedRows());
    QVERIFY(f.source->XLeftData().isEmpty());
    QVERIFY(f.source->YLeftData().isEmpty());
    QCOMPARE(f.source->YLeftAxisTitle(), QString());
    // Only the curves go: they wait to be computed anew.
    QCOMPARE(f.source->xData().first, text("Obs"));
    QCOMPARE(intTexts(f.source->graphedColumns()), text("0,2,3"));
    QCOMPARE(intTexts(f.source->checkedItemList(1)), text("2,3"));
    recompute(f);
    QCOMPARE(seriesText(f.source->YLeftData()), text("CO2 400,410,420,430;Tleaf 26,27"));
}

void tst_LogDataSourceCriteria::aRebuildReadsCriteriaInOrder()
{
    SourceFixture f;
    f.show(leafLog());
    QSignalSpy resets(f.source->activeFilterModel(), SIGNAL(modelReset()));
    QSignalSpy changes(f.source->activeFilterModel(), SIGNAL(dataChanged(QModelIndex,QModelIndex)));
    f.source->buildFilter(3, 0, text("2"));
    f.source->buildFilter(2, 0, text("1"));
    f.source->buildFilter(3, 0, text("2"));
    QCOMPARE(rowTexts(f.source->activeFilterModel()), text("CO2>2,Tleaf>1,CO2>2"));
    QCOMPARE(valueTexts(f.source->criteriaList()), text("CO2>2,Tleaf>1,CO2>2"));
    QCOMPARE(resets.count(), 3);
    QCOMPARE(changes.count(), 0);
}

void tst_LogDataSourceCriteria::switchesCriteria()
{
    SourceFixture f;
    plotLeafLog(f);
    ModelTester tester(f.source->activeFilterModel());
    QPointer<LogDataSetFilter> filter(newFilter("Tleaf", 0, 25));
    f.source->addFilter(filter);
    f.source->addFilter(newFilter("CO2", 0, 1));
    f.recorder.take();
    f.source->updateCriteriaSelection(0, false);
    QCOMPARE(f.recorder.take(), text("dataUpdated criteriaUpdated"));
    QVERIFY(!filter->active());
    QCOMPARE(intTexts(f.source->checkedItemList(4)), text("1"));
    QCOMPARE(rowTexts(f.source->activeFilterModel()), text("Tleaf>25,CO2>1"));
    QAbstractItemModel *model = f.source->activeFilterModel();
    QVERIFY(model->setData(model->index(0, 0), Qt::Checked, Qt::CheckStateRole));
    QCOMPARE(f.recorder.take(), text("dataUpdated criteriaUpdated"));
    QVERIFY(filter->active());
    QCOMPARE(valueTexts(f.source->criteriaList()), text("Tleaf>25,CO2>1"));
}

void tst_LogDataSourceCriteria::switchingOutOfRange()
{
    SourceFixture f;
    f.show(leafLog());
    f.source->updateCriteriaSelection(0, true);
    f.source->buildFilter(2, 0, text("1"));
    f.recorder.take();
    f.source->updateCriteriaSelection(1, false);
    f.source->updateCriteriaSelection(-1, false);
    QCOMPARE(f.recorder.take(), QString());
    QCOMPARE(intTexts(f.source->checkedItemList(4)), text("0"));
}

void tst_LogDataSourceCriteria::checkingTheSameStateDoesNothing()
{
    SourceFixture f;
    f.show(leafLog());
    f.source->buildFilter(2, 0, text("1"));
    f.recorder.take();
    f.source->updateCriteriaSelection(0, true);
    QCOMPARE(f.recorder.take(), QString());
}

void tst_LogDataSourceCriteria::aForeignItemIsIgnored()
{
    SourceFixture f;
    f.show(leafLog());
    f.source->buildFilter(2, 0, text("1"));
    QStandardItem *foreign = new QStandardItem(text("foreign"));
    f.source->activeFilterModel()->appendRow(foreign);
    f.recorder.take();
    foreign->setCheckState(Qt::Checked);
    QCOMPARE(f.recorder.take(), QString());
    foreign->setData(5);
    QCOMPARE(f.recorder.take(), QString());
    QCOMPARE(valueTexts(f.source->criteriaList()), text("Tleaf>1"));
}

void tst_LogDataSourceCriteria::inactiveCriteriaKeepValues()
{
    SourceFixture f;
    plotLeafLog(f);
    f.source->buildFilter(2, 0, text("25"));
    recompute(f);
    QCOMPARE(seriesText(f.source->YLeftData()), text("CO2 400,410,420,430;Tleaf 26,27"));
    f.source->updateCriteriaSelection(0, false);
    recompute(f);
    QCOMPARE(seriesText(f.source->YLeftData()), text("CO2 400,410,420,430;Tleaf 20,26,27,21"));
}

void tst_LogDataSourceCriteria::clearsCriteria()
{
    SourceFixture f;
    plotLeafLog(f);
    QPointer<LogDataSetFilter> filter(newFilter("Tleaf", 0, 25));
    f.source->addFilter(filter);
    f.source->buildFilter(2, 0, text("1"));
    recompute(f);
    f.source->clearCriteria();
    QCOMPARE(f.recorder.take(), text("dataUpdated criteriaUpdated"));
    QVERIFY(!filter);
    QCOMPARE(f.source->activeFilterModel()->rowCount(), 0);
    QCOMPARE(valueTexts(f.source->criteriaList()), QString());
    QVERIFY(f.source->YLeftData().isEmpty());
}

void tst_LogDataSourceCriteria::clearsWithoutCriteria()
{
    SourceFixture f;
    plotLeafLog(f);
    QSignalSpy resets(f.source->activeFilterModel(), SIGNAL(modelReset()));
    f.source->clearCriteria();
    QCOMPARE(f.recorder.take(), text("dataUpdated criteriaUpdated"));
    QCOMPARE(resets.count(), 1);
    QVERIFY(f.source->YLeftData().isEmpty());
    SourceFixture fresh;
    fresh.source->clearCriteria();
    QCOMPARE(fresh.recorder.take(), text("dataUpdated criteriaUpdated"));
}

void tst_LogDataSourceCriteria::addsTheSameCriterionTwice()
{
    SourceFixture f;
    f.show(leafLog());
    QPointer<LogDataSetFilter> filter(newFilter("Tleaf", 0, 25));
    f.source->addFilter(filter);
    f.source->addFilter(filter);
    QCOMPARE(rowTexts(f.source->activeFilterModel()), text("Tleaf>25,Tleaf>25"));
    f.source->clearCriteria();
    QVERIFY(!filter);
    QCOMPARE(f.source->activeFilterModel()->rowCount(), 0);
}

void tst_LogDataSourceCriteria::ignoresNull()
{
    SourceFixture f;
    f.show(leafLog());
    f.source->addFilter(nullptr);
    QCOMPARE(f.source->activeFilterModel()->rowCount(), 0);
    f.source->removeFilter(nullptr);
    QCOMPARE(f.recorder.take(), text("dataUpdated criteriaUpdated dataUpdated criteriaUpdated"));
}

void tst_LogDataSourceCriteria::removesACriterion()
{
    SourceFixture f;
    f.show(leafLog());
    QPointer<LogDataSetFilter> filter(newFilter("Tleaf", 0, 25));
    f.source->addFilter(filter);
    f.source->buildFilter(3, 0, text("1"));
    f.source->addFilter(filter);
    f.recorder.take();
    f.source->removeFilter(filter);
    QCOMPARE(f.recorder.take(), text("dataUpdated criteriaUpdated"));
    QVERIFY(!filter);
    QCOMPARE(rowTexts(f.source->activeFilterModel()), text("CO2>1"));
}

void tst_LogDataSourceCriteria::removesOneThatIsNotListed()
{
    SourceFixture f;
    f.show(leafLog());
    f.source->buildFilter(3, 0, text("1"));
    f.recorder.take();
    QSignalSpy resets(f.source->activeFilterModel(), SIGNAL(modelReset()));
    QPointer<LogDataSetFilter> filter(newFilter("Tleaf", 0, 25));
    f.source->removeFilter(filter);
    QVERIFY(!filter);
    QCOMPARE(resets.count(), 1);
    QCOMPARE(f.recorder.take(), text("dataUpdated criteriaUpdated"));
    QCOMPARE(rowTexts(f.source->activeFilterModel()), text("CO2>1"));
}

void tst_LogDataSourceCriteria::outlivesDataSetsAndLogs()
{
    SourceFixture f;
    plotLeafLog(f);
    f.source->buildFilter(2, 0, text("25"));
    f.source->selectDataSet(1);
    f.show(leafLog());
    QCOMPARE(rowTexts(f.source->activeFilterModel()), text("Tleaf>25"));
    f.source->setHorizontalVariable(text("Obs"));
    f.source->setLeftVariable(text("Tleaf"));
    QCOMPARE(seriesText(f.source->YLeftData()), text("Tleaf 26,27"));
    f.show(logBlock("G G G", "Obs Time v", "1 ~ 5"));
    f.source->setHorizontalVariable(text("Obs"));
    f.source->setLeftVariable(text("v"));
    QCOMPARE(seriesText(f.source->YLeftData()), text("v 5"));
}

void tst_LogDataSourceCriteria::applies_data()
{
    QTest::addColumn<QString>("criteria");
    QTest::addColumn<QString>("values");
    QTest::addColumn<QString>("result");
    QTest::newRow("none") << ""
                          << "5,abc"
                          << "5,abc";
    QTest::newRow("what is no number is 0") << "x>3"
                                            << "5,abc,12"
                                            << "5,---,12";
    QTest::newRow("two on one variable") << "x>3 x<10"
                                         << "3,4,9,10,abc"
                                         << "---,4,9,---,---";
    QTest::newRow("case of the name") << "X>3"
                                      << "2,4"
                                      << "---,4";
    QTest::newRow("another variable") << "y>3"
                                      << "2,4"
                                      << "2,4";
    QTest::newRow("no values") << "x>3"
                               << ""
                               << "";
}

void tst_LogDataSourceCriteria::applies()
{
    QFETCH(QString, criteria);
    QFETCH(QString, values);
    QFETCH(QString, result);
    SourceFixture f;
    foreach (const QString &criterion, criteria.split(QLatin1Char(' '))) {
        if (criterion.isEmpty())
            continue;
        const int comparison = LogDataSetFilter::operators.indexOf(criterion.mid(1, 1));
        f.source->addFilter(
            newFilter(criterion.left(1).toUtf8(), comparison, criterion.mid(2).toFloat()));
    }
    QList<QString> texts;
    if (!values.isEmpty())
        texts = values.split(QLatin1Char(','));
    const QList<QString> before = texts;
    const QStringList after(f.source->applyFilters(text("x"), texts));
    QCOMPARE(after.join(QLatin1String(",")), result);
    QCOMPARE(texts, before);
}

void tst_LogDataSourceCriteria::marker()
{
    QCOMPARE(LogDataSourceItem::kFilteredDelimiter, text("---"));
}

/** The script that is running may hold some of them. */
void tst_LogDataSourceCriteria::wrappersAreNotDeletedAtOnce()
{
    SourceFixture f;
    f.show(leafLog());
    f.source->buildFilter(2, 0, text("1"));
    QDeclarativeListProperty<PropertyWrapper> list = f.source->criteriaList();
    const QPointer<PropertyWrapper> wrapper(list.at(&list, 0));
    f.source->buildFilter(2, 0, text("2"));
    QVERIFY(wrapper);
    QCOMPARE(valueTexts(list), text("Tleaf>1,Tleaf>2"));
    QVERIFY(list.at(&list, 0) != wrapper.data());
}

void tst_LogDataSourceCriteria::itemOwnsCriteria()
{
    SourceFixture f;
    QPointer<LogDataSetFilter> filter(newFilter("Tleaf", 0, 25));
    f.source->addFilter(filter);
    f.source.reset();
    QVERIFY(!filter);
}

QTEST_MAIN(tst_LogDataSourceCriteria)
#include "tst_LogDataSourceCriteria.moc"

#include "viewer/DataSets.h"

#include "TemporaryLog.h"
#include "support/ModelTester.h"
#include "viewer/VariableChoice.h"

#include <QtTest>

class tst_DataSets : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void isEmptyWithoutSource();
    void namesDataSets();
    void showsOneWithNothingTicked();
    void listsTheVariablesOfTheOneShown();
    void plotsTheVariableThatWasTicked();
    void keepsTicksByName();
    void ticksWhatSuitsWhenNothingIsLeft();
    void leavesAnEmptyChoiceEmpty();
    void survivesADataSetWithoutData();
    void showsNothingOfALogWithoutDataSets();
    void ignoresIndexesThatDoNotExist();

private:
    static QStringList rows(const QStandardItemModel *model);
    void open(const QByteArray &text);

    QScopedPointer<LogDataSourceItem> m_source;
    QScopedPointer<DataSets> m_dataSets;
};

QStringList tst_DataSets::rows(const QStandardItemModel *model)
{
    QStringList rows;
    for (int row = 0; row < model->rowCount(); ++row)
        rows.append(model->item(row)->text());
    return rows;
}

void tst_DataSets::open(const QByteArray &text)
{
    const TemporaryLog log(text);
    m_source->setLogFilePath(log.path());
    m_dataSets->show(0);
}

void tst_DataSets::init()
{
    m_source.reset(new LogDataSourceItem);
    m_dataSets.reset(new DataSets);
    m_dataSets->setSource(m_source.data());
    open(TemporaryLog::twoDataSets());
}

void tst_DataSets::cleanup()
{
    m_dataSets.reset();
    m_source.reset();
}

void tst_DataSets::isEmptyWithoutSource()
{
    DataSets dataSets;
    dataSets.show(0);
    dataSets.choose(0);
    QCOMPARE(dataSets.current(), -1);
    QCOMPARE(dataSets.names(), QStringList());
    QCOMPARE(dataSets.variableNames(), QStringList());
}

void tst_DataSets::namesDataSets()
{
    QCOMPARE(m_dataSets->names(), (QStringList{"1: 2020-01-01, 10 rows", "2: 2020-01-02, 3 rows"}));
}

void tst_DataSets::showsOneWithNothingTicked()
{
    m_source->updateVariableSelection(1, 2, true);
    QSignalSpy changed(m_dataSets.data(), SIGNAL(changed()));
    m_dataSets->show(1);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(m_dataSets->current(), 1);
    QCOMPARE(m_source->checkedItemList(3), QList<int>{1});
    QVERIFY(VariableChoice::of(m_source.data()).isEmpty());
}

void tst_DataSets::listsTheVariablesOfTheOneShown()
{
    const ModelTester xTester(m_source->xVariableModel());
    const ModelTester yTester(m_source->yVariableModel());
    const ModelTester zTester(m_source->zVariableModel());
    const QStringList first{"Obs", "Time", "T", "RH", "CO2"};
    const QStringList second{"Obs", "Time", "CO2", "T"};
    QCOMPARE(rows(m_source->yVariableModel()), first);
    m_dataSets->show(1);
    QCOMPARE(m_dataSets->variableNames(), second);
    QCOMPARE(rows(m_source->xVariableModel()), second);
    QCOMPARE(rows(m_source->yVariableModel()), second);
    QCOMPARE(rows(m_source->zVariableModel()), second);
    m_dataSets->show(0);
    QCOMPARE(rows(m_source->yVariableModel()), first);
}

void tst_DataSets::plotsTheVariableThatWasTicked()
{
    m_dataSets->show(1);
    m_source->setHorizontalVariable("Obs");
    m_source->setLeftVariable("T");
    QCOMPARE(m_source->YLeftData().value("T").value(0), (QVector<double>{1.5, 2.5, 3.5}));
    QCOMPARE(m_source->xVariableModel()->item(0)->isCheckable(), true);
}

void tst_DataSets::keepsTicksByName()
{
    m_source->setHorizontalVariable("Obs");
    m_source->setLeftVariable("T");
    m_source->setRightVariable("RH");
    m_dataSets->choose(1);
    const VariableChoice choice = VariableChoice::of(m_source.data());
    QCOMPARE(choice.x, QStringList{"Obs"});
    QCOMPARE(choice.left, QStringList{"T"});
    QCOMPARE(choice.right, QStringList());
    QCOMPARE(m_source->YLeftData().value("T").value(0).value(0), 1.5);
}

void tst_DataSets::ticksWhatSuitsWhenNothingIsLeft()
{
    m_source->setHorizontalVariable("Obs");
    m_source->setLeftVariable("RH");
    m_dataSets->choose(1);
    const VariableChoice choice = VariableChoice::of(m_source.data());
    QCOMPARE(choice.x, QStringList{"Obs"});
    QCOMPARE(choice.left, QStringList{"CO2"});
    QCOMPARE(choice.right, QStringList{"T"});
}

void tst_DataSets::leavesAnEmptyChoiceEmpty()
{
    m_dataSets->choose(1);
    QVERIFY(VariableChoice::of(m_source.data()).isEmpty());
}

void tst_DataSets::survivesADataSetWithoutData()
{
    open(TemporaryLog::twoDataSets() + "[Header]\nCreated\t2020-01-03\n");
    QCOMPARE(m_dataSets->names().value(2), QString("3: 2020-01-03, no data"));
    m_source->setHorizontalVariable("Obs");
    m_source->setLeftVariable("T");
    m_dataSets->choose(2);
    QCOMPARE(m_dataSets->variableNames(), QStringList());
    QCOMPARE(m_source->yVariableModel()->rowCount(), 0);
    m_dataSets->choose(0);
    QCOMPARE(VariableChoice::of(m_source.data()).left, QStringList{"T"});
}

void tst_DataSets::showsNothingOfALogWithoutDataSets()
{
    QVERIFY(m_source->tableModel()->rowCount() > 0);
    QSignalSpy changed(m_dataSets.data(), SIGNAL(changed()));
    QSignalSpy updated(m_source.data(), SIGNAL(dataUpdated()));
    open(QByteArray());
    QCOMPARE(changed.count(), 1);
    QCOMPARE(updated.count(), 1);
    QCOMPARE(m_dataSets->names(), QStringList());
    QCOMPARE(m_dataSets->variableNames(), QStringList());
    QCOMPARE(m_dataSets->current(), -1);
    QCOMPARE(m_source->tableModel()->rowCount(), 0);
    QCOMPARE(m_source->constTableModel()->rowCount(), 0);
    open(TemporaryLog::twoDataSets());
    QCOMPARE(m_dataSets->current(), 0);
    QCOMPARE(m_source->tableModel()->rowCount(), 10);
}

void tst_DataSets::ignoresIndexesThatDoNotExist()
{
    m_dataSets->show(-1);
    m_dataSets->choose(2);
    QCOMPARE(m_dataSets->current(), 0);
    QCOMPARE(m_source->checkedItemList(3), QList<int>{0});
}

QTEST_MAIN(tst_DataSets)
#include "tst_DataSets.moc"

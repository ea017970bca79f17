#include "viewer/HorizontalChoice.h"

#include "TemporaryLog.h"

#include <QtTest>

/** A log that is shown, its horizontal variable under control. */
struct ChosenLog {
    ChosenLog()
    {
        const TemporaryLog log;
        choice.setSource(&source);
        source.setLogFilePath(log.path());
        source.selectDataSet(0);
    }

    LogDataSourceItem source;
    HorizontalChoice choice;
};

class tst_HorizontalChoice : public QObject
{
    Q_OBJECT

private slots:
    void keepsTheLastTick_data();
    void keepsTheLastTick();
    void leavesOtherAxesAlone();
    void allowsNone();
};

void tst_HorizontalChoice::keepsTheLastTick_data()
{
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("second");

    QTest::newRow("further down") << 0 << 2;
    QTest::newRow("further up") << 2 << 0;
}

void tst_HorizontalChoice::keepsTheLastTick()
{
    QFETCH(int, first);
    QFETCH(int, second);
    ChosenLog chosen;
    LogDataSourceItem &source = chosen.source;
    source.updateVariableSelection(0, first, true);
    source.updateVariableSelection(0, second, true);
    QCOMPARE(source.checkedItemList(0), QList<int>{second});
    QCOMPARE(source.xData().first, source.xVariableModel()->item(second)->text());
}

void tst_HorizontalChoice::leavesOtherAxesAlone()
{
    ChosenLog chosen;
    LogDataSourceItem &source = chosen.source;
    source.updateVariableSelection(1, 2, true);
    source.updateVariableSelection(1, 3, true);
    source.updateVariableSelection(0, 0, true);
    QCOMPARE(source.checkedItemList(1), (QList<int>{2, 3}));
}

void tst_HorizontalChoice::allowsNone()
{
    ChosenLog chosen;
    LogDataSourceItem &source = chosen.source;
    source.updateVariableSelection(0, 1, true);
    source.updateVariableSelection(0, 1, false);
    QCOMPARE(source.checkedItemList(0), QList<int>());
}

QTEST_MAIN(tst_HorizontalChoice)
#include "tst_HorizontalChoice.moc"

#include "viewer/VariableChoice.h"

#include "TemporaryLog.h"
#include "datasource/LogDataSourceItem.h"

#include <QtTest>

class tst_VariableChoice : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void readsWhatIsChecked();
    void appliesWithOneComputation();
    void leavesUnknownNamesOut();
    void takesTheFirstOfEqualNames();
    void keepsWhatIsAmong();

private:
    QScopedPointer<LogDataSourceItem> m_source;
};

void tst_VariableChoice::init()
{
    const TemporaryLog log;
    m_source.reset(new LogDataSourceItem);
    m_source->setLogFilePath(log.path());
    m_source->selectDataSet(0);
}

void tst_VariableChoice::cleanup()
{
    m_source.reset();
}

void tst_VariableChoice::readsWhatIsChecked()
{
    QVERIFY(VariableChoice::of(m_source.data()).isEmpty());
    m_source->updateVariableSelection(0, 0, true);
    m_source->updateVariableSelection(0, 1, true);
    m_source->updateVariableSelection(1, 3, true);
    m_source->updateVariableSelection(1, 2, true);
    m_source->updateVariableSelection(2, 4, true);
    const VariableChoice choice = VariableChoice::of(m_source.data());
    QCOMPARE(choice.x, QStringList{"Obs"}); // the one that is plotted
    QCOMPARE(choice.left, (QStringList{"T", "RH"}));
    QCOMPARE(choice.right, QStringList{"CO2"});
}

void tst_VariableChoice::appliesWithOneComputation()
{
    m_source->updateVariableSelection(1, 0, true);
    QSignalSpy computed(m_source.data(), SIGNAL(graphDataUpdated()));
    VariableChoice choice;
    choice.x << "Obs";
    choice.left << "RH"
                << "T";
    choice.right << "CO2";
    choice.applyTo(m_source.data());
    QCOMPARE(computed.count(), 1);
    QCOMPARE(m_source->YLeftData().keys(), (QStringList{"RH", "T"}));
    QCOMPARE(m_source->YRightData().keys(), QStringList{"CO2"});
    QCOMPARE(m_source->XLeftData().value("T").value(0).size(), 10);
    QCOMPARE(m_source->checkedItemList(1), (QList<int>{2, 3}));
}

void tst_VariableChoice::leavesUnknownNamesOut()
{
    VariableChoice choice;
    choice.x << "Obs";
    choice.left << "t"
                << "T"
                << "Nothing";
    choice.applyTo(m_source.data());
    QCOMPARE(m_source->checkedItemList(1), QList<int>{2});
}

void tst_VariableChoice::takesTheFirstOfEqualNames()
{
    m_source->yVariableModel()->item(4)->setText("T");
    VariableChoice choice;
    choice.left << "T"
                << "T";
    choice.applyTo(m_source.data());
    QCOMPARE(m_source->checkedItemList(1), QList<int>{2});
}

void tst_VariableChoice::keepsWhatIsAmong()
{
    VariableChoice choice;
    choice.x << "Obs";
    choice.left << "T"
                << "RH";
    choice.right << "CO2";
    const VariableChoice kept = choice.among({"RH", "Obs", "Time"});
    QCOMPARE(kept.x, QStringList{"Obs"});
    QCOMPARE(kept.left, QStringList{"RH"});
    QCOMPARE(kept.right, QStringList());
}

QTEST_MAIN(tst_VariableChoice)
#include "tst_VariableChoice.moc"

#include "viewer/CriteriaKeeper.h"

#include "TemporaryLog.h"
#include "viewer/DataSets.h"

#include <QtTest>

class tst_CriteriaKeeper : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void computesAtOnce();
    void computesOnceAChange();
    void putsExcludedRowsBack();
    void putsExcludedRowsBackEveryTime();
    void forgetsRowsOfAnotherDataSet();
    void forgetsRowsThatWereCleared();
    void outlivesTheSource();

private:
    void exclude(int row);

    QScopedPointer<LogDataSourceItem> m_source;
    QScopedPointer<CriteriaKeeper> m_keeper;
};

namespace
{

const int kT = 2;
const int kGreaterThan = 0;

} // namespace

void tst_CriteriaKeeper::init()
{
    const TemporaryLog log;
    m_source.reset(new LogDataSourceItem);
    m_keeper.reset(new CriteriaKeeper);
    m_keeper->setSource(m_source.data());
    m_source->setLogFilePath(log.path());
    m_source->selectDataSet(0);
    m_source->setHorizontalVariable("Obs");
    m_source->setLeftVariable("T");
}

void tst_CriteriaKeeper::cleanup()
{
    m_keeper.reset();
    m_source.reset();
}

void tst_CriteriaKeeper::exclude(int row)
{
    LogTableViewModel *table = m_source->tableModel();
    QVERIFY(table->setData(table->index(row, 0), Qt::Checked, Qt::CheckStateRole));
}

void tst_CriteriaKeeper::computesAtOnce()
{
    m_source->buildFilter(kT, kGreaterThan, "28"); // T is 21.5 to 30.5
    QCOMPARE(m_source->YLeftData().value("T").value(0), (QVector<double>{28.5, 29.5, 30.5}));
    m_source->updateCriteriaSelection(0, false);
    QCOMPARE(m_source->YLeftData().value("T").value(0).size(), 10);
    m_source->clearCriteria();
    QCOMPARE(m_source->YLeftData().value("T").value(0).size(), 10);
}

void tst_CriteriaKeeper::computesOnceAChange()
{
    exclude(0);
    exclude(1);
    QSignalSpy computed(m_source.data(), SIGNAL(graphDataUpdated()));
    m_source->buildFilter(kT, kGreaterThan, "28");
    QCOMPARE(computed.count(), 1);
}

void tst_CriteriaKeeper::putsExcludedRowsBack()
{
    exclude(7);
    m_source->buildFilter(kT, kGreaterThan, "27"); // rows 6 to 9
    QVERIFY(m_source->hasExcludedRows());
    QVERIFY(m_source->tableModel()->rowExcluded(7));
    QVERIFY(!m_source->tableModel()->rowExcluded(6));
    QCOMPARE(m_source->YLeftData().value("T").value(0), (QVector<double>{27.5, 29.5, 30.5}));
}

void tst_CriteriaKeeper::putsExcludedRowsBackEveryTime()
{
    exclude(7);
    m_source->buildFilter(kT, kGreaterThan, "27");
    exclude(8);
    m_source->buildFilter(kT, kGreaterThan, "26");
    m_source->clearCriteria();
    QCOMPARE(m_source->tableModel()->excludeRows(), (QVector<int>{0, 0, 0, 0, 0, 0, 0, 1, 1, 0}));
}

void tst_CriteriaKeeper::forgetsRowsOfAnotherDataSet()
{
    exclude(1);
    m_source->selectDataSet(1);
    m_source->buildFilter(kT, kGreaterThan, "27");
    QVERIFY(!m_source->hasExcludedRows());
    m_source->selectDataSet(0);
    m_source->clearCriteria();
    QVERIFY(!m_source->hasExcludedRows());
}

void tst_CriteriaKeeper::forgetsRowsThatWereCleared()
{
    exclude(1);
    m_source->clearExcludedPoints();
    m_source->buildFilter(kT, kGreaterThan, "20");
    QVERIFY(!m_source->hasExcludedRows());
    QCOMPARE(m_source->YLeftData().value("T").value(0).size(), 10);
}

void tst_CriteriaKeeper::outlivesTheSource()
{
    m_source.reset();
    QCOMPARE(m_keeper->source(), static_cast<LogDataSourceItem *>(nullptr));
    LogDataSourceItem other;
    m_keeper->setSource(&other);
    other.clearCriteria();
    m_keeper->setSource(nullptr);
    QSignalSpy computed(&other, SIGNAL(graphDataUpdated()));
    other.clearCriteria();
    QCOMPARE(computed.count(), 0);
}

QTEST_MAIN(tst_CriteriaKeeper)
#include "tst_CriteriaKeeper.moc"

#include "AllocationCount.h"
#include "bench/LogWriter.h"
#include "bench/MemoryUse.h"
#include "datasource/LogDataSourceItem.h"
#include "support/TestCompat.h"

#include <QTemporaryFile>

// What a log costs, in counts that are the same on every machine. The limits leave a margin of a
// fourth or more to what was counted; who needs more should know why.
class tst_CostCounts : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void reading();
    void plottingAVariable();
    void plottingItAgain();
    void settingTheWindow();
    void showingTheWindow();
    void aCriterionThatAllPass();
    void excludingARow();
    void manyTicksAtOnce();

private:
    /** What a change costs: allocations, and bytes of heap that it leaves in use. */
    struct Cost {
        qint64 allocations;
        qint64 bytes;
    };
    Cost costSince(const Cost &start) const;
    static Cost now();
    void read();

    QTemporaryFile m_log;
    QScopedPointer<LogDataSourceItem> m_source;
};

namespace
{

const int kRows = 20000;
const int kColumns = 20;
const int kLeft = 1;
const int kMeasured = 5;
const qint64 kColumnBytes = kRows * qint64(sizeof(double));
// Asked for whatever the length of the log: models, lists, names, and signals.
const int kFewAllocations = 500;
const int kFewBytes = 20000;

} // namespace

tst_CostCounts::Cost tst_CostCounts::now()
{
    const Cost cost = {AllocationCount::sinceStart(), MemoryUse::heapBytes()};
    return cost;
}

tst_CostCounts::Cost tst_CostCounts::costSince(const Cost &start) const
{
    const Cost end = now();
    const Cost cost = {end.allocations - start.allocations, end.bytes - start.bytes};
    return cost;
}

void tst_CostCounts::initTestCase()
{
    if (!AllocationCount::isTold())
        QSKIP("The allocator is not ours here");
    QVERIFY(m_log.open());
    QVERIFY(LogWriter(kRows, kColumns).write(&m_log));
    QVERIFY(m_log.flush());
}

void tst_CostCounts::init()
{
    m_source.reset(new LogDataSourceItem);
}

void tst_CostCounts::cleanup()
{
    m_source.reset();
}

/** Reads the log and plots a variable over the number of the observation. */
void tst_CostCounts::read()
{
    m_source->setLogFilePath(m_log.fileName());
    m_source->selectDataSet(0);
    m_source->setObservationFilterType(LogObservationSortFilterProxyModel::All);
    m_source->updateVariableSelection(0, 0, true);
    m_source->updateVariableSelection(kLeft, kMeasured, true);
}

/** 7.3 characters a cell and one to separate it, four bytes to find a row. */
void tst_CostCounts::reading()
{
    const Cost start = now();
    m_source->setLogFilePath(m_log.fileName());
    const Cost cost = costSince(start);
    const double bytesPerCell = double(cost.bytes) / (kRows * kColumns);
    const double allocationsPerRow = double(cost.allocations) / kRows;
    QVERIFY2(bytesPerCell > 7 && bytesPerCell < 10, qPrintable(QString::number(bytesPerCell)));
    QVERIFY2(allocationsPerRow < 0.25, qPrintable(QString::number(allocationsPerRow)));
}

/** The numbers of the column, and where in the curve its pieces are: no second copy of them. */
void tst_CostCounts::plottingAVariable()
{
    read();
    const Cost start = now();
    m_source->updateVariableSelection(kLeft, kMeasured + 1, true);
    const Cost cost = costSince(start);
    QVERIFY2(cost.allocations < kFewAllocations, qPrintable(QString::number(cost.allocations)));
    QVERIFY2(cost.bytes > kColumnBytes / 2 && cost.bytes < kColumnBytes + kFewBytes,
             qPrintable(QString::number(cost.bytes)));
}

void tst_CostCounts::plottingItAgain()
{
    read();
    m_source->updateVariableSelection(kLeft, kMeasured, false);
    const Cost start = now();
    m_source->updateVariableSelection(kLeft, kMeasured, true);
    const Cost cost = costSince(start);
    QVERIFY2(cost.allocations < kFewAllocations, qPrintable(QString::number(cost.allocations)));
    QVERIFY2(cost.bytes < kFewBytes, qPrintable(QString::number(cost.bytes)));
}

void tst_CostCounts::settingTheWindow()
{
    read();
    const Cost start = now();
    m_source->setObservationRange(30);
    m_source->setObservationFrequency(1);
    const Cost cost = costSince(start);
    QVERIFY2(cost.allocations < kFewAllocations, qPrintable(QString::number(cost.allocations)));
    QVERIFY2(cost.bytes < kFewBytes, qPrintable(QString::number(cost.bytes)));
}

/** Its rows are told by three numbers, not listed. */
void tst_CostCounts::showingTheWindow()
{
    read();
    const Cost start = now();
    QCOMPARE(m_source->observationFilteredTableModel()->rowCount(), kRows);
    QVERIFY(m_source->observationFilteredTableModel()->index(kRows - 1, 1).isValid());
    const Cost cost = costSince(start);
    QVERIFY2(cost.bytes < kFewBytes, qPrintable(QString::number(cost.bytes)));
    QVERIFY2(cost.allocations < kFewAllocations, qPrintable(QString::number(cost.allocations)));
}

void tst_CostCounts::aCriterionThatAllPass()
{
    read();
    m_source->buildFilter(kMeasured, 0, QLatin1String("0"));
    const Cost start = now();
    m_source->setObservationFrequency(1);
    const Cost cost = costSince(start);
    QVERIFY2(cost.allocations < kFewAllocations, qPrintable(QString::number(cost.allocations)));
    // updateData() left no series, so these are made anew, out of the columns that were read.
    QVERIFY2(cost.bytes < kFewBytes, qPrintable(QString::number(cost.bytes)));
    QCOMPARE(m_source->YLeftData().value(QLatin1String("Value5")).value(0).size(), kRows);
}

/**
 * Now the rows are chosen one by one, and what is plotted is a copy. To tell views of the change,
 * the window's base class lists its rows both ways, which takes as much as another column.
 */
void tst_CostCounts::excludingARow()
{
    read();
    LogTableViewModel *table = m_source->tableModel();
    const Cost start = now();
    table->setData(table->index(7, 0), Qt::Checked, Qt::CheckStateRole);
    const Cost cost = costSince(start);
    QVERIFY2(cost.allocations < kFewAllocations, qPrintable(QString::number(cost.allocations)));
    QVERIFY2(cost.bytes < 3 * kColumnBytes + 3 * kFewBytes,
             qPrintable(QString::number(cost.bytes)));
    QCOMPARE(m_source->YLeftData().value(QLatin1String("Value5")).value(0).size(), kRows - 1);
}

/** Ticks that are made while the list is silent are computed together, once. */
void tst_CostCounts::manyTicksAtOnce()
{
    read();
    QSignalSpy spy(m_source.data(), SIGNAL(graphDataUpdated()));
    QStandardItemModel *variables = m_source->yVariableModel();
    variables->blockSignals(true);
    for (int row = kMeasured + 1; row < kColumns; ++row)
        variables->item(row)->setCheckState(Qt::Checked);
    variables->blockSignals(false);
    QCOMPARE(spy.count(), 0);
    const Cost start = now();
    m_source->setObservationFrequency(1);
    const Cost cost = costSince(start);
    const int ticks = kColumns - kMeasured - 1;
    QCOMPARE(spy.count(), 1);
    QCOMPARE(m_source->YLeftData().size(), ticks + 1);
    QVERIFY2(cost.bytes < ticks * kColumnBytes + kFewBytes,
             qPrintable(QString::number(cost.bytes)));
}

QTEST_MAIN(tst_CostCounts)
#include "tst_CostCounts.moc"

#include "bench/GeneratedLog.h"
#include "datasource/LogDataSourceItem.h"

#include <benchmark/benchmark.h>

namespace
{

const int kPlottedColumn = 2;
const int kLeftAxis = 1;

/** The generated log, every row of it shown, over its first column. */
LogDataSourceItem *loadedSource()
{
    static LogDataSourceItem source;
    if (source.logFilePath().isEmpty()) {
        source.setLogFilePath(GeneratedLog::instance().path());
        source.selectDataSet(0);
        source.setObservationFilterType(LogObservationSortFilterProxyModel::All);
        source.updateVariableSelection(0, 0, true);
        source.updateVariableSelection(kLeftAxis, kPlottedColumn, true);
    }
    return &source;
}

void report(benchmark::State &state)
{
    state.SetItemsProcessed(state.iterations() * GeneratedLog::instance().rows());
}

/** The yardstick: one pass over a column's numbers that copies what is above a value. */
void plainPass(benchmark::State &state)
{
    const CellGridPointer grid = loadedSource()->tableModel()->grid();
    const QVector<double> &numbers = grid->numbers(kPlottedColumn).values;
    for (auto iteration : state) {
        Q_UNUSED(iteration)
        QVector<double> kept;
        kept.reserve(numbers.size());
        for (int i = 0; i < numbers.size(); ++i) {
            if (numbers.at(i) > 0)
                kept.append(numbers.at(i));
        }
        benchmark::DoNotOptimize(kept.constData());
    }
    report(state);
}

/** Reading a column's texts as numbers, as is done once for each column that is plotted. */
void readNumbers(benchmark::State &state)
{
    const TabularParser &log = loadedSource()->parser()->tabularParser();
    const QStringList texts = log.dataForColumn(0, kPlottedColumn);
    for (auto iteration : state) {
        Q_UNUSED(iteration)
        double sum = 0;
        for (int i = 0; i < texts.size(); ++i)
            sum += texts.at(i).toDouble();
        benchmark::DoNotOptimize(sum);
    }
    report(state);
}

/** Ticks a variable that was not plotted before, the only one on its axis. */
void tickFirst(benchmark::State &state)
{
    LogDataSourceItem *source = loadedSource();
    source->clearCriteria();
    source->updateVariableSelection(kLeftAxis, kPlottedColumn, false);
    int column = kPlottedColumn;
    for (auto iteration : state) {
        Q_UNUSED(iteration)
        source->updateVariableSelection(kLeftAxis, ++column, true);
        state.PauseTiming();
        source->updateVariableSelection(kLeftAxis, column, false);
        state.ResumeTiming();
    }
    source->updateVariableSelection(kLeftAxis, kPlottedColumn, true);
    report(state);
}

void tickAgain(benchmark::State &state)
{
    LogDataSourceItem *source = loadedSource();
    source->clearCriteria();
    for (auto iteration : state) {
        Q_UNUSED(iteration)
        state.PauseTiming();
        source->updateVariableSelection(kLeftAxis, kPlottedColumn, false);
        state.ResumeTiming();
        source->updateVariableSelection(kLeftAxis, kPlottedColumn, true);
    }
    report(state);
}

/** A table over the window, as far as its rows matter: it asks how many there are. */
void askForRows(LogDataSourceItem *source)
{
    benchmark::DoNotOptimize(source->observationFilteredTableModel()->rowCount());
}

void updateWith(benchmark::State &state, int rows, bool withCriterion)
{
    LogDataSourceItem *source = loadedSource();
    source->clearCriteria();
    if (withCriterion)
        source->buildFilter(kPlottedColumn, 0, QLatin1String("50"));
    askForRows(source);
    for (auto iteration : state) {
        Q_UNUSED(iteration)
        source->setObservationRange(rows); // filters anew and runs updateGraphData()
    }
    report(state);
}

void updateGraphData(benchmark::State &state)
{
    updateWith(state, 50, false);
}

void updateGraphDataWithCriterion(benchmark::State &state)
{
    updateWith(state, 50, true);
}

/** Half of the rows come, and go again. */
void changeWindow(benchmark::State &state)
{
    LogDataSourceItem *source = loadedSource();
    const int rows = GeneratedLog::instance().rows();
    source->clearCriteria();
    source->setObservationFilterType(LogObservationSortFilterProxyModel::Head);
    askForRows(source);
    bool isHalf = false;
    for (auto iteration : state) {
        Q_UNUSED(iteration)
        isHalf = !isHalf;
        source->setObservationRange(isHalf ? rows / 2 : rows);
    }
    source->setObservationFilterType(LogObservationSortFilterProxyModel::All);
    report(state);
}

/** A criterion is switched on and off, upon which scripts have the series computed anew. */
void tickCriterion(benchmark::State &state)
{
    LogDataSourceItem *source = loadedSource();
    source->clearCriteria();
    source->buildFilter(kPlottedColumn, 0, QLatin1String("50"));
    bool isOn = true;
    for (auto iteration : state) {
        Q_UNUSED(iteration)
        isOn = !isOn;
        source->updateCriteriaSelection(0, isOn);
        source->setObservationFrequency(1);
        askForRows(source);
    }
    report(state);
}

} // namespace

BENCHMARK(plainPass)->Name("series/yardstick/plain_pass")->Unit(benchmark::kMillisecond);
BENCHMARK(readNumbers)->Name("series/yardstick/to_double")->Unit(benchmark::kMillisecond);
BENCHMARK(updateGraphData)->Name("series/update")->Unit(benchmark::kMillisecond);
BENCHMARK(updateGraphDataWithCriterion)
    ->Name("series/update_with_criterion")
    ->Unit(benchmark::kMillisecond);
BENCHMARK(changeWindow)->Name("series/change_window")->Unit(benchmark::kMillisecond);
BENCHMARK(tickCriterion)->Name("series/tick_criterion")->Unit(benchmark::kMillisecond);
BENCHMARK(tickAgain)->Name("series/tick_again")->Unit(benchmark::kMillisecond);
// Each column is read just once.
BENCHMARK(tickFirst)->Name("series/tick_first")->Unit(benchmark::kMillisecond)->Iterations(17);

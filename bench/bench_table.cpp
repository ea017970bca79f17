#include "bench/BenchmarkSize.h"
#include "bench/SizedSource.h"
#include "datasource/LogDataSourceItem.h"
#include "table/LogTableView.h"
#include "table/LogTableViewItem.h"

#include <benchmark/benchmark.h>

#include <QImage>

namespace
{

const QSize kSize(1280, 800);

/** A table of a source's observations, all columns shown. */
class ShownTable
{
public:
    explicit ShownTable(int rows)
        : m_source(SizedSource::withRows(rows))
        , m_image(kSize, QImage::Format_RGB32)
    {
        m_item.setSize(kSize);
        m_item.setLogViewerViewOption(LogTableViewItem::Data);
        m_item.setDataSource(m_source);
        m_item.showAllColumns();
    }

    LogTableViewItem *item() { return &m_item; }
    LogDataSourceItem *source() { return m_source; }
    void paint() { m_item.tableView()->render(&m_image); }

private:
    LogDataSourceItem *m_source;
    LogTableViewItem m_item;
    QImage m_image;
};

/** From the header's constants to the observations. */
void switchOption(benchmark::State &state)
{
    ShownTable table(int(state.range(0)));
    for (auto iteration : state) {
        Q_UNUSED(iteration)
        table.item()->setLogViewerViewOption(LogTableViewItem::Header);
        table.item()->setLogViewerViewOption(LogTableViewItem::Data);
    }
}

/** The data set is chosen again: the table is filled anew, fitted, and its columns shown. */
void reset(benchmark::State &state)
{
    ShownTable table(int(state.range(0)));
    for (auto iteration : state) {
        Q_UNUSED(iteration)
        table.source()->selectDataSet(0);
        table.item()->showAllColumns();
    }
}

void resizeToContents(benchmark::State &state)
{
    ShownTable table(int(state.range(0)));
    for (auto iteration : state) {
        Q_UNUSED(iteration)
        table.item()->setLogViewerViewOption(LogTableViewItem::Data);
    }
}

/** What a filled table takes until it is seen. */
void firstPaint(benchmark::State &state)
{
    ShownTable table(int(state.range(0)));
    for (auto iteration : state) {
        Q_UNUSED(iteration)
        state.PauseTiming();
        table.source()->selectDataSet(0);
        table.item()->showAllColumns();
        state.ResumeTiming();
        table.paint();
    }
}

/** The whole way from the choice of a data set to the picture. */
void resetAndPaint(benchmark::State &state)
{
    ShownTable table(int(state.range(0)));
    for (auto iteration : state) {
        Q_UNUSED(iteration)
        table.source()->selectDataSet(0);
        table.item()->showAllColumns();
        table.paint();
    }
}

void bothLengths(benchmark::internal::Benchmark *benchmark)
{
    benchmark->Unit(benchmark::kMillisecond);
    benchmark->Arg(SizedSource::shortLog());
    if (BenchmarkSize::rows() != SizedSource::shortLog())
        benchmark->Arg(BenchmarkSize::rows());
}

} // namespace

BENCHMARK(switchOption)->Name("table/switch")->Apply(bothLengths);
BENCHMARK(reset)->Name("table/reset")->Apply(bothLengths);
BENCHMARK(resizeToContents)->Name("table/fit")->Apply(bothLengths);
BENCHMARK(firstPaint)->Name("table/first_paint")->Apply(bothLengths);
BENCHMARK(resetAndPaint)->Name("table/reset_and_paint")->Apply(bothLengths);

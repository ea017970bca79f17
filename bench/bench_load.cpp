#include "bench/LoadCase.h"
#include "bench/LogParserReader.h"
#include "bench/LoopGaps.h"
#include "bench/StringListParser.h"

#include <QCoreApplication>

#include <string>

// Every reader is measured over the same log in one run, so that their numbers compare.
BENCHMARK_TEMPLATE(loadCase, StringListParser)
    ->Name("load/yardstick")
    ->Unit(benchmark::kMillisecond);

BENCHMARK_TEMPLATE(loadCase, LogParserReader)->Name("load/parser")->Unit(benchmark::kMillisecond);

/** How long events have to wait while a log is read, another one being dropped for it. */
static void eventLoopGaps(benchmark::State &state)
{
    LogParserReader reader;
    reader.read(GeneratedLog::instance().path());
    double longest = 0;
    for (auto iteration : state) {
        Q_UNUSED(iteration)
        LoopGaps gaps;
        reader.read(GeneratedLog::instance().path());
        longest = qMax(longest, gaps.longestMilliseconds());
        if (gaps.served() < GeneratedLog::instance().rows())
            state.SkipWithError("Events did not get their turn after each line");
    }
    state.counters["longest_gap_ms"] = longest;
}

BENCHMARK(eventLoopGaps)->Name("load/event_loop")->Unit(benchmark::kMillisecond);

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    benchmark::AddCustomContext("log_rows", std::to_string(GeneratedLog::instance().rows()));
    benchmark::AddCustomContext("log_columns", std::to_string(GeneratedLog::instance().columns()));
    benchmark::AddCustomContext("log_bytes", std::to_string(GeneratedLog::instance().bytes()));
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}

#include "bench/LoadCase.h"
#include "bench/LogParserReader.h"
#include "bench/StringListParser.h"

#include <QCoreApplication>

#include <string>

// Every reader is measured over the same log in one run, so that their numbers compare.
BENCHMARK_TEMPLATE(loadCase, StringListParser)
    ->Name("load/yardstick")
    ->Unit(benchmark::kMillisecond);

BENCHMARK_TEMPLATE(loadCase, LogParserReader)->Name("load/parser")->Unit(benchmark::kMillisecond);

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

#ifndef DATALOG_BENCH_BENCHMARKSIZE_H
#define DATALOG_BENCH_BENCHMARKSIZE_H

/** How large the logs of benchmarks are, which the environment tells. */
namespace BenchmarkSize
{

/** DATALOG_BENCH_ROWS, 100000 unless told. */
int rows();
/** DATALOG_BENCH_COLUMNS, 20 unless told. */
int columns();

} // namespace BenchmarkSize

#endif

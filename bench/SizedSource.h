#ifndef DATALOG_BENCH_SIZEDSOURCE_H
#define DATALOG_BENCH_SIZEDSOURCE_H

class LogDataSourceItem;

/** Data sources with generated logs of any length, each read once and kept. */
namespace SizedSource
{

/** A source with @p rows rows of 20 columns, its data set chosen, all rows let through. */
LogDataSourceItem *withRows(int rows);
/** The length of a log that the cost of one of BenchmarkSize::rows() is held against. */
int shortLog();

} // namespace SizedSource

#endif

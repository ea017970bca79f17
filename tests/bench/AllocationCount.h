#ifndef DATALOG_TESTS_BENCH_ALLOCATIONCOUNT_H
#define DATALOG_TESTS_BENCH_ALLOCATIONCOUNT_H

#include <QtGlobal>

/** How often this program asked for memory. */
namespace AllocationCount
{

/** Whether the count can be told: not where a sanitizer has the allocator for itself. */
bool isTold();
/** Calls of malloc, calloc and realloc since the program began. */
qint64 sinceStart();

} // namespace AllocationCount

#endif

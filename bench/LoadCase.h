#ifndef DATALOG_BENCH_LOADCASE_H
#define DATALOG_BENCH_LOADCASE_H

#include "bench/GeneratedLog.h"
#include "bench/MemoryUse.h"

#include <benchmark/benchmark.h>

#include <QScopedPointer>

/**
 * Measures how one reader loads the generated log: bytes read a second, and bytes of heap for each
 * cell that it then holds. Making and dropping the reader is not timed.
 *
 * A Reader is made without arguments, drops all it holds when destroyed, and has
 * `bool read(const QString &path)` and `qint64 cellCount() const`.
 */
template <typename Reader> void loadCase(benchmark::State &state)
{
    const GeneratedLog &log = GeneratedLog::instance();
    qint64 heapGrowth = 0;
    for (auto iteration : state) {
        Q_UNUSED(iteration)
        state.PauseTiming();
        const qint64 heapBefore = MemoryUse::heapBytes();
        QScopedPointer<Reader> reader(new Reader);
        state.ResumeTiming();
        const bool done = reader->read(log.path());
        state.PauseTiming();
        heapGrowth = MemoryUse::heapBytes() - heapBefore;
        if (!done || reader->cellCount() != log.cells()) {
            state.SkipWithError("The log was not read whole");
            break;
        }
        reader.reset();
        state.ResumeTiming();
    }
    state.SetBytesProcessed(state.iterations() * log.bytes());
    state.counters["bytes_per_cell"] = double(heapGrowth) / double(log.cells());
}

#endif

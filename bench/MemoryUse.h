#ifndef DATALOG_BENCH_MEMORYUSE_H
#define DATALOG_BENCH_MEMORYUSE_H

#include <QtGlobal>

/** What this process takes of the machine's memory, as the C library tells it. */
class MemoryUse
{
public:
    /**
     * Bytes of heap in use now, with the allocator's own share and blocks mapped one by one.
     * 0 where a sanitizer has replaced the allocator.
     */
    static qint64 heapBytes();
    /** The most bytes that were resident at once since the process began. */
    static qint64 peakResidentBytes();
};

#endif

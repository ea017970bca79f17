#include "bench/MemoryUse.h"

#include <malloc.h>
#include <sys/resource.h>

qint64 MemoryUse::heapBytes()
{
#if __GLIBC_PREREQ(2, 33)
    const struct mallinfo2 info = mallinfo2();
#else
    const struct mallinfo info = mallinfo();
#endif
    return qint64(info.uordblks) + qint64(info.hblkhd);
}

qint64 MemoryUse::peakResidentBytes()
{
    struct rusage usage;
    if (getrusage(RUSAGE_SELF, &usage) != 0)
        return 0;
    return qint64(usage.ru_maxrss) * 1024;
}

#include "AllocationCount.h"

#include <cstdlib>

static qint64 calls = 0;

#if defined(__SANITIZE_ADDRESS__) || !defined(__GLIBC__)

bool AllocationCount::isTold()
{
    return false;
}

#else

// The C library lets a program take the allocator's place, and tells its own under these names.
extern "C" {

void *__libc_malloc(std::size_t size);
void *__libc_calloc(std::size_t count, std::size_t size);
void *__libc_realloc(void *block, std::size_t size);

void *malloc(std::size_t size)
{
    ++calls;
    return __libc_malloc(size);
}

void *calloc(std::size_t count, std::size_t size)
{
    ++calls;
    return __libc_calloc(count, size);
}

void *realloc(void *block, std::size_t size)
{
    ++calls;
    return __libc_realloc(block, size);
}

} // extern "C"

bool AllocationCount::isTold()
{
    return true;
}

#endif

qint64 AllocationCount::sinceStart()
{
    return calls;
}

#include "FuzzTarget.h"

#include <cstdio>
#include <cstdlib>

void fuzzRequire(bool holds, const char *what)
{
    if (holds)
        return;
    std::fprintf(stderr, "does not hold: %s\n", what);
    std::abort();
}

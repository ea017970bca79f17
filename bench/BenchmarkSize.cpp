#include "bench/BenchmarkSize.h"

#include <QByteArray>

namespace
{

int sizeFromEnvironment(const char *name, int least, int otherwise)
{
    const QByteArray text = qgetenv(name);
    if (text.isEmpty())
        return otherwise;
    bool ok = false;
    const int size = text.toInt(&ok);
    if (!ok || size < least)
        qFatal("%s must be a number from %d up, not %s", name, least, text.constData());
    return size;
}

} // namespace

int BenchmarkSize::rows()
{
    return sizeFromEnvironment("DATALOG_BENCH_ROWS", 1, 100000);
}

int BenchmarkSize::columns()
{
    return sizeFromEnvironment("DATALOG_BENCH_COLUMNS", 2, 20);
}

#include "bench/LogWriter.h"

#include <QFile>

#include <cstdio>
#include <cstdlib>

/** Writes a log of any size, for measuring whole programs. */
int main(int argc, char **argv)
{
    if (argc != 4) {
        std::fprintf(stderr, "usage: %s ROWS COLUMNS FILE\n", argv[0]);
        return 2;
    }
    QString error;
    if (LogWriter(std::atoi(argv[1]), std::atoi(argv[2])).write(QFile::decodeName(argv[3]), &error))
        return 0;
    std::fprintf(stderr, "%s: %s\n", argv[3], error.toLocal8Bit().constData());
    return 1;
}

#ifndef DATALOG_TESTS_RELIABILITY_LONGLIFELOG_H
#define DATALOG_TESTS_RELIABILITY_LONGLIFELOG_H

#include <QByteArray>

#include <cstdlib>

/** How often something is done: @p name from the environment, or the few times of a usual run. */
inline int timesFromEnvironment(const char *name, int otherwise)
{
    const char *text = std::getenv(name);
    return text ? std::atoi(text) : otherwise;
}

/** A log of two blocks, the first of @p rows rows. */
inline QByteArray longLifeLog(int rows)
{
    QByteArray log("[Header]\nCreated\tnow\nSys:Name\tx\n[Data]\nSys\tSys\tGas\tGas\n"
                   "Obs\tTime\ta\tb\n\ts\tppm\t%\n");
    for (int row = 0; row < rows; ++row)
        log += QByteArray::number(row) + "\t10:00:00\t" + QByteArray::number(row % 7) + "\t2.5\n";
    return log + "[Header]\nCreated\tlater\n[Data]\nG\tG\tG\nx\ty\tz\n\t\t\n1\t2\t3\n";
}

#endif

#ifndef DATALOG_TESTS_PARSING_RANDOMLOGROWS_H
#define DATALOG_TESTS_PARSING_RANDOMLOGROWS_H

#include <QtTest>

/** Rows of a hundred seeds each, by their first: @p logs in all unless DATALOG_LOGS tells. */
inline void addRandomLogRows(int logs)
{
    QTest::addColumn<int>("firstSeed");
    const QByteArray told = qgetenv("DATALOG_LOGS");
    for (int seed = 0; seed < (told.isEmpty() ? logs : told.toInt()); seed += 100)
        QTest::newRow(QByteArray::number(seed).constData()) << seed;
}

#endif

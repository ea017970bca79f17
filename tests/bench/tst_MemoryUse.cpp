#include "bench/MemoryUse.h"

#include "support/TestCompat.h"

#include <QtTest>

#include <cstring>

class tst_MemoryUse : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void heapFollowsAllocation_data();
    void heapFollowsAllocation();
    void peakStays();
};

void tst_MemoryUse::heapFollowsAllocation_data()
{
    QTest::addColumn<int>("blocks");
    QTest::addColumn<int>("size");
    QTest::newRow("many small blocks") << 10000 << 100;
    QTest::newRow("one mapped block") << 1 << 64 * 1024 * 1024;
}

void tst_MemoryUse::heapFollowsAllocation()
{
    QFETCH(int, blocks);
    QFETCH(int, size);
    const qint64 wanted = qint64(blocks) * size;
    QVector<char *> memory(blocks);
    const qint64 before = MemoryUse::heapBytes();
    for (int i = 0; i < blocks; ++i)
        memory[i] = new char[size];
    const qint64 during = MemoryUse::heapBytes();
    for (int i = 0; i < blocks; ++i)
        delete[] memory.at(i);
    const qint64 after = MemoryUse::heapBytes();
    QVERIFY(during - before >= wanted);
    QVERIFY(during - before <= wanted + wanted / 4);
    QVERIFY(after - before < wanted / 100);
}

void tst_MemoryUse::peakStays()
{
    const int size = 64 * 1024 * 1024;
    const qint64 before = MemoryUse::peakResidentBytes();
    QVERIFY(before > 0);
    char *const memory = new char[size];
    std::memset(memory, 1, size);
    const qint64 during = MemoryUse::peakResidentBytes();
    delete[] memory;
    QVERIFY(during >= size);
    QVERIFY(MemoryUse::peakResidentBytes() >= during);
}

QTEST_GUILESS_MAIN(tst_MemoryUse)
#include "tst_MemoryUse.moc"

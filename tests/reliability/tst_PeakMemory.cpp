// What reading a log takes at its most: the instrument has little memory, and no second attempt.

#include "datasource/LogDataSourceItem.h"
#include "support/TempDir.h"
#include "support/TestCompat.h"

#include <QApplication>

#include <malloc.h>
#include <sys/resource.h>

namespace
{

const int kMegabyte = 1000 * 1000;

/** What the program holds, blocks of its own mapping included; 0 where a sanitizer allocates. */
qint64 heapBytes()
{
    const struct mallinfo2 info = mallinfo2();
    return qint64(info.uordblks) + qint64(info.hblkhd);
}

/** With the emulator's own, where there is one. */
qint64 peakResidentBytes()
{
    struct rusage usage;
    getrusage(RUSAGE_SELF, &usage);
    return qint64(usage.ru_maxrss) * 1024;
}

/** Looks at the heap whenever events run, which is after each line that is read. */
class HeapWatcher : public QObject
{
public:
    HeapWatcher()
        : m_turns(0)
        , m_peak(0)
    {
        startTimer(0);
    }
    qint64 peak() const { return m_peak; }

protected:
    void timerEvent(QTimerEvent *) override
    {
        if (m_turns++ % 16 == 0)
            m_peak = qMax(m_peak, heapBytes());
    }

private:
    int m_turns;
    qint64 m_peak;
};

} // namespace

class tst_PeakMemory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void reading_data();
    void reading();

private:
    QString writeLog(int columns, int bytes);

    TempDir m_dir;
};

/** Line by line, for a log held here would count. Numbers have seven characters with their tab. */
QString tst_PeakMemory::writeLog(int columns, int bytes)
{
    QFile file(m_dir.filePath(QLatin1String("log.txt")));
    if (!file.open(QIODevice::WriteOnly))
        return QString();
    const QByteArray tabs(columns - 1, '\t');
    file.write("[Header]\nCreated\tnow\n[Data]\n" + tabs + '\n');
    for (int column = 0; column < columns; ++column)
        file.write('v' + QByteArray::number(column) + (column + 1 < columns ? '\t' : '\n'));
    file.write(tabs + '\n');
    for (int row = 0; file.pos() < bytes; ++row) {
        for (int column = 0; column < columns; ++column)
            file.write(QByteArray::number(100 + (row * 7 + column) % 900 + 0.25, 'f', 2)
                       + (column + 1 < columns ? '\t' : '\n'));
    }
    return file.flush() ? file.fileName() : QString();
}

void tst_PeakMemory::reading_data()
{
    QTest::addColumn<int>("columns");
    QTest::newRow("20 columns") << 20;
    QTest::newRow("4 columns") << 4;
}

void tst_PeakMemory::reading()
{
    QFETCH(int, columns);
    const int size = 10 * kMegabyte;
    const QString path = writeLog(columns, size);
    QVERIFY(!path.isEmpty());
    LogDataSourceItem source;
    const qint64 before = heapBytes();
    const qint64 resident = peakResidentBytes();
    HeapWatcher watcher;
    source.setLogFilePath(path);
    const qint64 after = heapBytes();
    QCOMPARE(source.parser()->tabularParser().dataSets().size(), 1);
    if (before == 0)
        SKIP_TEST("The allocator is not ours here.");
    const qint64 peak = qMax(watcher.peak(), after) - before;
    qInfo("%d columns, 10 MB: heap at most %.1f MB more, %.1f MB when read; resident at most %.1f "
          "MB more",
          columns, double(peak) / kMegabyte, double(after - before) / kMegabyte,
          double(peakResidentBytes() - resident) / kMegabyte);
    QVERIFY2(peak > size / 2, QByteArray::number(peak).constData()); // it is held
    QVERIFY2(peak < 3 * qint64(size) / 2, QByteArray::number(peak).constData());
}

QTEST_MAIN(tst_PeakMemory)
#include "tst_PeakMemory.moc"

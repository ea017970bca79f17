#ifndef DATALOG_TESTS_SUPPORT_TESTCOMPAT_H
#define DATALOG_TESTS_SUPPORT_TESTCOMPAT_H

// What tests use beyond QtTest of Qt 4.8: newer macros, and a wait on a spy.

#include <QSignalSpy>
#include <QtTest>

#ifndef QTRY_VERIFY_WITH_TIMEOUT
#define QTRY_VERIFY_WITH_TIMEOUT(condition, timeout)                                               \
    do {                                                                                           \
        for (int waited = 0; waited < (timeout) && !(condition); waited += 20)                     \
            QTest::qWait(20);                                                                      \
        QVERIFY(condition);                                                                        \
    } while (0)
#define QTRY_VERIFY(condition) QTRY_VERIFY_WITH_TIMEOUT(condition, 5000)
#define QTRY_COMPARE(actual, expected)                                                             \
    do {                                                                                           \
        for (int waited = 0; waited < 5000 && !((actual) == (expected)); waited += 20)             \
            QTest::qWait(20);                                                                      \
        QCOMPARE(actual, expected);                                                                \
    } while (0)
#endif

#ifndef QTEST_GUILESS_MAIN
#define QTEST_GUILESS_MAIN(TestClass)                                                              \
    int main(int argc, char *argv[])                                                               \
    {                                                                                              \
        QCoreApplication application(argc, argv);                                                  \
        TestClass test;                                                                            \
        return QTest::qExec(&test, argc, argv);                                                    \
    }
#endif

/** Tells why a row, or a test without rows, can't be run here. */
#if QT_VERSION >= 0x050000
#define SKIP_TEST(why) QSKIP(why)
#else
#define SKIP_TEST(why) QSKIP(why, SkipSingle)
#endif

/** Expects one line that the code streams to qDebug(), which adds a space on Qt 4. */
inline void expectDebugLine(const char *line)
{
#if QT_VERSION >= 0x050000
    QTest::ignoreMessage(QtDebugMsg, line);
#else
    QTest::ignoreMessage(QtDebugMsg, (QByteArray(line) + ' ').constData());
#endif
}

/** Waits until @p spy holds at least @p count emissions; false when @p timeout ms pass first. */
inline bool waitForCount(const QSignalSpy &spy, int count, int timeout = 5000)
{
    QElapsedTimer timer;
    timer.start();
    while (spy.count() < count && timer.elapsed() < timeout)
        QTest::qWait(5);
    return spy.count() >= count;
}

#endif

#include "viewer/Aside.h"

#include <QSemaphore>
#include <QThread>
#include <QThreadPool>
#include <QtTest>

#include <memory>
#include <new>

class tst_Aside : public QObject
{
    Q_OBJECT

private slots:
    void isDoneElsewhere();
    void tellsHowFarItIs();
    void endsAtOnceWhenGivenUp();
    void doesNotWaitForWhatWasGivenUp();
    void outlivesALackOfMemory();
};

void tst_Aside::isDoneElsewhere()
{
    QThread *thread = nullptr;
    const auto note
        = [&thread](const Aside::Watcher & /*watcher*/) { thread = QThread::currentThread(); };
    QVERIFY(Aside::run(note, [](double) { return true; }));
    QVERIFY(thread);
    QVERIFY(thread != QThread::currentThread());
}

void tst_Aside::tellsHowFarItIs()
{
    QVector<double> parts;
    QThread *thread = nullptr;
    QSemaphore seen;
    const auto work = [&seen](const Aside::Watcher &watcher) {
        watcher(0.5);
        seen.acquire(); // somebody was told
    };
    const auto watch = [&](double part) {
        thread = QThread::currentThread();
        parts.append(part);
        if (part == 0.5)
            seen.release();
        return true;
    };
    QVERIFY(Aside::run(work, watch));
    QVERIFY(parts.contains(0.5));
    QCOMPARE(thread, QThread::currentThread());
}

/** The work hears of it when it asks, however long that takes. */
void tst_Aside::endsAtOnceWhenGivenUp()
{
    const auto goOn = std::make_shared<QSemaphore>();
    const auto heard = std::make_shared<QSemaphore>();
    const auto work = [goOn, heard](const Aside::Watcher &watcher) {
        goOn->acquire();
        if (!watcher(0.5))
            heard->release();
    };
    QVERIFY(!Aside::run(work, [](double) { return false; }));
    goOn->release();
    QVERIFY(heard->tryAcquire(1, 5000));
}

void tst_Aside::doesNotWaitForWhatWasGivenUp()
{
    QThreadPool::globalInstance()->setMaxThreadCount(1); // as on one processor
    const auto goOn = std::make_shared<QSemaphore>();
    const auto stuck = [goOn](const Aside::Watcher & /*watcher*/) { goOn->acquire(); };
    QVERIFY(!Aside::run(stuck, [](double) { return false; }));
    bool isDone = false;
    const auto next = [&isDone](const Aside::Watcher & /*watcher*/) { isDone = true; };
    QElapsedTimer timer;
    timer.start();
    const auto patience = [&](double) {
        if (timer.hasExpired(5000))
            goOn->release(); // or this would never end
        return true;
    };
    QVERIFY(Aside::run(next, patience));
    QVERIFY(isDone);
    QCOMPARE(goOn->available(), 0);
    goOn->release();
}

/** Whoever wants what the work was to make sees that it is not there. */
void tst_Aside::outlivesALackOfMemory()
{
    QVERIFY(Aside::run([](const Aside::Watcher & /*watcher*/) { throw std::bad_alloc(); },
                       [](double) { return true; }));
    bool isDone = false;
    const auto next = [&isDone](const Aside::Watcher & /*watcher*/) { isDone = true; };
    QVERIFY(Aside::run(next, [](double) { return true; }));
    QVERIFY(isDone);
}

QTEST_MAIN(tst_Aside)
#include "tst_Aside.moc"

#include "viewer/Aside.h"

#include <QSemaphore>
#include <QThreadPool>

#include <atomic>
#include <memory>
#include <new>

namespace
{

// What takes no longer than this is felt as at once; a window would only flicker.
const int kAtOnce = 100;
const int kBetweenLooks = 10;
// Work that nobody waits for any more may still go on where there is one processor only.
const int kThreads = 2;

struct State {
    std::atomic<double> part{0};
    std::atomic<bool> isWanted{true};
    QSemaphore done;
};

} // namespace

bool Aside::run(const Work &work, const Watcher &watcher)
{
    const auto state = std::make_shared<State>();
    QThreadPool *pool = QThreadPool::globalInstance();
    pool->setMaxThreadCount(qMax(kThreads, pool->maxThreadCount()));
    pool->start([state, work] {
        const auto watch = [state](double part) {
            state->part = part;
            return bool(state->isWanted);
        };
        try {
            work(watch);
        } catch (const std::bad_alloc &) {
            // What it was to make is missing then, as whoever waits for it sees.
        }
        state->done.release();
    });
    bool isDone = state->done.tryAcquire(1, kAtOnce);
    while (!isDone && state->isWanted) {
        state->isWanted = watcher(state->part);
        isDone = state->done.tryAcquire(1, state->isWanted ? kBetweenLooks : 0);
    }
    return state->isWanted;
}

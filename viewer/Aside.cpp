#include "viewer/Aside.h"

#include <QSemaphore>
#include <QThreadPool>

#include <atomic>
#include <memory>

namespace
{

// What takes no longer than this is felt as at once; a window would only flicker.
const int kAtOnce = 100;
const int kBetweenLooks = 10;

struct State {
    std::atomic<double> part{0};
    std::atomic<bool> isWanted{true};
    QSemaphore done;
};

} // namespace

bool Aside::run(const Work &work, const Watcher &watcher)
{
    const auto state = std::make_shared<State>();
    QThreadPool::globalInstance()->start([state, work] {
        work([state](double part) {
            state->part = part;
            return bool(state->isWanted);
        });
        state->done.release();
    });
    bool isDone = state->done.tryAcquire(1, kAtOnce);
    while (!isDone && state->isWanted) {
        state->isWanted = watcher(state->part);
        isDone = state->done.tryAcquire(1, state->isWanted ? kBetweenLooks : 0);
    }
    return state->isWanted;
}

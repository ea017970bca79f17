#include "bench/LoopGaps.h"

#include <QAbstractEventDispatcher>

#include <time.h>

namespace
{

double threadMilliseconds()
{
    timespec time;
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return time.tv_sec * 1e3 + time.tv_nsec / 1e6;
}

} // namespace

LoopGaps::LoopGaps()
    : m_start(threadMilliseconds())
    , m_longest(0)
    , m_served(0)
{
    connect(QAbstractEventDispatcher::instance(), SIGNAL(awake()), SLOT(endGap()));
}

void LoopGaps::endGap()
{
    const double now = threadMilliseconds();
    m_longest = qMax(m_longest, now - m_start);
    m_start = now;
    ++m_served;
}

double LoopGaps::longestMilliseconds()
{
    endGap();
    --m_served;
    return m_longest;
}

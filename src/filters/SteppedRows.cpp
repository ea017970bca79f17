#include "filters/SteppedRows.h"

SteppedRows::SteppedRows()
    : m_first(0)
    , m_step(1)
    , m_count(0)
{
}

SteppedRows::SteppedRows(qint64 origin, qint64 begin, qint64 end, qint64 step)
    : m_first(begin)
    , m_step(step)
    , m_count(0)
{
    const qint64 sinceStep = (begin - origin) % step;
    if (sinceStep > 0)
        m_first += step - sinceStep;
    if (m_first < end)
        m_count = int((end - m_first - 1) / step + 1);
}

QVector<int> SteppedRows::toVector() const
{
    QVector<int> rows(m_count);
    for (int i = 0; i < m_count; ++i)
        rows[i] = at(i);
    return rows;
}

bool SteppedRows::onStepsOf(const SteppedRows &other) const
{
    return m_step == other.m_step && (m_first - other.m_first) % m_step == 0;
}

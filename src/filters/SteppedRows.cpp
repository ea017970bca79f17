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

int SteppedRows::positionOf(int row) const
{
    const qint64 distance = row - m_first;
    if (distance < 0 || distance % m_step != 0 || distance / m_step >= m_count)
        return -1;
    return int(distance / m_step);
}

SteppedRows SteppedRows::mid(int position, int count) const
{
    SteppedRows part(*this);
    part.m_first += position * m_step;
    part.m_count = count;
    return part;
}

bool SteppedRows::operator==(const SteppedRows &other) const
{
    const int last = m_count - 1;
    return m_count == other.m_count
        && (last < 0 || (at(0) == other.at(0) && at(last) == other.at(last)));
}

bool SteppedRows::onStepsOf(const SteppedRows &other) const
{
    if (m_count == 0 || other.m_count == 0 || (m_count == 1 && other.m_count == 1))
        return true;
    const qint64 step = m_count > 1 ? m_step : other.m_step;
    if (other.m_count > 1 && other.m_step != step)
        return false;
    return (m_first - other.m_first) % step == 0;
}

SteppedRows SteppedRows::sharedRun(const SteppedRows &other) const
{
    if (m_count == 0 || other.m_count == 0 || !onStepsOf(other))
        return SteppedRows();
    const qint64 first = qMax(m_first, other.m_first);
    const qint64 step = m_count > 1 ? m_step : other.m_step;
    return SteppedRows(first, first, qMin(pastLast(), other.pastLast()), step);
}

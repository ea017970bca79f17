#include "plot/RangeExtremes.h"

namespace
{

const int kBlock = 32;

} // namespace

RangeExtremes::RangeExtremes(const QVector<double> &values)
    : m_values(values)
{
    for (int span = kBlock; values.size() / span > 1; span *= kBlock) {
        addLevel(span);
        if (values.size() / span < kBlock)
            break;
    }
}

/** Adds the blocks of @p span values, from the values or from the smaller blocks. */
void RangeExtremes::addLevel(int span)
{
    Level level = {span, QVector<Extremes>(m_values.size() / span)};
    for (int i = 0; i < level.blocks.size(); ++i) {
        const int first = i * span;
        Extremes extremes = {first, first};
        for (int at = first; at < first + span;)
            at = widenAt(&extremes, at, first + span - 1);
        level.blocks[i] = extremes;
    }
    m_levels.append(level);
}

void RangeExtremes::widen(Extremes *extremes, const Extremes &other) const
{
    if (m_values.at(other.least) < m_values.at(extremes->least))
        extremes->least = other.least;
    if (m_values.at(other.greatest) > m_values.at(extremes->greatest))
        extremes->greatest = other.greatest;
}

/** Takes in the largest block that starts at a position and ends by @p last; returns its end. */
int RangeExtremes::widenAt(Extremes *extremes, int position, int last) const
{
    int taken = -1;
    while (taken + 1 < m_levels.size() && position % m_levels.at(taken + 1).span == 0
           && position + m_levels.at(taken + 1).span - 1 <= last)
        ++taken;
    if (taken < 0) {
        const Extremes value = {position, position};
        widen(extremes, value);
        return position + 1;
    }
    const Level &level = m_levels.at(taken);
    widen(extremes, level.blocks.at(position / level.span));
    return position + level.span;
}

RangeExtremes::Extremes RangeExtremes::within(int first, int last) const
{
    Extremes extremes = {first, first};
    for (int at = first; at <= last;)
        at = widenAt(&extremes, at, last);
    return extremes;
}

#include "plot/RangeExtremes.h"

namespace
{

const int kBlock = 64;

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
    const bool isFirst = m_levels.isEmpty();
    Level level = {span, QVector<Found>(m_values.size() / span)};
    for (int i = 0; i < level.blocks.size(); ++i) {
        const int first = i * span;
        Found found = foundAt(first);
        if (isFirst)
            widenByValues(&found, first, first + span - 1);
        for (int part = 0; !isFirst && part < kBlock; ++part)
            widen(&found, m_levels.last().blocks.at(i * kBlock + part));
        level.blocks[i] = found;
    }
    m_levels.append(level);
}

RangeExtremes::Found RangeExtremes::foundAt(int position) const
{
    const Found found = {{position, position}, m_values.at(position), m_values.at(position)};
    return found;
}

void RangeExtremes::widen(Found *found, const Found &other) const
{
    if (other.least < found->least) {
        found->least = other.least;
        found->at.least = other.at.least;
    }
    if (other.greatest > found->greatest) {
        found->greatest = other.greatest;
        found->at.greatest = other.at.greatest;
    }
}

/** Nearly all of the time that a curve takes to be set up is spent here. */
void RangeExtremes::widenByValues(Found *found, int first, int last) const
{
    const double *const values = m_values.constData();
    Found widened = *found; // so that the compiler keeps it at hand
    for (int i = first; i <= last; ++i) {
        if (values[i] < widened.least) {
            widened.least = values[i];
            widened.at.least = i;
        }
        if (values[i] > widened.greatest) {
            widened.greatest = values[i];
            widened.at.greatest = i;
        }
    }
    *found = widened;
}

/**
 * Takes in the largest block that starts at a position and ends by @p last, or the values up to
 * where a block can start; returns the position after them.
 */
int RangeExtremes::widenAt(Found *found, int position, int last) const
{
    int taken = -1;
    while (taken + 1 < m_levels.size() && position % m_levels.at(taken + 1).span == 0
           && position + m_levels.at(taken + 1).span - 1 <= last)
        ++taken;
    if (taken < 0) {
        const int end = qMin(last + 1, (position / kBlock + 1) * kBlock);
        widenByValues(found, position, end - 1);
        return end;
    }
    const Level &level = m_levels.at(taken);
    widen(found, level.blocks.at(position / level.span));
    return position + level.span;
}

RangeExtremes::Extremes RangeExtremes::within(int first, int last) const
{
    Found found = foundAt(first);
    for (int at = first; at <= last;)
        at = widenAt(&found, at, last);
    return found.at;
}

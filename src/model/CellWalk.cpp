#include "model/CellWalk.h"

#include <cstring>

namespace
{

const quint64 kEachByte = Q_UINT64_C(0x0101010101010101);
const quint64 kLowBits = Q_UINT64_C(0x7f7f7f7f7f7f7f7f);
// A few cells are found faster one by one.
const int kFewCells = 3;

/**
 * How many of the eight bytes at @p text are @p character, without a branch: those that are become
 * zero, each zero byte is turned into 1 and all others into 0, and a multiplication adds them up.
 */
inline int countIn8Bytes(const char *text, char character)
{
    quint64 bytes;
    std::memcpy(&bytes, text, sizeof bytes);
    bytes ^= kEachByte * uchar(character);
    const quint64 zeros = ~(((bytes & kLowBits) + kLowBits) | bytes | kLowBits);
    return int(((zeros >> 7) * kEachByte) >> 56);
}

} // namespace

CellWalk::CellWalk(const CellText &row, char separator)
    : m_at(row.data)
    , m_end(row.data + row.size)
    , m_separator(separator)
    , m_index(0)
{
}

CellText CellWalk::cell(int index)
{
    skip(index - m_index);
    m_index = index + 1;
    if (!m_at)
        return CellText();
    const char *const start = m_at;
    const char *const separator = find(start);
    m_at = separator ? separator + 1 : nullptr;
    return CellText(start, int((separator ? separator : m_end) - start));
}

/** The first separator from a position on, null without one. */
const char *CellWalk::find(const char *from) const
{
    return static_cast<const char *>(std::memchr(from, m_separator, size_t(m_end - from)));
}

/** Cells are short: to look for each separator by itself takes longer than to count them. */
void CellWalk::skip(int cells)
{
    while (m_at && cells > kFewCells && m_end - m_at >= 8) {
        const int found = countIn8Bytes(m_at, m_separator);
        if (found >= cells)
            break;
        cells -= found;
        m_at += 8;
    }
    for (; m_at && cells > 0; --cells) {
        const char *const separator = find(m_at);
        m_at = separator ? separator + 1 : nullptr;
    }
}

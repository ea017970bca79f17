#include "filters/RowChoice.h"

RowChoice::RowChoice(const SteppedRows &rows)
    : m_stepped(rows)
    , m_isListed(false)
{
}

RowChoice::RowChoice(const QVector<int> &rows)
    : m_list(rows)
    , m_isListed(true)
{
}

bool RowChoice::isAllOf(int rows) const
{
    if (count() != rows)
        return false;
    if (!m_isListed)
        return rows == 0 || (m_stepped.at(0) == 0 && m_stepped.at(rows - 1) == rows - 1);
    for (int i = 0; i < rows; ++i) {
        if (m_list.at(i) != i)
            return false;
    }
    return true;
}

QVector<int> RowChoice::toVector() const
{
    return m_isListed ? m_list : m_stepped.toVector();
}

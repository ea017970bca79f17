#include "viewer/CellSearch.h"

#include <QElapsedTimer>
#include <QTimerEvent>

#include <algorithm>

namespace
{

const int kSlice = 8; // ms, half a frame
const int kRowsBetweenLooks = 64; // at the clock

} // namespace

CellSearch::CellSearch(QObject *parent)
    : QObject(parent)
    , m_rowCount(0)
    , m_row(0)
    , m_count(0)
{
    m_matcher.setCaseSensitivity(Qt::CaseInsensitive);
}

void CellSearch::start(const QString &text, int rowCount, const QVector<int> &columns,
                       const CellText &cellText)
{
    stop();
    m_matcher.setPattern(text);
    m_columns = columns;
    m_cellText = cellText;
    m_rowCount = text.isEmpty() || columns.isEmpty() ? 0 : rowCount;
    m_timer.start(0, this);
}

void CellSearch::stop()
{
    m_timer.stop();
    m_rows.clear();
    m_row = m_count = 0;
}

void CellSearch::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != m_timer.timerId())
        return QObject::timerEvent(event);
    QElapsedTimer clock;
    clock.start();
    while (m_row < m_rowCount) {
        const Row row = {m_row, m_count};
        m_count += countIn(m_row);
        if (m_count > row.before)
            m_rows.append(row);
        if (++m_row % kRowsBetweenLooks == 0 && clock.elapsed() >= kSlice)
            break;
    }
    const bool isDone = m_row >= m_rowCount;
    if (isDone)
        m_timer.stop();
    emit progressed();
    if (isDone)
        emit finished();
}

bool CellSearch::isMatch(int row, int column) const
{
    return m_matcher.indexIn(m_cellText(row, column)) >= 0;
}

int CellSearch::countIn(int row) const
{
    int count = 0;
    for (int column : m_columns)
        count += isMatch(row, column);
    return count;
}

/** Of the first row found that is not before @p row. */
int CellSearch::placeOf(int row) const
{
    const auto isBefore = [](const Row &some, int wanted) { return some.row < wanted; };
    return int(std::lower_bound(m_rows.begin(), m_rows.end(), row, isBefore) - m_rows.begin());
}

/** The first match after @p column in a row that was found, or the last one before it. */
CellSearch::Match CellSearch::match(int place, int column, bool isForward) const
{
    Match found;
    const Row &row = m_rows.at(place);
    int number = row.before;
    for (int some : m_columns) {
        if (!isMatch(row.row, some))
            continue;
        ++number;
        if (isForward ? some <= column : some >= column)
            continue;
        found.row = row.row;
        found.column = some;
        found.number = number;
        if (isForward)
            break;
    }
    return found;
}

CellSearch::Match CellSearch::next(int row, int column) const
{
    if (m_rows.isEmpty())
        return Match();
    int place = placeOf(row);
    if (place < m_rows.size() && m_rows.at(place).row == row) {
        const Match inRow = match(place, column, true);
        if (inRow.isValid())
            return inRow;
        ++place;
    }
    return match(place % m_rows.size(), -1, true);
}

CellSearch::Match CellSearch::previous(int row, int column) const
{
    if (m_rows.isEmpty())
        return Match();
    const int end = m_columns.last() + 1;
    int place = placeOf(row);
    if (place < m_rows.size() && m_rows.at(place).row == row) {
        const Match inRow = match(place, column, false);
        if (inRow.isValid())
            return inRow;
    }
    place = place > 0 ? place - 1 : m_rows.size() - 1;
    return match(place, end, false);
}

bool CellSearch::hasAfter(int row, int column) const
{
    const Match found = next(row, column);
    return found.isValid() && (found.row > row || (found.row == row && found.column > column));
}

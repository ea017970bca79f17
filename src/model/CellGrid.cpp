#include "model/CellGrid.h"

#include "model/NumberText.h"

#include <algorithm>

const char kGapText[] = "---";

CellGrid::CellGrid() { }

CellGrid::~CellGrid() { }

QStringList CellGrid::columnTexts(int column) const
{
    QStringList texts;
    const int count = cellCount(column);
    texts.reserve(count);
    for (int row = 0; row < count; ++row)
        texts.append(text(column, row));
    return texts;
}

QList<QStringList> CellGrid::toLists() const
{
    QList<QStringList> columns;
    columns.reserve(columnCount());
    for (int column = 0; column < columnCount(); ++column)
        columns.append(columnTexts(column));
    return columns;
}

const NumberColumn &CellGrid::numbers(int column) const
{
    readNumbersAhead(QVector<int>() << column);
    return m_numbers[column]; // without values where the grid has no such column
}

void CellGrid::readNumbersAhead(const QVector<int> &columns) const
{
    QVector<int> unread;
    for (int i = 0; i < columns.size(); ++i) {
        const int column = columns.at(i);
        const bool exists = column >= 0 && column < columnCount();
        if (exists && !m_numbers.contains(column) && !unread.contains(column))
            unread.append(column);
    }
    if (unread.isEmpty())
        return;
    std::sort(unread.begin(), unread.end());
    const QVector<NumberColumn> read = readNumbers(unread);
    for (int i = 0; i < unread.size(); ++i)
        m_numbers.insert(unread.at(i), read.at(i));
}

const TimeColumn &CellGrid::times(int column) const
{
    QHash<int, TimeColumn>::iterator found = m_times.find(column);
    if (found == m_times.end())
        found = m_times.insert(column, readTimes(column));
    return found.value();
}

QVector<NumberColumn> CellGrid::readNumbers(const QVector<int> &columns) const
{
    QVector<NumberColumn> result;
    for (int i = 0; i < columns.size(); ++i)
        result.append(readNumbersOf(columns.at(i)));
    return result;
}

NumberColumn CellGrid::readNumbersOf(int column) const
{
    NumberColumn result;
    const int count = cellCount(column);
    result.values.reserve(count);
    for (int row = 0; row < count; ++row) {
        const QString cell = text(column, row);
        result.values.append(cell.toDouble());
        if (cell == QLatin1String(kGapText))
            result.gaps.append(row);
    }
    return result;
}

TimeColumn CellGrid::readTimes(int column) const
{
    TimeColumn result;
    const int count = cellCount(column);
    result.seconds.reserve(count);
    for (int row = 0; row < count; ++row) {
        const QString cell = text(column, row);
        result.seconds.append(NumberText::secondsOfDay(cell));
        if (cell == QLatin1String(kGapText))
            result.gaps.append(row);
    }
    return result;
}

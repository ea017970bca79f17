#include "model/CellGrid.h"

#include "model/NumberText.h"

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
    QHash<int, NumberColumn>::iterator found = m_numbers.find(column);
    if (found == m_numbers.end())
        found = m_numbers.insert(column, readNumbers(column));
    return found.value();
}

const TimeColumn &CellGrid::times(int column) const
{
    QHash<int, TimeColumn>::iterator found = m_times.find(column);
    if (found == m_times.end())
        found = m_times.insert(column, readTimes(column));
    return found.value();
}

NumberColumn CellGrid::readNumbers(int column) const
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

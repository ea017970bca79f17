#include "model/CellGrid.h"

#include "model/NumberText.h"

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
    QHash<int, NumberColumn>::const_iterator found = m_numbers.constFind(column);
    if (found == m_numbers.constEnd())
        found = m_numbers.insert(column, readNumbers(column));
    return found.value();
}

const TimeColumn &CellGrid::times(int column) const
{
    QHash<int, TimeColumn>::const_iterator found = m_times.constFind(column);
    if (found == m_times.constEnd())
        found = m_times.insert(column, readTimes(column));
    return found.value();
}

NumberColumn CellGrid::readNumbers(int column) const
{
    NumberColumn result;
    const int count = cellCount(column);
    result.values.reserve(count);
    for (int row = 0; row < count; ++row) {
        bool ok = false;
        result.values.append(text(column, row).toDouble(&ok));
        if (!ok)
            result.notNumbers.append(row);
    }
    return result;
}

TimeColumn CellGrid::readTimes(int column) const
{
    TimeColumn result;
    const int count = cellCount(column);
    result.reserve(count);
    for (int row = 0; row < count; ++row)
        result.append(NumberText::secondsOfDay(text(column, row)));
    return result;
}

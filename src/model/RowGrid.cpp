#include "model/RowGrid.h"

#include "model/NumberText.h"

#include <cstring>

namespace
{

/** The text of a cell as its column tells it. */
QString columnText(const CellText &cell, bool isTime)
{
    QString text = cell.toString();
    return isTime ? text.remove(QLatin1Char('"')) : text;
}

bool isQuoted(const CellText &cell)
{
    return std::memchr(cell.data, '"', size_t(cell.size)) != nullptr;
}

struct TextCollector {
    QStringList texts;
    bool isTime;

    void operator()(const CellText &cell) { texts.append(columnText(cell, isTime)); }
};

struct NumberCollector {
    NumberColumn column;
    bool isTime;

    void operator()(const CellText &cell)
    {
        bool ok = false;
        const double value = isTime && isQuoted(cell)
            ? columnText(cell, true).toDouble(&ok)
            : NumberText::toDouble(cell.data, cell.size, &ok);
        if (!ok && columnText(cell, isTime) == QLatin1String(kGapText))
            column.gaps.append(column.values.size());
        column.values.append(value);
    }
};

struct TimeCollector {
    TimeColumn column;
    bool isTime;

    void operator()(const CellText &cell)
    {
        const int seconds = isTime && isQuoted(cell)
            ? NumberText::secondsOfDay(columnText(cell, true))
            : NumberText::secondsOfDay(cell.data, cell.size);
        if (seconds < 0 && columnText(cell, isTime) == QLatin1String(kGapText))
            column.gaps.append(column.seconds.size());
        column.seconds.append(seconds);
    }
};

} // namespace

RowGrid::RowGrid(const QSharedPointer<const RowStore> &store, int columns)
    : m_store(store)
    , m_lengths(store->columnLengths(columns))
{
}

int RowGrid::cellCount(int column) const
{
    return column >= 0 && column < m_lengths.size() ? m_lengths.at(column) : 0;
}

QString RowGrid::text(int column, int row) const
{
    if (row < 0 || row >= cellCount(column))
        return QString();
    return columnText(m_store->cell(m_store->rowOfCell(column, row), column),
                      column == TimeColumnIndex);
}

QStringList RowGrid::columnTexts(int column) const
{
    TextCollector collector;
    collector.isTime = column == TimeColumnIndex;
    collector.texts.reserve(cellCount(column));
    m_store->visitColumn(column, cellCount(column), collector);
    return collector.texts;
}

QList<QStringList> RowGrid::toLists() const
{
    // Row by row: to walk to each cell from the start of its row takes far too long in wide logs.
    QList<QStringList> columns;
    columns.reserve(columnCount());
    for (int column = 0; column < columnCount(); ++column) {
        columns.append(QStringList());
        columns.last().reserve(cellCount(column));
    }
    const int rows = cellCount(0);
    for (int row = 0; row < rows; ++row) {
        QStringList cells = m_store->rowTexts(row);
        if (cells.size() > TimeColumnIndex)
            cells[TimeColumnIndex].remove(QLatin1Char('"'));
        for (int column = 0; column < qMin(cells.size(), columnCount()); ++column)
            columns[column].append(cells.at(column));
    }
    return columns;
}

NumberColumn RowGrid::readNumbers(int column) const
{
    NumberCollector collector;
    collector.isTime = column == TimeColumnIndex;
    collector.column.values.reserve(cellCount(column));
    m_store->visitColumn(column, cellCount(column), collector);
    return collector.column;
}

TimeColumn RowGrid::readTimes(int column) const
{
    TimeCollector collector;
    collector.isTime = column == TimeColumnIndex;
    collector.column.seconds.reserve(cellCount(column));
    m_store->visitColumn(column, cellCount(column), collector);
    return collector.column;
}

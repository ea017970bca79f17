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

    void operator()(int, const CellText &cell) { texts.append(columnText(cell, isTime)); }
};

/** The numbers of several columns, one of which may be that of the clock times. */
struct NumberCollector {
    QVector<NumberColumn> columns;
    int timeIndex;

    void operator()(int i, const CellText &cell)
    {
        NumberColumn &column = columns[i];
        const bool isTime = i == timeIndex;
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

    void operator()(int, const CellText &cell)
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
    , m_rows(store->rowCount())
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

/** Shows the cells of one column to a collector. */
template <typename Collector> void RowGrid::collect(int column, Collector &collector) const
{
    m_store->visitColumns(QVector<int>() << column, cellCount(column) > 0 ? m_rows : 0, collector);
}

QStringList RowGrid::columnTexts(int column) const
{
    TextCollector collector;
    collector.isTime = column == TimeColumnIndex;
    collector.texts.reserve(cellCount(column));
    collect(column, collector);
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

QVector<NumberColumn> RowGrid::readNumbers(const QVector<int> &columns) const
{
    NumberCollector collector;
    collector.timeIndex = columns.indexOf(TimeColumnIndex);
    collector.columns.resize(columns.size());
    for (int i = 0; i < columns.size(); ++i)
        collector.columns[i].values.reserve(cellCount(columns.at(i)));
    m_store->visitColumns(columns, m_rows, collector);
    return collector.columns;
}

TimeColumn RowGrid::readTimes(int column) const
{
    TimeCollector collector;
    collector.isTime = column == TimeColumnIndex;
    collector.column.seconds.reserve(cellCount(column));
    collect(column, collector);
    return collector.column;
}

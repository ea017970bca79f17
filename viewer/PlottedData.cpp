#include "viewer/PlottedData.h"

#include "datasource/LogDataSourceItem.h"
#include "model/NumberText.h"
#include "model/RowGrid.h"

#include <algorithm>

namespace
{

// Rows looked at together, when the first clock time is searched.
const int kRowsAtOnce = 256;

QString cleanUnit(const QString &unit)
{
    const QString text = unit.trimmed();
    return text == QLatin1String("-") ? QString() : text;
}

} // namespace

bool PlottedData::Column::isClockTime() const
{
    return index == RowGrid::TimeColumnIndex;
}

PlottedData::PlottedData(LogDataSourceItem *source)
    : m_source(source)
    , m_grid(source->tableModel()->grid())
    , m_headers(source->parser()->tabularParser().headerData(source->currentDataSetIndex()))
    , m_x(column(source->checkedItemList(0).value(0, -1)))
    , m_left(columns(source->checkedItemList(1)))
    , m_right(columns(source->checkedItemList(2)))
{
}

bool PlottedData::isCurrent() const
{
    return m_source->tableModel()->grid() == m_grid;
}

PlottedData::Column PlottedData::column(int index) const
{
    Column column;
    if (index < 0 || index >= m_headers.size())
        return column;
    column.index = index;
    column.name = m_headers.at(index).value(1);
    column.unit = cleanUnit(m_headers.at(index).value(2));
    return column;
}

QVector<PlottedData::Column> PlottedData::columns(const QList<int> &indexes) const
{
    QVector<Column> result;
    for (int index : indexes)
        result.append(column(index));
    return result;
}

QVector<int> PlottedData::rows() const
{
    const LogTableViewModel *table = m_source->tableModel();
    QVector<int> rows = m_source->observationFilteredTableModel()->sourceRows().toVector();
    if (table->hasExcludedRows()) {
        const auto isExcluded = [table](int row) { return table->rowExcluded(row); };
        rows.erase(std::remove_if(rows.begin(), rows.end(), isExcluded), rows.end());
    }
    return rows;
}

QStringList PlottedData::texts(const Column &column, const QVector<int> &rows, bool gaps) const
{
    QStringList texts;
    texts.reserve(rows.size());
    for (int row : rows)
        texts.append(m_grid->text(column.index, row));
    if (!gaps)
        return texts;
    const QStringList kept = m_source->applyFilters(column.name, texts);
    for (int i = 0; i < texts.size(); ++i) {
        if (kept.at(i) == LogDataSourceItem::kFilteredDelimiter)
            texts[i] = QString();
    }
    return texts;
}

PlottedData::Column PlottedData::curve(bool isRight, const QString &name) const
{
    const QVector<Column> &columns = isRight ? m_right : m_left;
    for (const Column &column : columns) {
        if (column.name == name)
            return column;
    }
    return Column();
}

int PlottedData::clockBase(const Column &column, bool gaps) const
{
    const QVector<int> all = rows();
    for (int first = 0; first < all.size(); first += kRowsAtOnce) {
        const QStringList some = texts(column, all.mid(first, kRowsAtOnce), gaps);
        for (const QString &text : some) {
            const int seconds = NumberText::secondsOfDay(text);
            if (seconds >= 0)
                return seconds;
        }
    }
    return -1;
}

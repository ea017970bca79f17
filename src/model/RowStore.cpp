#include "model/RowStore.h"

#include <algorithm>
#include <limits>

namespace
{

const int kRowsPerPage = 256;
// A page of very long rows is closed early, far below what a byte array can hold.
const int kBytesPerPage = 16 * 1024 * 1024;

} // namespace

void RowStore::Page::append(const char *text, int size, int cells)
{
    if (ends.isEmpty())
        commonWidth = cells;
    else if (widths.isEmpty() && cells != commonWidth)
        widths.fill(commonWidth, ends.size());
    if (!widths.isEmpty())
        widths.append(cells);
    bytes.append(text, size);
    ends.append(bytes.size());
}

int RowStore::Page::reaching(int column) const
{
    if (widths.isEmpty())
        return commonWidth > column ? rows() : 0;
    int count = 0;
    for (int row = 0; row < widths.size(); ++row)
        count += widths.at(row) > column ? 1 : 0;
    return count;
}

void RowStore::Page::countRows(QVector<int> *lastColumns) const
{
    const int columns = lastColumns->size();
    const bool uniform = widths.isEmpty();
    for (int row = 0; columns > 0 && row < (uniform ? 1 : rows()); ++row)
        (*lastColumns)[qMin(width(row), columns) - 1] += uniform ? rows() : 1;
}

int RowStore::Page::rowReaching(int column, int position) const
{
    if (widths.isEmpty())
        return position;
    int row = 0;
    for (int before = 0; row < widths.size(); ++row) {
        if (widths.at(row) > column && before++ == position)
            break;
    }
    return row;
}

RowStore::RowStore(char separator)
    : m_separator(separator)
    , m_rowCount(0)
    , m_narrowest(std::numeric_limits<int>::max())
    , m_widest(0)
    , m_lastPage(0)
{
}

void RowStore::startPage()
{
    if (!m_pages.isEmpty()) {
        Page &full = m_pages.last();
        full.bytes.squeeze();
        full.ends.squeeze();
        full.widths.squeeze();
    }
    Page page;
    page.firstRow = m_rowCount;
    m_pages.append(page);
}

void RowStore::append(const char *text, int size, int cells)
{
    if (m_pages.isEmpty() || m_pages.last().rows() == kRowsPerPage
        || m_pages.last().bytes.size() > kBytesPerPage) {
        startPage();
    }
    m_pages.last().append(text, size, cells);
    m_narrowest = qMin(m_narrowest, cells);
    m_widest = qMax(m_widest, cells);
    ++m_rowCount;
}

const RowStore::Page &RowStore::pageOfRow(int row) const
{
    const Page &last = m_pages.at(m_lastPage);
    if (row >= last.firstRow && row - last.firstRow < last.rows())
        return last;
    int low = 0;
    int high = m_pages.size() - 1;
    while (low < high) {
        const int middle = (low + high + 1) / 2;
        if (m_pages.at(middle).firstRow <= row)
            low = middle;
        else
            high = middle - 1;
    }
    m_lastPage = low;
    return m_pages.at(low);
}

CellText RowStore::row(int row) const
{
    const Page &page = pageOfRow(row);
    return page.text(row - page.firstRow);
}

CellText RowStore::cell(int row, int index) const
{
    return index < 0 ? CellText() : CellWalk(this->row(row), m_separator).cell(index);
}

QStringList RowStore::rowTexts(int row) const
{
    return this->row(row).toString().split(QLatin1Char(m_separator));
}

const QVector<int> &RowStore::pageStarts(int column) const
{
    // Only the last page still grows, and what is kept counts the pages before it.
    QVector<int> &starts = m_pageStarts[column];
    if (starts.isEmpty())
        starts.append(0);
    while (starts.size() < m_pages.size())
        starts.append(starts.last() + m_pages.at(starts.size() - 1).reaching(column));
    return starts;
}

int RowStore::columnLength(int column) const
{
    if (column < m_narrowest)
        return m_rowCount;
    if (column >= m_widest)
        return 0;
    int length = 0;
    for (int i = 0; i < m_pages.size(); ++i)
        length += m_pages.at(i).reaching(column);
    return length;
}

QVector<int> RowStore::columnLengths(int columns) const
{
    QVector<int> lengths(columns);
    for (int i = 0; i < m_pages.size(); ++i)
        m_pages.at(i).countRows(&lengths);
    // A row of so many cells reaches all columns before as well.
    for (int column = columns - 2; column >= 0; --column)
        lengths[column] += lengths.at(column + 1);
    return lengths;
}

int RowStore::rowOfCell(int column, int position) const
{
    if (column < m_narrowest)
        return position;
    const QVector<int> &starts = pageStarts(column);
    const int index = int(std::upper_bound(starts.constBegin(), starts.constEnd(), position)
                          - starts.constBegin())
        - 1;
    const Page &page = m_pages.at(index);
    return page.firstRow + page.rowReaching(column, position - starts.at(index));
}

qint64 RowStore::bytes() const
{
    qint64 sum = 0;
    for (int i = 0; i < m_pages.size(); ++i) {
        const Page &page = m_pages.at(i);
        sum += page.bytes.capacity() + qint64(sizeof(Page))
            + qint64(sizeof(int)) * (page.ends.capacity() + page.widths.capacity());
    }
    return sum;
}

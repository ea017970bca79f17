#include "table/TableFitter.h"

#include <QHeaderView>
#include <QStyleOptionHeader>
#include <QTableView>

namespace
{

// Cells that are measured, and those of which just the length counts; each column gets its share.
// Tables of thousands of columns come from broken logs, and still have to open.
const int kNearCells = 10000;
const int kFarCells = 100000;
const int kFewestNearRows = 5;
const int kMostNearRows = 50;
const int kMostFarRows = 500;

} // namespace

TableFitter::TableFitter(QTableView *view)
    : QObject(view)
    , m_view(view)
    , m_cellHeight(0)
{
}

void TableFitter::fit()
{
    if (!m_view->model())
        return;
    chooseRows();
    m_cellHeight = 0;
    const int columns = m_view->model()->columnCount();
    m_contentsWidths.fill(0, columns);
    for (int column = 0; column < columns; ++column)
        fitColumn(column);
    fitRows();
    Q_EMIT fitted();
}

int TableFitter::contentsWidth(int column) const
{
    return m_contentsWidths.value(column);
}

void TableFitter::chooseRows()
{
    m_nearRows.clear();
    m_farRows.clear();
    const int rows = m_view->model()->rowCount();
    const int columns = qMax(1, m_view->model()->columnCount());
    const int nearCount = qBound(kFewestNearRows, kNearCells / columns, kMostNearRows);
    const int top = qMax(0, m_view->rowAt(0));
    for (int row = top; row < rows && row < top + nearCount; ++row)
        m_nearRows << row;
    const int farCount = qMin(kFarCells / columns, kMostFarRows);
    const int step = farCount > 0 ? qMax(1, rows / farCount) : rows;
    for (int row = 0; farCount > 0 && row < rows; row += step)
        m_farRows << row;
}

void TableFitter::fitColumn(int column)
{
    m_contentsWidths[column] = cellsWidth(column);
    const int width = qMax(headerWidth(column), m_contentsWidths.at(column));
    m_view->horizontalHeader()->resizeSection(column, width);
}

void TableFitter::fitRows()
{
    if (m_nearRows.isEmpty())
        return;
    QHeaderView *header = m_view->verticalHeader();
    int height = m_cellHeight;
    for (int i = 0; i < m_nearRows.size(); ++i)
        height = qMax(height, header->sectionSizeHint(m_nearRows.at(i)));
    // Rows that come later get it too.
    if (height != header->defaultSectionSize())
        setDefaultHeight(height);
}

/** Without a signal for each of a million rows: the view is told once. */
void TableFitter::setDefaultHeight(int height)
{
    QHeaderView *header = m_view->verticalHeader();
    const bool wasBlocked = header->blockSignals(true);
    header->setDefaultSectionSize(height);
    header->blockSignals(wasBlocked);
    QMetaObject::invokeMethod(m_view, "updateGeometries");
    m_view->viewport()->update();
}

/** What the header itself would ask for, which answers 0 for hidden sections. */
int TableFitter::headerWidth(int column) const
{
    const QHeaderView *header = m_view->horizontalHeader();
    const QVariant text = m_view->model()->headerData(column, Qt::Horizontal);
    QFont font = header->font();
    font.setBold(true);
    QStyleOptionHeader option;
    option.initFrom(header);
    option.section = column;
    option.orientation = Qt::Horizontal;
    option.fontMetrics = QFontMetrics(font);
    option.text = text.toString();
    const QSize size
        = header->style()->sizeFromContents(QStyle::CT_HeaderSection, &option, QSize(), header);
    // Qt 4 leaves the limit to whoever asks for a size; setting one ignores it there.
    return qMax(header->minimumSectionSize(), size.width());
}

int TableFitter::cellsWidth(int column)
{
    int width = 0;
    int longest = 0;
    for (int i = 0; i < m_nearRows.size(); ++i) {
        width = qMax(width, measuredWidth(m_nearRows.at(i), column));
        longest = qMax(longest, textLength(m_nearRows.at(i), column));
    }
    for (int i = 0; i < m_farRows.size(); ++i) {
        const int length = textLength(m_farRows.at(i), column);
        if (length > longest)
            width = qMax(width, measuredWidth(m_farRows.at(i), column));
        longest = qMax(longest, length);
    }
    return width;
}

int TableFitter::textLength(int row, int column) const
{
    return m_view->model()->index(row, column).data().toString().size();
}

int TableFitter::measuredWidth(int row, int column)
{
    const QSize size = m_view->sizeHintForIndex(m_view->model()->index(row, column));
    m_cellHeight = qMax(m_cellHeight, size.height() + gridWidth());
    return size.width() + gridWidth();
}

int TableFitter::gridWidth() const
{
    return m_view->showGrid() ? 1 : 0;
}

#include "viewer/TableSelection.h"

#include "table/LogTableView.h"
#include "viewer/CellCopy.h"
#include "viewer/ColumnWidths.h"
#include "viewer/RowExclusion.h"
#include "viewer/TableRows.h"

#include <QClipboard>
#include <QGuiApplication>

TableSelection::TableSelection(QObject *parent)
    : QObject(parent)
    , m_isExtending(false)
    , m_shownRow(-1)
{
}

void TableSelection::setTable(QQuickItem *table)
{
    if (table == m_table)
        return;
    m_table = qobject_cast<LogTableViewItem *>(table);
    if (m_table) {
        m_table->setActiveFocusOnTab(true); // scripts can't, for an item of the module
        connect(cells(), &CellSelection::changed, this, &TableSelection::endExtending);
        connect(cells(), &CellSelection::changed, this, &TableSelection::changed);
    }
    if (m_table) {
        // A table that is shown for the first time finds its size later than its row.
        connect(m_table.data(), &QQuickItem::heightChanged, this, &TableSelection::centre,
                Qt::QueuedConnection);
    }
    update();
    emit tableChanged();
}

CellSelection *TableSelection::cells() const
{
    return CellSelection::of(m_table->tableView());
}

CellRange TableSelection::range() const
{
    return m_table ? cells()->range() : CellRange();
}

/** Those of the selection, without what is hidden. */
QVector<int> TableSelection::columns() const
{
    QVector<int> columns;
    const CellRange selected = range();
    if (!selected.isValid())
        return columns;
    const QVector<int> shown = cells()->columns();
    for (int column : shown) {
        if (column >= selected.left() && column <= selected.right())
            columns.append(column);
    }
    return columns;
}

int TableSelection::logRow() const
{
    return m_table ? TableRows::logRow(m_table, range().row) : -1;
}

bool TableSelection::isTooLarge() const
{
    return qint64(rowCount()) * columnCount() > CellCopy::kMostCells;
}

void TableSelection::update()
{
    if (m_table)
        cells()->setHasCheckBoxes(TableRows::areObservations(m_table));
    emit changed();
}

void TableSelection::setExtending(bool isExtending)
{
    if (isExtending == m_isExtending || !m_table)
        return;
    m_isExtending = isExtending;
    cells()->setExtending(isExtending);
    emit extendingChanged();
}

void TableSelection::endExtending()
{
    setExtending(false);
}

void TableSelection::move(int rows, int columns, bool isExtended)
{
    if (m_table)
        cells()->move(rows, columns, isExtended);
}

void TableSelection::movePages(int pages, bool isExtended)
{
    if (!m_table)
        return;
    const LogTableView *view = m_table->tableView();
    const int height = qMax(1, view->rowHeight(qMax(0, view->rowAt(1))));
    move(pages * qMax(1, view->viewport()->height() / height - 1), 0, isExtended);
}

void TableSelection::selectAll()
{
    if (m_table)
        cells()->selectAll();
}

void TableSelection::clear()
{
    if (m_table)
        cells()->clear();
}

bool TableSelection::copy(bool hasHeader)
{
    const CellRange selected = range();
    const QVector<int> shown = columns();
    if (shown.isEmpty() || isTooLarge())
        return false;
    QGuiApplication::clipboard()->setText(CellCopy::text(
        *m_table->tableView()->model(), selected.top(), selected.bottom(), shown, hasHeader));
    return true;
}

void TableSelection::toggleExcluded()
{
    const CellRange selected = range();
    if (!selected.isValid() || logRow() < 0)
        return;
    QVector<int> rows;
    for (int row = selected.top(); row <= selected.bottom(); ++row)
        rows.append(TableRows::logRow(m_table, row));
    LogTableViewModel *model = m_table->dataSource()->tableModel();
    RowExclusion::set(model, rows, !model->rowExcluded(rows.first()));
    m_table->tableView()->viewport()->update();
}

void TableSelection::toggleWidth()
{
    ColumnWidths *widths = m_table ? ColumnWidths::of(m_table) : nullptr;
    if (widths && range().isValid())
        widths->toggle(range().column);
}

bool TableSelection::showRow(int logRow)
{
    const int row = m_table ? TableRows::shownRow(m_table, logRow) : -1;
    if (row < 0)
        return false;
    cells()->selectRow(row);
    m_shownModel = m_table->tableView()->model();
    m_shownRow = row;
    centre();
    return range().isValid();
}

void TableSelection::keep()
{
    m_kept = range();
    m_kept.row = TableRows::logRow(m_table, m_kept.row);
    m_kept.anchorRow = TableRows::logRow(m_table, m_kept.anchorRow);
}

void TableSelection::bringBack()
{
    const CellRange kept = m_kept;
    m_kept = CellRange();
    if (!kept.isValid())
        return;
    const int row = TableRows::shownRow(m_table, kept.row);
    const int anchorRow = TableRows::shownRow(m_table, kept.anchorRow);
    const bool isThere
        = row >= 0 && anchorRow >= 0 && kept.right() < m_table->tableView()->model()->columnCount();
    if (!isThere)
        return;
    cells()->select(anchorRow, kept.anchorColumn);
    cells()->extendTo(row, kept.column);
}

/** The whole row is selected, of which the first cell is to be seen. */
void TableSelection::centre()
{
    const CellRange selected = range();
    if (m_shownRow < 0 || selected.row != m_shownRow || selected.rowCount() != 1
        || m_shownModel != m_table->tableView()->model())
        return;
    m_table->tableView()->scrollTo(m_shownModel->index(m_shownRow, selected.left()),
                                   QAbstractItemView::PositionAtCenter);
}

#include "viewer/TableSearch.h"

#include "table/LogTableView.h"
#include "viewer/CellSelection.h"
#include "viewer/TableRows.h"

TableSearch::TableSearch(QObject *parent)
    : QObject(parent)
    , m_number(0)
    , m_rowCount(0)
    , m_isWaiting(false)
{
    connect(&m_search, &CellSearch::progressed, this, &TableSearch::follow);
    connect(&m_search, &CellSearch::finished, this, &TableSearch::end);
}

void TableSearch::setTable(QQuickItem *table)
{
    if (table == m_table)
        return;
    m_table = qobject_cast<LogTableViewItem *>(table);
    recount();
    emit tableChanged();
}

double TableSearch::progress() const
{
    return m_rowCount > 0 ? double(m_search.searchedRows()) / m_rowCount : 1;
}

void TableSearch::setText(const QString &text)
{
    if (text == m_text)
        return;
    m_text = text;
    m_isWaiting = !text.isEmpty();
    start();
}

void TableSearch::recount()
{
    m_isWaiting = false;
    start();
}

void TableSearch::start()
{
    m_number = 0;
    m_search.stop();
    const QAbstractItemModel *model = m_table ? m_table->tableView()->model() : nullptr;
    m_rowCount = model ? model->rowCount() : 0;
    if (model && !m_text.isEmpty()) {
        CellSelection *selection = CellSelection::of(m_table->tableView());
        selection->setHasCheckBoxes(TableRows::areObservations(m_table));
        m_search.start(m_text, m_rowCount, selection->columns(), TableRows::cellText(m_table));
    }
    emit changed();
}

/** Where the walk begins: the selected cell, or before the first one. */
CellRange TableSearch::from() const
{
    const CellRange range
        = m_table ? CellSelection::of(m_table->tableView())->range() : CellRange();
    if (range.isValid())
        return range;
    CellRange start;
    start.anchorRow = start.row = 0;
    return start;
}

void TableSearch::follow()
{
    const CellRange range = from();
    if (m_isWaiting && m_search.hasAfter(range.row, range.column - 1))
        jump(m_search.next(range.row, range.column - 1));
    emit changed();
}

/** Now it is known that what was found lies before, if anything was. */
void TableSearch::end()
{
    const CellRange range = from();
    if (m_isWaiting)
        jump(m_search.next(range.row, range.column - 1));
    emit changed();
}

void TableSearch::next()
{
    const CellRange range = from();
    // Beyond what is found so far, the next one is still to come; it is not the first of all.
    m_isWaiting = m_search.isRunning() && !m_search.hasAfter(range.row, range.column);
    if (!m_isWaiting)
        jump(m_search.next(range.row, range.column));
    emit changed();
}

void TableSearch::previous()
{
    const CellRange range = from();
    jump(m_search.previous(range.row, range.column));
    emit changed();
}

void TableSearch::jump(const CellSearch::Match &match)
{
    m_isWaiting = false;
    if (!match.isValid())
        return;
    m_number = match.number;
    CellSelection *selection = CellSelection::of(m_table->tableView());
    selection->select(match.row, match.column);
    selection->showCurrent(true);
}

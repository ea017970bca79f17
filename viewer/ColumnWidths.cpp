#include "viewer/ColumnWidths.h"

#include "table/LogTableView.h"
#include "table/LogTableViewItem.h"
#include "table/TableFitter.h"
#include "viewer/TableHeader.h"

#include <QEvent>

namespace
{

const int kLeastLimit = 160; // pixels
const int kPart = 3; // of the table

} // namespace

void ColumnWidths::activate(LogTableViewItem *table)
{
    if (!of(table))
        new ColumnWidths(table);
}

ColumnWidths *ColumnWidths::of(const LogTableViewItem *table)
{
    return table->tableView()->findChild<ColumnWidths *>(QString(), Qt::FindDirectChildrenOnly);
}

ColumnWidths::ColumnWidths(LogTableViewItem *table)
    : QObject(table->tableView())
    , m_table(table)
    , m_limit(kLeastLimit)
{
    const auto *header = new TableHeader(table->tableView());
    connect(header, &TableHeader::dragged, this, &ColumnWidths::choose);
    connect(header, &TableHeader::tappedTwice, this, &ColumnWidths::toggle);
    connect(table->fitter(), &TableFitter::fitted, this, &ColumnWidths::fit);
    table->tableView()->viewport()->installEventFilter(this);
    limit();
}

/** A table that is shown for the first time finds its size after it was fitted. */
bool ColumnWidths::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize && watched == m_table->tableView()->viewport())
        limit();
    return false;
}

void ColumnWidths::limit()
{
    const int limit = qMax(kLeastLimit, m_table->tableView()->viewport()->width() / kPart);
    if (limit == m_limit)
        return;
    m_limit = limit;
    fit();
}

void ColumnWidths::fit()
{
    QHeaderView *header = m_table->tableView()->horizontalHeader();
    for (int column = 0; header->model() && column < header->count(); ++column)
        header->resizeSection(column, m_chosen.value(nameOf(column), fittingWidth(column)));
}

/** Headers go on in a second line. */
int ColumnWidths::fittingWidth(int column) const
{
    const TableFitter *fitter = m_table->fitter();
    return qMax(qMin(kLeastLimit, fitter->headerWidth(column)),
                qMin(m_limit, fitter->contentsWidth(column)));
}

int ColumnWidths::wholeWidth(int column) const
{
    return qMax(m_table->fitter()->headerWidth(column), m_table->fitter()->contentsWidth(column));
}

void ColumnWidths::choose(int column, int width)
{
    m_chosen.insert(nameOf(column), width);
}

void ColumnWidths::toggle(int column)
{
    QHeaderView *header = m_table->tableView()->horizontalHeader();
    if (header->sectionSize(column) < wholeWidth(column))
        choose(column, wholeWidth(column));
    else
        m_chosen.remove(nameOf(column));
    header->resizeSection(column, m_chosen.value(nameOf(column), fittingWidth(column)));
}

QString ColumnWidths::nameOf(int column) const
{
    return m_table->tableView()->model()->headerData(column, Qt::Horizontal).toString();
}

#include "viewer/TableColumns.h"

#include "table/LogTableView.h"
#include "table/TableFitter.h"
#include "viewer/CellSelection.h"
#include "viewer/FilledRows.h"
#include "viewer/PlottedRows.h"
#include "viewer/TableRows.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QSet>

namespace
{

/** Not the table's default, which would also split names at vertical bars. */
const QLatin1String kLineEnd("\n");

} // namespace

TableColumns::TableColumns(QObject *parent)
    : QObject(parent)
    , m_option(LogTableViewItem::Data)
    , m_columnCount(0)
    , m_shownColumnCount(0)
    , m_rowCount(0)
    , m_position(0)
{
}

TableColumns::~TableColumns() = default;

void TableColumns::setTable(QQuickItem *table)
{
    if (table == m_table)
        return;
    if (m_table && m_table->dataSource())
        disconnect(m_table->dataSource(), nullptr, this, nullptr);
    m_table = qobject_cast<LogTableViewItem *>(table);
    LogDataSourceItem *source = m_table ? m_table->dataSource() : nullptr;
    if (source) {
        // The table hides its columns whenever its model is filled, which this signal follows.
        connect(source, &LogDataSourceItem::dataUpdated, this, &TableColumns::hideChosen);
        connect(source, &LogDataSourceItem::graphDataUpdated, this, &TableColumns::followPlot);
    }
    showOption();
    emit tableChanged();
}

void TableColumns::setOption(int option)
{
    if (option == m_option)
        return;
    const auto change = [this, option] {
        m_option = option;
        showOption();
        return true;
    };
    if (m_option != LogTableViewItem::Header && option != LogTableViewItem::Header && m_table)
        return keepingRows(change);
    if (m_option != LogTableViewItem::Header && m_table)
        m_position = m_table->tableView()->verticalScrollBar()->value();
    change();
    scrollTo(option == LogTableViewItem::Header ? 0 : m_position);
}

void TableColumns::scrollTo(int position)
{
    if (!m_table)
        return;
    // The range of the bar is still that of what was shown before.
    QMetaObject::invokeMethod(m_table->tableView(), "updateGeometries");
    m_table->tableView()->verticalScrollBar()->setValue(position);
}

/** What is looked at of the observations stays, as far as @p change, when it does, shows it. */
void TableColumns::keepingRows(const std::function<bool()> &change)
{
    QTableView *view = m_table->tableView();
    const int top = view->rowAt(0);
    const int offset = top < 0 ? 0 : -view->rowViewportPosition(top);
    const int topOfLog = TableRows::logRow(m_table, top);
    CellRange selection = CellSelection::of(view)->range();
    selection.anchorRow = TableRows::logRow(m_table, selection.anchorRow);
    selection.row = TableRows::logRow(m_table, selection.row);
    if (change())
        restore(topOfLog, offset, selection);
}

/** Rows that are not shown any more are passed over. */
void TableColumns::restore(int top, int offset, const CellRange &selection)
{
    QTableView *view = m_table->tableView();
    int row = TableRows::shownRow(m_table, top);
    for (int next = top + 1; row < 0 && top >= 0 && next < logRowCount(); ++next) {
        row = TableRows::shownRow(m_table, next);
        offset = 0;
    }
    scrollTo(qMax(0, row) * view->verticalHeader()->defaultSectionSize() + offset);
    const int anchor = TableRows::shownRow(m_table, selection.anchorRow);
    const int current = TableRows::shownRow(m_table, selection.row);
    if (anchor < 0 || current < 0)
        return;
    CellSelection::of(view)->select(anchor, selection.anchorColumn);
    CellSelection::of(view)->extendTo(current, selection.column);
}

int TableColumns::logRowCount() const
{
    LogDataSourceItem *source = m_table ? m_table->dataSource() : nullptr;
    return source ? source->tableModel()->rowCount() : 0;
}

void TableColumns::refit()
{
    showOption();
}

void TableColumns::showOption()
{
    if (!m_table)
        return;
    m_table->setCheckableColumnEnabled(hasCheckBoxes());
    m_table->setLogViewerViewOption(static_cast<LogTableViewItem::LogViewerViewOptions>(m_option));
    showOwnRows();
    hideChosen();
}

/**
 * Where the window leaves observations out, all of them are shown, and of the window just what is
 * plotted. Constants go as far as there are any.
 */
void TableColumns::showOwnRows()
{
    LogDataSourceItem *source = m_table->dataSource();
    QScopedPointer<PlottedRows> rows;
    QScopedPointer<FilledRows> constants;
    if (source && m_option == LogTableViewItem::Header) {
        constants.reset(new FilledRows(source->constTableModel()));
        showModel(constants.data());
    } else if (source && m_option == LogTableViewItem::PlottedData) {
        rows.reset(new PlottedRows(source));
        showModel(rows.data());
        m_table->showGraphedColumns();
    } else if (m_option == LogTableViewItem::Data && !isWindowWhole()) {
        showModel(source->tableModel());
    }
    m_plottedRows.swap(rows); // those before are shown no more
    m_constants.swap(constants);
}

void TableColumns::showModel(QAbstractItemModel *model)
{
    m_table->tableView()->setModel(model);
    m_table->fitter()->fit();
}

bool TableColumns::isWindowWhole() const
{
    LogDataSourceItem *source = m_table->dataSource();
    return !source
        || source->observationFilteredTableModel()->rowCount() == source->tableModel()->rowCount();
}

void TableColumns::hideChosen()
{
    if (m_table && hasGroups()) {
        m_table->showAllColumns();
        const QStringList hidden = hiddenGroups();
        for (const QString &group : hidden)
            m_table->hideColumnsForHeaderPart(group, kLineEnd);
        keepCheckBoxes();
    }
    describe();
}

/** The table listens too, but may hear of it later. */
void TableColumns::followPlot()
{
    if (m_table && m_option == LogTableViewItem::Data && !isWindowWhole()
        && m_table->tableView()->model() != m_table->dataSource()->tableModel())
        showOption();
    if (!m_table || m_option != LogTableViewItem::PlottedData)
        return;
    if (m_plottedRows)
        keepingRows([this] { return m_plottedRows->update(); });
    m_table->showGraphedColumns();
    describe();
}

/** Their header is a text like that of any group. */
void TableColumns::keepCheckBoxes()
{
    if (hasCheckBoxes())
        m_table->tableView()->setColumnHidden(0, false);
}

void TableColumns::setGroupShown(const QString &group, bool shown)
{
    QStringList &hidden = m_hidden[m_option];
    if (!m_table || !hasGroups() || shown == !hidden.contains(group))
        return;
    if (shown) {
        hidden.removeAll(group);
        m_table->showColumnsForHeaderPart(group, kLineEnd);
    } else {
        hidden.append(group);
        m_table->hideColumnsForHeaderPart(group, kLineEnd);
        keepCheckBoxes();
    }
    describe();
}

void TableColumns::showAllGroups()
{
    m_hidden.remove(m_option);
    hideChosen();
}

void TableColumns::hideAllGroups()
{
    if (!m_table || !hasGroups())
        return;
    m_hidden[m_option] = m_groups;
    m_table->hideAllColumns();
    describe();
}

void TableColumns::describe()
{
    const QAbstractItemModel *model = m_table ? m_table->tableView()->model() : nullptr;
    m_groups.clear();
    m_columnCount = m_shownColumnCount = 0;
    m_rowCount = model ? model->rowCount() : 0;
    QSet<QString> known;
    for (int column = firstColumn(); model && column < model->columnCount(); ++column) {
        ++m_columnCount;
        m_shownColumnCount += m_table->tableView()->isColumnHidden(column) ? 0 : 1;
        const QString group = groupOf(column);
        if (!hasGroups() || group.isEmpty() || known.contains(group))
            continue;
        known.insert(group);
        m_groups.append(group);
    }
    emit changed();
}

/** What the table itself compares: the first part of the header that is not empty. */
QString TableColumns::groupOf(int column) const
{
    const QString header
        = m_table->tableView()->model()->headerData(column, Qt::Horizontal).toString();
    return header.section(kLineEnd, 0, 0, QString::SectionSkipEmpty);
}

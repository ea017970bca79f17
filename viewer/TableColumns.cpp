#include "viewer/TableColumns.h"

#include "table/LogTableView.h"
#include "table/TableFitter.h"
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
    const bool hadConstants = m_option == LogTableViewItem::Header;
    const QAbstractItemModel *before = m_table ? m_table->tableView()->model() : nullptr;
    const int top = m_table ? TableRows::logRow(m_table, m_table->tableView()->rowAt(0)) : -1;
    m_option = option;
    if (!hadConstants && m_table)
        m_position = m_table->tableView()->verticalScrollBar()->value();
    showOption();
    if (option == LogTableViewItem::Header)
        scrollTo(0);
    else if (hadConstants)
        scrollTo(m_position);
    else if (m_table && m_table->tableView()->model() != before)
        scrollToRow(top);
}

void TableColumns::scrollTo(int position)
{
    if (!m_table)
        return;
    // The range of the bar is still that of what was shown before.
    QMetaObject::invokeMethod(m_table->tableView(), "updateGeometries");
    m_table->tableView()->verticalScrollBar()->setValue(position);
}

/** Rows that are not shown are passed over. */
void TableColumns::scrollToRow(int logRow)
{
    QTableView *view = m_table->tableView();
    const int row = qMax(0, TableRows::shownRow(m_table, logRow));
    QMetaObject::invokeMethod(view, "updateGeometries");
    view->verticalScrollBar()->setValue(row * view->verticalHeader()->defaultSectionSize());
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
    showWholeLog();
    hideChosen();
}

/** Where the window leaves observations out, the plotted ones are there to show what it takes. */
void TableColumns::showWholeLog()
{
    if (m_option != LogTableViewItem::Data || isWindowWhole())
        return;
    m_table->tableView()->setModel(m_table->dataSource()->tableModel());
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

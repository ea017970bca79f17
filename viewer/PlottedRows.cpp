#include "viewer/PlottedRows.h"

#include "filters/LogDataSetFilter.h"
#include "model/NumberText.h"

#include <QStandardItemModel>

#include <algorithm>

namespace
{

/** The table's column for a variable: the check boxes come first. */
int tableColumn(int variable)
{
    return variable + 1;
}

QString nameOf(const QAbstractItemModel *model, int row)
{
    return model->index(row, 0).data().toString();
}

} // namespace

bool PlottedRows::Choice::operator==(const Choice &other) const
{
    return windowRows == other.windowRows && isWhole == other.isWhole && rows == other.rows
        && gaps == other.gaps;
}

bool PlottedRows::Choice::isGap(int windowRow, int column) const
{
    const auto found = gaps.constFind(column);
    return found != gaps.constEnd() && found->testBit(windowRow);
}

PlottedRows::PlottedRows(LogDataSourceItem *source, QObject *parent)
    : QAbstractProxyModel(parent)
    , m_source(source)
    , m_window(source->observationFilteredTableModel())
    , m_rowCount(0)
{
    setSourceModel(m_window);
    followWindow();
    fill(choose());
}

/**
 * A window that comes to have other rows is taken anew, without a reset, which would make the
 * table forget its columns.
 */
void PlottedRows::followWindow()
{
    using Window = LogObservationSortFilterProxyModel;
    connect(m_window, &Window::modelAboutToBeReset, this, [this] { beginResetModel(); });
    // What is plotted of the new rows is not known yet. It may well be the same rows as before.
    connect(m_window, &Window::modelReset, this, [this] {
        if (m_choice.windowRows != m_window->rowCount())
            m_choice = Choice();
        m_choice.windowRows = m_window->rowCount();
        m_rowCount = m_choice.count();
        endResetModel();
    });
    connect(m_window, &Window::rowsAboutToBeInserted, this, &PlottedRows::clear);
    connect(m_window, &Window::rowsAboutToBeRemoved, this, &PlottedRows::clear);
    connect(m_window, &Window::layoutAboutToBeChanged, this, &PlottedRows::clear);
    connect(m_window, &Window::rowsInserted, this, &PlottedRows::update);
    connect(m_window, &Window::rowsRemoved, this, &PlottedRows::update);
    connect(m_window, &Window::layoutChanged, this, &PlottedRows::update);
    connect(m_window, &Window::dataChanged, this, &PlottedRows::tellChecks);
    connect(m_source.data(), &QObject::destroyed, this, &PlottedRows::clear);
}

/** Cells never change by themselves. */
void PlottedRows::tellChecks()
{
    if (m_rowCount > 0)
        emit dataChanged(index(0, 0), index(m_rowCount - 1, 0));
}

bool PlottedRows::update()
{
    if (!m_source)
        return false;
    const Choice choice = choose();
    if (choice == m_choice && choice.count() == m_rowCount)
        return false;
    clear();
    fill(choice);
    return true;
}

void PlottedRows::clear()
{
    if (m_rowCount == 0)
        return;
    beginRemoveRows(QModelIndex(), 0, m_rowCount - 1);
    m_rowCount = 0;
    endRemoveRows();
}

void PlottedRows::fill(const Choice &choice)
{
    m_choice = choice;
    if (choice.count() == 0)
        return;
    beginInsertRows(QModelIndex(), 0, choice.count() - 1);
    m_rowCount = choice.count();
    endInsertRows();
}

PlottedRows::Choice PlottedRows::choose() const
{
    Choice choice;
    choice.windowRows = m_window->rowCount();
    const QList<int> curves = m_source->checkedItemList(1) + m_source->checkedItemList(2);
    QBitArray left(choice.windowRows, !curves.isEmpty()); // out of all curves
    for (int variable : curves) {
        const QBitArray gaps = gapsOf(variable);
        left &= gaps; // the shorter one counts as filled up with zeros
        if (gaps.count(true) > 0)
            choice.gaps.insert(tableColumn(variable), gaps);
    }
    choice.gaps.remove(tableColumn(m_source->checkedItemList(0).value(0, -1)));
    choice.isWhole = left.count(true) == 0;
    for (int row = 0; !choice.isWhole && row < left.size(); ++row) {
        if (!left.testBit(row))
            choice.rows.append(row);
    }
    return choice;
}

QVector<LogDataSetFilter *> PlottedRows::criteriaOf(int variable) const
{
    QVector<LogDataSetFilter *> criteria;
    const QString name = nameOf(m_source->yVariableModel(), variable);
    const QStandardItemModel *all = m_source->activeFilterModel();
    for (int row = 0; row < all->rowCount(); ++row) {
        const QVariant data = all->index(row, 0).data(Qt::UserRole + 1);
        auto *criterion = data.value<LogDataSetFilter *>();
        if (criterion && criterion->active() && criterion->concerns(name))
            criteria.append(criterion);
    }
    return criteria;
}

/** The window's rows without a sample in a variable's curve; nothing where all have one. */
QBitArray PlottedRows::gapsOf(int variable) const
{
    const QVector<LogDataSetFilter *> criteria = criteriaOf(variable);
    const NumberColumn &numbers = m_source->tableModel()->grid()->numbers(variable);
    if (criteria.isEmpty() && numbers.gaps.isEmpty())
        return QBitArray();
    const RowChoice rows = m_window->sourceRows();
    QBitArray gaps(rows.count());
    for (int i = 0; i < rows.count(); ++i) {
        const int row = rows.at(i);
        const double number = numbers.values.value(row);
        const bool isGap
            = std::binary_search(numbers.gaps.constBegin(), numbers.gaps.constEnd(), row);
        gaps.setBit(i, isGap || !allAccept(criteria, NumberText::toFloat(number)));
    }
    return gaps;
}

int PlottedRows::logRow(int row) const
{
    if (row < 0 || row >= m_rowCount)
        return -1;
    return m_window->sourceRows().at(m_choice.windowRow(row));
}

int PlottedRows::shownRow(int logRow) const
{
    if (!m_source)
        return -1;
    const QModelIndex index = m_source->tableModel()->index(logRow, 0);
    return index.isValid() ? mapFromSource(m_window->mapFromSource(index)).row() : -1;
}

CellSearch::CellText PlottedRows::cellText() const
{
    const CellGridPointer grid = m_source->tableModel()->grid();
    const RowChoice window = m_window->sourceRows();
    const Choice choice = m_choice;
    return [grid, window, choice](int row, int column) {
        const int windowRow = choice.windowRow(row);
        return choice.isGap(windowRow, column) ? QString()
                                               : grid->text(column - 1, window.at(windowRow));
    };
}

int PlottedRows::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_rowCount;
}

int PlottedRows::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() || !sourceModel() ? 0 : sourceModel()->columnCount();
}

QModelIndex PlottedRows::index(int row, int column, const QModelIndex &parent) const
{
    return hasIndex(row, column, parent) ? createIndex(row, column) : QModelIndex();
}

QModelIndex PlottedRows::parent(const QModelIndex &) const
{
    return QModelIndex();
}

QModelIndex PlottedRows::mapToSource(const QModelIndex &index) const
{
    if (!index.isValid() || index.row() >= m_rowCount || !m_source)
        return QModelIndex();
    return m_window->index(m_choice.windowRow(index.row()), index.column());
}

QModelIndex PlottedRows::mapFromSource(const QModelIndex &index) const
{
    if (!index.isValid() || m_rowCount == 0)
        return QModelIndex();
    if (m_choice.isWhole)
        return this->index(index.row(), index.column());
    const QVector<int> &rows = m_choice.rows;
    const auto found = std::lower_bound(rows.constBegin(), rows.constEnd(), index.row());
    return found != rows.constEnd() && *found == index.row()
        ? this->index(int(found - rows.constBegin()), index.column())
        : QModelIndex();
}

QVariant PlottedRows::data(const QModelIndex &index, int role) const
{
    const QModelIndex source = mapToSource(index);
    if (role == Qt::DisplayRole && source.isValid() && m_choice.isGap(source.row(), index.column()))
        return QVariant();
    return source.isValid() ? source.data(role) : QVariant();
}

/** Columns have their names also where there are no rows. */
QVariant PlottedRows::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal && sourceModel())
        return sourceModel()->headerData(section, orientation, role);
    return QAbstractProxyModel::headerData(section, orientation, role);
}

#include "table/LogTableViewItem.h"

#include "declarative/TextCompat.h"
#include "declarative/WidgetCompat.h"
#include "table/CheckboxItemDelegate.h"
#include "table/LogTableView.h"
#include "table/ScrollBarStyle.h"
#include "table/TableFitter.h"

#include <QGraphicsProxyWidget>
#include <QRegExp>
#include <QScrollBar>
#include <QStackedWidget>

namespace
{

const int kLongestDelimiter = 1000;
const char kNever[] = "(?!)"; // an expression that is found nowhere

const int kCheckBoxColumn = 0;
const int kSmallestSection = 40;
const char kAnyRow[] = "";
const char kNoRemarks[] = "^(?!remarks).*$";

/** The table's column for a row of the variable models: the check boxes come first. */
int tableColumn(int variableRow)
{
    return variableRow + 1;
}

} // namespace

LogTableViewItem::LogTableViewItem(QDeclarativeItem *parent)
    : QDeclarativeItem(parent)
    , _stack(new QStackedWidget)
    , _tableView(new LogTableView)
    , _proxy(nullptr)
    , _viewOption(Header)
    , _remarksEnabled(true)
    , _checkableColumnEnabled(false)
    , m_checkBoxes(new CheckboxItemDelegate(this))
    , m_fitter(new TableFitter(_tableView))
{
    m_checkBoxes->watchPresses(_tableView);
    styleTable();
    styleHeaders();
    _stack->addWidget(_tableView);
    _proxy = new QGraphicsProxyWidget(graphicsParent(this));
    _proxy->setWidget(_stack);
    _proxy->setPos(0, 0);
    _remarksFilter.setFilterKeyColumn(0);
    connect(this, SIGNAL(widthChanged()), SLOT(resizeTableView()));
    connect(this, SIGNAL(heightChanged()), SLOT(resizeTableView()));
}

void LogTableViewItem::styleTable()
{
    _tableView->setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    _tableView->setHorizontalScrollMode(QAbstractItemView::ScrollPerItem);
    _tableView->setAlternatingRowColors(true);
    _tableView->horizontalScrollBar()->setStyleSheet(ScrollBarStyle::horizontal());
    _tableView->verticalScrollBar()->setStyleSheet(ScrollBarStyle::vertical());
    QPalette palette = _tableView->palette();
    palette.setColor(QPalette::AlternateBase, QColor(206, 218, 234));
    _tableView->setPalette(palette);
}

void LogTableViewItem::styleHeaders()
{
    QHeaderView *header = _tableView->horizontalHeader();
    header->setMinimumSectionSize(kSmallestSection);
    header->setMinimumHeight(kSmallestSection);
    Compat::setSectionsClickable(header, false);
    Compat::setSectionsClickable(_tableView->verticalHeader(), false);
    QPalette palette = header->palette();
    palette.setColor(QPalette::Active, QPalette::Window, Qt::white);
    header->setPalette(palette);
}

void LogTableViewItem::resizeTableView()
{
    _proxy->resize(width(), height());
}

LogTableView *LogTableViewItem::tableView() const
{
    return _tableView;
}

CheckboxItemDelegate *LogTableViewItem::checkBoxes() const
{
    return m_checkBoxes;
}

TableFitter *LogTableViewItem::fitter() const
{
    return m_fitter;
}

LogDataSourceItem *LogTableViewItem::dataSource() const
{
    return _dataSource;
}

void LogTableViewItem::setDataSource(LogDataSourceItem *source)
{
    unfollowModels();
    if (_dataSource) {
        disconnect(_dataSource, SIGNAL(dataUpdated()), this, SLOT(reloadData()));
        disconnect(_dataSource, SIGNAL(dataUpdated()), m_fitter, SLOT(fit()));
    }
    _dataSource = source;
    if (!source)
        return;
    setLogViewerViewOption(_viewOption);
    connect(source, SIGNAL(dataUpdated()), SLOT(reloadData()));
    connect(source, SIGNAL(dataUpdated()), m_fitter, SLOT(fit()));
    // Never undone, as it has always been: a table that still shows an earlier source's models
    // relies on it. It repaints just once, however often a source comes back.
    connect(source,
            SIGNAL(excludedPointsCleared()), _tableView, SLOT(repaint()), Qt::UniqueConnection);
}

LogTableViewItem::LogViewerViewOptions LogTableViewItem::logViewerViewOption() const
{
    return _viewOption;
}

void LogTableViewItem::setLogViewerViewOption(LogViewerViewOptions option)
{
    _viewOption = option;
    _stack->setCurrentIndex(0);
    if (!_dataSource)
        return;
    switch (option) {
    case Header:
        showModel(_dataSource->constTableModel());
        showCheckBoxes(false);
        hideColumnsAtResetOf(_dataSource->constTableModel());
        break;
    case Data:
        showModel(_dataSource->observationFilteredTableModel());
        showCheckBoxes(true);
        hideColumnsAtResetOf(_dataSource->tableModel());
        break;
    case PlottedData:
        showModel(_dataSource->observationFilteredTableModel());
        showCheckBoxes(true);
        followGraph();
        break;
    default:
        break;
    }
    m_fitter->fit();
}

/** Shows @p model, all of its columns if it is another one, and follows no model any more. */
void LogTableViewItem::showModel(QAbstractItemModel *model)
{
    unfollowModels();
    if (_tableView->model() == model)
        return;
    _tableView->setModel(model);
    // The view and its headers each make a selection model for each model, and keep those they no
    // longer use as long as they live.
    foreach (QItemSelectionModel *selection, _tableView->findChildren<QItemSelectionModel *>()) {
        if (selection != _tableView->selectionModel())
            delete selection;
    }
    // The headers remember hidden columns by their positions, where other columns are now.
    showAllColumns();
}

void LogTableViewItem::showCheckBoxes(bool shown)
{
    _tableView->setItemDelegateForColumn(kCheckBoxColumn, shown ? m_checkBoxes : nullptr);
}

/** The view has to know @p model by now, so that it takes a reset in before this item does. */
void LogTableViewItem::hideColumnsAtResetOf(QAbstractItemModel *model)
{
    m_followedModel = model;
    connect(model, SIGNAL(modelAboutToBeReset()), SLOT(showAllColumns()));
    connect(model, SIGNAL(modelReset()), SLOT(hideAllColumns()));
}

/** A filled model starts with all columns shown, also when nothing is plotted anew. */
void LogTableViewItem::followGraph()
{
    m_followedModel = _dataSource->tableModel();
    connect(m_followedModel, SIGNAL(modelReset()), SLOT(showGraphedColumns()));
    connect(_dataSource, SIGNAL(graphDataUpdated()), SLOT(showGraphedColumns()));
    showGraphedColumns();
}

void LogTableViewItem::unfollowModels()
{
    if (m_followedModel)
        m_followedModel->disconnect(this);
    m_followedModel = nullptr;
    if (_dataSource)
        disconnect(_dataSource, SIGNAL(graphDataUpdated()), this, SLOT(showGraphedColumns()));
}

bool LogTableViewItem::checkableColumnEnabled() const
{
    return _checkableColumnEnabled;
}

void LogTableViewItem::setCheckableColumnEnabled(bool enabled)
{
    _checkableColumnEnabled = enabled;
}

bool LogTableViewItem::remarksEnabled() const
{
    return _remarksEnabled;
}

void LogTableViewItem::setRemarksEnabled(bool enabled)
{
    if (enabled == _remarksEnabled)
        return;
    _remarksEnabled = enabled;
    const QString pattern = QLatin1String(enabled ? kAnyRow : kNoRemarks);
    _remarksFilter.setFilterRegExp(QRegExp(pattern, Qt::CaseInsensitive, QRegExp::RegExp));
    reloadData();
}

void LogTableViewItem::reloadData()
{
    if (!_dataSource)
        return;
    for (int row = 0; row < _remarksFilter.rowCount(); ++row) {
        const QModelIndex source = _remarksFilter.mapToSource(_remarksFilter.index(row, 0));
        const int span = _dataSource->tableModel()->columnSpan(source.row());
        if (span > 1)
            _tableView->setSpan(row, 1, 1, span);
    }
}

void LogTableViewItem::hideAllColumns()
{
    const int columns = _tableView->horizontalHeader()->count();
    for (int column = 0; column < columns; ++column) {
        const bool stays = column == kCheckBoxColumn && _checkableColumnEnabled;
        _tableView->setColumnHidden(column, !stays);
    }
}

void LogTableViewItem::showAllColumns()
{
    const int columns = _tableView->horizontalHeader()->count();
    for (int column = 0; column < columns; ++column)
        _tableView->setColumnHidden(column, false);
}

void LogTableViewItem::showGraphedColumns()
{
    QVector<bool> shown(_tableView->horizontalHeader()->count(), false);
    if (_checkableColumnEnabled && !shown.isEmpty())
        shown[kCheckBoxColumn] = true;
    const QVector<int> variables = _dataSource ? _dataSource->graphedColumns() : QVector<int>();
    for (int i = 0; i < variables.size(); ++i) {
        if (tableColumn(variables.at(i)) < shown.size())
            shown[tableColumn(variables.at(i))] = true;
    }
    // Each column just once: hiding them all on the way would scroll the table back to its start.
    for (int column = 0; column < shown.size(); ++column)
        _tableView->setColumnHidden(column, !shown.at(column));
}

void LogTableViewItem::hideColumnsForHeaderPart(const QString &part, const QString &delim,
                                                int index)
{
    setColumnsHidden(part, delim, index, true);
}

void LogTableViewItem::showColumnsForHeaderPart(const QString &part, const QString &delim,
                                                int index)
{
    setColumnsHidden(part, delim, index, false);
}

/** Hides or shows those columns whose header, split at @p delim, has @p part at @p index. */
void LogTableViewItem::setColumnsHidden(const QString &part, const QString &delim, int index,
                                        bool hidden)
{
    const QAbstractItemModel *model = _tableView->model();
    // Reading an expression takes the square of its length: minutes for a text that strayed here.
    const bool isUsable = delim.size() <= kLongestDelimiter;
    const QRegExp delimiter(isUsable ? delim : QLatin1String(kNever), Qt::CaseSensitive,
                            QRegExp::RegExp);
    for (int column = 0; model && index >= 0 && column < model->columnCount(); ++column) {
        const QString text = model->headerData(column, Qt::Horizontal).toString();
        const QStringList parts = text.split(delimiter, Compat::SkipEmptyParts);
        if (parts.size() > index && parts.at(index) == part)
            _tableView->setColumnHidden(column, hidden);
    }
}

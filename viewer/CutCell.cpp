#include "viewer/CutCell.h"

#include "table/LogTableView.h"
#include "table/TableFitter.h"
#include "viewer/CellSelection.h"

#include <QHeaderView>
#include <QScrollBar>

namespace
{

/** What a style leaves empty at both sides of a text. */
int textMargin(const QWidget *view)
{
    return view->style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, view) + 1;
}

} // namespace

CutCell::CutCell(QObject *parent)
    : QObject(parent)
{
}

void CutCell::setTable(QQuickItem *table)
{
    if (table == m_table)
        return;
    m_table = qobject_cast<LogTableViewItem *>(table);
    if (m_table) {
        LogTableView *view = m_table->tableView();
        connect(CellSelection::of(view), &CellSelection::changed, this, &CutCell::update);
        connect(view->horizontalHeader(), &QHeaderView::sectionResized, this, &CutCell::update);
        connect(m_table->fitter(), &TableFitter::fitted, this, &CutCell::update);
        connect(view->horizontalScrollBar(), &QScrollBar::valueChanged, this, &CutCell::update);
        connect(view->verticalScrollBar(), &QScrollBar::valueChanged, this, &CutCell::update);
        // The view has its size after the item has.
        connect(m_table.data(), &QQuickItem::heightChanged, this, &CutCell::update,
                Qt::QueuedConnection);
        connect(m_table.data(), &QQuickItem::widthChanged, this, &CutCell::update,
                Qt::QueuedConnection);
    }
    update();
    emit tableChanged();
}

QModelIndex CutCell::currentCell() const
{
    if (!m_table)
        return QModelIndex();
    const LogTableView *view = m_table->tableView();
    const CellRange range = CellSelection::of(m_table->tableView())->range();
    return range.isValid() && range.rowCount() == 1 && range.column == range.anchorColumn
        ? view->model()->index(range.row, range.column)
        : QModelIndex();
}

/** Texts go on in as many lines as the row is high; a wide cell may reach out of the table. */
bool CutCell::isCut(const QModelIndex &index) const
{
    const LogTableView *view = m_table->tableView();
    QStyleOptionViewItem option;
    option.initFrom(view);
    option.index = index;
    option.rect = view->visualRect(index);
    option.text = index.data().toString();
    option.features = QStyleOptionViewItem::HasDisplay;
    const QRect area = view->style()
                           ->subElementRect(QStyle::SE_ItemViewItemText, &option, view)
                           .adjusted(textMargin(view), 0, -textMargin(view), 0);
    const QSize needed
        = option.fontMetrics.boundingRect(area, Qt::TextWordWrap, option.text).size();
    const int seen = (area & view->viewport()->rect()).width();
    return needed.width() > seen || needed.height() > option.rect.height();
}

void CutCell::update()
{
    QString text;
    QRectF area;
    const QModelIndex index = currentCell();
    if (index.isValid()) {
        const QWidget *viewport = m_table->tableView()->viewport();
        const QRect seen = m_table->tableView()->visualRect(index) & viewport->rect();
        if (!seen.isEmpty() && isCut(index))
            text = index.data().toString();
        area = QRectF(viewport->mapTo(viewport->window(), seen.topLeft()), seen.size());
    }
    if (text == m_text && (area == m_area || text.isEmpty()))
        return;
    m_text = text;
    m_area = area;
    emit changed();
}

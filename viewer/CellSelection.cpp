#include "viewer/CellSelection.h"

#include <QAccessible>
#include <QHeaderView>
#include <QMouseEvent>
#include <QScrollBar>

CellSelection::CellSelection(QTableView *view)
    : QObject(view)
    , m_view(view)
    , m_hasCheckBoxes(false)
    , m_isExtending(false)
    , m_isDragged(false)
{
    view->viewport()->installEventFilter(this);
    view->verticalHeader()->viewport()->installEventFilter(this);
}

CellSelection *CellSelection::of(QTableView *view)
{
    auto *selection = view->findChild<CellSelection *>(QString(), Qt::FindDirectChildrenOnly);
    return selection ? selection : new CellSelection(view);
}

CellRange CellSelection::range() const
{
    return m_model && m_model == m_view->model() ? m_range : CellRange();
}

bool CellSelection::contains(const QModelIndex &index) const
{
    return isSelectable(index.column()) && range().contains(index.row(), index.column());
}

bool CellSelection::isSelectable(int column) const
{
    return column >= (m_hasCheckBoxes ? 1 : 0);
}

QVector<int> CellSelection::columns() const
{
    QVector<int> columns;
    const int count = m_view->model() ? m_view->model()->columnCount() : 0;
    for (int column = m_hasCheckBoxes ? 1 : 0; column < count; ++column) {
        if (!m_view->isColumnHidden(column))
            columns.append(column);
    }
    return columns;
}

void CellSelection::followModel()
{
    QAbstractItemModel *model = m_view->model();
    if (model == m_model)
        return;
    if (m_model)
        m_model->disconnect(this);
    m_model = model;
    if (!model)
        return;
    connect(model, &QAbstractItemModel::modelReset, this, &CellSelection::clear);
    connect(model, &QAbstractItemModel::layoutChanged, this, &CellSelection::clear);
    connect(model, &QAbstractItemModel::rowsInserted, this, &CellSelection::clear);
    connect(model, &QAbstractItemModel::rowsRemoved, this, &CellSelection::clear);
}

void CellSelection::set(const CellRange &range)
{
    followModel();
    m_range = range;
    m_view->viewport()->update();
    tellCurrent();
    emit changed();
}

/** To screen readers, which hear of it from a view only where its cells can be current. */
void CellSelection::tellCurrent() const
{
    if (!QAccessible::isActive() || !m_range.isValid() || !m_view->hasFocus())
        return;
    QAccessibleInterface *told = QAccessible::queryAccessibleInterface(m_view);
    QAccessibleTableInterface *table = told ? told->tableInterface() : nullptr;
    QAccessibleInterface *cell = table ? table->cellAt(m_range.row, m_range.column) : nullptr;
    if (!cell)
        return;
    QAccessibleEvent event(cell, QAccessible::Focus);
    QAccessible::updateAccessibility(&event);
}

void CellSelection::clear()
{
    set(CellRange());
}

void CellSelection::select(int row, int column)
{
    CellRange range;
    range.anchorRow = range.row = row;
    range.anchorColumn = range.column = column;
    set(range);
}

void CellSelection::extendTo(int row, int column)
{
    CellRange extended = range();
    if (!extended.isValid())
        return select(row, column);
    extended.row = row;
    extended.column = column;
    set(extended);
}

void CellSelection::selectRow(int row, bool isExtended)
{
    const QVector<int> all = columns();
    if (row < 0 || all.isEmpty())
        return;
    CellRange rows = range();
    if (!isExtended || !rows.isValid())
        rows.anchorRow = row;
    rows.row = row;
    rows.anchorColumn = all.first();
    rows.column = all.last();
    set(rows);
}

void CellSelection::selectAll()
{
    const int rows = m_view->model() ? m_view->model()->rowCount() : 0;
    if (rows == 0)
        return;
    selectRow(0);
    selectRow(rows - 1, true);
}

void CellSelection::move(int rows, int columns, bool isExtended)
{
    const QVector<int> all = this->columns();
    const int rowCount = m_view->model() ? m_view->model()->rowCount() : 0;
    if (all.isEmpty() || rowCount == 0)
        return;
    const CellRange now = range();
    int row = qMax(0, m_view->rowAt(1));
    int column = all.first();
    if (now.isValid()) {
        const qint64 target = qint64(now.row) + rows; // "to the end" is further than any
        row = int(qBound(qint64(0), target, qint64(rowCount - 1)));
        const int place = qMax(0, all.indexOf(now.column));
        column = all.at(int(qBound(qint64(0), qint64(place) + columns, qint64(all.size() - 1))));
    }
    if (isExtended)
        extendTo(row, column);
    else
        select(row, column);
    showCurrent();
}

void CellSelection::showCurrent(bool isCentred)
{
    const CellRange now = range();
    if (!now.isValid())
        return;
    const QModelIndex index = m_view->model()->index(now.row, now.column);
    m_view->scrollTo(
        index, isCentred ? QAbstractItemView::PositionAtCenter : QAbstractItemView::EnsureVisible);
}

// Pointers

void CellSelection::pressCell(const QPoint &position, bool isExtended)
{
    const QModelIndex index = m_view->indexAt(position);
    m_isDragged = index.isValid() && isSelectable(index.column());
    if (!m_isDragged)
        return;
    if (isExtended || m_isExtending)
        extendTo(index.row(), index.column());
    else
        select(index.row(), index.column());
}

/** Beyond the edge, the cell there is taken and the table scrolls on. */
void CellSelection::dragCell(const QPoint &position)
{
    const QRect area = m_view->viewport()->rect();
    const QPoint inside(qBound(area.left(), position.x(), area.right()),
                        qBound(area.top(), position.y(), area.bottom()));
    const QModelIndex index = m_view->indexAt(inside);
    if (!index.isValid() || !isSelectable(index.column()))
        return;
    extendTo(index.row(), index.column());
    if (position != inside)
        showCurrent();
}

/** A finger drags the rows along; of it the table hears taps alone, as those of a mouse. */
bool CellSelection::eventFilter(QObject *watched, QEvent *event)
{
    // Others come while the view is destroyed, when it is none any more.
    if (event->type() < QEvent::MouseButtonPress || event->type() > QEvent::MouseMove)
        return false;
    if (watched == m_view->verticalHeader()->viewport())
        return numbersEvent(event);
    if (event->type() != QEvent::MouseButtonPress && event->type() != QEvent::MouseMove
        && event->type() != QEvent::MouseButtonRelease)
        return false;
    const auto *mouse = static_cast<QMouseEvent *>(event);
    if (mouse->source() != Qt::MouseEventNotSynthesized)
        return false;
    if (event->type() == QEvent::MouseButtonPress && mouse->button() == Qt::LeftButton)
        pressCell(mouse->pos(), mouse->modifiers() & Qt::ShiftModifier);
    else if (event->type() == QEvent::MouseMove && m_isDragged && mouse->buttons() & Qt::LeftButton)
        dragCell(mouse->pos());
    else if (event->type() == QEvent::MouseButtonRelease)
        m_isDragged = false;
    return false;
}

bool CellSelection::numbersEvent(QEvent *event)
{
    const bool isPress = event->type() == QEvent::MouseButtonPress;
    if (!isPress && event->type() != QEvent::MouseMove)
        return false;
    const auto *mouse = static_cast<QMouseEvent *>(event);
    if (!(mouse->buttons() & Qt::LeftButton))
        return false;
    const bool isExtended = !isPress || m_isExtending || mouse->modifiers() & Qt::ShiftModifier;
    selectRow(m_view->rowAt(mouse->pos().y()), isExtended);
    return true;
}

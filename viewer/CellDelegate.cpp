#include "viewer/CellDelegate.h"

#include "viewer/CellSelection.h"

#include <QPainter>

namespace
{

// Lies over a cell of any colour, its text still to be read.
const QColor kSelected(46, 134, 222, 80);
const QColor kCurrent(46, 134, 222);

} // namespace

CellDelegate::CellDelegate(int rowHeight, QTableView *view)
    : TouchDelegate(rowHeight, view)
    , m_view(view)
{
}

void CellDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    TouchDelegate::initStyleOption(option, index);
    bool isNumber = false;
    option->text.toDouble(&isNumber);
    if (isNumber)
        option->displayAlignment = Qt::AlignRight | Qt::AlignVCenter;
}

void CellDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                         const QModelIndex &index) const
{
    TouchDelegate::paint(painter, option, index);
    const CellSelection *selection = CellSelection::of(m_view);
    if (!selection->contains(index))
        return;
    painter->fillRect(option.rect, kSelected);
    const CellRange range = selection->range();
    if (index.row() != range.row || index.column() != range.column)
        return;
    painter->save();
    painter->setPen(QPen(kCurrent, 2));
    painter->drawRect(option.rect.adjusted(1, 1, -1, -1));
    painter->restore();
}

#include "viewer/RemovableDelegate.h"

#include <QMouseEvent>
#include <QPainter>

namespace
{

const int kArm = 5; // of the cross
const QColor kColor(0x7B, 0x87, 0x94);

} // namespace

RemovableDelegate::RemovableDelegate(int rowHeight, QObject *parent)
    : TouchDelegate(rowHeight, parent)
    , m_crossWidth(rowHeight)
{
}

QRect RemovableDelegate::crossArea(const QRect &row) const
{
    return QRect(row.right() - m_crossWidth + 1, row.top(), m_crossWidth, row.height());
}

void RemovableDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const
{
    TouchDelegate::paint(painter, option, index);
    const QPointF center = QRectF(crossArea(option.rect)).center();
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(kColor, 1.5, Qt::SolidLine, Qt::RoundCap));
    painter->drawLine(center - QPointF(kArm, kArm), center + QPointF(kArm, kArm));
    painter->drawLine(center - QPointF(kArm, -kArm), center + QPointF(kArm, -kArm));
    painter->restore();
}

/** Only a tap that starts and ends on the cross removes; one that just ends there does nothing. */
bool RemovableDelegate::editorEvent(QEvent *event, QAbstractItemModel *model,
                                    const QStyleOptionViewItem &option, const QModelIndex &index)
{
    const QEvent::Type type = event->type();
    if (type != QEvent::MouseButtonPress && type != QEvent::MouseButtonRelease
        && type != QEvent::MouseButtonDblClick)
        return TouchDelegate::editorEvent(event, model, option, index);
    const auto *mouse = static_cast<QMouseEvent *>(event);
    const bool isOnCross
        = mouse->button() == Qt::LeftButton && crossArea(option.rect).contains(mouse->pos());
    const bool wasOnCross = m_pressedCross == index && m_pressedCross.isValid();
    if (type != QEvent::MouseButtonRelease) {
        m_pressedCross = isOnCross ? QPersistentModelIndex(index) : QPersistentModelIndex();
        return isOnCross || TouchDelegate::editorEvent(event, model, option, index);
    }
    m_pressedCross = QPersistentModelIndex();
    if (isOnCross && wasOnCross)
        emit removeRequested(index);
    return isOnCross || wasOnCross || TouchDelegate::editorEvent(event, model, option, index);
}

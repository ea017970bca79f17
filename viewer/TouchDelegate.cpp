#include "viewer/TouchDelegate.h"

#include <QMouseEvent>

TouchDelegate::TouchDelegate(int rowHeight, QObject *parent)
    : QStyledItemDelegate(parent)
    , m_rowHeight(rowHeight)
{
}

QSize TouchDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    return QSize(QStyledItemDelegate::sizeHint(option, index).width(), m_rowHeight);
}

void TouchDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    if (option->widget)
        option->palette.setColor(QPalette::Text, option->widget->palette().color(QPalette::Text));
}

/** The view sends a release only to the row that was pressed. Keys stay with the base class. */
bool TouchDelegate::editorEvent(QEvent *event, QAbstractItemModel *model,
                                const QStyleOptionViewItem &option, const QModelIndex &index)
{
    const QEvent::Type type = event->type();
    if (type != QEvent::MouseButtonRelease && type != QEvent::MouseButtonDblClick
        && type != QEvent::MouseButtonPress)
        return QStyledItemDelegate::editorEvent(event, model, option, index);
    const auto *mouse = static_cast<QMouseEvent *>(event);
    const bool isTap = type == QEvent::MouseButtonRelease && mouse->button() == Qt::LeftButton;
    const Qt::ItemFlags needed = Qt::ItemIsUserCheckable | Qt::ItemIsEnabled;
    if (!isTap || (index.flags() & needed) != needed)
        return false;
    const bool isChecked = index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
    return model->setData(index, isChecked ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
}

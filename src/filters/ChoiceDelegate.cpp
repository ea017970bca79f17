#include "filters/ChoiceDelegate.h"

#include "declarative/WidgetCompat.h"

ChoiceDelegate::ChoiceDelegate(QObject *parent)
    : QStyledItemDelegate(parent)
{
}

QSize ChoiceDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const QSize hint = QStyledItemDelegate::sizeHint(option, index);
    return QSize(hint.width(), hint.height() * 3 / 2);
}

void ChoiceDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    Compat::removeCheckBox(option);
}

bool ChoiceDelegate::editorEvent(QEvent *, QAbstractItemModel *, const QStyleOptionViewItem &,
                                 const QModelIndex &)
{
    return false;
}

#ifndef DATALOG_FILTERS_CHOICEDELEGATE_H
#define DATALOG_FILTERS_CHOICEDELEGATE_H

#include <QStyledItemDelegate>

/**
 * Shows the items of a checkable list as plain choices: without their check boxes, and without a
 * way to change them, and tall enough for a finger. A tap that chooses a variable must not plot it
 * by the way.
 */
class ChoiceDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit ChoiceDelegate(QObject *parent = nullptr);

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;
    bool editorEvent(QEvent *event, QAbstractItemModel *model, const QStyleOptionViewItem &option,
                     const QModelIndex &index) override;
};

#endif

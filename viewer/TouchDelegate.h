#ifndef DATALOG_VIEWER_TOUCHDELEGATE_H
#define DATALOG_VIEWER_TOUCHDELEGATE_H

#include <QStyledItemDelegate>

/** Rows for fingers: high ones, and a tap anywhere on one ticks it. */
class TouchDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /** @param rowHeight in pixels. */
    explicit TouchDelegate(int rowHeight, QObject *parent = nullptr);

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    bool editorEvent(QEvent *event, QAbstractItemModel *model, const QStyleOptionViewItem &option,
                     const QModelIndex &index) override;

protected:
    /** Rows of models that want black text are drawn in the view's own colour. */
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;

private:
    int m_rowHeight;
};

#endif

#ifndef DATALOG_VIEWER_REMOVABLEDELEGATE_H
#define DATALOG_VIEWER_REMOVABLEDELEGATE_H

#include "viewer/TouchDelegate.h"

#include <QPersistentModelIndex>

/** Rows that have a cross at their end: a tap on it asks for the row to be removed. */
class RemovableDelegate : public TouchDelegate
{
    Q_OBJECT

public:
    /** @param rowHeight in pixels, which is also the width of the place for the cross. */
    explicit RemovableDelegate(int rowHeight, QObject *parent = nullptr);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    bool editorEvent(QEvent *event, QAbstractItemModel *model, const QStyleOptionViewItem &option,
                     const QModelIndex &index) override;

signals:
    /** The row must not go before events are handled again: the view is still at it. */
    void removeRequested(const QModelIndex &index);

private:
    QRect crossArea(const QRect &row) const;

    int m_crossWidth;
    QPersistentModelIndex m_pressedCross;
};

#endif

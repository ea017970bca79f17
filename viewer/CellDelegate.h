#ifndef DATALOG_VIEWER_CELLDELEGATE_H
#define DATALOG_VIEWER_CELLDELEGATE_H

#include "viewer/TouchDelegate.h"

class QTableView;

/** Cells of a log, which show whether they are selected, and the one that keys move. */
class CellDelegate : public TouchDelegate
{
    Q_OBJECT

public:
    CellDelegate(int rowHeight, QTableView *view);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

protected:
    /** Numbers stand with their ends in line. */
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;

private:
    QTableView *m_view;
};

#endif

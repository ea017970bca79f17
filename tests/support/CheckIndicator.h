#ifndef DATALOG_TESTS_SUPPORT_CHECKINDICATOR_H
#define DATALOG_TESTS_SUPPORT_CHECKINDICATOR_H

#include <QModelIndex>
#include <QStyleOptionViewItem>

/** Lets a style know of the check box of the cell at @p index. Qt 4's options have none. */
inline void addCheckIndicator(QStyleOptionViewItem &option, const QModelIndex &index)
{
#if QT_VERSION >= 0x050000
    option.index = index;
    option.features |= QStyleOptionViewItem::HasCheckIndicator;
#else
    Q_UNUSED(option)
    Q_UNUSED(index)
#endif
}

#endif

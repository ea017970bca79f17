#ifndef DATALOG_DECLARATIVE_WIDGETCOMPAT_H
#define DATALOG_DECLARATIVE_WIDGETCOMPAT_H

// What Qt 4 and Qt 5 name differently about widgets, under one name each.

#include <QHeaderView>
#include <QStyleOptionViewItem>

namespace Compat
{

/** How the sections of @p header get their size, for all of them. */
inline void setSectionResizeMode(QHeaderView *header, QHeaderView::ResizeMode mode)
{
#if QT_VERSION < 0x050000
    header->setResizeMode(mode);
#else
    header->setSectionResizeMode(mode);
#endif
}

/** Whether a press on a section of @p header does something. */
inline void setSectionsClickable(QHeaderView *header, bool clickable)
{
#if QT_VERSION < 0x050000
    header->setClickable(clickable);
#else
    header->setSectionsClickable(clickable);
#endif
}

/** Makes a delegate draw an item without the check box that its model gives it. */
inline void removeCheckBox(QStyleOptionViewItem *option)
{
#if QT_VERSION < 0x050000
    if (QStyleOptionViewItemV2 *item = qstyleoption_cast<QStyleOptionViewItemV2 *>(option))
        item->features &= ~QStyleOptionViewItemV2::HasCheckIndicator;
#else
    option->features &= ~QStyleOptionViewItem::HasCheckIndicator;
#endif
}

} // namespace Compat

#endif

#ifndef DATALOG_DECLARATIVE_DECLARATIVEITEM_H
#define DATALOG_DECLARATIVE_DECLARATIVEITEM_H

// QDeclarativeItem, whichever engine it comes from, and the place for graphics items inside it.
//
// A view item reads the same on both engines: it makes its widget without a parent, makes a
// QGraphicsProxyWidget on graphicsParent(this), places the proxy at (0, 0) and resizes it from its
// own widthChanged() and heightChanged().

#include <QGraphicsItem>

#if QT_VERSION < 0x050000

#include <QDeclarativeItem>

/** The graphics item to make proxies and other graphics items on: on Qt 4 the item is one itself.
 */
inline QGraphicsItem *graphicsParent(QDeclarativeItem *item)
{
    return item;
}

#else

#include "declarative/qt5/QDeclarativeItem.h"

/**
 * The graphics item to make proxies and other graphics items on: the root of a scene of the item's
 * own, made by the first call. It belongs to @p item, and what is made on it goes with it.
 */
QGraphicsItem *graphicsParent(QDeclarativeItem *item);

#endif

#endif

#ifndef DATALOG_DECLARATIVE_DECLARATIVELIST_H
#define DATALOG_DECLARATIVE_DECLARATIVELIST_H

// QDeclarativeListProperty<T>, whichever engine it comes from. The six-argument constructor
// (object, data, append, count, at, clear) and the callbacks, which take
// (QDeclarativeListProperty<T> *) and a T * or an int, are the same on both.

#include <QList>

#if QT_VERSION < 0x050000

#include <QDeclarativeListProperty>

/** A list property with the engine's own list functions over @p list, which must outlive it. */
template <class T> QDeclarativeListProperty<T> declarativeListOver(QObject *owner, QList<T *> *list)
{
    return QDeclarativeListProperty<T>(owner, *list);
}

#else

#include <QQmlListProperty>

template <class T> using QDeclarativeListProperty = QQmlListProperty<T>;

/** A list property with the engine's own list functions over @p list, which must outlive it. */
template <class T> QDeclarativeListProperty<T> declarativeListOver(QObject *owner, QList<T *> *list)
{
    return QDeclarativeListProperty<T>(owner, list);
}

#endif

#endif

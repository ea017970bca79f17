#ifndef DATALOG_VIEWER_TABEXIT_H
#define DATALOG_VIEWER_TABEXIT_H

#include <QAbstractItemView>
#include <QPointer>
#include <QQuickItem>

/** Lets Tab leave widgets that an item shows: on their own, they would keep the keyboard. */
class TabExit : public QObject
{
    Q_OBJECT

public:
    /** For @p view, which owns the object, and only once for each view. */
    static void activate(QAbstractItemView *view, QQuickItem *item);
    /** For the first of several widgets, which is left for the item before. */
    static void activateBackwards(QWidget *first, QQuickItem *item);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    TabExit(QWidget *widget, QQuickItem *item, bool isForward);

    QPointer<QQuickItem> m_item;
    bool m_isForward; // and not only backwards
};

#endif

#ifndef DATALOG_DECLARATIVE_QT5_ACCESSIBLELIST_H
#define DATALOG_DECLARATIVE_QT5_ACCESSIBLELIST_H

#include "declarative/qt5/AccessibleWidget.h"

#include <QHash>

class QListView;
class QModelIndex;

/**
 * What assistive tools see of a hosted list: its rows, each made when it is asked for. The one that
 * Qt has for lists would take the list for a window nobody is in.
 */
class AccessibleList : public AccessibleWidget
{
public:
    explicit AccessibleList(QListView *view);
    ~AccessibleList() override;

    int childCount() const override;
    QAccessibleInterface *child(int index) const override;
    int indexOfChild(const QAccessibleInterface *child) const override;
    QAccessibleInterface *childAt(int x, int y) const override;
    QAccessibleInterface *focusChild() const override;

private:
    QListView *view() const;
    QAccessibleInterface *told(const QModelIndex &index) const;

    mutable QHash<int, QAccessible::Id> m_rows;
};

#endif

#include "declarative/qt5/AccessibleList.h"

#include "declarative/qt5/AccessibleRow.h"

#include <QListView>

AccessibleList::AccessibleList(QListView *view)
    : AccessibleWidget(view, QAccessible::List)
{
}

AccessibleList::~AccessibleList()
{
    for (QAccessible::Id id : qAsConst(m_rows))
        QAccessible::deleteAccessibleInterface(id);
}

QListView *AccessibleList::view() const
{
    return static_cast<QListView *>(object());
}

int AccessibleList::childCount() const
{
    const QAbstractItemModel *model = view()->model();
    return model ? model->rowCount(view()->rootIndex()) : 0;
}

QAccessibleInterface *AccessibleList::child(int index) const
{
    const QAbstractItemModel *model = view()->model();
    return model ? told(model->index(index, view()->modelColumn(), view()->rootIndex())) : nullptr;
}

/** The interface of a row, which stays the same for as long as the row stays where it is. */
QAccessibleInterface *AccessibleList::told(const QModelIndex &index) const
{
    if (!index.isValid())
        return nullptr;
    QAccessible::Id &id = m_rows[index.row()];
    AccessibleRow *row
        = id ? static_cast<AccessibleRow *>(QAccessible::accessibleInterface(id)) : nullptr;
    if (row && row->index() == index)
        return row;
    if (row)
        QAccessible::deleteAccessibleInterface(id);
    row = new AccessibleRow(view(), index);
    id = QAccessible::registerAccessibleInterface(row);
    return row;
}

int AccessibleList::indexOfChild(const QAccessibleInterface *child) const
{
    const AccessibleRow *row = dynamic_cast<const AccessibleRow *>(child);
    return row && row->view() == view() ? row->index().row() : -1;
}

QAccessibleInterface *AccessibleList::childAt(int x, int y) const
{
    return told(view()->indexAt(view()->viewport()->mapFromGlobal(QPoint(x, y))));
}

QAccessibleInterface *AccessibleList::focusChild() const
{
    return view()->hasFocus() ? told(view()->currentIndex()) : nullptr;
}

#include "declarative/qt5/AccessibleRow.h"

#include <QListView>

AccessibleRow::AccessibleRow(QListView *view, const QModelIndex &index)
    : m_view(view)
    , m_index(index)
{
}

QWindow *AccessibleRow::window() const
{
    const QAccessibleInterface *list = parent();
    return list ? list->window() : nullptr;
}

QAccessibleInterface *AccessibleRow::parent() const
{
    return QAccessible::queryAccessibleInterface(m_view);
}

QRect AccessibleRow::rect() const
{
    if (!isValid())
        return QRect();
    const QRect inView = m_view->visualRect(m_index);
    return inView.translated(m_view->viewport()->mapToGlobal(QPoint()));
}

QString AccessibleRow::text(QAccessible::Text type) const
{
    if (type == QAccessible::Description)
        return m_index.data(Qt::AccessibleDescriptionRole).toString();
    if (type != QAccessible::Name)
        return QString();
    const QString name = m_index.data(Qt::AccessibleTextRole).toString();
    return name.isEmpty() ? m_index.data(Qt::DisplayRole).toString() : name;
}

QAccessible::State AccessibleRow::state() const
{
    QAccessible::State state;
    if (!isValid()) {
        state.invalid = true;
        return state;
    }
    const bool isSeen = m_view->viewport()->rect().intersects(m_view->visualRect(m_index));
    state.invisible = !m_view->isVisible();
    state.offscreen = !isSeen;
    state.disabled = !m_view->isEnabled() || !(m_index.flags() & Qt::ItemIsEnabled);
    state.selectable = bool(m_index.flags() & Qt::ItemIsSelectable);
    state.selected = m_view->selectionModel()->isSelected(m_index);
    state.focusable = true;
    state.focused = m_view->hasFocus() && m_view->currentIndex() == m_index;
    state.checkable = isCheckable();
    state.checked = m_index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
    state.checkStateMixed = m_index.data(Qt::CheckStateRole).toInt() == Qt::PartiallyChecked;
    return state;
}

bool AccessibleRow::isCheckable() const
{
    return m_index.data(Qt::CheckStateRole).isValid();
}

void *AccessibleRow::interface_cast(QAccessible::InterfaceType type)
{
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface *>(this)
                                                : nullptr;
}

QStringList AccessibleRow::actionNames() const
{
    const bool canBeTicked = isValid() && (m_index.flags() & Qt::ItemIsUserCheckable);
    return canBeTicked ? QStringList(toggleAction()) : QStringList();
}

void AccessibleRow::doAction(const QString &name)
{
    if (!actionNames().contains(name))
        return;
    const bool isTicked = m_index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
    m_view->model()->setData(m_index, isTicked ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
}

#include "viewer/CriteriaListStyle.h"

#include "viewer/RemovableDelegate.h"

#include <QKeyEvent>
#include <QListView>

CriteriaListStyle::CriteriaListStyle(QObject *parent)
    : ListStyle(parent)
{
}

void CriteriaListStyle::setSource(LogDataSourceItem *source)
{
    if (source == m_source)
        return;
    if (m_source)
        disconnect(m_source, nullptr, this, nullptr);
    m_source = source;
    if (m_source)
        connect(m_source.data(), &LogDataSourceItem::criteriaUpdated, this,
                &CriteriaListStyle::countChanged);
    emit sourceChanged();
    emit countChanged();
}

int CriteriaListStyle::count() const
{
    return m_source ? m_source->activeFilterModel()->rowCount() : 0;
}

TouchDelegate *CriteriaListStyle::newDelegate(QListView *view)
{
    auto *delegate = new RemovableDelegate(rowHeight(), view);
    connect(delegate, &RemovableDelegate::removeRequested, this, &CriteriaListStyle::remove);
    view->removeEventFilter(this);
    view->installEventFilter(this);
    return delegate;
}

/** The view is still at the row, so it goes when that is over, if it is still there then. */
void CriteriaListStyle::remove(const QModelIndex &index)
{
    const QPersistentModelIndex row(index);
    const auto removeRow = [this, row] {
        auto *filter = row.data(Qt::UserRole + 1).value<LogDataSetFilter *>();
        if (m_source && filter)
            m_source->removeFilter(filter);
    };
    QMetaObject::invokeMethod(this, removeRow, Qt::QueuedConnection);
}

bool CriteriaListStyle::eventFilter(QObject *watched, QEvent *event)
{
    const auto *view = qobject_cast<QListView *>(watched);
    if (!view || event->type() != QEvent::KeyPress
        || static_cast<QKeyEvent *>(event)->key() != Qt::Key_Delete)
        return false;
    if (view->currentIndex().isValid())
        remove(view->currentIndex());
    return true;
}

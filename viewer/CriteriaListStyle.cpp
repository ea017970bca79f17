#include "viewer/CriteriaListStyle.h"

#include "lists/LogDataSetFilterListItem.h"
#include "viewer/ListScrollBar.h"
#include "viewer/RemovableDelegate.h"
#include "viewer/ThemeColors.h"

#include <QKeyEvent>
#include <QListView>

namespace
{

const char kStyleSheet[]
    = "QListView { background: %surface%; border: none; color: %text%; outline: 0;"
      " font-family: 'Open Sans'; font-size: 15px }"
      "QListView::item { padding-left: 10px; border-bottom: 1px solid %line% }"
      "QListView::item:selected { background: %selected%; color: %text% }"
      "QListView::indicator { width: 24px; height: 24px }"
      "QListView::indicator:checked { image: url(:/datalog/images/checkbox_full.png) }"
      "QListView::indicator:unchecked { image: url(:/datalog/images/checkbox_empty.png) }";

} // namespace

CriteriaListStyle::CriteriaListStyle(QObject *parent)
    : ViewStyle(parent)
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

void CriteriaListStyle::apply()
{
    auto *list = qobject_cast<LogDataSetFilterListItem *>(item());
    if (!list)
        return;
    QListView *view = list->listView();
    auto *delegate = new RemovableDelegate(rowHeight(), view);
    connect(delegate, &RemovableDelegate::removeRequested, this, &CriteriaListStyle::remove);
    dress(view, ThemeColors::filled(kStyleSheet, isDark()) + ListScrollBar::styleSheet(isDark()),
          delegate);
    view->installEventFilter(this);
    view->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view->setTextElideMode(Qt::ElideRight);
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

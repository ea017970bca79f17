#include "viewer/ExcludedRows.h"

ExcludedRows::ExcludedRows(QObject *parent)
    : QObject(parent)
    , m_count(0)
{
}

void ExcludedRows::setSource(LogDataSourceItem *source)
{
    if (source == m_source)
        return;
    if (m_source)
        disconnect(m_source, nullptr, this, nullptr);
    m_source = source;
    // Whatever changes the rows computes the series, while the table's own signals may be blocked
    // when many rows change at once.
    if (m_source)
        connect(m_source.data(), &LogDataSourceItem::graphDataUpdated, this, &ExcludedRows::update);
    update();
    emit sourceChanged();
}

void ExcludedRows::clear()
{
    if (m_source)
        m_source->clearExcludedPoints();
}

void ExcludedRows::update()
{
    const bool hasRows = m_source && m_source->hasExcludedRows();
    const int count = hasRows ? m_source->tableModel()->excludeRows().count(1) : 0;
    if (count == m_count)
        return;
    m_count = count;
    emit countChanged();
}

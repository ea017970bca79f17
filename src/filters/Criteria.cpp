#include "filters/Criteria.h"

#include "filters/LogDataSetFilter.h"
#include "model/CellGrid.h"

Criteria::Criteria() { }

Criteria::~Criteria()
{
    clear();
}

void Criteria::add(LogDataSetFilter *filter)
{
    if (!filter)
        return;
    filter->setParent(nullptr);
    m_filters.append(filter);
}

void Criteria::remove(LogDataSetFilter *filter)
{
    m_filters.removeAll(filter);
    delete filter;
}

void Criteria::clear()
{
    while (!m_filters.isEmpty())
        remove(m_filters.first());
}

QStringList Criteria::applyFilters(const QString &variableName, const QStringList &values) const
{
    const QVector<LogDataSetFilter *> filters = participating(variableName);
    QStringList result = values;
    for (int i = 0; !filters.isEmpty() && i < values.size(); ++i) {
        if (!allAccept(filters, values.at(i).toFloat()))
            result[i] = QLatin1String(kGapText);
    }
    return result;
}

QVector<LogDataSetFilter *> Criteria::participating(const QString &variableName) const
{
    QVector<LogDataSetFilter *> found;
    for (int i = 0; i < m_filters.size(); ++i) {
        LogDataSetFilter *filter = m_filters.at(i);
        if (filter->active() && filter->concerns(variableName))
            found.append(filter);
    }
    return found;
}

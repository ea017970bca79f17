#include "filters/Criteria.h"

#include "filters/LogDataSetFilter.h"
#include "model/CellGrid.h"

namespace
{

bool acceptedByAll(const QVector<LogDataSetFilter *> &filters, float x)
{
    for (int i = 0; i < filters.size(); ++i) {
        if (!filters.at(i)->accepts(x))
            return false;
    }
    return true;
}

} // namespace

Criteria::Criteria() { }

Criteria::~Criteria()
{
    clear();
}

const QString &Criteria::marker()
{
    // Made on first use: other classes copy it while the library loads.
    static const QString text = QLatin1String(kGapText);
    return text;
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
        if (!acceptedByAll(filters, values.at(i).toFloat()))
            result[i] = marker();
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

// The criteria and excluded points of the data source.

#include "datasource/LogDataSourceItem.h"

#include "model/NumberText.h"

#include <QPointer>

namespace
{

/** A row of the active criteria: its text, its state, and the criterion itself. */
QStandardItem *criterionItem(LogDataSetFilter *filter)
{
    QStandardItem *item = CheckListModel::newItem(filter->toString());
    item->setData(QVariant::fromValue(filter));
    item->setCheckState(filter->active() ? Qt::Checked : Qt::Unchecked);
    return item;
}

} // namespace

void LogDataSourceItem::addFilter(LogDataSetFilter *filter)
{
    m_criteria.add(filter);
    updateActiveFilterModel();
}

void LogDataSourceItem::removeFilter(LogDataSetFilter *filter)
{
    m_criteria.remove(filter);
    updateActiveFilterModel();
}

void LogDataSourceItem::clearCriteria()
{
    m_criteria.clear();
    updateActiveFilterModel();
}

QList<QString> LogDataSourceItem::applyFilters(const QString &variableName, QList<QString> &values)
{
    return m_criteria.applyFilters(variableName, values);
}

void LogDataSourceItem::buildFilter(int variableIndex, int opIndex, const QString &stringValue)
{
    const QStringList variables = tabular().variables(m_currentDataSetIndex);
    bool isNumber = false;
    const double value = stringValue.toDouble(&isNumber);
    if (!isNumber) {
        qDebug("ERROR: LogDataSourceItem::buildFilter() - "
               "Failed to convert value from filter value.");
        return;
    }
    const bool isVariable = variableIndex >= 0 && variableIndex < variables.size();
    const bool isOperator = opIndex >= 0 && opIndex < LogDataSetFilter::operators.size();
    if (!isVariable || !isOperator) {
        qWarning("LogDataSourceItem: there is no variable %d or no operator %d; "
                 "no criterion was added.",
                 variableIndex, opIndex);
        return;
    }
    LogDataSetFilter::Builder builder;
    builder.variable(variables.at(variableIndex))
        .filterOperator(opIndex)
        .value(NumberText::toFloat(value));
    addFilter(new LogDataSetFilter(&builder, nullptr));
}

void LogDataSourceItem::updateCriteriaSelection(int index, bool checked)
{
    m_activeFilterModel.setChecked(index, checked);
}

void LogDataSourceItem::updateActiveFilterModel()
{
    // All rows are made before the first is shown: a handler of the model's signals may change the
    // criteria again, and everything with them.
    const QPointer<LogDataSourceItem> self(this);
    QList<QStandardItem *> rows;
    m_axisData.clear();
    m_criteriaNames.release();
    const QList<LogDataSetFilter *> filters = m_criteria.filters();
    for (int i = 0; i < filters.size(); ++i) {
        rows.append(criterionItem(filters.at(i)));
        m_criteriaNames.append(new PropertyWrapper(QVariant(filters.at(i)->toString())));
    }
    m_activeFilterModel.replaceRows(rows);
    if (self)
        updateData();
    if (self)
        emit criteriaUpdated();
}

void LogDataSourceItem::activeFiltersUpdated(QStandardItem *checkedItem)
{
    LogDataSetFilter *filter = checkedItem->data().value<LogDataSetFilter *>();
    if (!filter)
        return;
    filter->setActive(checkedItem->data(Qt::CheckStateRole).toInt() == Qt::Checked);
    updateActiveFilterModel();
}

void LogDataSourceItem::clearExcludedPoints()
{
    const QPointer<LogDataSourceItem> self(this);
    m_tableModel.clearExcludedRows();
    if (self)
        emit excludedPointsCleared();
}

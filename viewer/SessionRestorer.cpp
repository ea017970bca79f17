#include "viewer/SessionRestorer.h"

#include "model/LogDataSet.h"
#include "plot/LogViewerItem.h"
#include "viewer/DataSets.h"
#include "viewer/HiddenCurves.h"
#include "viewer/NameList.h"
#include "viewer/SessionKeys.h"
#include "viewer/SilentChange.h"

#include <QSignalBlocker>

#include <cmath>

namespace
{

typedef LogObservationSortFilterProxyModel Window;

bool readNumber(const QVariant &text, double *number)
{
    bool ok = false;
    *number = text.toString().toDouble(&ok);
    return ok && std::isfinite(*number);
}

} // namespace

SessionRestorer::SessionRestorer(DataSets *dataSets, LogViewerItem *view)
    : m_dataSets(dataSets)
    , m_source(dataSets->source())
    , m_view(view)
{
}

/** The variables come late, so that there are no series to compute at each step before. */
void SessionRestorer::apply(const SessionState &state)
{
    m_remarks.clear();
    const bool isDataSetShown = showDataSet(state);
    uncheckVariables(state);
    releaseScales(state.graphDefinition.value(SessionKeys::scaling()).toMap());
    setWindow(state);
    setCriteria(state);
    setGraphDefinition(state.graphDefinition);
    if (state.hasExcludedRows && isDataSetShown)
        excludeRows(state);
    checkVariables(state);
    setScales(state.graphDefinition.value(SessionKeys::scaling()).toMap());
    dress(state);
}

/** The one that is shown stays, with what the state does not tell. */
bool SessionRestorer::showDataSet(const SessionState &state)
{
    if (state.dataSet == 0)
        return true;
    const int count = m_source->parser()->tabularParser().dataSets().size();
    if (state.dataSet > count) {
        m_remarks.append(
            tr("there is no data set %1; the log has %2").arg(state.dataSet).arg(count));
        return false;
    }
    if (state.dataSet - 1 != m_dataSets->current())
        m_dataSets->show(state.dataSet - 1);
    return true;
}

void SessionRestorer::setWindow(const SessionState &state)
{
    if (state.rangeSize >= 0)
        m_source->setObservationRange(state.rangeSize);
    if (state.step > 0)
        m_source->setObservationFrequency(state.step);
    if (state.rangeType >= 0)
        m_source->setObservationFilterType(
            static_cast<Window::LogObservationSortFilterType>(state.rangeType));
}

// Criteria

void SessionRestorer::setCriteria(const SessionState &state)
{
    if (!state.hasCriteria)
        return;
    if (state.replacesCriteria && m_source->activeFilterModel()->rowCount() > 0)
        m_source->clearCriteria();
    // A criterion on a variable of another data set waits until that is shown.
    QStringList known;
    const TabularParser &log = m_source->parser()->tabularParser();
    for (int i = 0; i < log.dataSets().size(); ++i)
        known += log.variables(i);
    QStringList missing;
    for (const SessionCriterion &criterion : state.criteria) {
        if (known.contains(criterion.variable, Qt::CaseInsensitive))
            addCriterion(criterion);
        else
            missing.append(criterion.variable);
    }
    missing.removeDuplicates();
    if (!missing.isEmpty())
        m_remarks.append(
            tr("the log has no variable for its criteria on %1").arg(NameList::text(missing)));
}

void SessionRestorer::addCriterion(const SessionCriterion &criterion)
{
    LogDataSetFilter::Builder builder;
    builder.variable(criterion.variable)
        .filterOperator(criterion.operatorIndex)
        .value(criterion.value);
    auto *filter = new LogDataSetFilter(&builder, nullptr);
    filter->setActive(criterion.isActive);
    m_source->addFilter(filter);
}

// Excluded rows

void SessionRestorer::excludeRows(const SessionState &state)
{
    if (isDataSetOf(state))
        exclude(state.excludedRows);
    else if (!state.excludedRows.isEmpty())
        m_remarks.append(tr("its excluded rows belong to another log and were left out"));
}

/** Row numbers mean nothing in another log; a log that has grown since keeps its date. */
bool SessionRestorer::isDataSetOf(const SessionState &state)
{
    const LogDataSet *shown
        = m_source->parser()->tabularParser().dataSets().value(m_dataSets->current());
    return shown && (state.created.isEmpty() || shown->dataSetCreatedDate() == state.created);
}

/** Told once for all rows, for each change of the table computes the series. */
void SessionRestorer::exclude(const RowRuns &rows)
{
    LogTableViewModel *table = m_source->tableModel();
    if (table->hasExcludedRows())
        m_source->clearExcludedPoints();
    const int count = table->rowCount();
    int left = 0;
    {
        const QSignalBlocker blocker(table);
        for (const QPair<int, int> &run : rows.runs()) {
            for (int row = run.first; row <= qMin(run.second, count - 1); ++row)
                table->setData(table->index(row, 0), Qt::Checked, Qt::CheckStateRole);
            left += run.second >= count ? 1 : 0;
        }
    }
    if (left > 0)
        m_remarks.append(
            tr("some of its excluded rows lie beyond the last row, which is %1").arg(count));
    if (!table->hasExcludedRows())
        return;
    emit table->hasExcludedRowsChanged();
    emit table->dataChanged(table->index(0, 0), table->index(count - 1, 0));
}

// What is drawn, and how

void SessionRestorer::setGraphDefinition(const QVariantMap &definition)
{
    if (definition.isEmpty())
        return;
    m_source->setGraphDefinition(definition);
    setCurves(definition);
}

void SessionRestorer::setCurves(const QVariantMap &definition)
{
    for (const SessionKeys::Axis &axis : SessionKeys::axes()) {
        const QVariantMap curves = definition.value(axis.key()).toMap();
        if (curves.contains(SessionKeys::lines()))
            m_view->setLinesEnabled(axis.viewAxis, curves.value(SessionKeys::lines()).toBool());
        if (curves.contains(SessionKeys::symbols()))
            m_view->setSymbolsEnabled(axis.viewAxis, curves.value(SessionKeys::symbols()).toBool());
    }
}

/**
 * Whoever looks after the scales when other variables come must see that those that are set in the
 * end are meant for them, though they may be the same as before.
 */
void SessionRestorer::releaseScales(const QVariantMap &scaling)
{
    for (const SessionKeys::Axis &axis : SessionKeys::axes()) {
        if (scaling.contains(axis.key()))
            m_view->enableAutoScale(axis.viewAxis);
    }
}

void SessionRestorer::setScales(const QVariantMap &scaling)
{
    for (const SessionKeys::Axis &axis : SessionKeys::axes()) {
        const QVariantMap scale = scaling.value(axis.key()).toMap();
        double min = 0;
        double max = 0;
        if (scale.value(SessionKeys::autoscale()).toBool())
            m_view->enableAutoScale(axis.viewAxis);
        else if (readNumber(scale.value(SessionKeys::min()), &min)
                 && readNumber(scale.value(SessionKeys::max()), &max))
            m_view->setAxisScale(axis.viewAxis, min, max);
        else if (!scale.isEmpty())
            m_remarks.append(tr("the bounds of %1 are no numbers").arg(axis.key()));
    }
}

void SessionRestorer::uncheckVariables(const SessionState &state)
{
    for (const SessionKeys::Axis &axis : SessionKeys::axes()) {
        if (state.axes[axis.index].isTold)
            SessionVariables::check(axis.model(m_source), QList<SessionVariable>());
    }
}

void SessionRestorer::checkVariables(const SessionState &state)
{
    QStringList missing;
    for (const SessionKeys::Axis &axis : SessionKeys::axes()) {
        const SessionAxis &shown = state.axes[axis.index];
        if (shown.isTold)
            missing += SessionVariables::check(axis.model(m_source), shown.variables);
    }
    missing.removeDuplicates();
    remarkMissing(missing);
    SilentChange::computeSeries(m_source);
}

void SessionRestorer::remarkMissing(const QStringList &names)
{
    const QString dataSet = QString::number(m_dataSets->current() + 1);
    if (names.size() == 1)
        m_remarks.append(
            tr("there is no variable %1 in data set %2").arg(NameList::text(names), dataSet));
    else if (!names.isEmpty())
        m_remarks.append(
            tr("there are no variables %1 in data set %2").arg(NameList::text(names), dataSet));
}

/** The last step, for curves that are made anew forget who was hidden. */
void SessionRestorer::dress(const SessionState &state)
{
    for (const SessionKeys::Axis &axis : SessionKeys::axes()) {
        if (state.axes[axis.index].isTold && !state.axes[axis.index].colors.isEmpty())
            m_view->setVariableColors(axis.viewAxis, state.axes[axis.index].colors);
    }
    m_view->updatePlot();
    for (const SessionKeys::Axis &axis : SessionKeys::axes()) {
        if (state.axes[axis.index].isTold)
            HiddenCurves::setHidden(m_view, axis.viewAxis, state.axes[axis.index].hidden);
    }
}

#include "viewer/SessionState.h"

#include "model/LogDataSet.h"
#include "plot/LogViewerItem.h"
#include "viewer/DataSets.h"
#include "viewer/HiddenCurves.h"
#include "viewer/SessionKeys.h"

#include <qwt_plot.h>
#include <qwt_scale_div.h>

namespace
{

QList<SessionCriterion> criteria(LogDataSourceItem *source)
{
    QList<SessionCriterion> criteria;
    const QStandardItemModel *model = source->activeFilterModel();
    for (int row = 0; row < model->rowCount(); ++row) {
        const auto *filter = model->item(row)->data().value<LogDataSetFilter *>();
        criteria.append(SessionCriterion::of(*filter));
    }
    return criteria;
}

QString exactText(double number)
{
    return QString::number(number, 'g', QLocale::FloatingPointShortest);
}

/** The plot knows best: the definition has bounds of six digits, and those before autoscaling. */
QVariantMap scale(const QVariant &recorded, const QwtPlot &plot, int axis)
{
    QVariantMap scale = recorded.toMap();
    const bool isAutomatic = plot.axisAutoScale(axis);
    scale.insert(SessionKeys::autoscale(), isAutomatic);
    if (isAutomatic)
        return scale;
    scale.insert(SessionKeys::min(), exactText(plot.axisScaleDiv(axis).lowerBound()));
    scale.insert(SessionKeys::max(), exactText(plot.axisScaleDiv(axis).upperBound()));
    return scale;
}

QVariantMap curves(const QVariant &recorded, const LogViewerItem &view,
                   LogViewerItem::LogViewerAxis axis)
{
    QVariantMap curves = recorded.toMap();
    curves.insert(SessionKeys::lines(), view.linesEnabled(axis));
    curves.insert(SessionKeys::symbols(), view.symbolsEnabled(axis));
    return curves;
}

QVariantMap graphDefinition(LogDataSourceItem *source, LogViewerItem *view)
{
    QVariantMap definition = source->graphDefinition();
    QVariantMap scaling = definition.value(SessionKeys::scaling()).toMap();
    view->plot()->updateAxes(); // a scale that was just set is not computed yet
    for (const SessionKeys::Axis &axis : SessionKeys::axes()) {
        QVariant &scaled = scaling[axis.key()];
        scaled = scale(scaled, *view->plot(), axis.viewAxis);
        QVariant &drawn = definition[axis.key()];
        if (axis.viewAxis != LogViewerItem::BottomAxis)
            drawn = curves(drawn, *view, axis.viewAxis);
    }
    definition.insert(SessionKeys::scaling(), scaling);
    return definition;
}

} // namespace

SessionCriterion SessionCriterion::of(const LogDataSetFilter &filter)
{
    SessionCriterion criterion;
    criterion.variable = filter.variable();
    criterion.operatorIndex = filter.filterOperator();
    criterion.value = filter.value();
    criterion.isActive = filter.active();
    return criterion;
}

SessionState SessionState::of(DataSets *dataSets, LogViewerItem *view)
{
    LogDataSourceItem *source = dataSets->source();
    SessionState state;
    state.dataSet = dataSets->current() + 1;
    const QList<LogDataSet *> all = source->parser()->tabularParser().dataSets();
    if (state.dataSet > 0 && state.dataSet <= all.size())
        state.created = all.at(dataSets->current())->dataSetCreatedDate();
    for (const SessionKeys::Axis &axis : SessionKeys::axes()) {
        SessionAxis &shown = state.axes[axis.index];
        shown.isTold = true;
        shown.variables = SessionVariables::checked(*axis.model(source));
        shown.colors = view->variableColors(axis.viewAxis);
        shown.hidden = HiddenCurves::names(*view->plot(), axis.viewAxis);
    }
    // Of several horizontal variables the first one counts.
    state.axes[X].variables = state.axes[X].variables.mid(0, 1);
    state.axes[X].hidden.clear();
    state.graphDefinition = ::graphDefinition(source, view);
    state.hasCriteria = true;
    state.criteria = ::criteria(source);
    state.rangeType = source->observationFilterType();
    state.rangeSize = qMax(0, source->observationRange());
    state.step = qMax(1, qAbs(source->observationFrequency()));
    state.hasExcludedRows = true;
    if (source->hasExcludedRows())
        state.excludedRows = RowRuns::ofFlags(source->tableModel()->excludeRows());
    return state;
}

#include "viewer/XmlDefinition.h"

#include "datasource/LogDataSourceItem.h"
#include "graphdef/LogDataDefinitionReader.h"
#include "graphdef/LogDataDefinitionWriter.h"
#include "viewer/NameList.h"
#include "viewer/SessionKeys.h"

#include <QFile>
#include <QTemporaryDir>

namespace
{

SessionAxis axisOf(const QStringList &names)
{
    SessionAxis axis;
    axis.isTold = true;
    QHash<QString, int> occurrences;
    for (const QString &name : names) {
        SessionVariable variable;
        variable.name = name;
        variable.occurrence = ++occurrences[name];
        axis.variables.append(variable);
    }
    return axis;
}

/** Takes the criteria over from the reader. */
QList<SessionCriterion> takeCriteria(const LogDataDefinitionReader &reader)
{
    QList<SessionCriterion> criteria;
    const QList<LogDataSetFilter *> filters = reader.criteria();
    for (LogDataSetFilter *filter : filters) {
        criteria.append(SessionCriterion::of(*filter));
        delete filter;
    }
    return criteria;
}

bool isOperator(int index)
{
    return index >= 0 && index < LogDataSetFilter::operators.size();
}

QString textOf(const SessionCriterion &criterion)
{
    return criterion.variable + LogDataSetFilter::operators.value(criterion.operatorIndex)
        + QString::number(double(criterion.value));
}

bool isCut(float value)
{
    return value == value && QString::number(double(value)).toFloat() != value;
}

bool hasFixedScale(const QVariantMap &definition)
{
    const QVariantMap scaling = definition.value(SessionKeys::scaling()).toMap();
    for (const QVariant &scale : scaling) {
        if (!scale.toMap().value(SessionKeys::autoscale()).toBool())
            return true;
    }
    return false;
}

/** Lines without symbols is how a viewer starts. */
bool hasOtherStyle(const QVariantMap &definition)
{
    for (const char *axis : {"yleft", "yright"}) {
        const QVariantMap curves = definition.value(QLatin1String(axis)).toMap();
        if (!curves.value(SessionKeys::lines()).toBool()
            || curves.value(SessionKeys::symbols()).toBool())
            return true;
    }
    return false;
}

} // namespace

bool XmlDefinition::read(const QString &path, SessionState *state)
{
    m_errorText.clear();
    *state = SessionState();
    return parse(path, state);
}

bool XmlDefinition::parse(const QString &path, SessionState *state)
{
    LogDataDefinitionReader reader;
    const bool isRead = reader.readGraphDefinition(path);
    state->replacesCriteria = false;
    state->hasCriteria = true;
    state->criteria = takeCriteria(reader);
    // None named may also mean none known; then what is shown is better than nothing.
    state->axes[SessionState::X]
        = axisOf(reader.xVar().isEmpty() ? QStringList() : QStringList(reader.xVar()));
    state->axes[SessionState::X].isTold = !reader.xVar().isEmpty();
    state->axes[SessionState::Left] = axisOf(reader.yLeftVars());
    state->axes[SessionState::Right] = axisOf(reader.yRightVars());
    if (!isRead)
        m_errorText = reader.errorMessage();
    else if (state->criteria.size() > SessionState::MostCriteria)
        m_errorText = tr("it has more than %1 criteria").arg(SessionState::MostCriteria);
    for (const SessionCriterion &criterion : qAsConst(state->criteria)) {
        if (m_errorText.isEmpty() && !isOperator(criterion.operatorIndex))
            m_errorText = tr("there is no operator %1").arg(criterion.operatorIndex);
    }
    return m_errorText.isEmpty();
}

/** The writer does not tell whether it could write, so what it wrote is read. */
QByteArray XmlDefinition::text(LogDataSourceItem *source)
{
    m_errorText.clear();
    const QTemporaryDir directory;
    QFile file(directory.filePath(QStringLiteral("definition.xml")));
    LogDataDefinitionWriter().writeDataSource(source, file.fileName());
    if (!parse(file.fileName(), &m_written) || !file.open(QIODevice::ReadOnly)) {
        m_errorText = tr("XML can't hold it: %1").arg(m_errorText);
        return QByteArray();
    }
    return file.readAll();
}

// Losses

QStringList XmlDefinition::losses(const SessionState &state) const
{
    QStringList losses;
    if (!areVariablesKept(state))
        losses.append(tr("which variables were meant, where names are alike or hold characters "
                         "that XML has no place for"));
    losses += criteriaLosses(state.criteria);
    if (state.dataSet > 1)
        losses.append(tr("the data set"));
    if (state.rangeType > 0 || state.step > 1)
        losses.append(tr("the range of rows"));
    if (!state.excludedRows.isEmpty())
        losses.append(tr("the excluded rows"));
    if (hasOtherStyle(state.graphDefinition))
        losses.append(tr("lines and symbols"));
    if (hasFixedScale(state.graphDefinition))
        losses.append(tr("the fixed scales"));
    return losses;
}

bool XmlDefinition::areVariablesKept(const SessionState &state) const
{
    for (int axis = 0; axis < SessionState::AxisCount; ++axis) {
        if (!(state.axes[axis].variables == m_written.axes[axis].variables))
            return false;
    }
    for (int i = 0; i < state.criteria.size(); ++i) {
        if (state.criteria.at(i).variable != m_written.criteria.value(i).variable)
            return false;
    }
    return true;
}

QStringList XmlDefinition::criteriaLosses(const QList<SessionCriterion> &criteria)
{
    QStringList operators;
    QStringList values;
    QStringList inactive;
    for (const SessionCriterion &criterion : criteria) {
        if (criterion.operatorIndex != LogDataSetFilter::GreaterThan)
            operators.append(textOf(criterion));
        if (isCut(criterion.value))
            values.append(textOf(criterion));
        if (!criterion.isActive)
            inactive.append(textOf(criterion));
    }
    QStringList losses;
    if (!operators.isEmpty())
        losses.append(
            tr("the operator of %1, which reads back as >").arg(NameList::text(operators)));
    if (!values.isEmpty())
        losses.append(tr("digits beyond the sixth of %1").arg(NameList::text(values)));
    if (!inactive.isEmpty())
        losses.append(tr("that %1 is off").arg(NameList::text(inactive)));
    return losses;
}

bool XmlDefinition::isEmpty(const SessionState &state)
{
    for (const SessionAxis &axis : state.axes) {
        if (!axis.variables.isEmpty())
            return false;
    }
    return state.criteria.isEmpty();
}

QStringList XmlDefinition::doubts(const SessionState &state)
{
    QStringList criteria;
    for (const SessionCriterion &criterion : state.criteria) {
        if (criterion.operatorIndex == LogDataSetFilter::GreaterThan)
            criteria.append(textOf(criterion));
    }
    if (criteria.isEmpty())
        return criteria;
    return {tr("XML does not keep operators: these criteria read as %1, whatever they were; "
               "check them")
                .arg(NameList::text(criteria))};
}

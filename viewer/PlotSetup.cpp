#include "viewer/PlotSetup.h"

#include "plot/LogViewerItem.h"
#include "viewer/DefaultVariables.h"
#include "viewer/DefinitionFile.h"
#include "viewer/FailureText.h"
#include "viewer/NameSuggestions.h"
#include "viewer/SessionKeys.h"

namespace
{

const int kMostNamesTold = 5;

QVariantMap withoutVariable(const QVariant &axis)
{
    QVariantMap map = axis.toMap();
    map.remove(QStringLiteral("variable"));
    return map;
}

void dropStyle(QVariantMap *definition)
{
    for (const SessionKeys::Axis &axis : SessionKeys::axes()) {
        QVariantMap curves = definition->value(axis.key()).toMap();
        curves.remove(SessionKeys::lines());
        curves.remove(SessionKeys::symbols());
        definition->insert(axis.key(), curves);
    }
}

} // namespace

PlotSetup::PlotSetup(const ViewerOptions &options, QObject *parent)
    : QObject(parent)
    , m_options(options)
    , m_isApplied(false)
{
}

bool PlotSetup::apply(DataSets *dataSets, LogViewerItem *view)
{
    if (!m_isApplied)
        return applyOptions(dataSets, view);
    dataSets->show(0);
    const TabularParser &log = dataSets->source()->parser()->tabularParser();
    DefaultVariables(log, 0).choice().applyTo(dataSets->source());
    return true;
}

bool PlotSetup::applyOptions(DataSets *dataSets, LogViewerItem *view)
{
    LogDataSourceItem *source = dataSets->source();
    const TabularParser &log = source->parser()->tabularParser();
    DefinitionFile file(m_options.definition);
    SessionState definition;
    const bool hasDefinition = readDefinition(&file, &definition);
    const int dataSet = dataSetOf(definition, log.dataSets().size()) - 1;
    const QStringList names = log.variables(dataSet);
    const QString text = problem(log.dataSets().size(), dataSet + 1, names);
    if (!text.isEmpty()) {
        emit usageError(text);
        return false;
    }
    m_isApplied = true;
    dataSets->show(dataSet);
    setWindow(source);
    setStyle(view);
    addCriteria(source, names);
    choice(log, dataSet).applyTo(source);
    if (hasDefinition)
        applyDefinition(&file, definition, dataSets, view);
    if (!m_options.savedDefinition.isEmpty())
        saveDefinition(dataSets, view);
    return true;
}

// Definitions

bool PlotSetup::readDefinition(DefinitionFile *file, SessionState *state)
{
    if (m_options.definition.isEmpty())
        return false;
    if (!file->read(state)) {
        emit failed(file->errorText());
        *state = SessionState();
        return false;
    }
    dropWhatIsGiven(state);
    return true;
}

/** What is written on the command line is what is meant. */
void PlotSetup::dropWhatIsGiven(SessionState *state)
{
    if (m_options.isGiven("data-set") && m_options.dataSet != state->dataSet)
        dropDataSet(state);
    for (const SessionKeys::Axis &axis : SessionKeys::axes()) {
        if (m_options.isGiven(axis.shortName)) {
            state->axes[axis.index] = SessionAxis();
            state->graphDefinition.insert(
                axis.key(), withoutVariable(state->graphDefinition.value(axis.key())));
        }
    }
    if (m_options.isGiven("criterion"))
        state->hasCriteria = false;
    if (m_options.isGiven("range")) {
        state->rangeType = -1;
        state->rangeSize = -1;
    }
    if (m_options.isGiven("every"))
        state->step = 0;
    if (m_options.isGiven("style"))
        dropStyle(&state->graphDefinition);
}

void PlotSetup::dropDataSet(SessionState *state)
{
    if (!state->excludedRows.isEmpty())
        emit remarked(FailureText::ofRemark(
            m_options.definition,
            tr("its excluded rows are of data set %1 and were left out").arg(state->dataSet)));
    state->dataSet = 0;
    state->hasExcludedRows = false;
}

void PlotSetup::applyDefinition(DefinitionFile *file, const SessionState &state, DataSets *dataSets,
                                LogViewerItem *view)
{
    file->apply(state, dataSets, view);
    const QStringList remarks = file->remarks();
    for (const QString &remark : remarks)
        emit remarked(remark);
}

void PlotSetup::saveDefinition(DataSets *dataSets, LogViewerItem *view)
{
    DefinitionFile file(m_options.savedDefinition);
    if (!file.write(dataSets, view))
        emit failed(file.errorText());
    const QStringList remarks = file.remarks();
    for (const QString &remark : remarks)
        emit remarked(remark);
}

/** Counted from 1. */
int PlotSetup::dataSetOf(const SessionState &definition, int count) const
{
    const bool isInLog = definition.dataSet > 0 && definition.dataSet <= count;
    return isInLog ? definition.dataSet : m_options.dataSet;
}

// The options

/** What the log does not have, said so that a user can mend it; empty when it has all. */
QString PlotSetup::problem(int dataSets, int dataSet, const QStringList &names) const
{
    if (dataSet > dataSets && dataSets > 0)
        return tr("there is no data set %1; the log has %2").arg(dataSet).arg(dataSets);
    return unknownVariable(dataSet, names);
}

QString PlotSetup::unknownVariable(int dataSet, const QStringList &names) const
{
    QStringList asked = m_options.left + m_options.right;
    if (!m_options.x.isEmpty())
        asked.prepend(m_options.x);
    for (const CriterionText &criterion : m_options.criteria)
        asked.append(criterion.variable);
    for (const QString &name : qAsConst(asked)) {
        if (names.contains(name))
            continue;
        const QString text
            = tr("there is no variable \"%1\" in data set %2").arg(name).arg(dataSet);
        const QStringList near = NameSuggestions::closest(name, names);
        if (!near.isEmpty())
            return tr("%1; did you mean %2?").arg(text, NameSuggestions::joined(near));
        if (names.isEmpty())
            return text;
        const QStringList first = names.mid(0, kMostNamesTold);
        const QString more = names.size() > first.size() ? QStringLiteral(", …") : QString();
        return tr("%1; it has %2").arg(text, first.join(QStringLiteral(", ")) + more);
    }
    return QString();
}

/** What was asked for, and what suits for the rest. */
VariableChoice PlotSetup::choice(const TabularParser &log, int dataSet) const
{
    const bool isXTold = !m_options.x.isEmpty();
    const bool isYTold = !m_options.left.isEmpty() || !m_options.right.isEmpty();
    VariableChoice choice;
    if (!isXTold || !isYTold)
        choice = DefaultVariables(log, dataSet).choice();
    if (isXTold)
        choice.x = QStringList(m_options.x);
    if (isYTold) {
        choice.left = m_options.left;
        choice.right = m_options.right;
    }
    return choice;
}

void PlotSetup::setWindow(LogDataSourceItem *source) const
{
    typedef LogObservationSortFilterProxyModel Window;
    if (m_options.rangeSize > 0)
        source->setObservationRange(m_options.rangeSize);
    source->setObservationFrequency(m_options.every);
    source->setObservationFilterType(
        static_cast<Window::LogObservationSortFilterType>(m_options.range));
}

void PlotSetup::setStyle(LogViewerItem *view) const
{
    const LogViewerItem::LogViewerAxis axes[] = {LogViewerItem::LeftAxis, LogViewerItem::RightAxis};
    for (LogViewerItem::LogViewerAxis axis : axes) {
        view->setLinesEnabled(axis, m_options.style & ViewerOptions::Lines);
        view->setSymbolsEnabled(axis, m_options.style & ViewerOptions::Symbols);
    }
}

void PlotSetup::addCriteria(LogDataSourceItem *source, const QStringList &names) const
{
    for (const CriterionText &criterion : m_options.criteria)
        source->buildFilter(names.indexOf(criterion.variable), criterion.operatorIndex,
                            criterion.value);
}

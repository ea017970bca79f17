#include "viewer/PlotSetup.h"

#include "plot/LogViewerItem.h"
#include "viewer/DefaultVariables.h"
#include "viewer/NameSuggestions.h"

namespace
{

const int kMostNamesTold = 5;

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
    const int dataSet = m_options.dataSet - 1;
    const QStringList names = log.variables(dataSet);
    const QString text = problem(log.dataSets().size(), names);
    if (!text.isEmpty()) {
        emit usageError(text);
        return false;
    }
    m_isApplied = true;
    dataSets->show(dataSet);
    setWindow(source);
    setStyle(view);
    addCriteria(source, names);
    choice(DefaultVariables(log, dataSet).choice()).applyTo(source);
    return true;
}

/** What the log does not have, said so that a user can mend it; empty when it has all. */
QString PlotSetup::problem(int dataSets, const QStringList &names) const
{
    if (m_options.dataSet > dataSets && dataSets > 0)
        return tr("there is no data set %1; the log has %2").arg(m_options.dataSet).arg(dataSets);
    return unknownVariable(names);
}

QString PlotSetup::unknownVariable(const QStringList &names) const
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
            = tr("there is no variable \"%1\" in data set %2").arg(name).arg(m_options.dataSet);
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
VariableChoice PlotSetup::choice(const VariableChoice &suitable) const
{
    VariableChoice choice = suitable;
    if (!m_options.x.isEmpty())
        choice.x = QStringList(m_options.x);
    if (!m_options.left.isEmpty() || !m_options.right.isEmpty()) {
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

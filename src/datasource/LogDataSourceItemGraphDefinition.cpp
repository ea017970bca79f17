// The slots of the data source that record how the plot is set up: one call each to the definition.

#include "datasource/LogDataSourceItem.h"

#include <QPointer>

QVariantMap LogDataSourceItem::graphDefinition()
{
    return m_graphDefinition.toMap();
}

void LogDataSourceItem::setGraphDefinition(const QVariantMap &map)
{
    m_graphDefinition.assign(map);
    reloadGraphDataVariables();
}

void LogDataSourceItem::reloadGraphDataVariables()
{
    typedef void (LogDataSourceItem::*Choose)(const QString &name);
    static const struct {
        GraphDefinition::Axis axis;
        Choose chooseGroup;
        Choose chooseVariable;
    } kAxes[] = {
        {GraphDefinition::Horizontal, &LogDataSourceItem::setHorizontalGroup,
         &LogDataSourceItem::setHorizontalVariable},
        {GraphDefinition::Left, &LogDataSourceItem::setLeftGroup,
         &LogDataSourceItem::setLeftVariable},
        {GraphDefinition::Right, &LogDataSourceItem::setRightGroup,
         &LogDataSourceItem::setRightVariable},
    };
    // A handler of what the choices emit may delete this item.
    const QPointer<LogDataSourceItem> self(this);
    for (size_t i = 0; self && i < sizeof kAxes / sizeof *kAxes; ++i) {
        if (!m_graphDefinition.hasGroup(kAxes[i].axis))
            continue;
        const QString group = m_graphDefinition.group(kAxes[i].axis);
        const QString variable = m_graphDefinition.variable(kAxes[i].axis);
        if (!group.isEmpty())
            (this->*kAxes[i].chooseGroup)(group);
        if (self && !variable.isEmpty())
            (this->*kAxes[i].chooseVariable)(variable);
    }
}

void LogDataSourceItem::setHorizontalAutoscale(bool autoOn)
{
    m_graphDefinition.setAutoscale(GraphDefinition::Horizontal, autoOn);
    emit graphDefinitionChanged();
}

void LogDataSourceItem::setLeftAutoscale(bool autoOn)
{
    m_graphDefinition.setAutoscale(GraphDefinition::Left, autoOn);
    emit graphDefinitionChanged();
}

void LogDataSourceItem::setRightAutoscale(bool autoOn)
{
    m_graphDefinition.setAutoscale(GraphDefinition::Right, autoOn);
    emit graphDefinitionChanged();
}

void LogDataSourceItem::setLeftLines(bool isOn)
{
    m_graphDefinition.setLines(GraphDefinition::Left, isOn);
    emit graphDefinitionChanged();
}

void LogDataSourceItem::setRightLines(bool isOn)
{
    m_graphDefinition.setLines(GraphDefinition::Right, isOn);
    emit graphDefinitionChanged();
}

void LogDataSourceItem::setLeftSymbols(bool isOn)
{
    m_graphDefinition.setSymbols(GraphDefinition::Left, isOn);
    emit graphDefinitionChanged();
}

void LogDataSourceItem::setRightSymbols(bool isOn)
{
    m_graphDefinition.setSymbols(GraphDefinition::Right, isOn);
    emit graphDefinitionChanged();
}

void LogDataSourceItem::setHorizontalMin(const QString &min)
{
    m_graphDefinition.setMin(GraphDefinition::Horizontal, min);
    emit graphDefinitionChanged();
}

void LogDataSourceItem::setLeftMin(const QString &min)
{
    m_graphDefinition.setMin(GraphDefinition::Left, min);
    emit graphDefinitionChanged();
}

void LogDataSourceItem::setRightMin(const QString &min)
{
    m_graphDefinition.setMin(GraphDefinition::Right, min);
    emit graphDefinitionChanged();
}

void LogDataSourceItem::setHorizontalMax(const QString &max)
{
    m_graphDefinition.setMax(GraphDefinition::Horizontal, max);
    emit graphDefinitionChanged();
}

void LogDataSourceItem::setLeftMax(const QString &max)
{
    m_graphDefinition.setMax(GraphDefinition::Left, max);
    emit graphDefinitionChanged();
}

void LogDataSourceItem::setRightMax(const QString &max)
{
    m_graphDefinition.setMax(GraphDefinition::Right, max);
    emit graphDefinitionChanged();
}

void LogDataSourceItem::setHorizontalGroupVariable(const QString &group, const QString &variable)
{
    m_graphDefinition.setGroupVariable(GraphDefinition::Horizontal, group, variable);
    emit graphDefinitionChanged();
}

void LogDataSourceItem::setLeftGroupVariable(const QString &group, const QString &variable)
{
    m_graphDefinition.setGroupVariable(GraphDefinition::Left, group, variable);
    emit graphDefinitionChanged();
}

void LogDataSourceItem::setRightGroupVariable(const QString &group, const QString &variable)
{
    m_graphDefinition.setGroupVariable(GraphDefinition::Right, group, variable);
    emit graphDefinitionChanged();
}

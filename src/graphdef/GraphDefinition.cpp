#include "graphdef/GraphDefinition.h"

namespace
{

const char kScaling[] = "scaling";
const char *const kAxes[] = {"xbottom", "yleft", "yright"};
const char kAutoscale[] = "autoscale";
const char kMin[] = "min";
const char kMax[] = "max";
const char kLines[] = "lines";
const char kSymbols[] = "symbols";
const char kGroup[] = "group";
const char kVariable[] = "variable";

void take(const QVariantMap &definition, const char *key, QVariantMap &map)
{
    const QVariantMap::const_iterator found = definition.constFind(QLatin1String(key));
    if (found != definition.constEnd())
        map = found.value().toMap();
}

} // namespace

GraphDefinition::GraphDefinition() { }

QVariantMap GraphDefinition::toMap() const
{
    QVariantMap definition;
    definition.insert(QLatin1String(kScaling), m_scaling);
    for (int axis = 0; axis < AxisCount; ++axis)
        definition.insert(QLatin1String(kAxes[axis]), m_axes[axis]);
    return definition;
}

void GraphDefinition::assign(const QVariantMap &definition)
{
    take(definition, kScaling, m_scaling);
    for (int axis = 0; axis < AxisCount; ++axis)
        take(definition, kAxes[axis], m_axes[axis]);
}

void GraphDefinition::setScaling(Axis axis, const char *key, const QVariant &value)
{
    const QString name = QLatin1String(kAxes[axis]);
    QVariantMap scaling = m_scaling.value(name).toMap();
    scaling.insert(QLatin1String(key), value);
    m_scaling.insert(name, scaling);
}

void GraphDefinition::setAutoscale(Axis axis, bool on)
{
    setScaling(axis, kAutoscale, on);
}

void GraphDefinition::setMin(Axis axis, const QString &min)
{
    setScaling(axis, kMin, min);
}

void GraphDefinition::setMax(Axis axis, const QString &max)
{
    setScaling(axis, kMax, max);
}

void GraphDefinition::setCurves(Axis axis, const char *key, bool on)
{
    if (axis != Horizontal)
        m_axes[axis].insert(QLatin1String(key), on);
}

void GraphDefinition::setLines(Axis axis, bool on)
{
    setCurves(axis, kLines, on);
}

void GraphDefinition::setSymbols(Axis axis, bool on)
{
    setCurves(axis, kSymbols, on);
}

void GraphDefinition::setGroupVariable(Axis axis, const QString &group, const QString &variable)
{
    m_axes[axis].insert(QLatin1String(kGroup), group);
    m_axes[axis].insert(QLatin1String(kVariable), variable);
}

bool GraphDefinition::hasGroup(Axis axis) const
{
    return m_axes[axis].contains(QLatin1String(kGroup));
}

QString GraphDefinition::group(Axis axis) const
{
    return m_axes[axis].value(QLatin1String(kGroup)).toString();
}

QString GraphDefinition::variable(Axis axis) const
{
    return m_axes[axis].value(QLatin1String(kVariable)).toString();
}

#include "model/VariableGroupSet.h"

#include "model/Variable.h"
#include "model/VariableGroup.h"

VariableGroupSet::VariableGroupSet() { }

VariableGroupSet::~VariableGroupSet()
{
    qDeleteAll(m_groups);
    qDeleteAll(m_variables);
}

VariableGroup *VariableGroupSet::addGroup(const QString &name)
{
    VariableGroup *&group = m_groups[name];
    if (!group) {
        group = new VariableGroup;
        group->setOption(name);
        group->setValue(name);
    }
    return group;
}

Variable *VariableGroupSet::addVariable(const QString &groupName, const QString &variableName)
{
    Variable *variable = new Variable;
    m_variables.append(variable);
    variable->setOption(variableName);
    variable->setValue(variableName);
    addGroup(groupName)->appendVariable(variable);
    return variable;
}

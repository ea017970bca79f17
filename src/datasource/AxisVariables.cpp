#include "datasource/AxisVariables.h"

void AxisVariables::show(const VariableGroup &group, const QSharedPointer<VariableGroupSet> &owner)
{
    m_variables = group.variables();
    m_owner = owner;
}

int AxisVariables::indexOf(const QString &name) const
{
    for (int i = 0; i < m_variables.size(); ++i) {
        if (m_variables.at(i)->option() == name)
            return i;
    }
    return -1;
}

QDeclarativeListProperty<Variable> AxisVariables::property(QObject *object)
{
    return QDeclarativeListProperty<Variable>(object, this, &appendVariable, &variableListSize,
                                              &variableListVariableAt, &clearVariableListPtr);
}

void AxisVariables::appendVariable(QDeclarativeListProperty<Variable> *, Variable *) { }

int AxisVariables::variableListSize(QDeclarativeListProperty<Variable> *list)
{
    return static_cast<AxisVariables *>(list->data)->m_variables.size();
}

Variable *AxisVariables::variableListVariableAt(QDeclarativeListProperty<Variable> *list, int index)
{
    return static_cast<AxisVariables *>(list->data)->m_variables.value(index);
}

void AxisVariables::clearVariableListPtr(QDeclarativeListProperty<Variable> *list)
{
    static_cast<AxisVariables *>(list->data)->m_variables.clear();
}

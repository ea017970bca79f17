#ifndef DATALOG_MODEL_VARIABLEGROUP_H
#define DATALOG_MODEL_VARIABLEGROUP_H

#include "model/PropertyWrapper.h"

class Variable;

/** The variables that a log's header puts under one name. It does not own them. */
class VariableGroup : public PropertyWrapper
{
    Q_OBJECT

public:
    explicit VariableGroup(QObject *parent = nullptr);

    void appendVariable(Variable *variable) { m_variables.append(variable); }
    QList<Variable *> variables() const { return m_variables; }

private:
    QList<Variable *> m_variables;
};

#endif

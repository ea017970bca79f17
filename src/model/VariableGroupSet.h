#ifndef DATALOG_MODEL_VARIABLEGROUPSET_H
#define DATALOG_MODEL_VARIABLEGROUPSET_H

#include <QList>
#include <QMap>
#include <QString>

class Variable;
class VariableGroup;

/**
 * The groups of a data set with their variables, and the one owner of both.
 *
 * Lists that scripts see may show groups and variables of a data set that is gone already. Such a
 * list shares the set with the data set, and the set goes with the last who holds it.
 */
class VariableGroupSet
{
public:
    VariableGroupSet();
    ~VariableGroupSet();

    /** The group of that name, made when there is none. */
    VariableGroup *addGroup(const QString &name);
    /** A new variable at the end of a group, which is made when there is none. */
    Variable *addVariable(const QString &groupName, const QString &variableName);
    /** The group of that name, or null. */
    VariableGroup *group(const QString &name) const { return m_groups.value(name); }
    /** All groups, by name. */
    QList<VariableGroup *> groups() const { return m_groups.values(); }

private:
    Q_DISABLE_COPY(VariableGroupSet)
    QMap<QString, VariableGroup *> m_groups;
    QList<Variable *> m_variables;
};

#endif

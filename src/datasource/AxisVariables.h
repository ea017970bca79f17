#ifndef DATALOG_DATASOURCE_AXISVARIABLES_H
#define DATALOG_DATASOURCE_AXISVARIABLES_H

#include "declarative/DeclarativeList.h"
#include "model/Variable.h"
#include "model/VariableGroup.h"
#include "model/VariableGroupSet.h"

#include <QSharedPointer>

/**
 * The variables of the group that was chosen for an axis. They stay valid when their data set goes:
 * the list shares their owner.
 */
class AxisVariables
{
public:
    /** Shows the variables of @p group, which belongs to @p owner. */
    void show(const VariableGroup &group, const QSharedPointer<VariableGroupSet> &owner);
    /** Index of the first variable of that name, -1 when there is none. */
    int indexOf(const QString &name) const;
    /** The list as a script sees it: it can be read and cleared. @param object its property's. */
    QDeclarativeListProperty<Variable> property(QObject *object);

    static void appendVariable(QDeclarativeListProperty<Variable> *list, Variable *variable);
    static int variableListSize(QDeclarativeListProperty<Variable> *list);
    static Variable *variableListVariableAt(QDeclarativeListProperty<Variable> *list, int index);
    static void clearVariableListPtr(QDeclarativeListProperty<Variable> *list);

private:
    QList<Variable *> m_variables;
    QSharedPointer<VariableGroupSet> m_owner;
};

#endif

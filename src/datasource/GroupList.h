#ifndef DATALOG_DATASOURCE_GROUPLIST_H
#define DATALOG_DATASOURCE_GROUPLIST_H

#include "declarative/DeclarativeList.h"
#include "model/VariableGroup.h"
#include "model/VariableGroupSet.h"

#include <QPointer>
#include <QSharedPointer>

/** The groups that a script read last. They stay valid when their data set goes. */
class GroupList
{
public:
    /** Shows all groups of @p owner, which may be null. */
    void show(const QSharedPointer<VariableGroupSet> &owner);
    /** Index of the first group of that name, -1 when there is none. */
    int indexOf(const QString &name) const;
    /** The list as a script sees it: it can be read, added to and cleared; nothing is deleted. */
    QDeclarativeListProperty<VariableGroup> property(QObject *object);

    static void appendGroup(QDeclarativeListProperty<VariableGroup> *list, VariableGroup *group);
    static int groupListSize(QDeclarativeListProperty<VariableGroup> *list);
    static VariableGroup *groupListGroupAt(QDeclarativeListProperty<VariableGroup> *list,
                                           int index);
    static void clearGroupListPtr(QDeclarativeListProperty<VariableGroup> *list);

private:
    QList<QPointer<VariableGroup>> m_groups; ///< those that scripts add may go any time
    QSharedPointer<VariableGroupSet> m_owner;
};

#endif

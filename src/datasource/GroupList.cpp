#include "datasource/GroupList.h"

void GroupList::show(const QSharedPointer<VariableGroupSet> &owner)
{
    m_groups.clear();
    const QList<VariableGroup *> groups = owner ? owner->groups() : QList<VariableGroup *>();
    for (int i = 0; i < groups.size(); ++i)
        m_groups.append(groups.at(i));
    m_owner = owner;
}

int GroupList::indexOf(const QString &name) const
{
    for (int i = 0; i < m_groups.size(); ++i) {
        if (m_groups.at(i) && m_groups.at(i)->option() == name)
            return i;
    }
    return -1;
}

QDeclarativeListProperty<VariableGroup> GroupList::property(QObject *object)
{
    return QDeclarativeListProperty<VariableGroup>(object, this, &appendGroup, &groupListSize,
                                                   &groupListGroupAt, &clearGroupListPtr);
}

void GroupList::appendGroup(QDeclarativeListProperty<VariableGroup> *list, VariableGroup *group)
{
    static_cast<GroupList *>(list->data)->m_groups.append(group);
}

int GroupList::groupListSize(QDeclarativeListProperty<VariableGroup> *list)
{
    return static_cast<GroupList *>(list->data)->m_groups.size();
}

VariableGroup *GroupList::groupListGroupAt(QDeclarativeListProperty<VariableGroup> *list, int index)
{
    return static_cast<GroupList *>(list->data)->m_groups.value(index);
}

void GroupList::clearGroupListPtr(QDeclarativeListProperty<VariableGroup> *list)
{
    static_cast<GroupList *>(list->data)->m_groups.clear();
}

#include "datasource/WrapperList.h"

namespace
{

WrapperList *self(QDeclarativeListProperty<PropertyWrapper> *list)
{
    return static_cast<WrapperList *>(list->data);
}

} // namespace

WrapperList::WrapperList() { }

WrapperList::~WrapperList()
{
    qDeleteAll(m_wrappers);
}

void WrapperList::replace(const QStringList &names)
{
    qDeleteAll(m_wrappers);
    m_wrappers = PropertyWrapper::fromList<QString>(names);
}

void WrapperList::release()
{
    for (int i = 0; i < m_wrappers.size(); ++i) {
        m_wrappers.at(i)->setParent(&m_released);
        m_wrappers.at(i)->deleteLater();
    }
    m_wrappers.clear();
}

/** Empties the list; the wrappers live on for as long as it does. */
void WrapperList::drop()
{
    for (int i = 0; i < m_wrappers.size(); ++i)
        m_wrappers.at(i)->setParent(&m_released);
    m_wrappers.clear();
}

QDeclarativeListProperty<PropertyWrapper> WrapperList::property(QObject *object)
{
    return QDeclarativeListProperty<PropertyWrapper>(object, this, &appendWrapper, &wrapperListSize,
                                                     &wrapperListWrapperAt, &clearWrapperListPtr);
}

void WrapperList::appendWrapper(QDeclarativeListProperty<PropertyWrapper> *, PropertyWrapper *) { }

int WrapperList::wrapperListSize(QDeclarativeListProperty<PropertyWrapper> *list)
{
    return self(list)->m_wrappers.size();
}

PropertyWrapper *WrapperList::wrapperListWrapperAt(QDeclarativeListProperty<PropertyWrapper> *list,
                                                   int index)
{
    return self(list)->m_wrappers.value(index);
}

void WrapperList::clearWrapperListPtr(QDeclarativeListProperty<PropertyWrapper> *list)
{
    self(list)->drop();
}

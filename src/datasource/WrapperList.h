#ifndef DATALOG_DATASOURCE_WRAPPERLIST_H
#define DATALOG_DATASOURCE_WRAPPERLIST_H

#include "declarative/DeclarativeList.h"
#include "model/PropertyWrapper.h"

#include <QStringList>

/** A list of names for scripts, and the owner of the objects that stand for them. */
class WrapperList
{
public:
    WrapperList();
    ~WrapperList();

    const QList<PropertyWrapper *> &wrappers() const { return m_wrappers; }
    /** Deletes the wrappers and makes one for each name. */
    void replace(const QStringList &names);
    void append(PropertyWrapper *wrapper) { m_wrappers.append(wrapper); }
    /**
     * Empties the list. The wrappers live on until control returns to the event loop, for the
     * script that is running may hold some of them.
     */
    void release();

    /** The list as a script sees it. @param object whose property it is. */
    QDeclarativeListProperty<PropertyWrapper> property(QObject *object);

    // What a list property is made of. Scripts can't add to the list, and clearing it deletes
    // nothing.
    static void appendWrapper(QDeclarativeListProperty<PropertyWrapper> *list,
                              PropertyWrapper *wrapper);
    static int wrapperListSize(QDeclarativeListProperty<PropertyWrapper> *list);
    static PropertyWrapper *wrapperListWrapperAt(QDeclarativeListProperty<PropertyWrapper> *list,
                                                 int index);
    static void clearWrapperListPtr(QDeclarativeListProperty<PropertyWrapper> *list);

private:
    Q_DISABLE_COPY(WrapperList)
    void drop();

    QList<PropertyWrapper *> m_wrappers;
    QObject m_released; ///< parent of released wrappers: they go with the list at the latest
};

#endif

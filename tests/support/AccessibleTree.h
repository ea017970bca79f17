#ifndef DATALOG_TESTS_SUPPORT_ACCESSIBLETREE_H
#define DATALOG_TESTS_SUPPORT_ACCESSIBLETREE_H

#include <QAccessible>
#include <QObject>

/** What a screen reader walks through. For Qt 5. */
namespace AccessibleTree
{

inline QAccessibleInterface *of(QObject *object)
{
    return QAccessible::queryAccessibleInterface(object);
}

inline QString name(const QAccessibleInterface *told)
{
    return told ? told->text(QAccessible::Name) : QString();
}

inline QByteArray describe(const QAccessibleInterface *told)
{
    if (!told)
        return "nothing";
    return "role " + QByteArray::number(told->role()) + " '" + name(told).toUtf8() + '\'';
}

/** Everything within @p top, of those with many children just the first ones. */
inline QList<QAccessibleInterface *> within(const QAccessibleInterface *top, int mostChildren = 100)
{
    QList<QAccessibleInterface *> found;
    const int count = top ? qMin(top->childCount(), mostChildren) : 0;
    for (int i = 0; i < count; ++i) {
        if (QAccessibleInterface *child = top->child(i))
            found += QList<QAccessibleInterface *>() << child << within(child, mostChildren);
    }
    return found;
}

/** The first within @p top of @p role, and of @p name unless that is null; null for none. */
inline QAccessibleInterface *find(const QAccessibleInterface *top, QAccessible::Role role,
                                  const QString &wanted = QString())
{
    const QList<QAccessibleInterface *> all = within(top);
    for (QAccessibleInterface *told : all) {
        if (told->role() == role && (wanted.isNull() || name(told) == wanted))
            return told;
    }
    return nullptr;
}

/** What is wrong between @p top and its children, down to the last; empty when nothing is. */
inline QByteArray flaw(QAccessibleInterface *top, int mostChildren = 100)
{
    if (!top)
        return "nothing is told";
    const int count = qMin(top->childCount(), mostChildren);
    for (int i = 0; i < count; ++i) {
        QAccessibleInterface *child = top->child(i);
        if (!child || !child->isValid())
            return "no child " + QByteArray::number(i) + " of " + describe(top);
        if (child->parent() != top)
            return describe(child) + " in " + describe(top) + " is in " + describe(child->parent());
        if (top->indexOfChild(child) != i)
            return describe(child) + " is not child " + QByteArray::number(i);
        const QByteArray below = flaw(child, mostChildren);
        if (!below.isEmpty())
            return below;
    }
    return QByteArray();
}

/** From @p told up to the application: what is passed on the way. */
inline QList<QAccessibleInterface *> upFrom(QAccessibleInterface *told)
{
    QList<QAccessibleInterface *> way;
    for (; told && way.size() < 50; told = told->parent())
        way << told;
    return way;
}

} // namespace AccessibleTree

#endif

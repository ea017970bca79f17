#ifndef DATALOG_TESTS_RELIABILITY_SCRIPTCALL_H
#define DATALOG_TESTS_RELIABILITY_SCRIPTCALL_H

#include <QMetaMethod>
#include <QMetaProperty>

class ArgumentPool;

/** One use of an object's script interface, through the meta-object as the engine does it. */
namespace ScriptCall
{

/** The part of a class's interface that this module brings, without its engine base classes. */
struct Interface {
    explicit Interface(const QMetaObject &type);
    QList<int> methods; ///< public slots and signals
    QList<int> properties;
};

/** Calls a method with arguments from the pool; tells what was called. */
QString invoke(QObject *object, const QMetaMethod &method, ArgumentPool &pool);
/**
 * Reads a property, lists element by element, or writes it from the pool.
 * @param foreign what an object property may be set to besides null; any object or none.
 */
QString useProperty(QObject *object, const QMetaProperty &property, ArgumentPool &pool,
                    QObject *foreign);

} // namespace ScriptCall

#endif

#include "ScriptCall.h"

#include "ArgumentPool.h"

#include "datasource/LogDataSourceItem.h"
#include "model/Variable.h"
#include "model/VariableGroup.h"
#include "support/MetaMethodText.h"

namespace
{

/** Where the module's own classes start: their bases are the engine's. */
int firstOwnMethod(const QMetaObject &type)
{
    const QMetaObject *own = &type;
    while (own->superClass() && !QByteArray(own->superClass()->className()).startsWith('Q'))
        own = own->superClass();
    return own->methodOffset();
}

int firstOwnProperty(const QMetaObject &type)
{
    const QMetaObject *own = &type;
    while (own->superClass() && !QByteArray(own->superClass()->className()).startsWith('Q'))
        own = own->superClass();
    return own->propertyOffset();
}

/** Values of the types that arguments have; each lives as long as the call. */
class Arguments
{
public:
    Arguments(const QList<QByteArray> &types, ArgumentPool &pool)
    {
        m_pointers[0] = nullptr; // results are not kept
        for (int i = 0; i < types.size() && i < MaxArguments; ++i)
            m_pointers[i + 1] = make(i, types.at(i), pool);
    }
    void **pointers() { return m_pointers; }
    QString text() const { return m_texts.join(QLatin1String(",")); }

private:
    enum { MaxArguments = 4 };

    void *make(int index, const QByteArray &type, ArgumentPool &pool)
    {
        Value &value = m_values[index];
        if (type == "QString") {
            value.string = pool.string();
            m_texts << QLatin1Char('"') + value.string.left(40) + QLatin1Char('"');
            return &value.string;
        }
        if (type == "QVariantMap") {
            value.map = pool.map();
            m_texts << QLatin1String("map");
            return &value.map;
        }
        if (type == "QVariant") {
            value.variant = pool.variant();
            m_texts << value.variant.toString().left(40);
            return &value.variant;
        }
        if (type == "double") {
            value.real = pool.real();
            m_texts << QString::number(value.real);
            return &value.real;
        }
        if (type == "bool") {
            value.flag = pool.flag();
            m_texts << QLatin1String(value.flag ? "true" : "false");
            return &value.flag;
        }
        // A number, or an enumeration, which scripts may give any number.
        value.integer = pool.integer();
        m_texts << QString::number(value.integer);
        return &value.integer;
    }

    struct Value {
        QString string;
        QVariantMap map;
        QVariant variant;
        double real;
        int integer;
        bool flag;
    };
    Value m_values[MaxArguments];
    void *m_pointers[MaxArguments + 1];
    QStringList m_texts;
};

template <typename T> void readList(QObject *object, const QMetaProperty &property)
{
    QDeclarativeListProperty<T> list;
    void *arguments[] = {&list, nullptr};
    object->qt_metacall(QMetaObject::ReadProperty, property.propertyIndex(), arguments);
    const int count = list.count(&list);
    for (int i = 0; i < count; ++i) {
        T *element = list.at(&list, i);
        if (!element)
            continue;
        element->option();
        element->value();
    }
}

void read(QObject *object, const QMetaProperty &property)
{
    const QByteArray type(property.typeName());
    if (type.contains("<PropertyWrapper>"))
        readList<PropertyWrapper>(object, property);
    else if (type.contains("<VariableGroup>"))
        readList<VariableGroup>(object, property);
    else if (type.contains("<Variable>"))
        readList<Variable>(object, property);
    else
        property.read(object);
}

QVariant valueFor(const QMetaProperty &property, ArgumentPool &pool, QObject *foreign)
{
    const QByteArray type(property.typeName());
    if (type.endsWith('*')) {
        if (LogDataSourceItem *source = qobject_cast<LogDataSourceItem *>(foreign))
            return QVariant::fromValue(source);
        return QVariant::fromValue(pool.flag() ? foreign : nullptr);
    }
    if (pool.once(5))
        return pool.variant(); // of whatever type
    if (type == "QString")
        return pool.string();
    if (type == "bool")
        return pool.flag();
    return type == "QVariant" ? pool.variant() : QVariant(pool.integer());
}

} // namespace

ScriptCall::Interface::Interface(const QMetaObject &type)
{
    for (int i = firstOwnMethod(type); i < type.methodCount(); ++i) {
        if (type.method(i).access() == QMetaMethod::Public
            || type.method(i).methodType() == QMetaMethod::Signal)
            methods << i;
    }
    for (int i = firstOwnProperty(type); i < type.propertyCount(); ++i)
        properties << i;
}

QString ScriptCall::invoke(QObject *object, const QMetaMethod &method, ArgumentPool &pool)
{
    Arguments arguments(method.parameterTypes(), pool);
    const QString text = metaMethodSignature(method) + QLatin1String(" with ") + arguments.text();
    object->qt_metacall(QMetaObject::InvokeMetaMethod, method.methodIndex(), arguments.pointers());
    return text;
}

QString ScriptCall::useProperty(QObject *object, const QMetaProperty &property, ArgumentPool &pool,
                                QObject *foreign)
{
    const QString name = QLatin1String(property.name());
    if (!property.isWritable() || pool.once(3)) {
        read(object, property);
        return QLatin1String("read ") + name;
    }
    const QVariant value = valueFor(property, pool, foreign);
    property.write(object, value);
    return QLatin1String("write ") + name + QLatin1Char(' ') + value.toString().left(40);
}

#ifndef DATALOG_MODEL_PROPERTYWRAPPER_H
#define DATALOG_MODEL_PROPERTYWRAPPER_H

#include <QList>
#include <QObject>
#include <QString>
#include <QVariant>

/** A value and a text that a script reads from a list element. Writing them announces nothing. */
class PropertyWrapper : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QVariant value READ value WRITE setValue NOTIFY valueChanged)
    Q_PROPERTY(QString option READ option WRITE setOption NOTIFY optionChanged)

public:
    explicit PropertyWrapper(QObject *parent = nullptr);
    explicit PropertyWrapper(const QVariant &value, QObject *parent = nullptr);

    QVariant value() const { return m_value; }
    void setValue(const QVariant &value) { m_value = value; }
    QString option() const { return m_option; }
    void setOption(const QString &option) { m_option = option; }

    /** A wrapper for each element, in order, without a parent: they belong to the caller. */
    template <typename T> static QList<PropertyWrapper *> fromList(const QList<T> &elements)
    {
        QList<PropertyWrapper *> wrappers;
        wrappers.reserve(elements.size());
        for (int i = 0; i < elements.size(); ++i) {
            const QVariant value(elements.at(i));
            wrappers.append(new PropertyWrapper(value));
            wrappers.last()->setOption(value.toString());
        }
        return wrappers;
    }

Q_SIGNALS:
    void valueChanged();
    void optionChanged();

private:
    QVariant m_value;
    QString m_option;
};

#endif

#ifndef DATALOG_FILTERS_LOGDATASETFILTER_H
#define DATALOG_FILTERS_LOGDATASETFILTER_H

#include <QMetaType>
#include <QObject>
#include <QStringList>
#include <QVector>

/**
 * A criterion: keep a variable's values only where they compare with a number as told.
 *
 * What it tests is fixed when it is made; it can be switched on and off.
 */
class LogDataSetFilter : public QObject
{
    Q_OBJECT

public:
    enum LogDataSetFilterOperator {
        GreaterThan,
        GreaterThanOrEqual,
        LessThan,
        LessThanOrEqual,
        Equal,
        NotEqual
    };

    /** Collects what a criterion needs; its setters chain. */
    class Builder
    {
    public:
        Builder();

        Builder &variable(const QString &name);
        Builder &filterOperator(LogDataSetFilterOperator filterOperator);
        /** By position in operators, as lists and files carry it; any number may be given. */
        Builder &filterOperator(int index);
        Builder &value(float value);

        QString variable() const { return m_variable; }
        int filterOperator() const { return m_filterOperator; }
        float value() const { return m_value; }

    private:
        QString m_variable;
        int m_filterOperator;
        float m_value;
    };

    /** Texts of the operators; the position of each is its LogDataSetFilterOperator. */
    static const QStringList operators;

    /** A criterion without a variable, not active. */
    explicit LogDataSetFilter(QObject *parent = nullptr);
    /** An active criterion: who adds one expects it to take effect. A null builder gives none. */
    LogDataSetFilter(Builder *builder, QObject *parent);

    /** Display text such as Tleaf>=25.5, made once. */
    QString toString() const { return m_description; }
    bool active() const { return m_active; }
    void setActive(bool active) { m_active = active; }

    QString variable() const { return m_variable; }
    /** Position in operators; what a builder was given, so it may lie outside. */
    int filterOperator() const { return m_filterOperator; }
    /** Empty for an operator that does not exist. */
    QString operatorText() const;
    float value() const { return m_value; }

    /** Whether this criterion tests the variable of that name; case does not matter. */
    bool concerns(const QString &variableName) const;
    /**
     * Whether @p x is kept. NaN is kept by "!=" only; an operator that does not exist keeps all.
     */
    bool accepts(float x) const
    {
        switch (m_filterOperator) {
        case GreaterThan:
            return x > m_value;
        case GreaterThanOrEqual:
            return x >= m_value;
        case LessThan:
            return x < m_value;
        case LessThanOrEqual:
            return x <= m_value;
        case Equal:
            return x == m_value;
        case NotEqual:
            return x != m_value;
        default:
            return true;
        }
    }

private:
    QString m_variable;
    int m_filterOperator;
    float m_value;
    QString m_description;
    bool m_active;
};

/** Whether all of @p criteria keep @p x. */
inline bool allAccept(const QVector<LogDataSetFilter *> &criteria, float x)
{
    for (int i = 0; i < criteria.size(); ++i) {
        if (!criteria.at(i)->accepts(x))
            return false;
    }
    return true;
}

// The active criteria carry their criterion in a variant.
Q_DECLARE_METATYPE(LogDataSetFilter *)

#endif

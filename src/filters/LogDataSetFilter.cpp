#include "filters/LogDataSetFilter.h"

namespace
{

// Plain text rather than the list below, which is not there yet for a criterion that is made
// while the library loads.
const char *const kOperatorTexts[] = {">", ">=", "<", "<=", "=", "!="};
const int kOperatorCount = int(sizeof(kOperatorTexts) / sizeof(kOperatorTexts[0]));

QString textOfOperator(int index)
{
    if (index < 0 || index >= kOperatorCount)
        return QString();
    return QString::fromLatin1(kOperatorTexts[index]);
}

QStringList allOperatorTexts()
{
    QStringList texts;
    for (int i = 0; i < kOperatorCount; ++i)
        texts.append(textOfOperator(i));
    return texts;
}

} // namespace

const QStringList LogDataSetFilter::operators = allOperatorTexts();

LogDataSetFilter::Builder::Builder()
    : m_variable(QLatin1String(">"))
    , m_filterOperator(GreaterThan)
    , m_value(0)
{
}

LogDataSetFilter::Builder &LogDataSetFilter::Builder::variable(const QString &name)
{
    m_variable = name;
    return *this;
}

LogDataSetFilter::Builder &
LogDataSetFilter::Builder::filterOperator(LogDataSetFilterOperator filterOperator)
{
    m_filterOperator = filterOperator;
    return *this;
}

LogDataSetFilter::Builder &LogDataSetFilter::Builder::filterOperator(int index)
{
    m_filterOperator = index;
    return *this;
}

LogDataSetFilter::Builder &LogDataSetFilter::Builder::value(float value)
{
    m_value = value;
    return *this;
}

LogDataSetFilter::LogDataSetFilter(QObject *parent)
    : QObject(parent)
    , m_filterOperator(GreaterThan)
    , m_value(0)
    , m_active(false)
{
}

LogDataSetFilter::LogDataSetFilter(Builder *builder, QObject *parent)
    : QObject(parent)
    , m_filterOperator(GreaterThan)
    , m_value(0)
    , m_active(builder != nullptr)
{
    if (!builder)
        return;
    m_variable = builder->variable();
    m_filterOperator = builder->filterOperator();
    m_value = builder->value();
    m_description = m_variable + operatorText() + QString::fromLatin1("%1").arg(double(m_value));
}

QString LogDataSetFilter::operatorText() const
{
    return textOfOperator(m_filterOperator);
}

bool LogDataSetFilter::concerns(const QString &variableName) const
{
    return QString::compare(m_variable, variableName, Qt::CaseInsensitive) == 0;
}

#include "viewer/CriterionText.h"

#include "filters/LogDataSetFilter.h"

#include <QRegularExpression>

#include <cmath>

bool CriterionText::isNumber(const QString &text)
{
    bool ok = false;
    const double number = text.toDouble(&ok);
    // Criteria compare in single precision, where a larger number would be infinite.
    return ok && std::isfinite(static_cast<float>(number));
}

CriterionText CriterionText::read(const QString &text)
{
    static const QRegularExpression pattern(
        QStringLiteral("^\\s*(.*[^<>=!\\s])\\s*(>=|<=|==|!=|>|<|=)\\s*([^<>=!\\s]+)\\s*$"));
    const QRegularExpressionMatch match = pattern.match(text);
    if (!match.hasMatch() || !isNumber(match.captured(3)))
        return CriterionText();
    const bool isDoubled = match.captured(2) == QLatin1String("==");
    CriterionText criterion;
    criterion.variable = match.captured(1);
    criterion.operatorIndex
        = LogDataSetFilter::operators.indexOf(isDoubled ? QStringLiteral("=") : match.captured(2));
    criterion.value = match.captured(3);
    return criterion;
}

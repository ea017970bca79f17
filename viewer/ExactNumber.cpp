#include "viewer/ExactNumber.h"

#include "model/NumberText.h"

#include <QString>

#include <cmath>
#include <limits>

namespace
{

const int kMostDigits = 17;

struct NamedNumber {
    const char *name;
    float value;
};

// JSON has no numbers for these.
const NamedNumber kNamed[] = {{"inf", std::numeric_limits<float>::infinity()},
                              {"-inf", -std::numeric_limits<float>::infinity()},
                              {"nan", std::numeric_limits<float>::quiet_NaN()}};

} // namespace

QJsonValue ExactNumber::toJson(float value)
{
    for (const NamedNumber &named : kNamed) {
        if (value == named.value || (std::isnan(value) && std::isnan(named.value)))
            return QLatin1String(named.name);
    }
    for (int digits = std::numeric_limits<float>::digits10; digits < kMostDigits; ++digits) {
        const double number = QString::number(double(value), 'g', digits).toDouble();
        if (NumberText::toFloat(number) == value)
            return number;
    }
    return double(value);
}

bool ExactNumber::fromJson(const QJsonValue &json, float *value)
{
    for (const NamedNumber &named : kNamed) {
        if (json == QJsonValue(QLatin1String(named.name))) {
            *value = named.value;
            return true;
        }
    }
    const double number = json.toDouble();
    *value = NumberText::toFloat(number);
    return json.isDouble() && std::isfinite(*value);
}

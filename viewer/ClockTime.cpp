#include "viewer/ClockTime.h"

#include <QRegularExpression>

#include <cmath>

namespace
{

// Beyond this many seconds nobody reads hours any more.
const double kMostSeconds = 1e11;

QString twoDigits(qint64 number)
{
    return QStringLiteral("%1").arg(number, 2, 10, QLatin1Char('0'));
}

QString fraction(qint64 milliseconds)
{
    if (milliseconds == 0)
        return QString();
    QString digits = QStringLiteral("%1").arg(milliseconds, 3, 10, QLatin1Char('0'));
    while (digits.endsWith(QLatin1Char('0')))
        digits.chop(1);
    return QLatin1Char('.') + digits;
}

} // namespace

namespace ClockTime
{

QString text(double seconds)
{
    if (!(std::fabs(seconds) <= kMostSeconds))
        return QString::number(seconds);
    const qint64 milliseconds = std::llround(std::fabs(seconds) * 1000);
    const qint64 whole = milliseconds / 1000;
    const QString sign = seconds < 0 && milliseconds > 0 ? QStringLiteral("-") : QString();
    return sign + twoDigits(whole / 3600) + QLatin1Char(':') + twoDigits(whole / 60 % 60)
        + QLatin1Char(':') + twoDigits(whole % 60) + fraction(milliseconds % 1000);
}

double seconds(const QString &text, bool *ok)
{
    static const QRegularExpression clock(
        QStringLiteral("^(-?)([0-9]{1,6}):([0-5]?[0-9])(?::([0-5]?[0-9](?:\\.[0-9]{1,9})?))?$"));
    const QRegularExpressionMatch match = clock.match(text.trimmed());
    *ok = match.hasMatch();
    if (!*ok)
        return 0;
    const double value = match.captured(2).toInt() * 3600.0 + match.captured(3).toInt() * 60.0
        + match.captured(4).toDouble();
    return match.captured(1).isEmpty() ? value : -value;
}

} // namespace ClockTime

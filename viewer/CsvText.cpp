#include "viewer/CsvText.h"

#include "model/NumberText.h"

namespace
{

bool isBlank(QChar c)
{
    return c == QLatin1Char(' ') || c == QLatin1Char('\t');
}

bool needsQuotes(const QString &text)
{
    if (text.isEmpty())
        return false;
    if (isBlank(text.at(0)) || isBlank(text.at(text.size() - 1)))
        return true;
    for (QChar c : text) {
        if (c == QLatin1Char(',') || c == QLatin1Char('"') || c == QLatin1Char('\n')
            || c == QLatin1Char('\r'))
            return true;
    }
    return false;
}

bool isNumber(const QString &text)
{
    const QByteArray utf8 = text.toUtf8();
    bool ok = false;
    NumberText::toDouble(utf8.constData(), utf8.size(), &ok);
    return ok;
}

} // namespace

namespace CsvText
{

QString quoted(const QString &text)
{
    if (!needsQuotes(text))
        return text;
    QString inside = text;
    inside.replace(QLatin1Char('"'), QLatin1String("\"\""));
    return QLatin1Char('"') + inside + QLatin1Char('"');
}

QString harmless(const QString &text)
{
    const bool isHarmful = !text.isEmpty() && QStringLiteral("=+-@\t\r'").contains(text.at(0));
    return isHarmful ? QLatin1Char('\'') + text : text;
}

QString cell(const QString &text)
{
    const bool startsWithDigit = !text.isEmpty() && text.at(0) >= QLatin1Char('0')
        && text.at(0) <= QLatin1Char('9'); // most cells, which are never harmful
    return quoted(startsWithDigit || isNumber(text) ? text : harmless(text));
}

} // namespace CsvText

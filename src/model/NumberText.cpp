#include "model/NumberText.h"

#include "model/CellText.h"

#include <algorithm>

namespace
{

// Fewer than 16 digits always fit a double's 53 bits, and a double holds 10^22 exactly.
const int kMaxDigits = 15;
const int kMaxPower = 22;
const double kPowersOfTen[kMaxPower + 1]
    = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
       1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

inline bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

/** Walks over a run of digits, adding them to @p value; returns how many there were. */
inline int readDigits(const char *&at, const char *end, quint64 &value)
{
    const char *const start = at;
    for (; at != end && isDigit(*at) && at - start <= kMaxDigits; ++at)
        value = value * 10 + quint64(*at - '0');
    return int(at - start);
}

/** Reads an exponent such as e-05; false where there is none to be read. */
bool readExponent(const char *&at, const char *end, int &exponent)
{
    ++at;
    const bool negative = at != end && *at == '-';
    if (at != end && (*at == '-' || *at == '+'))
        ++at;
    quint64 value = 0;
    const int digits = readDigits(at, end, value);
    if (digits == 0 || digits > 4)
        return false;
    exponent = negative ? -int(value) : int(value);
    return true;
}

/** The short way for plain decimals; false where the text has to take the long one. */
bool readPlainDecimal(const char *at, const char *end, double &number)
{
    const bool negative = at != end && *at == '-';
    if (negative)
        ++at;
    quint64 mantissa = 0;
    int digits = readDigits(at, end, mantissa);
    if (digits == 0 || digits > kMaxDigits)
        return false;
    int power = 0;
    if (at != end && *at == '.') {
        ++at;
        const int fraction = readDigits(at, end, mantissa);
        digits += fraction;
        if (fraction == 0 || digits > kMaxDigits)
            return false;
        power = -fraction;
    }
    int exponent = 0;
    if (at != end && (*at == 'e' || *at == 'E') && !readExponent(at, end, exponent))
        return false;
    power += exponent;
    if (at != end || power > kMaxPower || power < -kMaxPower)
        return false;
    const double magnitude = power < 0 ? double(mantissa) / kPowersOfTen[-power]
                                       : double(mantissa) * kPowersOfTen[power];
    number = negative ? -magnitude : magnitude;
    return true;
}

/** Whether @p text is what may follow the seconds of a time: nothing, or a fraction of them. */
bool isFraction(const char *text, const char *end)
{
    if (text == end)
        return true;
    const bool separates = *text == '.' || *text == ',';
    return separates && end - text > 1 && std::all_of(text + 1, end, isDigit);
}

} // namespace

double NumberText::toDouble(const char *utf8, int size, bool *ok)
{
    double number = 0;
    if (readPlainDecimal(utf8, utf8 + size, number)) {
        *ok = true;
        return number;
    }
    return CellText(utf8, size).toString().toDouble(ok);
}

float NumberText::hugeToFloat(double number)
{
    return QString::number(number, 'g', 17).toFloat();
}

int NumberText::secondsOfDay(const QString &text)
{
    const QByteArray utf8 = text.toUtf8();
    return secondsOfDay(utf8.constData(), utf8.size());
}

int NumberText::secondsOfDay(const char *utf8, int size)
{
    const char form[] = "00:00:00";
    const int length = int(sizeof form) - 1;
    if (size < length || !isFraction(utf8 + length, utf8 + size))
        return -1;
    for (int i = 0; i < length; ++i) {
        if (form[i] == ':' ? utf8[i] != ':' : !isDigit(utf8[i]))
            return -1;
    }
    const int hour = (utf8[0] - '0') * 10 + (utf8[1] - '0');
    const int minute = (utf8[3] - '0') * 10 + (utf8[4] - '0');
    const int second = (utf8[6] - '0') * 10 + (utf8[7] - '0');
    return hour < 24 && minute < 60 && second < 60 ? (hour * 60 + minute) * 60 + second : -1;
}

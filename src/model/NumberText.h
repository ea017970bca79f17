#ifndef DATALOG_MODEL_NUMBERTEXT_H
#define DATALOG_MODEL_NUMBERTEXT_H

#include <QString>

#include <cmath>
#include <limits>

/** How cell texts become numbers: the one place where that is decided. */
namespace NumberText
{

/**
 * Reads @p size bytes of UTF-8 as QString::toDouble reads the same text: 0 and @p ok false where it
 * is no number.
 *
 * Plain decimals take a short way that is exact: digits that fit a double's 53 bits, scaled by a
 * power of ten that a double holds exactly, are rounded once, which is what a correct conversion
 * gives too (W. D. Clinger, "How to read floating point numbers accurately", 1990). All else is
 * left to QString.
 */
double toDouble(const char *utf8, int size, bool *ok);

/** As QString::toFloat, for a number beyond what a float holds: its versions differ there. */
float hugeToFloat(double number);

/** As QString::toFloat, for a number already read by toDouble. */
inline float toFloat(double number)
{
    const bool isHuge = std::fabs(number) > double(std::numeric_limits<float>::max());
    return isHuge ? hugeToFloat(number) : float(number);
}

/**
 * Seconds since midnight of a clock time of the form 23:59:10, -1 where @p text is none. A fraction
 * of a second may follow and is cut off. The form is decided here, because the time classes of the
 * two engines each take other texts for times too.
 */
int secondsOfDay(const QString &text);
/** The same for @p size bytes of UTF-8. */
int secondsOfDay(const char *utf8, int size);

} // namespace NumberText

#endif

#ifndef DATALOG_VIEWER_CLOCKTIME_H
#define DATALOG_VIEWER_CLOCKTIME_H

#include <QString>

/** Clock times as people write them. */
namespace ClockTime
{

/**
 * @p seconds since midnight, or between two times, as hh:mm:ss, with up to three digits of a
 * fraction where there is one. What lies before that midnight has a minus in front, what lies after
 * the next one counts on: 24:00:10.
 */
QString text(double seconds);
/**
 * Seconds since midnight of hh:mm:ss or hh:mm, with or without a fraction of a second. Hours may go
 * on beyond 24, and a minus may stand in front.
 */
double seconds(const QString &text, bool *ok);

} // namespace ClockTime

#endif

#ifndef DATALOG_VIEWER_EXACTNUMBER_H
#define DATALOG_VIEWER_EXACTNUMBER_H

#include <QJsonValue>

/** Numbers of single precision in JSON, written short and read back exactly. */
namespace ExactNumber
{

/** The shortest number that reads back as @p value: 25.1 rather than 25.100000381469727. */
QJsonValue toJson(float value);
/** Takes what toJson() makes, and any number that single precision reaches. */
bool fromJson(const QJsonValue &json, float *value);

} // namespace ExactNumber

#endif

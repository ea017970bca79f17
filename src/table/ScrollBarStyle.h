#ifndef DATALOG_TABLE_SCROLLBARSTYLE_H
#define DATALOG_TABLE_SCROLLBARSTYLE_H

#include <QString>

/** The style sheets of a table's scroll bars, wide enough for a finger. */
namespace ScrollBarStyle
{

QString horizontal();
QString vertical();

} // namespace ScrollBarStyle

#endif

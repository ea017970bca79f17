#ifndef DATALOG_VIEWER_NAMELIST_H
#define DATALOG_VIEWER_NAMELIST_H

#include <QStringList>

/** Names from files, as a line to a user has room for them. */
namespace NameList
{

/** Such as "Tair", "RH": the first few, in quotes and shortened, and how many more there are. */
QString text(const QStringList &names);
/** One name, in quotes and shortened. */
QString quoted(const QString &name);

} // namespace NameList

#endif

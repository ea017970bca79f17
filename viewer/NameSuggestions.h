#ifndef DATALOG_VIEWER_NAMESUGGESTIONS_H
#define DATALOG_VIEWER_NAMESUGGESTIONS_H

#include <QStringList>

/** What a user may have meant by a name that does not exist. */
namespace NameSuggestions
{

/**
 * How many letters must be put in, left out, replaced or swapped with their neighbour to turn one
 * name into the other; letter case costs nothing.
 */
int editDistance(const QString &a, const QString &b);

/**
 * Up to three of @p names that @p name is most likely a slip for, best first. Where it is the
 * beginning of some, or differs in letter case only, just these. Empty when nothing is near.
 */
QStringList closest(const QString &name, const QStringList &names);

/** "Tair", "Tair or Tset", "Tair, Tdew or Tset". */
QString joined(const QStringList &names);

} // namespace NameSuggestions

#endif

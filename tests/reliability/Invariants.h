#ifndef DATALOG_TESTS_RELIABILITY_INVARIANTS_H
#define DATALOG_TESTS_RELIABILITY_INVARIANTS_H

#include <QString>

class LogDataSourceItem;

/** What holds of a data source whatever scripts do with it. */
namespace Invariants
{

/** The first thing that does not hold; empty when all do. Not for a source that is reading. */
QString broken(LogDataSourceItem &source);

} // namespace Invariants

#endif

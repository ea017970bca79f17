#ifndef DATALOG_TESTS_PARSING_LOGCOMPARISON_H
#define DATALOG_TESTS_PARSING_LOGCOMPARISON_H

#include "ReferenceLog.h"

class TabularParser;

/** What the parser made of a log against what the plain reference made of it. */
namespace LogComparison
{

/**
 * The first accessor of the table or of one of its data sets that answers otherwise, with both
 * answers; empty when all are the same.
 */
QString difference(const TabularParser &table, const ReferenceLog &expected);

/** The same for the data set at @p index alone. */
QString difference(const TabularParser &table, int index, const ReferenceBlock &expected);

} // namespace LogComparison

#endif

#ifndef DATALOG_VIEWER_CSVTEXT_H
#define DATALOG_VIEWER_CSVTEXT_H

#include <QString>

/** How cells are written into files of comma-separated values. */
namespace CsvText
{

/**
 * @p text with quotes around it where it needs them: where it holds a comma, a quote, a line break,
 * or a blank at an end. Quotes inside are doubled.
 */
QString quoted(const QString &text);

/**
 * A text that no spreadsheet takes for a formula: one that starts with = + - @, a tab or a carriage
 * return gets an apostrophe in front. So does one that starts with an apostrophe, and thus whoever
 * reads the file gets each text back by dropping one apostrophe at its start.
 */
QString harmless(const QString &text);

/** A cell of a log, ready to be written: numbers as they stand there, all else harmless. */
QString cell(const QString &text);

} // namespace CsvText

#endif

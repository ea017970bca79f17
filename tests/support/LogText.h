#ifndef DATALOG_TESTS_SUPPORT_LOGTEXT_H
#define DATALOG_TESTS_SUPPORT_LOGTEXT_H

#include <QByteArray>

/**
 * Lines of a log from a text that a reader can see: blanks separate cells, "|" separates lines,
 * "~" stands for a cell without text.
 */
inline QByteArray logLines(const char *text, char separator = '\t')
{
    QByteArray lines(text);
    if (!lines.isEmpty())
        lines.append('\n');
    return lines.replace('~', "").replace(' ', separator).replace('|', '\n');
}

/** One block of a log. @param constants header lines, such as "Gain:A 1|Gain:B 2". */
inline QByteArray logBlock(const char *groups, const char *variables, const char *rows,
                           const char *constants = "", char separator = '\t')
{
    return "[Header]\n" + logLines("Created 2014-05-06", separator) + logLines(constants, separator)
        + "[Data]\n" + logLines(groups, separator) + logLines(variables, separator) + "units\n"
        + logLines(rows, separator);
}

#endif

#ifndef DATALOG_VIEWER_FAILURETEXT_H
#define DATALOG_VIEWER_FAILURETEXT_H

#include <QString>

class LogParser;

/** What to tell a user about a file that can't be used: one line that names it and the cause. */
namespace FailureText
{

/** @param reason what the module said. */
QString ofLog(const QString &path, const QString &reason);
/** @param parser what failed to read it. */
QString ofLog(const QString &path, const QString &reason, const LogParser &parser);
/** @param reason what is wrong with the definition in it. */
QString ofDefinition(const QString &path, const QString &reason);
/** What of a definition in a file could not be kept or applied: no failure, but a loss. */
QString ofRemark(const QString &path, const QString &text);
/** @param reason what the file said when it was written to. */
QString ofExport(const QString &path, const QString &reason);

} // namespace FailureText

#endif

#include "viewer/FailureText.h"

#include "parsing/LogParser.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace
{

QString text(const char *source)
{
    return QCoreApplication::translate("FailureText", source);
}

/** The module tells that a file did not open, but not why. */
QString openingCause(const QString &path)
{
    const QFileInfo file(path);
    if (!file.exists())
        return text(QT_TRANSLATE_NOOP("FailureText", "there is no such file"));
    if (file.isDir())
        return text(QT_TRANSLATE_NOOP("FailureText", "it is a directory"));
    if (!file.isFile())
        return text(QT_TRANSLATE_NOOP("FailureText", "it is no ordinary file"));
    if (!file.isReadable())
        return text(QT_TRANSLATE_NOOP("FailureText", "reading it is not permitted"));
    return QString();
}

QString named(const QString &path, const QString &cause)
{
    return text(QT_TRANSLATE_NOOP("FailureText", "%1: %2")).arg(path, cause.simplified());
}

} // namespace

namespace FailureText
{

QString ofLog(const QString &path, const QString &reason)
{
    const QString cause = openingCause(path);
    return named(path, cause.isEmpty() ? reason : cause);
}

QString ofLog(const QString &path, const QString &reason, const LogParser &parser)
{
    const bool isSheet = parser.logParserType() == LogParser::ExcelType;
    if (!isSheet || QFileInfo(parser.readPath()).isFile())
        return ofLog(path, reason);
    return ofLog(path,
                 text(QT_TRANSLATE_NOOP("FailureText",
                                        "the script that turns spreadsheets into text is missing "
                                        "here, or made nothing of this one")));
}

QString ofDefinition(const QString &path, const QString &reason)
{
    return ofLog(path, reason);
}

QString ofRemark(const QString &path, const QString &text)
{
    return named(path, text);
}

QString ofExport(const QString &path, const QString &reason)
{
    return named(path, text(QT_TRANSLATE_NOOP("FailureText", "can't be written: %1")).arg(reason));
}

} // namespace FailureText

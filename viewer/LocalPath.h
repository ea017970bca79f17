#ifndef DATALOG_VIEWER_LOCALPATH_H
#define DATALOG_VIEWER_LOCALPATH_H

#include <QFile>
#include <QUrl>

/** Files as dialogs and drops name them. */
namespace LocalPath
{

/**
 * Files elsewhere are not fetched: what comes for them fails like the path of a missing one. Read
 * as bytes, as an address may hold some that are no text.
 */
inline QString of(const QUrl &file)
{
    if (!file.isLocalFile())
        return file.toString();
    if (!file.host().isEmpty())
        return file.toLocalFile();
    const QByteArray path = file.path(QUrl::FullyEncoded).toLatin1();
    return QFile::decodeName(QByteArray::fromPercentEncoding(path));
}

/** The address that of() reads a path from again, whatever bytes it is made of. */
inline QUrl toUrl(const QString &path)
{
    return QUrl::fromEncoded("file://" + QFile::encodeName(path).toPercentEncoding("/"));
}

} // namespace LocalPath

#endif

#ifndef DATALOG_VIEWER_LOCALPATH_H
#define DATALOG_VIEWER_LOCALPATH_H

#include <QUrl>

/** Files as dialogs and drops name them. */
namespace LocalPath
{

/** Files elsewhere are not fetched: what comes for them fails like the path of a missing one. */
inline QString of(const QUrl &file)
{
    return file.isLocalFile() ? file.toLocalFile() : file.toString();
}

} // namespace LocalPath

#endif

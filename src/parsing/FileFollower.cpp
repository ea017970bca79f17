#include "parsing/FileFollower.h"

#include <QDir>
#include <QFileInfo>
#include <QFileSystemWatcher>
#include <QStringList>

namespace
{

/** The directory of a file, or the nearest one above it that exists. */
QString nearestDirectory(const QString &path)
{
    QFileInfo directory(QFileInfo(path).absolutePath());
    while (!directory.exists() && !directory.isRoot())
        directory = QFileInfo(directory.absolutePath());
    return directory.absoluteFilePath();
}

} // namespace

FileFollower::FileFollower(QFileSystemWatcher *watcher, QObject *parent)
    : QObject(parent)
    , m_watcher(watcher)
{
    connect(watcher, SIGNAL(directoryChanged(QString)), SLOT(checkTarget()));
}

void FileFollower::follow(const QString &path)
{
    unfollow(m_path);
    m_path = path;
    rewatch();
}

void FileFollower::unfollow(const QString &path)
{
    if (!follows(path))
        return;
    drop(m_path);
    drop(m_directory);
    m_path.clear();
    m_directory.clear();
    m_target.clear();
}

void FileFollower::rewatch()
{
    rewatchDirectory();
    drop(m_path);
    // Found out before it is watched: a file that comes just afterwards then differs from what is
    // remembered, and the directory's change tells of it.
    m_target = currentTarget();
    if (!m_target.isEmpty())
        m_watcher->addPath(m_path);
    if (!m_watcher->files().contains(m_path))
        m_target.clear();
}

void FileFollower::checkTarget()
{
    if (m_path.isEmpty())
        return;
    rewatchDirectory();
    if (currentTarget() != m_target)
        emit targetChanged(m_path);
}

QString FileFollower::currentTarget() const
{
    return QFileInfo(m_path).canonicalFilePath();
}

/** Watches the nearest directory; again when another one became the nearest meanwhile. */
void FileFollower::rewatchDirectory()
{
    QString nearest = nearestDirectory(m_path);
    while (nearest != m_directory || !m_watcher->directories().contains(nearest)) {
        drop(m_directory);
        m_directory = nearest;
        m_watcher->addPath(nearest);
        nearest = nearestDirectory(m_path);
        if (nearest == m_directory)
            return;
    }
}

void FileFollower::drop(const QString &path)
{
    if (m_watcher->files().contains(path) || m_watcher->directories().contains(path))
        m_watcher->removePath(path);
}

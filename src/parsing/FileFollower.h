#ifndef DATALOG_PARSING_FILEFOLLOWER_H
#define DATALOG_PARSING_FILEFOLLOWER_H

#include <QObject>
#include <QString>

class QFileSystemWatcher;

/**
 * Keeps a file watcher on a path, whatever file stands there.
 *
 * A watcher watches the file, not its name: when another file is renamed over it, or it is deleted
 * and made anew, the watcher stays with the old one or gives up. So the directory is watched as
 * well, or while that is missing the nearest one above it, and rewatch() moves the watch over.
 * Changes of the file itself are told by the watcher's own fileChanged().
 *
 * Not seen: a directory on the path that is renamed, and the target of a link that is deleted and
 * made anew in another directory than the link's.
 */
class FileFollower : public QObject
{
    Q_OBJECT

public:
    /** @param watcher outlives this object, which leaves alone what it did not add. */
    explicit FileFollower(QFileSystemWatcher *watcher, QObject *parent = nullptr);

    /** Follows @p path instead of the path so far. */
    void follow(const QString &path);
    /** Stops following @p path if it is the one followed. */
    void unfollow(const QString &path);
    bool follows(const QString &path) const { return !m_path.isEmpty() && m_path == path; }

    /**
     * Watches the file that stands at the path now. Done before the file is read, no change is
     * missed in between.
     */
    void rewatch();

Q_SIGNALS:
    /** The path leads to another file than at the last rewatch(), to none, or to one again. */
    void targetChanged(const QString &path);

private Q_SLOTS:
    void checkTarget();

private:
    QString currentTarget() const;
    void rewatchDirectory();
    void drop(const QString &path);

    QFileSystemWatcher *m_watcher;
    QString m_path;
    QString m_directory; ///< the watched one
    QString m_target; ///< the file at the path without links; empty when none is watched
};

#endif

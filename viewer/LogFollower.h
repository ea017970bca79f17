#ifndef DATALOG_VIEWER_LOGFOLLOWER_H
#define DATALOG_VIEWER_LOGFOLLOWER_H

#include "parsing/FileFollower.h"
#include "viewer/LogLoader.h"

#include <QDateTime>
#include <QElapsedTimer>
#include <QFileSystemWatcher>
#include <QTimer>

/**
 * Tells when the log that is open has changed and should be read again, as one that an instrument
 * is writing does all the time.
 *
 * Changes are told at most once in a while, and the longer the longer a read takes, so that most
 * of the time is the user's. An empty file is waited on: somebody is about to write it anew. Who
 * stops following stops a refresh that goes on.
 */
class LogFollower : public QObject
{
    Q_OBJECT
    Q_PROPERTY(LogLoader *loader READ loader WRITE setLoader NOTIFY loaderChanged)
    Q_PROPERTY(bool following READ isFollowing WRITE setFollowing NOTIFY followingChanged)
    Q_PROPERTY(bool gone READ isGone NOTIFY goneChanged)

public:
    explicit LogFollower(QObject *parent = nullptr);

    LogLoader *loader() const { return m_loader; }
    void setLoader(LogLoader *loader);
    bool isFollowing() const { return m_isFollowing; }
    void setFollowing(bool isFollowing);
    /** Whether the file that is followed is not there. */
    bool isGone() const { return m_isGone; }

    /** How long changes are gathered at least, and how often a file is looked at that tells none.
     */
    void setIntervals(int gatherMilliseconds, int lookMilliseconds);

signals:
    void loaderChanged();
    void followingChanged();
    void goneChanged();
    /** The log should be read again. */
    void changed();

private:
    struct Stamp {
        qint64 size = -1;
        QDateTime time;
    };

    static Stamp stampOf(const QString &path);
    void follow();
    void noteReading();
    void noteRefreshing();
    void noteBegin();
    void noteEnd();
    bool isBusy() const { return m_loader->isReading() || m_loader->isRefreshing(); }
    void noteTarget();
    void look();
    void tell();
    void setGone(bool isGone);

    QPointer<LogLoader> m_loader;
    QFileSystemWatcher m_watcher;
    FileFollower m_file;
    QTimer m_gather;
    QTimer m_look; ///< for file systems that tell of no changes
    QElapsedTimer m_reading;
    QString m_path;
    Stamp m_read; ///< of the file as it was read last
    Stamp m_readBefore;
    int m_gatherInterval;
    bool m_isFollowing;
    bool m_isGone;
};

#endif

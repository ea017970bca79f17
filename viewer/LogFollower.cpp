#include "viewer/LogFollower.h"

#include <QFileInfo>

namespace
{

const int kGatherInterval = 300; // ms
const int kLookInterval = 2000; // ms
const int kPauseFactor = 3; // of the time that the last read took

} // namespace

LogFollower::LogFollower(QObject *parent)
    : QObject(parent)
    , m_file(&m_watcher)
    , m_gatherInterval(kGatherInterval)
    , m_isFollowing(false)
    , m_isGone(false)
{
    m_gather.setSingleShot(true);
    m_gather.setInterval(kGatherInterval);
    m_look.setInterval(kLookInterval);
    connect(&m_gather, &QTimer::timeout, this, &LogFollower::tell);
    connect(&m_look, &QTimer::timeout, this, &LogFollower::look);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, &LogFollower::look);
    connect(&m_file, &FileFollower::targetChanged, this, &LogFollower::noteTarget);
}

void LogFollower::setIntervals(int gatherMilliseconds, int lookMilliseconds)
{
    m_gatherInterval = gatherMilliseconds;
    m_gather.setInterval(gatherMilliseconds);
    m_look.setInterval(lookMilliseconds);
}

void LogFollower::setLoader(LogLoader *loader)
{
    if (loader == m_loader)
        return;
    if (m_loader)
        disconnect(m_loader, nullptr, this, nullptr);
    m_loader = loader;
    if (m_loader) {
        connect(m_loader.data(), &LogLoader::readingChanged, this, &LogFollower::noteReading);
        connect(m_loader.data(), &LogLoader::refreshingChanged, this, &LogFollower::noteRefreshing);
    }
    follow();
    emit loaderChanged();
}

void LogFollower::setFollowing(bool isFollowing)
{
    if (isFollowing == m_isFollowing)
        return;
    m_isFollowing = isFollowing;
    if (!isFollowing && m_loader)
        m_loader->giveUpRefresh();
    follow();
    emit followingChanged();
}

LogFollower::Stamp LogFollower::stampOf(const QString &path)
{
    const QFileInfo file(path);
    Stamp stamp;
    if (file.isFile()) {
        stamp.size = file.size();
        stamp.time = file.lastModified();
    }
    return stamp;
}

/** What is open may have grown since it was read, so a look comes first. */
void LogFollower::follow()
{
    const QString path = m_isFollowing && m_loader ? m_loader->filePath() : QString();
    if (path != m_path) {
        m_file.unfollow(m_path);
        m_path = path;
        if (!path.isEmpty())
            m_file.follow(path);
    }
    if (path.isEmpty()) {
        m_look.stop();
        m_gather.stop();
        setGone(false);
        return;
    }
    m_look.start();
    look();
}

void LogFollower::noteReading()
{
    if (m_loader->isReading())
        noteBegin();
    else
        noteEnd();
}

/** What was given up was not read. Another read may have taken its place already. */
void LogFollower::noteRefreshing()
{
    if (m_loader->isRefreshing()) {
        noteBegin();
        return;
    }
    if (m_loader->isRefreshGivenUp())
        m_read = m_readBefore;
    if (!m_loader->isReading())
        noteEnd();
}

/** The file as it is when its read begins: what is written meanwhile has to be read again. */
void LogFollower::noteBegin()
{
    m_readBefore = m_read;
    m_read = stampOf(m_loader->filePath());
    m_reading.start();
    m_gather.stop(); // what was to be told is being read
}

void LogFollower::noteEnd()
{
    const qint64 pause = kPauseFactor * m_reading.elapsed();
    m_gather.setInterval(int(qBound(qint64(m_gatherInterval), pause, qint64(600000))));
    follow();
}

/** A file that is made anew is empty first, and watched for what comes into it. */
void LogFollower::noteTarget()
{
    m_file.rewatch();
    look();
}

void LogFollower::look()
{
    if (m_path.isEmpty() || !m_loader || isBusy())
        return;
    const Stamp now = stampOf(m_path);
    setGone(now.size < 0);
    const bool isNew = now.size > 0 && (now.size != m_read.size || now.time != m_read.time);
    if (isNew && !m_gather.isActive())
        m_gather.start();
}

void LogFollower::tell()
{
    if (m_path.isEmpty() || !m_loader || isBusy() || m_isGone)
        return;
    // Another file may stand there by now.
    m_file.rewatch();
    emit changed();
}

void LogFollower::setGone(bool isGone)
{
    if (isGone == m_isGone)
        return;
    m_isGone = isGone;
    emit goneChanged();
}

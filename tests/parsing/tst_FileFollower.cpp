#include "parsing/FileFollower.h"

#include "support/TempDir.h"
#include "support/TestCompat.h"

#include <QFileSystemWatcher>
#include <QScopedPointer>

/** The follower by itself; tst_DataLogWatching has it follow what other processes do. */
class tst_FileFollower : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void watchesFileAndDirectory();
    void unfollowsItsPathOnly();
    void leavesOtherPathsAlone();
    void followsOneAtATime();
    void watchesTheNearestDirectory();
    void tellsWhenAFileComesAndGoes();
    void isSilentAboutOtherFiles();
    void seesAFileThatCameWhileItWasRewatching();

private:
    QString path(const char *name) const { return m_dir->filePath(QLatin1String(name)); }
    QStringList watched() const { return m_watcher->files() + m_watcher->directories(); }

    QScopedPointer<TempDir> m_dir;
    QScopedPointer<QFileSystemWatcher> m_watcher;
};

void tst_FileFollower::init()
{
    m_dir.reset(new TempDir);
    m_dir->write(QLatin1String("file"), "a");
    m_watcher.reset(new QFileSystemWatcher);
}

void tst_FileFollower::watchesFileAndDirectory()
{
    FileFollower follower(m_watcher.data());
    QVERIFY(!follower.follows(QString()));
    follower.follow(path("file"));
    QVERIFY(follower.follows(path("file")));
    QVERIFY(!follower.follows(path("other")));
    QCOMPARE(watched(), QStringList() << path("file") << m_dir->path());
    follower.rewatch();
    QCOMPARE(watched(), QStringList() << path("file") << m_dir->path());
}

void tst_FileFollower::unfollowsItsPathOnly()
{
    FileFollower follower(m_watcher.data());
    follower.unfollow(path("file"));
    follower.follow(path("file"));
    follower.unfollow(path("other"));
    follower.unfollow(QString());
    QCOMPARE(watched().size(), 2);
    follower.unfollow(path("file"));
    QVERIFY(!follower.follows(path("file")));
    QCOMPARE(watched(), QStringList());
}

void tst_FileFollower::leavesOtherPathsAlone()
{
    m_dir->write(QLatin1String("other"), "b");
    m_watcher->addPath(path("other"));
    FileFollower follower(m_watcher.data());
    follower.follow(path("file"));
    follower.unfollow(path("file"));
    QCOMPARE(watched(), QStringList() << path("other"));
}

void tst_FileFollower::followsOneAtATime()
{
    QVERIFY(QDir().mkdir(path("sub")));
    m_dir->write(QLatin1String("sub/file"), "b");
    FileFollower follower(m_watcher.data());
    follower.follow(path("file"));
    follower.follow(path("sub/file"));
    QCOMPARE(watched(), QStringList() << path("sub/file") << path("sub"));
}

void tst_FileFollower::watchesTheNearestDirectory()
{
    FileFollower follower(m_watcher.data());
    follower.follow(path("1/2/file"));
    QCOMPARE(watched(), QStringList() << m_dir->path());
    QVERIFY(QDir().mkpath(path("1/2")));
    follower.rewatch();
    QCOMPARE(watched(), QStringList() << path("1/2"));
    follower.follow(QLatin1String("/no such directory/file"));
    QCOMPARE(watched(), QStringList() << QLatin1String("/"));
}

void tst_FileFollower::tellsWhenAFileComesAndGoes()
{
    FileFollower follower(m_watcher.data());
    follower.follow(path("1/file"));
    QSignalSpy changes(&follower, SIGNAL(targetChanged(QString)));
    QVERIFY(QDir().mkdir(path("1")));
    QTRY_VERIFY(m_watcher->directories().contains(path("1")));
    QCOMPARE(changes.count(), 0);
    m_dir->write(QLatin1String("1/file"), "b");
    QVERIFY(waitForCount(changes, 1));
    QCOMPARE(changes.at(0).at(0).toString(), path("1/file"));
    follower.rewatch();
    changes.clear();
    QVERIFY(QFile::remove(path("1/file")));
    QVERIFY(waitForCount(changes, 1));
}

void tst_FileFollower::isSilentAboutOtherFiles()
{
    FileFollower follower(m_watcher.data());
    follower.follow(path("file"));
    QSignalSpy seen(m_watcher.data(), SIGNAL(directoryChanged(QString)));
    QSignalSpy changes(&follower, SIGNAL(targetChanged(QString)));
    m_dir->write(QLatin1String("other"), "b");
    QVERIFY(waitForCount(seen, 1));
    QCOMPARE(changes.count(), 0);
}

/** The directory's change comes after the file is watched already; nothing is told twice. */
void tst_FileFollower::seesAFileThatCameWhileItWasRewatching()
{
    FileFollower follower(m_watcher.data());
    follower.follow(path("new"));
    QSignalSpy seen(m_watcher.data(), SIGNAL(directoryChanged(QString)));
    QSignalSpy changes(&follower, SIGNAL(targetChanged(QString)));
    m_dir->write(QLatin1String("new"), "b");
    follower.rewatch();
    QVERIFY(waitForCount(seen, 1));
    QCOMPARE(changes.count(), 0);
    QVERIFY(m_watcher->files().contains(path("new")));
}

QTEST_GUILESS_MAIN(tst_FileFollower)
#include "tst_FileFollower.moc"

#include "viewer/RecentFiles.h"

#include "TemporaryLog.h"
#include "support/ModelTester.h"
#include "support/TestCompat.h"
#include "viewer/ViewerSettings.h"

class tst_RecentFiles : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void startsEmpty();
    void putsTheLatestFirst();
    void keepsSomeOnly();
    void lastsBeyondTheProgram();
    void tellsWhichAreMissing();
    void forgets();
    void leavesOneOut();
    void knowsOneFileByOnePath();

private:
    static QStringList names(const RecentFiles &files);

    QScopedPointer<QTemporaryDir> m_settings;
};

void tst_RecentFiles::init()
{
    m_settings.reset(new QTemporaryDir);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_settings->path());
}

QStringList tst_RecentFiles::names(const RecentFiles &files)
{
    QStringList names;
    for (int row = 0; row < files.rowCount(); ++row)
        names.append(files.index(row).data(RecentFiles::NameRole).toString());
    return names;
}

void tst_RecentFiles::startsEmpty()
{
    RecentFiles files;
    const ModelTester tester(&files);
    QCOMPARE(files.count(), 0);
    files.remove(0);
    files.remove(-1);
    files.add(QString());
    QCOMPARE(files.count(), 0);
    QVERIFY(!files.index(0).data(RecentFiles::NameRole).isValid());
}

void tst_RecentFiles::putsTheLatestFirst()
{
    RecentFiles files;
    const ModelTester tester(&files);
    QSignalSpy changed(&files, SIGNAL(countChanged()));
    files.add("/logs/a.log");
    files.add("/logs/b.log");
    files.add("/logs/a.log");
    QCOMPARE(names(files), (QStringList{"a.log", "b.log"}));
    QCOMPARE(files.index(0).data(RecentFiles::PathRole).toString(), QString("/logs/a.log"));
    QCOMPARE(files.index(0).data(RecentFiles::FolderRole).toString(), QString("/logs"));
    QCOMPARE(changed.count(), 3);
}

void tst_RecentFiles::keepsSomeOnly()
{
    RecentFiles files;
    for (int i = 0; i < 30; ++i)
        files.add(QString("/logs/%1.log").arg(i));
    QCOMPARE(files.count(), int(RecentFiles::Most));
    QCOMPARE(names(files).first(), QString("29.log"));
    QCOMPARE(names(files).last(), QString("18.log"));
}

void tst_RecentFiles::lastsBeyondTheProgram()
{
    {
        RecentFiles files;
        files.add("/logs/a, b = 100%.log");
        files.add(QString::fromUtf8("/logs/ü.log"));
    }
    RecentFiles files;
    QCOMPARE(names(files), (QStringList{QString::fromUtf8("ü.log"), "a, b = 100%.log"}));
    // Another window's files are not lost.
    RecentFiles other;
    other.add("/logs/c.log");
    files.add("/logs/d.log");
    QCOMPARE(files.count(), 4);
    other.refresh();
    QCOMPARE(names(other).first(), QString("d.log"));
}

void tst_RecentFiles::tellsWhichAreMissing()
{
    const TemporaryLog log;
    RecentFiles files;
    files.add(log.directory()); // no file
    files.add(log.path());
    QVERIFY(files.index(0).data(RecentFiles::IsThereRole).toBool());
    QVERIFY(!files.index(1).data(RecentFiles::IsThereRole).toBool());
    QVERIFY(QFile::remove(log.path()));
    files.refresh();
    QVERIFY(!files.index(0).data(RecentFiles::IsThereRole).toBool());
    QVERIFY(!files.isThere(log.path()));
}

void tst_RecentFiles::forgets()
{
    RecentFiles files;
    files.add("/logs/a.log");
    files.add("/logs/b.log");
    files.add("/logs/c.log");
    files.remove(1);
    QCOMPARE(names(files), (QStringList{"c.log", "a.log"}));
    files.clear();
    QCOMPARE(files.count(), 0);
    QCOMPARE(RecentFiles().count(), 0);
}

void tst_RecentFiles::leavesOneOut()
{
    RecentFiles files;
    files.leaveOut("/tmp/sample.log");
    files.add("/tmp/sample.log");
    QCOMPARE(files.count(), 0);
}

void tst_RecentFiles::knowsOneFileByOnePath()
{
    RecentFiles files;
    files.add("/logs/a.log");
    files.add("/logs/../logs//a.log");
    QCOMPARE(files.count(), 1);
    files.add("b.log");
    QCOMPARE(files.index(0).data(RecentFiles::PathRole).toString(),
             QDir::current().absoluteFilePath("b.log"));
}

QTEST_GUILESS_MAIN(tst_RecentFiles)
#include "tst_RecentFiles.moc"

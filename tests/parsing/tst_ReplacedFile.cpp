#include "parsing/ReplacedFile.h"

#include "support/FullDisk.h"
#include "support/MessageCapture.h"
#include "support/OrdinaryUser.h"
#include "support/SmallDisk.h"
#include "support/SpecialFiles.h"
#include "support/TestCompat.h"

#include <QScopedPointer>

class tst_ReplacedFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void writes_data();
    void writes();
    void givesANewFileTheUsersPermissions();
    void keepsPermissions_data();
    void keepsPermissions();
    void keepsLinks();
    void makesTheFileOfALink();
    void keepsFurtherNames();
    void keepsTheOwner();
    void writesWhereNoFileCanBeAdded();
    void leavesReadOnlyFilesAlone();
    void leavesSpecialFilesAlone();
    void refusesWhatIsNoName_data();
    void refusesWhatIsNoName();
    void keepsTheOldFileWithoutRoom_data();
    void keepsTheOldFileWithoutRoom();
    void keepsTheOldFileOnAFullDisk_data();
    void keepsTheOldFileOnAFullDisk();
    void keepsTheOldFileOnAReadOnlyDisk();

private:
    QString path(const char *name) const { return m_dir->filePath(QLatin1String(name)); }
    static QByteArray content(const QString &path);
    static struct stat status(const QString &path);
    static bool addName(const QString &path, const QString &name);

    QScopedPointer<TempDir> m_dir;
};

void tst_ReplacedFile::init()
{
    m_dir.reset(new TempDir);
}

QByteArray tst_ReplacedFile::content(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("none");
}

struct stat tst_ReplacedFile::status(const QString &path)
{
    struct stat status = {};
    stat(QFile::encodeName(path).constData(), &status);
    return status;
}

bool tst_ReplacedFile::addName(const QString &path, const QString &name)
{
    return link(QFile::encodeName(path).constData(), QFile::encodeName(name).constData()) == 0;
}

void tst_ReplacedFile::writes_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("old");
    QTest::addColumn<QByteArray>("content");

    QTest::newRow("longer") << QByteArray("f") << QByteArray("old") << QByteArray(100000, 'n');
    QTest::newRow("shorter") << QByteArray("f") << QByteArray(100000, 'o') << QByteArray("new");
    QTest::newRow("nothing") << QByteArray("f") << QByteArray("old") << QByteArray();
    QTest::newRow("new") << QByteArray("f") << QByteArray() << QByteArray("new");
    QTest::newRow("longest name") << QByteArray(255, 'n') << QByteArray("old") << QByteArray("new");
    QTest::newRow("pattern") << QByteArray("XXXXXX") << QByteArray("old") << QByteArray("new");
    QTest::newRow("dash") << QByteArray("-rf") << QByteArray("old") << QByteArray("new");
    QTest::newRow("line feed") << QByteArray("a\nb") << QByteArray("old") << QByteArray("new");
}

void tst_ReplacedFile::writes()
{
    QFETCH(QByteArray, name);
    QFETCH(QByteArray, old);
    QFETCH(QByteArray, content);
    const QString path = m_dir->filePath(QString::fromLatin1(name));
    if (!old.isEmpty())
        QCOMPARE(m_dir->write(QString::fromLatin1(name), old), path);
    QVERIFY(ReplacedFile::write(path, content));
    QCOMPARE(this->content(path), content);
    const QStringList names
        = QDir(m_dir->path())
              .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    QCOMPARE(names, QStringList(QString::fromLatin1(name)));
}

void tst_ReplacedFile::givesANewFileTheUsersPermissions()
{
    const mode_t mask = umask(0027);
    const bool isWritten = ReplacedFile::write(path("f"), "new");
    QCOMPARE(umask(mask), mode_t(0027));
    QVERIFY(isWritten);
    QCOMPARE(int(status(path("f")).st_mode & 07777), 0640);
}

void tst_ReplacedFile::keepsPermissions_data()
{
    QTest::addColumn<int>("mode");
    QTest::newRow("private") << 0600;
    QTest::newRow("for all") << 0666;
    QTest::newRow("program") << 0755;
    QTest::newRow("not to be read") << 0200;
}

void tst_ReplacedFile::keepsPermissions()
{
    QFETCH(int, mode);
    m_dir->write(QLatin1String("f"), "old");
    QCOMPARE(chmod(QFile::encodeName(path("f")).constData(), mode_t(mode)), 0);
    QVERIFY(ReplacedFile::write(path("f"), "new"));
    QCOMPARE(int(status(path("f")).st_mode & 07777), mode);
    QCOMPARE(chmod(QFile::encodeName(path("f")).constData(), 0600), 0);
    QCOMPARE(content(path("f")), QByteArray("new"));
}

void tst_ReplacedFile::keepsLinks()
{
    QVERIFY(QDir(m_dir->path()).mkdir(QLatin1String("d")));
    m_dir->write(QLatin1String("d/f"), "old");
    QCOMPARE(symlink("d/f", QFile::encodeName(path("link")).constData()), 0);
    QCOMPARE(symlink("link", QFile::encodeName(path("link to it")).constData()), 0);
    QVERIFY(ReplacedFile::write(path("link to it"), "new"));
    QVERIFY(QFileInfo(path("link")).isSymLink());
    QVERIFY(QFileInfo(path("link to it")).isSymLink());
    QVERIFY(!QFileInfo(path("d/f")).isSymLink());
    QCOMPARE(content(path("d/f")), QByteArray("new"));
}

void tst_ReplacedFile::makesTheFileOfALink()
{
    QCOMPARE(symlink("f", QFile::encodeName(path("link")).constData()), 0);
    QVERIFY(ReplacedFile::write(path("link"), "new"));
    QVERIFY(QFileInfo(path("link")).isSymLink());
    QCOMPARE(content(path("f")), QByteArray("new"));
    // Two that lead to each other lead nowhere.
    QCOMPARE(symlink("b", QFile::encodeName(path("a")).constData()), 0);
    QCOMPARE(symlink("a", QFile::encodeName(path("b")).constData()), 0);
    QVERIFY(!ReplacedFile::write(path("a"), "new"));
    QVERIFY(QFileInfo(path("a")).isSymLink());
}

void tst_ReplacedFile::keepsFurtherNames()
{
    m_dir->write(QLatin1String("f"), "old and long");
    QVERIFY(addName(path("f"), path("g")));
    QVERIFY(ReplacedFile::write(path("f"), "new"));
    QCOMPARE(content(path("g")), QByteArray("new"));
    QCOMPARE(int(status(path("f")).st_nlink), 2);
}

void tst_ReplacedFile::keepsTheOwner()
{
    m_dir->write(QLatin1String("f"), "old");
    if (chown(QFile::encodeName(path("f")).constData(), 65534, 65534) != 0)
        SKIP_TEST("Only the super-user gives files away.");
    QVERIFY(ReplacedFile::write(path("f"), "new"));
    QCOMPARE(int(status(path("f")).st_uid), 65534);
    QCOMPARE(int(status(path("f")).st_gid), 65534);
    QCOMPARE(content(path("f")), QByteArray("new"));
}

/** A directory that takes no new file may hold one that can be written. */
void tst_ReplacedFile::writesWhereNoFileCanBeAdded()
{
    m_dir->write(QLatin1String("f"), "old");
    QCOMPARE(chmod(QFile::encodeName(path("f")).constData(), 0666), 0);
    QCOMPARE(chmod(QFile::encodeName(m_dir->path()).constData(), 0555), 0);
    bool isWritten = false;
    bool isAdded = true;
    {
        const OrdinaryUser user;
        isWritten = ReplacedFile::write(path("f"), "new");
        isAdded = ReplacedFile::write(path("other"), "new");
    }
    QCOMPARE(chmod(QFile::encodeName(m_dir->path()).constData(), 0700), 0);
    QVERIFY(isWritten);
    QVERIFY(!isAdded);
    QCOMPARE(content(path("f")), QByteArray("new"));
}

void tst_ReplacedFile::leavesReadOnlyFilesAlone()
{
    m_dir->write(QLatin1String("f"), "old");
    QCOMPARE(chmod(QFile::encodeName(path("f")).constData(), 0444), 0);
    QCOMPARE(chmod(QFile::encodeName(m_dir->path()).constData(), 0777), 0);
    {
        const OrdinaryUser user;
        QVERIFY(!ReplacedFile::write(path("f"), "new"));
    }
    QCOMPARE(content(path("f")), QByteArray("old"));
}

void tst_ReplacedFile::leavesSpecialFilesAlone()
{
    const SpecialFiles files(*m_dir);
    foreach (const QString &name, files.names() << QLatin1String("."))
        QVERIFY2(!ReplacedFile::write(m_dir->filePath(name), "new"), qPrintable(name));
    QVERIFY(files.areThere());
}

void tst_ReplacedFile::refusesWhatIsNoName_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("nothing") << QString();
    QTest::newRow("a zero character") << QString::fromLatin1("a%1b").arg(QChar(0));
    QTest::newRow("nowhere") << QString::fromLatin1("no/where");
    QTest::newRow("too long") << QString(256, QLatin1Char('n'));
}

void tst_ReplacedFile::refusesWhatIsNoName()
{
    QFETCH(QString, name);
    const MessageCapture capture;
    QVERIFY(!ReplacedFile::write(name.isEmpty() ? name : m_dir->filePath(name), "new"));
    QCOMPARE(capture.messages(), QStringList());
    QCOMPARE(QDir(m_dir->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList());
}

void tst_ReplacedFile::keepsTheOldFileWithoutRoom_data()
{
    QTest::addColumn<bool>("isReplaced");
    QTest::newRow("replaced") << true;
    QTest::newRow("written into") << false;
}

/** A file that has a further name is written into. */
void tst_ReplacedFile::keepsTheOldFileWithoutRoom()
{
    QFETCH(bool, isReplaced);
    const QByteArray old(50, 'o');
    m_dir->write(QLatin1String("f"), old);
    QVERIFY(isReplaced || addName(path("f"), path("g")));
    {
        const FullDisk disk(100);
        QVERIFY(!ReplacedFile::write(path("f"), QByteArray(100000, 'n')));
    }
    QCOMPARE(content(path("f")), old);
    const QStringList names
        = QDir(m_dir->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    QCOMPARE(names.size(), isReplaced ? 1 : 2);
}

void tst_ReplacedFile::keepsTheOldFileOnAFullDisk_data()
{
    keepsTheOldFileWithoutRoom_data();
}

void tst_ReplacedFile::keepsTheOldFileOnAFullDisk()
{
    QFETCH(bool, isReplaced);
    const SmallDisk disk;
    if (!disk.isThere())
        SKIP_TEST("This process may not have a disk of its own.");
    const QByteArray old(5000, 'o');
    const QString file = disk.dir().write(QLatin1String("f"), old);
    QVERIFY(isReplaced || addName(file, disk.filePath("g")));
    QVERIFY(disk.fill());
    QVERIFY(!ReplacedFile::write(file, QByteArray(100000, 'n')));
    QCOMPARE(content(file), old);
    QCOMPARE(disk.names().size(), isReplaced ? 1 : 2);
    // There is room again.
    QVERIFY(QFile::remove(disk.filePath("filler")));
    QVERIFY(ReplacedFile::write(file, "new"));
    QCOMPARE(content(file), QByteArray("new"));
}

void tst_ReplacedFile::keepsTheOldFileOnAReadOnlyDisk()
{
    const SmallDisk disk;
    if (!disk.isThere())
        SKIP_TEST("This process may not have a disk of its own.");
    const QString file = disk.dir().write(QLatin1String("f"), "old");
    QVERIFY(disk.makeReadOnly());
    QVERIFY(!ReplacedFile::write(file, "new"));
    QVERIFY(!ReplacedFile::write(disk.filePath("g"), "new"));
    QCOMPARE(content(file), QByteArray("old"));
    QCOMPARE(disk.names(), QStringList(QLatin1String("f")));
}

int main(int argc, char *argv[])
{
    SmallDisk::allow();
    const QCoreApplication application(argc, argv);
    tst_ReplacedFile test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_ReplacedFile.moc"

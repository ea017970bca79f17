#include "TemporaryLog.h"
#include "ViewerProcess.h"
#include "support/SmallDisk.h"
#include "support/TestCompat.h"
#include "viewer/RecentFiles.h"
#include "viewer/ViewerSettings.h"
#include "viewer/ViewerWindow.h"

#include <QApplication>
#include <QQuickWindow>

/** What the viewer writes, where there is no room or no permission: the old stays, and it says so.
 */
class tst_UnwritablePlaces : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void keepsTheOldFile_data();
    void keepsTheOldFile();
    void writesOnceThereIsRoom();
    void keepsTheOldSettings_data();
    void keepsTheOldSettings();
    void needsRoomForTheSample();

private:
    int run(const QStringList &arguments, const QString &temporary = QDir::tempPath());
    static QByteArray content(const QString &path);
    bool spoil(const QString &state);

    QScopedPointer<SmallDisk> m_disk;
    QString m_errors;
};

namespace
{

const char kNoRoom[] = "No space left on device";
const char kLittleRoom[] = "there is no room for it";
const char kReadOnly[] = "Existing file %1 is not writable";

} // namespace

void tst_UnwritablePlaces::init()
{
    m_disk.reset();
    m_disk.reset(new SmallDisk);
    if (!m_disk->isThere())
        SKIP_TEST("This process may not have a disk of its own.");
}

int tst_UnwritablePlaces::run(const QStringList &arguments, const QString &temporary)
{
    ViewerProcess viewer;
    viewer.setVariable("TMPDIR", temporary);
    const int status = viewer.run(arguments);
    m_errors = viewer.errors();
    return status;
}

QByteArray tst_UnwritablePlaces::content(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("none");
}

/** Nearly full is a disk with room for the first page only. */
bool tst_UnwritablePlaces::spoil(const QString &state)
{
    if (state == "read-only")
        return m_disk->makeReadOnly();
    const bool isNearlyFull = state == "nearly full";
    const QString reserve = m_disk->dir().write("reserve", QByteArray(4096, 'x'));
    return (isNearlyFull || QFile::remove(reserve)) && m_disk->fill()
        && (!isNearlyFull || QFile::remove(reserve));
}

void tst_UnwritablePlaces::keepsTheOldFile_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("state");
    QTest::addColumn<QString>("cause");

    for (const QString end : {"png", "svg", "pdf", "csv", "json", "xml"}) {
        const auto row = [&end](const QString &state, const char *cause) {
            QTest::newRow(qPrintable(end + ", " + state)) << "old." + end << state << cause;
        };
        row("full", kNoRoom);
        row("read-only", kReadOnly);
        if (end != "json" && end != "xml") // for these there is room enough in a page
            row("nearly full", kLittleRoom);
    }
}

void tst_UnwritablePlaces::keepsTheOldFile()
{
    QFETCH(QString, name);
    QFETCH(QString, state);
    QFETCH(QString, cause);
    const QString path = m_disk->dir().write(name, "old");
    QVERIFY(spoil(state));
    const bool isDefinition = name.endsWith("json") || name.endsWith("xml");
    QTemporaryDir elsewhere;
    const QString plot = elsewhere.filePath("plot.png");
    QCOMPARE(run(isDefinition ? QStringList{"--export", plot, "--save-definition", path}
                              : QStringList{"--export", path}),
             1);
    QCOMPARE(m_errors,
             "datalog-viewer: " + path + ": can't be written: " + cause.replace("%1", path) + "\n");
    QCOMPARE(content(path), QByteArray("old"));
    QCOMPARE(m_disk->names(), QStringList(name));
}

void tst_UnwritablePlaces::writesOnceThereIsRoom()
{
    const QString path = m_disk->dir().write("old.json", "old");
    QTemporaryDir elsewhere;
    const QStringList arguments{"--export", elsewhere.filePath("plot.png"), "--save-definition",
                                path};
    QVERIFY(spoil("full"));
    QCOMPARE(run(arguments), 1);
    QVERIFY(QFile::remove(m_disk->filePath("filler")));
    QCOMPARE(run(arguments), 0);
    QVERIFY(content(path).startsWith('{'));
}

void tst_UnwritablePlaces::keepsTheOldSettings_data()
{
    QTest::addColumn<QString>("state");
    QTest::newRow("full") << "full";
    QTest::newRow("read-only") << "read-only";
}

void tst_UnwritablePlaces::keepsTheOldSettings()
{
    QFETCH(QString, state);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_disk->dir().path());
    RecentFiles().add("/logs/old.log");
    const QString file = Preferences::userFile();
    const QByteArray old = content(file);
    QVERIFY(old.contains("old.log"));
    const QStringList names = QFileInfo(file).dir().entryList(QDir::Files | QDir::Hidden);
    QVERIFY(spoil(state));

    QScopedPointer<ViewerWindow> viewer(new ViewerWindow(ViewerOptions(), file));
    QVERIFY(viewer->window());
    viewer->preferences()->setTheme("dark");
    RecentFiles recent;
    recent.add("/logs/new.log");
    QCOMPARE(recent.count(), 2); // known while the program runs
    QStringList remarks;
    connect(viewer.data(), &ViewerWindow::remarked,
            [&remarks](const QString &text) { remarks.append(text); });
    viewer.reset();
    QCOMPARE(remarks, QStringList(file + ": can't be written: the settings are lost"));
    QCOMPARE(content(file), old);
    QCOMPARE(QFileInfo(file).dir().entryList(QDir::Files | QDir::Hidden), names);
}

void tst_UnwritablePlaces::needsRoomForTheSample()
{
    QVERIFY(spoil("full"));
    QTemporaryDir elsewhere;
    QCOMPARE(run({"--export", elsewhere.filePath("plot.png")}, m_disk->dir().path()), 1);
    QCOMPARE(m_errors,
             QString("datalog-viewer: the bundled sample can't be put into a temporary "
                     "directory\n"));
    QCOMPARE(m_disk->names().filter("datalog"), QStringList());
}

int main(int argc, char *argv[])
{
    SmallDisk::allow();
    const QApplication application(argc, argv);
    QApplication::setStyle("fusion");
    tst_UnwritablePlaces test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_UnwritablePlaces.moc"

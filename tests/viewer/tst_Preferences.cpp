#include "viewer/FileNameCodec.h"
#include "viewer/LocalPath.h"
#include "viewer/Preferences.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

class tst_Preferences : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void startsWithWhatSuitsMost();
    void keepsWhatIsSet();
    void forgetsWithoutAFile();
    void tellsChangesOnly();
    void takesNonsenseAsNothing_data();
    void takesNonsenseAsNothing();
    void keepsTheFolderOfAFile();
    void keepsFoldersOfAnyName_data();
    void keepsFoldersOfAnyName();
    void keepsAFolderForEachPlace();
    void forgetsAFolderThatIsGone();
    void hasOneFileForAUser();

private:
    QString file() const { return m_directory.filePath("kept.ini"); }

    QTemporaryDir m_directory;
};

void tst_Preferences::initTestCase()
{
    FileNameCodec::install();
}

void tst_Preferences::startsWithWhatSuitsMost()
{
    const Preferences preferences(m_directory.filePath("none.ini"));
    QCOMPARE(preferences.theme(), QString("auto"));
    QCOMPARE(preferences.instrumentColors(), false);
    QCOMPARE(preferences.compactRows(), false);
    QCOMPARE(preferences.panelShown(), true);
    QCOMPARE(preferences.folder(), QUrl());
}

void tst_Preferences::keepsWhatIsSet()
{
    {
        Preferences preferences(file());
        preferences.setTheme("dark");
        preferences.setCompactRows(true);
        preferences.setInstrumentColors(true);
        preferences.setPanelShown(false);
        preferences.setValue("window/geometry", QRect(1, 2, 300, 400));
    }
    const Preferences again(file());
    QCOMPARE(again.theme(), QString("dark"));
    QCOMPARE(again.instrumentColors(), true);
    QCOMPARE(again.compactRows(), true);
    QCOMPARE(again.panelShown(), false);
    QCOMPARE(again.value("window/geometry").toRect(), QRect(1, 2, 300, 400));
}

void tst_Preferences::forgetsWithoutAFile()
{
    Preferences preferences;
    preferences.setTheme("light");
    QCOMPARE(preferences.theme(), QString("light"));
    QCOMPARE(Preferences().theme(), QString("auto"));
}

void tst_Preferences::tellsChangesOnly()
{
    Preferences preferences;
    QSignalSpy changed(&preferences, SIGNAL(changed()));
    preferences.setTheme("dark");
    QCOMPARE(changed.count(), 1);
    preferences.setTheme("dark");
    preferences.setTheme("pink");
    QCOMPARE(changed.count(), 1);
    QCOMPARE(preferences.theme(), QString("dark"));
}

void tst_Preferences::takesNonsenseAsNothing_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("other values") << QByteArray(
        "[General]\ntheme=pink\ncompactRows=maybe\ninstrumentColors=2\n"
        "panelShown=7\nfolder=/no/such/place\n");
    QTest::newRow("empty values") << QByteArray(
        "[General]\ntheme=\ncompactRows=\npanelShown=\nfolder=\n");
    QTest::newRow("lists") << QByteArray("[General]\ntheme=a, b\ncompactRows=true, true\n");
    static const char picture[] = "\x89PNG\r\n\x1a\n\0\0\0=\n[[[";
    QTest::newRow("no settings at all") << QByteArray(picture, sizeof(picture) - 1);
}

void tst_Preferences::takesNonsenseAsNothing()
{
    QFETCH(QByteArray, text);
    const QString path = m_directory.filePath("nonsense.ini");
    QFile written(path);
    QVERIFY(written.open(QIODevice::WriteOnly));
    QCOMPARE(written.write(text), qint64(text.size()));
    written.close();
    const Preferences preferences(path);
    QCOMPARE(preferences.theme(), QString("auto"));
    QCOMPARE(preferences.instrumentColors(), false);
    QCOMPARE(preferences.compactRows(), false);
    QCOMPARE(preferences.panelShown(), true);
    QCOMPARE(preferences.folder(), QUrl());
}

void tst_Preferences::keepsTheFolderOfAFile()
{
    Preferences preferences;
    preferences.keepFolderOf(QUrl::fromLocalFile(m_directory.filePath("some.log")));
    QCOMPARE(preferences.folder(), QUrl::fromLocalFile(m_directory.path()));
    preferences.keepFolderOf(QUrl("https://localhost/some.log"));
    QCOMPARE(preferences.folder(), QUrl::fromLocalFile(m_directory.path()));
}

void tst_Preferences::keepsFoldersOfAnyName_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("UTF-8") << QByteArray("Me\xc3\x9fwerte \xe2\x82\xac");
    QTest::newRow("percent") << QByteArray("100% of 5%20%41");
    QTest::newRow("marks") << QByteArray("a#b?c&d;e=f");
    QTest::newRow("Latin-1") << QByteArray("Me\xdfwerte");
}

/** From one run to the next. */
void tst_Preferences::keepsFoldersOfAnyName()
{
    QFETCH(QByteArray, name);
    const QString folder = m_directory.filePath(QFile::decodeName(name));
    QVERIFY(QDir().mkpath(folder));
    {
        Preferences preferences(file());
        preferences.keepFolderOf(LocalPath::toUrl(folder + "/a.log"));
        QCOMPARE(LocalPath::of(preferences.folder()), folder);
    }
    const Preferences again(file());
    QCOMPARE(LocalPath::of(again.folder()), folder);
}

void tst_Preferences::keepsAFolderForEachPlace()
{
    Preferences preferences;
    const QDir directory(m_directory.path());
    for (const char *name : {"logs", "setups", "exports"})
        QVERIFY(directory.mkpath(name));
    preferences.keepFolderOfPath(directory.filePath("logs/a.log"));
    QCOMPARE(preferences.folder(Preferences::Setups), QUrl());
    preferences.keepFolderOfPath(directory.filePath("setups/a.json"), Preferences::Setups);
    preferences.keepFolderOfPath(directory.filePath("exports/a.png"), Preferences::Exports);
    QCOMPARE(LocalPath::of(preferences.folder()), directory.filePath("logs"));
    QCOMPARE(LocalPath::of(preferences.folder(Preferences::Setups)), directory.filePath("setups"));
    QCOMPARE(LocalPath::of(preferences.folder(Preferences::Exports)),
             directory.filePath("exports"));
    preferences.forgetFolder(Preferences::Exports);
    QCOMPARE(preferences.folder(Preferences::Exports), QUrl());
    QCOMPARE(LocalPath::of(preferences.folder()), directory.filePath("logs"));
}

void tst_Preferences::forgetsAFolderThatIsGone()
{
    Preferences preferences;
    {
        const QTemporaryDir other;
        preferences.keepFolderOf(QUrl::fromLocalFile(other.filePath("some.log")));
        QVERIFY(preferences.folder().isValid());
    }
    QCOMPARE(preferences.folder(), QUrl());
}

void tst_Preferences::hasOneFileForAUser()
{
    QVERIFY2(Preferences::userFile().endsWith("/DataLog/datalog-viewer.ini"),
             qPrintable(Preferences::userFile()));
}

QTEST_GUILESS_MAIN(tst_Preferences)
#include "tst_Preferences.moc"

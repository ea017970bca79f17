#include "viewer/Preferences.h"

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

class tst_Preferences : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsWithWhatSuitsMost();
    void keepsWhatIsSet();
    void forgetsWithoutAFile();
    void tellsChangesOnly();
    void takesNonsenseAsNothing_data();
    void takesNonsenseAsNothing();
    void keepsTheFolderOfAFile();
    void forgetsAFolderThatIsGone();
    void hasOneFileForAUser();

private:
    QString file() const { return m_directory.filePath("kept.ini"); }

    QTemporaryDir m_directory;
};

void tst_Preferences::startsWithWhatSuitsMost()
{
    const Preferences preferences(m_directory.filePath("none.ini"));
    QCOMPARE(preferences.theme(), QString("auto"));
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
        preferences.setPanelShown(false);
        preferences.setValue("window/geometry", QRect(1, 2, 300, 400));
    }
    const Preferences again(file());
    QCOMPARE(again.theme(), QString("dark"));
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
    QTest::newRow("other values") << QByteArray("[General]\ntheme=pink\ncompactRows=maybe\n"
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

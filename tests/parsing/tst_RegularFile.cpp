#include "parsing/RegularFile.h"

#include "support/MessageCapture.h"
#include "support/SpecialFiles.h"
#include "support/TestCompat.h"

class tst_RegularFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void opens_data();
    void opens();
    void refusesSpecialFiles();
    void refusesWhatIsNoName_data();
    void refusesWhatIsNoName();
    void makesAFileToWriteOnly();
    void makesTheFileOfALink();
};

void tst_RegularFile::opens_data()
{
    QTest::addColumn<int>("mode");
    QTest::newRow("for reading") << int(QIODevice::ReadOnly);
    QTest::newRow("for writing") << int(QIODevice::WriteOnly);
    QTest::newRow("for both") << int(QIODevice::ReadWrite);
    QTest::newRow("for reading and appending") << int(QIODevice::ReadWrite | QIODevice::Append);
}

void tst_RegularFile::opens()
{
    QFETCH(int, mode);
    const TempDir dir;
    const QString path = dir.write(QLatin1String("file"), "text");
    const QString link = dir.filePath(QLatin1String("link"));
    QVERIFY(QFile::link(path, link));
    foreach (const QString &name, QStringList() << path << link) {
        QVERIFY(RegularFile::standsAt(name));
        RegularFile file(name);
        QVERIFY(file.open(QIODevice::OpenMode(mode)));
        QCOMPARE(int(file.openMode()), mode);
    }
}

void tst_RegularFile::refusesSpecialFiles()
{
    const TempDir dir;
    const SpecialFiles files(dir);
    foreach (const QString &name, files.names() << QLatin1String(".")) {
        RegularFile file(dir.filePath(name));
        QVERIFY2(!RegularFile::standsAt(file.fileName()), qPrintable(name));
        QVERIFY2(!file.open(QIODevice::ReadOnly), qPrintable(name));
        QVERIFY2(!file.open(QIODevice::WriteOnly), qPrintable(name));
        QVERIFY2(!file.open(QIODevice::ReadWrite | QIODevice::Append), qPrintable(name));
        QVERIFY(!file.isOpen());
    }
    QVERIFY(files.areThere());
}

void tst_RegularFile::refusesWhatIsNoName_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("nothing") << QString();
    QTest::newRow("a zero character") << QString::fromLatin1("/tmp/a%1b").arg(QChar(0));
}

void tst_RegularFile::refusesWhatIsNoName()
{
    QFETCH(QString, path);
    const MessageCapture capture;
    RegularFile file(path);
    QVERIFY(!RegularFile::standsAt(path));
    QVERIFY(!file.open(QIODevice::ReadOnly));
    QVERIFY(!file.open(QIODevice::WriteOnly));
    QCOMPARE(capture.messages(), QStringList());
}

void tst_RegularFile::makesAFileToWriteOnly()
{
    const TempDir dir;
    RegularFile file(dir.filePath(QLatin1String("new")));
    QVERIFY(!file.open(QIODevice::ReadOnly));
    QVERIFY(!file.exists());
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.exists());
    RegularFile nowhere(dir.filePath(QLatin1String("no/where")));
    QVERIFY(!nowhere.open(QIODevice::WriteOnly));
}

void tst_RegularFile::makesTheFileOfALink()
{
    const TempDir dir;
    const QString link = dir.filePath(QLatin1String("link"));
    QVERIFY(QFile::link(dir.filePath(QLatin1String("target")), link));
    RegularFile file(link);
    QVERIFY(!file.open(QIODevice::ReadOnly));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(RegularFile::standsAt(dir.filePath(QLatin1String("target"))));
}

QTEST_GUILESS_MAIN(tst_RegularFile)
#include "tst_RegularFile.moc"

#include "parsing/DataLog.h"

#include "support/TempDir.h"
#include "support/TestCompat.h"

#include <QEventLoop>
#include <QProcess>
#include <QScopedPointer>
#include <QTimer>

/** What becomes of the contents when another process does something to the file. */
class tst_DataLogWatching : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void followsAnotherProcess_data();
    void followsAnotherProcess();
    void announcesAChange();
    void followsAWriterAtWork();
    void followsALink();
    void letsGoOfAReplacedFile();
    void watchesNoFileOpenedForAppending();
    void leavesAFileThatWasClosed_data();
    void leavesAFileThatWasClosed();
    void watchesTheNextFileInstead();
    void watchesAgainAfterAClose();
    void keepsAFileOpenedForAppendingOpen();

private:
    void shell(const char *script);
    void startShell(const char *script);
    bool waitForContents(const QString &contents, DataLog *log = nullptr);

    QScopedPointer<TempDir> m_dir;
    QScopedPointer<DataLog> m_log;
    QProcess m_process;
};

void tst_DataLogWatching::init()
{
    m_dir.reset(new TempDir);
    QDir().mkdir(m_dir->filePath(QLatin1String("sub")));
    m_dir->write(QLatin1String("sub/file"), "a\n");
    m_log.reset(new DataLog);
    QVERIFY(m_log->openReadOnly(m_dir->filePath(QLatin1String("sub")), QLatin1String("file")));
    QCOMPARE(m_log->contents(), QString::fromLatin1("a\n"));
}

void tst_DataLogWatching::cleanup()
{
    m_log.reset();
    m_dir.reset();
}

/** Starts another process, in the file's directory. */
void tst_DataLogWatching::startShell(const char *script)
{
    m_process.setWorkingDirectory(m_dir->filePath(QLatin1String("sub")));
    m_process.start(QLatin1String("/bin/sh"),
                    QStringList() << QLatin1String("-c") << QLatin1String(script));
}

void tst_DataLogWatching::shell(const char *script)
{
    startShell(script);
    QVERIFY(m_process.waitForFinished());
    QCOMPARE(m_process.readAllStandardError(), QByteArray());
    QCOMPARE(m_process.exitCode(), 0);
}

/** Lets the item's signals come until the contents are as told. */
bool tst_DataLogWatching::waitForContents(const QString &contents, DataLog *log)
{
    if (!log)
        log = m_log.data();
    QEventLoop loop;
    QTimer timeout;
    timeout.setSingleShot(true);
    QObject::connect(log, SIGNAL(contentsChanged()), &loop, SLOT(quit()));
    QObject::connect(&timeout, SIGNAL(timeout()), &loop, SLOT(quit()));
    timeout.start(60000);
    while (log->contents() != contents && timeout.isActive())
        loop.exec();
    return log->contents() == contents;
}

void tst_DataLogWatching::followsAnotherProcess_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QString>("contents");

    QTest::newRow("appends a line") << QByteArray("echo b >>file") << "a\nb\n";
    QTest::newRow("appends part of a line") << QByteArray("printf b >>file") << "a\nb\n";
    QTest::newRow("writes it anew") << QByteArray("echo b >file") << "b\n";
    QTest::newRow("truncates it") << QByteArray(": >file") << "";
    QTest::newRow("truncates it to a part") << QByteArray("truncate -s 1 file") << "a\n";
    QTest::newRow("deletes it") << QByteArray("rm file") << "";
    QTest::newRow("moves it away") << QByteArray("mv file old") << "";
    QTest::newRow("replaces it by rename") << QByteArray("echo b >new; mv new file") << "b\n";
    QTest::newRow("replaces it by a link") << QByteArray("echo b >new; ln -f new file") << "b\n";
    QTest::newRow("deletes it and makes it anew") << QByteArray("rm file; echo b >file") << "b\n";
    QTest::newRow("moves it away and makes it anew")
        << QByteArray("mv file old; echo b >file") << "b\n";
    QTest::newRow("puts a directory in its place") << QByteArray("rm file; mkdir file") << "";
    QTest::newRow("deletes the directory") << QByteArray("rm -r ../sub") << "";
    QTest::newRow("makes the directory anew")
        << QByteArray("rm -r ../sub; mkdir ../sub; echo b >../sub/file") << "b\n";
}

/** And goes on doing so: whatever was done, the file that then stands there is followed. */
void tst_DataLogWatching::followsAnotherProcess()
{
    QFETCH(QByteArray, script);
    QFETCH(QString, contents);
    shell(script.constData());
    QVERIFY2(waitForContents(contents), qPrintable(m_log->contents()));
    QVERIFY(QDir().mkpath(m_dir->filePath(QLatin1String("sub"))));
    shell("rmdir file 2>/dev/null; rm -f new; echo c >file");
    QVERIFY(waitForContents(QLatin1String("c\n")));
    shell("echo d >>file");
    QVERIFY(waitForContents(QLatin1String("c\nd\n")));
    shell("echo e >new; mv new file");
    QVERIFY(waitForContents(QLatin1String("e\n")));
    shell("rm file");
    QVERIFY(waitForContents(QString()));
    shell("echo f >file");
    QVERIFY(waitForContents(QLatin1String("f\n")));
    shell("echo g >>file");
    QVERIFY(waitForContents(QLatin1String("f\ng\n")));
}

void tst_DataLogWatching::announcesAChange()
{
    QSignalSpy changes(m_log.data(), SIGNAL(contentsChanged()));
    shell("printf 'b\\nc\\n' >new; mv new file");
    QVERIFY(waitForContents(QLatin1String("b\nc\n")));
    QVERIFY(changes.count() >= 3);
    QCOMPARE(m_log->filename(), QString::fromLatin1("file"));
}

/** Lines that come while the item reads, and files that change places meanwhile. */
void tst_DataLogWatching::followsAWriterAtWork()
{
    startShell("for i in $(seq 300); do echo $i >>file; done; mv file old; echo 0 >file;"
               "for i in $(seq 300); do echo $i >new; mv new file; done;"
               "for i in $(seq 300); do rm file; echo $i >file; done; echo end >>file");
    QVERIFY(waitForContents(QLatin1String("300\nend\n")));
    QVERIFY(m_process.state() == QProcess::NotRunning || m_process.waitForFinished());
}

void tst_DataLogWatching::followsALink()
{
    shell("mkdir ../logs; echo 1 >../logs/1; echo 2 >../logs/2; ln -s ../logs/1 current");
    QVERIFY(m_log->openReadOnly(QString(), QLatin1String("current")));
    QCOMPARE(m_log->contents(), QString::fromLatin1("1\n"));
    shell("echo more >>../logs/1");
    QVERIFY(waitForContents(QLatin1String("1\nmore\n")));
    shell("ln -s ../logs/2 new; mv new current");
    QVERIFY(waitForContents(QLatin1String("2\n")));
    shell("echo more >>../logs/2");
    QVERIFY(waitForContents(QLatin1String("2\nmore\n")));
}

/** A file that is replaced must not keep its room on the disk for as long as it is shown. */
void tst_DataLogWatching::letsGoOfAReplacedFile()
{
    shell("echo b >new; mv new file");
    QVERIFY(waitForContents(QLatin1String("b\n")));
    const QDir open(QLatin1String("/proc/self/fd"));
    foreach (const QFileInfo &entry, open.entryInfoList(QDir::Files | QDir::System))
        QVERIFY2(!entry.symLinkTarget().contains(QLatin1String("sub/file (deleted)")),
                 qPrintable(entry.symLinkTarget()));
}

void tst_DataLogWatching::watchesNoFileOpenedForAppending()
{
    DataLog appending;
    QVERIFY(appending.open(m_log->filepath(), QLatin1String("file")));
    QSignalSpy changes(&appending, SIGNAL(contentsChanged()));
    shell("echo b >>file");
    QVERIFY(waitForContents(QLatin1String("a\nb\n")));
    shell("echo c >>file");
    QVERIFY(waitForContents(QLatin1String("a\nb\nc\n")));
    QCOMPARE(changes.count(), 0);
}

void tst_DataLogWatching::leavesAFileThatWasClosed_data()
{
    QTest::addColumn<QByteArray>("close");
    QTest::newRow("close") << QByteArray("close");
    QTest::newRow("closeReadOnly") << QByteArray("closeReadOnly");
}

void tst_DataLogWatching::leavesAFileThatWasClosed()
{
    QFETCH(QByteArray, close);
    DataLog closed;
    QVERIFY(closed.openReadOnly(m_log->filepath(), QLatin1String("file")));
    QVERIFY(QMetaObject::invokeMethod(&closed, close.constData()));
    QSignalSpy changes(&closed, SIGNAL(contentsChanged()));
    shell("echo b >>file");
    QVERIFY(waitForContents(QLatin1String("a\nb\n")));
    shell("echo c >new; mv new file");
    QVERIFY(waitForContents(QLatin1String("c\n")));
    QCOMPARE(changes.count(), 0);
    QCOMPARE(closed.contents(), QString());
}

void tst_DataLogWatching::watchesTheNextFileInstead()
{
    DataLog witness;
    QVERIFY(witness.openReadOnly(m_log->filepath(), QLatin1String("file")));
    shell("echo 1 >other");
    QVERIFY(m_log->openReadOnly(QString(), QLatin1String("other")));
    QSignalSpy changes(m_log.data(), SIGNAL(contentsChanged()));
    shell("echo b >>file");
    QVERIFY(waitForContents(QLatin1String("a\nb\n"), &witness));
    QCOMPARE(changes.count(), 0);
    shell("echo 2 >>other");
    QVERIFY(waitForContents(QLatin1String("1\n2\n")));
}

/** The watch that close() leaves behind may be on a file that is no longer there. */
void tst_DataLogWatching::watchesAgainAfterAClose()
{
    QFile holder(m_dir->filePath(QLatin1String("sub/file")));
    QVERIFY(holder.open(QIODevice::ReadOnly));
    m_log->close();
    shell("echo b >new; mv new file");
    QVERIFY(m_log->openReadOnly(m_dir->filePath(QLatin1String("sub")), QLatin1String("file")));
    QCOMPARE(m_log->contents(), QString::fromLatin1("b\n"));
    shell("echo c >>file");
    QVERIFY(waitForContents(QLatin1String("b\nc\n")));
}

/** open() does not end the watch of openReadOnly(), which must not change how the file is open. */
void tst_DataLogWatching::keepsAFileOpenedForAppendingOpen()
{
    QVERIFY(m_log->open());
    shell("echo b >>file");
    QVERIFY(waitForContents(QLatin1String("a\nb\n")));
    shell("echo c >>file");
    QVERIFY(waitForContents(QLatin1String("a\nb\nc\n")));
}

QTEST_GUILESS_MAIN(tst_DataLogWatching)
#include "tst_DataLogWatching.moc"

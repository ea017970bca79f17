#include "parsing/DataLog.h"

#include "support/OutputCapture.h"
#include "support/SignalRecorder.h"
#include "support/TempDir.h"
#include "support/TestCompat.h"

#include <QScopedPointer>

namespace
{

QString linesOf(int count)
{
    QString text;
    for (int i = 0; i < count; ++i)
        text += QString::fromLatin1("line %1\n").arg(i);
    return text;
}

} // namespace

/**
 * The item as scripts drive it; tst_DataLogWatching has what others do to its file, and
 * tst_DataLogCalls the calls that come in no sensible order.
 */
class tst_DataLog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void startsEmpty();
    void announcesNewValuesOnly();
    void clearsAlways();
    void appendsLines_data();
    void appendsLines();
    void leavesOutWhatDoesNotFit();
    void readsAFile_data();
    void readsAFile();
    void announcesEachLine();
    void keepsValuesOfEmptyArguments();
    void reopensTheSameFile();
    void readsUnderTheRootDirectory();
    void tellsAFailureOnTheOutput_data();
    void tellsAFailureOnTheOutput();
    void openMakesAFile();
    void openKeepsAFilesText();
    void openFailsQuietly();
    void openTakesTheCurrentValues();
    void refreshReadsAgain();
    void refreshReadsAFileOpenedForAppending();
    void refreshOfAnUnreadableFile();
    void refreshAfterAClose();
    void updatesOnlyForItsFile();
    void closesWithSignals_data();
    void closesWithSignals();
    void closesWhatIsEmptySilently_data();
    void closesWhatIsEmptySilently();
    void closesBeforeAnyFile();
    void closesWhenDestroyed();
    void isSilentWhenDestroyedWithoutAFile();
    void readsInLinearTime();

private:
    bool read(const QByteArray &bytes, const char *name = "file");
    bool isOpen(const char *name) const;

    QScopedPointer<TempDir> m_dir;
    QScopedPointer<DataLog> m_log;
    QScopedPointer<SignalRecorder> m_recorder;
};

void tst_DataLog::init()
{
    m_dir.reset(new TempDir);
    m_log.reset(new DataLog);
    m_recorder.reset(new SignalRecorder(m_log.data()));
}

void tst_DataLog::cleanup()
{
    m_log.reset();
}

/** Writes a file, reads it through the item and forgets the signals. */
bool tst_DataLog::read(const QByteArray &bytes, const char *name)
{
    m_dir->write(QLatin1String(name), bytes);
    const bool done = m_log->openReadOnly(m_dir->path(), QLatin1String(name));
    m_recorder->take();
    return done;
}

/** Whether this program has the file open. */
bool tst_DataLog::isOpen(const char *name) const
{
    const QDir open(QLatin1String("/proc/self/fd"));
    foreach (const QFileInfo &entry, open.entryInfoList(QDir::Files | QDir::System)) {
        if (entry.symLinkTarget() == m_dir->filePath(QLatin1String(name)))
            return true;
    }
    return false;
}

void tst_DataLog::startsEmpty()
{
    QCOMPARE(m_log->filepath(), QString());
    QCOMPARE(m_log->filename(), QString());
    QCOMPARE(m_log->contents(), QString());
    QDeclarativeItem parent;
    QCOMPARE((new DataLog(&parent))->parent(), static_cast<QObject *>(&parent));
}

void tst_DataLog::announcesNewValuesOnly()
{
    m_log->setFilepath(QLatin1String("d"));
    m_log->setFilepath(QLatin1String("d"));
    QCOMPARE(m_recorder->take(), QString::fromLatin1("filepathChanged"));
    m_log->setFilename(QLatin1String("n"));
    m_log->setFilename(QLatin1String("n"));
    QCOMPARE(m_recorder->take(), QString::fromLatin1("filenameChanged"));
    m_log->setContents(QLatin1String("c"));
    m_log->setContents(QLatin1String("c"));
    QCOMPARE(m_recorder->take(), QString::fromLatin1("contentsChanged"));
    QCOMPARE(m_log->filepath() + m_log->filename() + m_log->contents(), QString::fromLatin1("dnc"));
    m_log->setContents(QString());
    m_log->setContents(QLatin1String(""));
    QCOMPARE(m_recorder->take(), QString::fromLatin1("contentsChanged"));
    QCOMPARE(m_log->contents(), QString());
}

void tst_DataLog::clearsAlways()
{
    m_log->setContents(QLatin1String("text"));
    m_recorder->take();
    m_log->clearContents();
    QVERIFY(m_log->contents().isNull());
    m_log->clearContents();
    QCOMPARE(m_recorder->take(), QString::fromLatin1("contentsChanged contentsChanged"));
}

void tst_DataLog::appendsLines_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("contents");

    QTest::newRow("text") << QByteArray("two") << "one\ntwo\n";
    QTest::newRow("empty") << QByteArray() << "one\n\n";
    QTest::newRow("a line feed inside") << QByteArray("2\n3") << "one\n2\n3\n";
    QTest::newRow("bytes above ASCII")
        << QByteArray("\xb5\xe4") << QString::fromUtf8("one\n\xc2\xb5\xc3\xa4\n");
    QTest::newRow("UTF-8 is taken by bytes")
        << QByteArray("\xc3\xa4") << QString::fromUtf8("one\n\xc3\x83\xc2\xa4\n");
    QTest::newRow("zero byte") << QByteArray("a\0b", 3)
                               << QString::fromLatin1("one\na%1b\n").arg(QChar(0));
}

void tst_DataLog::appendsLines()
{
    QFETCH(QByteArray, line);
    m_log->appendLine("one");
    QCOMPARE(m_recorder->take(), QString::fromLatin1("contentsChanged"));
    m_log->appendLine(std::string(line.constData(), size_t(line.size())));
    QTEST(m_log->contents(), "contents");
    QCOMPARE(m_recorder->take(), QString::fromLatin1("contentsChanged"));
}

void tst_DataLog::leavesOutWhatDoesNotFit()
{
    m_log->appendLine("fits");
    m_log->appendLine(std::string(size_t(DataLog::MaxLength) - 5, ' '));
    QCOMPARE(m_log->contents(), QString::fromLatin1("fits\n"));
    QCOMPARE(m_recorder->take(), QString::fromLatin1("contentsChanged"));
}

void tst_DataLog::readsAFile_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("contents");

    QTest::newRow("no final line feed") << QByteArray("a\nb") << "a\nb\n";
    QTest::newRow("final line feed") << QByteArray("a\nb\n") << "a\nb\n";
    QTest::newRow("empty") << QByteArray() << "";
    QTest::newRow("one line feed") << QByteArray("\n") << "\n";
    QTest::newRow("empty lines") << QByteArray("\n\na\n\n") << "\n\na\n\n";
    QTest::newRow("carriage returns stay") << QByteArray("a\r\nb\r") << "a\r\nb\r\n";
    QTest::newRow("Latin-1") << QByteArray("\xb5mol\n") << QString::fromUtf8("\xc2\xb5mol\n");
    QTest::newRow("zero bytes") << QByteArray("a\0\0\nb", 5)
                                << QString::fromLatin1("a%1%1\nb\n").arg(QChar(0));
    QTest::newRow("a long line") << QByteArray(300000, 'x')
                                 << QString(300000, QLatin1Char('x')) + QLatin1Char('\n');
}

void tst_DataLog::readsAFile()
{
    QFETCH(QByteArray, bytes);
    m_log->setContents(QLatin1String("of before"));
    QVERIFY(read(bytes));
    QTEST(m_log->contents(), "contents");
    QCOMPARE(m_log->filepath(), m_dir->path());
    QCOMPARE(m_log->filename(), QString::fromLatin1("file"));
    QVERIFY(isOpen("file"));
}

void tst_DataLog::announcesEachLine()
{
    m_dir->write(QLatin1String("file"), "a\nb");
    QVERIFY(m_log->openReadOnly(m_dir->path(), QLatin1String("file")));
    QCOMPARE(m_recorder->take(),
             QString::fromLatin1("filepathChanged filenameChanged"
                                 " contentsChanged contentsChanged contentsChanged"));
}

void tst_DataLog::keepsValuesOfEmptyArguments()
{
    m_dir->write(QLatin1String("1"), "one\n");
    m_dir->write(QLatin1String("2"), "two\n");
    m_log->setFilepath(m_dir->path());
    QVERIFY(m_log->openReadOnly(QString(), QLatin1String("1")));
    QCOMPARE(m_log->contents(), QString::fromLatin1("one\n"));
    m_log->setFilename(QLatin1String("2"));
    QVERIFY(m_log->openReadOnly(QString(), QString()));
    QCOMPARE(m_log->contents(), QString::fromLatin1("two\n"));
    QVERIFY(!isOpen("1"));
}

void tst_DataLog::reopensTheSameFile()
{
    QVERIFY(read("old\n"));
    m_dir->write(QLatin1String("file"), "new\n");
    QVERIFY(m_log->openReadOnly(QString(), QLatin1String("")));
    QCOMPARE(m_log->contents(), QString::fromLatin1("new\n"));
    QCOMPARE(m_recorder->take(), QString::fromLatin1("contentsChanged contentsChanged"));
}

void tst_DataLog::readsUnderTheRootDirectory()
{
    m_dir->write(QLatin1String("file"), "a\n");
    QVERIFY(m_log->openReadOnly(QString(), m_dir->filePath(QLatin1String("file")).mid(1)));
    QCOMPARE(m_log->filepath(), QString());
    QCOMPARE(m_log->contents(), QString::fromLatin1("a\n"));
}

void tst_DataLog::tellsAFailureOnTheOutput_data()
{
    QTest::addColumn<QString>("directory");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("output");

    QTest::newRow("no such directory")
        << "/nowhere"
        << "none" << QByteArray("***Error: Failed to open /nowhere/none\n");
    QTest::newRow("no directory, no name") << ""
                                           << "" << QByteArray("***Error: Failed to open /\n");
    QTest::newRow("a directory") << "/"
                                 << "proc" << QByteArray("***Error: Failed to open //proc\n");
}

void tst_DataLog::tellsAFailureOnTheOutput()
{
    QFETCH(QString, directory);
    QFETCH(QString, name);
    m_log->setContents(QLatin1String("kept"));
    OutputCapture output;
    QVERIFY(!m_log->openReadOnly(directory, name));
    QTEST(output.text(), "output");
    QCOMPARE(m_log->contents(), QString::fromLatin1("kept"));
    QCOMPARE(m_log->filepath(), directory);
    QCOMPARE(m_log->filename(), name);
    m_log->refresh();
    QCOMPARE(m_log->contents(), QString::fromLatin1("kept"));
}

void tst_DataLog::openMakesAFile()
{
    m_log->setContents(QLatin1String("kept"));
    m_recorder->take();
    QVERIFY(m_log->open(m_dir->path(), QLatin1String("new")));
    QVERIFY(QFile::exists(m_dir->filePath(QLatin1String("new"))));
    QVERIFY(isOpen("new"));
    QCOMPARE(m_recorder->take(), QString::fromLatin1("filepathChanged filenameChanged"));
    QCOMPARE(m_log->contents(), QString::fromLatin1("kept"));
}

void tst_DataLog::openKeepsAFilesText()
{
    const QString path = m_dir->write(QLatin1String("file"), "text");
    QVERIFY(m_log->open(m_dir->path(), QLatin1String("file")));
    m_log->close();
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("text"));
}

void tst_DataLog::openFailsQuietly()
{
    OutputCapture output;
    QVERIFY(!m_log->open(QLatin1String("/nowhere"), QLatin1String("none")));
    QVERIFY(!m_log->open(QString(), QString()));
    QCOMPARE(m_log->filepath(), QString::fromLatin1("/nowhere"));
    m_log->setFilepath(QString());
    m_log->setFilename(QString());
    QVERIFY(!m_log->open());
    QCOMPARE(output.text(), QByteArray());
}

void tst_DataLog::openTakesTheCurrentValues()
{
    QVERIFY(read("a\n"));
    m_log->setFilename(QLatin1String("new"));
    QVERIFY(m_log->open());
    QVERIFY(isOpen("new"));
    QVERIFY(!isOpen("file"));
    QCOMPARE(m_log->contents(), QString::fromLatin1("a\n"));
}

void tst_DataLog::refreshReadsAgain()
{
    m_log->refresh();
    QCOMPARE(m_recorder->take(), QString());
    QVERIFY(read("a\n"));
    m_dir->write(QLatin1String("file"), "b\nc\n");
    m_log->refresh();
    QCOMPARE(m_log->contents(), QString::fromLatin1("b\nc\n"));
    QCOMPARE(m_recorder->take(),
             QString::fromLatin1("contentsChanged contentsChanged contentsChanged"));
}

void tst_DataLog::refreshReadsAFileOpenedForAppending()
{
    m_dir->write(QLatin1String("file"), "a\nb");
    QVERIFY(m_log->open(m_dir->path(), QLatin1String("file")));
    QCOMPARE(m_log->contents(), QString());
    m_log->refresh();
    QCOMPARE(m_log->contents(), QString::fromLatin1("a\nb\n"));
}

void tst_DataLog::refreshOfAnUnreadableFile()
{
    QVERIFY(read("a\n"));
    QVERIFY(QFile::remove(m_dir->filePath(QLatin1String("file"))));
    OutputCapture output;
    m_log->refresh();
    QCOMPARE(m_log->contents(), QString());
    QCOMPARE(m_recorder->take(), QString::fromLatin1("contentsChanged"));
    QCOMPARE(output.text(), QByteArray());
}

void tst_DataLog::refreshAfterAClose()
{
    QVERIFY(read("a\n"));
    m_log->close();
    m_recorder->take();
    m_log->refresh();
    m_log->updateContents(m_dir->filePath(QLatin1String("file")));
    QCOMPARE(m_recorder->take(), QString());
    QCOMPARE(m_log->contents(), QString());
}

void tst_DataLog::updatesOnlyForItsFile()
{
    m_log->updateContents(QString());
    QVERIFY(read("a\n"));
    m_dir->write(QLatin1String("file"), "b\n");
    m_log->updateContents(m_dir->filePath(QLatin1String("other")));
    m_log->updateContents(QLatin1String("file"));
    QCOMPARE(m_recorder->take(), QString());
    QCOMPARE(m_log->contents(), QString::fromLatin1("a\n"));
    m_log->updateContents(m_dir->filePath(QLatin1String("file")));
    QCOMPARE(m_log->contents(), QString::fromLatin1("b\n"));
    m_log->setFilename(QLatin1String("other"));
    m_log->updateContents(m_dir->filePath(QLatin1String("file")));
    QCOMPARE(m_log->contents(), QString::fromLatin1("b\n"));
}

void tst_DataLog::closesWithSignals_data()
{
    QTest::addColumn<QByteArray>("close");
    QTest::newRow("close") << QByteArray("close");
    QTest::newRow("closeReadOnly") << QByteArray("closeReadOnly");
}

void tst_DataLog::closesWithSignals()
{
    QFETCH(QByteArray, close);
    QVERIFY(read("a\n"));
    QVERIFY(QMetaObject::invokeMethod(m_log.data(), close.constData()));
    QCOMPARE(m_recorder->take(),
             QString::fromLatin1("contentsChanged filepathChanged filenameChanged"));
    QCOMPARE(m_log->contents() + m_log->filepath() + m_log->filename(), QString());
    QVERIFY(!isOpen("file"));
    QVERIFY(QMetaObject::invokeMethod(m_log.data(), close.constData()));
    QCOMPARE(m_recorder->take(), QString());
}

void tst_DataLog::closesWhatIsEmptySilently_data()
{
    closesWithSignals_data();
}

void tst_DataLog::closesWhatIsEmptySilently()
{
    QFETCH(QByteArray, close);
    QVERIFY(read(""));
    m_log->setFilepath(QString());
    m_log->setFilename(QString());
    m_recorder->take();
    QVERIFY(QMetaObject::invokeMethod(m_log.data(), close.constData()));
    QCOMPARE(m_recorder->take(), QString());
    QVERIFY(!isOpen("file"));
}

void tst_DataLog::closesBeforeAnyFile()
{
    m_log->close();
    m_log->closeReadOnly();
    QCOMPARE(m_recorder->take(), QString());
    m_log->setFilepath(QLatin1String("d"));
    m_log->setContents(QLatin1String("c"));
    m_recorder->take();
    m_log->closeReadOnly();
    QCOMPARE(m_recorder->take(), QString::fromLatin1("contentsChanged filepathChanged"));
    m_log->setFilename(QLatin1String("n"));
    m_recorder->take();
    m_log->close();
    QCOMPARE(m_recorder->take(), QString::fromLatin1("filenameChanged"));
}

void tst_DataLog::closesWhenDestroyed()
{
    QVERIFY(read("a\n"));
    m_log.reset();
    QCOMPARE(m_recorder->take(),
             QString::fromLatin1("contentsChanged filepathChanged filenameChanged"));
    QVERIFY(!isOpen("file"));
}

void tst_DataLog::isSilentWhenDestroyedWithoutAFile()
{
    m_log->setFilepath(QLatin1String("d"));
    m_recorder->take();
    m_log.reset();
    QCOMPARE(m_recorder->take(), QString());
}

/** Ten times the lines may take a bit more than ten times as long, not a hundred times. */
void tst_DataLog::readsInLinearTime()
{
    const QByteArray lines = linesOf(1000).toLatin1();
    qint64 times[2];
    for (int i = 0; i < 2; ++i) {
        m_dir->write(QLatin1String("file"), lines.repeated(i == 0 ? 100 : 1000));
        QElapsedTimer timer;
        timer.start();
        QVERIFY(m_log->openReadOnly(m_dir->path(), QLatin1String("file")));
        times[i] = qMax(qint64(1), timer.nsecsElapsed());
        QCOMPARE(m_log->contents().size(), lines.size() * (i == 0 ? 100 : 1000));
        m_recorder->take();
    }
    QVERIFY2(times[1] < 40 * times[0], qPrintable(QString::number(times[1] / times[0])));
}

QTEST_GUILESS_MAIN(tst_DataLog)
#include "tst_DataLog.moc"

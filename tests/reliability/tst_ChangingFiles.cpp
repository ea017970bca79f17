// Files that change under the reader, and names that only look harmful.

#include "LongLifeLog.h"

#include "datasource/LogDataSourceItem.h"
#include "model/LogDataSet.h"
#include "support/EventAction.h"
#include "support/TempDir.h"
#include "support/TestCompat.h"

#include <cstdio>

#include <sys/stat.h>
#include <unistd.h>

class tst_ChangingFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void truncatedWhileRead();
    void replacedWhileRead();
    void deletedWhileRead();
    void growingWhileRead();
    void growsForEver();
    void oddNames_data();
    void oddNames();
    void namesThatAreNoText_data();
    void namesThatAreNoText();
    void specialFiles_data();
    void specialFiles();

private:
    int rows() const;
    QByteArray path() const { return QFile::encodeName(m_path); }

    QScopedPointer<TempDir> m_dir;
    QScopedPointer<LogDataSourceItem> m_source;
    QScopedPointer<QSignalSpy> m_errors;
    QString m_path;
};

namespace
{

const int kRows = 20000; // many blocks of the reader

} // namespace

void tst_ChangingFiles::init()
{
    m_dir.reset(new TempDir);
    m_source.reset(new LogDataSourceItem);
    m_errors.reset(new QSignalSpy(m_source.data(), SIGNAL(logFileError(QString))));
    m_path = m_dir->write(QLatin1String("log.txt"), longLifeLog(kRows));
}

int tst_ChangingFiles::rows() const
{
    const QList<LogDataSet *> sets = m_source->parser()->tabularParser().dataSets();
    return sets.isEmpty() ? 0 : sets.at(0)->observationCount();
}

void tst_ChangingFiles::truncatedWhileRead()
{
    const EventAction action([this] { QCOMPARE(truncate(path().constData(), 100), 0); });
    m_source->setLogFilePath(m_path);
    QCOMPARE(action.runs(), 1);
    QCOMPARE(m_errors->count(), 0);
    // What was read ahead counts; there is less than there was, and no garbage.
    QVERIFY(rows() < kRows);
    const QStringList last = m_source->parser()->tabularParser().dataForColumn(0, 0);
    QCOMPARE(last.value(0), QString::fromLatin1("0"));
}

void tst_ChangingFiles::replacedWhileRead()
{
    const QString other = m_dir->write(QLatin1String("other.txt"), longLifeLog(3));
    const EventAction action([this, other] {
        QCOMPARE(std::rename(QFile::encodeName(other).constData(), path().constData()), 0);
    });
    // The file that was opened is read to its end, and the next read takes the new one.
    m_source->setLogFilePath(m_path);
    QCOMPARE(rows(), kRows);
    m_source->setLogFilePath(m_path);
    QCOMPARE(rows(), 3);
    QCOMPARE(m_errors->count(), 0);
}

void tst_ChangingFiles::deletedWhileRead()
{
    const EventAction action([this] { QVERIFY(QFile::remove(m_path)); });
    m_source->setLogFilePath(m_path);
    QCOMPARE(rows(), kRows);
    QCOMPARE(m_errors->count(), 0);
    m_source->setLogFilePath(m_path);
    QCOMPARE(m_errors->count(), 1);
}

void tst_ChangingFiles::growingWhileRead()
{
    m_path = m_dir->write(QLatin1String("log.txt"), longLifeLog(0) + "4\t5\t6\n");
    const EventAction action([this] {
        QFile file(m_path);
        QVERIFY(file.open(QIODevice::Append));
        QCOMPARE(file.write("7\t8\t9\n"), qint64(6));
    });
    m_source->setLogFilePath(m_path);
    QCOMPARE(m_errors->count(), 0);
    QCOMPARE(m_source->parser()->bytesRead(), QFile(m_path).size());
    QCOMPARE(m_source->parser()->tabularParser().dataForColumn(1, 0),
             QStringList() << QLatin1String("1") << QLatin1String("4") << QLatin1String("7"));
}

namespace
{

/** Adds a line to a file whenever events run, which is after each line that is read. */
class Feeder : public QObject
{
public:
    explicit Feeder(const QString &path)
        : m_file(path)
        , m_lines(0)
    {
        m_file.open(QIODevice::Append | QIODevice::Unbuffered);
        startTimer(0);
    }
    int lines() const { return m_lines; }

protected:
    void timerEvent(QTimerEvent *) override
    {
        m_file.write("1\t2\t3\n1\t2\t3\n");
        m_lines += 2;
    }

private:
    QFile m_file;
    int m_lines;
};

} // namespace

/** Two lines come for each that is read: only stop() ends that, and it does. */
void tst_ChangingFiles::growsForEver()
{
    m_path = m_dir->write(QLatin1String("log.txt"), longLifeLog(1));
    const Feeder feeder(m_path);
    struct Stopper : QObject {
        explicit Stopper(LogParser *parser)
            : m_parser(parser)
        {
            startTimer(300);
        }
        void timerEvent(QTimerEvent *) override { m_parser->stop(); }
        LogParser *m_parser;
    } stopper(m_source->parser());
    m_source->setLogFilePath(m_path);
    QVERIFY(feeder.lines() > 10);
    QCOMPARE(m_errors->count(), 1);
    QVERIFY(!m_source->parser()->isParsing());
}

void tst_ChangingFiles::oddNames_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("dash") << QByteArray("-rf");
    QTest::newRow("dashes") << QByteArray("--help");
    QTest::newRow("blanks") << QByteArray("  two  blanks ");
    QTest::newRow("quotes") << QByteArray("\"a\" 'b' `c`");
    QTest::newRow("shell") << QByteArray("$(touch x);a&&b|c>d<e*?[f]~!#");
    QTest::newRow("backslash") << QByteArray("a\\b\\n");
    QTest::newRow("line feed and tab") << QByteArray("a\nb\tc");
    QTest::newRow("control") << QByteArray("a\x01\x1b[2Jb");
    QTest::newRow("percent") << QByteArray("%1%2%20");
    QTest::newRow("UTF-8") << QByteArray("\xc3\xa9\xe2\x82\xac\xf0\x9f\x98\x80");
    QTest::newRow("longest") << QByteArray(255, 'n');
    QTest::newRow("colon") << QByteArray("file:x");
    QTest::newRow("resource") << QByteArray("qrc:x");
}

/** Read when it is there, and named exactly in the error when it is not. */
void tst_ChangingFiles::oddNames()
{
    QFETCH(QByteArray, name);
    const QString path = m_dir->filePath(QString::fromUtf8(name));
    m_source->setLogFilePath(path);
    QCOMPARE(m_errors->count(), 1);
    QCOMPARE(m_errors->at(0).at(0).toString(),
             QLatin1String("LogParser: Failed to open file at path ") + path
                 + QLatin1String(" for reading."));
    QVERIFY(QFile::rename(m_path, path));
    m_source->setLogFilePath(path);
    QCOMPARE(m_errors->count(), 1);
    QCOMPARE(rows(), kRows);
}

void tst_ChangingFiles::namesThatAreNoText_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("Latin-1") << QByteArray("caf\xe9.log");
    QTest::newRow("cut UTF-8") << QByteArray("a\xe2\x82");
    QTest::newRow("half of a pair") << QByteArray("\xed\xa0\x80");
}

/** A path is text, so that the engine's own way of reading names decides whether there is one. */
void tst_ChangingFiles::namesThatAreNoText()
{
    QFETCH(QByteArray, name);
    const QByteArray bytes = QFile::encodeName(m_dir->path()) + '/' + name;
    QCOMPARE(std::rename(path().constData(), bytes.constData()), 0);
    const QString text = QFile::decodeName(bytes);
    const bool isKept = QFile::encodeName(text) == bytes;
    m_source->setLogFilePath(text);
    QCOMPARE(rows(), isKept ? kRows : 0);
    QCOMPARE(m_errors->count(), isKept ? 0 : 1);
    QVERIFY(isKept
            || m_errors->at(0).at(0).toString()
                == QLatin1String("LogParser: Failed to open file at path ") + text
                    + QLatin1String(" for reading."));
    QCOMPARE(std::remove(bytes.constData()), 0);
}

void tst_ChangingFiles::specialFiles_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("endless") << QString::fromLatin1("/dev/zero");
    QTest::newRow("empty device") << QString::fromLatin1("/dev/null");
    QTest::newRow("terminal") << QString::fromLatin1("/dev/tty");
    QTest::newRow("standard input") << QString::fromLatin1("/dev/stdin");
    QTest::newRow("directory") << QString::fromLatin1("/");
    QTest::newRow("named pipe") << QString();
    QTest::newRow("link to a device") << QString::fromLatin1("link");
}

void tst_ChangingFiles::specialFiles()
{
    QFETCH(QString, path);
    if (path.isEmpty()) {
        path = m_dir->filePath(QLatin1String("fifo"));
        QCOMPARE(mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    } else if (path == QLatin1String("link")) {
        path = m_dir->filePath(path);
        QCOMPARE(symlink("/dev/zero", QFile::encodeName(path).constData()), 0);
    }
    QElapsedTimer timer;
    timer.start();
    m_source->setLogFilePath(path);
    QCOMPARE(m_errors->count(), 1);
    QVERIFY2(timer.elapsed() < 2000, QByteArray::number(timer.elapsed()).constData());
    QCOMPARE(rows(), 0);
}

QTEST_MAIN(tst_ChangingFiles)
#include "tst_ChangingFiles.moc"

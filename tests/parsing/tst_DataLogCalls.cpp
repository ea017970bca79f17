#include "parsing/DataLog.h"

#include "support/OutputCapture.h"
#include "support/TempDir.h"
#include "support/TestCompat.h"

#include <QPointer>

namespace
{

/** What a handler of contentsChanged() does, each time or just the first time. */
class Handler : public QObject
{
    Q_OBJECT

public:
    Handler(DataLog *log, const char *action, bool always, const QString &directory)
        : m_log(log)
        , m_action(action)
        , m_always(always)
        , m_directory(directory)
        , m_calls(0)
    {
        connect(log, SIGNAL(contentsChanged()), SLOT(handle()));
    }
    int calls() const { return m_calls; }

private slots:
    void handle()
    {
        if (++m_calls > 1 && !m_always)
            return;
        if (m_action == "refresh")
            m_log->refresh();
        else if (m_action == "openReadOnly")
            m_log->openReadOnly(m_directory, QLatin1String("other"));
        else if (m_action == "open")
            m_log->open(m_directory, QLatin1String("other"));
        else if (m_action == "close")
            m_log->close();
        else if (m_action == "closeReadOnly")
            m_log->closeReadOnly();
        else if (m_action == "updateContents")
            m_log->updateContents(m_log->filepath() + QLatin1Char('/') + m_log->filename());
    }

private:
    DataLog *m_log;
    QByteArray m_action;
    bool m_always;
    QString m_directory;
    int m_calls;
};

/** Deletes the item at the first of a signal. */
class Deleter : public QObject
{
    Q_OBJECT

public:
    Deleter(DataLog *log, const char *signal)
        : m_log(log)
    {
        connect(log, signal, SLOT(remove()));
    }
    bool isDone() const { return m_log == nullptr; }

private slots:
    void remove()
    {
        // The item announces the changes of its closing while it is deleted.
        DataLog *log = m_log;
        m_log = nullptr;
        delete log;
    }

private:
    DataLog *m_log;
};

/** Deletes the item when it has read two lines. */
class MiddleDeleter : public QObject
{
    Q_OBJECT

public:
    explicit MiddleDeleter(DataLog *log)
        : m_log(log)
    {
        connect(log, SIGNAL(contentsChanged()), SLOT(handle()));
    }
    QString contents() const { return m_contents; }

private slots:
    void handle()
    {
        if (!m_log || m_log->contents().count(QLatin1Char('\n')) != 2)
            return;
        DataLog *log = m_log;
        m_contents = log->contents();
        m_log = nullptr;
        delete log;
    }

private:
    DataLog *m_log;
    QString m_contents;
};

const char kText[] = "line 0\nline 1\nline 2\n";

/** What an item must hold after calls, by the simplest account of them. */
class Account
{
public:
    Account()
        : m_isOpen(false)
        , m_missingMade(false)
    {
    }

    QString contents() const { return m_contents; }
    QString name() const { return m_name; }

    void openReadOnly(const char *name)
    {
        m_name = QLatin1String(name);
        m_isOpen = m_name == QLatin1String("file") || m_missingMade;
        refresh();
    }
    void open(const char *name)
    {
        m_name = QLatin1String(name);
        openCurrent();
    }
    void openCurrent()
    {
        m_isOpen = !m_name.isEmpty();
        m_missingMade = m_missingMade || m_name == QLatin1String("missing");
    }
    void close()
    {
        m_isOpen = false;
        m_name.clear();
        m_contents.clear();
    }
    void refresh()
    {
        if (m_isOpen)
            m_contents = QLatin1String(m_name == QLatin1String("file") ? kText : "");
    }
    void updateFile()
    {
        if (m_name == QLatin1String("file"))
            refresh();
    }

private:
    bool m_isOpen;
    bool m_missingMade;
    QString m_name;
    QString m_contents;
};

} // namespace

/** Calls of the item in any order, and out of the handlers of its own signals. */
class tst_DataLogCalls : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void copesWithHandlers_data();
    void copesWithHandlers();
    void copesWithStubbornHandlers_data();
    void copesWithStubbornHandlers();
    void mayBeDeletedByHandlers_data();
    void mayBeDeletedByHandlers();
    void mayBeDeletedInTheMiddleOfARead();
    void copesWithAnyOrder();

private:
    enum { Kinds = 8 };
    void call(int kind, DataLog &log, Account &account) const;

    TempDir m_dir;
};

void tst_DataLogCalls::init()
{
    m_dir.write(QLatin1String("file"), kText);
    m_dir.write(QLatin1String("other"), "o");
    QFile::remove(m_dir.filePath(QLatin1String("missing")));
}

void tst_DataLogCalls::copesWithHandlers_data()
{
    QTest::addColumn<QByteArray>("action");
    QTest::addColumn<QString>("contents");

    QTest::newRow("refresh") << QByteArray("refresh") << kText;
    QTest::newRow("updateContents") << QByteArray("updateContents") << kText;
    QTest::newRow("openReadOnly") << QByteArray("openReadOnly") << "o\n";
    QTest::newRow("open") << QByteArray("open") << "";
    QTest::newRow("close") << QByteArray("close") << "";
    QTest::newRow("closeReadOnly") << QByteArray("closeReadOnly") << "";
}

void tst_DataLogCalls::copesWithHandlers()
{
    QFETCH(QByteArray, action);
    DataLog log;
    const Handler handler(&log, action.constData(), false, m_dir.path());
    QVERIFY(log.openReadOnly(m_dir.path(), QLatin1String("file")));
    QTEST(log.contents(), "contents");
}

void tst_DataLogCalls::copesWithStubbornHandlers_data()
{
    copesWithHandlers_data();
}

void tst_DataLogCalls::copesWithStubbornHandlers()
{
    QFETCH(QByteArray, action);
    DataLog log;
    const Handler handler(&log, action.constData(), true, m_dir.path());
    QVERIFY(log.openReadOnly(m_dir.path(), QLatin1String("file")));
    QTEST(log.contents(), "contents");
    // Reads within reads have an end, and each but the innermost stops at its first signal.
    QVERIFY(handler.calls() <= DataLog::MaxNestedReads + 3);
    QVERIFY(handler.calls() > 0);
}

void tst_DataLogCalls::call(int kind, DataLog &log, Account &account) const
{
    switch (kind) {
    case 0:
        account.openReadOnly("file");
        log.openReadOnly(m_dir.path(), QLatin1String("file"));
        break;
    case 1:
        account.openReadOnly("missing");
        log.openReadOnly(m_dir.path(), QLatin1String("missing"));
        break;
    case 2:
        account.open("file");
        log.open(m_dir.path(), QLatin1String("file"));
        break;
    case 3:
        account.openCurrent();
        log.open();
        break;
    case 4:
        account.close();
        log.close();
        break;
    case 5:
        account.close();
        log.closeReadOnly();
        break;
    case 6:
        account.refresh();
        log.refresh();
        break;
    default:
        account.updateFile();
        log.updateContents(m_dir.filePath(QLatin1String("file")));
    }
}

void tst_DataLogCalls::mayBeDeletedByHandlers_data()
{
    QTest::addColumn<QByteArray>("action");
    QTest::addColumn<QByteArray>("signal");

    const QByteArray signal[]
        = {SIGNAL(contentsChanged()), SIGNAL(filepathChanged()), SIGNAL(filenameChanged())};
    for (int i = 0; i < 3; ++i) {
        const QByteArray name = " at " + signal[i].mid(1);
        QTest::newRow(("close" + name).constData()) << QByteArray("close") << signal[i];
        QTest::newRow(("closeReadOnly" + name).constData())
            << QByteArray("closeReadOnly") << signal[i];
        QTest::newRow(("openReadOnly" + name).constData())
            << QByteArray("openReadOnly") << signal[i];
        if (i > 0)
            QTest::newRow(("open" + name).constData()) << QByteArray("open") << signal[i];
    }
    QTest::newRow("refresh") << QByteArray("refresh") << signal[0];
    QTest::newRow("updateContents") << QByteArray("updateContents") << signal[0];
}

void tst_DataLogCalls::mayBeDeletedByHandlers()
{
    QFETCH(QByteArray, action);
    QFETCH(QByteArray, signal);
    OutputCapture output;
    QVERIFY(QDir().mkpath(m_dir.filePath(QLatin1String("sub"))));
    m_dir.write(QLatin1String("sub/other"), "o");
    DataLog *log = new DataLog;
    QVERIFY(log->openReadOnly(m_dir.path(), QLatin1String("file")));
    const Deleter deleter(log, signal.constData());
    if (action == "open")
        QVERIFY(!log->open(m_dir.filePath(QLatin1String("sub")), QLatin1String("other")));
    else if (action == "openReadOnly")
        log->openReadOnly(m_dir.filePath(QLatin1String("sub")), QLatin1String("other"));
    else if (action == "updateContents")
        log->updateContents(m_dir.filePath(QLatin1String("file")));
    else
        QVERIFY(QMetaObject::invokeMethod(log, action.constData()));
    QVERIFY(deleter.isDone());
    QCOMPARE(output.text(), QByteArray());
}

/** Between two lines, rather than when the contents are emptied. */
void tst_DataLogCalls::mayBeDeletedInTheMiddleOfARead()
{
    DataLog *log = new DataLog;
    log->setFilepath(m_dir.path());
    log->setFilename(QLatin1String("file"));
    QVERIFY(log->open());
    log->appendLine("before");
    QPointer<DataLog> watched(log);
    const MiddleDeleter deleter(log);
    log->refresh();
    QVERIFY(watched.isNull());
    QCOMPARE(deleter.contents(), QString::fromLatin1("line 0\nline 1\n"));
}

/** All sequences of three calls, each on an item of its own. */
void tst_DataLogCalls::copesWithAnyOrder()
{
    OutputCapture output;
    for (int sequence = 0; sequence < Kinds * Kinds * Kinds; ++sequence) {
        init();
        DataLog log;
        Account account;
        for (int rest = sequence, step = 0; step < 3; ++step, rest /= Kinds) {
            call(rest % Kinds, log, account);
            QCOMPARE(log.contents(), account.contents());
            QCOMPARE(log.filename(), account.name());
        }
    }
}

QTEST_GUILESS_MAIN(tst_DataLogCalls)
#include "tst_DataLogCalls.moc"

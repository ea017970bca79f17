#include "RandomCaller.h"

#include "parsing/RandomLog.h"
#include "support/TempDir.h"
#include "support/TestCompat.h"

#include <QApplication>
#include <QQuickWindow>

#include <cstdio>

#include <sys/stat.h>

/**
 * Any sequence of calls, with any arguments, leaves a program running and its data consistent.
 *
 * DATALOG_CALLS tells how many calls are made, DATALOG_SEED where the seeds start: with the seed
 * that a failure names, the same calls are made again.
 */
class tst_RandomCalls : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void calls();

private:
    int run(quint32 seed);
    QString writeRandomLog(quint32 seed);

    TempDir m_dir;
    QStringList m_logs;
};

namespace
{

const int kCallsOfOneSeed = 4000;
const int kCallsBetweenChecks = 10;

int fromEnvironment(const char *name, int otherwise)
{
    const QByteArray text = qgetenv(name);
    return text.isEmpty() ? otherwise : text.toInt();
}

void beQuiet(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (type == QtFatalMsg || text.contains(QLatin1String("QAbstractItemModelTester")))
        std::fprintf(stderr, "%s\n", qPrintable(text));
}

} // namespace

QString tst_RandomCalls::writeRandomLog(quint32 seed)
{
    RandomLog log(seed);
    const QString name = QString::fromLatin1("log%1").arg(seed)
        + QLatin1String(log.separator() == ',' ? ".csv" : ".txt");
    return m_dir.write(name, log.text());
}

void tst_RandomCalls::initTestCase()
{
    QQuickWindow::setSceneGraphBackend(QSGRendererInterface::Software); // needs no display
    for (quint32 seed = 1; seed <= 20; ++seed)
        m_logs << writeRandomLog(seed);
    QByteArray plain("[Header]\nCreated\tnow\nSys:Name\tx\n[Data]\nSys\tSys\tGas\tGas\n"
                     "Obs\tTime\ta\tb\n\ts\tppm\t%\n");
    for (int row = 0; row < 40; ++row) {
        const QByteArray number = QByteArray::number(row);
        plain += number + "\t10:00:" + number.rightJustified(2, '0') + '\t'
            + (row % 9 ? number : "---") + "\t-1.5\n";
    }
    // Most loads bring something to plot.
    const QString path = m_dir.write(QLatin1String("plain.txt"), plain + plain);
    for (int i = 0; i < 20; ++i)
        m_logs << path;
    const QString fifo = m_dir.filePath(QLatin1String("fifo"));
    QCOMPARE(mkfifo(QFile::encodeName(fifo).constData(), 0600), 0);
    m_logs << fifo << m_dir.path() << QString() << QLatin1String("/dev/zero")
           << m_dir.filePath(QLatin1String("missing"));
}

/** Makes one caller's calls; fails the test where something breaks. */
int tst_RandomCalls::run(quint32 seed)
{
    std::fprintf(stderr, "seed %u\n", seed);
    RandomCaller caller(seed, m_dir.path(), m_logs);
    for (int step = 0; step < kCallsOfOneSeed; ++step) {
        caller.step();
        const QString broken = step % kCallsBetweenChecks ? QString() : caller.broken();
        if (!broken.isEmpty() || QTest::currentTestFailed()) {
            const QString history = caller.history().join(QLatin1String("\n"));
            QTest::qFail(
                qPrintable(
                    QString::fromLatin1("seed %1: %2 after\n%3").arg(seed).arg(broken, history)),
                __FILE__, __LINE__);
            break;
        }
    }
    return caller.calls();
}

void tst_RandomCalls::calls()
{
    const int wanted = fromEnvironment("DATALOG_CALLS", 8000);
    quint32 seed = quint32(fromEnvironment("DATALOG_SEED", 1));
    qInstallMessageHandler(&beQuiet);
    int calls = 0;
    while (calls < wanted && !QTest::currentTestFailed())
        calls += run(seed++);
    qInstallMessageHandler(nullptr);
    std::fprintf(stderr, "%d calls\n", calls);
    QVERIFY(calls >= wanted);
}

QTEST_MAIN(tst_RandomCalls)
#include "tst_RandomCalls.moc"

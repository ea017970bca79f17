// The system may have no process to give. What the engine then takes for one must not be killed:
// it stands for every process there is.

#include "FakePython.h"
#include "parsing/SpreadsheetConverter.h"
#include "support/TestCompat.h"

#include <QProcess>

#include <cerrno>
#include <csignal>
#include <cstddef>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sched.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace
{

volatile std::sig_atomic_t g_kills = 0;

void countKill(int)
{
    ++g_kills;
}

const quint32 kNoMore = SECCOMP_RET_ERRNO | EAGAIN;
const quint32 kUnknown = SECCOMP_RET_ERRNO | ENOSYS; // threads are then made the older way

sock_filter load(std::size_t offset)
{
    const sock_filter statement = {BPF_LD | BPF_W | BPF_ABS, 0, 0, quint32(offset)};
    return statement;
}
sock_filter answer(quint32 value)
{
    const sock_filter statement = {BPF_RET | BPF_K, 0, 0, value};
    return statement;
}
sock_filter skipUnlessCall(quint32 call, quint8 statements)
{
    const sock_filter statement = {BPF_JMP | BPF_JEQ | BPF_K, 0, statements, call};
    return statement;
}
sock_filter skipUnlessSet(quint32 bits, quint8 statements)
{
    const sock_filter statement = {BPF_JMP | BPF_JSET | BPF_K, 0, statements, bits};
    return statement;
}

/** From now on this process starts threads only, and its kills are counted instead of done. */
bool forbidProcesses()
{
    std::signal(SIGSYS, countKill);
    sock_filter statements[] = {
        load(offsetof(seccomp_data, nr)),
        skipUnlessCall(SYS_kill, 1),
        answer(SECCOMP_RET_TRAP),
        skipUnlessCall(SYS_clone3, 1),
        answer(kUnknown),
#ifdef SYS_vfork
        skipUnlessCall(SYS_vfork, 1),
        answer(kNoMore),
#endif
        skipUnlessCall(SYS_clone, 4),
        load(offsetof(seccomp_data, args)),
        skipUnlessSet(CLONE_THREAD, 1),
        answer(SECCOMP_RET_ALLOW),
        answer(kNoMore),
        answer(SECCOMP_RET_ALLOW),
    };
    sock_fprog program = {sizeof(statements) / sizeof(*statements), statements};
    return prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0
        && prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) == 0;
}

enum Outcome { Fine, NotPermitted, NoConversion, ConvertedSomething, Killed, CountsNoKills };

const char kChild[] = "--without-processes";

/** In a program of its own, which is spoilt for anything else. */
Outcome convertWithoutProcesses()
{
    alarm(20);
    SpreadsheetConverter converter;
    converter.setTimeout(2000);
    if (converter.convert(QLatin1String("a.xls")) != QLatin1String("converted.csv"))
        return NoConversion;
    // The engine may then wait for what it finds on the stack for a descriptor: let many be ones on
    // which nothing ever happens.
    int ends[2];
    for (int i = 0; i < 50; ++i) {
        if (pipe(ends) != 0)
            return NotPermitted;
    }
    if (!forbidProcesses())
        return NotPermitted;
    if (!converter.convert(QLatin1String("a.xls")).isEmpty())
        return ConvertedSomething;
    if (g_kills > 0)
        return Killed;
    kill(getpid(), 0);
    return g_kills == 1 ? Fine : CountsNoKills;
}

} // namespace

class tst_ConverterWithoutProcesses : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void convertsNothingAndKillsNothing();
};

/** Many times, for what is on a stack differs from run to run. */
void tst_ConverterWithoutProcesses::convertsNothingAndKillsNothing()
{
    const FakePython python("echo converted.csv");
    const QString program = QCoreApplication::applicationFilePath();
    for (int i = 0; i < 20; ++i) {
        const int outcome = QProcess::execute(program, QStringList() << QLatin1String(kChild));
        if (outcome == NotPermitted)
            SKIP_TEST("This process may not give up a right.");
        QCOMPARE(outcome, int(Fine));
    }
}

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    if (argc == 2 && qstrcmp(argv[1], kChild) == 0)
        _exit(convertWithoutProcesses());
    tst_ConverterWithoutProcesses test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_ConverterWithoutProcesses.moc"

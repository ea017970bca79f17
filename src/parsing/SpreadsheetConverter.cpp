#include "parsing/SpreadsheetConverter.h"

#include "declarative/ProcessCompat.h"

#include <QElapsedTimer>
#include <QList>
#include <QScopedPointer>
#include <QStringList>

namespace
{

const char kInterpreter[] = "python";
const char kScript[] = "/home/tarvo/Scripts/ExcelToCSV.py";
const char kNowhere[] = "/dev/null";

/** What the script prints until it ends, is late, or printed more than a path can be. */
QByteArray outputOf(QProcess &script, int timeout)
{
    QElapsedTimer timer;
    timer.start();
    QByteArray output;
    int left = timeout;
    while (script.state() != QProcess::NotRunning && left > 0
           && output.size() <= SpreadsheetConverter::MaxOutput) {
        // Output that is closed leaves but the end to wait for.
        if (!script.waitForReadyRead(left))
            script.waitForFinished(qMax(0, timeout - int(timer.elapsed())));
        output += script.readAllStandardOutput();
        left = timeout - int(timer.elapsed());
    }
    return output + script.readAllStandardOutput();
}

/** For those that must be neither killed nor destroyed. */
void keepForEver(QProcess *process)
{
    static QList<QProcess *> *const kept = new QList<QProcess *>;
    kept->append(process);
}

} // namespace

SpreadsheetConverter::SpreadsheetConverter()
    : m_timeout(DefaultTimeout)
{
}

QString SpreadsheetConverter::convert(const QString &path) const
{
    QScopedPointer<QProcess> script(new QProcess);
    script->setStandardErrorFile(QLatin1String(kNowhere));
    script->start(QLatin1String(kInterpreter), QStringList() << QLatin1String(kScript) << path,
                  QIODevice::ReadWrite);
    if (Compat::isPhantom(*script)) {
        keepForEver(script.take());
        return QString();
    }
    const QByteArray output = outputOf(*script, m_timeout);
    if (script->state() != QProcess::NotRunning) {
        script->kill();
        script->waitForFinished();
    }
    if (output.size() > MaxOutput)
        return QString();
    // The C string ends at the first zero byte, whatever the script printed after it.
    return QString::fromLatin1(output.constData()).simplified();
}

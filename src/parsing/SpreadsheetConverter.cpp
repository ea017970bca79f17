#include "parsing/SpreadsheetConverter.h"

#include <QProcess>
#include <QStringList>

namespace
{

const char kInterpreter[] = "python";
const char kScript[] = "/home/tarvo/Scripts/ExcelToCSV.py";

} // namespace

SpreadsheetConverter::SpreadsheetConverter()
    : m_timeout(DefaultTimeout)
{
}

QString SpreadsheetConverter::convert(const QString &path) const
{
    QProcess script;
    script.start(QLatin1String(kInterpreter), QStringList() << QLatin1String(kScript) << path,
                 QIODevice::ReadWrite);
    if (!script.waitForFinished(m_timeout) && script.state() != QProcess::NotRunning) {
        script.kill();
        script.waitForFinished();
    }
    // The C string ends at the first zero byte, whatever the script printed after it.
    return QString::fromLatin1(script.readAllStandardOutput().constData()).simplified();
}

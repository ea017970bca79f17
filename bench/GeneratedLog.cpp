#include "bench/GeneratedLog.h"

#include "bench/LogWriter.h"

#include <QDir>

namespace
{

int sizeFromEnvironment(const char *name, int least, int otherwise)
{
    const QByteArray text = qgetenv(name);
    if (text.isEmpty())
        return otherwise;
    bool ok = false;
    const int size = text.toInt(&ok);
    if (!ok || size < least)
        qFatal("%s must be a number from %d up, not %s", name, least, text.constData());
    return size;
}

} // namespace

const GeneratedLog &GeneratedLog::instance()
{
    static const GeneratedLog log;
    return log;
}

GeneratedLog::GeneratedLog()
    : m_file(QDir::tempPath() + QLatin1String("/datalog-bench-XXXXXX.log"))
    , m_rows(sizeFromEnvironment("DATALOG_BENCH_ROWS", 1, 100000))
    , m_columns(sizeFromEnvironment("DATALOG_BENCH_COLUMNS", 2, 20))
    , m_bytes(0)
{
    if (!m_file.open() || !LogWriter(m_rows, m_columns).write(&m_file) || !m_file.flush())
        qFatal("Failed to write a log: %s", qPrintable(m_file.errorString()));
    m_bytes = m_file.size();
}

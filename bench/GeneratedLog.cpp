#include "bench/GeneratedLog.h"

#include "bench/BenchmarkSize.h"
#include "bench/LogWriter.h"

#include <QDir>

const GeneratedLog &GeneratedLog::instance()
{
    static const GeneratedLog log(BenchmarkSize::rows(), BenchmarkSize::columns());
    return log;
}

GeneratedLog::GeneratedLog(int rows, int columns)
    : m_file(QDir::tempPath() + QLatin1String("/datalog-bench-XXXXXX.log"))
    , m_rows(rows)
    , m_columns(columns)
    , m_bytes(0)
{
    if (!m_file.open() || !LogWriter(m_rows, m_columns).write(&m_file) || !m_file.flush())
        qFatal("Failed to write a log: %s", qPrintable(m_file.errorString()));
    m_bytes = m_file.size();
}

#ifndef DATALOG_BENCH_GENERATEDLOG_H
#define DATALOG_BENCH_GENERATEDLOG_H

#include <QString>
#include <QTemporaryFile>

/** A log in a temporary file. */
class GeneratedLog
{
public:
    GeneratedLog(int rows, int columns);

    /** What the cases of a benchmark share: of BenchmarkSize, made at first use. */
    static const GeneratedLog &instance();

    QString path() const { return m_file.fileName(); }
    int rows() const { return m_rows; }
    int columns() const { return m_columns; }
    qint64 cells() const { return qint64(m_rows) * m_columns; }
    qint64 bytes() const { return m_bytes; }

private:
    QTemporaryFile m_file;
    int m_rows;
    int m_columns;
    qint64 m_bytes;
};

#endif

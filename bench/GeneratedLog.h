#ifndef DATALOG_BENCH_GENERATEDLOG_H
#define DATALOG_BENCH_GENERATEDLOG_H

#include <QString>
#include <QTemporaryFile>

/**
 * The log that all cases of a benchmark read: made at first use, removed at the end.
 *
 * The environment sizes it: DATALOG_BENCH_ROWS (100000 unless told) and DATALOG_BENCH_COLUMNS (20).
 */
class GeneratedLog
{
public:
    static const GeneratedLog &instance();

    QString path() const { return m_file.fileName(); }
    int rows() const { return m_rows; }
    int columns() const { return m_columns; }
    qint64 cells() const { return qint64(m_rows) * m_columns; }
    qint64 bytes() const { return m_bytes; }

private:
    GeneratedLog();

    QTemporaryFile m_file;
    int m_rows;
    int m_columns;
    qint64 m_bytes;
};

#endif

#ifndef DATALOG_BENCH_LOGWRITER_H
#define DATALOG_BENCH_LOGWRITER_H

#include <QByteArray>
#include <QString>
#include <QVector>

class QIODevice;

/**
 * Writes logs of any size for measuring: one block, separated by tabs. The first column counts the
 * observations, the second is the clock time, and each other one wanders like a measured value, in
 * numbers of six or seven characters: a row of 20 columns has some 146 bytes.
 *
 * The same size always gives the same bytes.
 */
class LogWriter
{
public:
    /** @param columns at least 2. */
    LogWriter(int rows, int columns);

    int rows() const { return m_rows; }
    int columns() const { return m_columns; }
    /** Replaces the file at @p path. False when that fails, with the cause in @p error. */
    bool write(const QString &path, QString *error) const;
    /** Writes to a device that is open; false when it takes less than all. */
    bool write(QIODevice *device) const;

private:
    QByteArray preamble() const;
    QVector<int> firstValues() const;

    int m_rows;
    int m_columns;
};

#endif

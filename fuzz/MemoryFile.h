#ifndef DATALOG_FUZZ_MEMORYFILE_H
#define DATALOG_FUZZ_MEMORYFILE_H

#include <QByteArray>
#include <QString>

/** Bytes as a regular file that never touches a disk, for code that opens a path. Linux only. */
class MemoryFile
{
public:
    explicit MemoryFile(const QByteArray &bytes);
    ~MemoryFile();

    QString path() const;

private:
    Q_DISABLE_COPY(MemoryFile)
    int m_descriptor;
};

#endif

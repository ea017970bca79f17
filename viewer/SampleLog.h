#ifndef DATALOG_VIEWER_SAMPLELOG_H
#define DATALOG_VIEWER_SAMPLELOG_H

#include <QTemporaryDir>

/**
 * The log that is shown while nobody named one. It travels inside the program and is put into a
 * directory of its own, which goes with this object, because logs are read from files.
 */
class SampleLog
{
public:
    SampleLog();

    /** Empty when the file could not be made. */
    QString path() const { return m_path; }

private:
    QTemporaryDir m_directory;
    QString m_path;
};

#endif

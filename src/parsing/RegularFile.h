#ifndef DATALOG_PARSING_REGULARFILE_H
#define DATALOG_PARSING_REGULARFILE_H

#include <QFile>

/**
 * A file that is opened only when a regular file stands at its path, or, for writing, nothing yet.
 *
 * Only regular files have an end and open without waiting for somebody: a named pipe would hold
 * the user interface until another process opens its other end, and a device may never stop giving
 * bytes. Links count as what they lead to.
 */
class RegularFile : public QFile
{
public:
    explicit RegularFile(const QString &path)
        : QFile(path)
    {
    }

    /** Whether a regular file stands at @p path now. */
    static bool standsAt(const QString &path);
    /** Whether a regular file stands at @p path, or nothing that one would have to replace. */
    static bool mayStandAt(const QString &path);

    bool open(OpenMode mode) override;

private:
    Q_DISABLE_COPY(RegularFile)
};

#endif

#ifndef DATALOG_VIEWER_WHOLEFILE_H
#define DATALOG_VIEWER_WHOLEFILE_H

#include <QCoreApplication>

#include <functional>

class QIODevice;

/**
 * Files that are written whole or stay as they were. What is there already must be an ordinary
 * file: devices and directories are left alone.
 */
class WholeFile
{
    Q_DECLARE_TR_FUNCTIONS(WholeFile)

public:
    /** Writes the content; false when it could not. */
    typedef std::function<bool(QIODevice *)> Writer;

    /** False with the reason in @p error when the file at @p path stayed as it was. */
    static bool write(const QString &path, const QByteArray &content, QString *error);
    /** The same for content that is made while it is written. */
    static bool write(const QString &path, const Writer &writer, QString *error);
};

#endif

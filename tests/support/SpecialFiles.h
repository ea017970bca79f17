#ifndef DATALOG_TESTS_SUPPORT_SPECIALFILES_H
#define DATALOG_TESTS_SUPPORT_SPECIALFILES_H

#include "support/TempDir.h"

#include <QStringList>

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

/**
 * Things that have a path but are no regular files, made in a directory. Whoever opens the pipes
 * waits for ever, since nobody is at their other end.
 */
class SpecialFiles
{
public:
    explicit SpecialFiles(const TempDir &dir)
        : m_dir(dir)
    {
        makePipe("pipe");
        QFile::link(path("pipe"), path("link to a pipe"));
        makeSocket("socket");
        QFile::link(QLatin1String("/dev/zero"), path("link to a device"));
    }

    QStringList names() const
    {
        return QStringList() << QLatin1String("pipe") << QLatin1String("link to a pipe")
                             << QLatin1String("socket") << QLatin1String("link to a device");
    }

    /** Whether all of them are still what they were made as. */
    bool areThere() const
    {
        return type("pipe") == S_IFIFO && type("link to a pipe") == S_IFIFO
            && type("socket") == S_IFSOCK && type("link to a device") == S_IFCHR;
    }

private:
    QString path(const char *name) const { return m_dir.filePath(QLatin1String(name)); }
    QByteArray bytes(const char *name) const { return QFile::encodeName(path(name)); }

    void makePipe(const char *name) const
    {
        if (mkfifo(bytes(name).constData(), 0600) != 0)
            qFatal("No pipe could be made.");
    }

    void makeSocket(const char *name) const
    {
        sockaddr_un address = sockaddr_un();
        address.sun_family = AF_UNIX;
        qstrncpy(address.sun_path, bytes(name).constData(), sizeof(address.sun_path));
        const int socket = ::socket(AF_UNIX, SOCK_STREAM, 0);
        if (bind(socket, reinterpret_cast<const sockaddr *>(&address), sizeof(address)) != 0)
            qFatal("No socket could be made.");
        ::close(socket);
    }

    mode_t type(const char *name) const
    {
        struct stat status;
        return stat(bytes(name).constData(), &status) == 0 ? status.st_mode & S_IFMT : 0;
    }

    const TempDir &m_dir;
};

#endif

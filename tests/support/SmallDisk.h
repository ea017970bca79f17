#ifndef DATALOG_TESTS_SUPPORT_SMALLDISK_H
#define DATALOG_TESTS_SUPPORT_SMALLDISK_H

#include "support/TempDir.h"

#include <cstdio>
#include <linux/capability.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/syscall.h>
#include <unistd.h>

/**
 * A real disk, in memory, of a few pages: it can be full, and it can be read-only, for the
 * super-user too. Nobody but the test's process sees it.
 */
class SmallDisk
{
public:
    /**
     * Call it before there is any thread. Where the system does not let this process have disks of
     * its own, isThere() is false ever after.
     */
    static void allow()
    {
        if (unshare(CLONE_NEWNS) != 0)
            becomeOwnersOfASpace();
        mount("none", "/", "none", MS_REC | MS_PRIVATE, nullptr);
    }

    explicit SmallDisk(int kilobytes = 64)
    {
        char options[32];
        std::snprintf(options, sizeof(options), "size=%dk,mode=777", kilobytes);
        m_isThere = mount("small", bytes().constData(), "tmpfs", 0, options) == 0;
    }
    ~SmallDisk()
    {
        if (m_isThere)
            umount2(bytes().constData(), MNT_DETACH);
    }

    bool isThere() const { return m_isThere; }
    const TempDir &dir() const { return m_dir; }
    QString filePath(const char *name) const { return m_dir.filePath(QLatin1String(name)); }

    /** Leaves no room for a byte. */
    bool fill() const
    {
        QFile file(filePath("filler"));
        const QByteArray page(4096, 'x');
        if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
            return false;
        while (file.write(page) == page.size()) { }
        return file.size() > 0;
    }
    bool makeReadOnly() const
    {
        return mount("none", bytes().constData(), "none", MS_REMOUNT | MS_RDONLY, nullptr) == 0;
    }
    /** All names but the filler's. */
    QStringList names() const
    {
        QStringList names
            = QDir(m_dir.path())
                  .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
        names.removeAll(QLatin1String("filler"));
        return names;
    }

private:
    Q_DISABLE_COPY(SmallDisk)

    /** Whoever may not mount may often still do so in a space of users of one's own. */
    static void becomeOwnersOfASpace()
    {
        const QByteArray user = QByteArray::number(uint(geteuid()));
        const QByteArray group = QByteArray::number(uint(getegid()));
        if (unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0)
            return;
        writeMap("/proc/self/setgroups", "deny");
        writeMap("/proc/self/uid_map", user + ' ' + user + " 1");
        writeMap("/proc/self/gid_map", group + ' ' + group + " 1");
        keepTheRightToMount();
    }
    /** With the others permissions of files would mean nothing. */
    static void keepTheRightToMount()
    {
        __user_cap_header_struct header = {_LINUX_CAPABILITY_VERSION_3, 0};
        __user_cap_data_struct data[_LINUX_CAPABILITY_U32S_3] = {};
        data[0].effective = data[0].permitted = 1u << CAP_SYS_ADMIN;
        syscall(SYS_capset, &header, data);
    }
    static void writeMap(const char *path, const QByteArray &text)
    {
        QFile file(QString::fromLatin1(path));
        if (file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
            file.write(text);
    }

    QByteArray bytes() const { return QFile::encodeName(m_dir.path()); }

    TempDir m_dir;
    bool m_isThere;
};

#endif

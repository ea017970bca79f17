#include "parsing/ReplacedFile.h"

#include "parsing/RegularFile.h"

#include <QFileInfo>
#include <QTemporaryFile>

#include <cstdio>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

/** Writes to the disk itself, as only that tells whether there is room for it. */
bool put(QFile *file, const QByteArray &content)
{
    return file->write(content) == content.size() && file->flush() && fsync(file->handle()) == 0;
}

/** What a new file may be used for, as the program's user wants it. */
mode_t newFileMode()
{
    const mode_t mask = umask(0077);
    umask(mask);
    return 0666 & ~mask;
}

/** Cut to its size again only when all is there: that never needs room. */
bool overwrite(const QString &path, const QByteArray &content)
{
    RegularFile file(path);
    if (!file.open(QIODevice::ReadWrite))
        return false;
    const qint64 oldSize = file.size();
    const QByteArray old = file.read(content.size());
    if (file.seek(0) && put(&file, content))
        return file.resize(content.size());
    file.close(); // forgets what could not be written
    if (file.open(QIODevice::ReadWrite))
        put(&file, old);
    file.resize(oldSize);
    return false;
}

/** Makes @p file like what it is to replace; false when it would differ in more than its bytes. */
bool imitate(const QTemporaryFile &file, const QString &path)
{
    struct stat old;
    if (stat(QFile::encodeName(path).constData(), &old) != 0)
        return fchmod(file.handle(), newFileMode()) == 0;
    struct stat replacement;
    return old.st_nlink == 1 && fstat(file.handle(), &replacement) == 0
        && replacement.st_uid == old.st_uid && replacement.st_gid == old.st_gid
        && fchmod(file.handle(), old.st_mode & 07777) == 0;
}

bool moveTo(QTemporaryFile *file, const QString &path)
{
    const QByteArray from = QFile::encodeName(file->fileName());
    const bool isMoved = std::rename(from.constData(), QFile::encodeName(path).constData()) == 0;
    file->setAutoRemove(!isMoved);
    return isMoved;
}

bool isWritable(const QString &path)
{
    return RegularFile(path).open(QIODevice::Append);
}

} // namespace

bool ReplacedFile::write(const QString &path, const QByteArray &content)
{
    if (!RegularFile::mayStandAt(path))
        return false;
    const QFileInfo there(path);
    // A link that leads nowhere yet is not what is to be replaced.
    if (there.isSymLink() && !there.exists())
        return overwrite(path, content);
    if (there.exists() && !isWritable(path))
        return false;
    const QString place = there.exists() ? there.canonicalFilePath() : there.absoluteFilePath();
    QTemporaryFile file(QFileInfo(place).absolutePath() + QLatin1String("/.datalogXXXXXX"));
    if (!file.open() || !imitate(file, place))
        return overwrite(place, content);
    return put(&file, content) && moveTo(&file, place);
}

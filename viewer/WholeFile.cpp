#include "viewer/WholeFile.h"

#include <QFile>
#include <QSaveFile>

#include <sys/stat.h>

namespace
{

/** A device, a pipe or the like. Directories are refused by whoever opens the file. */
bool isSpecial(const QString &path)
{
    struct stat there;
    return stat(QFile::encodeName(path).constData(), &there) == 0 && !S_ISREG(there.st_mode)
        && !S_ISDIR(there.st_mode);
}

} // namespace

bool WholeFile::write(const QString &path, const QByteArray &content, QString *error)
{
    return write(
        path, [&content](QIODevice *device) { return device->write(content) == content.size(); },
        error);
}

bool WholeFile::write(const QString &path, const Writer &writer, QString *error)
{
    // The new file would take its place.
    if (isSpecial(path)) {
        *error = tr("it is no ordinary file");
        return false;
    }
    QSaveFile file(path);
    // What only commit() would write may fail unnoticed, and a file cut short take the place.
    const bool isWritten
        = file.open(QIODevice::WriteOnly) && writer(&file) && file.flush() && file.commit();
    // Where only a part of a block found room, there is no error to the system.
    if (!isWritten)
        *error
            = file.error() == QFile::NoError ? tr("there is no room for it") : file.errorString();
    return isWritten;
}

#include "parsing/RegularFile.h"

#include <QFileInfo>

namespace
{

/** To ask the engine for a file without a name, or with a zero in it, is worth a warning to it. */
bool canBeAFile(const QString &path)
{
    return !path.isEmpty() && !path.contains(QChar(0));
}

} // namespace

bool RegularFile::standsAt(const QString &path)
{
    return canBeAFile(path) && QFileInfo(path).isFile();
}

bool RegularFile::mayStandAt(const QString &path)
{
    return canBeAFile(path) && (!QFile::exists(path) || QFileInfo(path).isFile());
}

bool RegularFile::open(OpenMode mode)
{
    const QString path = fileName();
    return ((mode & WriteOnly) ? mayStandAt(path) : standsAt(path)) && QFile::open(mode);
}

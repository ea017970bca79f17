#ifndef DATALOG_TESTS_SUPPORT_TEMPDIR_H
#define DATALOG_TESTS_SUPPORT_TEMPDIR_H

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QString>

#include <cstdio>
#include <cstdlib>
#include <ftw.h>

/**
 * A new directory for a test's files, removed with all that is in it. The older engine has no such
 * class.
 */
class TempDir
{
public:
    TempDir()
    {
        QByteArray pattern = QFile::encodeName(QDir::tempPath() + QLatin1String("/datalogXXXXXX"));
        if (mkdtemp(pattern.data()))
            m_path = QFile::decodeName(pattern);
    }

    ~TempDir()
    {
        if (!m_path.isEmpty())
            removeTree(m_path);
    }

    QString path() const { return m_path; }
    QString filePath(const QString &name) const { return m_path + QLatin1Char('/') + name; }

    /** Writes a file and returns its path, or nothing when that fails. */
    QString write(const QString &name, const QByteArray &bytes) const
    {
        QFile file(filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            return QString();
        return file.fileName();
    }

private:
    Q_DISABLE_COPY(TempDir)

    static int removeEntry(const char *path, const struct stat *, int, struct FTW *)
    {
        return std::remove(path);
    }
    /** By the system's own names: those that are no text can't be told to the engine. */
    static void removeTree(const QString &path)
    {
        nftw(QFile::encodeName(path).constData(), removeEntry, 16, FTW_DEPTH | FTW_PHYS);
    }

    QString m_path;
};

#endif

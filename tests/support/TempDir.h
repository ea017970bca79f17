#ifndef DATALOG_TESTS_SUPPORT_TEMPDIR_H
#define DATALOG_TESTS_SUPPORT_TEMPDIR_H

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QString>

#include <cstdlib>

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

    static void removeTree(const QString &path)
    {
        const QDir::Filters all
            = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
        const QFileInfoList entries = QDir(path).entryInfoList(all);
        for (int i = 0; i < entries.size(); ++i) {
            const QFileInfo &entry = entries.at(i);
            if (entry.isDir() && !entry.isSymLink())
                removeTree(entry.filePath());
            else
                QFile::remove(entry.filePath());
        }
        QDir().rmdir(path);
    }

    QString m_path;
};

#endif

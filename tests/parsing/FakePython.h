#ifndef DATALOG_TESTS_PARSING_FAKEPYTHON_H
#define DATALOG_TESTS_PARSING_FAKEPYTHON_H

#include "support/TempDir.h"

#include <QList>

#include <cstdlib>

/**
 * Stands in for the interpreter as long as it lives: a shell script that comes first in PATH, notes
 * the arguments it is called with, and goes on as told.
 */
class FakePython
{
public:
    /** @param body shell commands; "$FAKE" is a directory for the script's own files. */
    explicit FakePython(const QByteArray &body)
        : m_path(qgetenv("PATH"))
    {
        const QByteArray directory = QFile::encodeName(m_dir.path());
        const QByteArray script = "#!/bin/sh\nFAKE='" + directory
            + "'\nfor argument in \"$@\"; do printf '%s\\0' \"$argument\"; done > "
              "\"$FAKE/arguments\"\n"
            + body + "\n";
        const QString file = m_dir.write(QLatin1String("python"), script);
        QFile::setPermissions(file, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        qputenv("PATH", directory + ":" + m_path);
    }
    ~FakePython() { qputenv("PATH", m_path); }

    QString filePath(const QString &name) const { return m_dir.filePath(name); }
    QByteArray fileContents(const QString &name) const
    {
        QFile file(filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    /** The arguments of the last call, in the encoding of file names. */
    QList<QByteArray> arguments() const
    {
        QList<QByteArray> texts = fileContents(QLatin1String("arguments")).split('\0');
        texts.removeLast(); // behind the last zero byte
        return texts;
    }

private:
    TempDir m_dir;
    QByteArray m_path;
};

/** PATH as told for as long as it lives. */
class OtherPath
{
public:
    explicit OtherPath(const QByteArray &path)
        : m_path(qgetenv("PATH"))
    {
        qputenv("PATH", path);
    }
    ~OtherPath() { qputenv("PATH", m_path); }

private:
    QByteArray m_path;
};

#endif

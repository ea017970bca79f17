#include "parsing/DataLog.h"

#include "parsing/RegularFile.h"

#include <QDir>
#include <QPointer>

#include <fstream>
#include <iostream>

DataLog::DataLog(QDeclarativeItem *parent)
    : QDeclarativeItem(parent)
    , m_openMode(QIODevice::Append)
    , m_follower(&m_watcher)
    , m_currentRead(0)
    , m_readDepth(0)
{
    connect(&m_watcher, SIGNAL(fileChanged(QString)), SLOT(updateContents(QString)));
    connect(&m_follower, SIGNAL(targetChanged(QString)), SLOT(updateContents(QString)));
}

DataLog::~DataLog()
{
    if (m_file)
        close();
}

void DataLog::setFilepath(const QString &filepath)
{
    if (filepath == m_filepath)
        return;
    m_filepath = filepath;
    emit filepathChanged();
}

void DataLog::setFilename(const QString &filename)
{
    if (filename == m_filename)
        return;
    m_filename = filename;
    emit filenameChanged();
}

void DataLog::setContents(const QString &contents)
{
    if (contents == m_contents)
        return;
    m_contents = contents;
    emit contentsChanged();
}

void DataLog::clearContents()
{
    m_contents = QString();
    emit contentsChanged();
}

void DataLog::appendLine(const std::string &line)
{
    if (line.size() >= size_t(MaxLength) - size_t(m_contents.size()))
        return;
    m_contents.append(QString::fromLatin1(line.data(), int(line.size())));
    m_contents.append(QLatin1Char('\n'));
    emit contentsChanged();
}

bool DataLog::open(const QString &path, const QString &name)
{
    return takeNonEmpty(path, name) && open();
}

bool DataLog::open()
{
    return openFile(m_openMode | QIODevice::ReadWrite);
}

void DataLog::close()
{
    closeFile();
    clearProperties();
}

bool DataLog::openReadOnly(const QString &path, const QString &name)
{
    if (m_readDepth == MaxNestedReads)
        return false;
    if (m_file && m_file->isOpen()) {
        m_follower.unfollow(m_file->fileName());
        m_file.reset();
    }
    if (!takeNonEmpty(path, name))
        return false;
    if (!openFile(QIODevice::ReadOnly | QIODevice::Text)) {
        std::cout << "***Error: Failed to open " << QFile::encodeName(fullPath()).constData()
                  << std::endl;
        return false;
    }
    m_follower.follow(m_file->fileName());
    _read();
    return true;
}

void DataLog::closeReadOnly()
{
    if (m_file)
        m_follower.unfollow(m_file->fileName());
    closeFile();
    clearProperties();
}

void DataLog::refresh()
{
    if (m_file && m_file->isOpen())
        _read();
}

void DataLog::updateContents(const QString &path)
{
    if (!m_file || m_file->fileName() != path)
        return;
    followReplacement();
    refresh();
}

QString DataLog::fullPath() const
{
    return m_filepath + QDir::separator() + m_filename;
}

/** False when a handler deleted this item meanwhile. */
bool DataLog::takeNonEmpty(const QString &path, const QString &name)
{
    const QPointer<DataLog> self(this);
    if (!path.isEmpty())
        setFilepath(path);
    if (self && !name.isEmpty())
        setFilename(name);
    return self;
}

/** Puts a new file object in place of the current one. */
bool DataLog::openFile(QIODevice::OpenMode mode)
{
    ++m_currentRead;
    m_file.reset(new RegularFile(fullPath()));
    return m_file->open(mode);
}

void DataLog::closeFile()
{
    ++m_currentRead;
    if (m_file)
        m_file->close();
}

void DataLog::clearProperties()
{
    const QPointer<DataLog> self(this);
    setContents(QString());
    if (self)
        setFilepath(QString());
    if (self)
        setFilename(QString());
}

/**
 * Moves the watch and the open file over to the file that now stands at the path. The old one would
 * keep its room on the disk for as long as it is open. While there is none it stays open, which is
 * what tells that the path is still followed.
 */
void DataLog::followReplacement()
{
    if (!m_file->isOpen() || !m_follower.follows(m_file->fileName()))
        return;
    m_follower.rewatch();
    if (m_file->isWritable())
        return;
    QScopedPointer<QFile> replacement(new RegularFile(m_file->fileName()));
    if (replacement->open(m_file->openMode()))
        m_file.swap(replacement);
}

/**
 * Each line is announced as it comes. Whoever handles that may close the file, open another, read
 * it again or delete this item, and this read must then not go on.
 */
void DataLog::_read()
{
    if (m_readDepth == MaxNestedReads)
        return;
    ++m_readDepth;
    const int thisRead = ++m_currentRead;
    const QString path = m_file->fileName();
    const QPointer<DataLog> self(this);
    clearContents();
    std::ifstream stream;
    // Something else may have come to stand at the path since the file was opened.
    if (RegularFile::standsAt(path))
        stream.open(QFile::encodeName(path).constData());
    std::string line;
    while (self && thisRead == m_currentRead && std::getline(stream, line))
        appendLine(line);
    if (self)
        --m_readDepth;
}

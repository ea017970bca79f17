#ifndef DATALOG_PARSING_DATALOG_H
#define DATALOG_PARSING_DATALOG_H

#include "declarative/DeclarativeItem.h"
#include "parsing/FileFollower.h"

#include <QFile>
#include <QFileSystemWatcher>
#include <QScopedPointer>

#include <string>

/**
 * A text file as a property: its directory, its name, and its contents.
 *
 * Only regular files are opened and read, and links to them: named pipes and devices are refused
 * like files that can't be opened. When one comes to stand at the path of a watched file, the
 * contents become empty.
 *
 * The full path is always the directory, "/" and the name; without a directory that is a file in
 * the root directory. Bytes are taken as Latin-1. Every line in contents ends with a line feed,
 * whether the last one does in the file or not.
 *
 * A file opened by openReadOnly() is watched and read anew whenever it changes. The path is
 * followed rather than the file: when another file is renamed over it, that one is read and watched
 * from then on; when it is deleted, the contents become empty until a file stands there again. The
 * same goes for a link that is made to point elsewhere.
 *
 * A read announces contentsChanged() once when it empties the contents and once for each line. A
 * handler may do anything, closing and opening included: a read ends early when the file is closed,
 * another is opened, or a handler reads it again. Any signal's handler may delete the item. Reads
 * within reads go MaxNestedReads deep; beyond that, refresh() does nothing and openReadOnly() is
 * refused.
 */
class DataLog : public QDeclarativeItem
{
    Q_OBJECT
    Q_PROPERTY(QString filepath READ filepath WRITE setFilepath NOTIFY filepathChanged)
    Q_PROPERTY(QString filename READ filename WRITE setFilename NOTIFY filenameChanged)
    Q_PROPERTY(QString contents READ contents NOTIFY contentsChanged)

public:
    enum {
        MaxLength = 1 << 29, ///< of the contents, in characters; what does not fit is left out
        MaxNestedReads = 8
    };

    explicit DataLog(QDeclarativeItem *parent = nullptr);
    /** Closes the file, which announces the changes of close(). */
    ~DataLog() override;

    QString filepath() const { return m_filepath; }
    QString filename() const { return m_filename; }
    QString contents() const { return m_contents; }

    /** Makes the contents null; always announced. */
    void clearContents();
    /** Adds a line and a line feed to the contents; the file is not written. */
    void appendLine(const std::string &line);

Q_SIGNALS:
    void filepathChanged();
    void filenameChanged();
    void contentsChanged();

public Q_SLOTS:
    /** For the next open: a file that is open stays the same. */
    void setFilepath(const QString &filepath);
    /** @copydoc setFilepath */
    void setFilename(const QString &filename);
    /** As the other open(), after taking over those arguments that are not empty. */
    bool open(const QString &path, const QString &name);
    /**
     * Opens the file for reading and appending, and makes it if it is missing. It is neither read
     * nor watched, and the contents stay. False when that fails.
     */
    bool open();
    /** Closes the file and empties all three properties. */
    void close();
    /**
     * Opens and reads a file, and keeps the contents up to date until it is closed. Empty
     * arguments keep the current values. When that fails a line on the standard output tells so,
     * the contents stay, and the result is false.
     */
    bool openReadOnly(const QString &path, const QString &name);
    /** Stops watching, closes the file and empties all three properties. */
    void closeReadOnly();
    /** Reads the file again if it is open. */
    void refresh();
    void setContents(const QString &contents);
    /** Reads the file again if it is the one at @p path and is open. */
    void updateContents(const QString &path);

private:
    QString fullPath() const;
    bool takeNonEmpty(const QString &path, const QString &name);
    bool openFile(QIODevice::OpenMode mode);
    void closeFile();
    void clearProperties();
    void followReplacement();
    void _read();

    QIODevice::OpenMode m_openMode; ///< of open()
    QFileSystemWatcher m_watcher;
    QString m_filepath;
    QString m_filename;
    QString m_contents;
    QScopedPointer<QFile> m_file;
    FileFollower m_follower;
    int m_currentRead; ///< number of the read that may go on; others end
    int m_readDepth;
};

#endif

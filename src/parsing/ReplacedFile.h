#ifndef DATALOG_PARSING_REPLACEDFILE_H
#define DATALOG_PARSING_REPLACEDFILE_H

#include <QByteArray>
#include <QString>

/**
 * Gives a file a new content: all of it, or the file stays what it was, on a full disk, too.
 *
 * The content is written beside the file and takes its place. Links stay and lead to what is new;
 * permissions stay. Where another file can't take the place (its directory takes no new files, it
 * belongs to somebody else, or it has further names) the content goes into the file itself, and
 * what was there is put back when that fails; only a program that ends in the middle of that would
 * leave a mixture.
 */
class ReplacedFile
{
public:
    /**
     * False when the content could not be written. So it is, without an attempt, where something
     * else than a regular file stands.
     */
    static bool write(const QString &path, const QByteArray &content);
};

#endif

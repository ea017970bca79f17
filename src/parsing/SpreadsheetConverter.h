#ifndef DATALOG_PARSING_SPREADSHEETCONVERTER_H
#define DATALOG_PARSING_SPREADSHEETCONVERTER_H

#include <QString>

/**
 * Turns a spreadsheet into comma-separated text by running the instrument's conversion script.
 *
 * The interpreter is started directly, without a shell: a file's name is one argument whatever it
 * holds. The calling thread waits for it, no longer than the timeout, and reads no more of it than
 * MaxOutput: a script that goes beyond either is killed. What it says on its standard error is
 * dropped.
 */
class SpreadsheetConverter
{
public:
    enum {
        DefaultTimeout = 30000,
        MaxOutput = 1024 * 1024 ///< bytes, far more than any path has
    };

    SpreadsheetConverter();

    int timeout() const { return m_timeout; }
    /** @param timeout the longest wait, in milliseconds; after it the script is killed. */
    void setTimeout(int timeout) { m_timeout = timeout; }
    /**
     * The path that the script prints for the spreadsheet at @p path, blanks folded. Empty when it
     * prints nothing or more than MaxOutput; neither its exit status nor a time-out is told.
     */
    QString convert(const QString &path) const;

private:
    int m_timeout;
};

#endif

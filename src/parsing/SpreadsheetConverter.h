#ifndef DATALOG_PARSING_SPREADSHEETCONVERTER_H
#define DATALOG_PARSING_SPREADSHEETCONVERTER_H

#include <QString>

/**
 * Turns a spreadsheet into comma-separated text by running the instrument's conversion script.
 *
 * The interpreter is started directly, without a shell: a file's name is one argument whatever it
 * holds. The calling thread waits for it.
 */
class SpreadsheetConverter
{
public:
    enum { DefaultTimeout = 30000 };

    SpreadsheetConverter();

    int timeout() const { return m_timeout; }
    /** @param timeout the longest wait, in milliseconds; after it the script is killed. */
    void setTimeout(int timeout) { m_timeout = timeout; }
    /**
     * The path that the script prints for the spreadsheet at @p path, blanks folded. Empty when it
     * prints nothing; neither its exit status nor a time-out is told.
     */
    QString convert(const QString &path) const;

private:
    int m_timeout;
};

#endif

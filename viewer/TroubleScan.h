#ifndef DATALOG_VIEWER_TROUBLESCAN_H
#define DATALOG_VIEWER_TROUBLESCAN_H

#include <QCoreApplication>
#include <QList>
#include <QStringList>

/**
 * Finds, line by line, what of a log is not taken as it stands: rows that are remarks, rows that
 * don't fit their columns, and headers that name too little.
 *
 * It goes the parser's way through the file and keeps only the first findings of each kind; the
 * rest is counted.
 */
class TroubleScan
{
    Q_DECLARE_TR_FUNCTIONS(TroubleScan)

public:
    enum Kind { Header, NamelessColumn, Remark, ShortRow, LongRow, ShiftedRow, KindCount };
    /** Findings that are kept of a kind. */
    static const int MostKept = 100;

    struct Finding {
        qint64 line; ///< of the file, from 1
        QString text;
        int dataSet; ///< from 0; -1 before the first
        int row; ///< among those of the data set, from 0; -1 for what is no row
    };

    /** @param separator of the cells, a tab or a comma. */
    explicit TroubleScan(char separator = '\t');

    /** Takes the next line, without its end, as UTF-8. */
    void takeLine(const char *line, int size);
    /** To be called after the last line. */
    void end();

    /** A heading for the findings of a kind. */
    static QString title(Kind kind);
    QList<Finding> findings(Kind kind) const { return m_findings[kind]; }
    /** How many there are, kept or not. */
    qint64 count(Kind kind) const { return m_counts[kind]; }
    qint64 count() const;

private:
    enum State { InStart, InHeader, InGroups, InNames, InUnits, InRows };
    /** A line as the parser takes it: without the blanks, tabs among them, around it. */
    struct Line;

    void takeGroups(const Line &line);
    void takeNames(const Line &line);
    void takeUnits(const Line &line);
    void takeRow(const Line &line);
    void noteHeaderMark(const Line &line);
    void note(Kind kind, const QString &text);
    bool isToBeKept(Kind kind);

    char m_separator;
    State m_state;
    qint64 m_line;
    int m_columns;
    int m_dataSet;
    int m_row;
    QList<Finding> m_findings[KindCount];
    qint64 m_counts[KindCount];
};

#endif

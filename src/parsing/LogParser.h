#ifndef DATALOG_PARSING_LOGPARSER_H
#define DATALOG_PARSING_LOGPARSER_H

#include "parsing/LogLimits.h"
#include "parsing/SpreadsheetConverter.h"
#include "parsing/TabularParser.h"

#include <QObject>
#include <QStringList>

class LineReader;
class QFile;

/**
 * Reads a log file into data sets, one for each "[Header]" block.
 *
 * The file goes line by line through a small state machine. Pending events are handled after each
 * line, so a program stays alive while it reads; it can watch bytesRead(), and stop(). A second
 * read must not be started meanwhile, and is refused.
 */
class LogParser : public QObject
{
    Q_OBJECT

public:
    /** How the cells of a file are separated: by tabs, by commas, or by commas once converted. */
    enum LogParserType { LogType = 0, CsvType = 1, ExcelType = 2 };

    /** What the line that was read last was taken for. */
    enum ParseStep {
        Start = 0,
        HeaderStart = 1,
        HeaderParse = 2,
        DataStart = 3,
        DataHeaderGroupParse = 6,
        DataHeaderVariableParse = 7,
        DataHeaderUnitParse = 8,
        DataParse = 9,
        Error = 12
    };

    explicit LogParser(QObject *parent = nullptr);
    /** Leaves finished data sets to those who hold them; see TabularParser. */
    ~LogParser() override;

    /** Tells how the next file's cells are separated. Ignored while a file is being read. */
    void setLogParserType(LogParserType type);
    LogParserType logParserType() const { return m_type; }
    ParseStep parseStep() const { return m_step; }
    TabularParser &tabularParser() { return m_tabular; }
    const TabularParser &tabularParser() const { return m_tabular; }
    /** For the files read from now on. */
    void setLimits(const LogLimits &limits) { m_limits = limits; }
    const LogLimits &limits() const { return m_limits; }
    SpreadsheetConverter &spreadsheetConverter() { return m_converter; }

    /**
     * The file that was read last: the one that was asked for, or what the conversion script made
     * of it.
     */
    QString readPath() const { return m_readPath; }
    /** Takes over what another one has read; not while either is reading. */
    void take(LogParser &other);

    bool isParsing() const { return m_isParsing; }
    /** Progress of the read that is going on or was the last: bytes behind it, of so many. */
    qint64 bytesRead() const { return m_bytesRead; }
    qint64 bytesTotal() const { return m_bytesTotal; }
    /** Ends the read that is going on after its current line; it then fails, keeping nothing. */
    void stop() { m_stopRequested = m_isParsing; }

    // The states: each takes a trimmed line and chooses who takes the next.
    void startState(const QString &line);
    void headerStartState(const QString &line);
    void headerParseState(const QString &line);
    void dataStartState(const QString &line);
    void dataHeaderGroupParseState(const QString &line);
    void dataHeaderVariableParseState(const QString &line);
    void dataHeaderUnitParseState(const QString &line);
    void dataParseState(const QString &line);
    /** The three data header rows turned into columns of group, variable and unit. */
    QList<QStringList> transposeHeaderList() const;

public Q_SLOTS:
    /**
     * Reads the file at @p path in place of what was read before. Afterwards @p errorMessage is
     * empty, or says what went wrong.
     */
    void parseFileAtPath(const QString &path, QString &errorMessage);

Q_SIGNALS:
    void parsingComplete();
    void parseError(QString);

private:
    typedef void (LogParser::*StateHandler)(const QString &line);

    int newestDataSet() const { return m_tabular.dataSetCount() - 1; }
    QString parseOpenFile(QFile &file, const QString &path);
    QString brokenLimit(const LineReader &reader, int line) const;
    void noteProgress(const LineReader &reader);
    void takeLine(const LineReader &reader);
    void takeDataLine(const char *line, int size);

    ParseStep m_step;
    TabularParser m_tabular;
    LogParserType m_type;
    QStringList m_headerList; ///< the data header rows of the block that is being read
    QString m_errorMessage;
    QString m_readPath;
    StateHandler m_handler;
    SpreadsheetConverter m_converter;
    LogLimits m_limits;
    qint64 m_bytesRead;
    qint64 m_bytesTotal;
    bool m_isParsing;
    bool m_stopRequested;
};

#endif

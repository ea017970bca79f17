#ifndef DATALOG_BENCH_LOGPARSERREADER_H
#define DATALOG_BENCH_LOGPARSERREADER_H

#include "parsing/LogParser.h"

/** Our own parser, as a reader that can be measured beside the yardstick. */
class LogParserReader
{
public:
    LogParserReader() { }
    ~LogParserReader() { m_parser.tabularParser().clear(); }

    bool read(const QString &path)
    {
        QString error;
        m_parser.parseFileAtPath(path, error);
        return error.isEmpty();
    }

    qint64 cellCount() const
    {
        qint64 cells = 0;
        const CellGridPointer grid = m_parser.tabularParser().grid(0);
        for (int column = 0; grid && column < grid->columnCount(); ++column)
            cells += grid->cellCount(column);
        return cells;
    }

private:
    Q_DISABLE_COPY(LogParserReader)
    LogParser m_parser;
};

#endif

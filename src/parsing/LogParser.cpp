#include "parsing/LogParser.h"

#include "model/CellText.h"
#include "model/LogDataSet.h"
#include "parsing/LineReader.h"
#include "parsing/RegularFile.h"

#include <QCoreApplication>
#include <QPointer>

#include <algorithm>

namespace
{

const char kHeaderMark[] = "[Header]";
const char kDataMark[] = "[Data]";

bool isMark(const QString &line, const char *mark)
{
    return line.compare(QLatin1String(mark), Qt::CaseInsensitive) == 0;
}

QString lineText(const LineReader &reader)
{
    return CellText(reader.data(), reader.size()).toString();
}

bool isBlank(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

QString failure(const QString &path, const QString &cause)
{
    return LogParser::tr("LogParser: Failed to read file at path %1: %2.").arg(path, cause);
}

} // namespace

LogParser::LogParser(QObject *parent)
    : QObject(parent)
    , m_step(Start)
    , m_type(LogType)
    , m_handler(&LogParser::startState)
    , m_bytesRead(0)
    , m_bytesTotal(0)
    , m_isParsing(false)
    , m_stopRequested(false)
{
    m_tabular.setSeparator(QLatin1Char('\t'));
}

LogParser::~LogParser()
{
    // What is half read belongs to nobody yet.
    if (m_isParsing)
        m_tabular.clear();
}

void LogParser::setLogParserType(LogParserType type)
{
    if (m_isParsing)
        return; // the rest of the file has the separator of its start
    m_type = type;
    const bool byCommas = type == CsvType || type == ExcelType;
    m_tabular.setSeparator(QLatin1Char(byCommas ? ',' : '\t'));
}

void LogParser::parseFileAtPath(const QString &path, QString &errorMessage)
{
    if (m_isParsing) {
        errorMessage = failure(path, tr("another file is being read"));
        return;
    }
    if (path.isEmpty()) {
        errorMessage = tr("LogFile Path must not be empty.");
        return;
    }
    m_readPath = m_type == ExcelType ? m_converter.convert(path) : path;
    m_step = Start;
    m_tabular.clear();
    m_errorMessage = QString();
    m_bytesRead = 0;
    m_bytesTotal = 0;
    RegularFile file(m_readPath);
    if (!file.open(QIODevice::ReadOnly)) {
        errorMessage = tr("LogParser: Failed to open file at path %1 for reading.").arg(path);
        return;
    }
    errorMessage = parseOpenFile(file, path);
}

void LogParser::take(LogParser &other)
{
    if (m_isParsing || other.m_isParsing)
        return;
    m_type = other.m_type;
    m_readPath = other.m_readPath;
    m_bytesRead = other.m_bytesRead;
    m_bytesTotal = other.m_bytesTotal;
    m_tabular.take(other.m_tabular);
}

/** The read loop. Whoever handles the events in between may stop the read or delete the parser. */
QString LogParser::parseOpenFile(QFile &file, const QString &path)
{
    QString stopped = tr("LogParser: Reading of file at path %1 was stopped.").arg(path);
    const QPointer<LogParser> self(this);
    LineReader reader(&file, m_limits.lineBytes);
    QString tooLarge;
    m_handler = &LogParser::startState;
    m_bytesTotal = file.size();
    m_stopRequested = false;
    m_isParsing = true;
    for (int line = 1; !m_stopRequested && !reader.atEnd(); ++line) {
        reader.next();
        tooLarge = brokenLimit(reader, line);
        if (!tooLarge.isEmpty())
            break;
        if (m_step == Error)
            m_tabular.appendRawLine(lineText(reader));
        else
            takeLine(reader);
        noteProgress(reader);
        QCoreApplication::processEvents(QEventLoop::AllEvents);
        if (!self)
            return stopped;
    }
    m_isParsing = false;
    noteProgress(reader);
    if (m_stopRequested || !tooLarge.isEmpty()) {
        m_tabular.clear();
        return m_stopRequested ? stopped : failure(path, tooLarge);
    }
    return m_errorMessage;
}

/** Why the line that was read is more than can be held; empty for nearly every line. */
QString LogParser::brokenLimit(const LineReader &reader, int line) const
{
    if (reader.isTooLong())
        return tr("line %1 is longer than %2 bytes").arg(line).arg(m_limits.lineBytes);
    if (line > m_limits.lines)
        return tr("it has more than %1 lines").arg(m_limits.lines);
    if (reader.size() < m_limits.cellsInLine)
        return QString(); // too short for so many cells
    const char separator = m_tabular.separator().toLatin1();
    if (std::count(reader.data(), reader.data() + reader.size(), separator) < m_limits.cellsInLine)
        return QString();
    return tr("line %1 has more than %2 cells").arg(line).arg(m_limits.cellsInLine);
}

/** The file of a log that is being written grows while it is read. */
void LogParser::noteProgress(const LineReader &reader)
{
    m_bytesRead = reader.bytesRead();
    m_bytesTotal = qMax(m_bytesTotal, m_bytesRead);
}

void LogParser::takeLine(const LineReader &reader)
{
    if (m_handler == &LogParser::dataParseState && reader.isAscii()) {
        takeDataLine(reader.data(), reader.size());
        return;
    }
    (this->*m_handler)(lineText(reader).trimmed());
    if (!m_errorMessage.isEmpty()) {
        m_step = Error;
        m_tabular.clear();
    }
}

/** dataParseState() for plain ASCII, which needs no decoding: nearly all that a log consists of. */
void LogParser::takeDataLine(const char *line, int size)
{
    while (size > 0 && isBlank(line[size - 1]))
        --size;
    while (size > 0 && isBlank(*line)) {
        ++line;
        --size;
    }
    if (size == int(sizeof kHeaderMark) - 1 && *line == *kHeaderMark) {
        dataParseState(QString::fromLatin1(line, size));
        return;
    }
    m_step = DataParse;
    m_tabular.parseRow(newestDataSet(), line, size);
}

void LogParser::startState(const QString &line)
{
    m_step = Start;
    m_tabular.setDataSetCount(0);
    if (isMark(line, kHeaderMark))
        m_handler = &LogParser::headerStartState;
    else
        m_errorMessage = tr("Log File must start with [Header] section.");
}

void LogParser::headerStartState(const QString &line)
{
    m_step = HeaderStart;
    m_tabular.initializeDataSet();
    m_headerList.clear();
    const QString createdDate = line.split(m_tabular.separator()).value(1);
    const QList<LogDataSet *> dataSets = m_tabular.dataSets();
    dataSets.last()->setCreatedDate(createdDate);
    m_handler = &LogParser::headerParseState;
    headerParseState(line);
}

void LogParser::headerParseState(const QString &line)
{
    m_step = HeaderParse;
    if (isMark(line, kDataMark))
        m_handler = &LogParser::dataStartState;
    else
        m_tabular.parseFileHeader(newestDataSet(), line, m_errorMessage);
}

void LogParser::dataStartState(const QString &line)
{
    m_step = DataStart;
    m_handler = &LogParser::dataHeaderGroupParseState;
    dataHeaderGroupParseState(line);
}

void LogParser::dataHeaderGroupParseState(const QString &line)
{
    m_step = DataHeaderGroupParse;
    m_headerList.append(line);
    m_handler = &LogParser::dataHeaderVariableParseState;
}

void LogParser::dataHeaderVariableParseState(const QString &line)
{
    m_step = DataHeaderVariableParse;
    m_headerList.append(line);
    m_handler = &LogParser::dataHeaderUnitParseState;
}

void LogParser::dataHeaderUnitParseState(const QString &line)
{
    m_step = DataHeaderUnitParse;
    m_headerList.append(line);
    // Trimming took the first unit away where it is empty; a tab puts it back. Files separated by
    // commas get the tab as well, into their first unit.
    if (m_headerList.size() > 2)
        m_headerList[2].prepend(QLatin1Char('\t'));
    m_tabular.parseHeader(newestDataSet(), transposeHeaderList(), m_errorMessage);
    m_handler = &LogParser::dataParseState;
}

void LogParser::dataParseState(const QString &line)
{
    m_step = DataParse;
    if (isMark(line, kHeaderMark))
        m_handler = &LogParser::headerStartState;
    else
        m_tabular.parseRow(newestDataSet(), line, m_errorMessage);
}

QList<QStringList> LogParser::transposeHeaderList() const
{
    const QChar separator = m_tabular.separator();
    const QStringList groups = m_headerList.value(0).split(separator);
    const QStringList variables = m_headerList.value(1).split(separator);
    const QStringList units = m_headerList.value(2).split(separator);
    QList<QStringList> columns;
    columns.reserve(groups.size());
    for (int i = 0; i < groups.size(); ++i)
        columns.append(QStringList() << groups.at(i) << variables.value(i) << units.value(i));
    return columns;
}

// Any bytes as a log. The first byte tells the kind: "t" by tabs, "c" by commas, "x" a spreadsheet,
// for which the rest is what the conversion wrote. What is well-formed text is read by the plain
// reference too, and has to come out the same.

#include "FuzzTarget.h"
#include "MemoryFile.h"

#include "model/LogDataSet.h"
#include "parsing/FakePython.h"
#include "parsing/LogComparison.h"
#include "parsing/LogParser.h"

#include <QCoreApplication>

namespace
{

bool isWide(const QByteArray &bytes)
{
    return bytes.startsWith("\xff\xfe") || bytes.startsWith("\xfe\xff")
        || bytes.startsWith(QByteArray("\0\0\xfe\xff", 4));
}

/** Malformed bytes give some replacement characters: how many is nobody's promise. */
bool isWellFormed(const QByteArray &bytes)
{
    return !isWide(bytes) && QString::fromUtf8(bytes).toUtf8() == bytes;
}

/** Reads all that a parsed log can be asked, for the sanitizers to watch. */
void readAll(const TabularParser &table)
{
    table.rawData();
    const QList<LogDataSet *> sets = table.dataSets();
    for (int i = 0; i < sets.size(); ++i) {
        const CellGridPointer grid = table.grid(i);
        for (int column = -1; column <= grid->columnCount(); ++column) {
            const NumberColumn &numbers = grid->numbers(column);
            const TimeColumn &times = grid->times(column);
            fuzzRequire(numbers.values.size() == grid->cellCount(column), "a number a cell");
            fuzzRequire(times.seconds.size() == grid->cellCount(column), "a time a cell");
            fuzzRequire(times.gaps == numbers.gaps, "the same gaps");
        }
        fuzzRequire(table.observations(i).size() == sets.at(i)->observationCount(), "all rows");
        sets.at(i)->dataSetName();
        table.columnData(i);
        table.constData(i);
        table.groups(i);
    }
}

LogParser::LogParserType typeOf(char kind)
{
    return kind == 'x' ? LogParser::ExcelType
        : kind == 'c'  ? LogParser::CsvType
                       : LogParser::LogType;
}

QString parseWith(LogParser &parser, const QString &path)
{
    QString error;
    if (parser.logParserType() != LogParser::ExcelType) {
        parser.parseFileAtPath(path, error);
        return error;
    }
    // Descriptors are not handed on: the script names this process's.
    const QByteArray number = QByteArray::number(QCoreApplication::applicationPid());
    const QByteArray own = QFile::encodeName(path).replace("self", number);
    const FakePython python("echo " + own);
    parser.parseFileAtPath(QLatin1String("fuzz.xls"), error);
    return error;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size == 0)
        return 0;
    const QByteArray bytes = fuzzBytes(data + 1, size - 1);
    const MemoryFile file(bytes);
    LogParser parser;
    parser.setLogParserType(typeOf(char(data[0])));
    const QString error = parseWith(parser, file.path());
    readAll(parser.tabularParser());
    if (isWellFormed(bytes)) {
        const ReferenceLog expected(file.path(), parser.tabularParser().separator());
        fuzzRequire(error == expected.error, "the reference's result");
        const QString difference = LogComparison::difference(parser.tabularParser(), expected);
        fuzzRequire(difference.isEmpty(), qPrintable(difference));
    }
    parser.tabularParser().clear();
    return 0;
}

#include "parsing/TabularParser.h"

#include "model/LogDataSet.h"
#include "model/RowGrid.h"

#include <cstring>

namespace
{

const int kMostRemarkCells = 2;
const char kRemarks[] = "Remarks";

bool isAscii(QChar character)
{
    return character.unicode() < 0x80;
}

/** In blocks that a byte can count: so the compiler compares many characters at once. */
int countOf(char character, const char *text, int size)
{
    const int mostInBlock = 255;
    int count = 0;
    while (size > 0) {
        const int blockSize = qMin(size, mostInBlock);
        uchar inBlock = 0;
        for (int i = 0; i < blockSize; ++i)
            inBlock = uchar(inBlock + (text[i] == character ? 1 : 0));
        count += inBlock;
        text += blockSize;
        size -= blockSize;
    }
    return count;
}

/** A remark row of at most two cells, rewritten: its mark, the text without quotes, the rest. */
QByteArray remarkRow(const char *line, int size, char separator)
{
    const void *found = size > 0 ? std::memchr(line, separator, size_t(size)) : nullptr;
    const int textSize = found ? int(static_cast<const char *>(found) - line) : size;
    QByteArray text(line, textSize);
    text.replace('\n', "").replace('"', "");
    return QByteArray(kRemarks) + separator + text + QByteArray(line + textSize, size - textSize);
}

} // namespace

TabularParser::TabularParser(QObject *parent)
    : QObject(parent)
    , m_dataSetCount(0)
{
}

void TabularParser::initializeDataSet()
{
    m_dataSets.append(new LogDataSet(m_dataSetCount));
    ++m_dataSetCount;
}

void TabularParser::parseFileHeader(int index, const QString &line, QString &error)
{
    error = QString();
    LogDataSet *set = dataSet(index);
    const QStringList cells = line.split(m_separator);
    if (set && cells.size() > 1 && cells.at(0).contains(QLatin1Char(':')))
        set->appendConstHeaderData(cells.at(0), cells.at(1));
}

void TabularParser::parseHeader(int index, const QList<QStringList> &headerColumns, QString &error)
{
    error = QString();
    LogDataSet *set = dataSet(index);
    for (int i = 0; set && i < headerColumns.size(); ++i) {
        const QStringList &column = headerColumns.at(i);
        set->appendHeaderData(column);
        set->appendVariable(column.value(1));
        set->addGroup(column.value(0));
        set->addVariableToGroup(column.value(0), column.value(1));
    }
}

void TabularParser::parseRow(int index, const QString &line, QString &error)
{
    error = QString();
    if (isAscii(m_separator)) {
        const QByteArray utf8 = line.toUtf8();
        parseRow(index, utf8.constData(), utf8.size());
    } else if (dataSet(index)) {
        parseRowOfAnySeparator(index, line);
    }
}

void TabularParser::parseRow(int index, const char *line, int size)
{
    LogDataSet *set = dataSet(index);
    if (!set)
        return;
    const char separator = m_separator.toLatin1();
    const int cells = countOf(separator, line, size) + 1;
    const bool isRemark = cells <= kMostRemarkCells;
    noteRawRow(index, isRemark ? 2 : 1);
    if (isRemark) {
        const QByteArray remark = remarkRow(line, size, separator);
        set->appendRow(remark.constData(), remark.size(), cells + 1, separator);
    } else {
        set->appendRow(line, size, cells, separator);
    }
}

/** The same for a separator that UTF-8 needs several bytes for. */
void TabularParser::parseRowOfAnySeparator(int index, const QString &line)
{
    QStringList cells = line.split(m_separator);
    const bool isRemark = cells.size() <= kMostRemarkCells;
    noteRawRow(index, isRemark ? 2 : 1);
    if (isRemark) {
        cells[0].remove(QLatin1Char('\n')).remove(QLatin1Char('"'));
        cells.prepend(QLatin1String(kRemarks));
    }
    LogDataSet *set = dataSet(index);
    for (int column = 0; column < cells.size(); ++column) {
        QString cell = cells.at(column);
        if (column == RowGrid::TimeColumnIndex)
            cell.remove(QLatin1Char('"'));
        set->appendColumnData(column, cell);
    }
    set->addObservation(cells);
}

/** Notes the row that is about to be added to a data set as the next of the raw rows. */
void TabularParser::noteRawRow(int index, int copies)
{
    const int row = dataSet(index)->observationCount();
    if (!m_rawRuns.isEmpty()) {
        RawRun &last = m_rawRuns.last();
        if (last.dataSet == index && last.copies == copies && last.firstRow + last.rows == row) {
            ++last.rows;
            return;
        }
    }
    const RawRun run = {index, row, 1, copies};
    m_rawRuns.append(run);
}

void TabularParser::appendRawLine(const QString &line)
{
    m_rawLines.append(line.split(m_separator));
}

void TabularParser::clear()
{
    qDeleteAll(m_dataSets);
    m_dataSets.clear();
    m_rawRuns.clear();
    m_rawLines.clear();
}

void TabularParser::take(TabularParser &other)
{
    if (&other == this)
        return;
    clear();
    m_dataSets.swap(other.m_dataSets);
    m_rawRuns.swap(other.m_rawRuns);
    m_rawLines.swap(other.m_rawLines);
    m_separator = other.m_separator;
    m_dataSetCount = other.m_dataSetCount;
}

QList<QStringList> TabularParser::rawData() const
{
    QList<QStringList> rows;
    for (int i = 0; i < m_rawRuns.size(); ++i) {
        const RawRun &run = m_rawRuns.at(i);
        for (int row = run.firstRow; row < run.firstRow + run.rows; ++row) {
            const QStringList cells = dataSet(run.dataSet)->observationTexts(row);
            for (int copy = 0; copy < run.copies; ++copy)
                rows.append(cells);
        }
    }
    return rows + m_rawLines;
}

QStringList TabularParser::constHeader(int index) const
{
    return dataSet(index) ? dataSet(index)->constHeader() : QStringList();
}

QStringList TabularParser::constGroups(int index) const
{
    return dataSet(index) ? dataSet(index)->constGroups() : QStringList();
}

QList<QStringList> TabularParser::constData(int index) const
{
    return dataSet(index) ? dataSet(index)->constData() : QList<QStringList>();
}

QList<QStringList> TabularParser::headerData(int index) const
{
    return dataSet(index) ? dataSet(index)->headerData() : QList<QStringList>();
}

QList<QStringList> TabularParser::columnData(int index) const
{
    return dataSet(index) ? dataSet(index)->columnData() : QList<QStringList>();
}

QStringList TabularParser::variables(int index) const
{
    return dataSet(index) ? dataSet(index)->variables() : QStringList();
}

QList<VariableGroup *> TabularParser::groups(int index) const
{
    return dataSet(index) ? dataSet(index)->variableGroups() : QList<VariableGroup *>();
}

QList<Observation *> TabularParser::observations(int index) const
{
    return dataSet(index) ? dataSet(index)->observations() : QList<Observation *>();
}

VariableGroup *TabularParser::groupForName(const QString &name, int index) const
{
    return dataSet(index) ? dataSet(index)->groupForName(name) : nullptr;
}

QStringList TabularParser::dataForColumn(int index, int column) const
{
    return dataSet(index) ? dataSet(index)->dataForColumn(column) : QStringList();
}

CellGridPointer TabularParser::grid(int index) const
{
    return dataSet(index) ? dataSet(index)->grid() : CellGridPointer();
}

QSharedPointer<VariableGroupSet> TabularParser::groupSet(int index) const
{
    return dataSet(index) ? dataSet(index)->groupSet() : QSharedPointer<VariableGroupSet>();
}

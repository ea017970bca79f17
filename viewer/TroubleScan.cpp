#include "viewer/TroubleScan.h"

#include <algorithm>
#include <numeric>

namespace
{

const int kMostRemarkCells = 2;
const int kMostTextShown = 120;

bool isBlank(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

} // namespace

struct TroubleScan::Line {
    Line(const char *line, int size, char separator)
        : text(line)
        , size(size)
        , leading(0)
        , trailing(0)
    {
        while (this->size > 0 && isBlank(text[this->size - 1]))
            trailing += text[--this->size] == separator ? 1 : 0;
        while (this->size > 0 && isBlank(*text)) {
            leading += *text == separator ? 1 : 0;
            ++text;
            --this->size;
        }
        cells = int(std::count(text, text + this->size, separator)) + 1;
    }

    bool is(const char *mark) const
    {
        return qstrnicmp(text, mark, uint(size)) == 0 && !mark[size];
    }
    QString shown() const
    {
        const QString all = QString::fromUtf8(text, qMin(size, 4 * kMostTextShown));
        return all.size() > kMostTextShown ? all.left(kMostTextShown) + QChar(0x2026) : all;
    }

    const char *text;
    int size;
    int leading; ///< separators that are lost before the first cell
    int trailing; ///< and after the last
    int cells;
};

TroubleScan::TroubleScan(char separator)
    : m_separator(separator)
    , m_state(InStart)
    , m_line(0)
    , m_columns(0)
    , m_dataSet(-1)
    , m_row(-1)
{
    std::fill(m_counts, m_counts + KindCount, 0);
}

QString TroubleScan::title(Kind kind)
{
    switch (kind) {
    case Header:
        return tr("Headers");
    case NamelessColumn:
        return tr("Columns without a name");
    case Remark:
        return tr("Rows taken for remarks");
    case ShortRow:
        return tr("Rows with too few cells");
    case LongRow:
        return tr("Rows with too many cells");
    case ShiftedRow:
        return tr("Rows that start with an empty cell");
    case KindCount:
        break;
    }
    return QString();
}

qint64 TroubleScan::count() const
{
    return std::accumulate(m_counts, m_counts + KindCount, qint64(0));
}

void TroubleScan::takeLine(const char *text, int size)
{
    ++m_line;
    const Line line(text, size, m_separator);
    switch (m_state) {
    case InStart:
        m_state = InHeader;
        break;
    case InHeader:
        if (line.is("[Data]")) {
            m_state = InGroups;
            ++m_dataSet;
            m_row = -1;
        }
        break;
    case InGroups:
        takeGroups(line);
        break;
    case InNames:
        takeNames(line);
        break;
    case InUnits:
        takeUnits(line);
        break;
    case InRows:
        takeRow(line);
        break;
    }
}

void TroubleScan::end()
{
    if (m_state != InRows && m_state != InStart)
        note(Header, tr("the log ends here, before the data of its last data set"));
}

// The three rows above the data

void TroubleScan::noteHeaderMark(const Line &line)
{
    if (line.is("[Header]"))
        note(Header, tr("[Header] stands among the rows of groups, names and units"));
}

void TroubleScan::takeGroups(const Line &line)
{
    noteHeaderMark(line);
    m_columns = line.cells;
    if (line.leading > 0)
        note(Header, tr("the first groups are empty, so the others stand too far left"));
    m_state = InNames;
}

void TroubleScan::takeNames(const Line &line)
{
    noteHeaderMark(line);
    if (line.leading > 0)
        note(Header, tr("the first names are empty, so the others stand too far left"));
    if (line.cells > m_columns)
        note(Header,
             tr("%1 names for %2 groups: the last names are left out")
                 .arg(line.cells)
                 .arg(m_columns));
    const QList<QByteArray> names
        = QByteArray::fromRawData(line.text, line.size).split(m_separator);
    for (int column = 0; column < m_columns; ++column) {
        if (names.value(column).trimmed().isEmpty())
            note(NamelessColumn, tr("column %1").arg(column + 1));
    }
    m_state = InUnits;
}

/** The first unit is taken to be empty where cells are separated by tabs. */
void TroubleScan::takeUnits(const Line &line)
{
    noteHeaderMark(line);
    if (m_separator == '\t' && line.size > 0 && line.leading == 0)
        note(Header, tr("the first unit is not empty, so units stand one column too far right"));
    else if (line.leading > 1)
        note(Header, tr("several units at the start are empty, so the others stand too far left"));
    m_state = InRows;
}

// The data

void TroubleScan::takeRow(const Line &line)
{
    if (line.is("[Header]")) {
        m_state = InHeader;
        return;
    }
    ++m_row;
    // Texts are made only for what is kept: there may be as many findings as rows.
    if (line.cells <= kMostRemarkCells) {
        if (isToBeKept(Remark))
            note(Remark, line.size > 0 ? line.shown() : tr("an empty line"));
    } else if (line.leading > 0) {
        if (isToBeKept(ShiftedRow))
            note(ShiftedRow, tr("its cells stand too far left by %1").arg(line.leading));
    } else if (line.cells > m_columns) {
        if (isToBeKept(LongRow))
            note(LongRow, tr("%1 cells for %2 columns").arg(line.cells).arg(m_columns));
    } else if (line.cells + line.trailing < m_columns) {
        if (isToBeKept(ShortRow))
            note(ShortRow, tr("%1 cells for %2 columns").arg(line.cells).arg(m_columns));
    }
}

/** Counts one that is not to be kept. */
bool TroubleScan::isToBeKept(Kind kind)
{
    if (m_findings[kind].size() < MostKept)
        return true;
    ++m_counts[kind];
    return false;
}

void TroubleScan::note(Kind kind, const QString &text)
{
    if (isToBeKept(kind)) {
        ++m_counts[kind];
        m_findings[kind].append({m_line, text, m_dataSet, m_row});
    }
}

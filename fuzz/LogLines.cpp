#include "LogLines.h"

namespace
{

const char *const kMarks[]
    = {"[Header]", "[Data]", "[header]", "[DATA]", " [Header]\t", "[Header] x"};
// Numbers and times in every form, what tells an edge, and what is no good UTF-8.
const char *const kCells[] = {"",
                              "1",
                              "-2.5e3",
                              "1e400",
                              "nan",
                              "inf",
                              "0x5",
                              "10:00:01",
                              "\"23:59:59.5\"",
                              "24:00:00",
                              "\"",
                              "a\"b",
                              "Sys:Name",
                              ":",
                              "---",
                              " pad ",
                              "\xc2\xa0",
                              "\xe2\x82\xac",
                              "\xef\xbb\xbf",
                              "\xf0\x9f\x98\x80",
                              "\xff",
                              "\xe2\x82",
                              "\xed\xa0\x80",
                              "\r",
                              "Remarks",
                              "?",
                              "%1",
                              "12345678901234567890.12345678901234567890"};

template <int N> QByteArray oneOf(const char *const (&texts)[N], std::mt19937 &random)
{
    return texts[random() % N];
}

} // namespace

LogLines::LogLines(const QByteArray &bytes, std::mt19937 *random)
    : m_random(random)
    , m_kind(bytes.isEmpty() ? 't' : bytes.at(0))
    , m_lines(bytes.mid(1).split('\n'))
{
}

QByteArray LogLines::bytes() const
{
    QByteArray text(1, m_kind);
    for (int i = 0; i < m_lines.size(); ++i)
        text += (i > 0 ? "\n" : "") + m_lines.at(i);
    return text;
}

void LogLines::change()
{
    static const Change changes[]
        = {&LogLines::addMark,    &LogLines::addBlock,      &LogLines::doubleLine,
           &LogLines::removeLine, &LogLines::swapLines,     &LogLines::manyLines,
           &LogLines::changeCell, &LogLines::addCell,       &LogLines::removeCell,
           &LogLines::wrapLine,   &LogLines::changeLineEnd, &LogLines::cutShort};
    if (m_lines.isEmpty())
        m_lines.append(QByteArray());
    const int count = int(sizeof changes / sizeof changes[0]);
    (this->*changes[below(count)])();
}

void LogLines::splice(const QByteArray &otherBytes)
{
    const QList<QByteArray> other = otherBytes.mid(1).split('\n');
    const int first = below(other.size());
    const int count = 1 + below(other.size() - first);
    const int at = below(m_lines.size() + 1);
    for (int i = 0; i < count; ++i)
        m_lines.insert(at + i, other.at(first + i));
}

void LogLines::addMark()
{
    m_lines.insert(anyLine(), oneOf(kMarks, *m_random));
}

void LogLines::addBlock()
{
    const char separator = m_kind == 't' ? '\t' : ',';
    QByteArray block("[Header]\nCreated,now\nSys:Name,x\n[Data]\ng,g,h\na,b,c\nu,,v\n1,10:00:00,3");
    m_lines += block.replace(',', separator).split('\n');
}

void LogLines::doubleLine()
{
    const QByteArray line = m_lines.at(anyLine());
    m_lines.insert(anyLine(), line);
}

void LogLines::removeLine()
{
    m_lines.removeAt(anyLine());
}

void LogLines::swapLines()
{
    m_lines.swapItemsAt(anyLine(), anyLine());
}

/** More rows than a page of the store takes, now and then. */
void LogLines::manyLines()
{
    const QByteArray line = m_lines.last().left(20);
    for (int count = below(20) == 0 ? 300 : below(8); count > 0; --count)
        m_lines.append(line);
}

void LogLines::changeCell()
{
    QByteArray &line = m_lines[anyLine()];
    const char separator = m_kind == 't' ? '\t' : ',';
    QList<QByteArray> cells = line.split(separator);
    cells[below(cells.size())] = oneOf(kCells, *m_random);
    line = cells.join(separator);
}

void LogLines::addCell()
{
    m_lines[anyLine()] += (m_kind == 't' ? '\t' : ',') + oneOf(kCells, *m_random);
}

void LogLines::removeCell()
{
    QByteArray &line = m_lines[anyLine()];
    line.truncate(qMax(0, line.lastIndexOf(m_kind == 't' ? '\t' : ',')));
}

void LogLines::wrapLine()
{
    static const char *const blanks[] = {" ", "\t", "\r", "\xc2\xa0", "\xe3\x80\x80", "\v", ","};
    QByteArray &line = m_lines[anyLine()];
    line = oneOf(blanks, *m_random) + line + oneOf(blanks, *m_random);
}

void LogLines::changeLineEnd()
{
    QByteArray &line = m_lines[anyLine()];
    if (line.endsWith('\r'))
        line.chop(1);
    else
        line += '\r';
}

/** Anywhere, within a character too. */
void LogLines::cutShort()
{
    const QByteArray text = bytes();
    m_lines = text.mid(1, below(text.size())).split('\n');
}

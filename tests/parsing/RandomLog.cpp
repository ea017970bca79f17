#include "RandomLog.h"

namespace
{

const char *const kLineEnds[] = {"\n", "\n", "\r\n"};
// Plain numbers and times, quotes, colons, percent signs, blanks of several kinds at the ends (a
// non-breaking one, an ideographic one, a next-line control), a byte order mark in the middle of
// the text, characters of two to four bytes, and what looks like a mark.
const char *const kCells[] = {"1",
                              "-2.5e3",
                              "",
                              "",
                              "\"10:00:01\"",
                              "23:59:59",
                              "a\"b",
                              "Tair",
                              "Obs",
                              " pad ",
                              "\xc2\xa0x",
                              "x\xc2\xa0",
                              "\xe3\x80\x80",
                              "y\xc2\x85",
                              "\xef\xbb\xbf"
                              "z",
                              "\xc2\xb0"
                              "C",
                              "\xe2\x82\xac%1",
                              "\xf0\x9f\x98\x80",
                              "k:v",
                              "[Header]",
                              "[Data]",
                              "---",
                              "nan"};
const char *const kKeys[]
    = {"Sys:Name", "Sys:Leaf", "Const:", ":x", "A:b:c", "B:y", "plain", "", "\xc3\x84:\xc3\xb6"};
const char *const kHeaderMarks[] = {"[Header]", "[header]", "[HEADER]", " [Header]\t"};
const char *const kDataMarks[] = {"[Data]", "[data]", "[DATA]", "\t[Data] "};
const char *const kStarts[] = {"", "", "", "", "\xef\xbb\xbf", "\r", " ", "\n", "x"};

} // namespace

RandomLog::RandomLog(quint32 seed)
    : m_random(seed)
    , m_separator(once(2) ? '\t' : ',')
    , m_lineEnd(oneOf(kLineEnds))
{
}

QByteArray RandomLog::text()
{
    // Most files start with nothing before the mark; the odd ones are the last in the list.
    QByteArray text = once(4) ? oneOf(kStarts) : "";
    for (int blocks = once(20) ? 0 : 1 + below(4); blocks > 0; --blocks)
        text += block();
    if (once(5))
        text.truncate(below(text.size() + 1));
    return text;
}

QByteArray RandomLog::line(const QByteArray &text)
{
    const char *const end = once(40) ? "\n" : m_lineEnd;
    return once(60) ? "\xc2\xa0 " + text + "\xc2\xa0" + end : text + end;
}

QByteArray RandomLog::cell()
{
    return once(2) ? QByteArray::number(below(1000)) : QByteArray(oneOf(kCells));
}

QByteArray RandomLog::row(int cells)
{
    QByteArray text = cell();
    while (--cells > 0)
        text += m_separator + cell();
    return text;
}

/** A line with a mark, seldom followed by more. */
QByteArray RandomLog::mark(const char *name)
{
    return line(once(30) ? name + row(2) : QByteArray(name));
}

QByteArray RandomLog::header()
{
    QByteArray text = line("Created" + (once(5) ? QByteArray() : m_separator + row(1 + below(2))));
    for (int lines = below(8); lines > 0; --lines) {
        const QByteArray values = once(6) ? QByteArray() : m_separator + row(1 + below(3));
        text += line(oneOf(kKeys) + values);
    }
    return once(10) ? text + line(QByteArray()) : text;
}

QByteArray RandomLog::dataRow(int columns)
{
    if (once(8))
        return line(row(1 + below(2))); // a remark
    if (once(20))
        return line(QByteArray());
    if (once(6))
        return line(row(1 + below(columns + 4)));
    return line(row(columns));
}

QByteArray RandomLog::block()
{
    const int columns = once(15) ? 1 + below(3) : 3 + below(8);
    QByteArray text = mark(oneOf(kHeaderMarks)) + (once(20) ? QByteArray() : header());
    if (once(12))
        return text;
    text += mark(oneOf(kDataMarks));
    for (int i = 0; i < 3; ++i)
        text += line(row(once(4) ? 1 + below(columns + 3) : columns));
    // Now and then more rows than one page of the store takes.
    for (int rows = once(60) ? 250 + below(600) : below(15); rows > 0; --rows)
        text += dataRow(columns);
    return text;
}

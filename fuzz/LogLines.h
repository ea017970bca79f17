#ifndef DATALOG_FUZZ_LOGLINES_H
#define DATALOG_FUZZ_LOGLINES_H

#include <QByteArray>
#include <QList>

#include <random>

/** A log as lines of cells, for changes that keep most of its shape. */
class LogLines
{
public:
    /** @param bytes a kind and a log. @param random outlives this object. */
    LogLines(const QByteArray &bytes, std::mt19937 *random);

    QByteArray bytes() const;
    /** Makes one change, of a kind and at a place chosen by chance. */
    void change();
    /** Takes some lines of another log in between its own. */
    void splice(const QByteArray &otherBytes);

private:
    typedef void (LogLines::*Change)();

    int below(int count) { return int((*m_random)() % unsigned(count)); }
    int anyLine() { return below(m_lines.size()); }
    void addMark();
    void addBlock();
    void doubleLine();
    void removeLine();
    void swapLines();
    void manyLines();
    void changeCell();
    void addCell();
    void removeCell();
    void wrapLine();
    void changeLineEnd();
    void cutShort();

    std::mt19937 *m_random;
    char m_kind;
    QList<QByteArray> m_lines; ///< split at line feeds
};

#endif

#ifndef DATALOG_TESTS_PARSING_RANDOMLOG_H
#define DATALOG_TESTS_PARSING_RANDOMLOG_H

#include <QByteArray>

#include <random>

/** Writes logs of all shapes, well formed or nearly so; the same one for the same seed. */
class RandomLog
{
public:
    explicit RandomLog(quint32 seed);

    char separator() const { return m_separator; }
    QByteArray text();

private:
    int below(int count) { return int(m_random() % quint32(count)); }
    bool once(int in) { return below(in) == 0; }
    template <int N> const char *oneOf(const char *const (&texts)[N]) { return texts[below(N)]; }
    QByteArray line(const QByteArray &text);
    QByteArray cell();
    QByteArray row(int cells);
    QByteArray mark(const char *name);
    QByteArray header();
    QByteArray dataRow(int columns);
    QByteArray block();

    std::mt19937 m_random;
    char m_separator;
    const char *m_lineEnd;
};

#endif

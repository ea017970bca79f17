#include "bench/LogWriter.h"

#include <QFile>

namespace
{

const int kFlushSize = 1 << 20;
const int kGroupSize = 5; ///< columns in each group
const int kStep = 101; ///< a value moves by less than half of it, in hundredths

/** A linear congruential generator: the same numbers everywhere, and quickly. */
class Random
{
public:
    Random()
        : m_state(20160314)
    {
    }

    int below(int limit)
    {
        m_state = m_state * Q_UINT64_C(6364136223846793005) + Q_UINT64_C(1442695040888963407);
        return int((m_state >> 33) % quint64(limit));
    }

private:
    quint64 m_state;
};

void appendNumber(QByteArray *text, int number)
{
    char digits[12];
    int at = sizeof digits;
    do {
        digits[--at] = char('0' + number % 10);
        number /= 10;
    } while (number > 0);
    text->append(digits + at, int(sizeof digits) - at);
}

void appendTwoDigits(QByteArray *text, int number)
{
    text->append(char('0' + number / 10 % 10));
    text->append(char('0' + number % 10));
}

void appendHundredths(QByteArray *text, int hundredths)
{
    appendNumber(text, hundredths / 100);
    text->append('.');
    appendTwoDigits(text, hundredths % 100);
}

void appendClock(QByteArray *text, int second)
{
    appendTwoDigits(text, second / 3600 % 24);
    text->append(':');
    appendTwoDigits(text, second / 60 % 60);
    text->append(':');
    appendTwoDigits(text, second % 60);
}

/** One in six columns has values from 1000 up, the others have three digits before the point. */
int lowest(int column)
{
    return column % 6 == 0 ? 100000 : 10000;
}

int wander(int value, int column, Random *random)
{
    const int least = lowest(column);
    return qBound(least, value + random->below(kStep) - kStep / 2, least * 10 - 1);
}

QByteArray columnName(int column)
{
    if (column == 0)
        return "Obs";
    return column == 1 ? QByteArray("Time") : "Value" + QByteArray::number(column);
}

QByteArray columnUnit(int column)
{
    if (column == 0)
        return QByteArray();
    return column == 1 ? "hh:mm:ss" : "V";
}

bool writeAll(QIODevice *device, const QByteArray &text)
{
    return device->write(text) == text.size();
}

} // namespace

LogWriter::LogWriter(int rows, int columns)
    : m_rows(qMax(rows, 0))
    , m_columns(qMax(columns, 2))
{
}

bool LogWriter::write(const QString &path, QString *error) const
{
    QFile file(path);
    const bool written
        = file.open(QIODevice::WriteOnly | QIODevice::Truncate) && write(&file) && file.flush();
    *error = written ? QString() : file.errorString();
    return written;
}

bool LogWriter::write(QIODevice *device) const
{
    QByteArray text = preamble();
    text.reserve(kFlushSize + 4096);
    QVector<int> values = firstValues();
    Random random;
    for (int row = 0; row < m_rows; ++row) {
        appendNumber(&text, row + 1);
        text.append('\t');
        appendClock(&text, row);
        for (int column = 2; column < m_columns; ++column) {
            values[column] = wander(values.at(column), column, &random);
            text.append('\t');
            appendHundredths(&text, values.at(column));
        }
        text.append('\n');
        if (text.size() >= kFlushSize) {
            if (!writeAll(device, text))
                return false;
            text.resize(0);
        }
    }
    return writeAll(device, text);
}

QByteArray LogWriter::preamble() const
{
    QByteArray groups;
    QByteArray names;
    QByteArray units;
    for (int column = 0; column < m_columns; ++column) {
        const char *const separator = column == 0 ? "" : "\t";
        groups += separator + ("Group" + QByteArray::number(column / kGroupSize));
        names += separator + columnName(column);
        units += separator + columnUnit(column);
    }
    return "[Header]\nCreated\t2016-03-14 16:38:02\nSys:Serial\tCC-1042\n[Data]\n" + groups + '\n'
        + names + '\n' + units + '\n';
}

QVector<int> LogWriter::firstValues() const
{
    QVector<int> values(m_columns);
    for (int column = 0; column < m_columns; ++column)
        values[column] = lowest(column) * 5;
    return values;
}

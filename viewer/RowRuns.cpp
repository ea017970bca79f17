#include "viewer/RowRuns.h"

#include <QStringList>

namespace
{

/** A row counted from 0, or -1 where @p text is none. */
int rowOf(const QStringRef &text)
{
    const QStringRef digits = text.trimmed();
    for (const QChar c : digits) {
        if (c < QLatin1Char('0') || c > QLatin1Char('9'))
            return -1;
    }
    return digits.toInt() - 1;
}

} // namespace

RowRuns RowRuns::ofFlags(const QVector<int> &flags)
{
    RowRuns rows;
    for (int row = 0; row < flags.size(); ++row) {
        if (!flags.at(row))
            continue;
        if (row > 0 && flags.at(row - 1))
            rows.m_runs.last().second = row;
        else
            rows.m_runs.append(qMakePair(row, row));
    }
    return rows;
}

RowRuns RowRuns::read(const QString &text, bool *ok)
{
    RowRuns rows;
    *ok = true;
    if (text.trimmed().isEmpty())
        return rows;
    const QVector<QStringRef> parts = text.splitRef(QLatin1Char(','));
    int previous = -1;
    for (const QStringRef &part : parts) {
        const int dash = part.indexOf(QLatin1Char('-'));
        const int first = rowOf(dash < 0 ? part : part.left(dash));
        const int last = dash < 0 ? first : rowOf(part.mid(dash + 1));
        if (first <= previous || last < first) {
            *ok = false;
            return RowRuns();
        }
        rows.m_runs.append(qMakePair(first, last));
        previous = last;
    }
    return rows;
}

QString RowRuns::text() const
{
    QStringList parts;
    for (const QPair<int, int> &run : m_runs) {
        const QString first = QString::number(run.first + 1);
        const QString last = QString::number(run.second + 1);
        parts.append(run.first == run.second ? first : first + QLatin1Char('-') + last);
    }
    return parts.join(QStringLiteral(", "));
}

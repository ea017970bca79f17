#ifndef DATALOG_TESTS_MODEL_RAGGEDROWS_H
#define DATALOG_TESTS_MODEL_RAGGEDROWS_H

#include "model/RowStore.h"

#include <random>

/**
 * Rows of random length and content, kept the plain way: what a store and its columns must answer
 * is worked out on lists of strings.
 */
class RaggedRows
{
public:
    explicit RaggedRows(uint seed)
        : m_random(seed)
    {
    }

    /** Adds a row of @p least to @p most cells to the lists and, as text, to @p store. */
    void append(RowStore &store, int least, int most)
    {
        QStringList cells;
        for (int count = least + below(most - least + 1); count > 0; --count)
            cells.append(randomCell());
        append(store, cells);
    }

    void append(RowStore &store, const QStringList &cells)
    {
        const QByteArray text = cells.join(QString(QLatin1Char(store.separator()))).toUtf8();
        store.append(text.constData(), text.size(), cells.size());
        rows.append(cells);
    }

    /** The cells of a column; those of the clock-time column are told without quotes. */
    QStringList column(int index, bool isTime) const
    {
        QStringList cells;
        for (int row = 0; row < rows.size(); ++row) {
            if (rows.at(row).size() > index)
                cells.append(rows.at(row).at(index));
        }
        return isTime ? cells.replaceInStrings(QLatin1String("\""), QString()) : cells;
    }

    /** What the first @p count rows have of a column. */
    QStringList columnOfFirst(int count, int index) const
    {
        RaggedRows first(0);
        first.rows = rows.mid(0, count);
        return first.column(index, false);
    }

    QList<QStringList> columns(int count) const
    {
        QList<QStringList> all;
        for (int index = 0; index < count; ++index)
            all.append(column(index, index == 1));
        return all;
    }

    /** The row that holds the cell at @p position of a column. */
    int rowOfCell(int index, int position) const
    {
        for (int row = 0; row < rows.size(); ++row) {
            if (rows.at(row).size() > index && position-- == 0)
                return row;
        }
        return -1;
    }

    int below(int limit) { return int(m_random() % uint(limit)); }

    QList<QStringList> rows;

private:
    QString randomCell()
    {
        switch (below(10)) {
        case 0:
            return QString();
        case 1:
            return QString::fromUtf8("\xc2\xb5mol \xe2\x82\xac");
        case 2:
            return QString::fromLatin1("\"%1:%2:30\"").arg(10 + below(14)).arg(10 + below(50));
        case 3:
            return QString::fromLatin1("%1:0%2:59").arg(10 + below(14)).arg(below(10));
        case 4:
            return QString(QChar(QChar::ByteOrderMark)) + QString::number(below(9));
        case 5:
            return QString::number(below(2000) - 1000) + QLatin1String("e400");
        case 6:
            return QString::fromLatin1(below(2) ? "---" : "\"---\"");
        default:
            return QString::number((below(200000) - 100000) / 1000.0);
        }
    }

    std::mt19937 m_random; // the same numbers everywhere for the same seed
};

#endif

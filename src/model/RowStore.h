#ifndef DATALOG_MODEL_ROWSTORE_H
#define DATALOG_MODEL_ROWSTORE_H

#include "model/CellWalk.h"

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>
#include <QVector>

/**
 * The rows of a log, each stored once, as the text that was read.
 *
 * A row is its cells' UTF-8 text joined by the separator. Rows are kept in pages of a few hundred,
 * so that a growing log is never copied, at a cost of the text itself and about four bytes a row.
 * Finding a cell means walking over the separators before it, which is cheap within one row.
 *
 * Columns are read off the rows: the cells of column c are those of the rows that have more than c
 * cells, in row order. After a row that is too short, a cell's position in its column and its
 * row's number therefore differ; rowOfCell() leads from the one to the other.
 */
class RowStore
{
public:
    explicit RowStore(char separator);

    /** Appends a row of @p cells cells; @p text holds @p cells - 1 separators. */
    void append(const char *text, int size, int cells);

    char separator() const { return m_separator; }
    int rowCount() const { return m_rowCount; }
    /** The row's whole text, separators included. */
    CellText row(int row) const;
    /** One cell; empty where the row has no such cell. */
    CellText cell(int row, int index) const;
    QStringList rowTexts(int row) const;

    /** How many rows reach @p column. */
    int columnLength(int column) const;
    /** columnLength() of the first @p columns columns, for the price of one. */
    QVector<int> columnLengths(int columns) const;
    /** The row that holds the cell at @p position of @p column; both must exist. */
    int rowOfCell(int column, int position) const;

    /**
     * Calls @p visit(i, CellText) for each cell of @p columns among the first @p rows rows, row by
     * row, with the position i of its column in @p columns. These have to ascend.
     */
    template <typename Visitor>
    void visitColumns(const QVector<int> &columns, int rows, Visitor &visit) const
    {
        for (int i = 0; i < m_pages.size() && m_pages.at(i).firstRow < rows; ++i) {
            const Page &page = m_pages.at(i);
            const int rowsInPage = qMin(page.rows(), rows - page.firstRow);
            for (int row = 0; row < rowsInPage; ++row) {
                CellWalk walk(page.text(row), m_separator);
                for (int c = 0; c < columns.size() && columns.at(c) < page.width(row); ++c)
                    visit(c, walk.cell(columns.at(c)));
            }
        }
    }

    /** Bytes held, for measuring. */
    qint64 bytes() const;

private:
    struct Page {
        Page()
            : firstRow(0)
            , commonWidth(0)
        {
        }
        int rows() const { return ends.size(); }
        int width(int row) const { return widths.isEmpty() ? commonWidth : widths.at(row); }
        CellText text(int row) const
        {
            const int start = row == 0 ? 0 : ends.at(row - 1);
            return CellText(bytes.constData() + start, ends.at(row) - start);
        }
        void append(const char *text, int size, int cells);
        /** Rows with more than @p column cells. */
        int reaching(int column) const;
        /** Counts each row for the last of the columns that it reaches. */
        void countRows(QVector<int> *lastColumns) const;
        /** The row with the cell at @p position among those that reach @p column. */
        int rowReaching(int column, int position) const;

        int firstRow;
        int commonWidth; ///< cells of each row, as long as they agree
        QVector<int> widths; ///< cells row by row, filled when they stop agreeing
        QVector<int> ends; ///< where each row's text ends
        QByteArray bytes;
    };

    const Page &pageOfRow(int row) const;
    const QVector<int> &pageStarts(int column) const;
    void startPage();

    char m_separator;
    int m_rowCount;
    int m_narrowest;
    int m_widest;
    QVector<Page> m_pages;
    mutable int m_lastPage; ///< where the last row was found: readers mostly ask nearby next
    mutable QHash<int, QVector<int>> m_pageStarts; ///< per column: cells before each page
};

#endif

#ifndef DATALOG_TABLE_TABLEFITTER_H
#define DATALOG_TABLE_TABLEFITTER_H

#include <QObject>
#include <QVector>

class QTableView;

/**
 * Fits a table's columns and rows to their contents, in a time that does not grow with the rows.
 *
 * A column gets the width of its header and of the rows on screen, and of the longest among rows
 * spread over the whole table. Hidden columns are fitted as well, so that one that is shown later
 * has the right width at once. All rows get one height, that of the tallest row on screen: cells of
 * a log are one line of one font. Asking each of a million rows would take minutes to the same end.
 */
class TableFitter : public QObject
{
    Q_OBJECT

public:
    /** Fits @p view, which owns the fitter. */
    explicit TableFitter(QTableView *view);

    /** The width that a column's header needs. */
    int headerWidth(int column) const;
    /** The width that a column's cells needed at the last fit; 0 for one that was not there. */
    int contentsWidth(int column) const;

public slots:
    void fit();

Q_SIGNALS:
    /** All columns and rows have their sizes. */
    void fitted();

private:
    void chooseRows();
    void fitColumn(int column);
    void fitRows();
    void setDefaultHeight(int height);
    int cellsWidth(int column);
    int textLength(int row, int column) const;
    int measuredWidth(int row, int column);
    int gridWidth() const;

    QTableView *m_view;
    QVector<int> m_contentsWidths;
    QVector<int> m_nearRows; ///< on screen: measured
    QVector<int> m_farRows; ///< spread over the table: measured when longer than all before
    int m_cellHeight; ///< of the tallest cell measured
};

#endif

#ifndef DATALOG_VIEWER_CELLSEARCH_H
#define DATALOG_VIEWER_CELLSEARCH_H

#include <QBasicTimer>
#include <QObject>
#include <QPointer>
#include <QStringMatcher>
#include <QTableView>
#include <QVector>

#include <functional>

/**
 * Finds a text, in either case, in the shown columns of a table.
 *
 * The search goes on between events, a few milliseconds at a time, so that a million rows block
 * nobody; what is found so far can be walked through meanwhile. Matches are cells, counted along
 * the rows.
 */
class CellSearch : public QObject
{
    Q_OBJECT

public:
    typedef std::function<QString(int row, int column)> CellText;
    struct Match {
        int row = -1;
        int column = -1;
        int number = 0; ///< counted from 1

        bool isValid() const { return row >= 0; }
    };

    explicit CellSearch(QObject *parent = nullptr);

    /** Looks for @p text in rows 0 to @p rowCount - 1; nothing is found of an empty text. */
    void start(const QString &text, int rowCount, const QVector<int> &columns,
               const CellText &cellText);
    void stop();
    bool isRunning() const { return m_timer.isActive(); }
    /** Of matches found so far. */
    int count() const { return m_count; }
    /** Rows looked through so far. */
    int searchedRows() const { return m_row; }

    /** The match after a cell, which need not be one; beyond the last it is the first. */
    Match next(int row, int column) const;
    /** The match before a cell; before the first it is the last. */
    Match previous(int row, int column) const;
    /** Whether a match after the cell is found already, without starting over. */
    bool hasAfter(int row, int column) const;

signals:
    /** Some more rows were looked through. */
    void progressed();
    void finished();

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    /** A row with matches. */
    struct Row {
        int row;
        int before; ///< matches in all rows before
    };

    int countIn(int row) const;
    Match match(int place, int column, bool isForward) const;
    int placeOf(int row) const;
    bool isMatch(int row, int column) const;

    QStringMatcher m_matcher;
    QVector<int> m_columns;
    CellText m_cellText;
    QVector<Row> m_rows;
    QBasicTimer m_timer;
    int m_rowCount;
    int m_row;
    int m_count;
};

#endif

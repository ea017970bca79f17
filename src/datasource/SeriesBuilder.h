#ifndef DATALOG_DATASOURCE_SERIESBUILDER_H
#define DATALOG_DATASOURCE_SERIESBUILDER_H

#include "filters/RowChoice.h"
#include "model/CellGrid.h"

class LogDataSetFilter;

/** A piece of a curve: as many X as Y values. */
struct CurvePiece {
    QVector<double> x;
    QVector<double> y;
};

/**
 * Turns columns of a grid into the numbers of curves, for a choice of its rows.
 *
 * The clock-time column is told in seconds since the first time of the series; every other column
 * as the numbers in its texts. A cell that is missing counts as an empty text, and what is no
 * number counts as 0.
 */
class SeriesBuilder
{
public:
    /** @param rows the rows to use, in the order of the curve. */
    SeriesBuilder(const CellGridPointer &grid, const RowChoice &rows);

    /** Reads ahead what the series of these columns take, in one go. */
    void readAhead(const QVector<int> &columns) const;
    /** All values of a column; the gap text is 0 here like any other text. */
    QVector<double> values(int column) const;
    /**
     * The values of a column that pass all @p criteria, cut into pieces where values fail one or
     * where the log holds the gap text.
     * @param x the X values, one for each of the rows; with any other number there are no pieces.
     */
    QList<CurvePiece> pieces(int column, const QVector<double> &x,
                             const QVector<LogDataSetFilter *> &criteria) const;

private:
    /** Neighbouring rows that stay in a curve, told by their positions among the rows. */
    struct Run {
        int begin;
        int end; ///< the position after the last
    };

    QVector<Run> keptRuns(int column, const QVector<LogDataSetFilter *> &criteria) const;
    QVector<int> gaps(int column) const;
    QVector<double> numbers(int column) const;
    QVector<double> seconds(int column, const QVector<Run> &kept) const;
    QVector<double> columnValues(int column, const QVector<Run> &kept) const;

    CellGridPointer m_grid;
    RowChoice m_rows;
};

#endif

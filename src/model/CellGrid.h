#ifndef DATALOG_MODEL_CELLGRID_H
#define DATALOG_MODEL_CELLGRID_H

#include <QHash>
#include <QSharedPointer>
#include <QString>
#include <QStringList>
#include <QVector>

/** The text that stands for a value that is left out of a curve: there the curve breaks. */
extern const char kGapText[];

/** A column read as numbers, once. */
struct NumberColumn {
    /** One value a cell, as QString::toDouble gives it: 0 where the text is no number. */
    QVector<double> values;
    /** Ascending positions of the cells whose text is the gap text. */
    QVector<int> gaps;
};

/** A column read as clock times, once. */
struct TimeColumn {
    /** Seconds since midnight a cell, -1 where the text is no time. */
    QVector<int> seconds;
    /** Ascending positions of the cells whose text is the gap text. */
    QVector<int> gaps;
};

/**
 * A read-only grid of text cells, addressed column first, whose columns may differ in length.
 *
 * What a grid answers never changes while it lives, so a reader may keep one for as long as it
 * likes; a log that is still being read gives out a new grid for its new rows. Numbers are read
 * from the text once per column and kept.
 */
class CellGrid
{
public:
    virtual ~CellGrid();

    virtual int columnCount() const = 0;
    /** Cells in @p column, 0 for a column that the grid does not have. */
    virtual int cellCount(int column) const = 0;
    /** Text of a cell, a null string where the grid has none. */
    virtual QString text(int column, int row) const = 0;
    /** Texts of a whole column. */
    virtual QStringList columnTexts(int column) const;
    /** Every column's texts: for readers that want lists, at the price of building them. */
    virtual QList<QStringList> toLists() const;

    /** @p column as numbers; no values for a column that the grid does not have. */
    const NumberColumn &numbers(int column) const;
    /**
     * Reads those of @p columns that numbers() has not been asked for yet: together they take far
     * less time than one after the other.
     */
    void readNumbersAhead(const QVector<int> &columns) const;
    /** @p column as clock times. */
    const TimeColumn &times(int column) const;

protected:
    CellGrid();
    /** @param columns in ascending order. */
    virtual QVector<NumberColumn> readNumbers(const QVector<int> &columns) const;
    virtual TimeColumn readTimes(int column) const;

private:
    Q_DISABLE_COPY(CellGrid)
    NumberColumn readNumbersOf(int column) const;

    mutable QHash<int, NumberColumn> m_numbers;
    mutable QHash<int, TimeColumn> m_times;
};

typedef QSharedPointer<const CellGrid> CellGridPointer;

#endif

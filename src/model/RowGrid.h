#ifndef DATALOG_MODEL_ROWGRID_H
#define DATALOG_MODEL_ROWGRID_H

#include "model/CellGrid.h"
#include "model/RowStore.h"

/**
 * The columns of a row store, as they were when the grid was made.
 *
 * The store only ever grows at its end, so a grid stays right, and keeps the store alive, while
 * more rows come in. The clock-time column is told without its double quotes; the rows keep them.
 */
class RowGrid : public CellGrid
{
public:
    /** Position of the clock-time column in every log. */
    enum { TimeColumnIndex = 1 };

    /** A grid of @p columns columns: a log's header can have more of them than any of its rows. */
    RowGrid(const QSharedPointer<const RowStore> &store, int columns);

    int columnCount() const override { return m_lengths.size(); }
    int cellCount(int column) const override;
    QString text(int column, int row) const override;
    QStringList columnTexts(int column) const override;
    QList<QStringList> toLists() const override;

protected:
    QVector<NumberColumn> readNumbers(const QVector<int> &columns) const override;
    TimeColumn readTimes(int column) const override;

private:
    template <typename Collector> void collect(int column, Collector &collector) const;

    QSharedPointer<const RowStore> m_store;
    int m_rows; ///< those that the store had when the grid was made
    QVector<int> m_lengths;
};

#endif

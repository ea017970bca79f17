#ifndef DATALOG_VIEWER_PLOTTEDDATA_H
#define DATALOG_VIEWER_PLOTTEDDATA_H

#include "model/CellGrid.h"

#include <QStringList>
#include <QVector>

class LogDataSourceItem;

/** What is ticked, row by row: the log's own texts behind the curves. */
class PlottedData
{
public:
    /** A column of the log. */
    struct Column {
        int index = -1; ///< -1 where there is none
        QString name;
        QString unit; ///< empty where the log gives none, or "-"

        bool isValid() const { return index >= 0; }
        /** Whether its numbers are seconds since its first clock time. */
        bool isClockTime() const;
    };

    explicit PlottedData(LogDataSourceItem *source);

    /** Whether the source, which must be there still, shows the same cells as at first. */
    bool isCurrent() const;

    const Column &x() const { return m_x; }
    const QVector<Column> &left() const { return m_left; }
    const QVector<Column> &right() const { return m_right; }
    /** The rows of the log that are plotted, in the curves' order; found anew by each call. */
    QVector<int> rows() const;
    /**
     * The texts of a column in some of the rows, as the log has them.
     * @param gaps whether those that are left out of the column's curve come as null strings.
     */
    QStringList texts(const Column &column, const QVector<int> &rows, bool gaps) const;
    /** The column behind a curve of the left or right axis; invalid where there is none. */
    Column curve(bool isRight, const QString &name) const;
    /** Seconds since midnight of what a clock-time column counts from; -1 without any time. */
    int clockBase(const Column &column, bool gaps) const;
    /** The same of the horizontal axis; -1 where it shows no clock times. */
    int xClockBase() const { return m_x.isClockTime() ? clockBase(m_x, false) : -1; }

private:
    Column column(int index) const;
    QVector<Column> columns(const QList<int> &indexes) const;

    LogDataSourceItem *m_source;
    CellGridPointer m_grid;
    QList<QStringList> m_headers;
    Column m_x;
    QVector<Column> m_left;
    QVector<Column> m_right;
};

#endif

#ifndef DATALOG_VIEWER_PLOTTEDROWS_H
#define DATALOG_VIEWER_PLOTTEDROWS_H

#include "datasource/LogDataSourceItem.h"
#include "viewer/CellSearch.h"

#include <QAbstractProxyModel>
#include <QBitArray>
#include <QHash>
#include <QPointer>

/**
 * The observations as they are plotted: without the rows of which no curve has a sample, because
 * criteria leave out what they hold, and with empty cells where some of the curves have none.
 *
 * Rows that the user excluded stay, with their check boxes, to be taken in again.
 */
class PlottedRows : public QAbstractProxyModel
{
    Q_OBJECT

public:
    explicit PlottedRows(LogDataSourceItem *source, QObject *parent = nullptr);

    /** To be called when the curves have changed; whether that made other rows of these. */
    bool update();

    /** The log's row behind one of these; -1 where there is none. */
    int logRow(int row) const;
    /** The row that shows a row of the log; -1 where none does. */
    int shownRow(int logRow) const;
    /** Reads the cells as they are now, and faster than by their indexes. */
    CellSearch::CellText cellText() const;

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QModelIndex index(int row, int column,
                      const QModelIndex &parent = QModelIndex()) const override;
    QModelIndex parent(const QModelIndex &child) const override;
    QModelIndex mapToSource(const QModelIndex &index) const override;
    QModelIndex mapFromSource(const QModelIndex &index) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    /** What is left of the window's rows. */
    struct Choice {
        int windowRows = 0;
        bool isWhole = true;
        QVector<int> rows; ///< unless whole
        /** The window's rows that are empty in a column of the table. */
        QHash<int, QBitArray> gaps;

        bool operator==(const Choice &other) const;
        int count() const { return isWhole ? windowRows : rows.size(); }
        int windowRow(int row) const { return isWhole ? row : rows.at(row); }
        bool isGap(int windowRow, int column) const;
    };

    void followWindow();
    void clear();
    void fill(const Choice &choice);
    Choice choose() const;
    QBitArray gapsOf(int variable) const;
    QVector<LogDataSetFilter *> criteriaOf(int variable) const;
    void tellChecks();

    QPointer<LogDataSourceItem> m_source;
    LogObservationSortFilterProxyModel *m_window;
    Choice m_choice;
    int m_rowCount;
};

#endif

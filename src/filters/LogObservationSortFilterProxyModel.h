#ifndef DATALOG_FILTERS_LOGOBSERVATIONSORTFILTERPROXYMODEL_H
#define DATALOG_FILTERS_LOGOBSERVATIONSORTFILTERPROXYMODEL_H

#include "filters/RowChoice.h"

#include <QSortFilterProxyModel>

class SourceChangeRelay;

/**
 * Shows a window of the source's rows (all, the first or the last so many) and, within it, every
 * so-manyth row, counted from the start of the window.
 *
 * Whether a row shows depends on its number alone, never on its cells: changed data does not filter
 * anew. It does sort anew when the proxy is sorted by a column that changed and
 * dynamicSortFilter() is set.
 */
class LogObservationSortFilterProxyModel : public QSortFilterProxyModel
{
    Q_OBJECT
    Q_ENUMS(LogObservationSortFilterType)
    Q_PROPERTY(LogObservationSortFilterType sortFilterType READ sortFilterType WRITE
                   setSortFilterType NOTIFY sortFilterTypeChanged)
    Q_PROPERTY(int rangeSize READ rangeSize WRITE setRangeSize NOTIFY rangeSizedChanged)
    Q_PROPERTY(int frequency READ frequency WRITE setFrequency NOTIFY frequencyChanged)

public:
    /** Which rows the window holds. Scripts can write any number. */
#ifdef Q_MOC_RUN // the older engine's moc can't read an enumeration with a type
    enum LogObservationSortFilterType{All = 0, Head = 1, Tail = 2};
#else
    enum LogObservationSortFilterType : int { All = 0, Head = 1, Tail = 2 };
#endif

    /** Shows the first 50 rows. */
    explicit LogObservationSortFilterProxyModel(QObject *parent = nullptr);
    ~LogObservationSortFilterProxyModel() override;

    // The setters filter anew each time, also for the value there is, and emit no change signal.
    LogObservationSortFilterType sortFilterType() const;
    void setSortFilterType(LogObservationSortFilterType type);
    /** Rows of the window; one of 0 or less shows nothing under Head and Tail. */
    int rangeSize() const;
    void setRangeSize(int rangeSize);
    /**
     * Step within the window. Its sign does not matter, and 0 counts as 1. A Tail window larger
     * than the source counts from before the source's first row.
     */
    int frequency() const;
    void setFrequency(int frequency);

    void setSourceModel(QAbstractItemModel *sourceModel) override;

    /** The source rows shown, in the order they show in. */
    RowChoice sourceRows() const;

signals:
    void sortFilterTypeChanged();
    void rangeSizedChanged();
    void frequencyChanged();

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const override;

private:
    friend class SourceChangeRelay;

    qint64 sourceRowCount() const;
    qint64 step() const;
    SteppedRows shownRows() const;
    void refilterFrom(const SteppedRows &before);
    void refilterMoved();
    void refilter(qint64 mostRuns);

    LogObservationSortFilterType m_sortFilterType;
    int m_rangeSize;
    int m_frequency;
    bool m_emptied; ///< shows nothing, on the way from one set of rows to another
    SourceChangeRelay *m_relay;
};

#endif

#ifndef DATALOG_FILTERS_LOGOBSERVATIONSORTFILTERPROXYMODEL_H
#define DATALOG_FILTERS_LOGOBSERVATIONSORTFILTERPROXYMODEL_H

#include "declarative/ModelCompat.h"
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
 *
 * The rows are mapped in one of two ways:
 *
 * - By steps, from the reset of a source that is a plain table on: rows at even steps are told by
 *   three numbers, where the base class lists all rows twice, anew at each reset. The indexes have
 *   no pointer inside.
 * - By the base class, from the moment that something happens which steps can't tell: the proxy is
 *   sorted, or the source changes in another way than by a reset. handOver() is that moment.
 *
 * What is observed is the same. A subclass may accept other rows and is left to the base class.
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

    using QObject::parent;
    QModelIndex mapToSource(const QModelIndex &proxyIndex) const override;
    QModelIndex mapFromSource(const QModelIndex &sourceIndex) const override;
    QModelIndex index(int row, int column,
                      const QModelIndex &parent = QModelIndex()) const override;
    QModelIndex parent(const QModelIndex &child) const override;
    QModelIndex sibling(int row, int column,
                        const QModelIndex &index) const DATALOG_OVERRIDE_ON_QT5;
    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    bool hasChildren(const QModelIndex &parent = QModelIndex()) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    bool setHeaderData(int section, Qt::Orientation orientation, const QVariant &value,
                       int role = Qt::EditRole) override;
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

signals:
    void sortFilterTypeChanged();
    void rangeSizedChanged();
    void frequencyChanged();

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const override;

private:
    friend class SourceChangeRelay;

    bool isExtended() const;
    qint64 sourceRowCount() const;
    qint64 step() const;
    SteppedRows acceptedRows() const;
    void refilterFrom(const SteppedRows &before);
    void refilterMoved();
    bool takesTooLong(qint64 runs) const;
    void refilter(qint64 mostRuns);

    bool mapsBySteps() const;
    bool isByStep(const QModelIndex &proxyIndex) const;
    int sourceSection(int section, Qt::Orientation orientation) const;
    void startSteps();
    void handOver();
    void moveBySteps();
    void moveOneEnd(const SteppedRows &after);
    void removeShown(int begin, int end, const SteppedRows &left);
    void insertShown(int begin, int end, const SteppedRows &all);

    LogObservationSortFilterType m_sortFilterType;
    int m_rangeSize;
    int m_frequency;
    bool m_mapsBySteps;
    SteppedRows m_shown; ///< the rows, where they are mapped by steps or on their way
    bool m_isMoving; ///< m_shown is all that shows, on the way from one set of rows to another
    mutable bool m_isListed; ///< the base class made its lists since the last reset
    SourceChangeRelay *m_relay;
};

#endif

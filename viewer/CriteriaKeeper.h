#ifndef DATALOG_VIEWER_CRITERIAKEEPER_H
#define DATALOG_VIEWER_CRITERIAKEEPER_H

#include "datasource/LogDataSourceItem.h"

#include <QPointer>
#include <QVector>

/**
 * Keeps the plot as a user expects it when the criteria change.
 *
 * The module then empties the series and forgets the excluded rows, and leaves the rest to its
 * user: this puts the rows back and has the series computed, at once.
 */
class CriteriaKeeper : public QObject
{
    Q_OBJECT
    Q_PROPERTY(LogDataSourceItem *source READ source WRITE setSource NOTIFY sourceChanged)

public:
    explicit CriteriaKeeper(QObject *parent = nullptr);

    LogDataSourceItem *source() const { return m_source; }
    void setSource(LogDataSourceItem *source);

signals:
    void sourceChanged();

private:
    void keepExcludedRows();
    void recompute();

    QPointer<LogDataSourceItem> m_source;
    CellGridPointer m_grid; ///< what the rows below belong to
    QVector<int> m_excludedRows; ///< for each row whether it is excluded
};

#endif

#ifndef DATALOG_VIEWER_EXCLUDEDROWS_H
#define DATALOG_VIEWER_EXCLUDEDROWS_H

#include "datasource/LogDataSourceItem.h"

#include <QPointer>

/** How many rows are excluded from the plot, and the way to have them all back. */
class ExcludedRows : public QObject
{
    Q_OBJECT
    Q_PROPERTY(LogDataSourceItem *source READ source WRITE setSource NOTIFY sourceChanged)
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    explicit ExcludedRows(QObject *parent = nullptr);

    LogDataSourceItem *source() const { return m_source; }
    void setSource(LogDataSourceItem *source);
    int count() const { return m_count; }

    Q_INVOKABLE void clear();

signals:
    void sourceChanged();
    void countChanged();

private:
    void update();

    QPointer<LogDataSourceItem> m_source;
    int m_count;
};

#endif

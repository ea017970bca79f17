#ifndef DATALOG_VIEWER_CRITERIALISTSTYLE_H
#define DATALOG_VIEWER_CRITERIALISTSTYLE_H

#include "datasource/LogDataSourceItem.h"
#include "viewer/ListStyle.h"

/** A list of criteria from which single ones can be removed, by their cross or by the Delete key.
 */
class CriteriaListStyle : public ListStyle
{
    Q_OBJECT
    Q_PROPERTY(LogDataSourceItem *source READ source WRITE setSource NOTIFY sourceChanged)
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    explicit CriteriaListStyle(QObject *parent = nullptr);

    LogDataSourceItem *source() const { return m_source; }
    void setSource(LogDataSourceItem *source);
    /** How many criteria there are. */
    int count() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    void sourceChanged();
    void countChanged();

protected:
    TouchDelegate *newDelegate(QListView *view) override;

private:
    void remove(const QModelIndex &index);

    QPointer<LogDataSourceItem> m_source;
};

#endif

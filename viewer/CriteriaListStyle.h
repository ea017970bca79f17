#ifndef DATALOG_VIEWER_CRITERIALISTSTYLE_H
#define DATALOG_VIEWER_CRITERIALISTSTYLE_H

#include "datasource/LogDataSourceItem.h"
#include "viewer/ViewStyle.h"

/** For the module's list of criteria: single ones can be removed, by their cross or by Delete. */
class CriteriaListStyle : public ViewStyle
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
    void apply() override;

private:
    void remove(const QModelIndex &index);

    QPointer<LogDataSourceItem> m_source;
};

#endif

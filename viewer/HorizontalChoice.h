#ifndef DATALOG_VIEWER_HORIZONTALCHOICE_H
#define DATALOG_VIEWER_HORIZONTALCHOICE_H

#include "datasource/LogDataSourceItem.h"

#include <QPointer>

/**
 * Keeps at most one horizontal variable ticked: the last one. The module takes the first of those
 * that are ticked, so a tick further down would seem to do nothing.
 */
class HorizontalChoice : public QObject
{
    Q_OBJECT
    Q_PROPERTY(LogDataSourceItem *source READ source WRITE setSource NOTIFY sourceChanged)

public:
    explicit HorizontalChoice(QObject *parent = nullptr);

    LogDataSourceItem *source() const { return m_source; }
    void setSource(LogDataSourceItem *source);

signals:
    void sourceChanged();

private:
    void keepOnly(QStandardItem *changed);

    QPointer<LogDataSourceItem> m_source;
};

#endif

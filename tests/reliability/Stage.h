#ifndef DATALOG_TESTS_RELIABILITY_STAGE_H
#define DATALOG_TESTS_RELIABILITY_STAGE_H

#include "datasource/LogDataSourceItem.h"
#include "support/ModelTester.h"

#include <QPointer>
#include <QQuickWindow>

/**
 * Objects of every registered type in a window: two data sources, two plots, and at least one of
 * each other type. Any of them may be missing for a while.
 */
class Stage
{
public:
    /** @param watched whether model testers watch the sources' models, which takes long. */
    explicit Stage(bool watched);
    ~Stage();

    int size() const { return m_objects.size(); }
    /** Null where the object was deleted. */
    QObject *object(int index) const { return m_objects.at(index); }
    QList<LogDataSourceItem *> sources() const;
    void make(int index);
    QQuickWindow *window() { return &m_window; }

private:
    void watch(LogDataSourceItem *source);

    QQuickWindow m_window;
    QList<QPointer<QObject>> m_objects;
    bool m_watched;
};

#endif

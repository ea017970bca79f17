#ifndef DATALOG_TESTS_SUPPORT_ACCESSIBLEEVENTS_H
#define DATALOG_TESTS_SUPPORT_ACCESSIBLEEVENTS_H

#include "support/AccessibleTree.h"
#include "support/TestCompat.h"

/**
 * Hears what assistive tools are told, for as long as it lives. They are told only when somebody
 * listens, so the test has to run in a session that has such a bus. For Qt 5.
 */
class AccessibleEvents
{
public:
    AccessibleEvents()
    {
        list().clear();
        m_previous = QAccessible::installUpdateHandler(&AccessibleEvents::hear);
    }
    ~AccessibleEvents() { QAccessible::installUpdateHandler(m_previous); }
    Q_DISABLE_COPY(AccessibleEvents)

    /** Waits for the session's bus to say that somebody listens. */
    static bool isSomebodyListening()
    {
        return QTest::qWaitFor([] { return QAccessible::isActive(); }, 10000);
    }
    /** Has tools seen events of @p type about what is called so? Forgets all events. */
    bool had(QAccessible::Event type, const QString &name)
    {
        const bool found = list().contains(qMakePair(type, name));
        list().clear();
        return found;
    }
    /** The name of what had the latest event of @p type; null for none. */
    QString latest(QAccessible::Event type) const
    {
        for (int i = list().size() - 1; i >= 0; --i) {
            if (list().at(i).first == type)
                return list().at(i).second;
        }
        return QString();
    }
    /** How many focus events there were. */
    int focusCount() const
    {
        int count = 0;
        for (const auto &event : list())
            count += event.first == QAccessible::Focus ? 1 : 0;
        return count;
    }

private:
    typedef QList<QPair<QAccessible::Event, QString>> Events;

    static Events &list()
    {
        static Events events;
        return events;
    }
    static void hear(QAccessibleEvent *event)
    {
        list() << qMakePair(event->type(), AccessibleTree::name(event->accessibleInterface()));
    }

    QAccessible::UpdateHandler m_previous;
};

#endif

#ifndef DATALOG_TESTS_SUPPORT_EVENTACTION_H
#define DATALOG_TESTS_SUPPORT_EVENTACTION_H

#include <QCoreApplication>
#include <QEvent>
#include <QObject>

#include <functional>

/** Runs a function once, when pending events are handled the next time. */
class EventAction : public QObject
{
public:
    explicit EventAction(const std::function<void()> &action)
        : m_action(action)
        , m_runs(0)
    {
        QCoreApplication::postEvent(this, new QEvent(QEvent::User));
    }

    int runs() const { return m_runs; }

protected:
    void customEvent(QEvent *) override
    {
        ++m_runs;
        m_action();
    }

private:
    std::function<void()> m_action;
    int m_runs;
};

#endif

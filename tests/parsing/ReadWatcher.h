#ifndef DATALOG_TESTS_PARSING_READWATCHER_H
#define DATALOG_TESTS_PARSING_READWATCHER_H

#include "parsing/LogParser.h"

#include <QCoreApplication>
#include <QEvent>
#include <QPointer>
#include <QVector>

/**
 * Lives on the events that a parser lets pass while it reads: notes the progress whenever its timer
 * comes round, and does what a test's subclass does then.
 */
class ReadWatcher : public QObject
{
    Q_OBJECT

public:
    explicit ReadWatcher(LogParser *parser)
        : m_parser(parser)
        , m_posted(0)
    {
        startTimer(0);
    }

    /** Bytes read at each call of the timer during a read, in order. */
    QVector<qint64> progress() const { return m_progress; }
    /** Events handled that were posted during a read, one by each call of the timer. */
    int posted() const { return m_posted; }

protected:
    /** @param count calls during a read so far, this one included. */
    virtual void act(int count) { Q_UNUSED(count); }
    LogParser *parser() const { return m_parser; }

    void timerEvent(QTimerEvent *) override
    {
        if (!m_parser || !m_parser->isParsing())
            return;
        m_progress.append(m_parser->bytesRead());
        QCoreApplication::postEvent(this, new QEvent(QEvent::User));
        act(m_progress.size());
    }

    void customEvent(QEvent *) override { ++m_posted; }

private:
    QPointer<LogParser> m_parser;
    QVector<qint64> m_progress;
    int m_posted;
};

#endif

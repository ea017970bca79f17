#ifndef DATALOG_TESTS_PARSING_QUIETPARSERTEST_H
#define DATALOG_TESTS_PARSING_QUIETPARSERTEST_H

#include "ParserFixture.h"
#include "support/MessageCapture.h"
#include "support/TestCompat.h"

/** Tests of a parser, a fresh one each. Whatever they read, nothing goes to the debug stream. */
class QuietParserTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_capture.reset(new MessageCapture);
        m_fixture.reset(new ParserFixture);
    }
    void cleanup()
    {
        m_fixture.reset();
        const QStringList messages = m_capture->messages();
        m_capture.reset();
        QCOMPARE(messages, QStringList());
    }

protected:
    const TabularParser &table() const { return m_fixture->table(); }

    QScopedPointer<MessageCapture> m_capture;
    QScopedPointer<ParserFixture> m_fixture;
};

#endif

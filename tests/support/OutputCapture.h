#ifndef DATALOG_TESTS_SUPPORT_OUTPUTCAPTURE_H
#define DATALOG_TESTS_SUPPORT_OUTPUTCAPTURE_H

#include <QByteArray>

#include <iostream>
#include <sstream>

/** Takes what is written to the standard output while it lives. */
class OutputCapture
{
public:
    OutputCapture()
        : m_previous(std::cout.rdbuf(m_text.rdbuf()))
    {
    }
    ~OutputCapture() { std::cout.rdbuf(m_previous); }
    QByteArray text() const { return QByteArray(m_text.str().c_str()); }

private:
    Q_DISABLE_COPY(OutputCapture)

    std::ostringstream m_text;
    std::streambuf *m_previous;
};

#endif

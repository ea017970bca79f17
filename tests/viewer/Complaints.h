#ifndef DATALOG_TESTS_VIEWER_COMPLAINTS_H
#define DATALOG_TESTS_VIEWER_COMPLAINTS_H

#include <QStringList>

/** Collects what the engine and Qt complain about for as long as it lives; one at a time. */
class Complaints
{
public:
    Complaints()
        : m_previous(qInstallMessageHandler(collect))
    {
        lines().clear();
    }
    ~Complaints() { qInstallMessageHandler(m_previous); }

    QString text() const { return lines().join(QLatin1Char('\n')); }

private:
    static QStringList &lines()
    {
        static QStringList lines;
        return lines;
    }
    static void collect(QtMsgType type, const QMessageLogContext &, const QString &message)
    {
        if (type != QtDebugMsg && type != QtInfoMsg)
            lines().append(message);
    }

    QtMessageHandler m_previous;
};

#endif

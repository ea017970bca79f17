#ifndef DATALOG_TESTS_SUPPORT_MESSAGECAPTURE_H
#define DATALOG_TESTS_SUPPORT_MESSAGECAPTURE_H

#include <QString>
#include <QStringList>
#include <QtGlobal>

/**
 * Collects what is written to the debug stream while it lives, instead of printing it. Only one at
 * a time.
 */
class MessageCapture
{
public:
    MessageCapture()
    {
        collected().clear();
        m_previous = install(&MessageCapture::handle);
    }

    ~MessageCapture() { install(m_previous); }

    QStringList messages() const { return collected(); }

private:
    Q_DISABLE_COPY(MessageCapture)

    static QStringList &collected()
    {
        static QStringList texts;
        return texts;
    }

#if QT_VERSION >= 0x050000
    static void handle(QtMsgType, const QMessageLogContext &, const QString &text)
    {
        collected().append(text);
    }
    static QtMessageHandler install(QtMessageHandler handler)
    {
        return qInstallMessageHandler(handler);
    }
    QtMessageHandler m_previous;
#else
    static void handle(QtMsgType, const char *text)
    {
        collected().append(QString::fromLocal8Bit(text));
    }
    static QtMsgHandler install(QtMsgHandler handler)
    {
        return qInstallMsgHandler(handler);
    }
    QtMsgHandler m_previous;
#endif
};

#endif

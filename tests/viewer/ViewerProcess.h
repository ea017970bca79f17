#ifndef DATALOG_TESTS_VIEWER_VIEWERPROCESS_H
#define DATALOG_TESTS_VIEWER_VIEWERPROCESS_H

#include <QProcess>

/** Runs the viewer as a program of its own, and keeps what it said. */
class ViewerProcess
{
public:
    /** @param directory where it starts; empty: where the test did. */
    explicit ViewerProcess(const QString &directory = QString())
        : m_environment(QProcessEnvironment::systemEnvironment())
    {
        m_process.setWorkingDirectory(directory);
    }

    void setVariable(const char *name, const QString &value) { m_environment.insert(name, value); }
    void hideDisplay()
    {
        m_environment.remove("DISPLAY");
        m_environment.remove("WAYLAND_DISPLAY");
        m_environment.remove("QT_QPA_PLATFORM");
    }

    /** The exit status, or -1 when the program crashed or did not end in time. */
    int run(const QStringList &arguments, const QString &program = DATALOG_VIEWER)
    {
        m_process.setProcessEnvironment(m_environment);
        m_process.start(program, arguments);
        if (!m_process.waitForFinished(60000) || m_process.exitStatus() != QProcess::NormalExit)
            return -1;
        m_output = m_process.readAllStandardOutput();
        m_errors = m_process.readAllStandardError();
        return m_process.exitCode();
    }
    QString output() const { return QString::fromUtf8(m_output); }
    QString errors() const { return QString::fromUtf8(m_errors); }
    QByteArray errorBytes() const { return m_errors; }

private:
    QProcessEnvironment m_environment;
    QProcess m_process;
    QByteArray m_output;
    QByteArray m_errors;
};

#endif

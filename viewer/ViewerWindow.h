#ifndef DATALOG_VIEWER_VIEWERWINDOW_H
#define DATALOG_VIEWER_VIEWERWINDOW_H

#include "viewer/PlotSetup.h"

#include <QQmlApplicationEngine>

class QQuickWindow;

/** The viewer's window: the scripts that make it up, and the engine that runs them. */
class ViewerWindow : public QObject
{
    Q_OBJECT

public:
    explicit ViewerWindow(const ViewerOptions &options);
    ~ViewerWindow() override;

    /** Null when the scripts could not be loaded; the engine then has said why. */
    QQuickWindow *window() const;
    /** Opens a log as soon as events are handled. */
    void open(const QString &path);

signals:
    /** The command line asks for what the log does not have. */
    void usageError(const QString &text);
    /** A log can't be used; the window shows why. */
    void failed(const QString &text);
    void opened();

private:
    PlotSetup m_setup;
    QQmlApplicationEngine m_engine;
};

#endif

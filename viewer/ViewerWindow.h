#ifndef DATALOG_VIEWER_VIEWERWINDOW_H
#define DATALOG_VIEWER_VIEWERWINDOW_H

#include "viewer/PlotSetup.h"
#include "viewer/Preferences.h"
#include "viewer/WindowPlace.h"

#include <QQmlApplicationEngine>

class QQuickWindow;

/** The viewer's window: the scripts that make it up, and the engine that runs them. */
class ViewerWindow : public QObject
{
    Q_OBJECT

public:
    /** @param preferences the file that keeps them; without one they are forgotten. */
    explicit ViewerWindow(const ViewerOptions &options, const QString &preferences = QString());
    ~ViewerWindow() override;

    /** Null when the scripts could not be loaded; the engine then has said why. */
    QQuickWindow *window() const;
    Preferences *preferences() { return &m_preferences; }
    /** Opens a log as soon as events are handled. */
    void open(const QString &path);
    /** Lists no such file among those opened lately. */
    void leaveOutOfRecent(const QString &path);

signals:
    /** The command line asks for what the log does not have. */
    void usageError(const QString &text);
    /** A log can't be used; the window shows why. */
    void failed(const QString &text);
    void opened();
    /** A definition that the command line names can't be used; the window shows why. */
    void definitionFailed(const QString &text);
    /** What of such a definition got lost, which the window shows, or of the settings at the end.
     */
    void remarked(const QString &text);

private:
    PlotSetup m_setup;
    Preferences m_preferences;
    QQmlApplicationEngine m_engine;
    QScopedPointer<WindowPlace> m_place;
};

#endif

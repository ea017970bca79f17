#ifndef DATALOG_VIEWER_WINDOWPLACE_H
#define DATALOG_VIEWER_WINDOWPLACE_H

#include <QObject>
#include <QRect>
#include <QWindow>

class Preferences;

/** Gives a window the size and the place that it had when the viewer was closed the last time. */
class WindowPlace : public QObject
{
    Q_OBJECT

public:
    WindowPlace(QWindow *window, Preferences *preferences);

    /**
     * Shows the window where it was. One that would be out of sight, since screens changed, is
     * shown as if it were the first time, and one that is larger than its screen is made smaller.
     */
    void show();
    /** To be called before the window goes. */
    void keep();

private:
    void follow();

    QWindow *m_window;
    Preferences *m_preferences;
    QRect m_normal; // neither maximized nor on the full screen
};

#endif

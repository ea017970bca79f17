#include "viewer/WindowPlace.h"

#include "viewer/Preferences.h"

#include <QGuiApplication>
#include <QScreen>

namespace
{

const QLatin1String kGeometry("window/geometry");
const QLatin1String kMaximized("window/maximized");

// As much of a window has to be on a screen so that it can be seen and taken hold of.
const QSize kLeastInSight(200, 100);

/** @p geometry as it fits on the screen that shows most of it; null when none shows enough. */
QRect inSight(const QRect &geometry)
{
    const QList<QScreen *> screens = QGuiApplication::screens();
    for (const QScreen *screen : screens) {
        const QRect available = screen->availableGeometry();
        const QSize seen = (geometry & available).size();
        if (seen.width() >= kLeastInSight.width() && seen.height() >= kLeastInSight.height())
            return QRect(geometry.topLeft(), geometry.size().boundedTo(available.size()));
    }
    return QRect();
}

} // namespace

WindowPlace::WindowPlace(QWindow *window, Preferences *preferences)
    : m_window(window)
    , m_preferences(preferences)
{
    for (auto signal :
         {&QWindow::xChanged, &QWindow::yChanged, &QWindow::widthChanged, &QWindow::heightChanged})
        connect(window, signal, this, &WindowPlace::follow);
}

void WindowPlace::show()
{
    const QRect kept = inSight(m_preferences->value(kGeometry).toRect());
    if (!kept.isNull())
        m_window->setGeometry(kept);
    if (m_preferences->value(kMaximized).toBool())
        m_window->showMaximized();
    else
        m_window->show();
}

void WindowPlace::follow()
{
    if (m_window->windowStates() == Qt::WindowNoState
        && m_window->visibility() == QWindow::Windowed)
        m_normal = m_window->geometry();
}

void WindowPlace::keep()
{
    follow(); // for what the window has not told yet
    if (m_normal.isNull())
        return;
    m_preferences->setValue(kGeometry, m_normal);
    m_preferences->setValue(kMaximized, m_window->windowStates().testFlag(Qt::WindowMaximized));
}

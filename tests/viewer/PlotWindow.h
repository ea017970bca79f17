#ifndef DATALOG_TESTS_VIEWER_PLOTWINDOW_H
#define DATALOG_TESTS_VIEWER_PLOTWINDOW_H

#include "viewer/ViewerWindow.h"

#include "TemporaryLog.h"
#include "support/TestCompat.h"
#include "viewer/CurveReadings.h"

#include <QQuickItem>
#include <QQuickWindow>
#include <QtTest>

/** A viewer window with a log, and the hands of a user on its plot. */
class PlotWindow
{
public:
    explicit PlotWindow(const ViewerOptions &options = ViewerOptions())
        : m_viewer(options)
        , m_device(QTest::createTouchDevice())
    {
    }

    QQuickWindow *window() const { return m_viewer.window(); }
    template <class T> T *find(const char *name) const { return window()->findChild<T *>(name); }
    QQuickItem *item(const char *name) const
    {
        QQuickItem *item = find<QQuickItem>(name);
        return item ? item : within(window()->contentItem(), QLatin1String(name));
    }
    /** Rows of lists are nobody's children, but they are shown in somebody. */
    static QQuickItem *within(QQuickItem *parent, const QString &name)
    {
        const QList<QQuickItem *> children = parent->childItems();
        for (QQuickItem *child : children) {
            QQuickItem *found = child->objectName() == name ? child : within(child, name);
            if (found)
                return found;
        }
        return nullptr;
    }
    LogDataSourceItem *source() const { return find<LogDataSourceItem>("dataSource"); }
    LogViewerItem *plot() const { return find<LogViewerItem>("plot"); }
    PlotNavigator *navigator() const { return find<PlotNavigator>("navigator"); }
    CurveReadings *readings() const { return find<CurveReadings>("readings"); }

    /** True once the log is shown and laid out. */
    bool open(const QString &path, const QSize &size = QSize(1000, 700))
    {
        if (!QTest::qWaitForWindowActive(window()))
            return false;
        window()->resize(size);
        QSignalSpy opened(&m_viewer, SIGNAL(opened()));
        m_viewer.open(path);
        return waitForCount(opened, 1)
            && QTest::qWaitFor([this, size] { return window()->size() == size; }) && settle();
    }
    /** Lets layouts find their places: until a frame changes nothing any more. */
    bool settle()
    {
        QRectF before;
        return QTest::qWaitFor([this, &before] {
            window()->grabWindow();
            QCoreApplication::processEvents();
            const QRectF now = navigator()
                                   ->canvas()
                                   .translated(plot()->mapToScene(QPointF()))
                                   .adjusted(0, 0, plot()->width(), plot()->height());
            const bool isSame = now == before;
            before = now;
            return isSame;
        });
    }

    /** A place by parts of the scales, from the left and from the bottom. */
    QPoint canvasPoint(double x, double y) const
    {
        const PlotScales scales = navigator()->scales();
        const QPointF point(navigator()->toPixelX(scales[2].at(x)),
                            navigator()->toPixelY(0, scales[0].at(y)));
        return plot()->mapToScene(point).toPoint();
    }
    /** A place on the scale of an axis, in its middle. */
    QPoint onAxis(int axis) const
    {
        const QRectF canvas = navigator()->canvas();
        const QPointF point = axis == PlotNavigator::Bottom
            ? QPointF(canvas.center().x(), canvas.bottom() + 14)
            : QPointF(axis == PlotNavigator::Left ? canvas.left() - 14 : canvas.right() + 14,
                      canvas.center().y());
        return plot()->mapToScene(point).toPoint();
    }

    bool click(const char *name)
    {
        QQuickItem *target = item(name);
        return target && click(target);
    }
    bool click(QQuickItem *target)
    {
        if (!target->isVisible() || !target->isEnabled())
            return false;
        const QPoint at = target->mapToScene(target->boundingRect().center()).toPoint();
        if (!QRect(QPoint(), window()->size()).contains(at))
            return false;
        QTest::mouseClick(window(), Qt::LeftButton, Qt::NoModifier, at);
        return true;
    }
    void drag(const QPoint &from, const QPoint &to, Qt::MouseButton button = Qt::LeftButton,
              Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::mousePress(window(), button, modifiers, from);
        QTest::mouseMove(window(), from + (to - from) / 2);
        QTest::mouseMove(window(), to);
        QTest::mouseRelease(window(), button, modifiers, to);
    }
    void wheel(const QPoint &at, int steps, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QWheelEvent event(at, window()->mapToGlobal(at), QPoint(), QPoint(0, 120 * steps),
                          Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(window(), &event);
    }
    void key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(window(), Qt::Key(key), modifiers);
    }
    void type(const QString &text)
    {
        for (const QChar &c : text)
            QTest::keyClick(window(), c.toLatin1());
    }
    void tap(const QPoint &at)
    {
        QTest::touchEvent(window(), m_device).press(0, at, window());
        QTest::touchEvent(window(), m_device).release(0, at, window());
    }
    void swipe(const QPoint &from, const QPoint &to)
    {
        QTest::touchEvent(window(), m_device).press(0, from, window());
        QTest::touchEvent(window(), m_device).move(0, (from + to) / 2, window());
        QTest::touchEvent(window(), m_device).move(0, to, window());
        QTest::touchEvent(window(), m_device).release(0, to, window());
    }
    void pinch(const QPoint &from0, const QPoint &from1, const QPoint &to0, const QPoint &to1)
    {
        QTest::touchEvent(window(), m_device).press(0, from0, window()).press(1, from1, window());
        QTest::touchEvent(window(), m_device)
            .move(0, (from0 + to0) / 2, window())
            .move(1, (from1 + to1) / 2, window());
        QTest::touchEvent(window(), m_device).move(0, to0, window()).move(1, to1, window());
        QTest::touchEvent(window(), m_device).release(0, to0, window()).release(1, to1, window());
    }

private:
    ViewerWindow m_viewer;
    QTouchDevice *m_device;
};

#endif

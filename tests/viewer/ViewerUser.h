#ifndef DATALOG_TESTS_VIEWER_VIEWERUSER_H
#define DATALOG_TESTS_VIEWER_VIEWERUSER_H

#include "TemporaryLog.h"
#include "datasource/LogDataSourceItem.h"
#include "plot/LogViewerItem.h"
#include "support/TestCompat.h"
#include "viewer/ViewerWindow.h"

#include <QAbstractItemView>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QQuickItem>
#include <QQuickWindow>

#include <qwt_plot.h>

/** A viewer's window with a log open, and somebody who uses it with a mouse, keys and a finger. */
class ViewerUser
{
public:
    explicit ViewerUser(const TemporaryLog &log, const QSize &size = QSize(1000, 640))
        : ViewerUser(log, ViewerOptions(), size)
    {
    }
    ViewerUser(const TemporaryLog &log, const ViewerOptions &options,
               const QSize &size = QSize(1000, 640), const QString &preferences = QString())
        : m_viewer(options, preferences)
    {
        if (!size.isEmpty())
            window()->resize(size);
        QSignalSpy opened(&m_viewer, SIGNAL(opened()));
        m_viewer.open(log.path());
        m_isReady = QTest::qWaitForWindowActive(window()) && waitForCount(opened, 1);
    }

    /** False when the window or the log did not open. */
    bool isReady() const { return m_isReady; }
    QQuickWindow *window() const { return m_viewer.window(); }
    ViewerWindow *viewer() { return &m_viewer; }
    LogDataSourceItem *source() const { return find<LogDataSourceItem>("dataSource"); }
    LogViewerItem *plot() const { return find<LogViewerItem>("plot"); }

    template <class Item> Item *find(const char *name) const
    {
        return window()->findChild<Item *>(QString::fromUtf8(name));
    }
    /** The first item of a name in another one, whoever owns it. */
    static QQuickItem *within(const QQuickItem *parent, const char *name)
    {
        const QList<QQuickItem *> children = parent->childItems();
        for (QQuickItem *child : children) {
            if (child->objectName() == QString::fromUtf8(name))
                return child;
            if (QQuickItem *found = within(child, name))
                return found;
        }
        return nullptr;
    }
    /** Also finds what a view or a popup made, which is no child of the window as an object. */
    QQuickItem *item(const char *name) const
    {
        if (QQuickItem *found = find<QQuickItem>(name))
            return found;
        return within(window()->contentItem(), name);
    }
    bool isShown(const char *name) const
    {
        const QQuickItem *found = item(name);
        return found && found->isVisible();
    }
    QString text(const char *name) const { return item(name)->property("text").toString(); }

    /** A point of an item, in the window; null when it is not to be hit there. */
    QPoint pointOf(const QQuickItem *item, const QPointF &at) const
    {
        if (!item || !item->isVisible())
            return QPoint();
        const QPoint point = item->mapToScene(at).toPoint();
        return QRect(QPoint(), window()->size()).contains(point) ? point : QPoint();
    }
    bool click(const QQuickItem *item, const QPointF &at)
    {
        const QPoint point = pointOf(item, at);
        if (!point.isNull())
            QTest::mouseClick(window(), Qt::LeftButton, Qt::NoModifier, point);
        return !point.isNull();
    }
    bool click(const char *name)
    {
        QQuickItem *target = item(name);
        if (!target || !settled())
            return false;
        return click(target, target->boundingRect().center());
    }
    bool clickTab(const char *bar, int index)
    {
        QQuickItem *tabs = item(bar);
        const int count = tabs ? tabs->property("count").toInt() : 0;
        return count > 0 && settled()
            && click(tabs, QPointF(tabs->width() * (index + 0.5) / count, tabs->height() / 2))
            && tabs->property("currentIndex").toInt() == index && settled();
    }
    /** The middle of a cell that a view in an item shows; scrolls there before. */
    QPointF cell(const QAbstractItemView *view, const QModelIndex &index) const
    {
        const QPoint inside = view->visualRect(index).center();
        return view->viewport()->mapTo(view->window(), inside);
    }
    bool clickCell(const QQuickItem *item, QAbstractItemView *view, int row, int column = 0)
    {
        if (!settled())
            return false;
        const QModelIndex index = view->model()->index(row, column);
        view->scrollTo(index);
        return click(item, cell(view, index));
    }
    void type(const QString &text)
    {
        for (const QChar &c : text)
            QTest::keyClick(window(), c.toLatin1());
    }
    void key(Qt::Key key) { QTest::keyClick(window(), key); }

    /** With a finger, once the item can be hit with one; false when it never can. */
    bool tap(const QQuickItem *item, const QPointF &at)
    {
        const bool isReady = QTest::qWaitFor(
            [this, item] { return item && item->isEnabled() && settled() && isForFingers(item); });
        if (isReady)
            drag(pointOf(item, at));
        return isReady;
    }
    bool tap(const QQuickItem *item) { return item && tap(item, item->boundingRect().center()); }
    bool tap(const char *name)
    {
        return QTest::qWaitFor([this, name] { return isShown(name); }) && tap(item(name));
    }
    /** Puts a finger down, moves it in steps and lifts it; a tap without a way to go. */
    void drag(const QPoint &from, const QPoint &by = QPoint(), int steps = 10)
    {
        putFinger(from);
        for (int i = 1; i <= steps && !by.isNull(); ++i)
            moveFinger(from + by * i / steps);
        liftFinger(from + by);
    }
    void putFinger(const QPoint &at)
    {
        QTest::touchEvent(window(), touchScreen()).press(0, at, window());
    }
    void moveFinger(const QPoint &to)
    {
        QTest::touchEvent(window(), touchScreen()).move(0, to, window());
    }
    void liftFinger(const QPoint &at)
    {
        QTest::touchEvent(window(), touchScreen()).release(0, at, window());
        QCoreApplication::processEvents();
    }

    /** As the window system tells it; false when the window does not take it. */
    bool drop(const QStringList &paths)
    {
        QMimeData data;
        QList<QUrl> urls;
        for (const QString &path : paths)
            urls.append(QUrl::fromLocalFile(path));
        data.setUrls(urls);
        const QPoint at(window()->width() / 2, 20); // the header takes drops as well
        QDragEnterEvent enter(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(window(), &enter);
        if (!enter.isAccepted())
            return false;
        QDragMoveEvent move(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(window(), &move);
        if (!isShown("dropHint"))
            return false;
        QDropEvent event(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(window(), &event);
        return event.isAccepted();
    }

    /** Whether all that was due to be laid out and drawn has been. */
    bool settled() const
    {
        for (int i = 0; i < 3; ++i)
            QCoreApplication::processEvents();
        return !window()->grabWindow().isNull();
    }
    /** Whether a control can be hit by a finger: in the window, and large enough. */
    bool isForFingers(const char *name) const { return isForFingers(item(name)); }
    bool isForFingers(const QQuickItem *control) const
    {
        if (!control || !control->isVisible())
            return false;
        const QRectF area = control->mapRectToScene(QRectF(QPointF(), control->size()));
        return QRectF(QPointF(), window()->size()).contains(area)
            && qMin(area.width(), area.height()) >= 44;
    }

    int curves() const { return plot()->plot()->itemList(QwtPlotItem::Rtti_PlotCurve).size(); }
    /** All pieces of a variable of the left axis. */
    QVector<double> leftValues(const char *name) const
    {
        QVector<double> values;
        const QList<QVector<double>> pieces = source()->YLeftData().value(QLatin1String(name));
        for (const QVector<double> &piece : pieces)
            values += piece;
        return values;
    }

private:
    static QTouchDevice *touchScreen()
    {
        static QTouchDevice *const device = QTest::createTouchDevice();
        return device;
    }

    ViewerWindow m_viewer;
    bool m_isReady = false;
};

#endif

#ifndef DATALOG_TESTS_DECLARATIVE_HOSTWINDOW_H
#define DATALOG_TESTS_DECLARATIVE_HOSTWINDOW_H

#include "declarative/DeclarativeItem.h"
#include "support/TestCompat.h"

#include <QApplication>
#include <QGraphicsProxyWidget>
#include <QQuickWindow>
#include <QWidget>

/** An item around one widget, made the way that view items are. */
class HostItem : public QDeclarativeItem
{
    Q_OBJECT

public:
    explicit HostItem(QWidget *widget)
        : m_proxy(new QGraphicsProxyWidget(graphicsParent(this)))
    {
        setFlag(QGraphicsItem::ItemHasNoContents, false);
        m_proxy->setWidget(widget);
        m_proxy->setPos(0, 0);
        connect(this, SIGNAL(widthChanged()), this, SLOT(resizeProxy()));
        connect(this, SIGNAL(heightChanged()), this, SLOT(resizeProxy()));
    }

    QGraphicsProxyWidget *proxy() const { return m_proxy; }

private slots:
    void resizeProxy() { m_proxy->resize(width(), height()); }

private:
    QGraphicsProxyWidget *m_proxy;
};

/** A shown window of 400 by 300 that has the keyboard. */
class HostWindow : public QQuickWindow
{
    Q_OBJECT

public:
    HostWindow()
    {
        resize(400, 300);
        setColor(Qt::white);
    }

    /** Shows the window and waits for it to be drawn and active. */
    bool open()
    {
        show();
        requestActivate();
        return QTest::qWaitForWindowActive(this);
    }

    /** Puts @p widget into an item of the window; the window owns both. */
    HostItem *host(QWidget *widget, const QRectF &geometry)
    {
        HostItem *item = new HostItem(widget);
        item->setParent(contentItem());
        item->setParentItem(contentItem());
        item->setPosition(geometry.topLeft());
        item->setSize(geometry.size());
        return item;
    }

    /** The window as drawn after everything that was due to change has. */
    QImage picture()
    {
        // Two rounds: a widget's change reaches the scene in one and the window in the next.
        for (int i = 0; i < 2; ++i)
            QCoreApplication::processEvents();
        return grabWindow();
    }

    void press(const QPoint &position)
    {
        QTest::mousePress(this, Qt::LeftButton, none(), position);
    }
    void release(const QPoint &position)
    {
        QTest::mouseRelease(this, Qt::LeftButton, none(), position);
    }
    void click(const QPoint &position)
    {
        QTest::mouseClick(this, Qt::LeftButton, none(), position);
    }

private:
    static Qt::KeyboardModifiers none() { return Qt::KeyboardModifiers(); }
};

/** An item of the engine's own that takes clicks. */
class ClickedItem : public QQuickItem
{
public:
    explicit ClickedItem(QQuickItem *parent)
        : QQuickItem(parent)
    {
        setAcceptedMouseButtons(Qt::LeftButton);
        setSize(parent->size());
    }

    int clicks = 0;

protected:
    void mousePressEvent(QMouseEvent *) override { ++clicks; }
};

/** A test with a window, opened before each function and closed after it. */
class HostTest : public QObject
{
    Q_OBJECT

protected:
    QScopedPointer<HostWindow> m_window;
    QTouchDevice *m_touch = nullptr;

private slots:
    void initTestCase()
    {
        // Fixed looks, whatever the desktop prefers.
        QApplication::setStyle(QLatin1String("fusion"));
        m_touch = QTest::createTouchDevice();
    }

    void init()
    {
        m_window.reset(new HostWindow);
        QVERIFY(m_window->open());
    }

    void cleanup() { m_window.reset(); }
};

#endif

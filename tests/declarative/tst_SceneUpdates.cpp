#include "HostWindow.h"

#include <QGraphicsScene>
#include <QGraphicsView>
#include <QPainter>
#include <QScrollArea>
#include <QScrollBar>

namespace
{

const int kHeight = 100;
const QColor kFirst(Qt::blue);
const QColor kSecond(Qt::red);

/** A widget of one colour. */
class ColouredWidget : public QWidget
{
public:
    QColor colour = kFirst;

protected:
    void paintEvent(QPaintEvent *) override { QPainter(this).fillRect(rect(), colour); }
};

/** The first colour in its upper half, the second one in its lower half. */
class TwoHalves : public QWidget
{
protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.fillRect(rect(), kSecond);
        painter.fillRect(QRect(0, 0, width(), height() / 2), kFirst);
    }
};

/** Lets what @p item was told so far come to its knowledge, and draws nothing of it. */
void tell(HostItem *item)
{
    QGraphicsScene *scene = item->proxy()->scene();
    QCoreApplication::sendPostedEvents(item->proxy()->widget(), QEvent::UpdateRequest);
    QCoreApplication::sendPostedEvents(scene, QEvent::MetaCall);
    QCoreApplication::sendPostedEvents(scene->views().constFirst(), QEvent::UpdateRequest);
}

/** Draws @p widget until nothing of it is due, and the colour at (10, 10) then. */
QColor settled(HostWindow *window, QWidget *widget)
{
    // A graphics item is painted whole once more by its first update.
    for (int i = 0; i < 5; ++i) {
        widget->update(QRect(0, 0, 1, 1));
        window->picture();
    }
    return window->picture().pixelColor(10, 10);
}

} // namespace

/** A frame shows a widget as it is at one time, however much of what changed is known by then. */
class tst_SceneUpdates : public HostTest
{
    Q_OBJECT

private slots:
    void frameIsOfOneState_data();
    void frameIsOfOneState();
    void scrolledFrameIsOfOneState();
    void lateChangeIsInTheNextFrame();
    void settledItemPaintsNothing();
};

void tst_SceneUpdates::frameIsOfOneState_data()
{
    QTest::addColumn<QRect>("known");
    QTest::newRow("left") << QRect(0, 0, 60, kHeight);
    QTest::newRow("right") << QRect(140, 0, 60, kHeight);
    QTest::newRow("top") << QRect(0, 0, 200, 40);
    QTest::newRow("middle") << QRect(80, 40, 20, 20);
}

/** A part has to be painted already, and only then comes a change of all: the part alone would
 * tear. */
void tst_SceneUpdates::frameIsOfOneState()
{
    QFETCH(QRect, known);
    ColouredWidget *widget = new ColouredWidget;
    HostItem *item = m_window->host(widget, QRectF(0, 0, 200, kHeight));
    QCOMPARE(settled(m_window.data(), widget), kFirst);
    widget->update(known);
    tell(item);
    widget->colour = kSecond;
    widget->update();
    const QImage frame = m_window->grabWindow();
    for (int x = 5; x < 200; x += 10) {
        for (int y = 5; y < kHeight; y += 10)
            QCOMPARE(frame.pixelColor(x, y), kSecond);
    }
}

void tst_SceneUpdates::scrolledFrameIsOfOneState()
{
    QScrollArea *area = new QScrollArea;
    area->setFrameShape(QFrame::NoFrame);
    TwoHalves *contents = new TwoHalves;
    contents->setFixedSize(150, 1000);
    area->setWidget(contents);
    HostItem *item = m_window->host(area, QRectF(0, 0, 200, kHeight));
    QCOMPARE(settled(m_window.data(), contents), kFirst);
    contents->update(QRect(0, 0, 50, kHeight));
    tell(item);
    area->verticalScrollBar()->setValue(600);
    const QImage frame = m_window->grabWindow();
    QCOMPARE(frame.pixelColor(10, 50), kSecond);
    QCOMPARE(frame.pixelColor(140, 50), kSecond);
}

void tst_SceneUpdates::lateChangeIsInTheNextFrame()
{
    ColouredWidget *widget = new ColouredWidget;
    m_window->host(widget, QRectF(0, 0, 200, kHeight));
    QCOMPARE(settled(m_window.data(), widget), kFirst);
    // Without a part that asks for a frame, the change has to come to be known by itself.
    widget->colour = kSecond;
    widget->update();
    QCOMPARE(m_window->picture().pixelColor(190, 90), kSecond);
}

void tst_SceneUpdates::settledItemPaintsNothing()
{
    ColouredWidget *widget = new ColouredWidget;
    HostItem *item = m_window->host(widget, QRectF(0, 0, 200, kHeight));
    QCOMPARE(settled(m_window.data(), widget), kFirst);
    widget->colour = kSecond; // and nobody was told
    item->polish();
    QCOMPARE(m_window->picture().pixelColor(10, 10), kFirst);
}

QTEST_MAIN(tst_SceneUpdates)
#include "tst_SceneUpdates.moc"

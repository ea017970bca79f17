#include "PlotWindow.h"

#include <qwt_plot.h>

/** Markers that are on the plot already, taken to another place by mouse or finger. */
class tst_MarkerDrag : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void goesWithTheHand_data();
    void goesWithTheHand();
    void readsOnItsWay();
    void leavesTheViewBesideIt_data();
    void leavesTheViewBesideIt();
    void leavesTheViewUpAndDown();
    void takesTheNearerOfTwo_data();
    void takesTheNearerOfTwo();
    void staysOnThePlot_data();
    void staysOnThePlot();
    void leavesTapsToTheCursor();
    void leavesRectanglesAlone();
    void isSeenToBeDraggable();
    void goesByKeysAsBefore();

private:
    CurveReadings *readings() const { return m_window->readings(); }
    /** In the middle of the plot's height. */
    QPoint at(double x) const
    {
        const QPointF point(m_window->navigator()->toPixelX(x),
                            m_window->navigator()->canvas().center().y());
        return m_window->plot()->mapToScene(point).toPoint();
    }
    void put(int key, double x)
    {
        QTest::mouseClick(m_window->window(), Qt::LeftButton, Qt::NoModifier, at(x));
        m_window->key(key);
        QVERIFY(m_window->settle());
    }
    void drag(const QPoint &from, const QPoint &to, bool isFinger)
    {
        if (isFinger)
            m_window->swipe(from, to);
        else
            m_window->drag(from, to);
    }

    QScopedPointer<TemporaryLog> m_log;
    QScopedPointer<PlotWindow> m_window;
};

void tst_MarkerDrag::init()
{
    m_log.reset(new TemporaryLog);
    m_window.reset(new PlotWindow);
    QVERIFY(m_window->open(m_log->path()));
}

void tst_MarkerDrag::cleanup()
{
    m_window.reset();
    m_log.reset();
}

void tst_MarkerDrag::goesWithTheHand_data()
{
    QTest::addColumn<bool>("isFinger");
    QTest::addColumn<int>("aside"); // of the line, where it is taken hold of

    QTest::newRow("mouse on it") << false << 0;
    QTest::newRow("mouse left of it") << false << -21;
    QTest::newRow("mouse right of it") << false << 21;
    QTest::newRow("finger on it") << true << 0;
    QTest::newRow("finger left of it") << true << -21;
    QTest::newRow("finger right of it") << true << 21;
}

void tst_MarkerDrag::goesWithTheHand()
{
    QFETCH(bool, isFinger);
    QFETCH(int, aside);
    put(Qt::Key_A, 3);
    QCOMPARE(readings()->textA(), QString("3"));
    drag(at(3) + QPoint(aside, 0), at(7) + QPoint(aside, 0), isFinger);
    QTRY_COMPARE(readings()->textA(), QString("7"));
    QCOMPARE(readings()->data(readings()->index(0), CurveReadings::ReadingARole).toString(),
             QString("27.5"));
    QVERIFY(!readings()->hasB());
    QVERIFY(!m_window->navigator()->isZoomed());
    QVERIFY(!m_window->navigator()->canGoBack());
}

void tst_MarkerDrag::readsOnItsWay()
{
    put(Qt::Key_A, 3);
    put(Qt::Key_B, 8);
    QTest::mousePress(m_window->window(), Qt::LeftButton, Qt::NoModifier, at(8));
    QTest::mouseMove(m_window->window(), at(6));
    QTRY_COMPARE(readings()->textB(), QString("6"));
    QCOMPARE(readings()->distanceText(), QString("3"));
    QTest::mouseMove(m_window->window(), at(5));
    QTRY_COMPARE(readings()->distanceText(), QString("2"));
    QTest::mouseRelease(m_window->window(), Qt::LeftButton, Qt::NoModifier, at(5));
    QCOMPARE(readings()->textA(), QString("3"));
    QCOMPARE(readings()->textB(), QString("5"));
}

void tst_MarkerDrag::leavesTheViewBesideIt_data()
{
    QTest::addColumn<bool>("isFinger");
    QTest::newRow("mouse") << false;
    QTest::newRow("finger") << true;
}

void tst_MarkerDrag::leavesTheViewBesideIt()
{
    QFETCH(bool, isFinger);
    put(Qt::Key_A, 3);
    drag(at(3) + QPoint(30, 0), at(5), isFinger);
    QTRY_VERIFY(m_window->navigator()->isZoomed());
    QCOMPARE(readings()->textA(), QString("3"));
}

void tst_MarkerDrag::leavesTheViewUpAndDown()
{
    put(Qt::Key_A, 3);
    m_window->drag(at(3), at(3) + QPoint(10, 80));
    QTRY_VERIFY(!m_window->navigator()->scales()[QwtPlot::yLeft].isAuto);
    QCOMPARE(readings()->textA(), QString("3"));
}

void tst_MarkerDrag::takesTheNearerOfTwo_data()
{
    QTest::addColumn<int>("aside"); // of the middle between them
    QTest::addColumn<QString>("a");
    QTest::addColumn<QString>("b");

    QTest::newRow("A") << -4 << "8"
                       << "5";
    QTest::newRow("B") << 4 << "4"
                       << "9";
}

/** In a narrow window, where both are within reach. */
void tst_MarkerDrag::takesTheNearerOfTwo()
{
    QFETCH(int, aside);
    QFETCH(QString, a);
    QFETCH(QString, b);
    put(Qt::Key_A, 4);
    put(Qt::Key_B, 5);
    m_window->window()->resize(700, 480);
    QTRY_COMPARE(m_window->window()->size(), QSize(700, 480));
    QVERIFY(m_window->settle());
    QVERIFY(at(5).x() - at(4).x() < 40);
    const QPoint from = (at(4) + at(5)) / 2 + QPoint(aside, 0);
    m_window->drag(from, from + at(9) - at(5));
    QTRY_COMPARE(readings()->textA(), a);
    QCOMPARE(readings()->textB(), b);
}

void tst_MarkerDrag::staysOnThePlot_data()
{
    QTest::addColumn<bool>("isRight");
    QTest::addColumn<QString>("text");

    QTest::newRow("left") << false << "1";
    QTest::newRow("right") << true << "10";
}

void tst_MarkerDrag::staysOnThePlot()
{
    QFETCH(bool, isRight);
    QFETCH(QString, text);
    put(Qt::Key_A, 5);
    const int edge = isRight ? m_window->window()->width() - 1 : 0;
    m_window->drag(at(5), QPoint(edge, at(5).y()));
    QTRY_COMPARE(readings()->textA(), text);
    QVERIFY(m_window->item("lineA")->isVisible());
}

void tst_MarkerDrag::leavesTapsToTheCursor()
{
    put(Qt::Key_A, 3);
    m_window->key(Qt::Key_Escape);
    QVERIFY(!readings()->hasCursor());
    m_window->tap(at(3) + QPoint(3, 0));
    QTRY_COMPARE(readings()->cursorText(), QString("3"));
    QCOMPARE(readings()->textA(), QString("3"));
}

void tst_MarkerDrag::leavesRectanglesAlone()
{
    put(Qt::Key_A, 3);
    m_window->drag(at(3), at(6) + QPoint(0, 60), Qt::LeftButton, Qt::ShiftModifier);
    QTRY_VERIFY(m_window->navigator()->isZoomed());
    QCOMPARE(readings()->textA(), QString("3"));
}

void tst_MarkerDrag::isSeenToBeDraggable()
{
    const auto *pad = m_window->find<QQuickItem>("pad");
    put(Qt::Key_A, 3);
    QTest::mouseMove(m_window->window(), at(3) + QPoint(15, 5));
    QTRY_COMPARE(pad->cursor().shape(), Qt::SizeHorCursor);
    QTest::mouseMove(m_window->window(), at(6));
    QTRY_COMPARE(pad->cursor().shape(), Qt::ArrowCursor);
}

void tst_MarkerDrag::goesByKeysAsBefore()
{
    put(Qt::Key_A, 3);
    m_window->drag(at(3), at(7));
    QTRY_COMPARE(readings()->textA(), QString("7"));
    put(Qt::Key_A, 5);
    QCOMPARE(readings()->textA(), QString("5"));
    m_window->key(Qt::Key_Delete);
    QVERIFY(!readings()->hasA());
}

QTEST_MAIN(tst_MarkerDrag)
#include "tst_MarkerDrag.moc"

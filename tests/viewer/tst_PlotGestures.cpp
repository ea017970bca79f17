#include "PlotWindow.h"

#include <qwt_plot.h>

/** Zooming and panning the plot of a window by mouse, wheel, fingers and keys. */
class tst_PlotGestures : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void zoomsWithTheWheel_data();
    void zoomsWithTheWheel();
    void stepsBackOverAWheelTurn();
    void pansWithADrag();
    void pansOneAxis_data();
    void pansOneAxis();
    void zoomsIntoARectangle_data();
    void zoomsIntoARectangle();
    void zoomsIntoAStretch();
    void givesARectangleUp();
    void showsEverythingAgain();
    void doubleClicksOneAxis();
    void stepsBackAndForward();
    void pansAndPinchesWithFingers();
    void pinchesOneAxis_data();
    void pinchesOneAxis();
    void zoomsAndPansByKeys();
    void choosesAxes();
    void recordsTheLimits();
    void typesAllLimitsInOneStep();

private:
    AxisRange range(int axis) const { return m_window->navigator()->scales()[axis]; }
    AxisRange x() const { return range(QwtPlot::xBottom); }
    AxisRange left() const { return range(QwtPlot::yLeft); }
    AxisRange right() const { return range(QwtPlot::yRight); }
    QList<bool> moved() const { return {!x().isAuto, !left().isAuto, !right().isAuto}; }

    QScopedPointer<TemporaryLog> m_log;
    QScopedPointer<PlotWindow> m_window;
    PlotScales m_start;
};

namespace
{

/** To a tenth of a percent of the range: pixels are whole. */
bool isNear(double a, double b, const AxisRange &range)
{
    return qAbs(a - b) < 0.01 * range.span();
}

} // namespace

void tst_PlotGestures::init()
{
    m_log.reset(new TemporaryLog);
    m_window.reset(new PlotWindow);
    QVERIFY(m_window->open(m_log->path()));
    m_window->navigator()->setStepPause(0);
    m_start = m_window->navigator()->scales();
    QCOMPARE(moved(), (QList<bool>{false, false, false}));
    QVERIFY(!m_window->item("zoomBack")->isEnabled());
}

void tst_PlotGestures::cleanup()
{
    m_window.reset();
    m_log.reset();
}

void tst_PlotGestures::zoomsWithTheWheel_data()
{
    QTest::addColumn<int>("where");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QList<bool>>("moved");

    typedef QList<bool> Axes;
    QTest::newRow("canvas") << 0 << 0 << Axes{true, true, true};
    QTest::newRow("bottom") << int(PlotNavigator::Bottom) << 0 << Axes{true, false, false};
    QTest::newRow("left") << int(PlotNavigator::Left) << 0 << Axes{false, true, false};
    QTest::newRow("right") << int(PlotNavigator::Right) << 0 << Axes{false, false, true};
    QTest::newRow("Ctrl") << 0 << int(Qt::ControlModifier) << Axes{true, false, false};
    QTest::newRow("Shift") << 0 << int(Qt::ShiftModifier) << Axes{false, true, true};
}

/** What is under the pointer stays there. */
void tst_PlotGestures::zoomsWithTheWheel()
{
    QFETCH(int, where);
    QFETCH(int, modifiers);
    QFETCH(QList<bool>, moved);
    const QPoint at = where ? m_window->onAxis(where) : m_window->canvasPoint(0.25, 0.75);
    m_window->wheel(at, 2, Qt::KeyboardModifiers(modifiers));
    QCOMPARE(this->moved(), moved);
    const double factor = 0.8 * 0.8;
    if (moved.at(0)) {
        const double part = where ? 0.5 : 0.25;
        QVERIFY(isNear(x().span(), factor * m_start[QwtPlot::xBottom].span(), x()));
        QVERIFY(isNear(x().at(part), m_start[QwtPlot::xBottom].at(part), x()));
    }
    if (moved.at(1)) {
        const double part = where ? 0.5 : 0.75;
        QVERIFY(isNear(left().span(), factor * m_start[QwtPlot::yLeft].span(), left()));
        QVERIFY(isNear(left().at(part), m_start[QwtPlot::yLeft].at(part), left()));
    }
    m_window->wheel(at, -2, Qt::KeyboardModifiers(modifiers));
    QVERIFY(isNear(x().min, m_start[QwtPlot::xBottom].min, x()));
    QVERIFY(isNear(right().max, m_start[QwtPlot::yRight].max, right()));
}

void tst_PlotGestures::stepsBackOverAWheelTurn()
{
    m_window->navigator()->setStepPause(60000);
    for (int i = 0; i < 5; ++i)
        m_window->wheel(m_window->canvasPoint(0.5, 0.5), 1);
    QVERIFY(x().span() < 0.4 * m_start[QwtPlot::xBottom].span());
    QVERIFY(m_window->click("zoomBack"));
    QVERIFY(x().isAuto);
    QVERIFY(!m_window->item("zoomBack")->isEnabled());
}

void tst_PlotGestures::pansWithADrag()
{
    m_window->drag(m_window->canvasPoint(0.5, 0.5), m_window->canvasPoint(0.75, 0.25));
    QCOMPARE(moved(), (QList<bool>{true, true, true}));
    QVERIFY(isNear(x().min, m_start[QwtPlot::xBottom].at(-0.25), x()));
    QVERIFY(isNear(left().min, m_start[QwtPlot::yLeft].at(0.25), left()));
    QVERIFY(isNear(right().max, m_start[QwtPlot::yRight].at(1.25), right()));
    // The plot shows it.
    QTRY_COMPARE(m_window->plot()->axisMinScale(LogViewerItem::BottomAxis), x().min);
}

void tst_PlotGestures::pansOneAxis_data()
{
    QTest::addColumn<int>("axis");
    QTest::addColumn<QList<bool>>("moved");

    typedef QList<bool> Axes;
    QTest::newRow("bottom") << int(PlotNavigator::Bottom) << Axes{true, false, false};
    QTest::newRow("left") << int(PlotNavigator::Left) << Axes{false, true, false};
    QTest::newRow("right") << int(PlotNavigator::Right) << Axes{false, false, true};
}

void tst_PlotGestures::pansOneAxis()
{
    QFETCH(int, axis);
    const QPoint from = m_window->onAxis(axis);
    m_window->drag(from, from + QPoint(60, 60));
    QTEST(moved(), "moved");
}

void tst_PlotGestures::zoomsIntoARectangle_data()
{
    QTest::addColumn<bool>("isMode");
    QTest::addColumn<int>("button");
    QTest::addColumn<int>("modifiers");

    QTest::newRow("right button") << false << int(Qt::RightButton) << 0;
    QTest::newRow("Shift") << false << int(Qt::LeftButton) << int(Qt::ShiftModifier);
    QTest::newRow("zoom mode") << true << int(Qt::LeftButton) << 0;
}

void tst_PlotGestures::zoomsIntoARectangle()
{
    QFETCH(bool, isMode);
    QFETCH(int, button);
    QFETCH(int, modifiers);
    if (isMode)
        QVERIFY(m_window->click("zoomMode"));
    const QPoint from = m_window->canvasPoint(0.75, 0.5);
    const QPoint to = m_window->canvasPoint(0.25, 0.75);
    QTest::mousePress(m_window->window(), Qt::MouseButton(button), Qt::KeyboardModifiers(modifiers),
                      from);
    QTest::mouseMove(m_window->window(), to);
    QTRY_VERIFY(m_window->item("band")->isVisible());
    QTest::mouseRelease(m_window->window(), Qt::MouseButton(button),
                        Qt::KeyboardModifiers(modifiers), to);
    QTRY_VERIFY(!m_window->item("band")->isVisible());
    QVERIFY(isNear(x().min, m_start[QwtPlot::xBottom].at(0.25), x()));
    QVERIFY(isNear(x().max, m_start[QwtPlot::xBottom].at(0.75), x()));
    QVERIFY(isNear(left().min, m_start[QwtPlot::yLeft].at(0.5), left()));
    QVERIFY(isNear(right().max, m_start[QwtPlot::yRight].at(0.75), right()));
    // A next drag pans again.
    QVERIFY(!m_window->item("pad")->property("zoomMode").toBool());
}

/** A rectangle without height zooms the horizontal axis only. */
void tst_PlotGestures::zoomsIntoAStretch()
{
    m_window->drag(m_window->canvasPoint(0.25, 0.5), m_window->canvasPoint(0.5, 0.5),
                   Qt::RightButton);
    QCOMPARE(moved(), (QList<bool>{true, false, false}));
    QVERIFY(isNear(x().max, m_start[QwtPlot::xBottom].at(0.5), x()));
    m_window->drag(m_window->canvasPoint(0.5, 0.25), m_window->canvasPoint(0.5, 0.5),
                   Qt::RightButton);
    QCOMPARE(moved(), (QList<bool>{true, true, true}));
    QVERIFY(isNear(left().max, m_start[QwtPlot::yLeft].at(0.5), left()));
}

void tst_PlotGestures::givesARectangleUp()
{
    QVERIFY(m_window->click("zoomMode"));
    const QPoint from = m_window->canvasPoint(0.25, 0.25);
    QTest::mousePress(m_window->window(), Qt::LeftButton, Qt::NoModifier, from);
    QTest::mouseMove(m_window->window(), m_window->canvasPoint(0.75, 0.75));
    QTRY_VERIFY(m_window->item("band")->isVisible());
    m_window->key(Qt::Key_Escape);
    QTRY_VERIFY(!m_window->item("band")->isVisible());
    QTest::mouseRelease(m_window->window(), Qt::LeftButton, Qt::NoModifier,
                        m_window->canvasPoint(0.75, 0.75));
    QCOMPARE(moved(), (QList<bool>{false, false, false}));
    QVERIFY(!m_window->item("pad")->property("zoomMode").toBool());
}

void tst_PlotGestures::showsEverythingAgain()
{
    const QPoint centre = m_window->canvasPoint(0.5, 0.5);
    QVERIFY(!m_window->item("showEverything")->isEnabled());
    m_window->wheel(centre, 3);
    QVERIFY(m_window->click("showEverything"));
    QCOMPARE(moved(), (QList<bool>{false, false, false}));
    QTRY_COMPARE(x().min, m_start[QwtPlot::xBottom].min);
    m_window->wheel(centre, 3);
    QTest::mouseDClick(m_window->window(), Qt::LeftButton, Qt::NoModifier, centre);
    QCOMPARE(moved(), (QList<bool>{false, false, false}));
    m_window->wheel(centre, 3);
    m_window->tap(centre);
    m_window->tap(centre);
    QCOMPARE(moved(), (QList<bool>{false, false, false}));
    m_window->wheel(centre, 3);
    m_window->key(Qt::Key_Home);
    QCOMPARE(moved(), (QList<bool>{false, false, false}));
    // That, too, is a step to come back from.
    QVERIFY(m_window->click("zoomBack"));
    QCOMPARE(moved(), (QList<bool>{true, true, true}));
}

void tst_PlotGestures::doubleClicksOneAxis()
{
    m_window->wheel(m_window->canvasPoint(0.5, 0.5), 3);
    QTest::mouseDClick(m_window->window(), Qt::LeftButton, Qt::NoModifier,
                       m_window->onAxis(PlotNavigator::Left));
    QCOMPARE(moved(), (QList<bool>{true, false, true}));
}

void tst_PlotGestures::stepsBackAndForward()
{
    const QPoint centre = m_window->canvasPoint(0.5, 0.5);
    QTest::mouseClick(m_window->window(), Qt::LeftButton, Qt::NoModifier, centre);
    m_window->wheel(centre, 1);
    const PlotScales one = m_window->navigator()->scales();
    m_window->wheel(m_window->onAxis(PlotNavigator::Bottom), 1);
    const PlotScales two = m_window->navigator()->scales();
    m_window->drag(centre, centre + QPoint(50, 50));
    m_window->key(Qt::Key_Backspace);
    QVERIFY(m_window->navigator()->scales() == two);
    m_window->key(Qt::Key_Left, Qt::AltModifier);
    QVERIFY(m_window->navigator()->scales() == one);
    QTest::mouseClick(m_window->window(), Qt::RightButton, Qt::NoModifier, centre);
    QCOMPARE(moved(), (QList<bool>{false, false, false}));
    m_window->key(Qt::Key_Backspace);
    m_window->key(Qt::Key_Right, Qt::AltModifier);
    QVERIFY(m_window->navigator()->scales() == one);
    m_window->key(Qt::Key_Right, Qt::AltModifier);
    QVERIFY(m_window->navigator()->scales() == two);
    QVERIFY(m_window->click("zoomBack"));
    QVERIFY(m_window->navigator()->scales() == one);
}

void tst_PlotGestures::pansAndPinchesWithFingers()
{
    m_window->swipe(m_window->canvasPoint(0.5, 0.5), m_window->canvasPoint(0.25, 0.75));
    QVERIFY(isNear(x().min, m_start[QwtPlot::xBottom].at(0.25), x()));
    QVERIFY(isNear(left().min, m_start[QwtPlot::yLeft].at(-0.25), left()));
    m_window->key(Qt::Key_Backspace);
    QVERIFY(x().isAuto);
    m_window->pinch(m_window->canvasPoint(0.4, 0.4), m_window->canvasPoint(0.6, 0.6),
                    m_window->canvasPoint(0.3, 0.4), m_window->canvasPoint(0.7, 0.8));
    QVERIFY(isNear(x().span(), m_start[QwtPlot::xBottom].span() / 2, x()));
    QVERIFY(isNear(x().at(0.5), m_start[QwtPlot::xBottom].at(0.5), x()));
    QVERIFY(isNear(left().span(), m_start[QwtPlot::yLeft].span() / 2, left()));
    QVERIFY(isNear(left().at(0.4), m_start[QwtPlot::yLeft].at(0.4), left()));
    // Both fingers together are one step.
    m_window->key(Qt::Key_Backspace);
    QVERIFY(x().isAuto);
    // Fingers side by side pinch the horizontal axis only.
    m_window->pinch(m_window->canvasPoint(0.4, 0.5), m_window->canvasPoint(0.6, 0.5),
                    m_window->canvasPoint(0.3, 0.5), m_window->canvasPoint(0.7, 0.5));
    QVERIFY(isNear(x().span(), m_start[QwtPlot::xBottom].span() / 2, x()));
    QVERIFY(isNear(left().span(), m_start[QwtPlot::yLeft].span(), left()));
}

void tst_PlotGestures::pinchesOneAxis_data()
{
    QTest::addColumn<int>("axis");
    QTest::addColumn<int>("scale");
    QTest::addColumn<QPoint>("along");
    QTest::addColumn<QList<bool>>("moved");

    typedef QList<bool> Axes;
    const QPoint right(60, 0);
    const QPoint up(0, -60);
    QTest::newRow("bottom") << int(PlotNavigator::Bottom) << int(QwtPlot::xBottom) << right
                            << Axes{true, false, false};
    QTest::newRow("left") << int(PlotNavigator::Left) << int(QwtPlot::yLeft) << up
                          << Axes{false, true, false};
    QTest::newRow("right") << int(PlotNavigator::Right) << int(QwtPlot::yRight) << up
                           << Axes{false, false, true};
}

/** What is between the fingers stays there. */
void tst_PlotGestures::pinchesOneAxis()
{
    QFETCH(int, axis);
    QFETCH(int, scale);
    QFETCH(QPoint, along);
    const QPoint at = m_window->onAxis(axis);
    m_window->pinch(at + along, at - along, at + 2 * along, at - 2 * along);
    QTEST(moved(), "moved");
    const AxisRange &start = m_start[scale];
    QVERIFY(isNear(range(scale).span(), start.span() / 2, range(scale)));
    QVERIFY(isNear(range(scale).at(0.5), start.at(0.5), range(scale)));
}

void tst_PlotGestures::zoomsAndPansByKeys()
{
    QTest::mouseClick(m_window->window(), Qt::LeftButton, Qt::NoModifier,
                      m_window->canvasPoint(0.5, 0.5));
    m_window->key(Qt::Key_Plus);
    QVERIFY(isNear(x().span(), 0.8 * m_start[QwtPlot::xBottom].span(), x()));
    QVERIFY(isNear(right().span(), 0.8 * m_start[QwtPlot::yRight].span(), right()));
    m_window->key(Qt::Key_Minus);
    QVERIFY(isNear(left().max, m_start[QwtPlot::yLeft].max, left()));
    m_window->key(Qt::Key_Right);
    QVERIFY(isNear(x().min, m_start[QwtPlot::xBottom].at(0.1), x()));
    m_window->key(Qt::Key_Down);
    QVERIFY(isNear(left().min, m_start[QwtPlot::yLeft].at(-0.1), left()));
    m_window->key(Qt::Key_Left);
    m_window->key(Qt::Key_Up);
    QVERIFY(isNear(x().min, m_start[QwtPlot::xBottom].min, x()));
    QVERIFY(isNear(left().min, m_start[QwtPlot::yLeft].min, left()));
}

/** By key and by button; wheel, drag and keys then move these axes only. */
void tst_PlotGestures::choosesAxes()
{
    const QPoint centre = m_window->canvasPoint(0.5, 0.5);
    QTest::mouseClick(m_window->window(), Qt::LeftButton, Qt::NoModifier, centre);
    m_window->key(Qt::Key_R);
    m_window->key(Qt::Key_Plus);
    QCOMPARE(moved(), (QList<bool>{false, false, true}));
    m_window->key(Qt::Key_Home);
    QCOMPARE(moved(), (QList<bool>{false, false, false}));
    m_window->key(Qt::Key_L);
    m_window->wheel(centre, 1);
    QCOMPARE(moved(), (QList<bool>{false, true, false}));
    m_window->key(Qt::Key_Backspace);
    m_window->key(Qt::Key_L);
    QVERIFY(m_window->click("axesChoice"));
    QCOMPARE(m_window->item("axesChoice")->property("text").toString(), QString("X"));
    m_window->drag(centre, centre + QPoint(80, 80));
    QCOMPARE(moved(), (QList<bool>{true, false, false}));
    for (int i = 0; i < 3; ++i)
        QVERIFY(m_window->click("axesChoice"));
    QCOMPARE(m_window->item("axesChoice")->property("text").toString(), QString("All"));
}

/** Sessions keep what the graph definition says. */
void tst_PlotGestures::recordsTheLimits()
{
    m_window->wheel(m_window->onAxis(PlotNavigator::Bottom), 1);
    const auto scaling = [this](const char *axis) {
        return m_window->source()->graphDefinition()["scaling"].toMap()[axis].toMap();
    };
    QCOMPARE(scaling("xbottom")["autoscale"], QVariant(false));
    QCOMPARE(scaling("xbottom")["min"].toString(), QString::number(x().min));
    QCOMPARE(scaling("xbottom")["max"].toString(), QString::number(x().max));
    QVERIFY(!scaling("yleft").contains("autoscale"));
    QVERIFY(m_window->click("showEverything"));
    QCOMPARE(scaling("xbottom")["autoscale"], QVariant(true));
    QCOMPARE(scaling("yleft").value("autoscale", true), QVariant(true));
}

void tst_PlotGestures::typesAllLimitsInOneStep()
{
    QVERIFY(m_window->click("limits"));
    auto *popup = m_window->window()->findChild<QObject *>("limitsPopup");
    QTRY_VERIFY(popup->property("opened").toBool());
    for (const char *row : {"limitsX", "limitsLeft", "limitsRight"}) {
        for (const char *field : {"lower", "upper"}) {
            QVERIFY(m_window->click(
                popup->findChild<QQuickItem *>(row)->findChild<QQuickItem *>(field)));
            QTest::keySequence(m_window->window(), QKeySequence::SelectAll);
            m_window->type(field == QByteArray("lower") ? "3" : "5");
        }
    }
    QVERIFY(m_window->click("applyLimits"));
    QTRY_VERIFY(!popup->property("visible").toBool());
    const PlotScales typed = m_window->navigator()->scales();
    for (int axis : {QwtPlot::xBottom, QwtPlot::yLeft, QwtPlot::yRight}) {
        QCOMPARE(typed[axis].min, 3.0);
        QCOMPARE(typed[axis].max, 5.0);
    }
    QVERIFY(m_window->click("zoomBack"));
    QTRY_VERIFY(!m_window->item("zoomBack")->isEnabled());
    const PlotScales back = m_window->navigator()->scales();
    for (int axis : {QwtPlot::xBottom, QwtPlot::yLeft, QwtPlot::yRight})
        QVERIFY(back[axis].isAuto);
}

QTEST_MAIN(tst_PlotGestures)
#include "tst_PlotGestures.moc"

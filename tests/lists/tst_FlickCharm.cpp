#include "FlickGestures.h"

class tst_FlickCharm : public QObject
{
    Q_OBJECT

private slots:
    void tapReachesTheList();
    void tapReleasedElsewhereIsReplayedThere();
    void replayedTapHasGlobalPositions();
    void doubleTapReachesTheList();
    void pressIsHeldBackUntilTheRelease();
    void dragScrolls_data();
    void dragScrolls();
    void dragDoesNotReachTheList();
    void dragFollowsTheFingerBack();
    void firstMoveOnlyStartsTheDrag();
    void secondDragDoesNotJump_data();
    void secondDragDoesNotJump();
    void touchAfterADragEndsIt();
    void dragAfterATouchThatEndedOneDoesNotJump();
    void releaseAloneEndsADrag();
    void modifiersPass_data();
    void modifiersPass();
    void otherButtonsPass();
    void otherEventsPass();
    void movesWithoutAPressPass();
    void barWithoutRangeStays();
    void eachAreaHasItsOwnGesture();
    void activatingTwiceStartsAfresh();
    void deactivatedAreaIsLeftAlone();
    void onlyScrollAreas();
    void nullIsNoScrollArea();
    void scrollBarPoliciesStay();
    void tickWithoutSpeedEndsTheGesture();
    void ticksCoast();
};

void tst_FlickCharm::tapReachesTheList()
{
    QListWidget list;
    fill(&list);
    EventRecorder recorder(list.viewport());
    FlickCharm charm;
    charm.activateOn(&list);
    QSignalSpy selected(&list, SIGNAL(itemSelectionChanged()));
    const QPoint row = list.visualItemRect(list.item(2)).center();
    press(&list, row.x(), row.y());
    release(&list, row.x(), row.y());
    QCOMPARE(recorder.taken(), tapAt(row.x(), row.y()));
    QCOMPARE(selected.count(), 1);
    QCOMPARE(list.currentRow(), 2);
}

void tst_FlickCharm::tapReleasedElsewhereIsReplayedThere()
{
    CharmedArea area(0, 100);
    press(&area, 10, 20);
    release(&area, 11, 22);
    QCOMPARE(area.taken(),
             QStringList() << QLatin1String("press 10,20 1") << QLatin1String("release 11,22 1"));
}

void tst_FlickCharm::replayedTapHasGlobalPositions()
{
    struct GlobalPositions : QObject {
        bool eventFilter(QObject *, QEvent *event) override
        {
            if (event->type() == QEvent::MouseButtonPress)
                pressed = static_cast<QMouseEvent *>(event)->globalPos();
            if (event->type() == QEvent::MouseButtonRelease)
                released = static_cast<QMouseEvent *>(event)->globalPos();
            return false;
        }
        QPoint pressed, released;
    } positions;
    BareArea area(0, 100);
    area.viewport()->installEventFilter(&positions);
    FlickCharm charm;
    charm.activateOn(&area);
    press(&area, 10, 20);
    release(&area, 12, 23);
    QCOMPARE(positions.pressed, area.viewport()->mapToGlobal(QPoint(10, 20)));
    QCOMPARE(positions.released, area.viewport()->mapToGlobal(QPoint(12, 23)));
}

void tst_FlickCharm::doubleTapReachesTheList()
{
    CharmedArea area(0, 100);
    press(&area, 10, 20);
    release(&area, 10, 20);
    send(area.viewport(), QEvent::MouseButtonDblClick, QPoint(10, 20));
    release(&area, 10, 20);
    QCOMPARE(area.taken(),
             tapAt(10, 20) << QLatin1String("double 10,20 1") << QLatin1String("release 10,20 1"));
}

void tst_FlickCharm::pressIsHeldBackUntilTheRelease()
{
    CharmedArea area(0, 100);
    press(&area, 10, 20);
    QCoreApplication::processEvents();
    QCOMPARE(area.taken(), QStringList());
}

void tst_FlickCharm::dragScrolls_data()
{
    QTest::addColumn<QPoint>("maximum");
    QTest::addColumn<QPoint>("distance");
    QTest::addColumn<QPoint>("value");
    // Down, a step takes a 57th of the range in pixels; across, three ranges.
    QTest::newRow("up by 35 of 100") << QPoint(100, 100) << QPoint(0, -35) << QPoint(0, 20);
    QTest::newRow("up by 36 of 100") << QPoint(100, 100) << QPoint(0, -36) << QPoint(0, 20);
    QTest::newRow("up by 37 of 100") << QPoint(100, 100) << QPoint(0, -37) << QPoint(0, 21);
    QTest::newRow("down at the start") << QPoint(100, 100) << QPoint(0, 50) << QPoint(0, 0);
    QTest::newRow("to the end") << QPoint(100, 100) << QPoint(0, -1000) << QPoint(0, 100);
    QTest::newRow("up by 350 of 1000") << QPoint(100, 1000) << QPoint(0, -350) << QPoint(0, 20);
    QTest::newRow("left by 60 of 10") << QPoint(10, 100) << QPoint(-60, 0) << QPoint(2, 0);
    QTest::newRow("left by 59 of 10") << QPoint(10, 100) << QPoint(-59, 0) << QPoint(1, 0);
    QTest::newRow("both ways") << QPoint(10, 100) << QPoint(-60, -35) << QPoint(2, 20);
}

void tst_FlickCharm::dragScrolls()
{
    QFETCH(QPoint, maximum);
    QFETCH(QPoint, distance);
    QFETCH(QPoint, value);
    CharmedArea area(maximum.x(), maximum.y());
    drag(&area, QPoint(50, 60), QPoint(50, 60) + distance);
    QCOMPARE(QPoint(area.across(), area.down()), value);
}

void tst_FlickCharm::dragDoesNotReachTheList()
{
    QListWidget list;
    fill(&list);
    EventRecorder recorder(list.viewport());
    FlickCharm charm;
    charm.activateOn(&list);
    drag(&list, QPoint(20, 120), QPoint(20, 60));
    QCOMPARE(recorder.taken(), QStringList());
    QVERIFY(list.verticalScrollBar()->value() > 0);
    QVERIFY(list.selectedItems().isEmpty());
}

void tst_FlickCharm::dragFollowsTheFingerBack()
{
    CharmedArea area;
    area.scrollTo(50, 50);
    press(&area, 40, 40);
    move(&area, 40, 40);
    move(&area, 40, 5);
    QCOMPARE(area.down(), 70);
    move(&area, 40, 40);
    QCOMPARE(area.down(), 50);
    move(&area, 40, 75);
    QCOMPARE(area.down(), 30);
}

void tst_FlickCharm::firstMoveOnlyStartsTheDrag()
{
    CharmedArea area;
    press(&area, 40, 40);
    move(&area, 40, 5);
    QCOMPARE(area.down(), 0);
    move(&area, 40, 5);
    QCOMPARE(area.down(), 20);
}

void tst_FlickCharm::secondDragDoesNotJump_data()
{
    QTest::addColumn<int>("maximum");
    QTest::newRow("short") << 10;
    QTest::newRow("a step a pixel") << 57;
    QTest::newRow("long") << 1000;
    QTest::newRow("a million rows") << 1000000;
}

void tst_FlickCharm::secondDragDoesNotJump()
{
    QFETCH(int, maximum);
    CharmedArea area(maximum, maximum);
    const int middle = maximum / 2;
    area.scrollTo(middle, middle);
    for (int i = 0; i < 3; ++i) {
        drag(&area, QPoint(40, 40), QPoint(40, 40));
        QCOMPARE(QPoint(area.across(), area.down()), QPoint(middle, middle));
    }
    drag(&area, QPoint(40, 40), QPoint(40, 37));
    const int once = area.down();
    drag(&area, QPoint(40, 40), QPoint(40, 40));
    QCOMPARE(QPoint(area.across(), area.down()), QPoint(middle, once));
}

void tst_FlickCharm::touchAfterADragEndsIt()
{
    CharmedArea area;
    drag(&area, QPoint(40, 40), QPoint(40, 5));
    press(&area, 40, 40);
    release(&area, 40, 40);
    QCOMPARE(area.taken(), QStringList());
    QCOMPARE(area.down(), 20);
    press(&area, 40, 40);
    release(&area, 40, 40);
    QCOMPARE(area.taken(), tapAt(40, 40));
}

void tst_FlickCharm::dragAfterATouchThatEndedOneDoesNotJump()
{
    CharmedArea area;
    drag(&area, QPoint(40, 40), QPoint(40, 5));
    press(&area, 40, 40);
    release(&area, 40, 40);
    area.scrollTo(10, 60);
    drag(&area, QPoint(40, 40), QPoint(40, 40));
    QCOMPARE(QPoint(area.across(), area.down()), QPoint(10, 60));
}

void tst_FlickCharm::releaseAloneEndsADrag()
{
    CharmedArea area;
    drag(&area, QPoint(40, 40), QPoint(40, 5));
    release(&area, 40, 5);
    drag(&area, QPoint(40, 40), QPoint(40, 40));
    QCOMPARE(area.down(), 20);
    release(&area, 40, 40);
    press(&area, 40, 40);
    release(&area, 40, 40);
    QCOMPARE(area.taken(), tapAt(40, 40));
}

void tst_FlickCharm::modifiersPass_data()
{
    QTest::addColumn<int>("modifier");
    QTest::newRow("shift") << int(Qt::ShiftModifier);
    QTest::newRow("control") << int(Qt::ControlModifier);
    QTest::newRow("alt") << int(Qt::AltModifier);
    QTest::newRow("keypad") << int(Qt::KeypadModifier);
}

void tst_FlickCharm::modifiersPass()
{
    QFETCH(int, modifier);
    CharmedArea area;
    const Qt::KeyboardModifiers modifiers = Qt::KeyboardModifier(modifier);
    send(area.viewport(), QEvent::MouseButtonPress, QPoint(4, 5), Qt::LeftButton, modifiers);
    QCOMPARE(area.taken(), QStringList() << QLatin1String("press 4,5 1"));
    send(area.viewport(), QEvent::MouseMove, QPoint(4, 50), Qt::LeftButton, modifiers);
    send(area.viewport(), QEvent::MouseButtonRelease, QPoint(4, 50), Qt::LeftButton, modifiers);
    QCOMPARE(area.taken(),
             QStringList() << QLatin1String("move 4,50 0") << QLatin1String("release 4,50 1"));
    QCOMPARE(area.down(), 0);
}

void tst_FlickCharm::otherButtonsPass()
{
    CharmedArea area;
    send(area.viewport(), QEvent::MouseButtonPress, QPoint(4, 5), Qt::RightButton);
    send(area.viewport(), QEvent::MouseButtonRelease, QPoint(4, 5), Qt::RightButton);
    QCOMPARE(area.taken(),
             QStringList() << QLatin1String("press 4,5 2") << QLatin1String("release 4,5 2"));
}

void tst_FlickCharm::otherEventsPass()
{
    QListWidget list;
    fill(&list);
    FlickCharm charm;
    charm.activateOn(&list);
    QTest::keyClick(&list, Qt::Key_Down);
    QTest::keyClick(&list, Qt::Key_Down);
    QVERIFY(list.currentRow() >= 1);
}

void tst_FlickCharm::movesWithoutAPressPass()
{
    CharmedArea area;
    move(&area, 7, 8);
    QCOMPARE(area.taken(), QStringList() << QLatin1String("move 7,8 0"));
}

void tst_FlickCharm::barWithoutRangeStays()
{
    CharmedArea area(0, 0);
    drag(&area, QPoint(50, 50), QPoint(10, 10));
    QCOMPARE(QPoint(area.across(), area.down()), QPoint(0, 0));
    area.verticalScrollBar()->setRange(0, 100);
    drag(&area, QPoint(50, 50), QPoint(15, 15));
    QCOMPARE(QPoint(area.across(), area.down()), QPoint(0, 20));
}

void tst_FlickCharm::eachAreaHasItsOwnGesture()
{
    BareArea first(100, 100);
    BareArea second(100, 1000);
    EventRecorder recorder(second.viewport());
    FlickCharm charm;
    charm.activateOn(&first);
    charm.activateOn(&second);
    press(&first, 40, 40);
    move(&first, 40, 40);
    press(&second, 3, 4);
    move(&first, 40, 5);
    release(&second, 3, 4);
    QCOMPARE(first.down(), 20);
    QCOMPARE(second.down(), 0);
    QCOMPARE(recorder.taken(), tapAt(3, 4));
    charm.deactivateFrom(&first);
    drag(&second, QPoint(40, 360), QPoint(40, 10));
    QCOMPARE(second.down(), 20);
}

void tst_FlickCharm::activatingTwiceStartsAfresh()
{
    CharmedArea area;
    press(&area, 40, 40);
    area.charm()->activateOn(&area);
    move(&area, 40, 5);
    release(&area, 40, 5);
    // Those of a gesture that the second activation forgot; the filter was moved to the front.
    QCOMPARE(area.taken(),
             QStringList() << QLatin1String("move 40,5 0") << QLatin1String("release 40,5 1"));
    press(&area, 3, 4);
    release(&area, 3, 4);
    QCOMPARE(area.taken(), tapAt(3, 4));
    area.charm()->deactivateFrom(&area);
    press(&area, 3, 4);
    QCOMPARE(area.taken(), QStringList() << QLatin1String("press 3,4 1"));
}

void tst_FlickCharm::deactivatedAreaIsLeftAlone()
{
    CharmedArea area;
    area.charm()->deactivateFrom(&area);
    drag(&area, QPoint(40, 40), QPoint(40, 5));
    QCOMPARE(area.taken().size(), 4);
    QCOMPARE(area.down(), 0);
    area.charm()->deactivateFrom(&area);
    QWidget plain;
    area.charm()->deactivateFrom(&plain);
}

void tst_FlickCharm::onlyScrollAreas()
{
    QWidget plain;
    EventRecorder recorder(&plain);
    FlickCharm charm;
    expectDebugLine("FlickCharm only works on QAbstractScrollArea (and derived classes)");
    expectDebugLine("or QWebView (and derived classes)");
    charm.activateOn(&plain);
    send(&plain, QEvent::MouseButtonPress, QPoint(1, 2));
    QCOMPARE(recorder.taken(), QStringList() << QLatin1String("press 1,2 1"));
}

void tst_FlickCharm::nullIsNoScrollArea()
{
    FlickCharm charm;
    expectDebugLine("FlickCharm only works on QAbstractScrollArea (and derived classes)");
    expectDebugLine("or QWebView (and derived classes)");
    charm.activateOn(nullptr);
    charm.deactivateFrom(nullptr);
    tick(&charm);
}

void tst_FlickCharm::scrollBarPoliciesStay()
{
    BareArea area(100, 100);
    area.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    FlickCharm charm;
    charm.activateOn(&area);
    QCOMPARE(area.verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOn);
    QCOMPARE(area.horizontalScrollBarPolicy(), Qt::ScrollBarAsNeeded);
}

void tst_FlickCharm::tickWithoutSpeedEndsTheGesture()
{
    CharmedArea area;
    drag(&area, QPoint(40, 40), QPoint(40, 5));
    tick(area.charm());
    QCOMPARE(area.down(), 20);
    press(&area, 3, 4);
    release(&area, 3, 4);
    QCOMPARE(area.taken(), tapAt(3, 4));
}

void tst_FlickCharm::ticksCoast()
{
    CharmedArea area;
    QCursor::setPos(100, 100);
    press(&area, 40, 40);
    move(&area, 40, 40);
    QCursor::setPos(100, 90);
    QCOMPARE(QCursor::pos(), QPoint(100, 90));
    tick(area.charm());
    release(&area, 40, 40);
    // 9, 8, ... pixels a tick, at 1.75 pixels a step.
    tick(area.charm());
    QCOMPARE(area.down(), 5);
    tick(area.charm());
    QCOMPARE(area.down(), 10);
    for (int i = 0; i < 20; ++i)
        tick(area.charm());
    const int end = area.down();
    QVERIFY(end > 10 && end < 45);
    drag(&area, QPoint(40, 40), QPoint(40, 40));
    QCOMPARE(area.down(), end);
}

QTEST_MAIN(tst_FlickCharm)
#include "tst_FlickCharm.moc"

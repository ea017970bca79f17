#include "FlickGestures.h"

#include <QPointer>

/** Deletes an object when it is told to. */
class Remover : public QObject
{
    Q_OBJECT

public:
    explicit Remover(QObject *object)
        : m_object(object)
    {
    }
    ~Remover() override { delete m_object.data(); }
    bool isDone() const { return m_object.isNull(); }

public Q_SLOTS:
    void remove() { delete m_object.data(); }

private:
    QPointer<QObject> m_object;
};

/** Takes an area from a charm when it is scrolled. */
class Deactivator : public QObject
{
    Q_OBJECT

public:
    Deactivator(FlickCharm *charm, BareArea *area)
        : m_charm(charm)
        , m_area(area)
    {
        charm->activateOn(area);
        connect(area->horizontalScrollBar(), SIGNAL(valueChanged(int)), SLOT(deactivate()));
    }

public Q_SLOTS:
    void deactivate() { m_charm->deactivateFrom(m_area); }

private:
    FlickCharm *m_charm;
    BareArea *m_area;
};

/** Areas and charms that go away at any time, and gestures that are ended by others. */
class tst_FlickCharmLifetime : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void deactivatedInTheMiddleOfATap();
    void destroyedWhileActivated_data();
    void destroyedWhileActivated();
    void destroyedByTheScrollingOfAnother();
    void replacedViewport();
    void charmMayGoFirst();
    void destroyedByItsOwnScrolling_data();
    void destroyedByItsOwnScrolling();
    void deactivatedByItsOwnScrolling();
    void charmMayGoByScrolling_data();
    void charmMayGoByScrolling();
};

void tst_FlickCharmLifetime::deactivatedInTheMiddleOfATap()
{
    CharmedArea area;
    press(&area, 3, 4);
    send(area.viewport(), QEvent::MouseButtonRelease, QPoint(3, 4));
    area.charm()->deactivateFrom(&area);
    QCoreApplication::processEvents();
    QCOMPARE(area.taken(), tapAt(3, 4));
}

void tst_FlickCharmLifetime::destroyedWhileActivated_data()
{
    QTest::addColumn<int>("events");
    QTest::newRow("steady") << 0;
    QTest::newRow("pressed") << 1;
    QTest::newRow("dragged") << 2;
    QTest::newRow("tap on its way") << 3;
}

void tst_FlickCharmLifetime::destroyedWhileActivated()
{
    QFETCH(int, events);
    FlickCharm charm;
    QScopedPointer<BareArea> area(new BareArea(100, 100));
    charm.activateOn(area.data());
    if (events > 0)
        press(area.data(), 40, 40);
    if (events == 2)
        move(area.data(), 40, 30);
    if (events == 3)
        send(area->viewport(), QEvent::MouseButtonRelease, QPoint(40, 40));
    area.reset();
    QCoreApplication::processEvents();
    tick(&charm);
    BareArea another(100, 100);
    charm.activateOn(&another);
    drag(&another, QPoint(40, 40), QPoint(40, 5));
    QCOMPARE(another.down(), 20);
}

void tst_FlickCharmLifetime::destroyedByTheScrollingOfAnother()
{
    FlickCharm charm;
    BareArea *first = new BareArea(10, 100);
    BareArea second(100, 100);
    Remover remover(first);
    connect(second.verticalScrollBar(), SIGNAL(valueChanged(int)), &remover, SLOT(remove()));
    charm.activateOn(first);
    charm.activateOn(&second);
    press(first, 40, 40);
    drag(&second, QPoint(40, 40), QPoint(40, 5));
    QVERIFY(remover.isDone());
    QCOMPARE(second.down(), 20);
    tick(&charm);
}

void tst_FlickCharmLifetime::replacedViewport()
{
    CharmedArea area;
    press(&area, 40, 40);
    area.setViewport(new QWidget);
    EventRecorder recorder(area.viewport());
    press(&area, 3, 4);
    QCOMPARE(recorder.taken(), QStringList() << QLatin1String("press 3,4 1"));
    area.charm()->activateOn(&area);
    drag(&area, QPoint(40, 40), QPoint(40, 5));
    QCOMPARE(area.down(), 20);
}

void tst_FlickCharmLifetime::charmMayGoFirst()
{
    BareArea area(100, 100);
    EventRecorder recorder(area.viewport());
    QScopedPointer<FlickCharm> charm(new FlickCharm);
    charm->activateOn(&area);
    press(&area, 40, 40);
    charm.reset();
    release(&area, 40, 40);
    QCOMPARE(recorder.taken(), QStringList() << QLatin1String("release 40,40 1"));
}

void tst_FlickCharmLifetime::destroyedByItsOwnScrolling_data()
{
    QTest::addColumn<bool>("isAcross");
    QTest::newRow("across") << true;
    QTest::newRow("down") << false;
}

void tst_FlickCharmLifetime::destroyedByItsOwnScrolling()
{
    QFETCH(bool, isAcross);
    FlickCharm charm;
    BareArea *area = new BareArea(10, 100);
    Remover remover(area);
    connect(isAcross ? area->horizontalScrollBar() : area->verticalScrollBar(),
            SIGNAL(valueChanged(int)), &remover, SLOT(remove()));
    charm.activateOn(area);
    press(area, 90, 40);
    move(area, 90, 40);
    move(area, 30, 5);
    QVERIFY(remover.isDone());
    tick(&charm);
}

void tst_FlickCharmLifetime::deactivatedByItsOwnScrolling()
{
    FlickCharm charm;
    BareArea area(10, 100);
    Deactivator deactivator(&charm, &area);
    press(&area, 90, 40);
    move(&area, 90, 40);
    move(&area, 30, 5);
    // The move that was under way is done; those after it are not the charm's any more.
    QCOMPARE(QPoint(area.across(), area.down()), QPoint(2, 20));
    move(&area, 90, 40);
    QCOMPARE(QPoint(area.across(), area.down()), QPoint(2, 20));
}

void tst_FlickCharmLifetime::charmMayGoByScrolling_data()
{
    QTest::addColumn<bool>("byTick");
    QTest::newRow("a drag") << false;
    QTest::newRow("a tick") << true;
}

/** With another area left, which nobody looks at any more. */
void tst_FlickCharmLifetime::charmMayGoByScrolling()
{
    QFETCH(bool, byTick);
    BareArea first(100, 100);
    BareArea second(100, 100);
    FlickCharm *charm = new FlickCharm;
    Remover remover(charm);
    charm->activateOn(&first);
    charm->activateOn(&second);
    BareArea *areas[] = {&first, &second};
    for (int i = 0; byTick && i < 2; ++i) {
        QCursor::setPos(100, 100);
        press(areas[i], 40, 40);
        move(areas[i], 40, 40);
    }
    if (byTick) {
        QCursor::setPos(100, 60);
        tick(charm);
        release(&first, 40, 40);
        release(&second, 40, 40);
    }
    connect(first.verticalScrollBar(), SIGNAL(valueChanged(int)), &remover, SLOT(remove()));
    connect(second.verticalScrollBar(), SIGNAL(valueChanged(int)), &remover, SLOT(remove()));
    if (byTick)
        tick(charm);
    else
        drag(&first, QPoint(40, 40), QPoint(40, 5));
    QVERIFY(remover.isDone());
    // Each area scrolled as far as it did alone, or not at all.
    QCOMPARE(first.down() + second.down(), byTick ? 22 : 20);
}

QTEST_MAIN(tst_FlickCharmLifetime)
#include "tst_FlickCharmLifetime.moc"

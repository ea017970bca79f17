#include "ViewerUser.h"
#include "viewer/CurveReadings.h"

#include <QApplication>

/** Choosing what is plotted, with a mouse, keys and a finger. */
class tst_Choosing : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup() { m_user.reset(); }
    void showsGroupsUnitsAndColors();
    void choosesByOneTap();
    void choosesByAFinger();
    void scrollsUnderAFinger();
    void choosesByKeys();
    void searchesAsOneTypes();
    void tellsThatNothingWasFound();
    void listsOnlyTheChosen();
    void choosesAllAndNone();
    void isKindBeyondFive();
    void leavesRoomWithManyCurves();
    void fitsItsWindow_data();
    void fitsItsWindow();
    void makesRowsAsTheyAreSeen();

private:
    QQuickItem *row(int index);
    QQuickItem *part(int index, const char *name);
    bool tap(int index, const char *name);
    QStringList left() const { return m_user->source()->YLeftData().keys(); }
    QStringList right() const { return m_user->source()->YRightData().keys(); }

    QScopedPointer<TemporaryLog> m_log;
    QScopedPointer<ViewerUser> m_user;
};

namespace
{

QByteArray wideLog(int columns)
{
    QByteArray groups = "Sys";
    QByteArray names = "Obs";
    QByteArray units = "-";
    QByteArray rows[] = {"1", "2", "3"};
    for (int i = 1; i < columns; ++i) {
        groups += "\tCell " + QByteArray::number((i - 1) / 4 + 1);
        names += "\tV" + QByteArray::number(i);
        units += "\tmV";
        for (int r = 0; r < 3; ++r)
            rows[r] += '\t' + QByteArray::number(i * 10 + r);
    }
    return "[Header]\nCreated\t2020\n[Data]\n" + groups + '\n' + names + '\n' + units + '\n'
        + rows[0] + '\n' + rows[1] + '\n' + rows[2] + '\n';
}

} // namespace

void tst_Choosing::initTestCase()
{
    QApplication::setStyle("fusion");
}

void tst_Choosing::init()
{
    m_log.reset(new TemporaryLog(TemporaryLog::withUnits()));
    m_user.reset(new ViewerUser(*m_log));
    QVERIFY(m_user->isReady());
}

QQuickItem *tst_Choosing::row(int index)
{
    QQuickItem *item = nullptr;
    QMetaObject::invokeMethod(m_user->item("variables"), "itemAtIndex",
                              Q_RETURN_ARG(QQuickItem *, item), Q_ARG(int, index));
    return item;
}

QQuickItem *tst_Choosing::part(int index, const char *name)
{
    QQuickItem *item = row(index);
    return item ? item->findChild<QQuickItem *>(name) : nullptr;
}

bool tst_Choosing::tap(int index, const char *name)
{
    if (!m_user->settled())
        return false;
    QQuickItem *target = part(index, name);
    return target && m_user->click(target, target->boundingRect().center()) && m_user->settled();
}

void tst_Choosing::showsGroupsUnitsAndColors()
{
    QVERIFY(m_user->settled());
    QCOMPARE(row(2)->property("name").toString(), QString("T"));
    QCOMPARE(row(2)->property("unit").toString(), QString("C"));
    QCOMPARE(row(2)->property("leftColor").toString(), QString("#D90C00"));
    QCOMPARE(row(3)->property("leftColor").toString(), QString());
    // The colour stands beside the name, on the screen.
    const QImage image = m_user->window()->grabWindow();
    const auto reds = [&image](const QQuickItem *item) {
        const QRect area = item->mapRectToScene(QRectF(0, 0, 26, item->height())).toRect();
        int count = 0;
        for (int x = area.left(); x < area.right(); ++x) {
            for (int y = area.top(); y < area.bottom(); ++y)
                count += image.pixelColor(x, y) == QColor("#D90C00") ? 1 : 0;
        }
        return count;
    };
    QVERIFY(reds(row(2)) > 50);
    QCOMPARE(reds(row(3)), 0);
    QCOMPARE(m_user->text("xHeadState"), QString("Obs"));
    QCOMPARE(m_user->text("leftHeadState"), QString("1"));
    QCOMPARE(m_user->text("rightHeadState"), QString("1"));
}

void tst_Choosing::choosesByOneTap()
{
    QSignalSpy updated(m_user->plot(), SIGNAL(plotUpdated()));
    QVERIFY(tap(3, "onLeft"));
    QCOMPARE(left(), (QStringList{"RH", "T"}));
    QCOMPARE(updated.count(), 1);
    QCOMPARE(m_user->text("leftHeadState"), QString("2"));
    QVERIFY(tap(2, "onRight"));
    QCOMPARE(right(), (QStringList{"CO2", "T"}));
    QVERIFY(tap(2, "onLeft"));
    QCOMPARE(left(), QStringList{"RH"});
    QVERIFY(tap(1, "onX"));
    QCOMPARE(m_user->source()->xData().first, QString("Time"));
    QCOMPARE(m_user->text("xHeadState"), QString("Time"));
    QCOMPARE(updated.count(), 4);
    // The X axis keeps its variable: a plot needs one.
    QVERIFY(tap(1, "onX"));
    QCOMPARE(m_user->source()->xData().first, QString("Time"));
    QTRY_COMPARE(row(2)->property("leftColor").toString(), QString());
    QCOMPARE(row(2)->property("rightColor").toString(),
             m_user->plot()->hexColorForAxisAndVariableName(2, "T"));
}

void tst_Choosing::choosesByAFinger()
{
    QVERIFY(m_user->settled());
    QQuickItem *tick = part(3, "onLeft");
    m_user->drag(m_user->pointOf(tick, tick->boundingRect().center()));
    QTRY_COMPARE(left(), (QStringList{"RH", "T"}));
}

/** Also one that comes down on a tick, which then is left alone. */
void tst_Choosing::scrollsUnderAFinger()
{
    m_log.reset(new TemporaryLog(wideLog(61)));
    m_user.reset(new ViewerUser(*m_log));
    QVERIFY(m_user->isReady() && m_user->settled());
    const QStringList before = left();
    auto *list = m_user->item("variables");
    QQuickItem *tick = part(4, "onLeft");
    m_user->drag(m_user->pointOf(tick, tick->boundingRect().center()), QPoint(0, -150));
    QTRY_VERIFY(list->property("contentY").toDouble() > 60);
    QCOMPARE(left(), before);
}

void tst_Choosing::choosesByKeys()
{
    m_user->item("variableSearch")->forceActiveFocus();
    m_user->type("r");
    m_user->key(Qt::Key_Down);
    QTRY_VERIFY(m_user->item("variables")->hasActiveFocus());
    // Listed are T and RH, of the group Air.
    m_user->key(Qt::Key_Down);
    m_user->key(Qt::Key_L);
    QTRY_COMPARE(left(), (QStringList{"RH", "T"}));
    m_user->key(Qt::Key_R);
    QTRY_COMPARE(right(), (QStringList{"CO2", "RH"}));
    m_user->key(Qt::Key_Up);
    m_user->key(Qt::Key_L);
    QTRY_COMPARE(left(), QStringList{"RH"});
    m_user->key(Qt::Key_X);
    QTRY_COMPARE(m_user->source()->xData().first, QString("T"));
    QVERIFY(row(0)->property("isCurrent").toBool());
}

void tst_Choosing::searchesAsOneTypes()
{
    QVERIFY(m_user->click("variableSearch"));
    m_user->type("ai");
    QTRY_COMPARE(m_user->item("variables")->property("count").toInt(), 2);
    QVERIFY(tap(1, "onRight"));
    QCOMPARE(right(), (QStringList{"CO2", "RH"}));
    m_user->item("variableSearch")->forceActiveFocus();
    m_user->key(Qt::Key_Escape);
    QTRY_COMPARE(m_user->item("variables")->property("count").toInt(), 5);
    m_user->type("ppm");
    QTRY_COMPARE(m_user->item("variables")->property("count").toInt(), 1);
    QVERIFY(m_user->click("clearSearch"));
    QTRY_COMPARE(m_user->item("variables")->property("count").toInt(), 5);
}

void tst_Choosing::tellsThatNothingWasFound()
{
    QVERIFY(m_user->click("variableSearch"));
    m_user->type("qq");
    QTRY_VERIFY(m_user->isShown("noVariables"));
    QVERIFY(m_user->text("noVariables").contains("qq"));
}

void tst_Choosing::listsOnlyTheChosen()
{
    QVERIFY(m_user->click("chosenOnly"));
    QTRY_COMPARE(m_user->item("variables")->property("count").toInt(), 3);
    QVERIFY(tap(2, "onRight"));
    QCOMPARE(right(), QStringList());
    QVERIFY(m_user->click("chosenOnly"));
    QTRY_COMPARE(m_user->item("variables")->property("count").toInt(), 5);
}

void tst_Choosing::choosesAllAndNone()
{
    QVERIFY(m_user->click("variableSearch"));
    m_user->type("air");
    QVERIFY(m_user->click("rightHead"));
    QTRY_VERIFY(m_user->isShown("chooseListed"));
    QCOMPARE(m_user->text("chooseListed"), QString("All 2 listed"));
    QVERIFY(m_user->click("chooseListed"));
    QTRY_COMPARE(right(), (QStringList{"CO2", "RH", "T"}));
    QTRY_VERIFY(!m_user->isShown("chooseListed"));
    QVERIFY(m_user->click("leftHead"));
    QTRY_VERIFY(m_user->isShown("chooseNone"));
    QVERIFY(m_user->click("chooseNone"));
    QTRY_COMPARE(left(), QStringList());
    QCOMPARE(m_user->text("leftHeadState"), QString("none"));
    QCOMPARE(right().size(), 3);
}

void tst_Choosing::isKindBeyondFive()
{
    m_log.reset(new TemporaryLog(wideLog(61)));
    m_user.reset(new ViewerUser(*m_log));
    QVERIFY(m_user->isReady());
    QVERIFY(m_user->click("leftHead"));
    QTRY_VERIFY(m_user->isShown("chooseNone"));
    QVERIFY(m_user->click("chooseNone"));
    QTRY_VERIFY(!m_user->isShown("chooseNone"));
    QVERIFY(!m_user->isShown("leftNote"));
    for (int i = 1; i <= 5; ++i)
        QVERIFY(tap(i, "onLeft"));
    QVERIFY(!m_user->isShown("leftNote"));
    m_user->item("variables")->setProperty("contentY", 120);
    QVERIFY(tap(6, "onLeft"));
    QTRY_VERIFY(m_user->isShown("leftNote"));
    auto *note = m_user->item("leftNote");
    const auto said
        = [note] { return note->findChild<QQuickItem *>("text")->property("text").toString(); };
    QCOMPARE(said(), QString("Left axis: 6 curves. Up to 12 have colours of their own."));
    QTRY_COMPARE(row(6)->property("leftColor").toString(), QString("#8E24AA"));
    // So do those beside the plot.
    const auto *readings = m_user->find<CurveReadings>("readings");
    QCOMPARE(readings->index(5, 0).data(CurveReadings::ColorRole).value<QColor>(),
             QColor("#8E24AA"));

    QVERIFY(m_user->click("leftHead"));
    QTRY_VERIFY(m_user->isShown("chooseListed"));
    QVERIFY(m_user->click("chooseListed"));
    QTRY_COMPARE(left().size(), 50);
    QCOMPARE(said(), QString("Left axis: 50 curves. No more at once: 11 were left out."));

    auto *latest = note->findChild<QQuickItem *>("latest");
    QTRY_VERIFY(!m_user->isShown("chooseListed"));
    QVERIFY(m_user->settled());
    QVERIFY(m_user->click(latest, latest->boundingRect().center()));
    QTRY_COMPARE(left().size(), 5);
    QTRY_VERIFY(!m_user->isShown("leftNote"));
}

/** On a low screen, what is said of many curves is short, and the way out is there. */
void tst_Choosing::leavesRoomWithManyCurves()
{
    m_log.reset(new TemporaryLog(wideLog(12)));
    m_user.reset(new ViewerUser(*m_log, QSize(800, 480)));
    QVERIFY(m_user->isReady());
    for (int i = 1; i <= 6; ++i) {
        m_user->source()->updateVariableSelection(1, i, true);
        m_user->source()->updateVariableSelection(2, i + 5, true);
    }
    QTRY_VERIFY(m_user->isShown("leftNote") && m_user->isShown("rightNote"));
    QVERIFY(m_user->settled());
    QTRY_VERIFY(m_user->item("variables")->height() >= 2.5 * 44);
    auto *latest = m_user->item("rightNote")->findChild<QQuickItem *>("latest");
    QCOMPARE(latest->property("text").toString(), QString("Right: latest 5"));
    QVERIFY(latest->height() >= 44);
    m_user->drag(m_user->pointOf(latest, latest->boundingRect().center()));
    QTRY_VERIFY(!m_user->isShown("rightNote"));
    QVERIFY(m_user->isShown("leftNote"));
}

void tst_Choosing::fitsItsWindow_data()
{
    QTest::addColumn<QSize>("size");

    QTest::newRow("smallest") << QSize(640, 400);
    QTest::newRow("instrument") << QSize(800, 480);
    QTest::newRow("desk") << QSize(1280, 800);
}

void tst_Choosing::fitsItsWindow()
{
    QFETCH(QSize, size);
    m_user->window()->resize(size);
    QTRY_COMPARE(m_user->window()->size(), size);
    QVERIFY(m_user->settled());
    for (const char *name :
         {"xHead", "leftHead", "rightHead", "variableSearch", "chosenOnly", "variableRow0"})
        QTRY_VERIFY2(m_user->isForFingers(name), name);
    for (const char *name : {"onX", "onLeft", "onRight"}) {
        const QQuickItem *tick = part(0, name);
        QVERIFY2(qMin(tick->width(), tick->height()) >= 44, name);
    }
}

/** Many variables cost no more than those that are seen. */
void tst_Choosing::makesRowsAsTheyAreSeen()
{
    m_log.reset(new TemporaryLog(wideLog(2001)));
    m_user.reset(new ViewerUser(*m_log));
    QVERIFY(m_user->isReady());
    QVERIFY(m_user->settled());
    auto *list = m_user->item("variables");
    QCOMPARE(list->property("count").toInt(), 2001);
    QVERIFY(row(0));
    QVERIFY(!row(1000));
    auto *content = list->property("contentItem").value<QQuickItem *>();
    QVERIFY(content->childItems().size() < 100);
}

QTEST_MAIN(tst_Choosing)
#include "tst_Choosing.moc"

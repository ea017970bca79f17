#include "viewer/TouchFlick.h"

#include "ViewerUser.h"
#include "filters/LogDataFilterBuilderItem.h"
#include "lists/LogDataSetFilterListItem.h"
#include "table/LogTableView.h"
#include "table/LogTableViewItem.h"

#include <QApplication>
#include <QComboBox>
#include <QGraphicsProxyWidget>
#include <QListView>
#include <QScrollBar>

namespace
{

enum View { PlotView, TableView, FilterView };

/** More columns and rows than a window shows. */
QByteArray wideLog(int rows = 500)
{
    const int columns = 40;
    QByteArray lines[3];
    QByteArray row;
    for (int i = 0; i < columns; ++i) {
        lines[0] += i ? "\tG" : "G";
        lines[1] += (i ? "\tV" : "V") + QByteArray::number(i);
        lines[2] += i ? "\tu" : "";
        row += (i ? "\t" : "") + QByteArray::number(i) + ".5";
    }
    return "[Header]\nCreated\t2020-01-01\n[Data]\n" + lines[0] + "\n" + lines[1] + "\n" + lines[2]
        + "\n" + (row + "\n").repeated(rows);
}

} // namespace

/** Lists and tables under a finger, in the viewer's window. */
class tst_TouchFlick : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void tableFollowsTheFinger();
    void tableFollowsSideways();
    void dragTicksNothing();
    void tapTicksAfterADrag();
    void tremblingFingerTaps();
    void quickTapsAllCount();
    void runsOnAfterAFlick();
    void stopsUnderAFinger();
    void staysWhereAFingerRests();
    void staysWithinItsEnds();
    void mouseDoesNotDrag();
    void listOfCriteria();
    void choiceOfAVariable();
    void activatesOnce();

private:
    void showTable();
    LogTableView *table() const { return m_user->find<LogTableViewItem>("table")->tableView(); }
    QPoint middle(const QQuickItem *item) const
    {
        return m_user->pointOf(item, item->boundingRect().center());
    }
    QPoint pointOfBox(int row) const;
    void flick();
    int down(const QAbstractItemView *view) const { return view->verticalScrollBar()->value(); }
    int excluded() const { return m_user->source()->tableModel()->excludeRows().count(1); }

    QScopedPointer<TemporaryLog> m_log;
    QScopedPointer<ViewerUser> m_user;
};

void tst_TouchFlick::initTestCase()
{
    QApplication::setStyle("fusion");
}

void tst_TouchFlick::init()
{
    m_log.reset(new TemporaryLog(wideLog()));
    m_user.reset(new ViewerUser(*m_log));
    QVERIFY(m_user->isReady());
}

void tst_TouchFlick::cleanup()
{
    m_user.reset();
    m_log.reset();
}

void tst_TouchFlick::showTable()
{
    QVERIFY(m_user->clickTab("viewTabs", TableView));
}

QPoint tst_TouchFlick::pointOfBox(int row) const
{
    const QModelIndex index = table()->model()->index(row, 0);
    return m_user->pointOf(m_user->item("table"), m_user->cell(table(), index));
}

/** By 150 pixels, as quickly as can be: on a busy machine, many steps make a slow finger. */
void tst_TouchFlick::flick()
{
    m_user->drag(middle(m_user->item("table")), QPoint(0, -150), 1);
}

void tst_TouchFlick::tableFollowsTheFinger()
{
    showTable();
    const QPoint from = middle(m_user->item("table"));
    m_user->putFinger(from);
    m_user->moveFinger(from - QPoint(0, 30));
    QTRY_COMPARE(down(table()), 30);
    m_user->moveFinger(from - QPoint(0, 130));
    QTRY_COMPARE(down(table()), 130);
    m_user->moveFinger(from - QPoint(0, 90));
    QTRY_COMPARE(down(table()), 90);
    m_user->liftFinger(from - QPoint(0, 90));
}

void tst_TouchFlick::tableFollowsSideways()
{
    showTable();
    const QPoint from = middle(m_user->item("table"));
    m_user->putFinger(from);
    m_user->moveFinger(from - QPoint(120, 0));
    QTRY_COMPARE(table()->horizontalScrollBar()->value(), 120);
    QCOMPARE(down(table()), 0);
    m_user->liftFinger(from - QPoint(120, 0));
}

void tst_TouchFlick::dragTicksNothing()
{
    showTable();
    const QPoint from = pointOfBox(3);
    m_user->drag(from, QPoint(0, -88));
    QVERIFY(m_user->settled());
    QVERIFY(down(table()) >= 88);
    QCOMPARE(excluded(), 0);
}

void tst_TouchFlick::tapTicksAfterADrag()
{
    showTable();
    const QPoint from = pointOfBox(3);
    m_user->putFinger(from);
    m_user->moveFinger(from - QPoint(0, 88));
    QTest::qWait(120); // a finger that rests does not flick
    m_user->liftFinger(from - QPoint(0, 88));
    QTRY_COMPARE(down(table()), 88);
    QVERIFY(m_user->settled());
    m_user->drag(pointOfBox(5));
    QTRY_VERIFY(m_user->source()->tableModel()->rowExcluded(5));
    QCOMPARE(excluded(), 1);
}

void tst_TouchFlick::tremblingFingerTaps()
{
    showTable();
    m_user->drag(pointOfBox(2), QPoint(2, -3), 3);
    QTRY_VERIFY(m_user->source()->tableModel()->rowExcluded(2));
    QCOMPARE(down(table()), 0);
}

void tst_TouchFlick::quickTapsAllCount()
{
    showTable();
    for (int tap = 1; tap <= 4; ++tap) {
        m_user->drag(pointOfBox(2));
        QTRY_COMPARE(excluded(), tap % 2);
    }
    m_user->drag(pointOfBox(0));
    m_user->drag(pointOfBox(1));
    QTRY_COMPARE(excluded(), 2);
}

void tst_TouchFlick::runsOnAfterAFlick()
{
    showTable();
    flick();
    QTRY_VERIFY(down(table()) > 160);
    int last = -1;
    QTRY_VERIFY(last == down(table()) || (last = down(table()), QTest::qWait(100), false));
}

/** And that touch ticks nothing. */
void tst_TouchFlick::stopsUnderAFinger()
{
    showTable();
    flick();
    QTRY_VERIFY(down(table()) > 160);
    const QPoint at = pointOfBox(table()->rowAt(60));
    m_user->putFinger(at);
    const int stopped = down(table());
    QTest::qWait(100);
    QCOMPARE(down(table()), stopped);
    m_user->liftFinger(at);
    QVERIFY(m_user->settled());
    QCOMPARE(down(table()), stopped);
    QCOMPARE(excluded(), 0);
    m_user->drag(at);
    QTRY_COMPARE(excluded(), 1);
}

void tst_TouchFlick::staysWhereAFingerRests()
{
    showTable();
    const QPoint from = middle(m_user->item("table"));
    m_user->putFinger(from);
    m_user->moveFinger(from - QPoint(0, 100));
    QTest::qWait(120);
    m_user->liftFinger(from - QPoint(0, 100));
    QTest::qWait(100);
    QTRY_COMPARE(down(table()), 100);
}

void tst_TouchFlick::staysWithinItsEnds()
{
    showTable();
    const QPoint from = middle(m_user->item("table"));
    m_user->drag(from, QPoint(0, 150));
    QVERIFY(m_user->settled());
    QCOMPARE(down(table()), 0);
    QScrollBar *bar = table()->verticalScrollBar();
    bar->setValue(bar->maximum());
    m_user->drag(from, QPoint(0, -150));
    QVERIFY(m_user->settled());
    QCOMPARE(down(table()), bar->maximum());
}

void tst_TouchFlick::mouseDoesNotDrag()
{
    showTable();
    const QPoint from = pointOfBox(3);
    QTest::mousePress(m_user->window(), Qt::LeftButton, Qt::NoModifier, from);
    QTest::mouseMove(m_user->window(), from - QPoint(0, 60));
    QTest::mouseRelease(m_user->window(), Qt::LeftButton, Qt::NoModifier, from - QPoint(0, 88));
    QVERIFY(m_user->settled());
    QCOMPARE(down(table()), 0);
    QCOMPARE(excluded(), 0);
    QTest::mouseClick(m_user->window(), Qt::LeftButton, Qt::NoModifier, from);
    QTRY_COMPARE(excluded(), 1);
}

void tst_TouchFlick::listOfCriteria()
{
    for (int i = 0; i < 12; ++i)
        m_user->source()->buildFilter(i, 0, "1");
    QVERIFY(m_user->clickTab("viewTabs", FilterView));
    auto *list = m_user->find<LogDataSetFilterListItem>("criteriaList");
    const QPoint from = middle(list);
    m_user->putFinger(from);
    m_user->moveFinger(from - QPoint(0, 50));
    QTRY_COMPARE(down(list->listView()), 50);
    m_user->liftFinger(from - QPoint(0, 50));
    QCOMPARE(m_user->source()->checkedItemList(4).size(), 12);
}

void tst_TouchFlick::choiceOfAVariable()
{
    QVERIFY(m_user->clickTab("viewTabs", FilterView));
    auto *builder = m_user->find<LogDataFilterBuilderItem>("builder");
    auto *box = builder->container()->findChild<QComboBox *>();
    box->setCurrentIndex(0);
    m_user->drag(m_user->pointOf(builder, QPointF(60, 22)));
    QTRY_VERIFY(box->view()->isVisible());
    QVERIFY(m_user->settled());
    const auto point = [&](int row) {
        QWidget *popup = box->view()->window();
        const QPoint inside = box->view()->visualRect(box->model()->index(row, 0)).center();
        return m_user->pointOf(builder,
                               popup->graphicsProxyWidget()->mapToScene(
                                   box->view()->viewport()->mapTo(popup, inside)));
    };
    const QPoint from = point(5);
    m_user->putFinger(from);
    m_user->moveFinger(from - QPoint(0, 90));
    QTRY_COMPARE(down(box->view()), 90);
    QTest::qWait(120);
    m_user->liftFinger(from - QPoint(0, 90));
    QVERIFY(m_user->settled());
    QVERIFY(box->view()->isVisible());
    QCOMPARE(box->currentIndex(), 0);
    // Shortly after it opens, a list takes no choice yet.
    QTRY_VERIFY(!box->view()->isVisible() || (m_user->drag(point(6)), m_user->settled(), false));
    QCOMPARE(box->currentIndex(), 6);
}

void tst_TouchFlick::activatesOnce()
{
    QListView view;
    TouchFlick::activate(&view);
    TouchFlick::activate(&view);
    QCOMPARE(view.findChildren<TouchFlick *>().size(), 1);
    QCOMPARE(view.verticalScrollMode(), QAbstractItemView::ScrollPerPixel);
}

QTEST_MAIN(tst_TouchFlick)
#include "tst_TouchFlick.moc"

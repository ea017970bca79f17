#ifndef DATALOG_TESTS_VIEWER_TABLETEST_H
#define DATALOG_TESTS_VIEWER_TABLETEST_H

#include "Complaints.h"
#include "ViewerUser.h"
#include "table/LogTableView.h"
#include "table/LogTableViewItem.h"
#include "viewer/CellSelection.h"
#include "viewer/CurveReadings.h"

#include <QApplication>
#include <QClipboard>

/** A test with a window that shows a log of many rows, and the hands of a user on its table. */
class TableTest : public QObject
{
    Q_OBJECT

protected:
    enum View { PlotView, TableView };
    enum Option { Constants, Observations, Plotted };

    /** T counts from 21.5, CO2 repeats the row's number, and RH is "Wet" each hundredth time. */
    static QByteArray longLog(int rows = 300)
    {
        QByteArray text = "[Header]\nCreated\t2020-01-01\nSys:Serial\tA-7\nCal:Gas\t1.5\n[Data]\n"
                          "Sys\tSys\tAir\tAir\tGas\nObs\tTime\tT\tRH\tCO2\n\ths\tC\t%\tppm\n";
        for (int i = 1; i <= rows; ++i) {
            const QByteArray n = QByteArray::number(i);
            text += n + "\t10:00:00\t" + QByteArray::number(20 + i) + ".5\t"
                + QByteArray(i % 100 ? "dry" : "Wet") + "\t40" + n + "\n";
        }
        return text;
    }
    void showTable(Option option = Observations)
    {
        QVERIFY(m_user->clickTab("viewTabs", TableView));
        if (m_user->item("tableTabs")->property("currentIndex").toInt() != option)
            QVERIFY(m_user->clickTab("tableTabs", option));
    }
    LogTableView *view() const { return m_user->find<LogTableViewItem>("table")->tableView(); }
    CellRange range() const { return CellSelection::of(view())->range(); }
    QPoint at(int row, int column) const
    {
        return m_user->pointOf(m_user->item("table"),
                               m_user->cell(view(), view()->model()->index(row, column)));
    }
    void drag(const QPoint &from, const QPoint &to)
    {
        QVERIFY(!from.isNull() && !to.isNull());
        QTest::mousePress(m_user->window(), Qt::LeftButton, Qt::NoModifier, from);
        QTest::mouseMove(m_user->window(), (from + to) / 2);
        QTest::mouseMove(m_user->window(), to);
        QTest::mouseRelease(m_user->window(), Qt::LeftButton, Qt::NoModifier, to);
    }
    void clickAt(int row, int column)
    {
        QVERIFY(m_user->settled());
        const QPoint point = at(row, column);
        QVERIFY(!point.isNull());
        QTest::mouseClick(m_user->window(), Qt::LeftButton, Qt::NoModifier, point);
        QCOMPARE(range().row, row);
        QCOMPARE(range().column, column);
    }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(m_user->window(), key, modifiers);
    }
    QString clipboard() const { return QGuiApplication::clipboard()->text(); }
    CurveReadings *readings() const { return m_user->find<CurveReadings>("readings"); }
    /** A place on the plot by values of the X and the left axis. */
    QPoint onPlot(double x) const
    {
        const PlotNavigator *navigator = m_user->find<PlotNavigator>("navigator");
        const QPointF point(navigator->toPixelX(x), navigator->canvas().center().y());
        return m_user->plot()->mapToScene(point).toPoint();
    }
    void tap(const char *name)
    {
        QVERIFY(m_user->settled());
        QVERIFY2(m_user->isForFingers(name), name);
        const QQuickItem *item = m_user->item(name);
        m_user->drag(m_user->pointOf(item, QPointF(item->width() / 2, item->height() / 2)));
    }
    bool isInMiddle(int row) const
    {
        const QRect cell = view()->visualRect(view()->model()->index(row, 1));
        return qAbs(cell.center().y() - view()->viewport()->height() / 2) <= cell.height();
    }

    QScopedPointer<Complaints> m_complaints;
    QScopedPointer<TemporaryLog> m_log;
    QScopedPointer<ViewerUser> m_user;

private slots:
    void initTestCase() { QApplication::setStyle("fusion"); }
    void init()
    {
        m_complaints.reset(new Complaints);
        m_log.reset(new TemporaryLog(longLog()));
        m_user.reset(new ViewerUser(*m_log));
        QVERIFY(m_user->isReady());
        QGuiApplication::clipboard()->setText("untouched");
    }
    /** Nothing that is done here may make the engine complain. */
    void cleanup()
    {
        m_user.reset();
        m_log.reset();
        const QString text = m_complaints->text();
        m_complaints.reset();
        QCOMPARE(text, QString());
    }
};

#endif

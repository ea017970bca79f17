#include "viewer/ZoomHistory.h"

#include <QtTest>

class tst_ZoomHistory : public QObject
{
    Q_OBJECT

private slots:
    void startsEmpty();
    void goesBackAndForward();
    void forgetsTheWayForward();
    void keepsSoManySteps();
    void clears();
};

namespace
{

/** Scales that are told apart by a number. */
PlotScales scales(int number)
{
    PlotScales scales;
    scales[0].isAuto = false;
    scales[0].max = number;
    return scales;
}

} // namespace

void tst_ZoomHistory::startsEmpty()
{
    ZoomHistory history;
    QVERIFY(!history.canGoBack());
    QVERIFY(!history.canGoForward());
    QVERIFY(history.back(scales(1)) == scales(1));
    QVERIFY(history.forward(scales(1)) == scales(1));
    QVERIFY(!history.canGoForward());
}

void tst_ZoomHistory::goesBackAndForward()
{
    ZoomHistory history;
    history.record(scales(1));
    history.record(scales(2));
    QVERIFY(history.back(scales(3)) == scales(2));
    QVERIFY(history.back(scales(2)) == scales(1));
    QVERIFY(!history.canGoBack());
    QVERIFY(history.forward(scales(1)) == scales(2));
    QVERIFY(history.forward(scales(2)) == scales(3));
    QVERIFY(!history.canGoForward());
    QVERIFY(history.canGoBack());
}

void tst_ZoomHistory::forgetsTheWayForward()
{
    ZoomHistory history;
    history.record(scales(1));
    history.back(scales(2));
    history.record(scales(1));
    QVERIFY(!history.canGoForward());
    QVERIFY(history.back(scales(3)) == scales(1));
}

void tst_ZoomHistory::keepsSoManySteps()
{
    ZoomHistory history;
    for (int i = 0; i <= ZoomHistory::kMostSteps; ++i)
        history.record(scales(i));
    for (int i = ZoomHistory::kMostSteps; i > 0; --i)
        QVERIFY(history.back(scales(0)) == scales(i));
    QVERIFY(!history.canGoBack());
}

void tst_ZoomHistory::clears()
{
    ZoomHistory history;
    history.record(scales(1));
    history.record(scales(2));
    history.back(scales(3));
    history.clear();
    QVERIFY(!history.canGoBack());
    QVERIFY(!history.canGoForward());
}

QTEST_APPLESS_MAIN(tst_ZoomHistory)
#include "tst_ZoomHistory.moc"

#include "viewer/ScaleMath.h"

#include <QtTest>

#include <limits>

class tst_ScaleMath : public QObject
{
    Q_OBJECT

private slots:
    void knowsUsableScales_data();
    void knowsUsableScales();
    void zoomsAboutAPlace_data();
    void zoomsAboutAPlace();
    void pans();
    void crops();
    void pinches_data();
    void pinches();
};

namespace
{

AxisRange range(double min, double max)
{
    AxisRange range;
    range.min = min;
    range.max = max;
    return range;
}

} // namespace

void tst_ScaleMath::knowsUsableScales_data()
{
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");
    QTest::addColumn<bool>("isUsable");

    const double infinity = std::numeric_limits<double>::infinity();
    QTest::newRow("ordinary") << -1.0 << 2.0 << true;
    QTest::newRow("tiny") << 0.0 << 1e-20 << true;
    QTest::newRow("large") << -1e149 << 1e149 << true;
    QTest::newRow("empty") << 1.0 << 1.0 << false;
    QTest::newRow("upside down") << 2.0 << 1.0 << false;
    QTest::newRow("too narrow for its place") << 1e6 << 1e6 + 1e-6 << false;
    QTest::newRow("too large") << 0.0 << 1e160 << false;
    QTest::newRow("infinite") << 0.0 << infinity << false;
    QTest::newRow("no number") << std::numeric_limits<double>::quiet_NaN() << 1.0 << false;
}

void tst_ScaleMath::knowsUsableScales()
{
    QFETCH(double, min);
    QFETCH(double, max);
    QTEST(ScaleMath::isUsable(min, max), "isUsable");
}

void tst_ScaleMath::zoomsAboutAPlace_data()
{
    QTest::addColumn<double>("factor");
    QTest::addColumn<double>("part");
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");

    QTest::newRow("in, in the middle") << 0.5 << 0.5 << 12.5 << 17.5;
    QTest::newRow("in, at the lower end") << 0.5 << 0.0 << 10.0 << 15.0;
    QTest::newRow("in, at the upper end") << 0.5 << 1.0 << 15.0 << 20.0;
    QTest::newRow("out") << 2.0 << 0.25 << 7.5 << 27.5;
}

void tst_ScaleMath::zoomsAboutAPlace()
{
    QFETCH(double, factor);
    QFETCH(double, part);
    const AxisRange zoomed = ScaleMath::zoomed(range(10, 20), factor, part);
    QTEST(zoomed.min, "min");
    QTEST(zoomed.max, "max");
    QVERIFY(!zoomed.isAuto);
}

void tst_ScaleMath::pans()
{
    const AxisRange panned = ScaleMath::panned(range(10, 20), 0.25);
    QCOMPARE(panned.min, 7.5);
    QCOMPARE(panned.max, 17.5);
}

void tst_ScaleMath::crops()
{
    const AxisRange cropped = ScaleMath::cropped(range(10, 20), 0.75, 0.25);
    QCOMPARE(cropped.min, 12.5);
    QCOMPARE(cropped.max, 17.5);
}

void tst_ScaleMath::pinches_data()
{
    QTest::addColumn<double>("first");
    QTest::addColumn<double>("second");
    QTest::addColumn<bool>("isSpread");
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");

    // From fingers on 12.5 and 17.5.
    QTest::newRow("apart") << 0.0 << 1.0 << true << 12.5 << 17.5;
    QTest::newRow("together") << 0.375 << 0.625 << true << 5.0 << 25.0;
    QTest::newRow("one stays") << 0.25 << 0.5 << true << 7.5 << 27.5;
    QTest::newRow("both move") << 0.5 << 1.0 << true << 7.5 << 17.5;
    QTest::newRow("not spread") << 0.0 << 0.5 << false << 12.5 << 22.5;
}

void tst_ScaleMath::pinches()
{
    QFETCH(double, first);
    QFETCH(double, second);
    QFETCH(bool, isSpread);
    const AxisRange pinched
        = ScaleMath::pinched(range(10, 20), {0.25, 0.75}, {first, second}, isSpread);
    QTEST(pinched.min, "min");
    QTEST(pinched.max, "max");
}

QTEST_APPLESS_MAIN(tst_ScaleMath)
#include "tst_ScaleMath.moc"

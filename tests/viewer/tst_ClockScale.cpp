#include "viewer/ClockScaleDraw.h"
#include "viewer/ClockScaleEngine.h"

#include <QtTest>

/** Ticks and labels of clock times. */
class tst_ClockScale : public QObject
{
    Q_OBJECT

private slots:
    void putsTicksWhereClocksHaveThem_data();
    void putsTicksWhereClocksHaveThem();
    void widensToMinorTicks();
    void countsBelowASecond();
    void countsBeyondDays();
};

namespace
{

QString labels(int base, double from, double to)
{
    const QwtScaleDiv scale = ClockScaleEngine(base).divideScale(from, to, 8, 5, 0);
    const ClockScaleDraw draw(base);
    QStringList texts;
    const QList<double> ticks = scale.ticks(QwtScaleDiv::MajorTick);
    for (double tick : ticks)
        texts.append(draw.label(tick).text());
    return texts.join(' ');
}

} // namespace

void tst_ClockScale::putsTicksWhereClocksHaveThem_data()
{
    QTest::addColumn<int>("base");
    QTest::addColumn<double>("from");
    QTest::addColumn<double>("to");
    QTest::addColumn<QString>("expected");

    const int ten = 10 * 3600;
    QTest::newRow("seconds") << ten + 1 << 0.0 << 9.0
                             << "10:00:02 10:00:04 10:00:06 10:00:08 10:00:10";
    QTest::newRow("minutes") << ten + 50 << 0.0 << 600.0
                             << "10:02:00 10:04:00 10:06:00 10:08:00 10:10:00";
    QTest::newRow("hours") << ten + 50 << 0.0 << 4 * 3600.0
                           << "11:00:00 12:00:00 13:00:00 14:00:00";
    QTest::newRow("over midnight")
        << 23 * 3600 << 0.0 << 7200.0 << "23:00:00 23:30:00 24:00:00 24:30:00 25:00:00";
    QTest::newRow("before the first")
        << ten << -20.0 << 0.0 << "09:59:40 09:59:45 09:59:50 09:59:55 10:00:00";
}

void tst_ClockScale::putsTicksWhereClocksHaveThem()
{
    QFETCH(int, base);
    QFETCH(double, from);
    QFETCH(double, to);
    QTEST(labels(base, from, to), "expected");
}

void tst_ClockScale::widensToMinorTicks()
{
    double from = 3;
    double to = 601;
    double step = 0;
    ClockScaleEngine(10).autoScale(8, from, to, step);
    QCOMPARE(from, -10.0);
    QCOMPARE(to, 620.0);
    QCOMPARE(step, 120.0);
}

void tst_ClockScale::countsBelowASecond()
{
    QCOMPARE(labels(0, 0, 1),
             QString("00:00:00 00:00:00.2 00:00:00.4 00:00:00.6 00:00:00.8 00:00:01"));
}

void tst_ClockScale::countsBeyondDays()
{
    const QwtScaleDiv scale = ClockScaleEngine(0).divideScale(0, 1e9, 8, 5, 0);
    QVERIFY(scale.ticks(QwtScaleDiv::MajorTick).size() >= 4);
    QVERIFY(scale.ticks(QwtScaleDiv::MajorTick).size() <= 11);
}

QTEST_MAIN(tst_ClockScale)
#include "tst_ClockScale.moc"

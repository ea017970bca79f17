#include "viewer/CurveSamples.h"

#include "plot/CurveSeries.h"

#include <QtTest>

#include <limits>

typedef QVector<double> Values;

class tst_CurveSamples : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_series.clear(); }
    void cleanup() { qDeleteAll(m_series); }
    void findsTheNearestInX_data();
    void findsTheNearestInX();
    void findsTheNearestOfSeveralPieces();
    void leavesOutWhatIsNoNumber();
    void findsNothing();
    void findsTheNearestOnALoop_data();
    void findsTheNearestOnALoop();
    void stepsThroughAllPieces();
    void computesStatistics();
    void computesStatisticsEitherWay();
    void computesStatisticsOverPieces();
    void computesNothing();

private:
    CurveSamples add(const Values &x, const Values &y)
    {
        m_series.append(new CurveSeries(x, y));
        return CurveSamples(m_series);
    }
    static Sample at(const CurveSamples &samples, double x, double y = 0)
    {
        return samples.nearest(QPointF(x, y), QSizeF(10, 10));
    }

    QList<const CurveSeries *> m_series;
};

void tst_CurveSamples::findsTheNearestInX_data()
{
    QTest::addColumn<double>("x");
    QTest::addColumn<int>("index");

    QTest::newRow("before all") << -100.0 << 0;
    QTest::newRow("first") << 0.0 << 0;
    QTest::newRow("nearer to the left") << 1.4 << 1;
    QTest::newRow("nearer to the right") << 1.6 << 2;
    QTest::newRow("between equals") << 1.5 << 1;
    QTest::newRow("first of equals, from the left") << 2.9 << 3;
    QTest::newRow("first of equals, from the right") << 3.2 << 3;
    QTest::newRow("last") << 9.0 << 5;
}

void tst_CurveSamples::findsTheNearestInX()
{
    const CurveSamples samples = add({0, 1, 2, 3, 3, 5}, {10, 11, 12, 13, 14, 15});
    QVERIFY(samples.isAscending());
    QFETCH(double, x);
    const Sample sample = at(samples, x, 1000);
    QTEST(sample.index, "index");
    QCOMPARE(sample.y, 10.0 + sample.index);
}

void tst_CurveSamples::findsTheNearestOfSeveralPieces()
{
    add({0, 1}, {10, 11});
    const CurveSamples samples = add({5, 6}, {15, 16});
    QCOMPARE(at(samples, 2.9).piece, 0);
    QCOMPARE(at(samples, 3.1).piece, 1);
    QCOMPARE(at(samples, 3.1).y, 15.0);
}

void tst_CurveSamples::leavesOutWhatIsNoNumber()
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const CurveSamples samples = add({0, 1, 2, 3}, {10, nan, nan, 13});
    QCOMPARE(at(samples, 1.2).index, 0);
    QCOMPARE(at(samples, 1.8).index, 3);
}

void tst_CurveSamples::findsNothing()
{
    QVERIFY(!at(CurveSamples(m_series), 1).isValid());
    const double nan = std::numeric_limits<double>::quiet_NaN();
    QVERIFY(!at(add({1}, {nan}), 1).isValid());
}

void tst_CurveSamples::findsTheNearestOnALoop_data()
{
    QTest::addColumn<QPointF>("point");
    QTest::addColumn<int>("index");

    QTest::newRow("lower branch") << QPointF(1, 10) << 1;
    QTest::newRow("upper branch") << QPointF(1, 20) << 4;
    QTest::newRow("same column") << QPointF(2.1, 24) << 3;
    QTest::newRow("no sample in the column") << QPointF(0.6, 20) << 4;
}

void tst_CurveSamples::findsTheNearestOnALoop()
{
    const CurveSamples samples = add({0, 1, 2, 2, 1, 0}, {10, 11, 12, 22, 21, 20});
    QVERIFY(!samples.isAscending());
    QFETCH(QPointF, point);
    QTEST(samples.nearest(point, QSizeF(10, -10)).index, "index");
}

void tst_CurveSamples::stepsThroughAllPieces()
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    add({0, 1, 2}, {10, nan, 12});
    add({}, {});
    const CurveSamples samples = add({5, 6}, {15, 16});
    const Sample first = at(samples, 0);
    QCOMPARE(samples.stepped(first, 1).y, 12.0);
    QCOMPARE(samples.stepped(first, 2).y, 15.0);
    QCOMPARE(samples.stepped(first, 3).y, 16.0);
    QCOMPARE(samples.stepped(first, 9).y, 16.0);
    QCOMPARE(samples.stepped(at(samples, 6), -2).y, 12.0);
    QCOMPARE(samples.stepped(at(samples, 6), -9).y, 10.0);
    QVERIFY(!samples.stepped(Sample(), 1).isValid());
}

void tst_CurveSamples::computesStatistics()
{
    const CurveSamples samples = add({0, 1, 2, 3, 4}, {100, 3, -1, 4, 100});
    const SampleStatistics statistics = samples.between(at(samples, 1), at(samples, 3));
    QCOMPARE(statistics.count, 3);
    QCOMPARE(statistics.min, -1.0);
    QCOMPARE(statistics.max, 4.0);
    QCOMPARE(statistics.mean, 2.0);
}

void tst_CurveSamples::computesStatisticsEitherWay()
{
    const CurveSamples samples = add({0, 1, 2}, {1, 2, 6});
    QCOMPARE(samples.between(at(samples, 2), at(samples, 0)).mean, 3.0);
    const SampleStatistics one = samples.between(at(samples, 2), at(samples, 2));
    QCOMPARE(one.count, 1);
    QCOMPARE(one.min, 6.0);
    QCOMPARE(one.mean, 6.0);
}

void tst_CurveSamples::computesStatisticsOverPieces()
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    add({0, 1, 2}, {100, 1, nan});
    add({3}, {-5});
    const CurveSamples samples = add({4, 5}, {10, 100});
    const SampleStatistics statistics = samples.between(at(samples, 1), at(samples, 4));
    QCOMPARE(statistics.count, 3);
    QCOMPARE(statistics.min, -5.0);
    QCOMPARE(statistics.max, 10.0);
    QCOMPARE(statistics.mean, 2.0);
}

void tst_CurveSamples::computesNothing()
{
    const CurveSamples samples = add({0, 1}, {1, 2});
    QCOMPARE(samples.between(Sample(), at(samples, 1)).count, 0);
}

QTEST_APPLESS_MAIN(tst_CurveSamples)
#include "tst_CurveSamples.moc"

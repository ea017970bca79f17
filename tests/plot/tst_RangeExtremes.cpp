#include "plot/RangeExtremes.h"

#include "support/TestCompat.h"

#include <limits>

namespace
{

/** Numbers that look random and are the same on every machine. */
QVector<double> noise(int count)
{
    QVector<double> values(count);
    quint32 state = 1;
    for (int i = 0; i < count; ++i) {
        state = state * 1664525u + 1013904223u;
        values[i] = state >> 24; // few enough for equal ones
    }
    return values;
}

RangeExtremes::Extremes oneByOne(const QVector<double> &values, int first, int last)
{
    RangeExtremes::Extremes extremes = {first, first};
    for (int i = first; i <= last; ++i) {
        if (values.at(i) < values.at(extremes.least))
            extremes.least = i;
        if (values.at(i) > values.at(extremes.greatest))
            extremes.greatest = i;
    }
    return extremes;
}

} // namespace

class tst_RangeExtremes : public QObject
{
    Q_OBJECT

private slots:
    void within_data();
    void within();
    void everyStretch();
    void stretchBesideNumbersThatAreNone();
};

void tst_RangeExtremes::within_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("last");

    QTest::newRow("single") << 1 << 0 << 0;
    QTest::newRow("one of many") << 5000 << 1234 << 1234;
    QTest::newRow("less than a block") << 5000 << 33 << 50;
    QTest::newRow("a block") << 5000 << 32 << 63;
    QTest::newRow("across blocks") << 5000 << 31 << 64;
    QTest::newRow("a block of blocks") << 5000 << 1024 << 2047;
    QTest::newRow("almost a block of blocks") << 5000 << 1025 << 2047;
    QTest::newRow("all") << 5000 << 0 << 4999;
    QTest::newRow("all of a round number") << 32768 << 0 << 32767;
    QTest::newRow("many") << 200000 << 17 << 199990;
    QTest::newRow("end") << 200000 << 199990 << 199999;
}

void tst_RangeExtremes::within()
{
    QFETCH(int, count);
    QFETCH(int, first);
    QFETCH(int, last);
    const QVector<double> values = noise(count);
    const RangeExtremes::Extremes expected = oneByOne(values, first, last);
    const RangeExtremes::Extremes actual = RangeExtremes(values).within(first, last);
    QCOMPARE(actual.least, expected.least);
    QCOMPARE(actual.greatest, expected.greatest);
}

void tst_RangeExtremes::everyStretch()
{
    const QVector<double> values = noise(140);
    const RangeExtremes extremes(values);
    for (int first = 0; first < values.size(); ++first) {
        for (int last = first; last < values.size(); ++last) {
            QCOMPARE(extremes.within(first, last).least, oneByOne(values, first, last).least);
            QCOMPARE(extremes.within(first, last).greatest, oneByOne(values, first, last).greatest);
        }
    }
}

void tst_RangeExtremes::stretchBesideNumbersThatAreNone()
{
    QVector<double> values = noise(200);
    values[70] = std::numeric_limits<double>::quiet_NaN();
    values[140] = std::numeric_limits<double>::infinity();
    const RangeExtremes extremes(values);
    QCOMPARE(extremes.within(71, 139).least, oneByOne(values, 71, 139).least);
    QCOMPARE(extremes.within(71, 139).greatest, oneByOne(values, 71, 139).greatest);
    QCOMPARE(extremes.within(0, 69).greatest, oneByOne(values, 0, 69).greatest);
}

QTEST_MAIN(tst_RangeExtremes)
#include "tst_RangeExtremes.moc"

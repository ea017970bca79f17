#include "viewer/ClockTime.h"

#include <QtTest>

class tst_ClockTime : public QObject
{
    Q_OBJECT

private slots:
    void writes_data();
    void writes();
    void reads_data();
    void reads();
    void refuses_data();
    void refuses();
};

void tst_ClockTime::writes_data()
{
    QTest::addColumn<double>("seconds");
    QTest::addColumn<QString>("text");

    QTest::newRow("midnight") << 0.0 << "00:00:00";
    QTest::newRow("afternoon") << 13 * 3600 + 5 * 60 + 9.0 << "13:05:09";
    QTest::newRow("fraction") << 1.25 << "00:00:01.25";
    QTest::newRow("rounded to milliseconds") << 59.9999 << "00:01:00";
    QTest::newRow("day after") << 86410.0 << "24:00:10";
    QTest::newRow("day before") << -90.0 << "-00:01:30";
    QTest::newRow("next to nothing") << -0.0001 << "00:00:00";
    QTest::newRow("beyond clocks") << 1e12 << "1e+12";
}

void tst_ClockTime::writes()
{
    QFETCH(double, seconds);
    QTEST(ClockTime::text(seconds), "text");
}

void tst_ClockTime::reads_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("seconds");

    QTest::newRow("seconds") << "13:05:09" << 47109.0;
    QTest::newRow("no seconds") << "13:05" << 47100.0;
    QTest::newRow("one digit") << "1:5:9" << 3909.0;
    QTest::newRow("fraction") << "00:00:01.25" << 1.25;
    QTest::newRow("blanks") << " 00:01:00 " << 60.0;
    QTest::newRow("day after") << "24:00:10" << 86410.0;
    QTest::newRow("day before") << "-00:01:30" << -90.0;
}

void tst_ClockTime::reads()
{
    QFETCH(QString, text);
    bool ok = false;
    const double seconds = ClockTime::seconds(text, &ok);
    QVERIFY(ok);
    QTEST(seconds, "seconds");
}

void tst_ClockTime::refuses_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("nothing") << "";
    QTest::newRow("number") << "12";
    QTest::newRow("minutes") << "12:60:00";
    QTest::newRow("seconds") << "12:00:60";
    QTest::newRow("letters") << "12:00:0x";
    QTest::newRow("more") << "12:00:00:00";
}

void tst_ClockTime::refuses()
{
    QFETCH(QString, text);
    bool ok = true;
    ClockTime::seconds(text, &ok);
    QVERIFY(!ok);
}

QTEST_APPLESS_MAIN(tst_ClockTime)
#include "tst_ClockTime.moc"

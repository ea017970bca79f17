#include "filters/SteppedRows.h"
#include "support/TestCompat.h"

class tst_SteppedRows : public QObject
{
    Q_OBJECT

private slots:
    void rows_data();
    void rows();
    void onStepsOf();
};

static QString text(const SteppedRows &steppedRows)
{
    QStringList numbers;
    foreach (int row, steppedRows.toVector())
        numbers << QString::number(row);
    return numbers.join(QLatin1String(" "));
}

void tst_SteppedRows::rows_data()
{
    QTest::addColumn<int>("origin");
    QTest::addColumn<int>("begin");
    QTest::addColumn<int>("end");
    QTest::addColumn<int>("step");
    QTest::addColumn<QString>("rows");
    QTest::newRow("each") << 0 << 0 << 3 << 1 << QString::fromLatin1("0 1 2");
    QTest::newRow("end on a step") << 0 << 0 << 6 << 3 << QString::fromLatin1("0 3");
    QTest::newRow("end past a step") << 0 << 0 << 7 << 3 << QString::fromLatin1("0 3 6");
    QTest::newRow("origin before the rows") << -5 << 0 << 5 << 3 << QString::fromLatin1("1 4");
    QTest::newRow("origin whole steps before") << -6 << 0 << 5 << 3 << QString::fromLatin1("0 3");
    QTest::newRow("step past the end") << -1 << 0 << 5 << 100 << QString();
    QTest::newRow("none") << 4 << 4 << 4 << 1 << QString();
    QTest::newRow("end before begin") << 0 << 0 << -9 << 1 << QString();
}

void tst_SteppedRows::rows()
{
    QFETCH(int, origin);
    QFETCH(int, begin);
    QFETCH(int, end);
    QFETCH(int, step);
    QFETCH(QString, rows);
    const SteppedRows steppedRows(origin, begin, end, step);
    QCOMPARE(text(steppedRows), rows);
    QCOMPARE(steppedRows.count(), steppedRows.toVector().size());
}

void tst_SteppedRows::onStepsOf()
{
    QCOMPARE(SteppedRows().count(), 0);
    const SteppedRows every3rd(0, 0, 10, 3);
    QVERIFY(every3rd.onStepsOf(SteppedRows(0, 0, 100, 3)));
    QVERIFY(every3rd.onStepsOf(SteppedRows(6, 6, 100, 3)));
    QVERIFY(SteppedRows(6, 6, 100, 3).onStepsOf(every3rd));
    QVERIFY(!every3rd.onStepsOf(SteppedRows(7, 7, 100, 3)));
    QVERIFY(!every3rd.onStepsOf(SteppedRows(0, 0, 10, 6)));
}

QTEST_GUILESS_MAIN(tst_SteppedRows)
#include "tst_SteppedRows.moc"

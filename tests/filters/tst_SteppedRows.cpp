#include "filters/SteppedRows.h"
#include "support/TestCompat.h"

class tst_SteppedRows : public QObject
{
    Q_OBJECT

private slots:
    void rows_data();
    void rows();
    void onStepsOf();
    void positionOf_data();
    void positionOf();
    void mid();
    void equality();
    void sharedRun_data();
    void sharedRun();
};

Q_DECLARE_METATYPE(SteppedRows)

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
    QVERIFY(every3rd.onStepsOf(SteppedRows()));
    QVERIFY(SteppedRows(1, 1, 1, 2).onStepsOf(every3rd));
    // A single row, made with any step.
    QVERIFY(SteppedRows(6, 6, 7, 5).onStepsOf(every3rd));
    QVERIFY(every3rd.onStepsOf(SteppedRows(6, 6, 7, 5)));
    QVERIFY(!every3rd.onStepsOf(SteppedRows(7, 7, 8, 3)));
    QVERIFY(SteppedRows(6, 6, 7, 5).onStepsOf(SteppedRows(7, 7, 8, 3)));
}

void tst_SteppedRows::positionOf_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("position");
    // The rows are 4, 7 and 10.
    QTest::newRow("first") << 4 << 0;
    QTest::newRow("between") << 5 << -1;
    QTest::newRow("second") << 7 << 1;
    QTest::newRow("last") << 10 << 2;
    QTest::newRow("a step past the last") << 13 << -1;
    QTest::newRow("a step before the first") << 1 << -1;
    QTest::newRow("none") << -1 << -1;
    QTest::newRow("smallest") << INT_MIN << -1;
    QTest::newRow("largest") << INT_MAX << -1;
}

void tst_SteppedRows::positionOf()
{
    QFETCH(int, row);
    QFETCH(int, position);
    QCOMPARE(SteppedRows(4, 4, 11, 3).positionOf(row), position);
    QCOMPARE(SteppedRows().positionOf(row), -1);
}

void tst_SteppedRows::mid()
{
    const SteppedRows rows(4, 4, 14, 3);
    QCOMPARE(text(rows), QString::fromLatin1("4 7 10 13"));
    QCOMPARE(text(rows.mid(1, 2)), QString::fromLatin1("7 10"));
    QCOMPARE(text(rows.mid(0, 4)), text(rows));
    QCOMPARE(text(rows.mid(3, 1)), QString::fromLatin1("13"));
    QCOMPARE(rows.mid(4, 0).count(), 0);
}

void tst_SteppedRows::equality()
{
    QVERIFY(SteppedRows(0, 0, 10, 3) == SteppedRows(0, 0, 12, 3));
    QVERIFY(!(SteppedRows(0, 0, 10, 3) == SteppedRows(0, 0, 13, 3)));
    QVERIFY(!(SteppedRows(0, 0, 10, 3) == SteppedRows(1, 1, 11, 3)));
    QVERIFY(!(SteppedRows(0, 0, 5, 2) == SteppedRows(0, 0, 9, 4)));
    // A single row has no step, and no rows are no rows.
    QVERIFY(SteppedRows(0, 0, 1, 2) == SteppedRows(0, 0, 1, 9));
    QVERIFY(SteppedRows(5, 5, 5, 2) == SteppedRows());
}

void tst_SteppedRows::sharedRun_data()
{
    QTest::addColumn<SteppedRows>("other");
    QTest::addColumn<QString>("shared");
    // With the rows 2, 4, 6 and 8.
    QTest::newRow("the same") << SteppedRows(2, 2, 9, 2) << QString::fromLatin1("2 4 6 8");
    QTest::newRow("around it") << SteppedRows(0, 0, 99, 2) << QString::fromLatin1("2 4 6 8");
    QTest::newRow("within it") << SteppedRows(4, 4, 7, 2) << QString::fromLatin1("4 6");
    QTest::newRow("from before it") << SteppedRows(0, 0, 5, 2) << QString::fromLatin1("2 4");
    QTest::newRow("past it") << SteppedRows(8, 8, 99, 2) << QString::fromLatin1("8");
    QTest::newRow("beside it") << SteppedRows(10, 10, 99, 2) << QString();
    QTest::newRow("none") << SteppedRows() << QString();
    QTest::newRow("between its steps") << SteppedRows(1, 1, 10, 2) << QString();
    QTest::newRow("one of them") << SteppedRows(6, 6, 7, 50) << QString::fromLatin1("6");
    QTest::newRow("one between") << SteppedRows(5, 5, 6, 2) << QString();
    QTest::newRow("one past it") << SteppedRows(10, 10, 11, 3) << QString();
    QTest::newRow("one before it") << SteppedRows(0, 0, 1, 9) << QString();
    QTest::newRow("of other steps") << SteppedRows(2, 2, 10, 4) << QString();
}

void tst_SteppedRows::sharedRun()
{
    QFETCH(SteppedRows, other);
    QFETCH(QString, shared);
    const SteppedRows rows(2, 2, 9, 2);
    QCOMPARE(text(rows.sharedRun(other)), shared);
    QCOMPARE(text(other.sharedRun(rows)), shared);
}

QTEST_GUILESS_MAIN(tst_SteppedRows)
#include "tst_SteppedRows.moc"

#include "viewer/RowRuns.h"

#include <QtTest>

class tst_RowRuns : public QObject
{
    Q_OBJECT

private slots:
    void findsRuns_data();
    void findsRuns();
    void reads_data();
    void reads();
    void refuses_data();
    void refuses();
};

void tst_RowRuns::findsRuns_data()
{
    QTest::addColumn<QVector<int>>("flags");
    QTest::addColumn<QString>("text");

    QTest::newRow("no rows") << QVector<int>() << "";
    QTest::newRow("none") << QVector<int>{0, 0} << "";
    QTest::newRow("first") << QVector<int>{1, 0} << "1";
    QTest::newRow("last") << QVector<int>{0, 1} << "2";
    QTest::newRow("all") << QVector<int>{1, 1, 1} << "1-3";
    QTest::newRow("several") << QVector<int>{1, 0, 1, 1, 0, 0, 1} << "1, 3-4, 7";
}

void tst_RowRuns::findsRuns()
{
    QFETCH(QVector<int>, flags);
    QFETCH(QString, text);
    const RowRuns rows = RowRuns::ofFlags(flags);
    QCOMPARE(rows.text(), text);
    QCOMPARE(rows.isEmpty(), text.isEmpty());
    bool ok = false;
    QCOMPARE(RowRuns::read(text, &ok).runs(), rows.runs());
    QVERIFY(ok);
}

void tst_RowRuns::reads_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("result");

    QTest::newRow("blanks") << "  2 -4,  9 "
                            << "2-4, 9";
    QTest::newRow("only blanks") << "   "
                                 << "";
    QTest::newRow("neighbours") << "1,2"
                                << "1, 2";
    QTest::newRow("run of one") << "3-3"
                                << "3";
    QTest::newRow("largest") << "1-2147483647"
                             << "1-2147483647";
}

void tst_RowRuns::reads()
{
    QFETCH(QString, text);
    bool ok = false;
    QTEST(RowRuns::read(text, &ok).text(), "result");
    QVERIFY(ok);
}

void tst_RowRuns::refuses_data()
{
    QTest::addColumn<QString>("text");

    const char *const texts[]
        = {"0", "-1",  "5-",    "5-3", "3, 2", "3, 3",       "1-4, 4",        ",",   "1,", "1,,2",
           "x", "1.5", "1-2-3", "+1",  "1;2",  "2147483648", "1-99999999999", "0x1", "1e2"};
    for (const char *text : texts)
        QTest::newRow(text) << text;
}

void tst_RowRuns::refuses()
{
    QFETCH(QString, text);
    bool ok = true;
    QVERIFY(RowRuns::read(text, &ok).isEmpty());
    QVERIFY(!ok);
}

QTEST_GUILESS_MAIN(tst_RowRuns)
#include "tst_RowRuns.moc"

#include "viewer/DefaultVariables.h"

#include "TemporaryLog.h"
#include "parsing/LogParser.h"

#include <QtTest>

class tst_DefaultVariables : public QObject
{
    Q_OBJECT

private slots:
    void chooses_data();
    void chooses();
    void judgesSomeColumnsOnly();
    void choosesNothingWithoutLog();
};

void tst_DefaultVariables::chooses_data()
{
    QTest::addColumn<QByteArray>("table"); // three header rows, then rows
    QTest::addColumn<QString>("x");
    QTest::addColumn<QString>("left");
    QTest::addColumn<QString>("right");

    const auto row = [](const char *name, const char *table, const char *x, const char *left,
                        const char *right) {
        QTest::newRow(name) << QByteArray(table) << QString(x) << QString(left) << QString(right);
    };
    row("other groups than the counter's",
        "Sys\tSys\tSys\tAir\tAir\tGas\nObs\tTime\tVolt\tT\tRH\tCO2\n-\t-\tV\tC\t%\tppm\n"
        "1\t10:00:00\t5.1\t20.1\t50\t400\n2\t10:00:01\t5.2\t20.2\t51\t401\n"
        "3\t10:00:02\t5.3\t20.3\t52\t402\n",
        "Obs", "T", "CO2");
    row("not what stays",
        "Sys\tSys\tAir\tAir\nObs\tTime\tTset\tT\n-\t-\tC\tC\n"
        "1\t10:00:00\t20\t20.1\n2\t10:00:01\t20\t20.2\n3\t10:00:02\t20\t20.3\n",
        "Obs", "T", "");
    row("not what is text",
        "Sys\tSys\tAir\tAir\nObs\tTime\tWho\tT\n-\t-\t-\tC\n"
        "1\t10:00:00\ta\t20.1\n2\t10:00:01\tb\t20.2\n3\t10:00:02\tc\t20.3\n",
        "Obs", "T", "");
    row("one group only",
        "Sys\tSys\tSys\nObs\tTime\tT\n-\t-\tC\n1\t10:00:00\t20.1\n2\t10:00:01\t20.2\n", "Obs", "T",
        "");
    row("nothing measured",
        "Sys\tSys\tAir\nObs\tTime\tTset\n-\t-\tC\n1\t10:00:00\t20\n2\t10:00:01\t20\n", "Obs",
        "Tset", "");
    row("no rows", "Sys\tSys\tAir\nObs\tTime\tT\n-\t-\tC\n", "Obs", "T", "");
    row("no more than a time", "Sys\tSys\nObs\tTime\n-\t-\n", "Obs", "", "");
}

void tst_DefaultVariables::chooses()
{
    QFETCH(QByteArray, table);
    const TemporaryLog log("[Header]\nCreated\t2020-01-01\n[Data]\n" + table);
    LogParser parser;
    QString error;
    parser.parseFileAtPath(log.path(), error);
    QCOMPARE(error, QString());
    const VariableChoice choice = DefaultVariables(parser.tabularParser(), 0).choice();
    QTEST(choice.x.join(','), "x");
    QTEST(choice.left.join(','), "left");
    QTEST(choice.right.join(','), "right");
    parser.tabularParser().clear();
}

/** Of a wide log whose columns stay as they are, but for the last one. */
void tst_DefaultVariables::judgesSomeColumnsOnly()
{
    const int columns = 20000;
    const auto line = [](const QByteArray &first, const QByteArray &others) {
        return first + ('\t' + others).repeated(columns - 1);
    };
    QByteArray text = "[Header]\nCreated\t2020\n[Data]\n" + line("S", "A") + '\n' + "Obs";
    for (int i = 1; i < columns; ++i)
        text += "\tV" + QByteArray::number(i);
    text += '\n' + line("", "V") + '\n';
    for (int i = 0; i < 100; ++i)
        text += line(QByteArray::number(i), "7") + QByteArray::number(i) + '\n';
    const TemporaryLog log(text);
    LogParser parser;
    QString error;
    parser.parseFileAtPath(log.path(), error);
    QCOMPARE(error, QString());
    QElapsedTimer timer;
    timer.start();
    const VariableChoice choice = DefaultVariables(parser.tabularParser(), 0).choice();
    // To look at all of them takes the better part of a minute.
    QVERIFY2(timer.elapsed() < 10000, qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(choice.left, QStringList{"V2"});
    parser.tabularParser().clear();
}

void tst_DefaultVariables::choosesNothingWithoutLog()
{
    const LogParser parser;
    QVERIFY(DefaultVariables(parser.tabularParser(), 0).choice().isEmpty());
}

QTEST_GUILESS_MAIN(tst_DefaultVariables)
#include "tst_DefaultVariables.moc"

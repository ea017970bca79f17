#include "datasource/LogAxisData.h"
#include "support/MessageCapture.h"
#include "support/TestCompat.h"

#include <QDebug>

class tst_LogAxisData : public QObject
{
    Q_OBJECT

private slots:
    void startsEmpty();
    void leftPiecesOfAVariableAccumulate();
    void rightPiecesOfAVariableAccumulate();
    void variablesAreInTextOrder();
    void seriesAreCopies();
    void clearEmptiesAllMaps();
    void prints_data();
    void prints();
};

namespace
{

QVector<double> numbers(double first, double second)
{
    return QVector<double>() << first << second;
}

} // namespace

void tst_LogAxisData::startsEmpty()
{
    const LogAxisData data;
    QVERIFY(!data.parent());
    QVERIFY(data.XLeftData().isEmpty());
    QVERIFY(data.XRightData().isEmpty());
    QVERIFY(data.YLeftData().isEmpty());
    QVERIFY(data.YRightData().isEmpty());
}

void tst_LogAxisData::leftPiecesOfAVariableAccumulate()
{
    LogAxisData data;
    const QString co2 = QLatin1String("co2");
    data.addYLeftAxisDataSeries(co2, numbers(1, 2), numbers(10, 20));
    data.addYLeftAxisDataSeries(co2, numbers(3, 4), numbers(30, 40));
    QCOMPARE(data.XLeftData().value(co2),
             QList<QVector<double>>() << numbers(1, 2) << numbers(3, 4));
    QCOMPARE(data.YLeftData().value(co2),
             QList<QVector<double>>() << numbers(10, 20) << numbers(30, 40));
    QVERIFY(data.XRightData().isEmpty());
    QVERIFY(data.YRightData().isEmpty());
}

void tst_LogAxisData::rightPiecesOfAVariableAccumulate()
{
    LogAxisData data;
    const QString co2 = QLatin1String("co2");
    data.addYRightAxisDataSeries(co2, numbers(1, 2), numbers(10, 20));
    data.addYRightAxisDataSeries(co2, numbers(3, 4), numbers(30, 40));
    QCOMPARE(data.XRightData().value(co2),
             QList<QVector<double>>() << numbers(1, 2) << numbers(3, 4));
    QCOMPARE(data.YRightData().value(co2),
             QList<QVector<double>>() << numbers(10, 20) << numbers(30, 40));
    QVERIFY(data.XLeftData().isEmpty());
    QVERIFY(data.YLeftData().isEmpty());
}

void tst_LogAxisData::variablesAreInTextOrder()
{
    LogAxisData data;
    const char *names[] = {"b", "a", "B", "\xc3\xa4"};
    for (int i = 0; i < 4; ++i)
        data.addYLeftAxisDataSeries(QString::fromUtf8(names[i]), numbers(0, 0), numbers(0, 0));
    const QStringList expected = QString::fromUtf8("B,a,b,\xc3\xa4").split(QLatin1Char(','));
    QCOMPARE(QStringList(data.YLeftData().keys()), expected);
    QCOMPARE(QStringList(data.XLeftData().keys()), expected);
}

void tst_LogAxisData::seriesAreCopies()
{
    LogAxisData data;
    data.YLeftData().insert(QLatin1String("x"), QList<QVector<double>>());
    QVERIFY(data.YLeftData().isEmpty());
}

void tst_LogAxisData::clearEmptiesAllMaps()
{
    LogAxisData data;
    data.addYLeftAxisDataSeries(QLatin1String("a"), numbers(1, 2), numbers(3, 4));
    data.addYRightAxisDataSeries(QLatin1String("b"), numbers(1, 2), numbers(3, 4));
    data.clear();
    QVERIFY(data.XLeftData().isEmpty());
    QVERIFY(data.XRightData().isEmpty());
    QVERIFY(data.YLeftData().isEmpty());
    QVERIFY(data.YRightData().isEmpty());
}

void tst_LogAxisData::prints_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("first");
    QTest::newRow("a variable") << "co2"
                                << "Printing Variable -- \"co2\"";
    QTest::newRow("one that is not there") << "none"
                                           << "Printing Variable -- \"none\"";
    QTest::newRow("one of the right axis") << "H2O"
                                           << "Printing Variable -- \"H2O\"";
}

void tst_LogAxisData::prints()
{
    QFETCH(QString, name);
    QFETCH(QString, first);
    LogAxisData data;
    const QString co2 = QLatin1String("co2");
    data.addYLeftAxisDataSeries(co2, numbers(1, 2), numbers(10, 20.5));
    data.addYLeftAxisDataSeries(co2, numbers(1, 2), numbers(30, 40));
    data.addYRightAxisDataSeries(QLatin1String("H2O"), numbers(1, 2), numbers(7, 8));
    QString list;
    QDebug(&list) << data.YLeftData().value(name);
    MessageCapture capture;
    data.print(name);
    const QStringList lines = capture.messages();
    QCOMPARE(lines.size(), 3);
    QCOMPARE(lines.at(0).trimmed(), first);
    QCOMPARE(lines.at(1).trimmed(), list.trimmed());
    QCOMPARE(lines.at(1).contains(QLatin1String("20.5")), name == co2);
    QCOMPARE(lines.at(2).trimmed(), QString(39, QLatin1Char('-')));
}

QTEST_GUILESS_MAIN(tst_LogAxisData)
#include "tst_LogAxisData.moc"

#include "plot/CurveSeries.h"

#include "declarative/TextCompat.h"
#include "support/TestCompat.h"

#include <limits>

namespace
{

const double kNaN = std::numeric_limits<double>::quiet_NaN();
const double kInf = std::numeric_limits<double>::infinity();

QVector<double> numbers(const QString &text)
{
    QVector<double> result;
    foreach (const QString &number, text.split(QLatin1Char(' '), Compat::SkipEmptyParts))
        result << number.toDouble();
    return result;
}

QString runsText(const CurveSeries &series)
{
    QStringList runs;
    for (int i = 0; i < series.runs().size(); ++i) {
        const CurveSeries::Run &run = series.runs().at(i);
        runs << QString::fromLatin1("%1-%2%3").arg(run.first).arg(run.last).arg(
            QLatin1String(run.isAscending ? "" : "?"));
    }
    return runs.join(QLatin1String(" "));
}

} // namespace

class tst_CurveSeries : public QObject
{
    Q_OBJECT

private slots:
    void series_data();
    void series();
    void nothingToDraw_data();
    void nothingToDraw();
    void sharesItsVectors();
    void samples();
};

void tst_CurveSeries::series_data()
{
    QTest::addColumn<QString>("x");
    QTest::addColumn<QString>("y");
    QTest::addColumn<QString>("runs");
    QTest::addColumn<QRectF>("bounds");

    QTest::newRow("one sample") << "3"
                                << "5"
                                << "0-0" << QRectF(3, 5, 0, 0);
    QTest::newRow("ascending") << "1 2 3"
                               << "4 -6 5"
                               << "0-2" << QRectF(1, -6, 2, 11);
    QTest::newRow("equal x") << "1 1 1"
                             << "4 6 5"
                             << "0-2" << QRectF(1, 4, 0, 2);
    QTest::newRow("back and forth") << "1 3 2"
                                    << "4 6 5"
                                    << "0-2?" << QRectF(1, 4, 2, 2);
    QTest::newRow("more x than y") << "1 2 3 9"
                                   << "4 6"
                                   << "0-1" << QRectF(1, 4, 1, 2);
    QTest::newRow("more y than x") << "1 2"
                                   << "4 6 9"
                                   << "0-1" << QRectF(1, 4, 1, 2);
    QTest::newRow("nan between") << "1 2 3"
                                 << "4 nan 5"
                                 << "0-0 2-2" << QRectF(1, 4, 2, 1);
    QTest::newRow("nan first") << "1 2 3"
                               << "nan 4 5"
                               << "1-2" << QRectF(2, 4, 1, 1);
    QTest::newRow("nan last") << "1 2 3"
                              << "4 5 nan"
                              << "0-1" << QRectF(1, 4, 1, 1);
    QTest::newRow("nan in x") << "1 nan 3 4"
                              << "4 9 5 6"
                              << "0-0 2-3" << QRectF(1, 4, 3, 2);
    QTest::newRow("inf") << "1 2 3"
                         << "4 inf 5"
                         << "0-0 2-2" << QRectF(1, 4, 2, 1);
    QTest::newRow("-inf in x") << "-inf 2 3"
                               << "4 9 5"
                               << "1-2" << QRectF(2, 5, 1, 4);
    QTest::newRow("too large for a distance") << "1 2 3"
                                              << "1e308 9 -1e308"
                                              << "1-1" << QRectF(2, 9, 0, 0);
    QTest::newRow("the run after a gap starts anew") << "5 nan 1 2"
                                                     << "1 1 1 1"
                                                     << "0-0 2-3" << QRectF(1, 1, 4, 0);
}

void tst_CurveSeries::series()
{
    QFETCH(QString, x);
    QFETCH(QString, y);
    QFETCH(QString, runs);
    QFETCH(QRectF, bounds);
    const CurveSeries series(numbers(x), numbers(y));
    QCOMPARE(runsText(series), runs);
    QCOMPARE(series.boundingRect(), bounds);
}

void tst_CurveSeries::nothingToDraw_data()
{
    QTest::addColumn<QVector<double>>("y");
    QTest::newRow("empty") << QVector<double>();
    QTest::newRow("only nan") << QVector<double>(3, kNaN);
    QTest::newRow("only inf") << QVector<double>(3, kInf);
}

void tst_CurveSeries::nothingToDraw()
{
    QFETCH(QVector<double>, y);
    const CurveSeries series(QVector<double>(y.size(), 1.0), y);
    QVERIFY(series.runs().isEmpty());
    QVERIFY(series.boundingRect().width() < 0);
    QVERIFY(series.boundingRect().height() < 0);
}

void tst_CurveSeries::sharesItsVectors()
{
    const QVector<double> x(1000, 1.0);
    const QVector<double> y(1000, 2.0);
    const CurveSeries series(x, y);
    QCOMPARE(series.x(), x.constData());
    QCOMPARE(series.y(), y.constData());
}

void tst_CurveSeries::samples()
{
    const CurveSeries series(numbers(QLatin1String("1 2 3")), numbers(QLatin1String("4 nan")));
    QCOMPARE(series.size(), size_t(2));
    QCOMPARE(series.sample(0), QPointF(1, 4));
    QCOMPARE(series.sample(1).x(), 2.0);
    QVERIFY(series.sample(1).y() != series.sample(1).y());
}

QTEST_MAIN(tst_CurveSeries)
#include "tst_CurveSeries.moc"

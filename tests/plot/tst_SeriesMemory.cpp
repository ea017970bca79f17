#include "plot/SeriesMemory.h"

#include "support/TestCompat.h"

class tst_SeriesMemory : public QObject
{
    Q_OBJECT

private slots:
    void tellsWhatItKnows();
    void looksAtOtherSamplesAnew_data();
    void looksAtOtherSamplesAnew();
    void forgets();
};

namespace
{

QVector<double> steps(int count)
{
    QVector<double> values(count);
    for (int i = 0; i < count; ++i)
        values[i] = i;
    return values;
}

/** Equal values in a place of their own. */
QVector<double> apart(QVector<double> values)
{
    values.detach();
    return values;
}

} // namespace

void tst_SeriesMemory::tellsWhatItKnows()
{
    SeriesMemory memory;
    const QVector<double> x = steps(5000);
    const QVector<double> y = apart(x);
    const CurveSeries *known = new CurveSeries(x, y);
    memory.remember(*known);
    const CurveSeries::Run *runs = known->runs().constData();
    delete known;
    const QScopedPointer<CurveSeries> series(memory.newSeries(x, y));
    // The very same runs: nobody looked for them again.
    QVERIFY(series->runs().constData() == runs);
    QVERIFY(series->y() == y.constData());
    QCOMPARE(series->boundingRect(), QRectF(0, 0, 4999, 4999));
    QCOMPARE(series->yExtremes().within(10, 4000).greatest, 4000);
}

void tst_SeriesMemory::looksAtOtherSamplesAnew_data()
{
    QTest::addColumn<bool>("otherX");
    QTest::addColumn<bool>("otherY");
    QTest::newRow("other x") << true << false;
    QTest::newRow("other y") << false << true;
    QTest::newRow("both") << true << true;
}

void tst_SeriesMemory::looksAtOtherSamplesAnew()
{
    QFETCH(bool, otherX);
    QFETCH(bool, otherY);
    SeriesMemory memory;
    const QVector<double> x = steps(100);
    const QVector<double> y = apart(x);
    const CurveSeries known(x, y);
    memory.remember(known);
    const QScopedPointer<CurveSeries> series(
        memory.newSeries(otherX ? steps(50) : x, otherY ? steps(80) : y));
    QVERIFY(series->runs().constData() != known.runs().constData());
    QCOMPARE(int(series->size()), otherX ? 50 : 80);
}

void tst_SeriesMemory::forgets()
{
    SeriesMemory memory;
    const QVector<double> x = steps(100);
    const CurveSeries known(x, x);
    memory.remember(known);
    memory.clear();
    const QScopedPointer<CurveSeries> series(memory.newSeries(x, x));
    QVERIFY(series->runs().constData() != known.runs().constData());
    QCOMPARE(series->boundingRect(), known.boundingRect());
}

QTEST_GUILESS_MAIN(tst_SeriesMemory)
#include "tst_SeriesMemory.moc"

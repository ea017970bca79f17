#include "plot/CanvasMapper.h"

#include "support/TestCompat.h"

#include <QImage>
#include <QPainter>

namespace
{

const int kWidth = 300;
const int kHeight = 200;

/** x from 0 to 1, y a saw between 0 and 1. */
CurveSeries *saw(int count)
{
    QVector<double> x(count);
    QVector<double> y(count);
    for (int i = 0; i < count; ++i) {
        x[i] = double(i) / (count - 1);
        y[i] = (i % 100) / 99.0;
    }
    return new CurveSeries(x, y);
}

/** A mapper for a picture of some device pixels in each unit, showing x and y from 0 to 1. */
class Canvas
{
public:
    explicit Canvas(double scale = 1, double x1 = 0, double x2 = 1)
        : m_image(QSize(kWidth, kHeight) * scale, QImage::Format_RGB32)
        , m_painter(&m_image)
    {
        m_painter.scale(scale, scale);
        m_xMap.setPaintInterval(0, kWidth - 1);
        m_xMap.setScaleInterval(x1, x2);
        m_yMap.setPaintInterval(kHeight - 1, 0);
        m_yMap.setScaleInterval(0, 1);
    }

    CanvasMapper mapper()
    {
        return CanvasMapper(&m_painter, m_xMap, m_yMap, QRectF(0, 0, kWidth, kHeight));
    }

private:
    QImage m_image;
    QPainter m_painter;
    QwtScaleMap m_xMap;
    QwtScaleMap m_yMap;
};

QString text(const QPolygonF &polygon)
{
    QStringList points;
    for (int i = 0; i < polygon.size(); ++i)
        points << QString::fromLatin1("%1,%2").arg(polygon.at(i).x()).arg(polygon.at(i).y());
    return points.join(QLatin1String(" "));
}

} // namespace

/** Where points lie is seen in pictures; here, how many of them there are. */
class tst_CanvasMapper : public QObject
{
    Q_OBJECT

private slots:
    void pointsLieOnPixels();
    void pointsOnAHugeCanvas();
    void columnKeepsFourPoints();
    void cornersFollowTheWidth_data();
    void cornersFollowTheWidth();
    void onlyTheVisiblePart_data();
    void onlyTheVisiblePart();
    void unorderedLineKeepsAll();
    void windingLineFollowsTheWidth();
    void windingLineKeepsItsTurns();
    void placesAreTakenOnce_data();
    void placesAreTakenOnce();
};

// Cells of so large a canvas can't be told apart by an int; all points are handed on then.
void tst_CanvasMapper::pointsOnAHugeCanvas()
{
    const int side = 50000;
    QImage image(1, 1, QImage::Format_RGB32);
    QPainter painter(&image);
    QwtScaleMap xMap;
    xMap.setPaintInterval(0, side);
    xMap.setScaleInterval(0, 1);
    QwtScaleMap yMap;
    yMap.setPaintInterval(side, 0);
    yMap.setScaleInterval(0, 1);
    const CanvasMapper mapper(&painter, xMap, yMap, QRectF(0, 0, side, side));
    const QScopedPointer<CurveSeries> series(saw(30000));
    QCOMPARE(mapper.points(*series, series->runs().first()).size(), 30000);
}

void tst_CanvasMapper::pointsLieOnPixels()
{
    const CurveSeries series(QVector<double>() << 0.1 << 0.2 << 0.2001,
                             QVector<double>() << 0.1 << 0.2 << 0.2);
    QCOMPARE(text(Canvas().mapper().line(series, series.runs().first())),
             QString::fromLatin1("30,179 60,159"));
    QCOMPARE(text(Canvas(2).mapper().line(series, series.runs().first())),
             QString::fromLatin1("29.9,179.1 59.8,159.2 59.8299,159.2"));
}

void tst_CanvasMapper::columnKeepsFourPoints()
{
    // 3000 samples a column; only in one of them something happens.
    const int count = 3000 * kWidth;
    QVector<double> x(count);
    QVector<double> y(count, 0.5);
    for (int i = 0; i < count; ++i)
        x[i] = (i / 3000) / double(kWidth - 1);
    y[3000 * 100 + 5] = 0;
    y[3000 * 100 + 1000] = 1;
    const CurveSeries series(x, y);
    const QPolygonF line = Canvas().mapper().line(series, series.runs().first());
    QCOMPARE(line.size(), kWidth + 3);
    QCOMPARE(text(line.mid(99, 6)),
             QString::fromLatin1("99,100 100,100 100,199 100,0 100,100 101,100"));
}

void tst_CanvasMapper::cornersFollowTheWidth_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<double>("scale");
    for (int scale = 1; scale <= 20; scale += 4) {
        for (int count = 10000; count <= 1000000; count *= 10) {
            const QByteArray row = QByteArray::number(count) + " at " + QByteArray::number(scale);
            QTest::newRow(row.constData()) << count << double(scale);
        }
    }
}

void tst_CanvasMapper::cornersFollowTheWidth()
{
    QFETCH(int, count);
    QFETCH(double, scale);
    const QScopedPointer<CurveSeries> series(saw(count));
    const QPolygonF line = Canvas(scale).mapper().line(*series, series->runs().first());
    QVERIFY(line.size() > kWidth);
    QVERIFY(line.size() <= 4 * kWidth * qMin(scale, 8.0));
    QCOMPARE(line.first().x(), 0.0);
    QCOMPARE(line.last().x(), kWidth - 1.0);
}

void tst_CanvasMapper::onlyTheVisiblePart_data()
{
    QTest::addColumn<double>("x1");
    QTest::addColumn<double>("x2");
    QTest::addColumn<int>("least");
    QTest::addColumn<int>("most");

    QTest::newRow("ten samples") << 0.50000 << 0.50001 << 10 << 14;
    QTest::newRow("ten samples, backwards") << 0.50001 << 0.50000 << 10 << 14;
    QTest::newRow("a tenth") << 0.5 << 0.6 << kWidth << 4 * kWidth + 20;
    QTest::newRow("between two") << 0.5000002 << 0.5000004 << 2 << 2;
    QTest::newRow("left of all") << -2.0 << -1.0 << 1 << 1;
    QTest::newRow("right of all") << 2.0 << 3.0 << 1 << 1;
}

void tst_CanvasMapper::onlyTheVisiblePart()
{
    QFETCH(double, x1);
    QFETCH(double, x2);
    QFETCH(int, least);
    QFETCH(int, most);
    const QScopedPointer<CurveSeries> series(saw(1000001));
    const QPolygonF line = Canvas(1, x1, x2).mapper().line(*series, series->runs().first());
    QVERIFY2(line.size() >= least && line.size() <= most, qPrintable(text(line.mid(0, 9))));
}

void tst_CanvasMapper::unorderedLineKeepsAll()
{
    QVector<double> x;
    QVector<double> y;
    for (int i = 0; i < 10000; ++i) {
        x << (i % 2);
        y << (i % 2);
    }
    const CurveSeries series(x, y);
    QCOMPARE(Canvas().mapper().line(series, series.runs().first()).size(), 10000);
}

// As clock times do at midnight, x starts again.
void tst_CanvasMapper::windingLineFollowsTheWidth()
{
    const int stretches = 5;
    const int count = 20000;
    QVector<double> x(stretches * count);
    QVector<double> y(x.size());
    for (int i = 0; i < x.size(); ++i) {
        x[i] = (i % count) / double(count - 1);
        y[i] = i % 2;
    }
    const CurveSeries series(x, y);
    const QPolygonF line = Canvas().mapper().line(series, series.runs().first());
    QVERIFY(line.size() > stretches * kWidth);
    QVERIFY(line.size() <= stretches * 4 * kWidth);
    int turns = 0;
    for (int i = 1; i < line.size(); ++i) {
        if (line.at(i).x() < line.at(i - 1).x()) {
            QCOMPARE(line.at(i - 1).x(), kWidth - 1.0);
            QCOMPARE(line.at(i).x(), 0.0);
            ++turns;
        }
    }
    QCOMPARE(turns, stretches - 1);
}

// Turns that are out of sight are where lines through the canvas come from and go to.
void tst_CanvasMapper::windingLineKeepsItsTurns()
{
    QVector<double> x;
    for (int stretch = 0; stretch < 2; ++stretch) {
        for (int i = 0; i < 20000; ++i)
            x.append(-5 + i / 2000.0);
    }
    QVector<double> y(x.size(), 0.0);
    y[19999] = 0.25;
    y[20000] = 0.75;
    const CurveSeries series(x, y);
    Canvas canvas;
    const QPolygonF line = canvas.mapper().line(series, series.runs().first());
    QVERIFY(line.size() < 5000);
    const CurveSeries ends(QVector<double>() << x.at(19999) << x.at(20000),
                           QVector<double>() << y.at(19999) << y.at(20000));
    const QPolygonF turn = canvas.mapper().line(ends, ends.runs().first());
    const int at = line.indexOf(turn.first());
    QVERIFY(at > 0);
    QCOMPARE(line.value(at + 1), turn.last());
}

void tst_CanvasMapper::placesAreTakenOnce_data()
{
    QTest::addColumn<double>("scale");
    QTest::addColumn<int>("most");
    QTest::newRow("whole pixels") << 1.0 << kWidth * kHeight;
    QTest::newRow("two a unit") << 2.0 << kWidth * 2 * kHeight * 2;
}

void tst_CanvasMapper::placesAreTakenOnce()
{
    QFETCH(double, scale);
    QFETCH(int, most);
    const int count = 1000000;
    QVector<double> x(count);
    QVector<double> y(count);
    quint32 state = 5;
    for (int i = 0; i < count; ++i) {
        state = state * 1664525u + 1013904223u;
        x[i] = i / double(count);
        y[i] = (state >> 8) / 16777216.0;
    }
    const CurveSeries series(x, y);
    const QPolygonF points = Canvas(scale).mapper().points(series, series.runs().first());
    QVERIFY(points.size() <= most);
    QVERIFY(points.size() > most / 2);
}

QTEST_MAIN(tst_CanvasMapper)
#include "tst_CanvasMapper.moc"

#include "plot/LogPlotCurve.h"

#include "support/TestCompat.h"

#include <QImage>
#include <QPainter>

#include <qwt_scale_map.h>
#include <qwt_symbol.h>

#include <cmath>
#include <limits>

namespace
{

const QSize kSize(600, 400);
const double kNaN = std::numeric_limits<double>::quiet_NaN();

struct Samples {
    QVector<double> x;
    QVector<double> y;

    void add(double nextX, double nextY)
    {
        x << nextX;
        y << nextY;
    }
};

/** What to draw, and how. */
struct Drawing {
    Samples samples;
    QwtPlotCurve::CurveStyle style;
    bool symbols;
    double scale; ///< device pixels in each unit
    double x1, x2, y1, y2; ///< bounds of the scales
};

void apply(const Drawing &drawing, QwtPlotCurve *curve)
{
    curve->setPen(QPen(QColor(QLatin1String("#D90C00"))));
    curve->setStyle(drawing.style);
    if (drawing.symbols) {
        QwtSymbol *symbol = new QwtSymbol(QwtSymbol::Rect);
        symbol->setSize(6, 6);
        symbol->setColor(QColor(QLatin1String("#D90C00")));
        curve->setSymbol(symbol);
    }
}

QImage picture(const Drawing &drawing, const QwtPlotCurve &curve)
{
    QImage image(kSize * drawing.scale, QImage::Format_RGB32);
    image.fill(QColor(Qt::white).rgb());
    QPainter painter(&image);
    painter.scale(drawing.scale, drawing.scale);
    painter.setRenderHint(QPainter::Antialiasing);
    QwtScaleMap xMap;
    xMap.setPaintInterval(0, kSize.width() - 1);
    xMap.setScaleInterval(drawing.x1, drawing.x2);
    QwtScaleMap yMap;
    yMap.setPaintInterval(kSize.height() - 1, 0);
    yMap.setScaleInterval(drawing.y1, drawing.y2);
    curve.drawSeries(&painter, xMap, yMap, QRectF(QPointF(0, 0), kSize), 0, -1);
    return image;
}

QImage plainPicture(const Drawing &drawing)
{
    QwtPlotCurve curve;
    apply(drawing, &curve);
    curve.setSamples(drawing.samples.x, drawing.samples.y);
    return picture(drawing, curve);
}

QImage ownPicture(const Drawing &drawing)
{
    LogPlotCurve curve((QwtText()));
    apply(drawing, &curve);
    curve.setData(drawing.samples.x, drawing.samples.y);
    return picture(drawing, curve);
}

/** Numbers from 0 to 1 that look random and are the same on every machine. */
class Noise
{
public:
    Noise()
        : m_state(7)
    {
    }
    double next()
    {
        m_state = m_state * 1664525u + 1013904223u;
        return (m_state >> 8) / 16777216.0;
    }

private:
    quint32 m_state;
};

/** Samples of a shape that is told by its name, over x from 0 to 1, with y from 0 to 1. */
Samples shape(const QByteArray &name, int count)
{
    Samples samples;
    Noise noise;
    double walk = 0.5;
    for (int i = 0; i < count; ++i) {
        const double x = count > 1 ? double(i) / (count - 1) : 0.5;
        walk = qBound(0.0, walk + (noise.next() - 0.5) * 0.02, 1.0);
        if (name == "sine")
            samples.add(x, 0.5 + 0.4 * std::sin(x * 20));
        else if (name == "noise")
            samples.add(x, noise.next());
        else if (name == "walk")
            samples.add(x, walk);
        else if (name == "steps")
            samples.add(std::floor(x * 50) / 50, noise.next());
        else if (name == "flat")
            samples.add(x, 0.25);
        else if (name == "spikes")
            samples.add(x, i % (count / 7 + 1) == count / 11 ? 0.9 : 0.1);
        else if (name == "loop")
            samples.add(0.5 + 0.4 * std::cos(x * 6.28), 0.5 + 0.4 * std::sin(x * 6.28));
        else if (name == "bursts") // most samples in few columns
            samples.add(x * x * x * x, 0.5 + 0.4 * std::sin(x * 50));
        else
            qFatal("No shape %s", name.constData());
    }
    return samples;
}

Drawing drawing(const QByteArray &name, int count, const QByteArray &style)
{
    Drawing result
        = {shape(name, count), QwtPlotCurve::Lines, style.contains("symbols"), 1, 0, 1, 0, 1};
    if (style.contains("dots"))
        result.style = QwtPlotCurve::Dots;
    return result;
}

/** How much of a pixel is covered, from 0 to 255. */
int inkOf(QRgb pixel)
{
    return 255 - qMin(qGreen(pixel), qBlue(pixel));
}

/** Whether there is any ink on a pixel or beside it. */
bool isInkNear(const QImage &image, int x, int y)
{
    for (int row = qMax(0, y - 1); row <= qMin(image.height() - 1, y + 1); ++row) {
        for (int column = qMax(0, x - 1); column <= qMin(image.width() - 1, x + 1); ++column) {
            if (inkOf(image.pixel(column, row)) > 0)
                return true;
        }
    }
    return false;
}

/** How far two pictures are apart. */
struct Difference {
    double mean; ///< of all pixels' ink
    int missing; ///< pixels half covered or more in one, with nothing near in the other
    int covered; ///< pixels half covered or more in the second
};

Difference difference(const QImage &a, const QImage &b)
{
    Difference result = {0, 0, 0};
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const int p = inkOf(a.pixel(x, y));
            const int q = inkOf(b.pixel(x, y));
            result.mean += std::abs(p - q);
            result.missing += p > 100 && q == 0 && !isInkNear(b, x, y);
            result.missing += q > 100 && p == 0 && !isInkNear(a, x, y);
            result.covered += q > 100;
        }
    }
    result.mean /= a.width() * a.height();
    return result;
}

} // namespace

class tst_LogPlotCurve : public QObject
{
    Q_OBJECT

private slots:
    void fewSamplesAreDrawnExactly_data();
    void fewSamplesAreDrawnExactly();
    void manySamplesLookTheSame_data();
    void manySamplesLookTheSame();
    void spikeOfOneSampleSurvives_data();
    void spikeOfOneSampleSurvives();
    void zoomedIn_data();
    void zoomedIn();
    void gapsAtWhatIsNoNumber();
    void longGapsAtWhatIsNoNumber();
    void farOutsideIsOnItsOwnSide();
    void partOfTheSamples();
    void noSamples();
};

void tst_LogPlotCurve::fewSamplesAreDrawnExactly_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<int>("count");
    QTest::addColumn<QByteArray>("style");
    QTest::addColumn<double>("scale");

    foreach (const QByteArray &name, QByteArray("sine noise walk steps flat loop").split(' ')) {
        foreach (const QByteArray &style, QByteArray("lines dots symbols,dots").split(' ')) {
            for (int scale = 1; scale <= 2; ++scale) {
                for (int count = 1; count <= 400; count *= 20) {
                    const QByteArray row = name + ' ' + style + ' ' + QByteArray::number(scale)
                        + ' ' + QByteArray::number(count);
                    QTest::newRow(row.constData()) << name << count << style << double(scale);
                }
            }
        }
    }
}

void tst_LogPlotCurve::fewSamplesAreDrawnExactly()
{
    QFETCH(QByteArray, name);
    QFETCH(int, count);
    QFETCH(QByteArray, style);
    QFETCH(double, scale);
    Drawing same = drawing(name, count, style);
    same.scale = scale;
    QCOMPARE(ownPicture(same), plainPicture(same));
}

void tst_LogPlotCurve::manySamplesLookTheSame_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("style");
    QTest::addColumn<double>("scale");
    QTest::addColumn<double>("bound");

    foreach (const QByteArray &name,
             QByteArray("sine noise walk steps flat spikes loop bursts").split(' ')) {
        // Where lines lie on each other in heaps, fewer of them make a lighter heap.
        const bool isHeap = name == "noise" || name == "walk" || name == "steps";
        foreach (const QByteArray &style, QByteArray("lines dots symbols,dots").split(' ')) {
            for (int scale = 1; scale <= 2; ++scale) {
                const QByteArray row = name + ' ' + style + ' ' + QByteArray::number(scale);
                QTest::newRow(row.constData())
                    << name << style << double(scale) << (isHeap ? 15.0 : 1.5);
            }
        }
    }
}

void tst_LogPlotCurve::manySamplesLookTheSame()
{
    QFETCH(QByteArray, name);
    QFETCH(QByteArray, style);
    QFETCH(double, scale);
    QFETCH(double, bound);
    const int count = style == "lines" ? 8000 : 25000; // enough for each to be thinned out
    Drawing same = drawing(name, count, style);
    same.scale = scale;
    const Difference apart = difference(ownPicture(same), plainPicture(same));
    QVERIFY(apart.covered > 300);
    QCOMPARE(apart.missing, 0);
    QVERIFY(apart.mean < bound);
}

void tst_LogPlotCurve::spikeOfOneSampleSurvives_data()
{
    QTest::addColumn<int>("at");
    QTest::newRow("first") << 0;
    QTest::newRow("second") << 1;
    QTest::newRow("inside") << 54321;
    QTest::newRow("last but one") << 99998;
    QTest::newRow("last") << 99999;
}

void tst_LogPlotCurve::spikeOfOneSampleSurvives()
{
    QFETCH(int, at);
    Drawing spike = drawing("flat", 100000, "lines");
    spike.samples.y[at] = 0.95;
    const QImage image = ownPicture(spike);
    const int column = qRound(spike.samples.x.at(at) * (kSize.width() - 1));
    const int top = qRound((1 - 0.95) * (kSize.height() - 1));
    const int middle = kSize.height() / 2;
    QVERIFY(image.pixel(column, top + 3) != QColor(Qt::white).rgb());
    QVERIFY(image.pixel(column, middle) != QColor(Qt::white).rgb());
    QCOMPARE(image.pixel(column, top - 3), QColor(Qt::white).rgb());
}

void tst_LogPlotCurve::zoomedIn_data()
{
    QTest::addColumn<double>("x1");
    QTest::addColumn<double>("x2");
    QTest::newRow("few samples") << 0.5 << 0.5005;
    QTest::newRow("many samples") << 0.3 << 0.7;
    QTest::newRow("between two samples") << 0.500001 << 0.500002;
    QTest::newRow("backwards") << 0.7 << 0.3;
    QTest::newRow("from the left of all") << -1.0 << 0.1;
    QTest::newRow("to the right of all") << 0.9 << 2.0;
}

void tst_LogPlotCurve::zoomedIn()
{
    QFETCH(double, x1);
    QFETCH(double, x2);
    Drawing same = drawing("sine", 100000, "lines");
    same.x1 = x1;
    same.x2 = x2;
    const Difference apart = difference(ownPicture(same), plainPicture(same));
    QVERIFY(apart.covered > 50);
    QCOMPARE(apart.missing, 0);
    QVERIFY(apart.mean < 2);
}

void tst_LogPlotCurve::gapsAtWhatIsNoNumber()
{
    Drawing drawn = drawing("flat", 5, "lines");
    drawn.samples.y[2] = kNaN;
    const QImage image = ownPicture(drawn);
    const int row = qRound(0.75 * (kSize.height() - 1));
    QVERIFY(image.pixel(70, row) != QColor(Qt::white).rgb());
    QCOMPARE(image.pixel(200, row), QColor(Qt::white).rgb());
    QCOMPARE(image.pixel(400, row), QColor(Qt::white).rgb());
    QVERIFY(image.pixel(500, row) != QColor(Qt::white).rgb());
}

void tst_LogPlotCurve::longGapsAtWhatIsNoNumber()
{
    Drawing drawn = drawing("flat", 100000, "lines");
    for (int i = 30000; i < 50000; ++i)
        drawn.samples.y[i] = i % 2 ? kNaN : std::numeric_limits<double>::infinity();
    const QImage image = ownPicture(drawn);
    const int row = qRound(0.75 * (kSize.height() - 1));
    QVERIFY(image.pixel(100, row) != QColor(Qt::white).rgb());
    QCOMPARE(image.pixel(240, row), QColor(Qt::white).rgb());
    QVERIFY(image.pixel(500, row) != QColor(Qt::white).rgb());
}

void tst_LogPlotCurve::farOutsideIsOnItsOwnSide()
{
    Drawing drawn = drawing("flat", 3, "lines");
    drawn.samples.y[1] = 1e140;
    const QImage image = ownPicture(drawn);
    int below = 0;
    int above = 0;
    for (int x = 0; x < kSize.width(); ++x) {
        above += image.pixel(x, 10) != QColor(Qt::white).rgb();
        below += image.pixel(x, kSize.height() - 10) != QColor(Qt::white).rgb();
    }
    QVERIFY(above > 0);
    QCOMPARE(below, 0);
}

void tst_LogPlotCurve::partOfTheSamples()
{
    const Drawing drawn = drawing("flat", 5, "lines");
    LogPlotCurve curve((QwtText()));
    apply(drawn, &curve);
    curve.setData(drawn.samples.x, drawn.samples.y);
    QImage image(kSize, QImage::Format_RGB32);
    image.fill(QColor(Qt::white).rgb());
    QPainter painter(&image);
    QwtScaleMap map;
    map.setPaintInterval(0, kSize.width() - 1);
    map.setScaleInterval(0, 1);
    curve.drawSeries(&painter, map, map, QRectF(QPointF(0, 0), kSize), 1, 3);
    painter.end();
    const int row = qRound(0.25 * (kSize.width() - 1));
    QCOMPARE(image.pixel(70, row), QColor(Qt::white).rgb());
    QVERIFY(image.pixel(300, row) != QColor(Qt::white).rgb());
    QCOMPARE(image.pixel(530, row), QColor(Qt::white).rgb());
}

void tst_LogPlotCurve::noSamples()
{
    Drawing drawn = drawing("flat", 0, "symbols");
    QCOMPARE(ownPicture(drawn), plainPicture(drawn));
    LogPlotCurve curve((QwtText()));
    QCOMPARE(curve.dataSize(), size_t(0));
    QVERIFY(curve.boundingRect().width() < 0);
}

QTEST_MAIN(tst_LogPlotCurve)
#include "tst_LogPlotCurve.moc"

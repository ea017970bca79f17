#include "declarative/qt5/ScenePainter.h"
#include "declarative/qt5/SceneView.h"
#include "support/TestCompat.h"

#include <limits>

#include <QGraphicsItem>
#include <QGraphicsScene>
#include <QPainter>
#include <QStyleOptionGraphicsItem>

namespace
{

/** Remembers what it was asked to paint: black with a white line, a device pixel wide, at the top.
 */
class LineItem : public QGraphicsItem
{
public:
    QList<QRect> painted;

    LineItem() { setFlag(ItemUsesExtendedStyleOption); }
    QRectF boundingRect() const override { return QRectF(-10, -10, 120, 120); }
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *) override
    {
        painted << option->exposedRect.toAlignedRect();
        painter->fillRect(boundingRect(), Qt::black);
        painter->setPen(QPen(Qt::white, 0));
        painter->drawLine(0, 0, 200, 0);
    }
};

} // namespace

/** The image of a scene, at several ratios of device pixels, and how much of it is painted. */
class tst_ScenePainter : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void linesAreSharp_data();
    void linesAreSharp();
    void areaMayBeginAnywhere();
    void nothingChangedPaintsNothing();
    void onlyInvalidPartIsPainted();
    void manyPartsArePaintedAtOnce();
    void grownAreaKeepsWhatItShowed();
    void newRatioPaintsAll();
    void emptyArea();
    void hugeAreas_data();
    void hugeAreas();

private:
    QScopedPointer<QGraphicsScene> m_scene;
    QScopedPointer<SceneView> m_view;
    LineItem *m_item = nullptr;
};

void tst_ScenePainter::init()
{
    m_scene.reset(new QGraphicsScene);
    m_item = new LineItem;
    m_scene->addItem(m_item);
    m_view.reset(new SceneView(m_scene.data()));
}

void tst_ScenePainter::cleanup()
{
    m_view.reset();
    m_scene.reset();
}

void tst_ScenePainter::linesAreSharp_data()
{
    QTest::addColumn<qreal>("ratio");
    QTest::addColumn<QSize>("size");
    QTest::newRow("1") << qreal(1) << QSize(100, 50);
    QTest::newRow("1.25") << qreal(1.25) << QSize(125, 63);
    QTest::newRow("1.5") << qreal(1.5) << QSize(150, 75);
    QTest::newRow("2") << qreal(2) << QSize(200, 100);
    QTest::newRow("3") << qreal(3) << QSize(300, 150);
}

void tst_ScenePainter::linesAreSharp()
{
    QFETCH(qreal, ratio);
    QFETCH(QSize, size);
    ScenePainter painter(m_view.data());
    painter.setArea(QRectF(0, 0, 100, 50), ratio);
    QVERIFY(painter.paint());
    const QImage image = painter.image();
    QCOMPARE(image.size(), size);
    QCOMPARE(image.devicePixelRatio(), ratio);
    for (int x = 0; x < size.width(); ++x) {
        QCOMPARE(image.pixelColor(x, 0), QColor(Qt::white));
        QCOMPARE(image.pixelColor(x, 1), QColor(Qt::black));
    }
    QCOMPARE(image.pixelColor(0, size.height() - 1), QColor(Qt::black));
}

void tst_ScenePainter::areaMayBeginAnywhere()
{
    ScenePainter painter(m_view.data());
    painter.setArea(QRectF(-5, -5, 20, 20), 2);
    QVERIFY(painter.paint());
    QCOMPARE(painter.imageArea(), QRectF(-5, -5, 20, 20));
    QCOMPARE(painter.image().pixelColor(12, 10), QColor(Qt::white));
    QCOMPARE(painter.image().pixelColor(12, 9), QColor(Qt::black));
    QCOMPARE(painter.image().pixelColor(8, 10), QColor(Qt::black));
}

void tst_ScenePainter::nothingChangedPaintsNothing()
{
    ScenePainter painter(m_view.data());
    painter.setArea(QRectF(0, 0, 100, 50), 1);
    QVERIFY(painter.paint());
    m_item->painted.clear();
    const quint64 generation = painter.generation();
    painter.setArea(QRectF(0, 0, 100, 50), 1);
    QVERIFY(!painter.paint());
    QCOMPARE(painter.generation(), generation);
    QVERIFY(m_item->painted.isEmpty());
    painter.invalidate(QRect(200, 200, 10, 10));
    QVERIFY(!painter.paint());
    QVERIFY(m_item->painted.isEmpty());
}

void tst_ScenePainter::onlyInvalidPartIsPainted()
{
    ScenePainter painter(m_view.data());
    painter.setArea(QRectF(0, 0, 100, 50), 1.5);
    painter.paint();
    m_item->painted.clear();
    painter.invalidate(QRect(10, 20, 5, 5));
    painter.invalidate(QRect(60, 30, 4, 2));
    QVERIFY(painter.paint());
    QCOMPARE(m_item->painted.size(), 2);
    // An odd edge lies within a device pixel, which is painted whole.
    QVERIFY(QRect(9, 19, 7, 7).contains(m_item->painted.at(0)));
    QVERIFY(m_item->painted.at(0).contains(QRect(10, 20, 5, 5)));
    QVERIFY(QRect(59, 29, 6, 4).contains(m_item->painted.at(1)));
    QCOMPARE(painter.lastRegion(), QRegion(m_item->painted.at(0)) + m_item->painted.at(1));
}

void tst_ScenePainter::manyPartsArePaintedAtOnce()
{
    ScenePainter painter(m_view.data());
    painter.setArea(QRectF(0, 0, 100, 50), 1);
    painter.paint();
    m_item->painted.clear();
    for (int i = 0; i < 20; ++i)
        painter.invalidate(QRect(5 * i, 2 * i, 1, 1));
    QVERIFY(painter.paint());
    QVERIFY(m_item->painted.size() <= 8);
}

void tst_ScenePainter::grownAreaKeepsWhatItShowed()
{
    ScenePainter painter(m_view.data());
    painter.setArea(QRectF(0, 0, 50, 50), 1);
    painter.paint();
    m_item->painted.clear();
    painter.setArea(QRectF(-5, 0, 65, 50), 1);
    painter.paint();
    QCOMPARE(m_item->painted, QList<QRect>() << QRect(-5, 0, 5, 50) << QRect(50, 0, 10, 50));
    QCOMPARE(painter.image().pixelColor(4, 0), QColor(Qt::black));
    QCOMPARE(painter.image().pixelColor(5, 0), QColor(Qt::white));
    QCOMPARE(painter.image().pixelColor(64, 0), QColor(Qt::white));
}

void tst_ScenePainter::newRatioPaintsAll()
{
    ScenePainter painter(m_view.data());
    painter.setArea(QRectF(0, 0, 50, 50), 1);
    painter.paint();
    painter.setArea(QRectF(0, 0, 50, 50), 2);
    QVERIFY(painter.paint());
    QCOMPARE(painter.lastRegion(), QRegion(0, 0, 50, 50));
    QCOMPARE(painter.image().pixelColor(99, 0), QColor(Qt::white));
    QCOMPARE(painter.image().pixelColor(99, 1), QColor(Qt::black));
}

void tst_ScenePainter::emptyArea()
{
    ScenePainter painter(m_view.data());
    painter.setArea(QRectF(), 1);
    QVERIFY(!painter.paint());
    QVERIFY(painter.image().isNull());
    painter.setArea(QRectF(0, 0, 50, 50), 1);
    QVERIFY(painter.paint());
    painter.setArea(QRectF(0, 0, 50, 0), 1);
    QVERIFY(!painter.paint());
    QVERIFY(painter.image().isNull());
}

void tst_ScenePainter::hugeAreas_data()
{
    QTest::addColumn<QSizeF>("size");
    QTest::addColumn<qreal>("ratio");
    QTest::addColumn<QSize>("image");
    const qreal endless = std::numeric_limits<qreal>::infinity();
    QTest::newRow("wide") << QSizeF(1e9, 10) << qreal(1) << QSize(16384, 10);
    QTest::newRow("high") << QSizeF(10, 1e9) << qreal(1) << QSize(10, 16384);
    QTest::newRow("both") << QSizeF(1e9, 1e9) << qreal(1) << QSize(16384, 4096);
    QTest::newRow("both, fine") << QSizeF(1e9, 1e9) << qreal(2) << QSize(16384, 4096);
    QTest::newRow("endless") << QSizeF(endless, 20) << qreal(1) << QSize(16384, 20);
    QTest::newRow("no number") << QSizeF(qQNaN(), 20) << qreal(1) << QSize();
    QTest::newRow("large screen") << QSizeF(7680, 4320) << qreal(1) << QSize(7680, 4320);
}

void tst_ScenePainter::hugeAreas()
{
    QFETCH(QSizeF, size);
    QFETCH(qreal, ratio);
    QFETCH(QSize, image);
    ScenePainter painter(m_view.data());
    painter.setArea(QRectF(QPointF(0, 0), size), ratio);
    painter.paint();
    QCOMPARE(painter.image().size().expandedTo(QSize(0, 0)), image.expandedTo(QSize(0, 0)));
    // What shows is in its place and not stretched.
    QCOMPARE(painter.imageArea().topLeft(), QPointF(0, 0));
    if (!image.isEmpty())
        QCOMPARE(painter.imageArea().size() * ratio, QSizeF(painter.image().size()));
}

QTEST_MAIN(tst_ScenePainter)
#include "tst_ScenePainter.moc"

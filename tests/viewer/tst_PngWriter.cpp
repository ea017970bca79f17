#include "viewer/PngWriter.h"

#include <QBuffer>
#include <QPainter>
#include <QtTest>

class tst_PngWriter : public QObject
{
    Q_OBJECT

private slots:
    void readsBackAlike_data();
    void readsBackAlike();
    void keepsTheResolution();
    void staysSmall();
    void refusesWhatIsNoImage();
    void tellsWhenTheDeviceIsFull();
};

namespace
{

/** Takes some bytes, and then no more. */
class FullDevice : public QIODevice
{
public:
    explicit FullDevice(qint64 room)
        : m_room(room)
    {
        open(WriteOnly);
    }

protected:
    qint64 readData(char *, qint64) override { return -1; }
    qint64 writeData(const char *, qint64 size) override
    {
        m_room -= size;
        return m_room >= 0 ? size : -1;
    }

private:
    qint64 m_room;
};

QImage noise(const QSize &size)
{
    QImage image(size, QImage::Format_RGB32);
    quint32 state = 1;
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            state = state * 1664525u + 1013904223u;
            image.setPixel(x, y, 0xff000000 | (state >> 8));
        }
    }
    return image;
}

QImage lines(const QSize &size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QColor("#D90C00"));
    painter.drawLine(0, 0, size.width(), size.height());
    painter.drawLine(0, size.height(), size.width(), 10);
    return image;
}

QByteArray written(const QImage &image)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    return PngWriter(&buffer).write(image) ? buffer.data() : QByteArray();
}

} // namespace

void tst_PngWriter::readsBackAlike_data()
{
    QTest::addColumn<QImage>("image");

    QTest::newRow("one pixel") << noise(QSize(1, 1));
    QTest::newRow("lines") << lines(QSize(640, 400));
    QTest::newRow("a single line") << noise(QSize(300, 1));
    QTest::newRow("a single column") << noise(QSize(1, 300));
    QTest::newRow("noise, in many pieces") << noise(QSize(500, 300));
    QTest::newRow("another format") << lines(QSize(50, 40)).convertToFormat(QImage::Format_RGB16);
}

void tst_PngWriter::readsBackAlike()
{
    QFETCH(QImage, image);
    const QByteArray file = written(image);
    const QImage read = QImage::fromData(file, "PNG");
    QCOMPARE(read.convertToFormat(QImage::Format_RGB32),
             image.convertToFormat(QImage::Format_RGB32));
}

void tst_PngWriter::keepsTheResolution()
{
    QImage image = lines(QSize(40, 30));
    image.setDotsPerMeterX(3780);
    image.setDotsPerMeterY(11811);
    const QImage read = QImage::fromData(written(image), "PNG");
    QCOMPARE(read.dotsPerMeterX(), 3780);
    QCOMPARE(read.dotsPerMeterY(), 11811);
}

/** Less than twice what the slow way makes of it, which finds more in smooth slopes. */
void tst_PngWriter::staysSmall()
{
    const QImage image = lines(QSize(1280, 800));
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QVERIFY(image.save(&buffer, "PNG"));
    QVERIFY(written(image).size() < buffer.size() * 2);
}

void tst_PngWriter::refusesWhatIsNoImage()
{
    QCOMPARE(written(QImage()), QByteArray());
}

void tst_PngWriter::tellsWhenTheDeviceIsFull()
{
    const QImage image = noise(QSize(500, 300));
    for (qint64 room : {0, 10, 40, 60, 100000, 400000}) {
        FullDevice device(room);
        QVERIFY2(!PngWriter(&device).write(image), qPrintable(QString::number(room)));
    }
}

QTEST_GUILESS_MAIN(tst_PngWriter)
#include "tst_PngWriter.moc"

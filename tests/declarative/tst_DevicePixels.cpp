#include "HostWindow.h"

#include <QCheckBox>
#include <QPainter>
#include <QtMath>

namespace
{

/** Black, with a white line of one device pixel at its top and at its left. */
class LineWidget : public QWidget
{
protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.fillRect(rect(), Qt::black);
        painter.setPen(QPen(Qt::white, 0));
        painter.drawLine(0, 0, width(), 0);
        painter.drawLine(0, 0, 0, height());
    }
};

} // namespace

/** What a screen with several device pixels per unit shows; the ratio comes from the environment.
 */
class tst_DevicePixels : public HostTest
{
    Q_OBJECT

private slots:
    void linesAreSharp();
    void clicksHitWhatIsShown();
};

void tst_DevicePixels::linesAreSharp()
{
    m_window->host(new LineWidget, QRectF(20, 10, 100, 50));
    const QImage picture = m_window->picture();
    const qreal ratio = m_window->effectiveDevicePixelRatio();
    QVERIFY(ratio > 1);
    QCOMPARE(picture.size(), m_window->size() * ratio);
    const QPoint corner(qRound(20 * ratio), qRound(10 * ratio));
    for (int i = 2; i < qFloor(50 * ratio); ++i) {
        QCOMPARE(picture.pixelColor(corner + QPoint(i, 0)), QColor(Qt::white));
        QCOMPARE(picture.pixelColor(corner + QPoint(i, 1)), QColor(Qt::black));
        QCOMPARE(picture.pixelColor(corner + QPoint(0, i)), QColor(Qt::white));
        QCOMPARE(picture.pixelColor(corner + QPoint(1, i)), QColor(Qt::black));
    }
}

void tst_DevicePixels::clicksHitWhatIsShown()
{
    QWidget *form = new QWidget;
    QCheckBox *box = new QCheckBox(form);
    box->setGeometry(100, 60, 20, 20);
    m_window->host(form, QRectF(20, 10, 200, 100));
    m_window->picture();
    m_window->click(QPoint(129, 79));
    QVERIFY(box->isChecked());
}

QTEST_MAIN(tst_DevicePixels)
#include "tst_DevicePixels.moc"

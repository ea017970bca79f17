#include "support/TestCompat.h"
#include "table/ScrollBarStyle.h"

#include <QApplication>
#include <QScrollBar>
#include <QStyleOptionSlider>

/** What the style sheets make of a scroll bar: a finger's room, and the instrument's colours. */
class tst_ScrollBarStyle : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void sizes_data();
    void sizes();
    void colors_data();
    void colors();
    void pressedButtons_data() { colors_data(); }
    void pressedButtons();
    void arrowSelectors();

private:
    void style(Qt::Orientation orientation);
    int lengthOf(const QRect &rect) const;
    QRect rect(QStyle::SubControl part) const;
    QColor edge(QStyle::SubControl part) const { return colorAt(rect(part).topLeft()); }
    QColor ground(QStyle::SubControl part) const;
    QColor colorAt(const QPoint &position) const;

    QScopedPointer<QScrollBar> m_bar;
};

namespace
{

const QColor kBorder(0xbe, 0xbe, 0xbe);
const QColor kButton(0xf7, 0xf7, 0xf7);
const QColor kPressed(0xd4, 0xdf, 0xec);
const QColor kHandle(0xc5, 0xe4, 0xf5);

} // namespace

void tst_ScrollBarStyle::initTestCase()
{
    QApplication::setStyle(QLatin1String("fusion"));
}

void tst_ScrollBarStyle::init()
{
    m_bar.reset();
}

/** Makes a bar of 300, over so much that its handle is as short as can be. */
void tst_ScrollBarStyle::style(Qt::Orientation orientation)
{
    m_bar.reset(new QScrollBar(orientation));
    const bool across = orientation == Qt::Horizontal;
    m_bar->setStyleSheet(across ? ScrollBarStyle::horizontal() : ScrollBarStyle::vertical());
    m_bar->setRange(0, 1000000);
    m_bar->setPageStep(1);
    m_bar->setValue(500000);
    const QSize hint = m_bar->sizeHint();
    m_bar->resize(across ? QSize(300, hint.height()) : QSize(hint.width(), 300));
}

int tst_ScrollBarStyle::lengthOf(const QRect &rect) const
{
    return m_bar->orientation() == Qt::Horizontal ? rect.width() : rect.height();
}

QRect tst_ScrollBarStyle::rect(QStyle::SubControl part) const
{
    QStyleOptionSlider option;
    option.initFrom(m_bar.data());
    option.orientation = m_bar->orientation();
    if (option.orientation == Qt::Horizontal)
        option.state |= QStyle::State_Horizontal;
    option.minimum = m_bar->minimum();
    option.maximum = m_bar->maximum();
    option.pageStep = m_bar->pageStep();
    option.sliderPosition = m_bar->sliderPosition();
    option.sliderValue = m_bar->value();
    option.subControls = QStyle::SC_All;
    return m_bar->style()->subControlRect(QStyle::CC_ScrollBar, &option, part, m_bar.data());
}

/** Inside the border, beside what is in the middle. */
QColor tst_ScrollBarStyle::ground(QStyle::SubControl part) const
{
    return colorAt(rect(part).topLeft() + QPoint(4, 4));
}

QColor tst_ScrollBarStyle::colorAt(const QPoint &position) const
{
    QImage image(m_bar->size(), QImage::Format_RGB32);
    image.fill(0);
    m_bar->render(&image);
    return QColor(image.pixel(position));
}

void tst_ScrollBarStyle::sizes_data()
{
    QTest::addColumn<int>("orientation");
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("end");
    QTest::addColumn<int>("startMargin");
    QTest::addColumn<int>("endMargin");
    QTest::newRow("horizontal") << int(Qt::Horizontal) << 30 << 31 << 31 << 32;
    QTest::newRow("vertical") << int(Qt::Vertical) << 39 << 32 << 40 << 33;
}

void tst_ScrollBarStyle::sizes()
{
    QFETCH(int, orientation);
    QFETCH(int, start);
    QFETCH(int, end);
    QFETCH(int, startMargin);
    QFETCH(int, endMargin);
    style(Qt::Orientation(orientation));
    const bool across = orientation == Qt::Horizontal;
    QCOMPARE(across ? m_bar->height() : m_bar->width(), 30);
    const int borders = 2;
    QCOMPARE(lengthOf(rect(QStyle::SC_ScrollBarSubLine)), start + borders);
    QCOMPARE(lengthOf(rect(QStyle::SC_ScrollBarAddLine)), end + borders);
    QCOMPARE(lengthOf(rect(QStyle::SC_ScrollBarSlider)), 40);
    QCOMPARE(lengthOf(rect(QStyle::SC_ScrollBarGroove)), 300 - startMargin - endMargin - borders);
}

void tst_ScrollBarStyle::colors_data()
{
    QTest::addColumn<int>("orientation");
    QTest::newRow("horizontal") << int(Qt::Horizontal);
    QTest::newRow("vertical") << int(Qt::Vertical);
}

void tst_ScrollBarStyle::colors()
{
    QFETCH(int, orientation);
    style(Qt::Orientation(orientation));
    QCOMPARE(edge(QStyle::SC_ScrollBarSubLine), kBorder);
    QCOMPARE(edge(QStyle::SC_ScrollBarAddLine), kBorder);
    QCOMPARE(ground(QStyle::SC_ScrollBarSubLine), kButton);
    QCOMPARE(ground(QStyle::SC_ScrollBarAddLine), kButton);
    QCOMPARE(ground(QStyle::SC_ScrollBarSlider), kHandle);
    QCOMPARE(ground(QStyle::SC_ScrollBarAddPage), QColor(Qt::white));
}

void tst_ScrollBarStyle::pressedButtons()
{
    QFETCH(int, orientation);
    style(Qt::Orientation(orientation));
    const QStyle::SubControl buttons[] = {QStyle::SC_ScrollBarAddLine, QStyle::SC_ScrollBarSubLine};
    for (size_t i = 0; i < 2; ++i) {
        const QPoint middle = rect(buttons[i]).center();
        QTest::mousePress(m_bar.data(), Qt::LeftButton, Qt::KeyboardModifiers(), middle);
        QCOMPARE(ground(buttons[i]), kPressed);
        QCOMPARE(ground(buttons[1 - i]), kButton);
        QTest::mouseRelease(m_bar.data(), Qt::LeftButton, Qt::KeyboardModifiers(), middle);
        QCOMPARE(ground(buttons[i]), kButton);
    }
}

/** The one with a single colon has always been written so. */
void tst_ScrollBarStyle::arrowSelectors()
{
    const QString across = ScrollBarStyle::horizontal();
    QVERIFY(across.contains(QLatin1String("QScrollBar:left-arrow:horizontal")));
    QVERIFY(across.contains(QLatin1String("QScrollBar::right-arrow:horizontal")));
    const QString down = ScrollBarStyle::vertical();
    QVERIFY(down.contains(QLatin1String("QScrollBar::up-arrow:vertical")));
    QVERIFY(down.contains(QLatin1String("QScrollBar::down-arrow:vertical")));
}

QTEST_MAIN(tst_ScrollBarStyle)
#include "tst_ScrollBarStyle.moc"

#include "HostWindow.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPaintEvent>
#include <QPainter>

namespace
{

/** A widget that remembers what it was asked to paint. */
class PaintedWidget : public QWidget
{
public:
    QRegion painted;

protected:
    void paintEvent(QPaintEvent *event) override
    {
        painted += event->region();
        QPainter(this).fillRect(event->rect(), Qt::blue);
    }
};

/** Draws @p window until that paints nothing of @p widget any more, as after its activation. */
bool settle(HostWindow *window, PaintedWidget *widget)
{
    for (int i = 0; i < 50; ++i) {
        widget->painted = QRegion();
        window->picture();
        if (widget->painted.isEmpty())
            return true;
    }
    return false;
}

} // namespace

/** An item and the drawing of the widget in it. */
class tst_QDeclarativeItem : public HostTest
{
    Q_OBJECT

private slots:
    void itemWithoutWidgetsCostsNothing();
    void itemWithoutWindow();
    void widgetIsDrawn();
    void resizingFollows();
    void hugeItemsAreDrawn();
    void onlyDirtyRegionIsPainted();
    void unchangedItemIsNotPainted();
    void widgetThatWasEmptyIsPainted();
    void hiddenItemHidesWidget();
    void disabledItemDisablesWidget();
    void itemMovedToAnotherWindow();
    void flagOfTheOtherEngine();
    void closingTheWindowIsTheLast();
};

void tst_QDeclarativeItem::itemWithoutWidgetsCostsNothing()
{
    QDeclarativeItem item;
    item.setParentItem(m_window->contentItem());
    item.setSize(QSizeF(50, 50));
    m_window->picture();
    QVERIFY(!item.flags().testFlag(QQuickItem::ItemHasContents));
    QCOMPARE(item.acceptedMouseButtons(), Qt::NoButton);
    QVERIFY(!item.acceptHoverEvents());
    QVERIFY(item.lastRenderedRegion().isEmpty());
}

void tst_QDeclarativeItem::itemWithoutWindow()
{
    QLineEdit *edit = new QLineEdit;
    HostItem item(edit);
    item.setSize(QSizeF(123, 45));
    QCOMPARE(edit->size(), QSize(123, 45));
    QVERIFY(edit->isVisible());
    QVERIFY(item.lastRenderedRegion().isEmpty());
}

void tst_QDeclarativeItem::widgetIsDrawn()
{
    QWidget *widget = new QWidget;
    widget->setStyleSheet(QLatin1String("background-color: #ff0000"));
    m_window->host(widget, QRectF(20, 10, 100, 50));
    const QImage picture = m_window->picture();
    QCOMPARE(picture.pixelColor(19, 10), QColor(Qt::white));
    QCOMPARE(picture.pixelColor(20, 10), QColor(Qt::red));
    QCOMPARE(picture.pixelColor(119, 59), QColor(Qt::red));
    QCOMPARE(picture.pixelColor(120, 59), QColor(Qt::white));
}

void tst_QDeclarativeItem::resizingFollows()
{
    QWidget *widget = new QWidget;
    widget->setStyleSheet(QLatin1String("background-color: #ff0000"));
    HostItem *item = m_window->host(widget, QRectF(20, 10, 100, 50));
    m_window->picture();
    item->setSize(QSizeF(200, 150));
    QCOMPARE(widget->size(), QSize(200, 150));
    QCOMPARE(m_window->picture().pixelColor(219, 159), QColor(Qt::red));
    item->setSize(QSizeF(50, 20));
    QCOMPARE(widget->size(), QSize(50, 20));
    const QImage smaller = m_window->picture();
    QCOMPARE(smaller.pixelColor(69, 29), QColor(Qt::red));
    QCOMPARE(smaller.pixelColor(70, 29), QColor(Qt::white));
    item->setSize(QSizeF(0, 0));
    QCOMPARE(m_window->picture().pixelColor(30, 15), QColor(Qt::white));
}

void tst_QDeclarativeItem::hugeItemsAreDrawn()
{
    QWidget *widget = new QWidget;
    widget->setStyleSheet(QLatin1String("background-color: #ff0000"));
    HostItem *item = m_window->host(widget, QRectF(20, 10, 1e9, 1e9));
    QCOMPARE(m_window->picture().pixelColor(399, 299), QColor(Qt::red));
    QCOMPARE(widget->size(), QSize(8192, 8192));
    item->setSize(QSizeF(100, 50));
    const QImage picture = m_window->picture();
    QCOMPARE(widget->size(), QSize(100, 50));
    QCOMPARE(picture.pixelColor(119, 59), QColor(Qt::red));
    QCOMPARE(picture.pixelColor(120, 60), QColor(Qt::white));
}

void tst_QDeclarativeItem::onlyDirtyRegionIsPainted()
{
    PaintedWidget *widget = new PaintedWidget;
    HostItem *item = m_window->host(widget, QRectF(20, 10, 200, 150));
    m_window->picture();
    QCOMPARE(item->lastRenderedRegion(), QRegion(0, 0, 200, 150));
    QCOMPARE(widget->painted, QRegion(0, 0, 200, 150));
    // A graphics item is painted whole once more by its first update.
    widget->update(QRect(0, 0, 1, 1));
    QVERIFY(settle(m_window.data(), widget));
    widget->update(QRect(30, 40, 10, 20));
    m_window->picture();
    const QRect changed(30, 40, 10, 20);
    const QRect margin = changed.adjusted(-2, -2, 2, 2);
    QCOMPARE(widget->painted & changed, QRegion(changed));
    QVERIFY(margin.contains(widget->painted.boundingRect()));
    QCOMPARE(item->lastRenderedRegion() & changed, QRegion(changed));
    QVERIFY(margin.contains(item->lastRenderedRegion().boundingRect()));
}

void tst_QDeclarativeItem::unchangedItemIsNotPainted()
{
    PaintedWidget *widget = new PaintedWidget;
    HostItem *item = m_window->host(widget, QRectF(20, 10, 200, 150));
    QVERIFY(settle(m_window.data(), widget));
    item->setPosition(QPointF(40, 40));
    item->setOpacity(0.5);
    item->setOpacity(1);
    QCOMPARE(m_window->picture().pixelColor(239, 189), QColor(Qt::blue));
    QVERIFY(widget->painted.isEmpty());
}

// Scripts set a width before they set a height, so that every item is empty for a moment.
void tst_QDeclarativeItem::widgetThatWasEmptyIsPainted()
{
    PaintedWidget *widget = new PaintedWidget;
    widget->setMinimumSize(0, 0);
    HostItem *item = m_window->host(widget, QRectF());
    item->proxy()->setMinimumSize(0, 0);
    item->setWidth(200);
    QCoreApplication::processEvents();
    item->setHeight(150);
    QVERIFY(settle(m_window.data(), widget));
    widget->update(QRect(30, 40, 10, 20));
    QTRY_COMPARE(widget->painted & QRect(30, 40, 10, 20), QRegion(30, 40, 10, 20));
}

void tst_QDeclarativeItem::hiddenItemHidesWidget()
{
    PaintedWidget *widget = new PaintedWidget;
    HostItem *item = m_window->host(widget, QRectF(20, 10, 200, 150));
    m_window->picture();
    item->setVisible(false);
    QVERIFY(!widget->isVisible());
    widget->painted = QRegion();
    widget->update();
    QCOMPARE(m_window->picture().pixelColor(50, 50), QColor(Qt::white));
    QVERIFY(widget->painted.isEmpty());
    item->setVisible(true);
    QVERIFY(widget->isVisible());
    QCOMPARE(m_window->picture().pixelColor(50, 50), QColor(Qt::blue));
}

void tst_QDeclarativeItem::disabledItemDisablesWidget()
{
    QCheckBox *box = new QCheckBox(QLatin1String("Lines"));
    HostItem *item = m_window->host(box, QRectF(20, 10, 100, 50));
    m_window->picture();
    item->setEnabled(false);
    QVERIFY(!box->isEnabled());
    m_window->click(QPoint(30, 35));
    QVERIFY(!box->isChecked());
    item->setEnabled(true);
    m_window->click(QPoint(30, 35));
    QVERIFY(box->isChecked());
}

void tst_QDeclarativeItem::itemMovedToAnotherWindow()
{
    HostWindow other;
    QVERIFY(other.open());
    QLineEdit *edit = new QLineEdit;
    edit->setStyleSheet(QLatin1String("background-color: #ff0000"));
    HostItem *item = m_window->host(edit, QRectF(20, 10, 100, 30));
    QCOMPARE(m_window->picture().pixelColor(80, 25), QColor(Qt::red));
    item->setParentItem(other.contentItem());
    QCOMPARE(other.picture().pixelColor(80, 25), QColor(Qt::red));
    QCOMPARE(m_window->picture().pixelColor(80, 25), QColor(Qt::white));
    other.click(QPoint(80, 25));
    QTest::keyClick(&other, 'x');
    QCOMPARE(edit->text(), QString::fromLatin1("x"));
    item->setParentItem(nullptr);
    QCOMPARE(other.picture().pixelColor(80, 25), QColor(Qt::white));
    edit->setText(QLatin1String("y"));
    item->setParentItem(m_window->contentItem());
    QCOMPARE(m_window->picture().pixelColor(80, 25), QColor(Qt::red));
}

void tst_QDeclarativeItem::flagOfTheOtherEngine()
{
    QDeclarativeItem item;
    item.setFlag(QGraphicsItem::ItemHasNoContents, false);
    QVERIFY(item.flags().testFlag(QQuickItem::ItemHasContents));
    item.setFlag(QGraphicsItem::ItemHasNoContents);
    QVERIFY(!item.flags().testFlag(QQuickItem::ItemHasContents));
    item.setFlag(QGraphicsItem::ItemIsMovable);
    QCOMPARE(item.flags(), QDeclarativeItem().flags());
    item.setFlag(QQuickItem::ItemIsFocusScope);
    QVERIFY(item.isFocusScope());
}

void tst_QDeclarativeItem::closingTheWindowIsTheLast()
{
    m_window->host(new PaintedWidget, QRectF(20, 10, 200, 150));
    m_window->picture();
    // Neither the widget nor what it is drawn by counts as a window that is still open.
    QTimer::singleShot(0, m_window.data(), SLOT(close()));
    QTimer tooLong;
    connect(&tooLong, &QTimer::timeout, [] { QCoreApplication::exit(1); });
    tooLong.start(5000);
    QCOMPARE(QCoreApplication::exec(), 0);
}

QTEST_MAIN(tst_QDeclarativeItem)
#include "tst_QDeclarativeItem.moc"

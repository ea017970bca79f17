#include "HostWindow.h"

#include <QAbstractItemView>
#include <QComboBox>

namespace
{

QComboBox *newComboBox()
{
    QComboBox *box = new QComboBox;
    for (const char *text : {"==", "!=", "less", "more"})
        box->addItem(QLatin1String(text));
    return box;
}

/** Where the row @p row of the open pop-up of @p box is in the window of @p item. */
QPoint rowPosition(HostItem *item, QComboBox *box, int row)
{
    QAbstractItemView *view = box->view();
    const QPoint inView = view->visualRect(box->model()->index(row, 0)).center();
    const QWidget *popup = view->window();
    const QPoint inPopup = view->viewport()->mapTo(popup, inView);
    return item->mapToScene(popup->graphicsProxyWidget()->mapToScene(inPopup)).toPoint();
}

} // namespace

/** Pop-ups of widgets, which reach beyond the item. */
class tst_PopupLayer : public HostTest
{
    Q_OBJECT

private slots:
    void opensBelowAndIsChosenFrom();
    void isDrawnAboveSiblings();
    void isKeptInTheWindow();
    void answersKeys_data();
    void answersKeys();
    void closesOnPressOutside();
    void itemDestroyedWhileOpen();
    void itemHiddenWhileOpen();
    void itemLeavesWindowWhileOpen();
    void windowDestroyedFirst();
};

void tst_PopupLayer::opensBelowAndIsChosenFrom()
{
    QComboBox *box = newComboBox();
    HostItem *item = m_window->host(box, QRectF(20, 10, 120, 30));
    m_window->picture();
    m_window->click(QPoint(40, 25));
    QVERIFY(box->view()->isVisible());
    m_window->picture();
    const QPoint row = rowPosition(item, box, 2);
    QVERIFY(!item->boundingRect().contains(item->mapFromScene(row)));
    QVERIFY(item->contains(item->mapFromScene(row)));
    QTest::mouseMove(m_window.data(), row - QPoint(0, 2));
    QTest::mouseMove(m_window.data(), row);
    // A release too soon after the opening is taken for the one that ends the opening press.
    QTRY_VERIFY_WITH_TIMEOUT((m_window->click(row), !box->view()->isVisible()), 5000);
    QCOMPARE(box->currentIndex(), 2);
    m_window->picture();
    QVERIFY(!item->contains(item->mapFromScene(row)));
}

void tst_PopupLayer::isDrawnAboveSiblings()
{
    QQuickItem clip(m_window->contentItem());
    clip.setSize(QSizeF(200, 50));
    clip.setClip(true);
    QComboBox *box = newComboBox();
    box->view()->setStyleSheet(QLatin1String("background-color: #00ff00; color: #00ff00"));
    HostItem *item = m_window->host(box, QRectF(20, 10, 120, 30));
    item->setParentItem(&clip);
    QWidget *widget = new QWidget;
    widget->setStyleSheet(QLatin1String("background-color: #ff0000"));
    m_window->host(widget, QRectF(0, 45, 400, 255));
    m_window->picture();
    m_window->click(QPoint(40, 25));
    m_window->picture();
    const QPoint row = rowPosition(item, box, 2);
    QCOMPARE(m_window->picture().pixelColor(row), QColor(Qt::green));
    m_window->click(QPoint(390, 290));
    m_window->picture();
    QCOMPARE(m_window->picture().pixelColor(row), QColor(Qt::red));
}

void tst_PopupLayer::isKeptInTheWindow()
{
    QComboBox *box = newComboBox();
    HostItem *item = m_window->host(box, QRectF(20, 265, 120, 30));
    m_window->picture();
    m_window->click(QPoint(40, 280));
    m_window->picture();
    QGraphicsProxyWidget *popup = box->view()->window()->graphicsProxyWidget();
    const QRectF area = item->mapRectToScene(popup->sceneBoundingRect());
    QCOMPARE(area.bottom(), 265.0);
    QVERIFY(area.top() >= 0);
}

void tst_PopupLayer::answersKeys_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("index");
    QTest::newRow("chosen") << int(Qt::Key_Return) << 1;
    QTest::newRow("dismissed") << int(Qt::Key_Escape) << 0;
}

void tst_PopupLayer::answersKeys()
{
    QFETCH(int, key);
    QFETCH(int, index);
    QComboBox *box = newComboBox();
    m_window->host(box, QRectF(20, 10, 120, 30));
    m_window->picture();
    m_window->click(QPoint(40, 25));
    m_window->picture();
    QTest::keyClick(m_window.data(), Qt::Key_Down);
    QTest::keyClick(m_window.data(), Qt::Key(key));
    QVERIFY(!box->view()->isVisible());
    QCOMPARE(box->currentIndex(), index);
}

void tst_PopupLayer::closesOnPressOutside()
{
    ClickedItem behind(m_window->contentItem());
    QComboBox *box = newComboBox();
    m_window->host(box, QRectF(20, 10, 120, 30));
    m_window->picture();
    m_window->click(QPoint(40, 25));
    m_window->picture();
    m_window->click(QPoint(300, 200));
    QVERIFY(!box->view()->isVisible());
    QCOMPARE(behind.clicks, 0);
    m_window->picture();
    m_window->click(QPoint(300, 200));
    QCOMPARE(behind.clicks, 1);
}

void tst_PopupLayer::itemDestroyedWhileOpen()
{
    QComboBox *box = newComboBox();
    QPointer<QWidget> view(box->view());
    HostItem *item = m_window->host(box, QRectF(20, 10, 120, 30));
    ClickedItem behind(m_window->contentItem());
    behind.setZ(-1);
    m_window->picture();
    m_window->click(QPoint(40, 25));
    m_window->picture();
    delete item;
    QVERIFY(view.isNull());
    QCOMPARE(m_window->picture().pixelColor(40, 60), QColor(Qt::white));
    m_window->click(QPoint(40, 60));
    QCOMPARE(behind.clicks, 1);
}

void tst_PopupLayer::itemHiddenWhileOpen()
{
    QComboBox *box = newComboBox();
    HostItem *item = m_window->host(box, QRectF(20, 10, 120, 30));
    m_window->picture();
    m_window->click(QPoint(40, 25));
    m_window->picture();
    item->setVisible(false);
    QVERIFY(!box->view()->isVisible());
    QCOMPARE(m_window->picture().pixelColor(40, 60), QColor(Qt::white));
}

void tst_PopupLayer::itemLeavesWindowWhileOpen()
{
    QComboBox *box = newComboBox();
    HostItem *item = m_window->host(box, QRectF(20, 10, 120, 30));
    m_window->picture();
    m_window->click(QPoint(40, 25));
    m_window->picture();
    item->setParentItem(nullptr);
    QCOMPARE(m_window->picture().pixelColor(40, 60), QColor(Qt::white));
    ClickedItem behind(m_window->contentItem());
    m_window->click(QPoint(40, 60));
    QCOMPARE(behind.clicks, 1);
}

void tst_PopupLayer::windowDestroyedFirst()
{
    QComboBox *box = newComboBox();
    HostItem *item = m_window->host(box, QRectF(20, 10, 120, 30));
    item->setParent(nullptr);
    QScopedPointer<HostItem> owner(item);
    m_window->picture();
    m_window->click(QPoint(40, 25));
    m_window->picture();
    m_window.reset();
    QVERIFY(!item->window());
    box->setCurrentIndex(3);
    QCoreApplication::processEvents();
    QCOMPARE(box->currentIndex(), 3);
}

QTEST_MAIN(tst_PopupLayer)
#include "tst_PopupLayer.moc"

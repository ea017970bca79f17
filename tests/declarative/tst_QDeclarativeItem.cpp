#include "HostWindow.h"

#include <QCheckBox>
#include <QLineEdit>

class tst_QDeclarativeItem : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void itemWithoutWidgetsCostsNothing();
    void itemWithoutWindow();
    void widgetIsDrawn();
    void clickTogglesCheckBox();
    void clickGivesFocusAndKeysArrive();

private:
    QScopedPointer<HostWindow> m_window;
};

void tst_QDeclarativeItem::initTestCase()
{
    // Fixed looks, whatever the desktop prefers.
    QApplication::setStyle(QLatin1String("fusion"));
}

void tst_QDeclarativeItem::init()
{
    m_window.reset(new HostWindow);
    QVERIFY(m_window->open());
}

void tst_QDeclarativeItem::cleanup()
{
    m_window.reset();
}

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

void tst_QDeclarativeItem::clickTogglesCheckBox()
{
    QCheckBox *box = new QCheckBox(QLatin1String("Lines"));
    m_window->host(box, QRectF(20, 10, 100, 50));
    m_window->picture();
    m_window->click(QPoint(30, 35));
    QVERIFY(box->isChecked());
    m_window->click(QPoint(30, 35));
    QVERIFY(!box->isChecked());
}

void tst_QDeclarativeItem::clickGivesFocusAndKeysArrive()
{
    QLineEdit *edit = new QLineEdit;
    HostItem *item = m_window->host(edit, QRectF(20, 10, 100, 30));
    m_window->picture();
    QTest::keyClick(m_window.data(), Qt::Key_A);
    QCOMPARE(edit->text(), QString());
    m_window->click(QPoint(30, 20));
    QVERIFY(item->hasActiveFocus());
    QVERIFY(edit->hasFocus());
    for (const char *key = "Tair"; *key; ++key)
        QTest::keyClick(m_window.data(), *key);
    QTest::keyClick(m_window.data(), Qt::Key_Backspace);
    QCOMPARE(edit->text(), QString::fromLatin1("Tai"));
}

QTEST_MAIN(tst_QDeclarativeItem)
#include "tst_QDeclarativeItem.moc"

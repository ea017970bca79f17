#include "HostWindow.h"

#include <QCheckBox>
#include <QInputMethodEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScrollBar>

namespace
{

/** A widget that remembers where the pointer came and went. */
class HoveredWidget : public QWidget
{
public:
    HoveredWidget()
    {
        setMouseTracking(true);
        setCursor(Qt::CrossCursor);
    }

    int entered = 0;
    int left = 0;
    QPoint position;

protected:
    void enterEvent(QEvent *) override { ++entered; }
    void leaveEvent(QEvent *) override { ++left; }
    void mouseMoveEvent(QMouseEvent *event) override { position = event->pos(); }
};

} // namespace

/** What the user does to an item reaches the widget in it. */
class tst_SceneInput : public HostTest
{
    Q_OBJECT

private slots:
    void clickTogglesCheckBox();
    void clickGivesFocusAndKeysArrive();
    void clickOnNothingIsLeftToOthers();
    void doubleClickSelectsWord();
    void tabMovesWithinAndOut();
    void shortcutOverrideIsAnswered();
    void focusOutReachesWidget();
    void inputMethodReachesWidget();
    void wheelScrolls();
    void touchPressesButton();
    void touchDragsScrollBar();
    void hoverEntersAndLeaves();
    void ungrabbedPressClicksNothing();
};

void tst_SceneInput::clickTogglesCheckBox()
{
    QCheckBox *box = new QCheckBox(QLatin1String("Lines"));
    m_window->host(box, QRectF(20, 10, 100, 50));
    m_window->picture();
    m_window->click(QPoint(30, 35));
    QVERIFY(box->isChecked());
    m_window->click(QPoint(30, 35));
    QVERIFY(!box->isChecked());
}

void tst_SceneInput::clickGivesFocusAndKeysArrive()
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

void tst_SceneInput::clickOnNothingIsLeftToOthers()
{
    ClickedItem behind(m_window->contentItem());
    HostItem *item = m_window->host(new QLabel(QLatin1String("text")), QRectF(20, 10, 100, 30));
    m_window->picture();
    m_window->click(QPoint(30, 20));
    QCOMPARE(behind.clicks, 1);
    QVERIFY(!item->hasActiveFocus());
}

void tst_SceneInput::doubleClickSelectsWord()
{
    QLineEdit *edit = new QLineEdit(QLatin1String("Tair RH"));
    m_window->host(edit, QRectF(20, 10, 200, 30));
    m_window->picture();
    QTest::mouseDClick(m_window.data(), Qt::LeftButton, Qt::KeyboardModifiers(), QPoint(35, 25));
    QCOMPARE(edit->selectedText(), QString::fromLatin1("Tair"));
}

void tst_SceneInput::tabMovesWithinAndOut()
{
    QWidget *form = new QWidget;
    QLineEdit *first = new QLineEdit(form);
    QLineEdit *second = new QLineEdit(form);
    first->setGeometry(0, 0, 100, 30);
    second->setGeometry(0, 40, 100, 30);
    HostItem *item = m_window->host(form, QRectF(20, 10, 100, 80));
    item->setActiveFocusOnTab(true);
    QQuickItem next(m_window->contentItem());
    next.setActiveFocusOnTab(true);
    m_window->picture();

    m_window->click(QPoint(30, 20));
    QVERIFY(first->hasFocus());
    QTest::keyClick(m_window.data(), Qt::Key_Tab);
    QVERIFY(second->hasFocus());
    QTest::keyClick(m_window.data(), Qt::Key_Backtab, Qt::ShiftModifier);
    QVERIFY(first->hasFocus());
    QTest::keyClick(m_window.data(), Qt::Key_Tab);
    QTest::keyClick(m_window.data(), Qt::Key_Tab);
    QVERIFY(next.hasActiveFocus());
    QVERIFY(!second->hasFocus());
    QTest::keyClick(m_window.data(), Qt::Key_Tab);
    QVERIFY(item->hasActiveFocus());
    QVERIFY(first->hasFocus());
}

void tst_SceneInput::shortcutOverrideIsAnswered()
{
    QLineEdit *edit = new QLineEdit(QLatin1String("text"));
    HostItem *item = m_window->host(edit, QRectF(20, 10, 100, 30));
    m_window->picture();
    m_window->click(QPoint(30, 20));
    QKeyEvent selectAll(QEvent::ShortcutOverride, Qt::Key_A, Qt::ControlModifier);
    selectAll.ignore();
    QCoreApplication::sendEvent(item, &selectAll);
    QVERIFY(selectAll.isAccepted());
    QKeyEvent other(QEvent::ShortcutOverride, Qt::Key_F7, Qt::ControlModifier);
    other.ignore();
    QCoreApplication::sendEvent(item, &other);
    QVERIFY(!other.isAccepted());
}

void tst_SceneInput::focusOutReachesWidget()
{
    QLineEdit *edit = new QLineEdit;
    QSignalSpy finished(edit, SIGNAL(editingFinished()));
    m_window->host(edit, QRectF(20, 10, 100, 30));
    QQuickItem other(m_window->contentItem());
    m_window->picture();
    m_window->click(QPoint(30, 20));
    QTest::keyClick(m_window.data(), 'x');
    other.forceActiveFocus();
    QVERIFY(!edit->hasFocus());
    QCOMPARE(finished.count(), 1);
}

void tst_SceneInput::inputMethodReachesWidget()
{
    QWidget *form = new QWidget;
    QLineEdit *edit = new QLineEdit(form);
    edit->setGeometry(0, 0, 100, 30);
    edit->setInputMethodHints(Qt::ImhDigitsOnly);
    QPushButton *button = new QPushButton(form);
    button->setGeometry(0, 40, 100, 30);
    HostItem *item = m_window->host(form, QRectF(20, 10, 100, 80));
    m_window->picture();
    m_window->click(QPoint(30, 20));
    QVERIFY(item->inputMethodQuery(Qt::ImEnabled).toBool());
    QCOMPARE(item->inputMethodQuery(Qt::ImHints).toInt(), int(Qt::ImhDigitsOnly));

    QInputMethodEvent event;
    event.setCommitString(QString::fromUtf8("\u00b0C"));
    QCoreApplication::sendEvent(QGuiApplication::focusObject(), &event);
    QCOMPARE(edit->text(), QString::fromUtf8("\u00b0C"));
    QCOMPARE(item->inputMethodQuery(Qt::ImSurroundingText).toString(), edit->text());
    QVERIFY(item->boundingRect().contains(
        item->inputMethodQuery(Qt::ImCursorRectangle).toRectF().center()));

    m_window->click(QPoint(30, 60));
    QVERIFY(button->hasFocus());
    QVERIFY(!item->inputMethodQuery(Qt::ImEnabled).toBool());
}

void tst_SceneInput::wheelScrolls()
{
    QListWidget *list = new QListWidget;
    for (int i = 0; i < 100; ++i)
        list->addItem(QString::number(i));
    m_window->host(list, QRectF(20, 10, 200, 100));
    m_window->picture();
    QWheelEvent event(QPointF(50, 50), m_window->mapToGlobal(QPoint(50, 50)), QPoint(),
                      QPoint(0, -120), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(m_window.data(), &event);
    QVERIFY(list->verticalScrollBar()->value() > 0);
    QVERIFY(event.isAccepted());
}

void tst_SceneInput::touchPressesButton()
{
    QPushButton *button = new QPushButton(QLatin1String("Add"));
    QSignalSpy clicked(button, SIGNAL(clicked()));
    m_window->host(button, QRectF(20, 10, 100, 50));
    m_window->picture();
    QTest::touchEvent(m_window.data(), m_touch).press(0, QPoint(40, 30), m_window.data());
    QVERIFY(button->isDown());
    QTest::touchEvent(m_window.data(), m_touch).release(0, QPoint(40, 30), m_window.data());
    QCOMPARE(clicked.count(), 1);
}

void tst_SceneInput::touchDragsScrollBar()
{
    QScrollBar *bar = new QScrollBar(Qt::Vertical);
    bar->setRange(0, 100);
    bar->setPageStep(50);
    m_window->host(bar, QRectF(20, 0, 30, 300));
    m_window->picture();
    QTest::touchEvent(m_window.data(), m_touch).press(0, QPoint(35, 60), m_window.data());
    for (int y = 70; y <= 290; y += 20)
        QTest::touchEvent(m_window.data(), m_touch).move(0, QPoint(35, y), m_window.data());
    QTest::touchEvent(m_window.data(), m_touch).release(0, QPoint(35, 290), m_window.data());
    QVERIFY(!bar->isSliderDown());
    // Moves may be held back to the next frame; the release follows them.
    QCOMPARE(bar->value(), 100);
}

void tst_SceneInput::hoverEntersAndLeaves()
{
    HoveredWidget *widget = new HoveredWidget;
    HostItem *item = m_window->host(widget, QRectF(20, 10, 100, 50));
    m_window->picture();
    QTest::mouseMove(m_window.data(), QPoint(300, 200));
    QTest::mouseMove(m_window.data(), QPoint(50, 30));
    QTest::mouseMove(m_window.data(), QPoint(51, 32));
    QCOMPARE(widget->entered, 1);
    QCOMPARE(widget->left, 0);
    QCOMPARE(widget->position, QPoint(31, 22));
    QCOMPARE(item->cursor().shape(), Qt::CrossCursor);
    QTest::mouseMove(m_window.data(), QPoint(300, 200));
    QCOMPARE(widget->left, 1);
}

void tst_SceneInput::ungrabbedPressClicksNothing()
{
    QPushButton *button = new QPushButton(QLatin1String("Add"));
    QSignalSpy clicked(button, SIGNAL(clicked()));
    HostItem *item = m_window->host(button, QRectF(20, 10, 100, 50));
    m_window->picture();
    m_window->press(QPoint(40, 30));
    QVERIFY(button->isDown());
    item->ungrabMouse();
    QVERIFY(!button->isDown());
    m_window->release(QPoint(40, 30));
    QCOMPARE(clicked.count(), 0);
    m_window->click(QPoint(40, 30));
    QCOMPARE(clicked.count(), 1);
}

QTEST_MAIN(tst_SceneInput)
#include "tst_SceneInput.moc"

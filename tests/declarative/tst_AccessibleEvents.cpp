#include "HostWindow.h"
#include "support/AccessibleEvents.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QListView>
#include <QStackedWidget>
#include <QStandardItemModel>
#include <QTableView>

/** What screen readers are told while a user works with hosted widgets. */
class tst_AccessibleEvents : public HostTest
{
    Q_OBJECT

public:
    tst_AccessibleEvents();

private slots:
    void someoneListens();
    void tabLeadsToTheCurrentCell();
    void arrowsMoveFromCellToCell();
    void clickMovesToTheCell();
    void arrowsMoveFromRowToRow();
    void emptyListHasTheFocusItself();
    void choiceInABoxChangesItsValue();
    void typedTextIsTold();
    void placesFollowTheItemByThemselves();

private:
    HostItem *host(QWidget *widget)
    {
        HostItem *item = m_window->host(widget, QRectF(20, 30, 300, 200));
        m_window->picture();
        return item;
    }
    QTableView *hostTable()
    {
        auto *table = new QTableView;
        table->setModel(&m_model);
        auto *stack = new QStackedWidget;
        stack->addWidget(table);
        host(stack)->setActiveFocusOnTab(true);
        return table;
    }
    void key(Qt::Key key) { QTest::keyClick(m_window.data(), key); }

    QStandardItemModel m_model;
};

tst_AccessibleEvents::tst_AccessibleEvents()
{
    for (const char *cells : {"a1", "b2", "c3"}) {
        m_model.appendRow(QList<QStandardItem *>()
                          << new QStandardItem(QString(QLatin1Char(cells[0])))
                          << new QStandardItem(QString(QLatin1Char(cells[1]))));
    }
}

void tst_AccessibleEvents::someoneListens()
{
    QVERIFY(AccessibleEvents::isSomebodyListening());
}

void tst_AccessibleEvents::tabLeadsToTheCurrentCell()
{
    QTableView *table = hostTable();
    table->setCurrentIndex(m_model.index(1, 1));
    AccessibleEvents events;
    key(Qt::Key_Tab);
    QVERIFY(table->hasFocus());
    QCOMPARE(events.latest(QAccessible::Focus), QLatin1String("2"));
}

void tst_AccessibleEvents::arrowsMoveFromCellToCell()
{
    QTableView *table = hostTable();
    table->setCurrentIndex(m_model.index(0, 0));
    key(Qt::Key_Tab);
    AccessibleEvents events;
    key(Qt::Key_Down);
    QCOMPARE(events.latest(QAccessible::Focus), QLatin1String("b"));
    key(Qt::Key_Right);
    QCOMPARE(events.latest(QAccessible::Focus), QLatin1String("2"));
    QCOMPARE(events.focusCount(), 2);
}

void tst_AccessibleEvents::clickMovesToTheCell()
{
    QTableView *table = hostTable();
    const QPoint cell = table->visualRect(m_model.index(2, 1)).center();
    AccessibleEvents events;
    m_window->click(QPoint(20, 30) + table->viewport()->mapTo(table->window(), cell));
    QCOMPARE(events.latest(QAccessible::Focus), QLatin1String("3"));
}

void tst_AccessibleEvents::arrowsMoveFromRowToRow()
{
    auto *list = new QListView;
    list->setModel(&m_model);
    host(list)->setActiveFocusOnTab(true);
    AccessibleEvents events;
    key(Qt::Key_Tab);
    QCOMPARE(events.latest(QAccessible::Focus), QLatin1String("a"));
    key(Qt::Key_Down);
    QCOMPARE(events.latest(QAccessible::Focus), QLatin1String("b"));
    QVERIFY(events.had(QAccessible::SelectionAdd, QLatin1String("b")));
}

void tst_AccessibleEvents::emptyListHasTheFocusItself()
{
    auto *list = new QListView;
    list->setAccessibleName(QLatin1String("Criteria"));
    host(list)->setActiveFocusOnTab(true);
    AccessibleEvents events;
    key(Qt::Key_Tab);
    QCOMPARE(events.latest(QAccessible::Focus), QLatin1String("Criteria"));
}

void tst_AccessibleEvents::choiceInABoxChangesItsValue()
{
    auto *row = new QWidget;
    auto *box = new QComboBox;
    box->addItems(QStringList() << QLatin1String("T") << QLatin1String("RH"));
    (new QHBoxLayout(row))->addWidget(box);
    host(row)->setActiveFocusOnTab(true);
    AccessibleEvents events;
    key(Qt::Key_Tab);
    QVERIFY(box->hasFocus());
    QCOMPARE(AccessibleTree::of(box)->text(QAccessible::Value), QLatin1String("T"));
    QVERIFY(events.had(QAccessible::Focus, AccessibleTree::name(AccessibleTree::of(box))));
    key(Qt::Key_Down);
    QCOMPARE(AccessibleTree::of(box)->text(QAccessible::Value), QLatin1String("RH"));
    QVERIFY(events.had(QAccessible::ValueChanged, AccessibleTree::name(AccessibleTree::of(box))));
}

void tst_AccessibleEvents::typedTextIsTold()
{
    auto *row = new QWidget;
    auto *field = new QLineEdit;
    field->setAccessibleName(QLatin1String("Value"));
    (new QHBoxLayout(row))->addWidget(field);
    host(row)->setActiveFocusOnTab(true);
    AccessibleEvents events;
    key(Qt::Key_Tab);
    QVERIFY(events.had(QAccessible::Focus, QLatin1String("Value")));
    key(Qt::Key_1);
    QCOMPARE(field->text(), QLatin1String("1"));
    QCOMPARE(events.latest(QAccessible::TextInserted), QLatin1String("Value"));
    key(Qt::Key_Backspace);
    QCOMPARE(events.latest(QAccessible::TextRemoved), QLatin1String("Value"));
}

/** Tools ask where a thing is long after they found it. */
void tst_AccessibleEvents::placesFollowTheItemByThemselves()
{
    QTableView *table = hostTable();
    auto *item = m_window->contentItem()->findChild<HostItem *>();
    QAccessibleInterface *told = AccessibleTree::of(table);
    QTRY_COMPARE(told->rect().topLeft(), m_window->mapToGlobal(QPoint(20, 30)));
    item->setPosition(QPointF(50, 75));
    QTRY_COMPARE(told->rect().topLeft(), m_window->mapToGlobal(QPoint(50, 75)));
    m_window->setPosition(m_window->position() + QPoint(40, 20));
    QTRY_COMPARE(told->rect().topLeft(), m_window->mapToGlobal(QPoint(50, 75)));
}

QTEST_MAIN(tst_AccessibleEvents)
#include "tst_AccessibleEvents.moc"

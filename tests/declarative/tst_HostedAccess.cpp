#include "HostWindow.h"
#include "declarative/qt5/HostedAccess.h"
#include "support/AccessibleTree.h"

#include <QAbstractTableModel>
#include <QCheckBox>
#include <QFrame>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QStackedWidget>
#include <QStandardItemModel>
#include <QTableView>

namespace
{

const int kMany = 1000000;

/** A table of a million rows that costs nothing. */
class LongModel : public QAbstractTableModel
{
public:
    using QAbstractTableModel::QAbstractTableModel;

    int rowCount(const QModelIndex &parent = QModelIndex()) const override
    {
        return parent.isValid() ? 0 : kMany;
    }
    int columnCount(const QModelIndex & = QModelIndex()) const override { return 20; }
    QVariant data(const QModelIndex &index, int role) const override
    {
        return role == Qt::DisplayRole ? QVariant(index.row()) : QVariant();
    }
};

/** How many interfaces there have been: their numbers are given away in order. */
QAccessible::Id interfaceCount()
{
    QObject asked;
    QPushButton button;
    return QAccessible::uniqueId(AccessibleTree::of(&button));
}

} // namespace

/** What screen readers find in an item that hosts widgets. */
class tst_HostedAccess : public HostTest
{
    Q_OBJECT

public:
    tst_HostedAccess();

private slots:
    void itemTellsWhatItsScriptSays();
    void ignoredItemTellsNothing();
    void widgetsAreWithinTheirItem();
    void decorationIsLeftOut();
    void itemsOfTheScriptFollowTheWidgets();
    void windowsOfWidgetsAreNotListed();

    void interfaceFromBeforeIsReplaced();
    void cellsOfTables();
    void rowsOfLists();
    void rowsAreTicked();
    void rowsComeAndGo();
    void millionsOfCellsAreMadeOnDemand();
    void millionsOfRowsAreMadeOnDemand();

    void placesAreThoseOnTheScreen();
    void placesFollowTheItem();
    void widgetAtAPlace();
    void focusLeadsInside();
    void focusIsTakenAndGiven();
    void statesOfTheItem();

    void itemDiesFirst();
    void widgetDiesFirst();
    void modelDiesFirst();

private:
    HostItem *host(QWidget *widget, const QRectF &geometry = QRectF(20, 30, 300, 200))
    {
        HostItem *item = m_window->host(widget, geometry);
        m_window->picture();
        return item;
    }
    /** A row of a field and a button. */
    static QWidget *makeRow()
    {
        auto *row = new QWidget;
        auto *layout = new QHBoxLayout(row);
        auto *field = new QLineEdit(QLatin1String("12"));
        field->setAccessibleName(QLatin1String("Value"));
        layout->addWidget(field);
        layout->addWidget(new QPushButton(QLatin1String("Add")));
        return row;
    }
    /** In a stack, as the module's table is. */
    static QTableView *makeTable(QAbstractItemModel *model)
    {
        auto *table = new QTableView;
        table->setModel(model);
        auto *stack = new QStackedWidget;
        stack->addWidget(table);
        return table;
    }
    static QStandardItem *tickable(const char *text, bool isTicked)
    {
        auto *item = new QStandardItem(QLatin1String(text));
        item->setCheckable(true);
        item->setCheckState(isTicked ? Qt::Checked : Qt::Unchecked);
        return item;
    }
    QAccessibleInterface *told() const { return AccessibleTree::of(m_window.data()); }

    QQmlEngine m_engine;
    QStandardItemModel m_model;
};

tst_HostedAccess::tst_HostedAccess()
{
    // The engine knows what can be told of items once a script has imported its module.
    QQmlComponent component(&m_engine);
    component.setData("import QtQuick 2.0\nItem { Accessible.name: 'x' }", QUrl());
    const QScopedPointer<QObject> item(component.create());
    m_model.appendRow(QList<QStandardItem *>()
                      << tickable("a", true) << new QStandardItem(QLatin1String("1.5")));
    m_model.appendRow(QList<QStandardItem *>()
                      << tickable("b", false) << new QStandardItem(QLatin1String("2.5")));
    m_model.setHorizontalHeaderLabels(QStringList()
                                      << QLatin1String("Name") << QLatin1String("T in C"));
}

void tst_HostedAccess::itemTellsWhatItsScriptSays()
{
    HostItem *item = host(makeRow());
    QObject *attached = HostedAccess::attached(item);
    QVERIFY(attached);
    QAccessibleInterface *told = AccessibleTree::of(item);
    QCOMPARE(told->role(), QAccessible::Client);
    attached->setProperty("name", QLatin1String("New criterion"));
    attached->setProperty("description", QLatin1String("A row"));
    attached->setProperty("role", int(QAccessible::Grouping));
    QCOMPARE(AccessibleTree::of(item), told);
    QCOMPARE(AccessibleTree::name(told), QLatin1String("New criterion"));
    QCOMPARE(told->text(QAccessible::Description), QLatin1String("A row"));
    QCOMPARE(told->role(), QAccessible::Grouping);
    QCOMPARE(told->object(), static_cast<QObject *>(item));
    QCOMPARE(told->window(), static_cast<QWindow *>(m_window.data()));
}

void tst_HostedAccess::ignoredItemTellsNothing()
{
    HostItem *item = host(makeRow());
    QCOMPARE(told()->childCount(), 1);
    HostedAccess::attached(item)->setProperty("ignored", true);
    QCOMPARE(told()->childCount(), 0);
    HostedAccess::attached(item)->setProperty("ignored", false);
    QCOMPARE(told()->childCount(), 1);
}

void tst_HostedAccess::widgetsAreWithinTheirItem()
{
    HostItem *item = host(makeRow());
    QCOMPARE(AccessibleTree::flaw(told()), QByteArray());
    QAccessibleInterface *field = AccessibleTree::find(told(), QAccessible::EditableText);
    QVERIFY(field);
    QCOMPARE(AccessibleTree::name(field), QLatin1String("Value"));
    QCOMPARE(field->text(QAccessible::Value), QLatin1String("12"));
    QVERIFY(AccessibleTree::find(told(), QAccessible::Button, QLatin1String("Add")));
    const QList<QAccessibleInterface *> way = AccessibleTree::upFrom(field);
    QCOMPARE(way.size(), 5);
    QCOMPARE(way.at(1)->object(), static_cast<QObject *>(item->proxy()->widget()));
    QCOMPARE(way.at(2)->object(), static_cast<QObject *>(item));
    QCOMPARE(way.at(3)->object(), static_cast<QObject *>(m_window.data()));
    QCOMPARE(way.at(4)->role(), QAccessible::Application);
}

void tst_HostedAccess::decorationIsLeftOut()
{
    QWidget *row = makeRow();
    row->layout()->addWidget(new QFrame);
    auto *frame = new QFrame;
    (new QHBoxLayout(frame))->addWidget(new QCheckBox(QLatin1String("All")));
    row->layout()->addWidget(frame);
    host(row);
    host(new QFrame);
    QCOMPARE(AccessibleTree::flaw(told()), QByteArray());
    QCOMPARE(told()->child(0)->child(0)->childCount(), 3); // field, button, frame with something
    QVERIFY(AccessibleTree::find(told(), QAccessible::CheckBox, QLatin1String("All")));
    QCOMPARE(told()->child(1)->childCount(), 0);
}

void tst_HostedAccess::itemsOfTheScriptFollowTheWidgets()
{
    HostItem *item = host(makeRow());
    auto *plain = new QQuickItem(item);
    auto *note = new QQuickItem(plain);
    note->setSize(QSizeF(300, 200));
    HostedAccess::attached(note, true)->setProperty("name", QLatin1String("note"));
    QAccessibleInterface *told = AccessibleTree::of(item);
    QCOMPARE(told->childCount(), 2);
    QCOMPARE(AccessibleTree::name(told->child(1)), QLatin1String("note"));
    QCOMPARE(AccessibleTree::flaw(told), QByteArray());
    const QPoint middle = told->rect().center();
    QCOMPARE(AccessibleTree::name(told->childAt(middle.x(), middle.y())), QLatin1String("note"));
}

/** The windows of widgets that appear in the item instead of on the screen. */
void tst_HostedAccess::windowsOfWidgetsAreNotListed()
{
    host(makeRow());
    host(makeTable(&m_model)->parentWidget());
    const QAccessibleInterface *application = AccessibleTree::of(qApp);
    QCOMPARE(application->childCount(), 1);
    QCOMPARE(application->child(0)->object(), static_cast<QObject *>(m_window.data()));
}

/** Widgets may be asked before they are hosted. */
void tst_HostedAccess::interfaceFromBeforeIsReplaced()
{
    auto *view = new QListView;
    view->setModel(&m_model);
    QWidget *row = makeRow();
    for (QWidget *widget : {static_cast<QWidget *>(view), row})
        QVERIFY(AccessibleTree::of(widget)); // keeps it
    host(view);
    host(row);
    QCOMPARE(AccessibleTree::flaw(told()), QByteArray());
    QCOMPARE(AccessibleTree::of(view)->childCount(), 2);
}

void tst_HostedAccess::cellsOfTables()
{
    QTableView *view = makeTable(&m_model);
    host(view->parentWidget());
    QCOMPARE(AccessibleTree::flaw(told()), QByteArray());
    QAccessibleInterface *table = AccessibleTree::find(told(), QAccessible::Table);
    QVERIFY(table && table->tableInterface());
    QAccessibleInterface *cell = table->tableInterface()->cellAt(1, 1);
    QCOMPARE(AccessibleTree::name(cell), QLatin1String("2.5"));
    QCOMPARE(AccessibleTree::upFrom(cell).size(), 6);
    QCOMPARE(AccessibleTree::upFrom(cell).at(4)->object(), static_cast<QObject *>(m_window.data()));
    const QList<QAccessibleInterface *> headers = cell->tableCellInterface()->columnHeaderCells();
    QCOMPARE(headers.size(), 1);
    QAccessible::uniqueId(headers.first()); // whoever is given one has to see to its end
    QCOMPARE(AccessibleTree::name(headers.first()), QLatin1String("T in C"));
    QVERIFY(table->tableInterface()->cellAt(0, 0)->state().checked);
    QVERIFY(!table->tableInterface()->cellAt(1, 0)->state().checked);
}

void tst_HostedAccess::rowsOfLists()
{
    auto *view = new QListView;
    view->setModel(&m_model);
    host(view);
    QCOMPARE(AccessibleTree::flaw(told()), QByteArray());
    QAccessibleInterface *list = AccessibleTree::find(told(), QAccessible::List);
    QVERIFY(list);
    QCOMPARE(list->childCount(), 2);
    QAccessibleInterface *row = list->child(1);
    QCOMPARE(list->child(1), row);
    QCOMPARE(row->role(), QAccessible::ListItem);
    QCOMPARE(AccessibleTree::name(row), QLatin1String("b"));
    QCOMPARE(AccessibleTree::upFrom(row).size(), 5);
    QVERIFY(list->rect().contains(row->rect()));
    QVERIFY(row->rect().top() > list->child(0)->rect().top());
    QVERIFY(!list->child(2));
    QVERIFY(!list->child(-1));
}

void tst_HostedAccess::rowsAreTicked()
{
    auto *view = new QListView;
    view->setModel(&m_model);
    host(view);
    QAccessibleInterface *row = AccessibleTree::find(told(), QAccessible::List)->child(1);
    QVERIFY(row->state().checkable);
    QVERIFY(!row->state().checked);
    const QString toggle = QAccessibleActionInterface::toggleAction();
    QCOMPARE(row->actionInterface()->actionNames(), QStringList(toggle));
    row->actionInterface()->doAction(toggle);
    QCOMPARE(m_model.item(1)->checkState(), Qt::Checked);
    QVERIFY(row->state().checked);
    row->actionInterface()->doAction(toggle);
    QCOMPARE(m_model.item(1)->checkState(), Qt::Unchecked);
}

void tst_HostedAccess::rowsComeAndGo()
{
    QStandardItemModel model;
    for (const char *text : {"a", "b", "c"})
        model.appendRow(new QStandardItem(QLatin1String(text)));
    auto *view = new QListView;
    view->setModel(&model);
    host(view);
    QAccessibleInterface *list = AccessibleTree::find(told(), QAccessible::List);
    QAccessibleInterface *b = list->child(1);
    QAccessibleInterface *c = list->child(2);
    model.removeRow(1);
    QVERIFY(!b->isValid());
    QVERIFY(b->state().invalid);
    QCOMPARE(AccessibleTree::name(b), QString());
    QCOMPARE(b->rect(), QRect());
    QCOMPARE(AccessibleTree::name(c), QLatin1String("c"));
    QCOMPARE(list->indexOfChild(c), 1);
    QCOMPARE(AccessibleTree::name(list->child(1)), QLatin1String("c"));
    QCOMPARE(AccessibleTree::flaw(list), QByteArray());
}

void tst_HostedAccess::millionsOfCellsAreMadeOnDemand()
{
    LongModel model;
    host(makeTable(&model)->parentWidget());
    const QAccessible::Id before = interfaceCount();
    QAccessibleInterface *table = AccessibleTree::find(told(), QAccessible::Table);
    QVERIFY(table->childCount() > kMany);
    QAccessibleInterface *last = table->tableInterface()->cellAt(kMany - 1, 19);
    QCOMPARE(AccessibleTree::name(last), QString::number(kMany - 1));
    QVERIFY(interfaceCount() - before < 300); // find() looks at the first hundred
}

void tst_HostedAccess::millionsOfRowsAreMadeOnDemand()
{
    LongModel model;
    auto *view = new QListView;
    view->setUniformItemSizes(true);
    view->setModel(&model);
    host(view);
    QAccessibleInterface *list = AccessibleTree::find(told(), QAccessible::List);
    const QAccessible::Id before = interfaceCount();
    QCOMPARE(list->childCount(), kMany);
    QCOMPARE(AccessibleTree::name(list->child(kMany - 1)), QString::number(kMany - 1));
    QVERIFY(interfaceCount() - before < 5);
}

void tst_HostedAccess::placesAreThoseOnTheScreen()
{
    HostItem *item = host(makeTable(&m_model)->parentWidget());
    const QRect onScreen(m_window->mapToGlobal(QPoint(20, 30)), QSize(300, 200));
    QAccessibleInterface *told = AccessibleTree::of(item);
    QCOMPARE(told->rect(), onScreen);
    QCOMPARE(told->child(0)->rect(), onScreen);
    QTableView *view = item->proxy()->widget()->findChild<QTableView *>();
    const QRect inView = view->visualRect(m_model.index(1, 1));
    const QPoint origin = view->viewport()->mapTo(view->window(), QPoint());
    QAccessibleInterface *cell
        = AccessibleTree::find(told, QAccessible::Table)->tableInterface()->cellAt(1, 1);
    QCOMPARE(cell->rect(), inView.translated(origin + onScreen.topLeft()));
}

void tst_HostedAccess::placesFollowTheItem()
{
    HostItem *item = host(makeRow());
    QAccessibleInterface *button = AccessibleTree::find(told(), QAccessible::Button);
    const QPoint before = button->rect().topLeft();
    item->setPosition(QPointF(50, 75));
    QVERIFY(AccessibleTree::of(item)->child(0)); // as one who walks there
    QCOMPARE(button->rect().topLeft() - before, QPoint(30, 45));
}

void tst_HostedAccess::widgetAtAPlace()
{
    host(makeTable(&m_model)->parentWidget());
    QAccessibleInterface *table = AccessibleTree::find(told(), QAccessible::Table);
    QAccessibleInterface *cell = table->tableInterface()->cellAt(1, 1);
    const QPoint place = cell->rect().center();
    QCOMPARE(AccessibleTree::describe(told()->childAt(place.x(), place.y())),
             AccessibleTree::describe(cell));
    const QPoint outside = m_window->mapToGlobal(QPoint(399, 299));
    QVERIFY(!told()->childAt(outside.x(), outside.y()));
}

void tst_HostedAccess::focusLeadsInside()
{
    QTableView *view = makeTable(&m_model);
    HostItem *item = host(view->parentWidget());
    QVERIFY(!AccessibleTree::of(item)->focusChild());
    const QPoint cell = view->visualRect(m_model.index(1, 1)).center();
    m_window->click(QPoint(20, 30) + view->viewport()->mapTo(view->window(), cell));
    QCOMPARE(AccessibleTree::name(told()->focusChild()), QLatin1String("2.5"));
    QTest::keyClick(m_window.data(), Qt::Key_Up);
    QCOMPARE(AccessibleTree::name(told()->focusChild()), QLatin1String("1.5"));
}

void tst_HostedAccess::focusIsTakenAndGiven()
{
    auto *view = new QListView;
    view->setModel(&m_model);
    HostItem *item = host(view);
    QAccessibleInterface *list = AccessibleTree::find(told(), QAccessible::List);
    QVERIFY(!list->state().focused);
    list->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    QVERIFY(item->hasActiveFocus());
    QVERIFY(list->state().focused);
    QCOMPARE(AccessibleTree::name(told()->focusChild()), QLatin1String("a"));
    view->setCurrentIndex(m_model.index(1, 0));
    QCOMPARE(AccessibleTree::name(told()->focusChild()), QLatin1String("b"));
    QVERIFY(list->child(1)->state().focused);
    QVERIFY(!AccessibleTree::of(item)->state().focused);
}

void tst_HostedAccess::statesOfTheItem()
{
    HostItem *item = host(makeRow());
    QAccessibleInterface *told = AccessibleTree::of(item);
    QVERIFY(!told->state().invisible);
    QVERIFY(!told->state().offscreen);
    QVERIFY(!told->state().focusable);
    item->setActiveFocusOnTab(true);
    QVERIFY(told->state().focusable);
    told->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    QVERIFY(item->hasActiveFocus());
    item->setEnabled(false);
    QVERIFY(told->state().disabled);
    item->setX(1000);
    QVERIFY(told->state().offscreen);
    item->setVisible(false);
    QVERIFY(told->state().invisible);
    QVERIFY(AccessibleTree::find(told, QAccessible::Button)->state().invisible);
}

void tst_HostedAccess::itemDiesFirst()
{
    QScopedPointer<HostItem> item(host(makeTable(&m_model)->parentWidget()));
    QList<QAccessible::Id> ids;
    ids << QAccessible::uniqueId(AccessibleTree::of(item.data()));
    const QList<QAccessibleInterface *> all
        = AccessibleTree::within(AccessibleTree::of(item.data()));
    for (QAccessibleInterface *told : all)
        ids << QAccessible::uniqueId(told);
    QVERIFY(ids.size() > 6);
    item.reset();
    for (QAccessible::Id id : qAsConst(ids))
        QVERIFY(!QAccessible::accessibleInterface(id));
    QCOMPARE(told()->childCount(), 0);
}

void tst_HostedAccess::widgetDiesFirst()
{
    auto *view = new QListView;
    view->setModel(&m_model);
    HostItem *item = host(view);
    QAccessibleInterface *list = AccessibleTree::find(told(), QAccessible::List);
    const QAccessible::Id listId = QAccessible::uniqueId(list);
    const QAccessible::Id rowId = QAccessible::uniqueId(list->child(0));
    delete view;
    QVERIFY(!QAccessible::accessibleInterface(listId));
    QVERIFY(!QAccessible::accessibleInterface(rowId));
    QCOMPARE(AccessibleTree::of(item)->childCount(), 0);
    QVERIFY(!AccessibleTree::of(item)->focusChild());
}

void tst_HostedAccess::modelDiesFirst()
{
    auto *model = new QStandardItemModel;
    model->appendRow(new QStandardItem(QLatin1String("a")));
    auto *view = new QListView;
    view->setModel(model);
    host(view);
    QAccessibleInterface *list = AccessibleTree::find(told(), QAccessible::List);
    QAccessibleInterface *row = list->child(0);
    QCOMPARE(AccessibleTree::name(row), QLatin1String("a"));
    delete model;
    QVERIFY(!row->isValid());
    QVERIFY(!row->state().checkable);
    QVERIFY(row->actionInterface()->actionNames().isEmpty());
    QCOMPARE(list->childCount(), 0);
    QVERIFY(!list->focusChild());
}

QTEST_MAIN(tst_HostedAccess)
#include "tst_HostedAccess.moc"

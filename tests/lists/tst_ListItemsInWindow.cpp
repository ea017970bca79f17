#include "lists/LogDataSetFilterListItem.h"
#include "lists/LogDataSetListItem.h"
#include "lists/LogVariableListItem.h"

#include "declarative/DeclarativeTypes.h"
#include "declarative/HostWindow.h"
#include "support/ModelTester.h"
#include "support/SmallLog.h"

#include <QListView>
#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>

namespace
{

const char *const kLog = "Obs Time A B|1 0 10 20|2 0 11 21|3 0 12 22";

/** Middle of a row's check box, in item coordinates. */
template <class Item> QPoint checkBoxCenter(const Item &item, int row)
{
    const QListView *view = item.listView();
    QStyleOptionViewItem option;
    option.initFrom(view);
    option.rect = view->visualRect(view->model()->index(row, 0));
    option.features = QStyleOptionViewItem::HasCheckIndicator | QStyleOptionViewItem::HasDisplay;
    option.text = view->model()->index(row, 0).data().toString();
    const QRect box
        = view->style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, view);
    return view->viewport()->mapTo(item.listView(), box.center());
}

/** Counts how often a widget is painted. */
class PaintCounter : public QObject
{
public:
    explicit PaintCounter(QWidget *widget)
        : count(0)
    {
        widget->installEventFilter(this);
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        count += event->type() == QEvent::Paint;
        return false;
    }

    int count;
};

} // namespace

/** The lists in a window, ticked by a user and made by scripts. */
class tst_ListItemsInWindow : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void clickTicksAVariable();
    void clickTicksOnlyItsOwnAxis();
    void clickTicksADataSet();
    void clickTicksACriterion();
    void quietChangesAreSeen();
    void bulkChangesAreRepainted_data();
    void bulkChangesAreRepainted();
    void formerSourceDoesNotRepaint();
    void scriptMakesLists_data();
    void scriptMakesLists();
    void scriptReadsTheAxis();

private:
    template <class Item> Item *add();
    bool settle(PaintCounter *paints);
    template <class Item> void checkRepaint(const char *signal);
    template <class Item> void checkNoRepaint();

    QScopedPointer<HostWindow> m_window;
    QScopedPointer<SmallLog> m_log;
};

void tst_ListItemsInWindow::initTestCase()
{
    QApplication::setStyle(QLatin1String("fusion"));
    registerDeclarativeType<LogVariableListItem>("DataLog", 1, 0, "LogVariableListItem");
    registerDeclarativeType<LogDataSetListItem>("DataLog", 1, 0, "LogDataSetListItem");
    registerDeclarativeType<LogDataSetFilterListItem>("DataLog", 1, 0, "LogDataSetFilterListItem");
    registerDeclarativeType<LogDataSourceItem>("DataLog", 1, 0, "LogDataSourceItem");
}

void tst_ListItemsInWindow::init()
{
    m_log.reset(new SmallLog(kLog));
    m_window.reset(new HostWindow);
    QVERIFY(m_window->open());
}

void tst_ListItemsInWindow::cleanup()
{
    m_window.reset();
    m_log.reset();
}

template <class Item> Item *tst_ListItemsInWindow::add()
{
    Item *item = new Item;
    item->setParent(m_window->contentItem());
    item->setParentItem(m_window->contentItem());
    item->setSize(QSizeF(400, 300));
    item->setDataSource(m_log->source.data());
    return item;
}

void tst_ListItemsInWindow::clickTicksAVariable()
{
    LogVariableListItem *item = add<LogVariableListItem>();
    const ModelTester tester(item->listView()->model());
    m_window->picture();
    QSignalSpy graph(m_log->source.data(), SIGNAL(graphDataUpdated()));
    m_window->click(checkBoxCenter(*item, 2));
    QCOMPARE(m_log->source->checkedItemList(0), QList<int>() << 2);
    QCOMPARE(graph.count(), 1);
    QCOMPARE(m_log->source->xData().first, QString::fromLatin1("A"));
    m_window->click(checkBoxCenter(*item, 2));
    QCOMPARE(m_log->source->checkedItemList(0), QList<int>());
    QCOMPARE(graph.count(), 2);
}

void tst_ListItemsInWindow::clickTicksOnlyItsOwnAxis()
{
    LogVariableListItem *item = add<LogVariableListItem>();
    item->setVariableListAxis(LogVariableListItem::VariableListAxis_Z);
    m_window->picture();
    m_window->click(checkBoxCenter(*item, 3));
    QCOMPARE(m_log->source->checkedItemList(0), QList<int>());
    QCOMPARE(m_log->source->checkedItemList(1), QList<int>());
    QCOMPARE(m_log->source->checkedItemList(2), QList<int>() << 3);
}

void tst_ListItemsInWindow::clickTicksADataSet()
{
    LogDataSetListItem *item = add<LogDataSetListItem>();
    m_log->check(0, "A");
    m_window->picture();
    m_window->click(checkBoxCenter(*item, 0));
    QCOMPARE(m_log->source->checkedItemList(3), QList<int>());
    QCOMPARE(m_log->source->checkedItemList(0), QList<int>());
}

void tst_ListItemsInWindow::clickTicksACriterion()
{
    m_log->source->buildFilter(2, 0, QLatin1String("10.5"));
    LogDataSetFilterListItem *item = add<LogDataSetFilterListItem>();
    QCOMPARE(m_log->source->checkedItemList(4), QList<int>() << 0);
    m_window->picture();
    m_window->click(checkBoxCenter(*item, 0));
    QCOMPARE(m_log->source->checkedItemList(4), QList<int>());
}

void tst_ListItemsInWindow::quietChangesAreSeen()
{
    LogVariableListItem *item = add<LogVariableListItem>();
    const QImage none = m_window->picture();
    m_log->source->setHorizontalVariable(QLatin1String("A"));
    const QImage one = m_window->picture();
    QVERIFY(one != none);
    const QPoint box = checkBoxCenter(*item, 2);
    QVERIFY(one.copy(QRect(box, QSize(3, 3))) != none.copy(QRect(box, QSize(3, 3))));
    m_log->source->selectDataSet(0);
    QCOMPARE(m_window->picture(), none);
}

/** Draws until nothing is painted any more, and counts from there. */
bool tst_ListItemsInWindow::settle(PaintCounter *paints)
{
    for (int i = 0; i < 20; ++i) {
        paints->count = 0;
        m_window->picture();
        if (i > 1 && paints->count == 0)
            return true;
    }
    return false;
}

void tst_ListItemsInWindow::bulkChangesAreRepainted_data()
{
    QTest::addColumn<QByteArray>("signal");
    QTest::newRow("graph") << QByteArray("graphDataUpdated");
    QTest::newRow("data") << QByteArray("dataUpdated");
    QTest::newRow("log") << QByteArray("logFileLoaded");
    QTest::newRow("criteria") << QByteArray("criteriaUpdated");
}

template <class Item> void tst_ListItemsInWindow::checkRepaint(const char *signal)
{
    QScopedPointer<Item> item(add<Item>());
    PaintCounter paints(item->listView()->viewport());
    QVERIFY(settle(&paints));
    QMetaObject::invokeMethod(m_log->source.data(), signal);
    m_window->picture();
    QCOMPARE(paints.count, 1);
}

void tst_ListItemsInWindow::bulkChangesAreRepainted()
{
    QFETCH(QByteArray, signal);
    checkRepaint<LogVariableListItem>(signal);
    checkRepaint<LogDataSetListItem>(signal);
    checkRepaint<LogDataSetFilterListItem>(signal);
}

template <class Item> void tst_ListItemsInWindow::checkNoRepaint()
{
    SmallLog other(kLog);
    QScopedPointer<Item> item(add<Item>());
    item->setDataSource(other.source.data());
    PaintCounter paints(item->listView()->viewport());
    QVERIFY(settle(&paints));
    QMetaObject::invokeMethod(m_log->source.data(), "graphDataUpdated");
    QMetaObject::invokeMethod(m_log->source.data(), "dataUpdated");
    QMetaObject::invokeMethod(m_log->source.data(), "logFileLoaded");
    QMetaObject::invokeMethod(m_log->source.data(), "criteriaUpdated");
    m_window->picture();
    QCOMPARE(paints.count, 0);
}

void tst_ListItemsInWindow::formerSourceDoesNotRepaint()
{
    checkNoRepaint<LogVariableListItem>();
    checkNoRepaint<LogDataSetListItem>();
    checkNoRepaint<LogDataSetFilterListItem>();
}

void tst_ListItemsInWindow::scriptMakesLists_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QString>("axisModel");

    QTest::newRow("default") << QByteArray("dataSource: source") << "x";
    QTest::newRow("key") << QByteArray(
        "variableListAxis: LogVariableListItem.VariableListAxis_Y; dataSource: source")
                         << "y";
    QTest::newRow("number") << QByteArray(
        "dataSource: source; property int axis: 2; variableListAxis: axis")
                            << "z";
    QTest::newRow("assigned later")
        << QByteArray("dataSource: source; Component.onCompleted: variableListAxis = 1") << "y";
    QTest::newRow("no axis") << QByteArray(
        "dataSource: source; Component.onCompleted: variableListAxis = 7")
                             << "x";
}

void tst_ListItemsInWindow::scriptMakesLists()
{
    QFETCH(QByteArray, script);
    QFETCH(QString, axisModel);
    QQmlEngine engine;
    engine.rootContext()->setContextProperty(QLatin1String("source"), m_log->source.data());
    QQmlComponent component(&engine);
    component.setData("import QtQuick 2.0\nimport DataLog 1.0\n"
                      "LogVariableListItem { width: 100; height: 50; "
                          + script + " }",
                      QUrl());
    QScopedPointer<QObject> object(component.create());
    QVERIFY2(object, qPrintable(component.errorString()));
    const LogVariableListItem *item = qobject_cast<LogVariableListItem *>(object.data());
    QVERIFY(item);
    LogDataSourceItem *source = m_log->source.data();
    QAbstractItemModel *expected = source->xVariableModel();
    if (axisModel == QLatin1String("y"))
        expected = source->yVariableModel();
    else if (axisModel == QLatin1String("z"))
        expected = source->zVariableModel();
    QCOMPARE(item->listView()->model(), expected);
    QCOMPARE(item->listView()->size(), QSize(100, 50));
}

void tst_ListItemsInWindow::scriptReadsTheAxis()
{
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData("import QtQuick 2.0\nimport DataLog 1.0\n"
                      "LogVariableListItem {\n"
                      "  variableListAxis: LogVariableListItem.VariableListAxis_Z\n"
                      "  property int axis: variableListAxis\n"
                      "  property bool same: variableListAxis === 2\n"
                      "}",
                      QUrl());
    QScopedPointer<QObject> object(component.create());
    QVERIFY2(object, qPrintable(component.errorString()));
    QCOMPARE(object->property("axis").toInt(), 2);
    QVERIFY(object->property("same").toBool());
}

QTEST_MAIN(tst_ListItemsInWindow)
#include "tst_ListItemsInWindow.moc"

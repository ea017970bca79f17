#include "lists/LogDataSetFilterListItem.h"
#include "lists/LogDataSetListItem.h"
#include "lists/LogVariableListItem.h"
#include "support/ModelTester.h"
#include "support/SmallLog.h"
#include "support/TestCompat.h"

#include <QGraphicsProxyWidget>
#include <QItemSelectionModel>
#include <QListView>

namespace
{

const char *const kLog = "Obs Time A B|1 0 10 20|2 0 11 21";

/** What scripts can pass: any number. */
LogVariableListItem::LogVariableListAxis anyAxis(int number)
{
    return static_cast<LogVariableListItem::LogVariableListAxis>(number);
}

QAbstractItemModel *modelOf(const LogVariableListItem &item)
{
    return item.listView()->model();
}

template <class Item> QAbstractItemModel *ownModel(LogDataSourceItem *source);
template <> QAbstractItemModel *ownModel<LogVariableListItem>(LogDataSourceItem *source)
{
    return source->xVariableModel();
}
template <> QAbstractItemModel *ownModel<LogDataSetListItem>(LogDataSourceItem *source)
{
    return source->dataSetModel();
}
template <> QAbstractItemModel *ownModel<LogDataSetFilterListItem>(LogDataSourceItem *source)
{
    return source->activeFilterModel();
}

} // namespace

class tst_ListItems : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void construction();
    void size();
    void settersEmitNothing();
    void sourceShowsItsModel();
    void anotherSource();
    void sourceDiesFirst();
    void noSourceAgain();
    void selectionModelsDoNotPileUp();

    void axisBeforeSource_data();
    void axisBeforeSource();
    void axisAfterSource();
    void axisWithoutSource();
    void variableListKeepsItsModelWithoutSource();
    void listsFollowAReload();
    void criteriaAppear();

private:
    template <class Item> void checkConstruction();
    template <class Item> void checkSize();
    template <class Item> void checkSilence();
    template <class Item> void checkModel();
    template <class Item> void checkAnotherSource();
    template <class Item> void checkDeath();
    template <class Item> void checkSelectionModels();

    QScopedPointer<SmallLog> m_log;
};

void tst_ListItems::init()
{
    m_log.reset(new SmallLog(kLog));
}

void tst_ListItems::cleanup()
{
    m_log.reset();
}

// What all three do

template <class Item> void tst_ListItems::checkConstruction()
{
    Item item;
    QVERIFY(!item.dataSource());
    const QListView plain;
    const QListView *view = item.listView();
    QVERIFY(!view->model());
    QCOMPARE(view->styleSheet(), QString());
    QCOMPARE(view->viewMode(), plain.viewMode());
    QCOMPARE(view->selectionMode(), plain.selectionMode());
    QCOMPARE(view->editTriggers(), plain.editTriggers());
    QCOMPARE(view->frameStyle(), plain.frameStyle());
    QCOMPARE(QByteArray(view->itemDelegate()->metaObject()->className()),
             QByteArray("QStyledItemDelegate"));
    QGraphicsProxyWidget *proxy = view->graphicsProxyWidget();
    QVERIFY(proxy);
    QCOMPARE(proxy->parentItem(), graphicsParent(&item));
    QCOMPARE(proxy->pos(), QPointF(0, 0));
}

void tst_ListItems::construction()
{
    checkConstruction<LogVariableListItem>();
    checkConstruction<LogDataSetListItem>();
    checkConstruction<LogDataSetFilterListItem>();
    QCOMPARE(LogVariableListItem().variableListAxis(), LogVariableListItem::VariableListAxis_X);
}

template <class Item> void tst_ListItems::checkSize()
{
    Item item;
    item.setWidth(200);
    item.setHeight(150);
    QCOMPARE(item.listView()->size(), QSize(200, 150));
    item.setWidth(321);
    QCOMPARE(item.listView()->size(), QSize(321, 150));
    item.setHeight(9);
    QCOMPARE(item.listView()->size(), QSize(321, 9));
    item.setHeight(99);
    item.listView()->graphicsProxyWidget()->resize(500, 500);
    item.resizeProxy();
    QCOMPARE(item.listView()->size(), QSize(321, 99));
}

void tst_ListItems::size()
{
    checkSize<LogVariableListItem>();
    checkSize<LogDataSetListItem>();
    checkSize<LogDataSetFilterListItem>();
}

template <class Item> void tst_ListItems::checkSilence()
{
    Item item;
    QSignalSpy changed(&item, SIGNAL(dataSourceChanged()));
    item.setDataSource(m_log->source.data());
    item.setDataSource(nullptr);
    QCOMPARE(changed.count(), 0);
}

void tst_ListItems::settersEmitNothing()
{
    checkSilence<LogVariableListItem>();
    checkSilence<LogDataSetListItem>();
    checkSilence<LogDataSetFilterListItem>();
    LogVariableListItem item;
    QSignalSpy changed(&item, SIGNAL(variableListAxisChanged()));
    item.setVariableListAxis(LogVariableListItem::VariableListAxis_Z);
    QCOMPARE(changed.count(), 0);
}

template <class Item> void tst_ListItems::checkModel()
{
    const ModelTester tester(ownModel<Item>(m_log->source.data()));
    Item item;
    item.setDataSource(m_log->source.data());
    QCOMPARE(item.dataSource(), m_log->source.data());
    QCOMPARE(item.listView()->model(), ownModel<Item>(m_log->source.data()));
}

void tst_ListItems::sourceShowsItsModel()
{
    checkModel<LogVariableListItem>();
    checkModel<LogDataSetListItem>();
    checkModel<LogDataSetFilterListItem>();
}

template <class Item> void tst_ListItems::checkAnotherSource()
{
    SmallLog other("N Time V|1 0 2");
    Item item;
    item.setDataSource(m_log->source.data());
    item.setDataSource(other.source.data());
    QCOMPARE(item.listView()->model(), ownModel<Item>(other.source.data()));
}

void tst_ListItems::anotherSource()
{
    checkAnotherSource<LogVariableListItem>();
    checkAnotherSource<LogDataSetListItem>();
    checkAnotherSource<LogDataSetFilterListItem>();
}

template <class Item> void tst_ListItems::checkDeath()
{
    SmallLog log(kLog);
    Item item;
    item.setWidth(100);
    item.setHeight(100);
    item.setDataSource(log.source.data());
    log.source.reset();
    QVERIFY(!item.dataSource());
    item.setWidth(120);
    item.setDataSource(m_log->source.data());
    QCOMPARE(item.listView()->model(), ownModel<Item>(m_log->source.data()));
}

void tst_ListItems::sourceDiesFirst()
{
    checkDeath<LogVariableListItem>();
    checkDeath<LogDataSetListItem>();
    checkDeath<LogDataSetFilterListItem>();
    LogVariableListItem item;
    item.setDataSource(m_log->source.data());
    m_log->source.reset();
    item.setVariableListAxis(LogVariableListItem::VariableListAxis_Y);
    item.updateModel();
    QVERIFY(!item.dataSource());
}

void tst_ListItems::noSourceAgain()
{
    LogDataSetListItem dataSets;
    dataSets.setDataSource(nullptr);
    QVERIFY(!dataSets.listView()->model());
    dataSets.setDataSource(m_log->source.data());
    dataSets.setDataSource(nullptr);
    QVERIFY(!dataSets.dataSource());
    QVERIFY(!dataSets.listView()->model());
    LogDataSetFilterListItem criteria;
    criteria.setDataSource(nullptr);
    criteria.setDataSource(m_log->source.data());
    criteria.setDataSource(nullptr);
    QVERIFY(!criteria.listView()->model());
}

template <class Item> void tst_ListItems::checkSelectionModels()
{
    SmallLog other(kLog);
    Item item;
    for (int i = 0; i < 20; ++i) {
        item.setDataSource(m_log->source.data());
        item.setDataSource(other.source.data());
        item.setDataSource(other.source.data());
    }
    QVERIFY(item.listView()->selectionModel());
    QCOMPARE(item.listView()->selectionModel()->model(), item.listView()->model());
    QCOMPARE(item.listView()->template findChildren<QItemSelectionModel *>().size(), 1);
}

void tst_ListItems::selectionModelsDoNotPileUp()
{
    checkSelectionModels<LogVariableListItem>();
    checkSelectionModels<LogDataSetListItem>();
    checkSelectionModels<LogDataSetFilterListItem>();
}

// The variable list's axis

void tst_ListItems::axisBeforeSource_data()
{
    QTest::addColumn<int>("axis");
    QTest::addColumn<QString>("model");
    QTest::newRow("X") << 0 << "x";
    QTest::newRow("Y") << 1 << "y";
    QTest::newRow("Z") << 2 << "z";
    QTest::newRow("none") << 7 << "x";
    QTest::newRow("negative") << -1 << "x";
}

void tst_ListItems::axisBeforeSource()
{
    QFETCH(int, axis);
    QFETCH(QString, model);
    LogDataSourceItem *source = m_log->source.data();
    LogVariableListItem item;
    item.setVariableListAxis(anyAxis(axis));
    QCOMPARE(int(item.variableListAxis()), axis);
    QVERIFY(!modelOf(item));
    item.setDataSource(source);
    QAbstractItemModel *expected = source->xVariableModel();
    if (model == QLatin1String("y"))
        expected = source->yVariableModel();
    else if (model == QLatin1String("z"))
        expected = source->zVariableModel();
    QCOMPARE(modelOf(item), expected);
}

void tst_ListItems::axisAfterSource()
{
    LogDataSourceItem *source = m_log->source.data();
    LogVariableListItem item;
    item.setDataSource(source);
    QCOMPARE(modelOf(item), source->xVariableModel());
    item.setVariableListAxis(LogVariableListItem::VariableListAxis_Y);
    QCOMPARE(modelOf(item), source->yVariableModel());
    item.setVariableListAxis(LogVariableListItem::VariableListAxis_Z);
    QCOMPARE(modelOf(item), source->zVariableModel());
    item.setVariableListAxis(LogVariableListItem::VariableListAxis_X);
    QCOMPARE(modelOf(item), source->xVariableModel());
}

void tst_ListItems::axisWithoutSource()
{
    LogVariableListItem item;
    item.setVariableListAxis(LogVariableListItem::VariableListAxis_Y);
    item.updateModel();
    item.setDataSource(nullptr);
    QVERIFY(!modelOf(item));
    QCOMPARE(item.variableListAxis(), LogVariableListItem::VariableListAxis_Y);
}

void tst_ListItems::variableListKeepsItsModelWithoutSource()
{
    LogVariableListItem item;
    item.setDataSource(m_log->source.data());
    item.setDataSource(nullptr);
    QVERIFY(!item.dataSource());
    QCOMPARE(modelOf(item), m_log->source->xVariableModel());
    item.setVariableListAxis(LogVariableListItem::VariableListAxis_Z);
    QCOMPARE(modelOf(item), m_log->source->xVariableModel());
}

// The models behind them

void tst_ListItems::listsFollowAReload()
{
    LogVariableListItem variables;
    LogDataSetListItem dataSets;
    variables.setDataSource(m_log->source.data());
    dataSets.setDataSource(m_log->source.data());
    const ModelTester variablesTester(modelOf(variables));
    const ModelTester dataSetsTester(dataSets.listView()->model());
    QCOMPARE(modelOf(variables)->rowCount(), 4);
    m_log->load("N Time V W X|1 0 2 3 4");
    QCOMPARE(modelOf(variables), m_log->source->xVariableModel());
    QCOMPARE(modelOf(variables)->rowCount(), 5);
    QCOMPARE(variables.listView()->model()->index(4, 0).data().toString(),
             QString::fromLatin1("X"));
    QCOMPARE(dataSets.listView()->model()->index(0, 0).data().toString(),
             QString::fromLatin1("Data Set 1"));
}

void tst_ListItems::criteriaAppear()
{
    LogDataSetFilterListItem item;
    item.setDataSource(m_log->source.data());
    const ModelTester tester(item.listView()->model());
    QCOMPARE(item.listView()->model()->rowCount(), 0);
    m_log->source->buildFilter(2, 1, QLatin1String("10.5"));
    QCOMPARE(item.listView()->model()->rowCount(), 1);
    QCOMPARE(item.listView()->model()->index(0, 0).data().toString(),
             QString::fromLatin1("A>=10.5"));
    m_log->source->clearCriteria();
    QCOMPARE(item.listView()->model()->rowCount(), 0);
}

QTEST_MAIN(tst_ListItems)
#include "tst_ListItems.moc"

#include "ChamberLog.h"
#include "ShownColumns.h"

#include "declarative/DeclarativeItem.h"
#include "support/LoadedLog.h"
#include "support/TestCompat.h"
#include "table/CheckboxItemDelegate.h"
#include "table/LogTableView.h"
#include "table/LogTableViewItem.h"
#include "table/ScrollBarStyle.h"

#include <QApplication>
#include <QGraphicsProxyWidget>
#include <QHeaderView>
#include <QScrollBar>
#include <QStackedWidget>

namespace
{

/** Counts connections to a signal, of any object. */
struct Connections : QObject {
    static int to(const QObject *object, const char *signal)
    {
        int (QObject::*const count)(const char *) const = &Connections::receivers;
        return (object->*count)(signal);
    }
};

} // namespace

class tst_LogTableViewItem : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void startsAsDeclared();
    void doesNothingWithoutASource();
    void optionChoosesTheModel_data();
    void optionChoosesTheModel();
    void optionBeforeSource_data() { optionChoosesTheModel_data(); }
    void optionBeforeSource();
    void analysisLeavesTheTable_data();
    void analysisLeavesTheTable();
    void optionFitsColumnsAndRows();
    void checkBoxesAreInFrontOfObservations();

    void newDataIsFitted();

    void remarksAndReloadChangeNothing();
    void settersEmitNothing();
    void readsBackWhatWasSet();
    void followsItsSize();
    void looks();
    void headersTakeNoPresses();
    void barsAreStyled();

    void sourceMayGoFirst();
    void sourceIsReplaced();
    void noSourceAnyMore();
    void switchingLeavesNothingBehind();
    void replacingSourcesLeavesNothingBehind();

private:
    QAbstractItemModel *observations() const
    {
        return m_log->source->observationFilteredTableModel();
    }

    QScopedPointer<LoadedLog> m_log;
    QScopedPointer<LogTableViewItem> m_item;
};

void tst_LogTableViewItem::initTestCase()
{
    QApplication::setStyle(QLatin1String("fusion"));
}

void tst_LogTableViewItem::init()
{
    m_log.reset(new LoadedLog(kChamberLog));
    m_item.reset(new LogTableViewItem);
}

void tst_LogTableViewItem::cleanup()
{
    m_item.reset();
    m_log.reset();
}

void tst_LogTableViewItem::startsAsDeclared()
{
    QVERIFY(!m_item->dataSource());
    QCOMPARE(int(m_item->logViewerViewOption()), 0);
    QVERIFY(m_item->remarksEnabled());
    QVERIFY(!m_item->checkableColumnEnabled());
    QVERIFY(!m_item->tableView()->model());
}

void tst_LogTableViewItem::doesNothingWithoutASource()
{
    m_item->setLogViewerViewOption(LogTableViewItem::PlottedData);
    QCOMPARE(int(m_item->logViewerViewOption()), 2);
    m_item->setRemarksEnabled(false);
    m_item->reloadData();
    m_item->hideAllColumns();
    m_item->showAllColumns();
    m_item->showGraphedColumns();
    m_item->hideColumnsForHeaderPart(text("Sys"));
    m_item->showColumnsForHeaderPart(text("Sys"));
    m_item->setDataSource(nullptr);
    QVERIFY(!m_item->tableView()->model());
}

void tst_LogTableViewItem::optionChoosesTheModel_data()
{
    QTest::addColumn<int>("option");
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("columns");
    QTest::newRow("header") << 0 << 12 << 3;
    QTest::newRow("data") << 1 << 4 << 6;
    QTest::newRow("plotted data") << 2 << 4 << 6;
}

void tst_LogTableViewItem::optionChoosesTheModel()
{
    QFETCH(int, option);
    QFETCH(int, rows);
    QFETCH(int, columns);
    m_item->setDataSource(m_log->source.data());
    m_item->setLogViewerViewOption(LogTableViewItem::LogViewerViewOptions(option));
    const QAbstractItemModel *model = m_item->tableView()->model();
    QVERIFY(model == (option ? observations() : m_log->source->constTableModel()));
    QCOMPARE(model->rowCount(), rows);
    QCOMPARE(model->columnCount(), columns);
}

void tst_LogTableViewItem::optionBeforeSource()
{
    QFETCH(int, option);
    m_item->setLogViewerViewOption(LogTableViewItem::LogViewerViewOptions(option));
    m_item->setDataSource(m_log->source.data());
    QVERIFY(m_item->tableView()->model()
            == (option ? observations() : m_log->source->constTableModel()));
}

void tst_LogTableViewItem::analysisLeavesTheTable_data()
{
    QTest::addColumn<int>("option");
    QTest::newRow("analysis") << 3;
    QTest::newRow("no option at all") << 7;
}

void tst_LogTableViewItem::analysisLeavesTheTable()
{
    QFETCH(int, option);
    m_item->setDataSource(m_log->source.data());
    m_item->setLogViewerViewOption(LogTableViewItem::Data);
    m_item->hideColumnsForHeaderPart(text("Sys"));
    m_item->setLogViewerViewOption(LogTableViewItem::LogViewerViewOptions(option));
    QCOMPARE(int(m_item->logViewerViewOption()), option);
    QVERIFY(m_item->tableView()->model() == observations());
    QCOMPARE(shownColumns(*m_item), text("0,3,4,5"));
}

void tst_LogTableViewItem::optionFitsColumnsAndRows()
{
    m_item->setDataSource(m_log->source.data());
    m_item->setLogViewerViewOption(LogTableViewItem::Data);
    const QTableView *view = m_item->tableView();
    const QModelIndex time = observations()->index(0, 2);
    QCOMPARE(view->columnWidth(2), view->sizeHintForIndex(time).width() + 1);
    QVERIFY(view->rowHeight(0) >= view->sizeHintForIndex(time).height() + 1);
    // The number alone would need less.
    QCOMPARE(view->columnWidth(1), view->horizontalHeader()->sectionSizeHint(1));
}

void tst_LogTableViewItem::checkBoxesAreInFrontOfObservations()
{
    const QTableView *view = m_item->tableView();
    m_item->setDataSource(m_log->source.data());
    QVERIFY(!view->itemDelegateForColumn(0));
    m_item->setLogViewerViewOption(LogTableViewItem::PlottedData);
    QVERIFY(qobject_cast<CheckboxItemDelegate *>(view->itemDelegateForColumn(0)));
    m_item->setLogViewerViewOption(LogTableViewItem::Data);
    QVERIFY(qobject_cast<CheckboxItemDelegate *>(view->itemDelegateForColumn(0)));
    m_item->setLogViewerViewOption(LogTableViewItem::Header);
    QVERIFY(!view->itemDelegateForColumn(0));
}

void tst_LogTableViewItem::newDataIsFitted()
{
    m_item->setDataSource(m_log->source.data());
    m_item->setLogViewerViewOption(LogTableViewItem::Data);
    const int width = m_item->tableView()->columnWidth(2);
    m_item->tableView()->setColumnWidth(2, 333);
    m_log->source->selectDataSet(1);
    m_item->showAllColumns();
    QCOMPARE(m_item->tableView()->columnWidth(2), width);
}

void tst_LogTableViewItem::remarksAndReloadChangeNothing()
{
    m_item->setDataSource(m_log->source.data());
    m_item->setLogViewerViewOption(LogTableViewItem::Data);
    m_item->hideColumnsForHeaderPart(text("Air"));
    m_item->setRemarksEnabled(false);
    QVERIFY(!m_item->remarksEnabled());
    m_item->setRemarksEnabled(false);
    m_item->reloadData();
    QCOMPARE(observations()->rowCount(), 4);
    QCOMPARE(shownColumns(*m_item), text("0,1,2,3"));
    for (int row = 0; row < 4; ++row)
        QCOMPARE(m_item->tableView()->columnSpan(row, 1), 1);
    m_item->setRemarksEnabled(true);
    QVERIFY(m_item->remarksEnabled());
    QCOMPARE(observations()->rowCount(), 4);
}

void tst_LogTableViewItem::settersEmitNothing()
{
    QSignalSpy source(m_item.data(), SIGNAL(dataSourceChanged()));
    QSignalSpy option(m_item.data(), SIGNAL(logViewerViewOptionChanged()));
    QSignalSpy remarks(m_item.data(), SIGNAL(remarksEnabledChanged()));
    QSignalSpy checkable(m_item.data(), SIGNAL(checkableColumnEnabledChanged()));
    m_item->setDataSource(m_log->source.data());
    m_item->setLogViewerViewOption(LogTableViewItem::Data);
    m_item->setRemarksEnabled(false);
    m_item->setCheckableColumnEnabled(true);
    QCOMPARE(source.count() + option.count() + remarks.count() + checkable.count(), 0);
}

void tst_LogTableViewItem::readsBackWhatWasSet()
{
    m_item->setProperty("logViewerViewOption", 2);
    QCOMPARE(m_item->property("logViewerViewOption").toInt(), 2);
    m_item->setProperty("checkableColumnEnabled", true);
    QVERIFY(m_item->property("checkableColumnEnabled").toBool());
    m_item->setProperty("remarksEnabled", false);
    QVERIFY(!m_item->property("remarksEnabled").toBool());
    m_item->setDataSource(m_log->source.data());
    QVERIFY(m_item->dataSource() == m_log->source.data());
}

void tst_LogTableViewItem::followsItsSize()
{
    m_item->setWidth(321);
    m_item->setHeight(234);
    QCOMPARE(m_item->tableView()->size(), QSize(321, 234));
    const QStackedWidget *stack
        = qobject_cast<QStackedWidget *>(m_item->tableView()->parentWidget());
    QVERIFY(stack);
    QCOMPARE(stack->count(), 1);
    QCOMPARE(stack->graphicsProxyWidget()->pos(), QPointF(0, 0));
    QCOMPARE(stack->graphicsProxyWidget()->size(), QSizeF(321, 234));
}

void tst_LogTableViewItem::looks()
{
    const QTableView *view = m_item->tableView();
    const QHeaderView *header = view->horizontalHeader();
    QCOMPARE(header->minimumSectionSize(), 40);
    QCOMPARE(header->minimumHeight(), 40);
    QVERIFY(view->alternatingRowColors());
    QCOMPARE(view->verticalScrollMode(), QAbstractItemView::ScrollPerItem);
    QCOMPARE(view->horizontalScrollMode(), QAbstractItemView::ScrollPerItem);
    QCOMPARE(header->palette().color(QPalette::Active, QPalette::Window), QColor(Qt::white));
    const QColor stripe(206, 218, 234);
    QCOMPARE(view->palette().color(QPalette::Active, QPalette::AlternateBase), stripe);
    QCOMPARE(view->palette().color(QPalette::Inactive, QPalette::AlternateBase), stripe);
    QCOMPARE(view->palette().color(QPalette::Disabled, QPalette::AlternateBase), stripe);
    m_item->setDataSource(m_log->source.data());
    m_item->setLogViewerViewOption(LogTableViewItem::Data);
}

void tst_LogTableViewItem::headersTakeNoPresses()
{
    m_item->setDataSource(m_log->source.data());
    m_item->setLogViewerViewOption(LogTableViewItem::Data);
    QHeaderView *const headers[]
        = {m_item->tableView()->horizontalHeader(), m_item->tableView()->verticalHeader()};
    for (size_t i = 0; i < 2; ++i) {
        QSignalSpy pressed(headers[i], SIGNAL(sectionPressed(int)));
        QSignalSpy clicked(headers[i], SIGNAL(sectionClicked(int)));
        QCOMPARE(headers[i]->logicalIndexAt(QPoint(10, 10)), 0);
        QTest::mouseClick(headers[i]->viewport(), Qt::LeftButton, Qt::KeyboardModifiers(),
                          QPoint(10, 10));
        QCOMPARE(pressed.count() + clicked.count(), 0);
    }
}

void tst_LogTableViewItem::barsAreStyled()
{
    const QScrollBar *across = m_item->tableView()->horizontalScrollBar();
    const QScrollBar *down = m_item->tableView()->verticalScrollBar();
    QCOMPARE(across->styleSheet(), ScrollBarStyle::horizontal());
    QCOMPARE(down->styleSheet(), ScrollBarStyle::vertical());
    QCOMPARE(across->sizeHint().height(), 30);
    QCOMPARE(down->sizeHint().width(), 30);
}

void tst_LogTableViewItem::sourceMayGoFirst()
{
    m_item->setDataSource(m_log->source.data());
    m_item->setLogViewerViewOption(LogTableViewItem::PlottedData);
    m_log->source.reset();
    QVERIFY(!m_item->dataSource());
    m_item->showGraphedColumns();
    m_item->hideAllColumns();
    m_item->showAllColumns();
    m_item->reloadData();
    m_item->hideColumnsForHeaderPart(text("Air"));
    m_item->setLogViewerViewOption(LogTableViewItem::Header);
    m_item->setWidth(100);
    LoadedLog another(kChamberLog);
    m_item->setDataSource(another.source.data());
    QVERIFY(m_item->tableView()->model() == another.source->constTableModel());
    m_item->setDataSource(nullptr);
}

void tst_LogTableViewItem::sourceIsReplaced()
{
    LoadedLog another(kChamberLog);
    m_item->setDataSource(m_log->source.data());
    m_item->setLogViewerViewOption(LogTableViewItem::PlottedData);
    m_item->setDataSource(another.source.data());
    QVERIFY(m_item->tableView()->model() == another.source->observationFilteredTableModel());
    another.plot(0, 1);
    m_log->plot(0, 3);
    m_log->source->selectDataSet(1);
    QCOMPARE(shownColumns(*m_item), text("1,2"));
}

void tst_LogTableViewItem::noSourceAnyMore()
{
    m_item->setDataSource(m_log->source.data());
    m_item->setLogViewerViewOption(LogTableViewItem::Data);
    m_item->setDataSource(nullptr);
    QVERIFY(m_item->tableView()->model() == observations());
    m_item->setLogViewerViewOption(LogTableViewItem::Header);
    QVERIFY(m_item->tableView()->model() == observations());
    m_log->source->selectDataSet(0);
    QCOMPARE(shownColumns(*m_item), text("0,1,2,3,4,5"));
}

void tst_LogTableViewItem::switchingLeavesNothingBehind()
{
    const LogDataSourceItem *source = m_log->source.data();
    m_item->setDataSource(m_log->source.data());
    const char *const reset = SIGNAL(modelReset());
    const char *const graph = SIGNAL(graphDataUpdated());
    QList<int> once;
    for (int i = 0; i < 170; ++i) {
        for (int option = 0; option < 4; ++option)
            m_item->setLogViewerViewOption(LogTableViewItem::LogViewerViewOptions(option));
        m_item->setLogViewerViewOption(LogTableViewItem::Data);
        m_item->setLogViewerViewOption(LogTableViewItem::Data);
        const QList<int> now = QList<int>()
            << Connections::to(m_log->source->tableModel(), reset)
            << Connections::to(m_log->source->constTableModel(), reset)
            << Connections::to(observations(), reset) << Connections::to(source, graph)
            << m_item->findChildren<CheckboxItemDelegate *>().size()
            << m_item->tableView()->findChildren<QObject *>().size();
        if (i == 0)
            once = now;
        QCOMPARE(now, once);
    }
    QCOMPARE(once.at(3), 0);
    QCOMPARE(once.at(4), 1);
}

void tst_LogTableViewItem::replacingSourcesLeavesNothingBehind()
{
    LoadedLog another(kChamberLog);
    m_item->setLogViewerViewOption(LogTableViewItem::PlottedData);
    for (int i = 0; i < 100; ++i) {
        m_item->setDataSource(m_log->source.data());
        m_item->setDataSource(another.source.data());
    }
    QCOMPARE(Connections::to(m_log->source.data(), SIGNAL(dataUpdated())), 0);
    QCOMPARE(Connections::to(m_log->source.data(), SIGNAL(graphDataUpdated())), 0);
    QCOMPARE(Connections::to(another.source.data(), SIGNAL(dataUpdated())), 2);
    QCOMPARE(Connections::to(another.source.data(), SIGNAL(graphDataUpdated())), 1);
    // This one stays, but once.
    QCOMPARE(Connections::to(m_log->source.data(), SIGNAL(excludedPointsCleared())), 1);
    QCOMPARE(Connections::to(another.source.data(), SIGNAL(excludedPointsCleared())), 1);
    m_item.reset();
    QCOMPARE(Connections::to(m_log->source.data(), SIGNAL(excludedPointsCleared())), 0);
}

QTEST_MAIN(tst_LogTableViewItem)
#include "tst_LogTableViewItem.moc"

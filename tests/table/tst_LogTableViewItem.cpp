#include "ChamberLog.h"

#include "declarative/DeclarativeItem.h"
#include "support/LoadedLog.h"
#include "support/TestCompat.h"
#include "table/CheckboxItemDelegate.h"
#include "table/LogTableView.h"
#include "table/LogTableViewItem.h"

#include <QApplication>
#include <QGraphicsProxyWidget>
#include <QHeaderView>
#include <QScrollBar>
#include <QStackedWidget>

namespace
{

/** Columns that show, such as "0,3". */
QString shownColumns(const LogTableViewItem &item)
{
    QStringList columns;
    for (int column = 0; column < item.tableView()->horizontalHeader()->count(); ++column) {
        if (!item.tableView()->isColumnHidden(column))
            columns << QString::number(column);
    }
    return columns.join(QLatin1String(","));
}

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

/** Counts connections to a signal, of any object. */
struct Connections : QObject {
    static int to(const QObject *object, const char *signal)
    {
        int (QObject::*const count)(const char *) const = &Connections::receivers;
        return (object->*count)(signal);
    }
};

} // namespace

/** Writes down which columns show while a model is being reset. */
class ResetProbe : public QObject
{
    Q_OBJECT

public:
    ResetProbe(const QAbstractItemModel *model, const LogTableViewItem *item)
        : m_item(item)
    {
        connect(model, SIGNAL(modelAboutToBeReset()), SLOT(look()));
    }

    QString shown;

private slots:
    void look() { shown = shownColumns(*m_item); }

private:
    const LogTableViewItem *m_item;
};

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

    void resetHidesColumns_data();
    void resetHidesColumns();
    void resetShowsColumnsMeanwhile();
    void analysisKeepsFollowing();
    void newDataIsFitted();

    void plottedDataShowsGraphedColumns_data();
    void plottedDataShowsGraphedColumns();
    void plottedDataFollowsTheGraph();
    void plottedDataSurvivesAReset();
    void plottedDataTakesThePlaceOfData();
    void graphedColumnsBeyondTheTable();
    void checkBoxesJoinAtTheNextHiding();
    void keepsItsPlaceWhenAPointIsExcluded();

    void hidesByHeaderPart_data();
    void hidesByHeaderPart();
    void showsByHeaderPart_data() { hidesByHeaderPart_data(); }
    void showsByHeaderPart();
    void scriptsLeaveArgumentsOut();
    void hidesConstantsByHeaderPart();

    void remarksAndReloadChangeNothing();
    void settersEmitNothing();
    void readsBackWhatWasSet();
    void followsItsSize();
    void looks();
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

void tst_LogTableViewItem::resetHidesColumns_data()
{
    QTest::addColumn<int>("option");
    QTest::addColumn<bool>("checkable");
    QTest::addColumn<QString>("shown");
    QTest::newRow("header") << 0 << false << "";
    QTest::newRow("header with check boxes") << 0 << true << "0";
    QTest::newRow("data") << 1 << false << "";
    QTest::newRow("data with check boxes") << 1 << true << "0";
}

void tst_LogTableViewItem::resetHidesColumns()
{
    QFETCH(int, option);
    QFETCH(bool, checkable);
    QFETCH(QString, shown);
    m_item->setCheckableColumnEnabled(checkable);
    m_item->setDataSource(m_log->source.data());
    m_item->setLogViewerViewOption(LogTableViewItem::LogViewerViewOptions(option));
    m_item->showAllColumns();
    m_log->source->selectDataSet(1);
    QCOMPARE(shownColumns(*m_item), shown);
    m_item->showColumnsForHeaderPart(text(option ? "Gas" : "Sys"));
    QVERIFY(shownColumns(*m_item) != shown || (!option && checkable));
}

void tst_LogTableViewItem::resetShowsColumnsMeanwhile()
{
    m_item->setDataSource(m_log->source.data());
    m_item->setLogViewerViewOption(LogTableViewItem::Data);
    m_item->hideAllColumns();
    const ResetProbe probe(m_log->source->tableModel(), m_item.data());
    m_log->source->selectDataSet(0);
    QCOMPARE(probe.shown, text("0,1,2,3,4,5"));
    QCOMPARE(shownColumns(*m_item), text(""));
}

void tst_LogTableViewItem::analysisKeepsFollowing()
{
    m_item->setDataSource(m_log->source.data());
    m_item->setLogViewerViewOption(LogTableViewItem::Data);
    m_item->setLogViewerViewOption(LogTableViewItem::Analysis);
    m_log->source->selectDataSet(0);
    QCOMPARE(shownColumns(*m_item), text(""));
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

void tst_LogTableViewItem::plottedDataShowsGraphedColumns_data()
{
    QTest::addColumn<bool>("checkable");
    QTest::addColumn<QString>("shown");
    QTest::newRow("alone") << false << "1,4";
    QTest::newRow("with check boxes") << true << "0,1,4";
}

void tst_LogTableViewItem::plottedDataShowsGraphedColumns()
{
    QFETCH(bool, checkable);
    QFETCH(QString, shown);
    m_item->setCheckableColumnEnabled(checkable);
    m_item->setDataSource(m_log->source.data());
    m_log->plot(0, 3);
    QCOMPARE(m_log->source->graphedColumns(), QVector<int>() << 0 << 3);
    m_item->setLogViewerViewOption(LogTableViewItem::PlottedData);
    QCOMPARE(shownColumns(*m_item), shown);
    m_item->showAllColumns();
    QMetaObject::invokeMethod(m_log->source.data(), "graphDataUpdated");
    QCOMPARE(shownColumns(*m_item), shown);
    const QString header
        = observations()->headerData(4, Qt::Horizontal, Qt::DisplayRole).toString();
    QCOMPARE(header, text("Air\nTair\nC"));
}

void tst_LogTableViewItem::plottedDataFollowsTheGraph()
{
    m_item->setDataSource(m_log->source.data());
    m_item->setLogViewerViewOption(LogTableViewItem::PlottedData);
    QCOMPARE(shownColumns(*m_item), text(""));
    m_log->plot(0, 2);
    QCOMPARE(shownColumns(*m_item), text("1,3"));
    m_log->source->updateVariableSelection(2, 4, true);
    QCOMPARE(shownColumns(*m_item), text("1,3,5"));
    m_log->source->updateVariableSelection(1, 2, false);
    QCOMPARE(shownColumns(*m_item), text("1,5"));
    m_log->source->selectDataSet(1);
    QCOMPARE(shownColumns(*m_item), text(""));
}

void tst_LogTableViewItem::plottedDataSurvivesAReset()
{
    m_item->setDataSource(m_log->source.data());
    m_item->setLogViewerViewOption(LogTableViewItem::PlottedData);
    m_log->plot(0, 2);
    // A criterion fills the models anew and leaves the series to others.
    m_log->source->buildFilter(2, 0, text("401"));
    QCOMPARE(shownColumns(*m_item), text("1,3"));
}

void tst_LogTableViewItem::plottedDataTakesThePlaceOfData()
{
    m_item->setDataSource(m_log->source.data());
    m_log->plot(0, 2);
    m_item->setLogViewerViewOption(LogTableViewItem::Data);
    m_item->setLogViewerViewOption(LogTableViewItem::PlottedData);
    QMetaObject::invokeMethod(m_log->source.data(), "updateData");
    QCOMPARE(shownColumns(*m_item), text("1,3"));
    m_item->setLogViewerViewOption(LogTableViewItem::Data);
    QCOMPARE(shownColumns(*m_item), text("1,3"));
    m_log->source->updateVariableSelection(1, 3, true);
    QCOMPARE(shownColumns(*m_item), text("1,3"));
    QMetaObject::invokeMethod(m_log->source.data(), "updateData");
    QCOMPARE(shownColumns(*m_item), text(""));
}

void tst_LogTableViewItem::graphedColumnsBeyondTheTable()
{
    m_item->setDataSource(m_log->source.data());
    m_item->setLogViewerViewOption(LogTableViewItem::PlottedData);
    m_log->source->selectDataSet(1);
    // The lists have the first data set's variables; the second one ends before this one.
    m_log->plot(0, 4);
    QVERIFY(m_log->source->graphedColumns().contains(4));
    QCOMPARE(shownColumns(*m_item), text("1"));
}

void tst_LogTableViewItem::checkBoxesJoinAtTheNextHiding()
{
    m_item->setDataSource(m_log->source.data());
    m_item->setLogViewerViewOption(LogTableViewItem::Data);
    m_item->hideAllColumns();
    m_item->setCheckableColumnEnabled(true);
    QCOMPARE(shownColumns(*m_item), text(""));
    m_item->hideAllColumns();
    QCOMPARE(shownColumns(*m_item), text("0"));
    m_item->setCheckableColumnEnabled(false);
    QCOMPARE(shownColumns(*m_item), text("0"));
    m_item->hideAllColumns();
    QCOMPARE(shownColumns(*m_item), text(""));
}

void tst_LogTableViewItem::keepsItsPlaceWhenAPointIsExcluded()
{
    m_item->setCheckableColumnEnabled(true);
    m_item->setDataSource(m_log->source.data());
    m_item->setLogViewerViewOption(LogTableViewItem::PlottedData);
    for (int variable = 0; variable < 5; ++variable)
        m_log->source->updateVariableSelection(1, variable, true);
    m_log->plot(0, 2);
    m_item->tableView()->parentWidget()->resize(150, 150);
    m_item->tableView()->horizontalScrollBar()->setValue(2);
    QCOMPARE(m_item->tableView()->horizontalScrollBar()->value(), 2);
    m_log->setExcluded(1, true);
    QCoreApplication::processEvents();
    QCOMPARE(m_item->tableView()->horizontalScrollBar()->value(), 2);
}

void tst_LogTableViewItem::hidesByHeaderPart_data()
{
    QTest::addColumn<QString>("part");
    QTest::addColumn<QString>("delimiter");
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("hidden");
    const char *const standard = "[\n|\r\n|\r]";
    QTest::newRow("group") << "Air" << standard << 0 << "4,5";
    QTest::newRow("name") << "CO2" << standard << 1 << "3";
    QTest::newRow("unit") << "ppm" << standard << 2 << "3";
    QTest::newRow("unit that is not there") << "Obs" << standard << 2 << "";
    QTest::newRow("empty parts don't count") << "s" << standard << 2 << "2";
    QTest::newRow("whole parts only") << "Ai" << standard << 0 << "";
    QTest::newRow("case matters") << "air" << standard << 0 << "";
    QTest::newRow("no such part") << "Soil" << standard << 0 << "";
    QTest::newRow("check boxes") << "Exclude" << standard << 0 << "0";
    QTest::newRow("a bar splits a name") << "wet" << standard << 2 << "5";
    QTest::newRow("and moves the unit") << "%" << standard << 3 << "5";
    QTest::newRow("line ends alone don't") << "RH|wet"
                                           << "\n"
                                           << 1 << "5";
    QTest::newRow("another delimiter") << "r\nTai"
                                       << "[A]|r\nC" << 0 << "";
    QTest::newRow("letters delimit") << "ir\nT"
                                     << "[Aa]" << 0 << "4";
    QTest::newRow("an index before the first") << "Air" << standard << -1 << "";
    QTest::newRow("an index past the last") << "Air" << standard << 99 << "";
    QTest::newRow("no delimiter") << "A"
                                  << "" << 0 << "4,5";
    QTest::newRow("a broken delimiter") << "Exclude"
                                        << "[" << 0 << "0";
    QTest::newRow("an empty part") << "" << standard << 0 << "";
}

void tst_LogTableViewItem::hidesByHeaderPart()
{
    QFETCH(QString, part);
    QFETCH(QString, delimiter);
    QFETCH(int, index);
    QFETCH(QString, hidden);
    m_item->setDataSource(m_log->source.data());
    m_item->setLogViewerViewOption(LogTableViewItem::Data);
    m_item->hideColumnsForHeaderPart(part, delimiter, index);
    QStringList shown;
    for (int column = 0; column < 6; ++column) {
        if (!hidden.split(QLatin1Char(',')).contains(QString::number(column)))
            shown << QString::number(column);
    }
    QCOMPARE(shownColumns(*m_item), shown.join(QLatin1String(",")));
}

void tst_LogTableViewItem::showsByHeaderPart()
{
    QFETCH(QString, part);
    QFETCH(QString, delimiter);
    QFETCH(int, index);
    QFETCH(QString, hidden);
    m_item->setDataSource(m_log->source.data());
    m_item->setLogViewerViewOption(LogTableViewItem::Data);
    m_item->hideAllColumns();
    m_item->showColumnsForHeaderPart(part, delimiter, index);
    QCOMPARE(shownColumns(*m_item), hidden);
}

void tst_LogTableViewItem::scriptsLeaveArgumentsOut()
{
    m_item->setDataSource(m_log->source.data());
    m_item->setLogViewerViewOption(LogTableViewItem::Data);
    QVERIFY(QMetaObject::invokeMethod(m_item.data(), "hideColumnsForHeaderPart",
                                      Q_ARG(QString, text("Air"))));
    QCOMPARE(shownColumns(*m_item), text("0,1,2,3"));
    QVERIFY(QMetaObject::invokeMethod(m_item.data(), "hideColumnsForHeaderPart",
                                      Q_ARG(QString, text("Gas\nCO2\nppm")),
                                      Q_ARG(QString, text(";"))));
    QCOMPARE(shownColumns(*m_item), text("0,1,2"));
    QVERIFY(QMetaObject::invokeMethod(m_item.data(), "showColumnsForHeaderPart",
                                      Q_ARG(QString, text("Air"))));
    QCOMPARE(shownColumns(*m_item), text("0,1,2,4,5"));
    QVERIFY(QMetaObject::invokeMethod(m_item.data(), "showColumnsForHeaderPart",
                                      Q_ARG(QString, text("Gas\nCO2\nppm")),
                                      Q_ARG(QString, text(";"))));
    QCOMPARE(shownColumns(*m_item), text("0,1,2,3,4,5"));
}

void tst_LogTableViewItem::hidesConstantsByHeaderPart()
{
    m_item->setDataSource(m_log->source.data());
    m_item->hideColumnsForHeaderPart(text("Zero"), text("\n"), 1);
    QCOMPARE(shownColumns(*m_item), text("0,2"));
    m_item->showColumnsForHeaderPart(text("Gas"));
    QCOMPARE(shownColumns(*m_item), text("0,1,2"));
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
    QCOMPARE(view->property("sortingEnabled").toBool(), false);
}

void tst_LogTableViewItem::barsAreStyled()
{
    QScrollBar *across = m_item->tableView()->horizontalScrollBar();
    QScrollBar *down = m_item->tableView()->verticalScrollBar();
    QVERIFY(across->styleSheet().contains(text("#c5e4f5")));
    QVERIFY(across->styleSheet().contains(text("QScrollBar:left-arrow:horizontal")));
    QVERIFY(down->styleSheet().contains(text("#c5e4f5")));
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
    const char *const sourceSignals[]
        = {SIGNAL(dataUpdated()), SIGNAL(graphDataUpdated()), SIGNAL(excludedPointsCleared())};
    for (size_t i = 0; i < 3; ++i)
        QCOMPARE(Connections::to(m_log->source.data(), sourceSignals[i]), 0);
    QCOMPARE(Connections::to(another.source.data(), SIGNAL(graphDataUpdated())), 1);
    QCOMPARE(Connections::to(another.source.data(), SIGNAL(excludedPointsCleared())), 1);
}

QTEST_MAIN(tst_LogTableViewItem)
#include "tst_LogTableViewItem.moc"

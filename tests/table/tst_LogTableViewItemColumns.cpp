#include "ChamberLog.h"
#include "ShownColumns.h"

#include "support/LoadedLog.h"
#include "support/TestCompat.h"
#include "table/LogTableView.h"
#include "table/LogTableViewItem.h"

#include <QApplication>
#include <QHeaderView>
#include <QScrollBar>

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

/** Which columns a table shows, and when. */
class tst_LogTableViewItemColumns : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void resetHidesColumns_data();
    void resetHidesColumns();
    void resetShowsColumnsMeanwhile();
    void analysisKeepsFollowing();
    void anotherModelStartsWithAllColumns();
    void theSameModelKeepsItsColumns();

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
    void hidesByHeaderPartWithoutRows();

private:
    QAbstractItemModel *observations() const
    {
        return m_log->source->observationFilteredTableModel();
    }

    QScopedPointer<LoadedLog> m_log;
    QScopedPointer<LogTableViewItem> m_item;
};

void tst_LogTableViewItemColumns::initTestCase()
{
    QApplication::setStyle(QLatin1String("fusion"));
}

void tst_LogTableViewItemColumns::init()
{
    m_log.reset(new LoadedLog(kChamberLog));
    m_item.reset(new LogTableViewItem);
}

void tst_LogTableViewItemColumns::cleanup()
{
    m_item.reset();
    m_log.reset();
}

void tst_LogTableViewItemColumns::resetHidesColumns_data()
{
    QTest::addColumn<int>("option");
    QTest::addColumn<bool>("checkable");
    QTest::addColumn<QString>("shown");
    QTest::newRow("header") << 0 << false << "";
    QTest::newRow("header with check boxes") << 0 << true << "0";
    QTest::newRow("data") << 1 << false << "";
    QTest::newRow("data with check boxes") << 1 << true << "0";
}

void tst_LogTableViewItemColumns::resetHidesColumns()
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

void tst_LogTableViewItemColumns::resetShowsColumnsMeanwhile()
{
    m_item->setDataSource(m_log->source.data());
    m_item->setLogViewerViewOption(LogTableViewItem::Data);
    m_item->hideAllColumns();
    const ResetProbe probe(m_log->source->tableModel(), m_item.data());
    m_log->source->selectDataSet(0);
    QCOMPARE(probe.shown, text("0,1,2,3,4,5"));
    QCOMPARE(shownColumns(*m_item), text(""));
}

void tst_LogTableViewItemColumns::analysisKeepsFollowing()
{
    m_item->setDataSource(m_log->source.data());
    m_item->setLogViewerViewOption(LogTableViewItem::Data);
    m_item->setLogViewerViewOption(LogTableViewItem::Analysis);
    m_log->source->selectDataSet(0);
    QCOMPARE(shownColumns(*m_item), text(""));
}

void tst_LogTableViewItemColumns::anotherModelStartsWithAllColumns()
{
    m_item->setDataSource(m_log->source.data());
    m_item->hideAllColumns();
    m_item->setLogViewerViewOption(LogTableViewItem::Data);
    QCOMPARE(shownColumns(*m_item), text("0,1,2,3,4,5"));
    m_item->hideColumnsForHeaderPart(text("Sys"));
    m_item->setLogViewerViewOption(LogTableViewItem::Header);
    QCOMPARE(shownColumns(*m_item), text("0,1,2"));
    LoadedLog another(kChamberLog);
    m_item->hideAllColumns();
    m_item->setDataSource(another.source.data());
    QCOMPARE(shownColumns(*m_item), text("0,1,2"));
    m_item->setDataSource(nullptr);
}

void tst_LogTableViewItemColumns::theSameModelKeepsItsColumns()
{
    m_item->setDataSource(m_log->source.data());
    m_item->setLogViewerViewOption(LogTableViewItem::Data);
    m_item->hideColumnsForHeaderPart(text("Sys"));
    m_item->setLogViewerViewOption(LogTableViewItem::Data);
    QCOMPARE(shownColumns(*m_item), text("0,3,4,5"));
    m_item->setDataSource(m_log->source.data());
    QCOMPARE(shownColumns(*m_item), text("0,3,4,5"));
}

void tst_LogTableViewItemColumns::plottedDataShowsGraphedColumns_data()
{
    QTest::addColumn<bool>("checkable");
    QTest::addColumn<QString>("shown");
    QTest::newRow("alone") << false << "1,4";
    QTest::newRow("with check boxes") << true << "0,1,4";
}

void tst_LogTableViewItemColumns::plottedDataShowsGraphedColumns()
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

void tst_LogTableViewItemColumns::plottedDataFollowsTheGraph()
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

void tst_LogTableViewItemColumns::plottedDataSurvivesAReset()
{
    m_item->setDataSource(m_log->source.data());
    m_item->setLogViewerViewOption(LogTableViewItem::PlottedData);
    m_log->plot(0, 2);
    // A criterion fills the models anew and leaves the series to others.
    m_log->source->buildFilter(2, 0, text("401"));
    QCOMPARE(shownColumns(*m_item), text("1,3"));
}

void tst_LogTableViewItemColumns::plottedDataTakesThePlaceOfData()
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

void tst_LogTableViewItemColumns::graphedColumnsBeyondTheTable()
{
    m_item->setDataSource(m_log->source.data());
    m_item->setLogViewerViewOption(LogTableViewItem::PlottedData);
    m_log->source->selectDataSet(1);
    // The lists have the first data set's variables; the second one ends before this one.
    m_log->plot(0, 4);
    QVERIFY(m_log->source->graphedColumns().contains(4));
    QCOMPARE(shownColumns(*m_item), text("1"));
}

void tst_LogTableViewItemColumns::checkBoxesJoinAtTheNextHiding()
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

void tst_LogTableViewItemColumns::keepsItsPlaceWhenAPointIsExcluded()
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

void tst_LogTableViewItemColumns::hidesByHeaderPart_data()
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
    QTest::newRow("a delimiter that would take hours to read")
        << "Exclude" << QString(1 << 20, QLatin1Char('m')) << 0 << "0";
    QTest::newRow("an empty part") << "" << standard << 0 << "";
}

void tst_LogTableViewItemColumns::hidesByHeaderPart()
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

void tst_LogTableViewItemColumns::showsByHeaderPart()
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

void tst_LogTableViewItemColumns::scriptsLeaveArgumentsOut()
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

void tst_LogTableViewItemColumns::hidesConstantsByHeaderPart()
{
    m_item->setDataSource(m_log->source.data());
    m_item->hideColumnsForHeaderPart(text("Zero"), text("\n"), 1);
    QCOMPARE(shownColumns(*m_item), text("0,2"));
    m_item->showColumnsForHeaderPart(text("Gas"));
    QCOMPARE(shownColumns(*m_item), text("0,1,2"));
}

void tst_LogTableViewItemColumns::hidesByHeaderPartWithoutRows()
{
    const LoadedLog log(
        "[Header]\nCreated:\tnow\n[Data]\nSys\tSys\tGas\nObs\tTime\tCO2\n\ts\tppm\n");
    m_item->setDataSource(log.source.data());
    m_item->setLogViewerViewOption(LogTableViewItem::Data);
    QCOMPARE(m_item->tableView()->model()->rowCount(), 0);
    m_item->hideColumnsForHeaderPart(text("Sys"));
    QCOMPARE(shownColumns(*m_item), text("0,3"));
    m_item->showColumnsForHeaderPart(text("Time"), text("\n"), 1);
    QCOMPARE(shownColumns(*m_item), text("0,2,3"));
    m_item->setDataSource(nullptr);
}

QTEST_MAIN(tst_LogTableViewItemColumns)
#include "tst_LogTableViewItemColumns.moc"

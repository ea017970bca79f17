#include "Complaints.h"
#include "ViewerUser.h"
#include "table/LogTableView.h"
#include "table/LogTableViewItem.h"

#include <QApplication>
#include <QHeaderView>
#include <QScrollBar>

namespace
{

enum View { PlotView, TableView };
enum Option { Constants, Observations, Plotted };

/** Two groups of constants and one without, three groups of variables; a name with a bar in it. */
QByteArray groupedLog()
{
    QByteArray text = "[Header]\nCreated\t2020-01-01\nSys:Serial\tA-7\nCal:Gas\t1.5\nCal:Air\t2.5\n"
                      "Operator:\tnight\n[Data]\n"
                      "Sys\tSys\tAir|in\tAir|in\tGas\nObs\tTime\tT\tRH\tCO2\n\ths\tC\t%\tppm\n";
    for (int i = 1; i <= 60; ++i) {
        const QByteArray n = QByteArray::number(i);
        text += n + "\t10:00:00\t" + QByteArray::number(20 + i) + ".5\t" + n + "\t40" + n + "\n";
    }
    return text
        + "[Header]\nCreated\t2020-01-02\n[Data]\nSys\tSys\tGas\nObs\tTime\tCO2\n-\t-\tppm\n";
}

} // namespace

/** The viewer's tables, used with a mouse, keys and a finger. */
class tst_TableTab : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void startsWithThePlot();
    void showsObservations();
    void showsConstants();
    void showsPlottedColumns();
    void keepsItsPlace();
    void excludesRowsByMouse();
    void excludesRowsByTouch();
    void clearsExcludedPoints();
    void keepsExcludedRowsWhenCriteriaChange();
    void hidesAndShowsGroups();
    void hidesAllGroups();
    void remembersGroupsOfEachOption();
    void keepsGroupsHiddenWhenCriteriaChange();
    void groupsFollowTheDataSet();
    void makesRowsCompact();
    void hintsWhenNothingIsPlotted();
    void hintsWhenThereIsNothing();
    void fitsItsWindow_data();
    void fitsItsWindow();

private:
    void showTable(Option option);
    LogTableView *view() const;
    QStringList columns() const;
    void toggleGroup(const QString &group);
    void tapBox(int row);

    QScopedPointer<Complaints> m_complaints;
    QScopedPointer<TemporaryLog> m_log;
    QScopedPointer<ViewerUser> m_user;
};

void tst_TableTab::initTestCase()
{
    QApplication::setStyle("fusion");
}

void tst_TableTab::init()
{
    m_complaints.reset(new Complaints);
    m_log.reset(new TemporaryLog(groupedLog()));
    m_user.reset(new ViewerUser(*m_log));
    QVERIFY(m_user->isReady());
}

/** Nothing that is done here may make the engine complain. */
void tst_TableTab::cleanup()
{
    m_user.reset();
    m_log.reset();
    const QString text = m_complaints->text();
    m_complaints.reset();
    QCOMPARE(text, QString());
}

void tst_TableTab::showTable(Option option)
{
    QVERIFY(m_user->clickTab("viewTabs", TableView));
    if (m_user->item("tableTabs")->property("currentIndex").toInt() != option)
        QVERIFY(m_user->clickTab("tableTabs", option));
}

LogTableView *tst_TableTab::view() const
{
    auto *table = m_user->find<LogTableViewItem>("table");
    return table ? table->tableView() : nullptr;
}

/** The headers of the columns that are shown, each in one line. */
QStringList tst_TableTab::columns() const
{
    QStringList names;
    for (int column = 0; column < view()->model()->columnCount(); ++column) {
        const QString name = view()->model()->headerData(column, Qt::Horizontal).toString();
        if (!view()->isColumnHidden(column))
            names.append(QString(name).replace('\n', ' '));
    }
    return names;
}

/** In the popup, which it opens when need be. */
void tst_TableTab::toggleGroup(const QString &group)
{
    if (!m_user->isShown("groupList"))
        QVERIFY(m_user->click("columnsButton"));
    QTRY_VERIFY(m_user->isShown("groupList"));
    QVERIFY(m_user->settled());
    const QList<QQuickItem *> rows
        = m_user->item("groupList")->property("contentItem").value<QQuickItem *>()->childItems();
    for (QQuickItem *row : rows) {
        if (row->property("text").toString() != group)
            continue;
        QVERIFY(row->height() >= 44);
        const bool wasOn = row->property("checked").toBool();
        QVERIFY(m_user->click(row, QPointF(22, row->height() / 2)));
        QCOMPARE(row->property("checked").toBool(), !wasOn);
        return;
    }
    QFAIL("there is no such group");
}

void tst_TableTab::tapBox(int row)
{
    const QQuickItem *table = m_user->item("table");
    const QModelIndex index = view()->model()->index(row, 0);
    QVERIFY(m_user->settled());
    m_user->drag(m_user->pointOf(table, m_user->cell(view(), index)));
}

// Options

void tst_TableTab::startsWithThePlot()
{
    QVERIFY(m_user->isShown("plot"));
    // The table is made when it is first looked at.
    QVERIFY(!m_user->item("table"));
    QVERIFY(m_user->clickTab("viewTabs", TableView));
    QVERIFY(m_user->isShown("table"));
    QVERIFY(!m_user->isShown("plot"));
    QVERIFY(m_user->clickTab("viewTabs", PlotView));
    QVERIFY(m_user->isShown("plot"));
    QVERIFY(!m_user->isShown("table"));
}

void tst_TableTab::showsObservations()
{
    showTable(Observations);
    QCOMPARE(columns(),
             (QStringList{"Exclude", "Sys Obs ", "Sys Time hs", "Air|in T C", "Air|in RH %",
                          "Gas CO2 ppm"}));
    QCOMPARE(view()->model()->rowCount(), 60);
    QCOMPARE(view()->model()->index(1, 3).data().toString(), QString("22.5"));
    QVERIFY(!m_user->isShown("tableHint"));
    QVERIFY(view()->rowHeight(0) >= 44);
    // The whole header is there to be read: three lines of it.
    const QFontMetrics font(view()->horizontalHeader()->font());
    QVERIFY(view()->horizontalHeader()->height() >= 3 * font.height());
}

void tst_TableTab::showsConstants()
{
    showTable(Constants);
    QCOMPARE(columns(), (QStringList{"Cal Air", "Cal Gas", "Operator ", "Sys Serial"}));
    QCOMPARE(view()->model()->index(0, 1).data().toString(), QString("1.5"));
    QVERIFY(!m_user->isShown("tableHint"));
    // As many rows as there is something in, and those of another data set.
    QCOMPARE(view()->model()->rowCount(), 1);
    QCOMPARE(view()->model()->headerData(0, Qt::Vertical).toString(), QString("1"));
    const TemporaryLog other("[Header]\nCreated\t2020-01-01\nCal:Date\ta\nCal:Date\tb\nCal:Gas\t1\n"
                             "Cal:Date\tc\n[Data]\nSys\tSys\tAir\nObs\tTime\tT\n\ths\tC\n"
                             "1\t10:00\t5\n",
                             "constants.log");
    QSignalSpy opened(m_user->viewer(), SIGNAL(opened()));
    m_user->viewer()->open(other.path());
    QVERIFY(waitForCount(opened, 1));
    QCOMPARE(columns(), (QStringList{"Cal Date", "Cal Gas"}));
    QCOMPARE(view()->model()->rowCount(), 3);
    QCOMPARE(view()->model()->index(2, 0).data().toString(), QString("c"));
}

void tst_TableTab::showsPlottedColumns()
{
    showTable(Plotted);
    QCOMPARE(columns(), (QStringList{"Exclude", "Sys Obs ", "Air|in T C", "Gas CO2 ppm"}));
    QVERIFY(!m_user->item("columnsButton")->isEnabled());
    // What is ticked beside it comes at once.
    m_user->source()->updateVariableSelection(1, 3, true);
    QCOMPARE(columns(),
             (QStringList{"Exclude", "Sys Obs ", "Air|in T C", "Air|in RH %", "Gas CO2 ppm"}));
}

void tst_TableTab::keepsItsPlace()
{
    showTable(Observations);
    QScrollBar *bar = view()->verticalScrollBar();
    bar->setValue(700);
    QCOMPARE(bar->value(), 700);
    QVERIFY(m_user->clickTab("tableTabs", Plotted));
    QCOMPARE(bar->value(), 700);
    QVERIFY(m_user->clickTab("tableTabs", Constants));
    QCOMPARE(bar->value(), 0);
    bar->setValue(5);
    QVERIFY(m_user->clickTab("tableTabs", Observations));
    QCOMPARE(bar->value(), 700);
}

// Excluding rows

void tst_TableTab::excludesRowsByMouse()
{
    showTable(Observations);
    QCOMPARE(m_user->leftValues("T").size(), 60);
    QVERIFY(m_user->clickCell(m_user->item("table"), view(), 1));
    QTRY_COMPARE(m_user->leftValues("T").size(), 59);
    QVERIFY(!m_user->leftValues("T").contains(22.5));
    QVERIFY(m_user->clickCell(m_user->item("table"), view(), 1));
    QTRY_COMPARE(m_user->leftValues("T").size(), 60);
    // Data is there to be read.
    QVERIFY(m_user->clickCell(m_user->item("table"), view(), 1, 3));
    QCOMPARE(m_user->leftValues("T").size(), 60);
}

void tst_TableTab::excludesRowsByTouch()
{
    showTable(Plotted);
    tapBox(0);
    QTRY_COMPARE(m_user->leftValues("T").size(), 59);
    tapBox(2);
    QTRY_COMPARE(m_user->leftValues("T").size(), 58);
    QCOMPARE(m_user->leftValues("T").mid(0, 2), (QVector<double>{22.5, 24.5}));
}

void tst_TableTab::clearsExcludedPoints()
{
    QVERIFY(!m_user->isShown("clearExcluded"));
    showTable(Observations);
    QVERIFY(m_user->clickCell(m_user->item("table"), view(), 0));
    QTRY_VERIFY(m_user->isShown("clearExcluded"));
    QCOMPARE(m_user->text("clearExcluded"), QString("Clear excluded (1)"));
    QVERIFY(m_user->clickCell(m_user->item("table"), view(), 3));
    QTRY_COMPARE(m_user->text("clearExcluded"), QString("Clear excluded (2)"));
    // It is there in each view.
    QVERIFY(m_user->clickTab("viewTabs", PlotView));
    QVERIFY(m_user->isForFingers("clearExcluded"));
    QVERIFY(m_user->click("clearExcluded"));
    QTRY_COMPARE(m_user->leftValues("T").size(), 60);
    QVERIFY(!m_user->isShown("clearExcluded"));
}

void tst_TableTab::keepsExcludedRowsWhenCriteriaChange()
{
    showTable(Observations);
    QVERIFY(m_user->clickCell(m_user->item("table"), view(), 59));
    QTRY_COMPARE(m_user->leftValues("T").size(), 59);
    m_user->source()->buildFilter(2, 0, "78");
    QCOMPARE(m_user->leftValues("T"), (QVector<double>{78.5, 79.5}));
    QCOMPARE(m_user->text("clearExcluded"), QString("Clear excluded (1)"));
    QCOMPARE(view()->model()->index(59, 0).data(Qt::CheckStateRole).toInt(), int(Qt::Checked));
}

// Groups

void tst_TableTab::hidesAndShowsGroups()
{
    showTable(Observations);
    toggleGroup("Air|in");
    QCOMPARE(columns(), (QStringList{"Exclude", "Sys Obs ", "Sys Time hs", "Gas CO2 ppm"}));
    toggleGroup("Sys");
    QCOMPARE(columns(), (QStringList{"Exclude", "Gas CO2 ppm"}));
    toggleGroup("Air|in");
    QCOMPARE(columns(), (QStringList{"Exclude", "Air|in T C", "Air|in RH %", "Gas CO2 ppm"}));
}

void tst_TableTab::hidesAllGroups()
{
    showTable(Observations);
    QVERIFY(m_user->click("columnsButton"));
    QTRY_VERIFY(m_user->isShown("hideAllGroups"));
    QVERIFY(m_user->click("hideAllGroups"));
    QCOMPARE(columns(), QStringList{"Exclude"});
    QVERIFY(m_user->isShown("tableHint"));
    toggleGroup("Gas");
    QCOMPARE(columns(), (QStringList{"Exclude", "Gas CO2 ppm"}));
    QVERIFY(!m_user->isShown("tableHint"));
    QVERIFY(m_user->click("showAllGroups"));
    QCOMPARE(columns().size(), 6);
}

void tst_TableTab::remembersGroupsOfEachOption()
{
    showTable(Observations);
    toggleGroup("Air|in");
    m_user->key(Qt::Key_Escape);
    QTRY_VERIFY(!m_user->isShown("groupList"));
    QVERIFY(m_user->clickTab("tableTabs", Constants));
    QCOMPARE(columns().size(), 4);
    toggleGroup("Cal");
    m_user->key(Qt::Key_Escape);
    QTRY_VERIFY(!m_user->isShown("groupList"));
    QCOMPARE(columns(), (QStringList{"Operator ", "Sys Serial"}));
    QVERIFY(m_user->clickTab("tableTabs", Plotted));
    QCOMPARE(columns(), (QStringList{"Exclude", "Sys Obs ", "Air|in T C", "Gas CO2 ppm"}));
    QVERIFY(m_user->clickTab("tableTabs", Observations));
    QCOMPARE(columns(), (QStringList{"Exclude", "Sys Obs ", "Sys Time hs", "Gas CO2 ppm"}));
    QVERIFY(m_user->clickTab("tableTabs", Constants));
    QCOMPARE(columns(), (QStringList{"Operator ", "Sys Serial"}));
}

void tst_TableTab::keepsGroupsHiddenWhenCriteriaChange()
{
    showTable(Observations);
    toggleGroup("Sys");
    m_user->source()->buildFilter(2, 0, "25");
    QCOMPARE(columns(), (QStringList{"Exclude", "Air|in T C", "Air|in RH %", "Gas CO2 ppm"}));
}

void tst_TableTab::groupsFollowTheDataSet()
{
    const TemporaryLog other(TemporaryLog::twoDataSets(), "other.log");
    showTable(Observations);
    toggleGroup("Gas");
    QSignalSpy opened(m_user->viewer(), SIGNAL(opened()));
    m_user->viewer()->open(other.path());
    QVERIFY(waitForCount(opened, 1));
    QCOMPARE(columns(), (QStringList{"Exclude", "Sys Obs ", "Sys Time -", "Air T -", "Air RH C"}));
    toggleGroup("Air");
    QCOMPARE(columns(), (QStringList{"Exclude", "Sys Obs ", "Sys Time -"}));
}

void tst_TableTab::makesRowsCompact()
{
    showTable(Observations);
    QVERIFY(m_user->click("columnsButton"));
    QTRY_VERIFY(m_user->isShown("compactRows"));
    QVERIFY(m_user->click("compactRows"));
    QTRY_VERIFY(view()->rowHeight(0) < 36);
    QVERIFY(m_user->click("compactRows"));
    QTRY_VERIFY(view()->rowHeight(0) >= 44);
}

// Nothing to show

void tst_TableTab::hintsWhenNothingIsPlotted()
{
    showTable(Plotted);
    for (int axis = 0; axis < 3; ++axis) {
        const QList<int> rows = m_user->source()->checkedItemList(axis);
        for (int row : rows)
            m_user->source()->updateVariableSelection(axis, row, false);
    }
    QVERIFY(m_user->isShown("tableHint"));
    QVERIFY(m_user->text("tableHint").startsWith("Nothing is plotted"));
    m_user->source()->updateVariableSelection(0, 0, true);
    m_user->source()->updateVariableSelection(1, 2, true);
    QVERIFY(!m_user->isShown("tableHint"));
}

void tst_TableTab::hintsWhenThereIsNothing()
{
    showTable(Constants);
    m_user->source()->selectDataSet(1);
    QVERIFY(m_user->isShown("tableHint"));
    QCOMPARE(m_user->text("tableHint"), QString("There are no header constants in this data set."));
    QVERIFY(m_user->clickTab("tableTabs", Observations));
    QCOMPARE(m_user->text("tableHint"), QString("There is no data in this data set."));
    QVERIFY(m_user->clickTab("tableTabs", Plotted));
    QCOMPARE(m_user->text("tableHint"), QString("There is no data in this data set."));
}

void tst_TableTab::fitsItsWindow_data()
{
    QTest::addColumn<QSize>("size");

    QTest::newRow("instrument") << QSize(800, 480);
    QTest::newRow("desk") << QSize(1280, 800);
}

void tst_TableTab::fitsItsWindow()
{
    QFETCH(QSize, size);
    m_user->window()->resize(size);
    QTRY_COMPARE(m_user->window()->size(), size);
    showTable(Observations);
    QVERIFY(m_user->clickCell(m_user->item("table"), view(), 0));
    QTRY_VERIFY(m_user->isForFingers("clearExcluded"));
    QVERIFY(m_user->isForFingers("viewTabs"));
    QVERIFY(m_user->isForFingers("tableTabs"));
    QVERIFY(m_user->isForFingers("columnsButton"));
    QVERIFY(view()->viewport()->height() >= 4 * 44);
    QVERIFY(m_user->click("columnsButton"));
    QTRY_VERIFY(m_user->isShown("groupList"));
    QVERIFY(m_user->settled());
    QVERIFY(m_user->isForFingers("showAllGroups"));
    QVERIFY(m_user->isForFingers("hideAllGroups"));
    QVERIFY(m_user->isForFingers("compactRows"));
}

QTEST_MAIN(tst_TableTab)
#include "tst_TableTab.moc"

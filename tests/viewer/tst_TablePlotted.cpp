#include "TableTest.h"
#include "viewer/PlottedRows.h"

#include <QAbstractItemModelTester>
#include <QHeaderView>
#include <QScrollBar>

/** The table's tab "Plotted": the rows that the curves show, and no others. */
class tst_TablePlotted : public TableTest
{
    Q_OBJECT

private slots:
    void showsAllRowsWithoutCriteria();
    void leavesOutRowsOfNoCurve();
    void blanksWhatOneCurveLeavesOut();
    void keepsTheHorizontalVariable();
    void keepsExcludedRows();
    void followsCriteria();
    void followsTheWindow();
    void followsTheChosenVariables();
    void followsTheDataSet();
    void leavesOutGapsOfTheLog();
    void findsWhatIsShown();
    void copiesWhatIsShown();
    void jumpsToThePlotAndBack();
    void keepsPlaceAndSelectionAmongTabs();
    void saysThatNothingIsLeft();

private:
    enum Column { Obs = 1, Time, T, RH, CO2 };
    enum Operator { Greater, AtLeast, Less, AtMost };

    /** T counts from 21.5, CO2 is 40 and the row's number behind it. */
    void keep(int column, Operator comparison, const char *value)
    {
        m_user->source()->buildFilter(column - 1, comparison, value);
    }
    QString cell(int row, int column) const
    {
        return view()->model()->index(row, column).data().toString();
    }
    int rows() const { return view()->model()->rowCount(); }
    void open(const QByteArray &log)
    {
        m_other.reset(new TemporaryLog(log, "other.log"));
        QSignalSpy opened(m_user->viewer(), SIGNAL(opened()));
        m_user->viewer()->open(m_other->path());
        QVERIFY(waitForCount(opened, 1));
    }
    QStringList columns() const
    {
        QStringList names;
        for (int column = 0; column < view()->model()->columnCount(); ++column) {
            if (!view()->isColumnHidden(column))
                names.append(view()
                                 ->model()
                                 ->headerData(column, Qt::Horizontal)
                                 .toString()
                                 .section('\n', 1, 1));
        }
        return names;
    }

    QScopedPointer<TemporaryLog> m_other;
};

void tst_TablePlotted::showsAllRowsWithoutCriteria()
{
    showTable(Plotted);
    QCOMPARE(rows(), 300);
    QCOMPARE(m_user->text("selectionText"), QString("Rows: 300"));
    const QAbstractItemModelTester tester(view()->model());
    QCOMPARE(cell(299, T), QString("320.5"));
    QCOMPARE(cell(299, CO2), QString("40300"));
}

void tst_TablePlotted::leavesOutRowsOfNoCurve()
{
    keep(T, AtLeast, "300");
    keep(CO2, AtLeast, "40290");
    showTable(Plotted);
    const QAbstractItemModelTester tester(view()->model());
    QCOMPARE(rows(), 21); // T from 300.5, CO2 from 40290
    QCOMPARE(m_user->text("selectionText"), QString("Rows: 21 of 300"));
    QCOMPARE(cell(0, T), QString("300.5"));
    QCOMPARE(cell(20, T), QString("320.5"));
    // They keep the numbers that they have in the log.
    QCOMPARE(view()->model()->headerData(0, Qt::Vertical).toInt(), 280);
    QCOMPARE(m_user->leftValues("T").size(), rows());
    QVERIFY(m_user->clickTab("tableTabs", Observations));
    QCOMPARE(rows(), 300);
    QCOMPARE(m_user->text("selectionText"), QString("Rows: 300"));
}

void tst_TablePlotted::blanksWhatOneCurveLeavesOut()
{
    keep(T, Less, "23");
    showTable(Plotted);
    // CO2 is plotted of all of them.
    QCOMPARE(rows(), 300);
    QCOMPARE(cell(0, T), QString("21.5"));
    QCOMPARE(cell(1, T), QString("22.5"));
    QCOMPARE(cell(2, T), QString());
    QCOMPARE(cell(299, T), QString());
    QCOMPARE(cell(2, CO2), QString("403"));
    // The log's own table has it all.
    QVERIFY(m_user->clickTab("tableTabs", Observations));
    QCOMPARE(cell(2, T), QString("23.5"));
}

/** Criteria are no matter of the X axis. */
void tst_TablePlotted::keepsTheHorizontalVariable()
{
    keep(Obs, AtMost, "5");
    keep(T, AtMost, "23");
    showTable(Plotted);
    QCOMPARE(cell(200, Obs), QString("201"));
    m_user->source()->updateVariableSelection(0, T - 1, true);
    QTRY_COMPARE(cell(200, T), QString("221.5"));
}

void tst_TablePlotted::keepsExcludedRows()
{
    keep(T, AtLeast, "300");
    keep(CO2, AtLeast, "40290");
    showTable(Plotted);
    QVERIFY(m_user->clickCell(m_user->item("table"), view(), 1));
    QTRY_COMPARE(m_user->leftValues("T").size(), 20);
    QVERIFY(m_user->source()->tableModel()->rowExcluded(280));
    QCOMPARE(rows(), 21);
    QCOMPARE(view()->model()->index(1, 0).data(Qt::CheckStateRole).toInt(), int(Qt::Checked));
    QVERIFY(m_user->clickCell(m_user->item("table"), view(), 1));
    QTRY_COMPARE(m_user->leftValues("T").size(), 21);
}

void tst_TablePlotted::followsCriteria()
{
    showTable(Plotted);
    const QAbstractItemModelTester tester(view()->model());
    const int width = view()->columnWidth(T);
    keep(T, AtLeast, "300");
    QCOMPARE(rows(), 300);
    keep(CO2, AtLeast, "40290");
    QCOMPARE(rows(), 21);
    QCOMPARE(columns(), (QStringList{"", "Obs", "T", "CO2"}));
    QCOMPARE(view()->columnWidth(T), width);
    QVERIFY(view()->rowHeight(0) >= 44);
    m_user->source()->updateCriteriaSelection(0, false);
    QCOMPARE(rows(), 300);
    m_user->source()->updateCriteriaSelection(0, true);
    QCOMPARE(rows(), 21);
    m_user->source()->clearCriteria();
    QCOMPARE(rows(), 300);
    QCOMPARE(m_user->text("selectionText"), QString("Rows: 300"));
}

void tst_TablePlotted::followsTheWindow()
{
    keep(T, AtLeast, "300");
    keep(CO2, AtLeast, "40290");
    showTable(Plotted);
    const QAbstractItemModelTester tester(view()->model());
    const int width = view()->columnWidth(T);
    m_user->source()->setObservationRange(5);
    m_user->source()->setObservationFilterType(LogObservationSortFilterProxyModel::Tail);
    QCOMPARE(rows(), 5);
    QCOMPARE(cell(0, T), QString("316.5"));
    QCOMPARE(columns(), (QStringList{"", "Obs", "T", "CO2"}));
    QCOMPARE(view()->columnWidth(T), width);
    m_user->source()->setObservationFilterType(LogObservationSortFilterProxyModel::Head);
    QCOMPARE(rows(), 0);
    m_user->source()->setObservationFilterType(LogObservationSortFilterProxyModel::All);
    QCOMPARE(rows(), 21);
}

void tst_TablePlotted::followsTheChosenVariables()
{
    keep(T, AtLeast, "300");
    showTable(Plotted);
    QCOMPARE(rows(), 300);
    m_user->source()->updateVariableSelection(2, CO2 - 1, false);
    QTRY_COMPARE(rows(), 21);
    QCOMPARE(columns(), (QStringList{"", "Obs", "T"}));
    m_user->source()->updateVariableSelection(2, CO2 - 1, true);
    QTRY_COMPARE(rows(), 300);
}

void tst_TablePlotted::followsTheDataSet()
{
    keep(T, AtLeast, "300");
    keep(CO2, AtLeast, "40290");
    showTable(Plotted);
    QCOMPARE(rows(), 21);
    open(longLog(30));
    QCOMPARE(m_user->source()->tableModel()->rowCount(), 30);
    QCOMPARE(rows(), 0);
    m_user->source()->clearCriteria();
    QCOMPARE(rows(), 30);
}

void tst_TablePlotted::leavesOutGapsOfTheLog()
{
    open("[Header]\nCreated\t2020-01-01\n[Data]\nSys\tSys\tAir\nObs\tTime\tT\n\ths\tC\n"
         "1\t10:00\t5\n2\t10:01\t---\n3\t10:02\t7\n");
    showTable(Plotted);
    QCOMPARE(rows(), 2);
    QCOMPARE(cell(1, T), QString("7"));
}

void tst_TablePlotted::findsWhatIsShown()
{
    keep(T, Less, "23");
    showTable(Plotted);
    key(Qt::Key_F, Qt::ControlModifier);
    m_user->type("23.5");
    QTRY_COMPARE(m_user->text("matchText"), QString("Not found"));
    keep(CO2, AtMost, "402");
    QCOMPARE(rows(), 2);
    m_user->item("findField")->setProperty("text", "40");
    QTRY_COMPARE(m_user->text("matchText"), QString("1 of 2"));
    key(Qt::Key_Return);
    QCOMPARE(range().row, 1);
    QCOMPARE(range().column, int(CO2));
}

void tst_TablePlotted::copiesWhatIsShown()
{
    keep(T, Less, "23");
    showTable(Plotted);
    QVERIFY(m_user->settled());
    drag(at(1, Obs), at(2, CO2));
    key(Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(clipboard(), QString("2\t22.5\t402\n3\t\t403\n"));
}

void tst_TablePlotted::jumpsToThePlotAndBack()
{
    keep(T, AtLeast, "300");
    keep(CO2, AtLeast, "40290");
    showTable(Plotted);
    clickAt(2, T);
    key(Qt::Key_Return);
    QTRY_VERIFY(m_user->isShown("plot"));
    QVERIFY(readings()->hasA());
    QVERIFY(m_user->settled());
    key(Qt::Key_T);
    QTRY_VERIFY(m_user->isShown("table"));
    QCOMPARE(rows(), 21);
    QCOMPARE(range().row, 2);
    QCOMPARE(cell(range().row, T), QString("302.5"));
}

void tst_TablePlotted::keepsPlaceAndSelectionAmongTabs()
{
    keep(T, AtLeast, "300");
    keep(CO2, AtLeast, "40290");
    showTable();
    QVERIFY(m_user->clickCell(m_user->item("table"), view(), 284, T));
    QCOMPARE(cell(range().row, T), QString("305.5"));
    QVERIFY(m_user->clickTab("tableTabs", Plotted));
    QCOMPARE(range().row, 5);
    QCOMPARE(cell(range().row, T), QString("305.5"));
    QVERIFY(m_user->clickTab("tableTabs", Observations));
    QCOMPARE(range().row, 284);
    const QRect seen = view()->visualRect(view()->model()->index(284, T));
    QVERIFY(view()->viewport()->rect().contains(seen));
}

void tst_TablePlotted::saysThatNothingIsLeft()
{
    keep(T, AtLeast, "1000");
    keep(CO2, Less, "0");
    showTable(Plotted);
    QCOMPARE(rows(), 0);
    QVERIFY(m_user->isShown("tableHint"));
    QVERIFY(m_user->text("tableHint").startsWith("The criteria"));
    QCOMPARE(m_user->text("selectionText"), QString("Rows: 0 of 300"));
    m_user->source()->clearCriteria();
    QVERIFY(!m_user->isShown("tableHint"));
}

QTEST_MAIN(tst_TablePlotted)
#include "tst_TablePlotted.moc"

#include "TableTest.h"

#include <QScrollBar>

/** Finding, selecting, copying and excluding in the viewer's table. */
class tst_TableHand : public TableTest
{
    Q_OBJECT

private slots:
    void findsText();
    void findsTextOfShownColumnsOnly();
    void findsWhileTyping();
    void findsNothing();
    void findsAgainInAnotherOption();
    void findsByTouch();
    void selectsByDragging();
    void selectsRowsByTheirNumbers();
    void selectsByTaps();
    void selectsByKeys();
    void keepsTheSelectionWhenReadAgain_data();
    void keepsTheSelectionWhenReadAgain();
    void losesTheSelectionWithTheLog();
    void copiesByKeys();
    void copiesByTouch();
    void copiesConstants();
    void refusesTooManyCells();
    void excludesByKey();
    void excludesManyRows();
    void showsTheWholeAndTheWindow();
};

// Finding

void tst_TableHand::findsText()
{
    showTable();
    key(Qt::Key_F, Qt::ControlModifier);
    QVERIFY(m_user->isShown("findField"));
    m_user->type("WET");
    QTRY_COMPARE(m_user->text("matchText"), QString("1 of 3"));
    QCOMPARE(range().row, 99);
    QCOMPARE(range().column, 4);
    QVERIFY(isInMiddle(99));
    key(Qt::Key_Return);
    QCOMPARE(m_user->text("matchText"), QString("2 of 3"));
    QCOMPARE(range().row, 199);
    QVERIFY(m_user->click("findNext"));
    QCOMPARE(range().row, 299);
    QVERIFY(m_user->click("findNext"));
    QCOMPARE(m_user->text("matchText"), QString("1 of 3"));
    QCOMPARE(range().row, 99);
    QVERIFY(m_user->click("findPrevious"));
    QCOMPARE(range().row, 299);
    key(Qt::Key_Return, Qt::ShiftModifier);
    QCOMPARE(m_user->text("matchText"), QString("2 of 3"));
    // Back in the table, what was found stays selected.
    key(Qt::Key_Escape);
    QVERIFY(!m_user->isShown("findField"));
    QCOMPARE(range().row, 199);
    key(Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(clipboard(), QString("Wet\n"));
}

void tst_TableHand::findsTextOfShownColumnsOnly()
{
    showTable(Plotted);
    key(Qt::Key_F, Qt::ControlModifier);
    m_user->type("wet");
    QTRY_COMPARE(m_user->text("matchText"), QString("Not found"));
    // Its column comes to be plotted.
    m_user->source()->updateVariableSelection(1, 3, true);
    QTRY_COMPARE(m_user->text("matchText"), QString("3"));
    key(Qt::Key_Return);
    QCOMPARE(range().row, 99);
}

/** What still matches is not left. */
void tst_TableHand::findsWhileTyping()
{
    showTable();
    clickAt(3, 3);
    key(Qt::Key_F, Qt::ControlModifier);
    m_user->type("25");
    QTRY_COMPARE(range().row, 4);
    m_user->type(".");
    QTRY_COMPARE(m_user->text("matchText"), QString("1 of 3"));
    QCOMPARE(range().row, 4);
}

void tst_TableHand::findsNothing()
{
    showTable();
    clickAt(2, 3);
    key(Qt::Key_F, Qt::ControlModifier);
    m_user->type("qq");
    QTRY_COMPARE(m_user->text("matchText"), QString("Not found"));
    QCOMPARE(range().row, 2);
    QVERIFY(!m_user->item("findNext")->isEnabled());
}

void tst_TableHand::findsAgainInAnotherOption()
{
    showTable();
    key(Qt::Key_F, Qt::ControlModifier);
    m_user->type("a-7");
    QTRY_COMPARE(m_user->text("matchText"), QString("Not found"));
    QVERIFY(m_user->clickTab("tableTabs", Constants));
    QTRY_COMPARE(m_user->text("matchText"), QString("1"));
}

void tst_TableHand::findsByTouch()
{
    showTable();
    tap("find");
    QTRY_VERIFY(m_user->isShown("findField"));
    m_user->type("wet");
    QTRY_COMPARE(m_user->text("matchText"), QString("1 of 3"));
    tap("findNext");
    QTRY_COMPARE(range().row, 199);
    tap("findPrevious");
    QTRY_COMPARE(range().row, 99);
    tap("closeFind");
    QTRY_VERIFY(!m_user->isShown("findField"));
}

// Selecting

void tst_TableHand::selectsByDragging()
{
    showTable();
    QVERIFY(m_user->settled());
    drag(at(1, 2), at(3, 4));
    QCOMPARE(range().top(), 1);
    QCOMPARE(range().bottom(), 3);
    QCOMPARE(range().left(), 2);
    QCOMPARE(range().right(), 4);
    QCOMPARE(m_user->text("selectionText"), QString("3 × 3 selected"));
    // And on with Shift, back beyond where it began.
    QTest::mouseClick(m_user->window(), Qt::LeftButton, Qt::ShiftModifier, at(0, 1));
    QCOMPARE(m_user->text("selectionText"), QString("2 × 2 selected"));
    QTest::mouseClick(m_user->window(), Qt::LeftButton, Qt::NoModifier, at(5, 1));
    QCOMPARE(m_user->text("selectionText"), QString("1 × 1 selected"));
}

void tst_TableHand::selectsRowsByTheirNumbers()
{
    showTable();
    QVERIFY(m_user->settled());
    const QQuickItem *table = m_user->item("table");
    const QPoint first
        = table->mapToScene(QPointF(10, m_user->cell(view(), view()->model()->index(1, 1)).y()))
              .toPoint();
    const QPoint last
        = table->mapToScene(QPointF(10, m_user->cell(view(), view()->model()->index(3, 1)).y()))
              .toPoint();
    drag(first, last);
    QCOMPARE(m_user->text("selectionText"), QString("3 × 5 selected"));
    QCOMPARE(range().top(), 1);
}

void tst_TableHand::selectsByTaps()
{
    showTable();
    QVERIFY(m_user->settled());
    m_user->drag(at(1, 2));
    QTRY_COMPARE(range().row, 1);
    tap("extend");
    m_user->drag(at(4, 3));
    QTRY_COMPARE(m_user->text("selectionText"), QString("4 × 2 selected"));
    // That was for one tap.
    m_user->drag(at(2, 2));
    QTRY_COMPARE(m_user->text("selectionText"), QString("1 × 1 selected"));
    // A finger that drags scrolls.
    m_user->drag(at(4, 3), QPoint(0, -120));
    QVERIFY(view()->verticalScrollBar()->value() > 0);
    QCOMPARE(range().row, 2);
}

void tst_TableHand::selectsByKeys()
{
    showTable();
    clickAt(2, 2);
    key(Qt::Key_Down);
    key(Qt::Key_Right);
    QCOMPARE(range().row, 3);
    QCOMPARE(range().column, 3);
    key(Qt::Key_Home);
    QCOMPARE(range().column, 1);
    key(Qt::Key_Left);
    QCOMPARE(range().column, 1); // not the check boxes
    key(Qt::Key_End, Qt::ShiftModifier);
    QCOMPARE(m_user->text("selectionText"), QString("1 × 5 selected"));
    key(Qt::Key_End, Qt::ControlModifier);
    QCOMPARE(range().row, 299);
    QVERIFY(view()->visualRect(view()->model()->index(299, 5)).bottom()
            <= view()->viewport()->height());
    key(Qt::Key_PageUp);
    QVERIFY(range().row < 298 && range().row > 270);
    key(Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(m_user->text("selectionText"), QString("300 × 5 selected"));
    key(Qt::Key_Escape);
    QVERIFY(!range().isValid());
    QCOMPARE(m_user->text("selectionText"), QString("Rows: 300"));
}

// Copying

void tst_TableHand::keepsTheSelectionWhenReadAgain_data()
{
    QTest::addColumn<int>("option");
    QTest::newRow("observations") << int(Observations);
    QTest::newRow("plotted rows") << int(Plotted);
}

void tst_TableHand::keepsTheSelectionWhenReadAgain()
{
    QFETCH(int, option);
    showTable(Option(option));
    clickAt(3, 1);
    drag(at(3, 1), at(5, 3));
    QCOMPARE(range().rowCount(), 3);
    m_log->append("301\t10:00:00\t321.5\tdry\t40301\n");
    key(Qt::Key_F5);
    QTRY_COMPARE(m_user->source()->tableModel()->rowCount(), 301);
    QTRY_COMPARE(range().rowCount(), 3);
    QVERIFY(m_user->settled());
    QCOMPARE(range().anchorRow, 3);
    QCOMPARE(range().row, 5);
    QCOMPARE(range().anchorColumn, 1);
    QCOMPARE(range().column, 3);
    // Rows that are gone can't be selected.
    m_log->write(longLog(4));
    key(Qt::Key_F5);
    QTRY_COMPARE(m_user->source()->tableModel()->rowCount(), 4);
    QVERIFY(m_user->settled());
    QVERIFY(!range().isValid());
}

void tst_TableHand::losesTheSelectionWithTheLog()
{
    showTable();
    clickAt(3, 2);
    const TemporaryLog other(longLog(20), "other.log");
    QVERIFY(m_user->drop({other.path()}));
    QTRY_COMPARE(m_user->source()->tableModel()->rowCount(), 20);
    QVERIFY(!range().isValid());
}

void tst_TableHand::copiesByKeys()
{
    showTable();
    QVERIFY(m_user->settled());
    drag(at(1, 2), at(2, 3));
    key(Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(clipboard(), QString("10:00:00\t22.5\n10:00:00\t23.5\n"));
    QCOMPARE(m_user->text("selectionText"), QString("4 cells copied"));
    key(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(clipboard(), QString("Sys Time hs\tAir T C\n10:00:00\t22.5\n10:00:00\t23.5\n"));
}

/** Hidden columns between are none of the user's. */
void tst_TableHand::copiesByTouch()
{
    showTable(Plotted);
    QVERIFY(!m_user->item("copy")->isEnabled());
    QVERIFY(m_user->settled());
    m_user->drag(at(0, 1));
    QTRY_COMPARE(range().row, 0);
    tap("extend");
    m_user->drag(at(1, 5));
    QTRY_COMPARE(m_user->text("selectionText"), QString("2 × 3 selected"));
    tap("copy");
    QTRY_COMPARE(clipboard(), QString("1\t21.5\t401\n2\t22.5\t402\n"));
    tap("copyWithHeader");
    QTRY_COMPARE(clipboard(),
                 QString("Sys Obs\tAir T C\tGas CO2 ppm\n1\t21.5\t401\n2\t22.5\t402\n"));
}

void tst_TableHand::copiesConstants()
{
    showTable(Constants);
    clickAt(0, 0);
    key(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(clipboard(), QString("Cal Gas\n1.5\n"));
    QVERIFY(!m_user->item("showInPlot")->isEnabled());
    QVERIFY(!m_user->item("toggleExcluded")->isEnabled());
}

void tst_TableHand::refusesTooManyCells()
{
    const TemporaryLog large(longLog(200001), "large.log");
    QSignalSpy opened(m_user->viewer(), SIGNAL(opened()));
    m_user->viewer()->open(large.path());
    QVERIFY(waitForCount(opened, 1));
    showTable();
    clickAt(0, 1);
    key(Qt::Key_A, Qt::ControlModifier);
    key(Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(clipboard(), QString("untouched"));
    QVERIFY(m_user->text("selectionText").startsWith("Too many cells"));
}

// Excluding

void tst_TableHand::excludesByKey()
{
    showTable();
    clickAt(1, 2);
    key(Qt::Key_Space);
    QTRY_COMPARE(m_user->leftValues("T").size(), 299);
    QVERIFY(!m_user->leftValues("T").contains(22.5));
    QCOMPARE(m_user->text("clearExcluded"), QString("Clear excluded (1)"));
    key(Qt::Key_Space);
    QTRY_COMPARE(m_user->leftValues("T").size(), 300);
    QVERIFY(!m_user->isShown("clearExcluded"));
}

void tst_TableHand::excludesManyRows()
{
    showTable(Plotted);
    QVERIFY(m_user->settled());
    drag(at(1, 3), at(4, 3));
    QSignalSpy updates(m_user->source(), SIGNAL(graphDataUpdated()));
    tap("toggleExcluded");
    QTRY_COMPARE(m_user->leftValues("T").size(), 296);
    QCOMPARE(updates.count(), 2);
    QCOMPARE(m_user->text("clearExcluded"), QString("Clear excluded (4)"));
    tap("toggleExcluded");
    QTRY_COMPARE(m_user->leftValues("T").size(), 300);
    QVERIFY(!m_user->source()->hasExcludedRows());
}

void tst_TableHand::showsTheWholeAndTheWindow()
{
    m_user->source()->setObservationRange(50);
    m_user->source()->setObservationFilterType(LogObservationSortFilterProxyModel::Tail);
    showTable();
    QCOMPARE(view()->model()->rowCount(), 300);
    QVERIFY(!view()->isColumnHidden(3));
    QVERIFY(view()->columnWidth(3) >= 40);
    QVERIFY(m_user->clickTab("tableTabs", Plotted));
    QCOMPARE(view()->model()->rowCount(), 50);
    // Rows keep the numbers that they have in the log.
    QCOMPARE(view()->model()->headerData(0, Qt::Vertical).toInt(), 251);
    clickAt(0, 3);
    key(Qt::Key_Space);
    QTRY_COMPARE(m_user->leftValues("T").size(), 49);
    QVERIFY(m_user->source()->tableModel()->rowExcluded(250));
    QVERIFY(m_user->clickTab("tableTabs", Observations));
    QCOMPARE(view()->model()->rowCount(), 300);
    // A window that comes while they are shown changes nothing of them.
    m_user->source()->setObservationFilterType(LogObservationSortFilterProxyModel::All);
    m_user->source()->setObservationFilterType(LogObservationSortFilterProxyModel::Head);
    QCOMPARE(view()->model()->rowCount(), 300);
}

QTEST_MAIN(tst_TableHand)
#include "tst_TableHand.moc"

#include "TableTest.h"

/** The ways from the viewer's plot to its table and back. */
class tst_TableJump : public TableTest
{
    Q_OBJECT

private slots:
    void goesFromPlotToTableByKey();
    void goesFromPlotToTableByTouch();
    void goesFromTableToPlot();
    void comesBackFromTheMarker();
    void pansToTheRow();
    void saysWhenARowIsNotPlotted();
    void goesFromTroublesToTheRow_data();
    void goesFromTroublesToTheRow();
    void findsRowsBehindCriteria();
    void excludesAtTheCursor();
    void excludesAtAMarkerByTouch();
    void fitsItsWindow_data();
    void fitsItsWindow();
};

// From what was not taken as it stands

void tst_TableJump::goesFromTroublesToTheRow_data()
{
    QTest::addColumn<bool>("isByKeys");

    QTest::newRow("touch") << false;
    QTest::newRow("keys") << true;
}

void tst_TableJump::goesFromTroublesToTheRow()
{
    QFETCH(bool, isByKeys);
    m_user.reset();
    m_log.reset(
        new TemporaryLog(longLog() + "1\t10:00:00\t3\n"
                         + TemporaryLog::withUnits().replace("2\t11:00:01", "door\n2\t11:00:01")));
    m_user.reset(new ViewerUser(*m_log));
    QVERIFY(m_user->isReady());
    QTRY_VERIFY(m_user->isShown("troublesButton"));
    tap("troublesButton");
    QTRY_VERIFY(m_user->isShown("troubleList"));
    QVERIFY(m_user->settled());
    // The remark stands in the third data set, the short row in the first.
    if (isByKeys) {
        key(Qt::Key_Return);
    } else {
        const QQuickItem *line = m_user->item("trouble0")->findChild<QQuickItem *>("line");
        QVERIFY(line->height() >= 44);
        m_user->drag(m_user->pointOf(line, QPointF(20, 22)));
    }
    QTRY_VERIFY(m_user->isShown("table"));
    QTRY_VERIFY(range().isValid());
    QCOMPARE(m_user->item("dataSetChoice")->property("currentIndex").toInt(), 2);
    QCOMPARE(range().row, 1);
    QCOMPARE(view()->model()->index(1, 1).data().toString(), QString("Remarks"));
    QTRY_VERIFY(!m_user->isShown("troubleList"));
    tap("troublesButton");
    QTRY_VERIFY(m_user->isShown("troubleList"));
    key(Qt::Key_Down);
    key(Qt::Key_Return);
    QTRY_COMPARE(m_user->item("dataSetChoice")->property("currentIndex").toInt(), 0);
    QTRY_COMPARE(range().row, 300);
    QVERIFY(m_user->isShown("table"));
}

// To the table and back

void tst_TableJump::goesFromPlotToTableByKey()
{
    QVERIFY(m_user->settled());
    QTest::mouseClick(m_user->window(), Qt::LeftButton, Qt::NoModifier, onPlot(150));
    key(Qt::Key_T);
    QTRY_VERIFY(m_user->isShown("table"));
    QTRY_VERIFY(range().isValid());
    const int row = range().row;
    QCOMPARE(view()->model()->index(row, 1).data().toString(), readings()->cursorText());
    QVERIFY(qAbs(row - 149) <= 2);
    QVERIFY(isInMiddle(row));
    QCOMPARE(m_user->text("selectionText"), QString("1 × 5 selected"));
    // The keyboard came along.
    key(Qt::Key_Down);
    QCOMPARE(range().row, row + 1);
}

void tst_TableJump::goesFromPlotToTableByTouch()
{
    QVERIFY(m_user->settled());
    tap("markerB");
    m_user->drag(onPlot(200));
    QTRY_VERIFY(readings()->hasB());
    tap("rowActions");
    QTRY_VERIFY(m_user->isShown("showInTableB"));
    QVERIFY(!m_user->isShown("showInTableA"));
    tap("showInTableB");
    QTRY_VERIFY(m_user->isShown("table"));
    QCOMPARE(view()->model()->index(range().row, 1).data().toString(), readings()->textB());
    QVERIFY(isInMiddle(range().row));
}

void tst_TableJump::goesFromTableToPlot()
{
    showTable();
    clickAt(5, 3);
    key(Qt::Key_Return);
    QVERIFY(m_user->isShown("plot"));
    QVERIFY(readings()->hasA());
    QCOMPARE(readings()->textA(), QString("6"));
    QVERIFY(m_user->isShown("lineA"));
    // The next one is B, and then A again.
    QVERIFY(m_user->clickTab("viewTabs", TableView));
    clickAt(2, 3);
    tap("showInPlot");
    QTRY_VERIFY(m_user->isShown("plot"));
    QCOMPARE(readings()->textA(), QString("6"));
    QCOMPARE(readings()->textB(), QString("3"));
}

/** Not from where the mouse rests, which the plot came up under. */
void tst_TableJump::comesBackFromTheMarker()
{
    showTable();
    clickAt(5, 3);
    key(Qt::Key_Return);
    QTRY_VERIFY(m_user->isShown("plot"));
    for (int i = 0; i < 3; ++i)
        QVERIFY(m_user->settled());
    QVERIFY(!readings()->hasCursor());
    key(Qt::Key_T);
    QTRY_VERIFY(m_user->isShown("table"));
    QCOMPARE(range().row, 5);
    // A mouse that moves over the plot points at something.
    QVERIFY(m_user->clickTab("viewTabs", PlotView));
    QTest::mouseMove(m_user->window(), onPlot(100));
    QTest::mouseMove(m_user->window(), onPlot(150));
    QTRY_VERIFY(readings()->hasCursor());
}

void tst_TableJump::pansToTheRow()
{
    PlotNavigator *navigator = m_user->find<PlotNavigator>("navigator");
    QCOMPARE(navigator->setLimits(PlotNavigator::Bottom, "10", "20"), QString());
    QCOMPARE(navigator->setLimits(PlotNavigator::Left, "30", "40"), QString());
    showTable();
    clickAt(2, 3);
    key(Qt::Key_Return);
    QVERIFY(m_user->isShown("plot"));
    const PlotScales scales = navigator->scales();
    QCOMPARE(scales[2].min, -2.0);
    QCOMPARE(scales[2].max, 8.0);
    QCOMPARE(scales[0].min, 18.5);
    QCOMPARE(scales[0].max, 28.5);
    QCOMPARE(readings()->textA(), QString("3"));
    navigator->back();
    QCOMPARE(navigator->scales()[2].min, 10.0);
}

void tst_TableJump::saysWhenARowIsNotPlotted()
{
    showTable();
    clickAt(1, 2);
    key(Qt::Key_Space);
    key(Qt::Key_Return);
    QVERIFY(m_user->isShown("table"));
    QCOMPARE(m_user->text("selectionText"), QString("This row is not plotted"));
    QVERIFY(!readings()->hasA());
}

/** Curves that criteria cut are pieces, between which rows are missing. */
void tst_TableJump::findsRowsBehindCriteria()
{
    m_user->source()->buildFilter(2, 5, "25.5");
    m_user->source()->buildFilter(2, 5, "30.5");
    QVERIFY(m_user->source()->YLeftData().value("T").size() > 2);
    m_user->source()->updateVariableSelection(2, 4, false);
    m_user->source()->tableModel()->setData(m_user->source()->tableModel()->index(0, 0), 2,
                                            Qt::CheckStateRole);
    showTable();
    for (int row : {1, 7, 11}) {
        QVERIFY(m_user->clickTab("viewTabs", TableView));
        view()->scrollToTop();
        view()->scrollTo(view()->model()->index(row, 3));
        clickAt(row, 3);
        key(Qt::Key_Return);
        QVERIFY(m_user->isShown("plot"));
        QCOMPARE(readings()->textA(), QString::number(row + 1));
        // And back, from where the marker is; the pointer may have left a cursor.
        QTest::mouseMove(m_user->window(), QPoint(5, 5));
        QVERIFY(m_user->settled());
        key(Qt::Key_Escape);
        key(Qt::Key_T);
        QVERIFY(m_user->isShown("table"));
        QCOMPARE(range().row, row);
        readings()->clearMarkers();
    }
    view()->scrollToTop();
    clickAt(4, 3);
    key(Qt::Key_Return);
    QCOMPARE(m_user->text("selectionText"), QString("This row is not plotted"));
}

void tst_TableJump::excludesAtTheCursor()
{
    QVERIFY(m_user->settled());
    QTest::mouseClick(m_user->window(), Qt::LeftButton, Qt::NoModifier, onPlot(150));
    QTRY_VERIFY(readings()->hasCursor());
    const double x = readings()->cursorText().toDouble();
    key(Qt::Key_E);
    QTRY_COMPARE(m_user->leftValues("T").size(), 299);
    QVERIFY(!m_user->leftValues("T").contains(20.5 + x));
    QCOMPARE(m_user->text("clearExcluded"), QString("Clear excluded (1)"));
}

void tst_TableJump::excludesAtAMarkerByTouch()
{
    QVERIFY(m_user->settled());
    tap("markerA");
    m_user->drag(onPlot(100));
    QTRY_VERIFY(readings()->hasA());
    const double x = readings()->textA().toDouble();
    tap("rowActions");
    QTRY_VERIFY(m_user->isShown("excludeA"));
    tap("excludeA");
    QTRY_COMPARE(m_user->leftValues("T").size(), 299);
    QVERIFY(!m_user->leftValues("T").contains(20.5 + x));
}

void tst_TableJump::fitsItsWindow_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("instrument") << QSize(800, 480);
    QTest::newRow("desk") << QSize(1280, 800);
}

/** Pictures of it are kept where the environment asks for them. */
void tst_TableJump::fitsItsWindow()
{
    QFETCH(QSize, size);
    m_user->window()->resize(size);
    QTRY_COMPARE(m_user->window()->size(), size);
    const auto keepPicture = [this](const char *name) {
        const QString folder = qEnvironmentVariable("DATALOG_PICTURES");
        QVERIFY(m_user->settled());
        if (!folder.isEmpty())
            QVERIFY(m_user->window()->grabWindow().save(folder + "/" + QTest::currentDataTag() + "-"
                                                        + name + ".png"));
    };
    showTable();
    QVERIFY(m_user->settled());
    drag(at(1, 2), at(2, 3));
    for (const char *name : {"find", "extend", "copy", "copyWithHeader", "toggleExcluded",
                             "showInPlot", "viewTabs", "tableTabs", "columnsButton"})
        QVERIFY2(m_user->isForFingers(name), name);
    QVERIFY(view()->viewport()->height() >= 3 * 44);
    keepPicture("selected");
    tap("find");
    m_user->type("wet");
    QTRY_COMPARE(m_user->text("matchText"), QString("1 of 3"));
    for (const char *name : {"findField", "findPrevious", "findNext", "closeFind"})
        QVERIFY2(m_user->isForFingers(name), name);
    keepPicture("found");
    key(Qt::Key_Escape);
    tap("showInPlot");
    QTRY_VERIFY(m_user->isShown("lineA"));
    for (const char *name : {"rowActions", "saveAs"})
        QVERIFY2(m_user->isForFingers(name), name);
    tap("rowActions");
    QTRY_VERIFY(m_user->isShown("showInTableA"));
    keepPicture("rows");
    QVERIFY(m_user->isForFingers("excludeA"));
}

QTEST_MAIN(tst_TableJump)
#include "tst_TableJump.moc"

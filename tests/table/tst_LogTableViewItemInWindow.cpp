#include "ChamberLog.h"

#include "declarative/DeclarativeTypes.h"
#include "declarative/HostWindow.h"
#include "support/LoadedLog.h"
#include "table/LogTableView.h"
#include "table/LogTableViewItem.h"

#include <QHeaderView>
#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>

/** The table in a window, in the hands of a user and made by scripts. */
class tst_LogTableViewItemInWindow : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void tapExcludesAnObservation_data();
    void tapExcludesAnObservation();
    void pressAndReleaseOnTwoBoxesChangeNothing_data() { tapExcludesAnObservation_data(); }
    void pressAndReleaseOnTwoBoxesChangeNothing();
    void quickTapsAllCount();
    void touchExcludesAnObservation();
    void dataCellsDoNothing();
    void exclusionIsSeen();
    void clearedPointsAreSeen();
    void everySecondRowIsSeen();
    void hiddenColumnsAreNotSeen();
    void engineMayGoFirst();
    void scriptMakesATable();
    void scriptShowsColumns();

private:
    LogTableViewItem *add(LogTableViewItem::LogViewerViewOptions option);
    QPoint cellCenter(int row, int column) const;
    QImage boxPicture(int row);

    QScopedPointer<HostWindow> m_window;
    QScopedPointer<LoadedLog> m_log;
    LogTableViewItem *m_item;
    QTouchDevice *m_touch;
};

Q_DECLARE_METATYPE(LogTableViewItem::LogViewerViewOptions)

void tst_LogTableViewItemInWindow::initTestCase()
{
    QApplication::setStyle(QLatin1String("fusion"));
    m_touch = QTest::createTouchDevice();
    registerDeclarativeType<LogTableViewItem>("DataLog", 1, 0, "LogTableViewItem");
    registerDeclarativeType<LogDataSourceItem>("DataLog", 1, 0, "LogDataSourceItem");
}

void tst_LogTableViewItemInWindow::init()
{
    m_log.reset(new LoadedLog(kChamberLog));
    m_window.reset(new HostWindow);
    QVERIFY(m_window->open());
}

void tst_LogTableViewItemInWindow::cleanup()
{
    m_window.reset();
    m_log.reset();
}

LogTableViewItem *tst_LogTableViewItemInWindow::add(LogTableViewItem::LogViewerViewOptions option)
{
    m_item = new LogTableViewItem;
    m_item->setParent(m_window->contentItem());
    m_item->setParentItem(m_window->contentItem());
    m_item->setSize(QSizeF(400, 300));
    m_item->setCheckableColumnEnabled(true);
    m_item->setLogViewerViewOption(option);
    m_item->setDataSource(m_log->source.data());
    m_window->picture();
    return m_item;
}

QPoint tst_LogTableViewItemInWindow::cellCenter(int row, int column) const
{
    const LogTableView *view = m_item->tableView();
    const QPoint center = view->visualRect(view->model()->index(row, column)).center();
    return view->viewport()->mapTo(const_cast<LogTableView *>(view), center);
}

QImage tst_LogTableViewItemInWindow::boxPicture(int row)
{
    const QPoint center = cellCenter(row, 0);
    return m_window->picture().copy(center.x() - 8, center.y() - 8, 16, 16);
}

void tst_LogTableViewItemInWindow::tapExcludesAnObservation_data()
{
    QTest::addColumn<LogTableViewItem::LogViewerViewOptions>("option");
    QTest::newRow("data") << LogTableViewItem::Data;
    QTest::newRow("plotted data") << LogTableViewItem::PlottedData;
}

void tst_LogTableViewItemInWindow::tapExcludesAnObservation()
{
    QFETCH(LogTableViewItem::LogViewerViewOptions, option);
    add(option);
    QSignalSpy graph(m_log->source.data(), SIGNAL(graphDataUpdated()));
    m_window->click(cellCenter(1, 0));
    QCOMPARE(m_log->source->tableModel()->excludeRows(), QVector<int>() << 0 << 1 << 0 << 0);
    QCOMPARE(graph.count(), 1);
    m_window->click(cellCenter(3, 0));
    QCOMPARE(m_log->source->tableModel()->excludeRows(), QVector<int>() << 0 << 1 << 0 << 1);
    m_window->click(cellCenter(1, 0));
    QCOMPARE(m_log->source->tableModel()->excludeRows(), QVector<int>() << 0 << 0 << 0 << 1);
    QCOMPARE(graph.count(), 3);
}

void tst_LogTableViewItemInWindow::pressAndReleaseOnTwoBoxesChangeNothing()
{
    QFETCH(LogTableViewItem::LogViewerViewOptions, option);
    add(option);
    const QRect cell = m_item->tableView()->visualRect(m_item->tableView()->model()->index(2, 0));
    const QPoint corner
        = m_item->tableView()->viewport()->mapTo(m_item->tableView(), cell.topLeft());
    // All over the other cell, so that its indicator is hit wherever a style puts it.
    for (int x = 3; x < cell.width(); x += 5) {
        m_window->press(cellCenter(1, 0));
        m_window->release(corner + QPoint(x, cell.height() / 2));
        QVERIFY(!m_log->source->hasExcludedRows());
    }
    m_window->press(cellCenter(1, 3));
    m_window->release(cellCenter(1, 0));
    QVERIFY(!m_log->source->hasExcludedRows());
}

void tst_LogTableViewItemInWindow::quickTapsAllCount()
{
    add(LogTableViewItem::Data);
    QTest::mouseDClick(m_window.data(), Qt::LeftButton, Qt::NoModifier, cellCenter(1, 0));
    QCOMPARE(m_log->source->tableModel()->rowExcluded(1), false);
    m_window->click(cellCenter(1, 0));
    QCOMPARE(m_log->source->tableModel()->rowExcluded(1), true);
}

void tst_LogTableViewItemInWindow::touchExcludesAnObservation()
{
    add(LogTableViewItem::Data);
    const QPoint box = cellCenter(2, 0);
    QTest::touchEvent(m_window.data(), m_touch).press(0, box, m_window.data());
    QTest::touchEvent(m_window.data(), m_touch).release(0, box, m_window.data());
    QTRY_COMPARE(m_log->source->tableModel()->rowExcluded(2), true);
}

void tst_LogTableViewItemInWindow::dataCellsDoNothing()
{
    add(LogTableViewItem::Data);
    m_window->click(cellCenter(1, 2));
    QVERIFY(!m_log->source->hasExcludedRows());
    QVERIFY(!m_item->tableView()->selectionModel()->hasSelection());
}

void tst_LogTableViewItemInWindow::exclusionIsSeen()
{
    add(LogTableViewItem::Data);
    const QImage before = boxPicture(1);
    m_window->click(cellCenter(1, 0));
    QVERIFY(boxPicture(1) != before);
    m_window->click(cellCenter(1, 0));
    QCOMPARE(boxPicture(1), before);
}

void tst_LogTableViewItemInWindow::clearedPointsAreSeen()
{
    add(LogTableViewItem::PlottedData);
    const QImage before = boxPicture(1);
    m_log->setExcluded(1, true);
    QVERIFY(boxPicture(1) != before);
    m_log->source->clearExcludedPoints();
    QCOMPARE(boxPicture(1), before);
}

void tst_LogTableViewItemInWindow::everySecondRowIsSeen()
{
    add(LogTableViewItem::Data);
    const QImage picture = m_window->picture();
    const LogTableView *view = m_item->tableView();
    for (int row = 0; row < 4; ++row) {
        // Near the edge of a cell, beside its text.
        const QRect cell = view->visualRect(view->model()->index(row, 2));
        const QPoint ground
            = view->viewport()->mapTo(const_cast<LogTableView *>(view), cell.topLeft());
        QCOMPARE(QColor(picture.pixel(ground + QPoint(2, 2))),
                 row % 2 ? QColor(206, 218, 234) : QColor(Qt::white));
    }
}

void tst_LogTableViewItemInWindow::hiddenColumnsAreNotSeen()
{
    add(LogTableViewItem::Data);
    m_window->resize(900, 300);
    m_item->setWidth(900);
    const QImage all = m_window->picture();
    m_item->hideColumnsForHeaderPart(QLatin1String("Air"));
    const QImage fewer = m_window->picture();
    QVERIFY(fewer != all);
    m_item->showColumnsForHeaderPart(QLatin1String("Air"));
    QCOMPARE(m_window->picture(), all);
}

void tst_LogTableViewItemInWindow::scriptMakesATable()
{
    QQmlEngine engine;
    engine.rootContext()->setContextProperty(QLatin1String("source"), m_log->source.data());
    QQmlComponent component(&engine);
    component.setData("import DataLog 1.0\n"
                      "LogTableViewItem {\n"
                      "  width: 400; height: 300\n"
                      "  checkableColumnEnabled: true\n"
                      "  logViewerViewOption: LogTableViewItem.PlottedData\n"
                      "  dataSource: source\n"
                      "}",
                      QUrl());
    const QScopedPointer<QObject> made(component.create());
    QVERIFY2(made, qPrintable(component.errorString()));
    LogTableViewItem *item = qobject_cast<LogTableViewItem *>(made.data());
    QVERIFY(item);
    QCOMPARE(item->logViewerViewOption(), LogTableViewItem::PlottedData);
    QVERIFY(item->tableView()->model() == m_log->source->observationFilteredTableModel());
    QCOMPARE(item->tableView()->size(), QSize(400, 300));
}

void tst_LogTableViewItemInWindow::engineMayGoFirst()
{
    QScopedPointer<QQmlEngine> engine(new QQmlEngine);
    QQmlComponent component(engine.data());
    component.setData("import DataLog 1.0\n"
                      "LogTableViewItem {\n"
                      "  width: 400; height: 300\n"
                      "  logViewerViewOption: LogTableViewItem.PlottedData\n"
                      "  dataSource: LogDataSourceItem {}\n"
                      "}",
                      QUrl());
    QScopedPointer<LogTableViewItem> item(qobject_cast<LogTableViewItem *>(component.create()));
    QVERIFY2(item, qPrintable(component.errorString()));
    item->setParentItem(m_window->contentItem());
    m_window->picture();
    engine.reset();
    // The source that the script made may have gone with the engine, or stay with the item.
    item->setWidth(300);
    item->showGraphedColumns();
    item->setLogViewerViewOption(LogTableViewItem::Header);
    m_window->picture();
    QCOMPARE(item->tableView()->width(), 300);
    item.reset();
    m_window->picture();
}

void tst_LogTableViewItemInWindow::scriptShowsColumns()
{
    QQmlEngine engine;
    engine.rootContext()->setContextProperty(QLatin1String("source"), m_log->source.data());
    QQmlComponent component(&engine);
    component.setData("import DataLog 1.0\n"
                      "LogTableViewItem {\n"
                      "  logViewerViewOption: 'Data'\n"
                      "  dataSource: source\n"
                      "  function choose() {\n"
                      "    hideAllColumns()\n"
                      "    showColumnsForHeaderPart('Air')\n"
                      "    showColumnsForHeaderPart('s', '\\n', 2)\n"
                      "    hideColumnsForHeaderPart('C', '[\\n]', 2)\n"
                      "  }\n"
                      "}",
                      QUrl());
    const QScopedPointer<QObject> made(component.create());
    QVERIFY2(made, qPrintable(component.errorString()));
    QMetaObject::invokeMethod(made.data(), "choose");
    const LogTableView *view = qobject_cast<LogTableViewItem *>(made.data())->tableView();
    QList<int> shown;
    for (int column = 0; column < 6; ++column) {
        if (!view->isColumnHidden(column))
            shown << column;
    }
    QCOMPARE(shown, QList<int>() << 2 << 5);
}

QTEST_MAIN(tst_LogTableViewItemInWindow)
#include "tst_LogTableViewItemInWindow.moc"

#include "plot/LogViewerItem.h"

#include "declarative/DeclarativeTypes.h"
#include "declarative/HostWindow.h"
#include "support/SmallLog.h"

#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>

#include <qwt_legend.h>
#include <qwt_legend_label.h>
#include <qwt_plot.h>
#include <qwt_plot_curve.h>

namespace
{

const char *const kLog = "Obs Time A B|1 0 10 20|2 0 11 21|3 0 12 22|4 0 13 23";

QwtPlotItem *curve(const LogViewerItem &item, int index)
{
    return item.plot()->itemList(QwtPlotItem::Rtti_PlotCurve).value(index);
}

/** Middle of a curve's legend entry, in item coordinates. */
QPoint entryCenter(const LogViewerItem &item, QwtPlotItem *plotItem)
{
    const QwtLegend *legend = qobject_cast<QwtLegend *>(item.plot()->legend());
    const QWidget *label = legend->legendWidget(item.plot()->itemToInfo(plotItem));
    return label ? label->mapTo(item.plot(), label->rect().center()) : QPoint();
}

/** How much there is of the first curve's colour; a symbol has at least 16 such pixels. */
int symbolPixels(const QImage &picture)
{
    const QColor color(QLatin1String("#D90C00"));
    int count = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            count += picture.pixelColor(x, y) == color;
    }
    return count;
}

} // namespace

/** The plot in a window, tapped by a user and called by a script. */
class tst_LogViewerItemInWindow : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void plotFillsTheItem();
    void tapOnLegendHidesACurve();
    void updateShowsHiddenCurvesAgain();
    void scriptsPassAxes_data();
    void scriptsPassAxes();
    void scriptBindsDataSource();
    void noWarnings();

private:
    QVariant evaluate(const QByteArray &expression);

    QScopedPointer<HostWindow> m_window;
    QScopedPointer<SmallLog> m_log;
    QScopedPointer<QQmlEngine> m_engine;
    LogViewerItem *m_item;
};

void tst_LogViewerItemInWindow::initTestCase()
{
    registerDeclarativeType<LogViewerItem>("DataLog", 1, 0, "LogViewerItem");
    registerDeclarativeType<LogDataSourceItem>("DataLog", 1, 0, "LogDataSourceItem");
    registerDeclarativeType<LogViewerItem>("DataLogEnums", 1, 0, "LogViewerAxis");
}

void tst_LogViewerItemInWindow::init()
{
    m_log.reset(new SmallLog(kLog));
    m_log->check(0, "Obs");
    m_log->check(1, "A B");
    m_window.reset(new HostWindow);
    m_item = new LogViewerItem;
    m_item->setParent(m_window->contentItem());
    m_item->setParentItem(m_window->contentItem());
    m_item->setSize(QSizeF(400, 300));
    m_item->setDataSource(m_log->source.data());
    m_item->setLinesEnabled(LogViewerItem::LeftAxis, true);
    QVERIFY(m_window->open());
    m_engine.reset(new QQmlEngine);
    m_engine->rootContext()->setContextProperty(QLatin1String("plot"), m_item);
    m_engine->rootContext()->setContextProperty(QLatin1String("source"), m_log->source.data());
}

void tst_LogViewerItemInWindow::cleanup()
{
    m_engine.reset();
    m_window.reset();
    m_log.reset();
}

/** The value of a script's expression; invalid, with the engine's warning, when it throws. */
QVariant tst_LogViewerItemInWindow::evaluate(const QByteArray &expression)
{
    QQmlComponent component(m_engine.data());
    component.setData("import QtQuick 2.0\nimport DataLog 1.0\nimport DataLogEnums 1.0\n"
                      "QtObject { property variant result: "
                          + expression + " }",
                      QUrl());
    QScopedPointer<QObject> object(component.create());
    return object ? object->property("result") : QVariant(component.errorString());
}

void tst_LogViewerItemInWindow::plotFillsTheItem()
{
    const QImage picture = m_window->picture();
    QCOMPARE(picture.pixelColor(0, 0), QColor(Qt::white));
    QCOMPARE(m_item->plot()->size(), QSize(400, 300));
    QVERIFY(symbolPixels(picture) > 20);
    m_item->setSize(QSizeF(200, 150));
    QCOMPARE(m_item->plot()->size(), QSize(200, 150));
}

void tst_LogViewerItemInWindow::tapOnLegendHidesACurve()
{
    m_item->setSymbolsEnabled(LogViewerItem::LeftAxis, true);
    const QImage before = m_window->picture();
    const int red = symbolPixels(before);
    m_window->click(entryCenter(*m_item, curve(*m_item, 0)));
    QVERIFY(!curve(*m_item, 0)->isVisible());
    QVERIFY(curve(*m_item, 1)->isVisible());
    QVERIFY(red - symbolPixels(m_window->picture()) >= 4 * 16);
    m_window->click(entryCenter(*m_item, curve(*m_item, 0)));
    QVERIFY(curve(*m_item, 0)->isVisible());
    QCOMPARE(m_window->picture(), before);
}

void tst_LogViewerItemInWindow::updateShowsHiddenCurvesAgain()
{
    m_window->picture();
    m_window->click(entryCenter(*m_item, curve(*m_item, 1)));
    QVERIFY(!curve(*m_item, 1)->isVisible());
    m_log->source->setObservationFrequency(2);
    QVERIFY(curve(*m_item, 0)->isVisible());
    QVERIFY(curve(*m_item, 1)->isVisible());
}

void tst_LogViewerItemInWindow::scriptsPassAxes_data()
{
    QTest::addColumn<QByteArray>("call");
    QTest::addColumn<QByteArray>("read");
    QTest::addColumn<QVariant>("expected");

    QTest::newRow("scale, key") << QByteArray("plot.setAxisScale(LogViewerAxis.LeftAxis, 3, 10)")
                                << QByteArray("plot.axisMinScale(LogViewerAxis.LeftAxis)")
                                << QVariant(3.0);
    QTest::newRow("scale, number") << QByteArray("plot.setAxisScale(2, 3, 10)")
                                   << QByteArray("plot.axisMaxScale(2)") << QVariant(10.0);
    QTest::newRow("scale, own key")
        << QByteArray("plot.setAxisScale(LogViewerItem.RightAxis, 3, 10)")
        << QByteArray("source.graphDefinition().scaling.yright.max")
        << QVariant(QLatin1String("10"));
    QTest::newRow("autoscale") << QByteArray("plot.enableAutoScale(LogViewerAxis.BottomAxis)")
                               << QByteArray("source.graphDefinition().scaling.xbottom.autoscale")
                               << QVariant(true);
    QTest::newRow("lines") << QByteArray("plot.setLinesEnabled(LogViewerAxis.RightAxis, true)")
                           << QByteArray("source.graphDefinition().yright.lines") << QVariant(true);
    QTest::newRow("symbols") << QByteArray("plot.setSymbolsEnabled(0, true)")
                             << QByteArray("source.graphDefinition().yleft.symbols")
                             << QVariant(true);
    QTest::newRow("no axis") << QByteArray("plot.setAxisScale(3, 3, 10)")
                             << QByteArray("plot.axisMinScale(3)") << QVariant(0.0);
    QTest::newRow("no axis at all") << QByteArray("plot.setAxisScale(-70000, 3, 10)")
                                    << QByteArray("plot.axisMaxScale(70000)") << QVariant(0.0);
    QTest::newRow("color") << QByteArray("plot.updatePlot()")
                           << QByteArray("plot.hexColorForAxisAndVariableName(1, 'B')")
                           << QVariant(QLatin1String("#FF0000"));
    QTest::newRow("view options") << QByteArray("0") << QByteArray("LogViewerAxis.PlotView")
                                  << QVariant(2);
}

void tst_LogViewerItemInWindow::scriptsPassAxes()
{
    QFETCH(QByteArray, call);
    QFETCH(QByteArray, read);
    QFETCH(QVariant, expected);
    const QVariant result
        = evaluate("(function() { " + call + "; plot.replot(); return " + read + " })()");
    QCOMPARE(result.toString(), expected.toString());
}

void tst_LogViewerItemInWindow::scriptBindsDataSource()
{
    QQmlComponent component(m_engine.data());
    component.setData("import QtQuick 2.0\nimport DataLog 1.0\n"
                      "LogViewerItem { width: 320; height: 200; dataSource: source\n"
                      "  property int updates: 0; onPlotUpdated: ++updates }",
                      QUrl());
    QScopedPointer<QObject> object(component.create());
    QVERIFY2(object, qPrintable(component.errorString()));
    LogViewerItem *item = qobject_cast<LogViewerItem *>(object.data());
    QVERIFY(item);
    QCOMPARE(item->dataSource(), m_log->source.data());
    QCOMPARE(item->plot()->size(), QSize(320, 200));
    m_log->uncheck(1, "A");
    QCOMPARE(item->property("updates").toInt(), 1);
}

namespace
{

QStringList theMessages;

void keepMessage(QtMsgType, const QMessageLogContext &, const QString &message)
{
    theMessages << message;
}

} // namespace

void tst_LogViewerItemInWindow::noWarnings()
{
    theMessages.clear();
    QtMessageHandler previous = qInstallMessageHandler(keepMessage);
    {
        LogViewerItem item;
        item.setSize(QSizeF(300, 200));
        item.setParentItem(m_window->contentItem());
        item.setDataSource(m_log->source.data());
        item.setLinesEnabled(LogViewerItem::LeftAxis, true);
        item.setSymbolsEnabled(LogViewerItem::LeftAxis, true);
        m_window->picture();
        m_window->click(entryCenter(item, curve(item, 0)));
    }
    qInstallMessageHandler(previous);
    QCOMPARE(theMessages, QStringList());
}

QTEST_MAIN(tst_LogViewerItemInWindow)
#include "tst_LogViewerItemInWindow.moc"

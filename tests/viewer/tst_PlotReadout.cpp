#include "PlotWindow.h"

#include <qwt_plot.h>
#include <qwt_plot_curve.h>

/** Reading off the plot of a window: the cursor, markers, and hiding curves. */
class tst_PlotReadout : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void followsThePointer();
    void readsWhereAFingerTaps();
    void stepsThroughSamplesByKeys();
    void showsClockTimes();
    void comparesMarkersPutByKeys();
    void comparesMarkersPutByTaps();
    void removesMarkers();
    void readsWhereThePointerEnters();
    void hidesACurve();
    void keepsACurveHidden();
    void keepsReadingsWithTheirValues();
    void forgetsTheZoomOfAnotherLog();
    void followsTheDataOfAnotherVariable();
    void keepsTheZoomWhenACriterionComes();
    void showsWholeRowsOfCurves();
    void fitsItsWindow_data();
    void fitsItsWindow();

private:
    QPoint at(double x, double y = 25) const
    {
        const PlotNavigator *navigator = m_window->navigator();
        return m_window->plot()
            ->mapToScene(QPointF(navigator->toPixelX(x), navigator->toPixelY(0, y)))
            .toPoint();
    }
    void hover(double x) { QTest::mouseMove(m_window->window(), at(x)); }
    void takeFocus()
    {
        QTest::mouseClick(m_window->window(), Qt::LeftButton, Qt::NoModifier, at(5));
    }
    QVariant role(int row, int role) const { return m_window->readings()->index(row).data(role); }
    QString reading(int row) const { return role(row, CurveReadings::ReadingRole).toString(); }
    /** What the window shows of a curve, in the table of markers. */
    QString cell(int row, const char *name) const
    {
        const QQuickItem *chip = m_window->item(qPrintable(QStringLiteral("row%1").arg(row)));
        const QQuickItem *cell
            = chip ? PlotWindow::within(chip->parentItem(), QLatin1String(name)) : nullptr;
        return cell ? cell->property("text").toString() : QStringLiteral("no such cell");
    }
    /** What a part of the window shows in one of its texts. */
    QString textIn(const char *part, const char *name) const
    {
        const QQuickItem *text = PlotWindow::within(m_window->item(part), QLatin1String(name));
        return text && text->isVisible() ? text->property("text").toString()
                                         : QStringLiteral("no such text");
    }
    int visibleCurves() const
    {
        int count = 0;
        const auto items = m_window->plot()->plot()->itemList(QwtPlotItem::Rtti_PlotCurve);
        for (const QwtPlotItem *item : items)
            count += item->isVisible();
        return count;
    }
    void openAgain(const ViewerOptions &options)
    {
        m_window.reset(new PlotWindow(options));
        QVERIFY(m_window->open(m_log->path()));
    }

    QScopedPointer<TemporaryLog> m_log;
    QScopedPointer<PlotWindow> m_window;
};

void tst_PlotReadout::init()
{
    // Logs leave the first unit out.
    m_log.reset(new TemporaryLog(TemporaryLog::twoDataSets().replace("\n-\t", "\n\t")));
    openAgain(ViewerOptions());
}

void tst_PlotReadout::cleanup()
{
    m_window.reset();
    m_log.reset();
}

// The cursor

void tst_PlotReadout::followsThePointer()
{
    QCOMPARE(role(0, CurveReadings::NameRole).toString(), QString("T"));
    QCOMPARE(role(0, CurveReadings::UnitRole).toString(), QString("C"));
    QCOMPARE(role(0, CurveReadings::ColorRole).value<QColor>(), QColor("#D90C00"));
    QCOMPARE(role(1, CurveReadings::NameRole).toString(), QString("CO2"));
    QCOMPARE(role(1, CurveReadings::UnitRole).toString(), QString("ppm"));
    hover(3.4);
    QTRY_COMPARE(reading(0), QString("23.5"));
    QCOMPARE(reading(1), QString("403"));
    QCOMPARE(m_window->readings()->cursorText(), QString("3"));
    QVERIFY(m_window->item("cursorLine")->isVisible());
    QCOMPARE(PlotWindow::within(m_window->item("chip0"), "chipReading")->property("text"),
             QVariant("23.5"));
    hover(3.6);
    QTRY_COMPARE(reading(0), QString("24.5"));
    // The line is at the sample.
    QVERIFY(qAbs(m_window->item("cursorLine")->x() - m_window->navigator()->toPixelX(4)) <= 1);
}

void tst_PlotReadout::readsWhereAFingerTaps()
{
    m_window->tap(at(7.2));
    QTRY_COMPARE(reading(0), QString("27.5"));
    m_window->key(Qt::Key_Escape);
    QTRY_COMPARE(reading(0), QString());
    QVERIFY(!m_window->item("cursorLine")->isVisible());
}

void tst_PlotReadout::stepsThroughSamplesByKeys()
{
    takeFocus();
    QTRY_COMPARE(reading(0), QString("25.5"));
    m_window->key(Qt::Key_Period);
    QCOMPARE(reading(0), QString("26.5"));
    m_window->key(Qt::Key_Comma);
    m_window->key(Qt::Key_Comma);
    QCOMPARE(reading(0), QString("24.5"));
    QCOMPARE(reading(1), QString("404"));
    for (int i = 0; i < 20; ++i)
        m_window->key(Qt::Key_Right, Qt::ControlModifier);
    QCOMPARE(reading(0), QString("28.5"));
}

void tst_PlotReadout::showsClockTimes()
{
    ViewerOptions options;
    options.x = "Time";
    options.left << "T"
                 << "Time";
    openAgain(options);
    hover(3.2); // seconds after the first
    QTRY_COMPARE(reading(0), QString("24.5"));
    QCOMPARE(role(1, CurveReadings::NameRole).toString(), QString("Time"));
    QCOMPARE(reading(1), QString("10:00:04"));
    QCOMPARE(m_window->readings()->cursorText(), QString("10:00:04"));
    QCOMPARE(textIn("cursorLine", "lineLabel"), QString("10:00:04"));
    QCOMPARE(textIn("chip1", "chipReading"), QString("10:00:04"));
    QTest::mouseClick(m_window->window(), Qt::LeftButton, Qt::NoModifier, at(1));
    m_window->key(Qt::Key_A);
    hover(6);
    m_window->key(Qt::Key_B);
    QTRY_COMPARE(m_window->readings()->distanceText(), QString("00:00:05"));
    QCOMPARE(role(1, CurveReadings::DifferenceRole).toString(), QString("00:00:05"));
    QCOMPARE(role(1, CurveReadings::MeanRole).toString(), QString("10:00:04.5"));
    QCOMPARE(role(0, CurveReadings::DifferenceRole).toString(), QString("5"));
    // The window shows the same.
    QCOMPARE(textIn("lineA", "lineLabel"), QString("A  10:00:02"));
    QCOMPARE(textIn("lineB", "lineLabel"), QString("B  10:00:07"));
    QTRY_COMPARE(textIn("curveTable", "head_difference"), QString("B − A\n00:00:05"));
    QCOMPARE(textIn("curveTable", "head_readingA"), QString("A\n10:00:02"));
    QTRY_COMPARE(cell(1, "mean"), QString("10:00:04.5"));
    QCOMPARE(cell(1, "readingB"), QString("10:00:07"));
    QCOMPARE(cell(1, "difference"), QString("00:00:05"));
    QCOMPARE(cell(0, "difference"), QString("5"));
}

// Markers

void tst_PlotReadout::comparesMarkersPutByKeys()
{
    takeFocus();
    hover(3);
    m_window->key(Qt::Key_A);
    QVERIFY(m_window->readings()->hasA());
    QVERIFY(!m_window->item("chips")->isVisible());
    hover(8);
    m_window->key(Qt::Key_B);
    hover(5);
    QTRY_COMPARE(cell(0, "reading"), QString("25.5"));
    QCOMPARE(cell(0, "readingA"), QString("23.5"));
    QCOMPARE(cell(0, "readingB"), QString("28.5"));
    QCOMPARE(cell(0, "difference"), QString("5"));
    QCOMPARE(cell(0, "least"), QString("23.5"));
    QCOMPARE(cell(0, "greatest"), QString("28.5"));
    QCOMPARE(cell(0, "mean"), QString("26"));
    QCOMPARE(cell(1, "difference"), QString("5"));
    QCOMPARE(cell(1, "mean"), QString("405.5"));
    QCOMPARE(m_window->readings()->textA(), QString("3"));
    QCOMPARE(m_window->readings()->textB(), QString("8"));
    QCOMPARE(m_window->readings()->distanceText(), QString("5"));
    QVERIFY(m_window->item("lineA")->isVisible());
    QVERIFY(m_window->item("lineB")->isVisible());
}

void tst_PlotReadout::comparesMarkersPutByTaps()
{
    QVERIFY(m_window->click("markerA"));
    QVERIFY(m_window->item("markerA")->property("checked").toBool());
    m_window->tap(at(9));
    QTRY_VERIFY(m_window->readings()->hasA());
    QVERIFY(!m_window->item("markerA")->property("checked").toBool());
    QVERIFY(m_window->click("markerB"));
    QVERIFY(m_window->settle());
    QTest::mouseClick(m_window->window(), Qt::LeftButton, Qt::NoModifier, at(2));
    QTRY_COMPARE(cell(0, "difference"), QString("-7"));
    QCOMPARE(m_window->readings()->distanceText(), QString("-7"));
    QCOMPARE(cell(0, "mean"), QString("26"));
    // An armed marker can be given up.
    QVERIFY(m_window->click("markerA"));
    m_window->item("plotArea")->forceActiveFocus();
    m_window->key(Qt::Key_Escape);
    QVERIFY(!m_window->item("markerA")->property("checked").toBool());
}

void tst_PlotReadout::removesMarkers()
{
    QVERIFY(!m_window->item("clearMarkers")->isEnabled());
    takeFocus();
    m_window->key(Qt::Key_A);
    m_window->key(Qt::Key_B);
    QVERIFY(m_window->settle());
    QVERIFY(m_window->click("clearMarkers"));
    QVERIFY(!m_window->readings()->hasA());
    QVERIFY(!m_window->readings()->hasB());
    QTRY_VERIFY(m_window->item("chips")->isVisible());
    takeFocus();
    m_window->key(Qt::Key_A);
    m_window->key(Qt::Key_Delete);
    QVERIFY(!m_window->readings()->hasA());
}

/** A pointer that jumps onto the plot and rests there is told by entering alone. */
void tst_PlotReadout::readsWhereThePointerEnters()
{
    auto *pad = m_window->find<QQuickItem>("pad");
    const QPointF position = pad->mapFromScene(at(4));
    QTest::mouseMove(m_window->window(), QPoint(5, 5));
    QHoverEvent enter(QEvent::HoverEnter, position, QPointF(-1, -1));
    QCoreApplication::sendEvent(pad, &enter);
    QTRY_COMPARE(reading(1), QString("404"));
}

// Curves

void tst_PlotReadout::hidesACurve()
{
    QCOMPARE(visibleCurves(), 2);
    QVERIFY(m_window->click("chip0"));
    QCOMPARE(visibleCurves(), 1);
    QCOMPARE(role(0, CurveReadings::IsShownRole), QVariant(false));
    // The variable stays ticked; what is hidden is not read, nor does it widen the scale.
    QCOMPARE(m_window->source()->YLeftData().keys(), QStringList{"T"});
    hover(4);
    QTRY_COMPARE(reading(1), QString("404"));
    QCOMPARE(reading(0), QString());
    QVERIFY(m_window->click("chip0"));
    QCOMPARE(visibleCurves(), 2);
    QTRY_COMPARE(reading(0), QString("24.5"));
}

void tst_PlotReadout::keepsACurveHidden()
{
    QVERIFY(m_window->click("chip1"));
    QCOMPARE(visibleCurves(), 1);
    m_window->source()->buildFilter(2, 5, "25.5");
    QCOMPARE(m_window->plot()->plot()->itemList(QwtPlotItem::Rtti_PlotCurve).size(), 3);
    QCOMPARE(visibleCurves(), 2);
    QCOMPARE(role(1, CurveReadings::IsShownRole), QVariant(false));
    // Unticked and ticked again, it is shown.
    m_window->source()->updateVariableSelection(2, 4, false);
    m_window->source()->updateVariableSelection(2, 4, true);
    QCOMPARE(visibleCurves(), 3);
    QVERIFY(m_window->click("chip1"));
    m_window->item("plotArea")->forceActiveFocus();
    m_window->key(Qt::Key_H);
    QCOMPARE(visibleCurves(), 3);
}

void tst_PlotReadout::keepsReadingsWithTheirValues()
{
    takeFocus();
    m_window->key(Qt::Key_A);
    QVERIFY(m_window->settle());
    const double before = m_window->readings()->pixelA();
    m_window->wheel(at(2), 2);
    QTRY_VERIFY(m_window->readings()->pixelA() > before + 10);
    QCOMPARE(m_window->readings()->textA(), QString("5"));
    QVERIFY(qAbs(m_window->readings()->pixelA() - m_window->navigator()->toPixelX(5)) < 1);
}

// Other data

void tst_PlotReadout::forgetsTheZoomOfAnotherLog()
{
    takeFocus();
    m_window->key(Qt::Key_A);
    m_window->wheel(at(5), 3);
    QVERIFY(m_window->navigator()->isZoomed());
    const TemporaryLog other(TemporaryLog::twoDataSets(), "other.log");
    QVERIFY(m_window->open(other.path()));
    QVERIFY(!m_window->navigator()->isZoomed());
    QVERIFY(!m_window->navigator()->canGoBack());
    QVERIFY(!m_window->readings()->hasA());
}

void tst_PlotReadout::followsTheDataOfAnotherVariable()
{
    m_window->wheel(at(5), 3);
    m_window->source()->setHorizontalVariable("RH");
    QTRY_VERIFY(m_window->navigator()->scales()[QwtPlot::xBottom].isAuto);
    QVERIFY(!m_window->navigator()->scales()[QwtPlot::yLeft].isAuto);
    // One more variable changes nothing, another one does.
    m_window->source()->updateVariableSelection(1, 3, true);
    QCoreApplication::processEvents();
    QVERIFY(!m_window->navigator()->scales()[QwtPlot::yLeft].isAuto);
    m_window->source()->setLeftVariable("CO2");
    QTRY_VERIFY(m_window->navigator()->scales()[QwtPlot::yLeft].isAuto);
    QVERIFY(!m_window->navigator()->scales()[QwtPlot::yRight].isAuto);
}

void tst_PlotReadout::keepsTheZoomWhenACriterionComes()
{
    QTest::mouseClick(m_window->window(), Qt::LeftButton, Qt::NoModifier, at(4.8));
    m_window->key(Qt::Key_A);
    m_window->wheel(at(5), 3);
    const PlotScales zoomed = m_window->navigator()->scales();
    m_window->source()->buildFilter(2, 5, "25.5");
    QCoreApplication::processEvents();
    QVERIFY(m_window->navigator()->scales() == zoomed);
    // The marker's sample is gone; the next one stands for it.
    QTRY_COMPARE(role(0, CurveReadings::ReadingARole).toString(), QString("24.5"));
    QCOMPARE(role(1, CurveReadings::ReadingARole).toString(), QString("405"));
}

void tst_PlotReadout::showsWholeRowsOfCurves()
{
    for (int variable = 1; variable < 5; ++variable)
        m_window->source()->updateVariableSelection(1, variable, true);
    m_window->window()->resize(800, 480);
    QTRY_COMPARE(m_window->window()->size(), QSize(800, 480));
    QVERIFY(m_window->settle());
    QTRY_COMPARE(m_window->readings()->rowCount(), 5);
    QTRY_COMPARE(m_window->item("chips")->height(), 88.0);
    QVERIFY(m_window->item("plotArea")->height() > 200);
}

void tst_PlotReadout::fitsItsWindow_data()
{
    QTest::addColumn<QSize>("size");

    QTest::newRow("instrument") << QSize(800, 480);
    QTest::newRow("desk") << QSize(1280, 800);
}

/** What is to be hit is there, inside the window, and large enough for a finger. */
void tst_PlotReadout::fitsItsWindow()
{
    QFETCH(QSize, size);
    m_window->window()->resize(size);
    QTRY_COMPARE(m_window->window()->size(), size);
    QVERIFY(m_window->settle());
    const auto check = [this, size](const char *name) {
        const QQuickItem *control = m_window->item(name);
        QVERIFY2(control && control->isVisible(), name);
        const QRectF area = control->mapRectToScene(QRectF(QPointF(), control->size()));
        QVERIFY2(QRectF(QPointF(), size).contains(area), name);
        QVERIFY2(qMin(area.width(), area.height()) >= 44, name);
    };
    for (const char *name : {"zoomBack", "showEverything", "zoomMode", "axesChoice", "limits",
                             "markerA", "markerB", "clearMarkers", "saveAs", "chip0", "chip1"})
        check(name);
    QVERIFY(m_window->navigator()->canvas().height() >= 180);
    takeFocus();
    m_window->key(Qt::Key_A);
    hover(8);
    m_window->key(Qt::Key_B);
    QVERIFY(m_window->settle());
    QTRY_COMPARE(cell(0, "difference"), QString("3"));
    check("row0");
    QVERIFY(m_window->navigator()->canvas().height() >= 140);
    if (qEnvironmentVariableIsSet("DATALOG_SHOTS"))
        m_window->window()->grabWindow().save(qEnvironmentVariable("DATALOG_SHOTS")
                                              + QString("/markers-%1.png").arg(size.width()));
    QVERIFY(m_window->click("limits"));
    auto *popup = m_window->window()->findChild<QObject *>("limitsPopup");
    QTRY_VERIFY(popup->property("opened").toBool());
    check("applyLimits");
    check("lower");
    if (qEnvironmentVariableIsSet("DATALOG_SHOTS"))
        m_window->window()->grabWindow().save(qEnvironmentVariable("DATALOG_SHOTS")
                                              + QString("/limits-%1.png").arg(size.width()));
}

QTEST_MAIN(tst_PlotReadout)
#include "tst_PlotReadout.moc"

#include "plot/PlotFixture.h"

#include "filters/LogDataSetFilter.h"
#include "plot/CurveSeries.h"
#include "plot/LogPlotCurve.h"

/** Whether a text like <b>x</b> is drawn with all its letters; by the room that it takes. */
static bool showsMarkup(const QwtText &text)
{
    const QFont font;
    QwtText plain(text.text(), QwtText::PlainText);
    QwtText same = text;
    same.setFont(font);
    plain.setFont(font);
    return same.textSize() == plain.textSize();
}

/** Which curves there are, how they look, and what the axes are called. */
class tst_LogViewerItemCurves : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void noBaseUpdate();
    void curvesOfBothAxes_data();
    void curvesOfBothAxes();
    void curveDetails();
    void onePieceOneCurve();
    void manyPieces();
    void axisTitles();
    void titlesStayWhileAnAxisIsOff();
    void namesAreShownAsTheyAre();
    void awkwardValues_data();
    void awkwardValues();
    void valuesAreShared();
    void manyUpdates();

private:
    QScopedPointer<PlotFixture> m_plot;
};

void tst_LogViewerItemCurves::init()
{
    m_plot.reset(new PlotFixture);
}

void tst_LogViewerItemCurves::cleanup()
{
    m_plot.reset();
}

void tst_LogViewerItemCurves::noBaseUpdate()
{
    m_plot->select("Obs", "A B", "C");
    QSignalSpy updated(&m_plot->item, SIGNAL(plotUpdated()));
    m_plot->item.updatePlot();
    QCOMPARE(m_plot->curves().size(), 0);
    QCOMPARE(m_plot->title(QwtPlot::xBottom), QString::fromLatin1("Obs"));
    QCOMPARE(m_plot->title(QwtPlot::yLeft), QString());
    QCOMPARE(m_plot->title(QwtPlot::yRight), QString());
    QCOMPARE(updated.count(), 1);
}

void tst_LogViewerItemCurves::curvesOfBothAxes_data()
{
    QTest::addColumn<QString>("on"); // l and r for lines, L and R for symbols
    QTest::addColumn<QString>("expected");

    QTest::newRow("nothing") << ""
                             << "";
    QTest::newRow("left lines") << "l"
                                << "A, #d90c00, lines, none, left, 1/10 2/11 3/12 4/13";
    QTest::newRow("left symbols")
        << "L"
        << "A, #d90c00, dots, rect 6x6 #d90c00, left, 1/10 2/11 3/12 4/13";
    QTest::newRow("left both") << "lL"
                               << "A, #d90c00, lines, rect 6x6 #d90c00, left, 1/10 2/11 3/12 4/13";
    QTest::newRow("right lines") << "r"
                                 << "B, #002e00, lines, none, right, 1/20 2/21 3/22 4/23";
    QTest::newRow("right symbols")
        << "R"
        << "B, #002e00, dots, diamond 8x8 #002e00, right, 1/20 2/21 3/22 4/23";
    QTest::newRow("right both")
        << "rR"
        << "B, #002e00, lines, diamond 8x8 #002e00, right, 1/20 2/21 3/22 4/23";
    QTest::newRow("left and right") << "lR"
                                    << "A, #d90c00, lines, none, left, 1/10 2/11 3/12 4/13; "
                                       "B, #002e00, dots, diamond 8x8 #002e00, right, "
                                       "1/20 2/21 3/22 4/23";
}

void tst_LogViewerItemCurves::curvesOfBothAxes()
{
    QFETCH(QString, on);
    QFETCH(QString, expected);
    m_plot->select("Obs", "A", "B");
    m_plot->item.setLinesEnabled(kLeft, on.contains(QLatin1Char('l')));
    m_plot->item.setSymbolsEnabled(kLeft, on.contains(QLatin1Char('L')));
    m_plot->item.setLinesEnabled(kRight, on.contains(QLatin1Char('r')));
    m_plot->item.setSymbolsEnabled(kRight, on.contains(QLatin1Char('R')));
    QCOMPARE(m_plot->curvesText(), expected);
}

void tst_LogViewerItemCurves::curveDetails()
{
    m_plot->select("Obs", "A", "B");
    m_plot->item.setLinesEnabled(kLeft, true);
    m_plot->item.setSymbolsEnabled(kRight, true);
    QCOMPARE(m_plot->curves().size(), 2);
    foreach (QwtPlotCurve *curve, m_plot->curves()) {
        QCOMPARE(curve->pen().widthF(), QPen(QColor(Qt::red)).widthF());
        QCOMPARE(curve->pen().style(), Qt::SolidLine);
        QVERIFY(curve->testRenderHint(QwtPlotItem::RenderAntialiased));
        QCOMPARE(curve->xAxis(), int(QwtPlot::xBottom));
        QVERIFY(curve->isVisible());
        QVERIFY(m_plot->label(curve));
        QVERIFY(m_plot->label(curve)->isChecked());
        QCOMPARE(m_plot->label(curve)->text().text(), curve->title().text());
    }
}

void tst_LogViewerItemCurves::onePieceOneCurve()
{
    m_plot->select("Obs", "A B", "");
    m_plot->item.setLinesEnabled(kLeft, true);
    LogDataSetFilter::Builder builder;
    builder.variable(QLatin1String("A")).filterOperator(LogDataSetFilter::NotEqual).value(11);
    m_plot->log.source->addFilter(new LogDataSetFilter(&builder, nullptr));
    m_plot->log.source->setObservationFrequency(1); // recomputes
    QCOMPARE(m_plot->curvesText(),
             QString::fromLatin1("A, #d90c00, lines, none, left, 1/10; "
                                 "A, #d90c00, lines, none, left, 3/12 4/13; "
                                 "B, #ff0000, lines, none, left, "
                                 "1/20 2/21 3/22 4/23"));
    QVERIFY(m_plot->label(m_plot->curves().at(0)) != m_plot->label(m_plot->curves().at(1)));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(m_plot->legend()->findChildren<QwtLegendLabel *>().size(), 3);
    QTest::mouseClick(m_plot->label(m_plot->curves().at(0)), Qt::LeftButton);
    QVERIFY(!m_plot->curves().at(0)->isVisible());
    QVERIFY(m_plot->curves().at(1)->isVisible());
}

void tst_LogViewerItemCurves::manyPieces()
{
    QByteArray table = "Obs Time A";
    for (int i = 0; i < 1200; ++i)
        table += '|' + QByteArray::number(i) + " 0 " + QByteArray::number(i % 2);
    m_plot->log.load(table);
    m_plot->log.source->buildFilter(2, 4, QLatin1String("1"));
    m_plot->item.setLinesEnabled(kLeft, true);
    m_plot->item.setLinesEnabled(kRight, true);
    m_plot->select("Obs", "A", "Time");
    m_plot->item.updatePlot();
    QCOMPARE(m_plot->curves().size(), 601);
    QVERIFY(m_plot->label(m_plot->curves().last()));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(m_plot->legend()->findChildren<QwtLegendLabel *>().size(), 501);
    QVERIFY(m_plot->label(m_plot->curves().at(499)));
    QwtPlotCurve *unlisted = m_plot->curves().at(500);
    QVERIFY(!m_plot->label(unlisted));
    QVERIFY(unlisted->isVisible());
    m_plot->item.curveChecked(unlisted, false);
    QVERIFY(!unlisted->isVisible());
}

void tst_LogViewerItemCurves::axisTitles()
{
    m_plot->item.setLinesEnabled(kLeft, true);
    m_plot->item.setLinesEnabled(kRight, true);
    m_plot->select("Obs", "C A", "B");
    QCOMPARE(m_plot->title(QwtPlot::xBottom), QString::fromLatin1("Obs"));
    QCOMPARE(m_plot->title(QwtPlot::yLeft), QString::fromLatin1("A - C"));
    QCOMPARE(m_plot->title(QwtPlot::yRight), QString::fromLatin1("B"));
    m_plot->log.uncheck(0, "Obs");
    QCOMPARE(m_plot->title(QwtPlot::xBottom), QString());
    QCOMPARE(m_plot->title(QwtPlot::yLeft), QString());
    QCOMPARE(m_plot->title(QwtPlot::yRight), QString());
}

void tst_LogViewerItemCurves::titlesStayWhileAnAxisIsOff()
{
    m_plot->item.setLinesEnabled(kLeft, true);
    m_plot->select("Obs", "A", "");
    m_plot->item.setLinesEnabled(kLeft, false);
    QCOMPARE(m_plot->curves().size(), 0);
    m_plot->log.check(1, "B");
    QCOMPARE(m_plot->title(QwtPlot::yLeft), QString::fromLatin1("A"));
    m_plot->item.setSymbolsEnabled(kLeft, true);
    QCOMPARE(m_plot->title(QwtPlot::yLeft), QString::fromLatin1("A - B"));
}

void tst_LogViewerItemCurves::namesAreShownAsTheyAre()
{
    m_plot->log.load("<b>x</b> Time <i>y</i>|1 10:00:00 5|2 10:00:01 6");
    m_plot->item.setLinesEnabled(kLeft, true);
    m_plot->select("<b>x</b>", "<i>y</i>", "");
    QCOMPARE(m_plot->title(QwtPlot::xBottom), QString::fromLatin1("<b>x</b>"));
    QCOMPARE(m_plot->curves().size(), 1);
    QVERIFY(showsMarkup(m_plot->item.plot()->axisTitle(QwtPlot::xBottom)));
    QVERIFY(showsMarkup(m_plot->item.plot()->axisTitle(QwtPlot::yLeft)));
    QVERIFY(showsMarkup(m_plot->curves().first()->title()));
    QVERIFY(showsMarkup(m_plot->label(m_plot->curves().first())->text()));
}

void tst_LogViewerItemCurves::awkwardValues_data()
{
    QTest::addColumn<QByteArray>("table");

    QTest::newRow("nan") << QByteArray("Obs Time A|1 0 1|2 0 nan|3 0 3");
    QTest::newRow("all nan") << QByteArray("Obs Time A|1 0 nan|2 0 nan");
    QTest::newRow("inf") << QByteArray("Obs Time A|1 0 1|2 0 inf|3 0 3");
    QTest::newRow("all inf") << QByteArray("Obs Time A|1 0 inf|2 0 -inf");
    QTest::newRow("inf in x") << QByteArray("Obs Time A|1 0 1|inf 0 2|nan 0 3");
    QTest::newRow("huge") << QByteArray("Obs Time A|1 0 1e308|2 0 -1e308|3 0 1e150|4 0 -1e150");
    QTest::newRow("tiny") << QByteArray("Obs Time A|1 0 0|2 0 5e-324|3 0 1e-310");
    QTest::newRow("hardly apart") << QByteArray("Obs Time A|1 0 1|2 0 1.0000000000000002");
    QTest::newRow("hardly apart, far off")
        << QByteArray("Obs Time A|1 0 1e15|2 0 1000000000000001");
    QTest::newRow("one sample") << QByteArray("Obs Time A|1 0 7");
    QTest::newRow("all the same") << QByteArray("Obs Time A|1 0 7|1 0 7|1 0 7");
}

void tst_LogViewerItemCurves::awkwardValues()
{
    QFETCH(QByteArray, table);
    m_plot->log.load(table);
    m_plot->item.setWidth(400);
    m_plot->item.setHeight(300);
    m_plot->item.setLinesEnabled(kLeft, true);
    m_plot->item.setSymbolsEnabled(kLeft, true);
    m_plot->select("Obs", "A", "");
    QCOMPARE(m_plot->curves().size(), 1);
    QVERIFY(m_plot->isDrawn());
    for (int axis = 0; axis < 3; ++axis) {
        const double width
            = m_plot->item.axisMaxScale(anyAxis(axis)) - m_plot->item.axisMinScale(anyAxis(axis));
        QVERIFY(width > 0);
        QVERIFY(width <= 1e151);
    }
    m_plot->item.setLinesEnabled(kLeft, false);
    QVERIFY(m_plot->isDrawn());
}

void tst_LogViewerItemCurves::valuesAreShared()
{
    m_plot->item.setLinesEnabled(kLeft, true);
    m_plot->select("Obs", "A", "");
    const QString name = QLatin1String("A");
    const QVector<double> x = m_plot->log.source->XLeftData().value(name).first();
    const QVector<double> y = m_plot->log.source->YLeftData().value(name).first();
    const LogPlotCurve *curve = static_cast<LogPlotCurve *>(m_plot->curves().first());
    QVERIFY(curve->curveSeries().isOf(x, y));
    m_plot->log.source.reset();
    m_plot->item.replot();
    QCOMPARE(samplesText(*curve), QString::fromLatin1("1/10 2/11 3/12 4/13"));
}

void tst_LogViewerItemCurves::manyUpdates()
{
    m_plot->item.setLinesEnabled(kLeft, true);
    m_plot->select("Obs", "A B", "C");
    for (int i = 0; i < 200; ++i)
        m_plot->item.updatePlot();
    QCOMPARE(m_plot->curves().size(), 2);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(m_plot->legend()->findChildren<QwtLegendLabel *>().size(), 2);
}

QTEST_MAIN(tst_LogViewerItemCurves)
#include "tst_LogViewerItemCurves.moc"

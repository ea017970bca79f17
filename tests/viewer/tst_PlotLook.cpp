#include "viewer/PlotLook.h"

#include "PlottedLog.h"
#include "viewer/PlotExport.h"

#include <QXmlStreamReader>
#include <QtTest>

#include <qwt_legend.h>
#include <qwt_legend_label.h>
#include <qwt_plot.h>
#include <qwt_plot_curve.h>
#include <qwt_scale_draw.h>

namespace
{

const QByteArray kLongName(60, 'm');

/** One of the variables has a name that is longer than an axis of a small plot. */
QByteArray longNamed()
{
    return TemporaryLog::withUnits().replace("\tT\tRH\t", "\tT" + kLongName + "\tRH\t");
}

/** All texts of a drawing. */
QStringList texts(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return QStringList();
    QXmlStreamReader xml(&file);
    QStringList texts;
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::Characters && !xml.isWhitespace())
            texts.append(xml.text().toString().trimmed());
    }
    return texts;
}

} // namespace

class tst_PlotLook : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void showsAxesThatHaveCurves();
    void tellsWhetherThereAreCurves();
    void namesAVariableOnce();
    void namesAVariableOnEachAxis();
    void hidesAllPieces();
    void labelsClockTimes();
    void labelsNumbersAsLogsHaveThem_data();
    void labelsNumbersAsLogsHaveThem();
    void givesUpItsLegend();
    void elidesTitlesThatDoNotFit_data();
    void elidesTitlesThatDoNotFit();
    void drawsNamesAsTheyAre_data();
    void drawsNamesAsTheyAre();

private:
    QList<QwtLegendLabel *> labels() const;
    QStringList legend() const;
    QList<QwtPlotCurve *> curves() const;

    QScopedPointer<PlottedLog> m_log;
    LogDataSourceItem *m_source;
    LogViewerItem *m_view;
    PlotLook *m_look;
};

void tst_PlotLook::init()
{
    m_log.reset(new PlottedLog);
    m_source = &m_log->source;
    m_view = &m_log->view;
    m_look = &m_log->look;
    m_view->setSize(QSizeF(600, 400));
    m_view->setLinesEnabled(LogViewerItem::LeftAxis, true);
    m_view->setLinesEnabled(LogViewerItem::RightAxis, true);
    m_source->setHorizontalVariable("Obs");
}

QList<QwtLegendLabel *> tst_PlotLook::labels() const
{
    // Entries that are dropped go later.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const auto *legend = static_cast<QwtLegend *>(m_view->plot()->legend());
    return legend->contentsWidget()->findChildren<QwtLegendLabel *>();
}

QStringList tst_PlotLook::legend() const
{
    QStringList texts;
    const QList<QwtLegendLabel *> all = labels();
    for (const QwtLegendLabel *label : all)
        texts.append(label->text().text());
    return texts;
}

QList<QwtPlotCurve *> tst_PlotLook::curves() const
{
    QList<QwtPlotCurve *> curves;
    const QwtPlotItemList items = m_view->plot()->itemList(QwtPlotItem::Rtti_PlotCurve);
    for (QwtPlotItem *item : items)
        curves.append(static_cast<QwtPlotCurve *>(item));
    return curves;
}

void tst_PlotLook::showsAxesThatHaveCurves()
{
    const QwtPlot *plot = m_view->plot();
    QVERIFY(plot->axisEnabled(QwtPlot::yLeft)); // an empty plot keeps its frame
    QVERIFY(!plot->axisEnabled(QwtPlot::yRight));
    m_source->setRightVariable("T");
    QVERIFY(!plot->axisEnabled(QwtPlot::yLeft));
    QVERIFY(plot->axisEnabled(QwtPlot::yRight));
    m_source->setLeftVariable("T");
    QVERIFY(plot->axisEnabled(QwtPlot::yLeft));
    QVERIFY(plot->axisEnabled(QwtPlot::yRight));
}

void tst_PlotLook::tellsWhetherThereAreCurves()
{
    QVERIFY(!m_look->hasCurves());
    QSignalSpy changed(m_look, SIGNAL(curvesChanged()));
    m_source->setLeftVariable("T");
    QVERIFY(changed.count() >= 1);
    QVERIFY(m_look->hasCurves());
    m_source->setLeftVariable("");
    QVERIFY(!m_look->hasCurves());
}

void tst_PlotLook::namesAVariableOnce()
{
    m_source->buildFilter(2, 5, "23.5");
    m_source->buildFilter(2, 5, "26.5");
    m_source->setLeftVariable("T");
    QCOMPARE(curves().size(), 3);
    QCOMPARE(legend(), QStringList{"T"});
}

void tst_PlotLook::namesAVariableOnEachAxis()
{
    m_source->setLeftVariable("T");
    m_source->setRightVariable("T");
    QCOMPARE(legend(), (QStringList{"T", "T"}));
}

void tst_PlotLook::hidesAllPieces()
{
    m_source->buildFilter(2, 5, "23.5");
    m_source->setLeftVariable("T");
    m_source->setRightVariable("T");
    QwtLegendLabel *label = labels().value(0);
    QVERIFY(label);
    label->resize(label->sizeHint());
    QTest::mouseClick(label, Qt::LeftButton, Qt::NoModifier, label->rect().center());
    int hidden = 0;
    const QList<QwtPlotCurve *> all = curves();
    QCOMPARE(all.size(), 4);
    for (const QwtPlotCurve *curve : all) {
        hidden += curve->isVisible() ? 0 : 1;
        QCOMPARE(curve->isVisible(), curve->yAxis() == int(QwtPlot::yRight));
    }
    QCOMPARE(hidden, 2);
    QTest::mouseClick(label, Qt::LeftButton, Qt::NoModifier, label->rect().center());
    for (const QwtPlotCurve *curve : all)
        QVERIFY(curve->isVisible());
}

void tst_PlotLook::labelsClockTimes()
{
    const auto label = [this](double x) {
        return m_view->plot()->axisScaleDraw(QwtPlot::xBottom)->label(x).text();
    };
    m_source->setLeftVariable("T");
    QCOMPARE(label(2), QString("2"));
    m_source->setHorizontalVariable("Time");
    QCOMPARE(label(2), QString("10:00:03"));
    // The first rows are not there any more; times count from another one.
    m_source->setObservationFilterType(LogObservationSortFilterProxyModel::Tail);
    m_source->setObservationRange(4);
    QCOMPARE(label(2), QString("10:00:09"));
    m_source->setHorizontalVariable("Obs");
    QCOMPARE(label(2), QString("2"));
}

void tst_PlotLook::labelsNumbersAsLogsHaveThem_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QString>("thousands");
    QTest::addColumn<QString>("millions");

    QTest::newRow("English") << QLocale(QLocale::English) << "1,400"
                             << "1,000,000";
    QTest::newRow("German") << QLocale(QLocale::German) << "1400"
                            << "1000000";
    QTest::newRow("French") << QLocale(QLocale::French) << "1400"
                            << "1000000";
    QTest::newRow("none") << QLocale::c() << "1400"
                          << "1000000";
}

void tst_PlotLook::labelsNumbersAsLogsHaveThem()
{
    QFETCH(QLocale, locale);
    QFETCH(QString, thousands);
    QFETCH(QString, millions);
    const QLocale before;
    QLocale::setDefault(locale);
    for (int axis : {QwtPlot::xBottom, QwtPlot::yLeft, QwtPlot::yRight}) {
        const QwtScaleDraw *draw = m_view->plot()->axisScaleDraw(axis);
        const QStringList texts{draw->label(1400).text(), draw->label(1e6).text(),
                                draw->label(0.1 + 0.2).text()};
        QCOMPARE(texts, (QStringList{thousands, millions, "0.3"}));
    }
    QLocale::setDefault(before);
}

void tst_PlotLook::givesUpItsLegend()
{
    m_look->setHasLegend(false);
    QVERIFY(!m_view->plot()->legend());
    m_source->setLeftVariable("T");
    QCOMPARE(curves().size(), 1);
    QVERIFY(curves().first()->isVisible());
}

void tst_PlotLook::elidesTitlesThatDoNotFit_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("isElided");

    QTest::newRow("small") << QSize(500, 300) << true;
    QTest::newRow("large") << QSize(2400, 1600) << false;
}

/** The title itself stays whole: each drawing shows what fits. */
void tst_PlotLook::elidesTitlesThatDoNotFit()
{
    QFETCH(QSize, size);
    QFETCH(bool, isElided);
    const QString whole = "T" + kLongName;
    PlottedLog log(longNamed());
    log.view.setLinesEnabled(LogViewerItem::LeftAxis, true);
    log.source.setHorizontalVariable("Obs");
    log.source.setLeftVariable(whole);
    const QString title = whole + " (C)";
    QCOMPARE(log.view.plot()->axisTitle(QwtPlot::yLeft).text(), title);
    const QTemporaryDir directory;
    const QString path = directory.filePath("plot.svg");
    PlotExport picture(&log.view, size);
    QVERIFY2(picture.write(path), qPrintable(picture.errorText()));
    const QStringList drawn = texts(path);
    QCOMPARE(drawn.count(whole), 1); // in the legend
    QCOMPARE(drawn.count(title), isElided ? 0 : 1);
    const QStringList cut = drawn.filter(QRegularExpression("^Tm+\u2026m+ \\(C\\)$"));
    QCOMPARE(cut.size(), isElided ? 1 : 0);
    QVERIFY(drawn.contains("Obs"));
}

void tst_PlotLook::drawsNamesAsTheyAre_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("ampersand") << "T & dT";
    QTest::newRow("mnemonic") << "T&dT";
    QTest::newRow("markup") << "<b>T</b>";
    QTest::newRow("entity") << "&amp;T&lt;";
}

/** Neither as markup nor with keys underlined, at the axis as in the legend. */
void tst_PlotLook::drawsNamesAsTheyAre()
{
    QFETCH(QString, name);
    PlottedLog log(TemporaryLog::withUnits().replace("\tT\tRH\t", '\t' + name.toUtf8() + "\tRH\t"));
    log.view.setLinesEnabled(LogViewerItem::LeftAxis, true);
    log.source.setHorizontalVariable("Obs");
    log.source.setLeftVariable(name);
    const QTemporaryDir directory;
    const QString path = directory.filePath("plot.svg");
    PlotExport picture(&log.view, QSize(800, 600));
    QVERIFY2(picture.write(path), qPrintable(picture.errorText()));
    const QStringList drawn = texts(path);
    QCOMPARE(drawn.count(name), 1);
    QCOMPARE(drawn.count(name + " (C)"), 1);
}

QTEST_MAIN(tst_PlotLook)
#include "tst_PlotLook.moc"

#include "viewer/AxisTitles.h"

#include "PlottedLog.h"
#include "viewer/PlotSetup.h"

#include <QtTest>

#include <qwt_plot.h>

class tst_AxisTitles : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void tellsVariablesAndUnits_data();
    void tellsVariablesAndUnits();
    void keepsTitlesOfCurvesWithoutLines();
    void leavesThePlotAloneWithoutASource();

private:
    QString title(int axis) const { return m_log->view.plot()->axisTitle(axis).text(); }

    QScopedPointer<PlottedLog> m_log;
};

void tst_AxisTitles::init()
{
    m_log.reset(new PlottedLog("[Header]\nCreated\t2020-01-01\n[Data]\n"
                               "Sys\tSys\tAir\tAir\tAir\tAir\tGas\tGas\n"
                               "Obs\tTime\tT\tTdew\tRH\tBare\tCO2\tCO2_r\n"
                               "\thh:mm:ss\tC\tC\t%\t-\tppm\tppm\n"
                               "1\t10:00:00\t20\t11\t50\t1\t400\t390\n"
                               "2\t10:00:01\t21\t12\t51\t2\t401\t391\n"));
    for (auto axis : {LogViewerItem::LeftAxis, LogViewerItem::RightAxis})
        m_log->view.setLinesEnabled(axis, true);
}

void tst_AxisTitles::cleanup()
{
    m_log.reset();
}

void tst_AxisTitles::tellsVariablesAndUnits_data()
{
    QTest::addColumn<QString>("x");
    QTest::addColumn<QStringList>("left");
    QTest::addColumn<QStringList>("right");
    QTest::addColumn<QStringList>("titles"); // below, left, right

    QTest::newRow("one each") << "Obs" << QStringList{"T"} << QStringList{"RH"}
                              << QStringList{"Obs", "T (C)", "RH (%)"};
    QTest::newRow("a shared unit") << "Obs" << QStringList{"T", "Tdew"} << QStringList()
                                   << QStringList{"Obs", "T, Tdew (C)", ""};
    QTest::newRow("two units") << "Obs" << QStringList{"CO2", "RH", "CO2_r"} << QStringList()
                               << QStringList{"Obs", "CO2, CO2_r (ppm), RH (%)", ""};
    QTest::newRow("without a unit") << "Obs" << QStringList{"Bare"} << QStringList{"Bare", "T"}
                                    << QStringList{"Obs", "Bare", "Bare, T (C)"};
    QTest::newRow("a unit below") << "T" << QStringList{"RH"} << QStringList()
                                  << QStringList{"T (C)", "RH (%)", ""};
    QTest::newRow("clock times") << "Time" << QStringList() << QStringList{"CO2"}
                                 << QStringList{"Time", "", "CO2 (ppm)"};
}

void tst_AxisTitles::tellsVariablesAndUnits()
{
    QFETCH(QString, x);
    QFETCH(QStringList, left);
    QFETCH(QStringList, right);
    QFETCH(QStringList, titles);
    ViewerOptions options;
    options.x = x;
    options.left = left;
    options.right = right;
    PlotSetup setup(options);
    QVERIFY(setup.apply(&m_log->dataSets, &m_log->view));
    QCOMPARE(title(QwtPlot::xBottom), titles.at(0));
    QCOMPARE(title(QwtPlot::yLeft), titles.at(1));
    QCOMPARE(title(QwtPlot::yRight), titles.at(2));
}

/** The module leaves a title alone then: it must not grow. */
void tst_AxisTitles::keepsTitlesOfCurvesWithoutLines()
{
    m_log->source.setHorizontalVariable("T");
    m_log->source.setLeftVariable("RH");
    m_log->source.setRightVariable("CO2");
    m_log->view.setLinesEnabled(LogViewerItem::LeftAxis, false);
    for (int i = 0; i < 3; ++i)
        m_log->view.updatePlot();
    QCOMPARE(title(QwtPlot::xBottom), QString("T (C)"));
    QCOMPARE(title(QwtPlot::yLeft), QString());
    QCOMPARE(title(QwtPlot::yRight), QString("CO2 (ppm)"));
}

void tst_AxisTitles::leavesThePlotAloneWithoutASource()
{
    LogViewerItem view;
    PlotLook look;
    look.setView(&view);
    view.updatePlot();
    QCOMPARE(view.plot()->axisTitle(QwtPlot::xBottom).text(), QString());
}

QTEST_MAIN(tst_AxisTitles)
#include "tst_AxisTitles.moc"

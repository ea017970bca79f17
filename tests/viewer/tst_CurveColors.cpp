#include "viewer/CurveColors.h"

#include "ColorMeasures.h"
#include "PlottedLog.h"
#include "support/TestCompat.h"
#include "viewer/ThemeColors.h"

#include <qwt_plot.h>
#include <qwt_plot_curve.h>
#include <qwt_symbol.h>

/** Colours on axes with more curves than the plot has colours for. */
class tst_CurveColors : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void leavesThePlotsOwn();
    void givesFurtherColors_data();
    void givesFurtherColors();
    void paintsSymbols();
    void keepsThem();
    void leavesTheRestGrey();
    void measuresAsOthersDo();
    void areSeenOnTheirPage_data();
    void areSeenOnTheirPage();
    void areToldApart_data();
    void areToldApart();
    void areAsManyAsIsSaid_data();
    void areAsManyAsIsSaid();

private:
    void tick(int axis, int from, int to, bool on = true);
    QMap<QString, QString> drawn(int axis) const;

    QScopedPointer<PlottedLog> m_log;
    LogDataSourceItem *m_source;
    LogViewerItem *m_view;
};

namespace
{

/** Obs, then a to t. */
QByteArray wideLog()
{
    QByteArray groups = "Sys";
    QByteArray names = "Obs";
    QByteArray units = "-";
    QByteArray rows[] = {"1", "2"};
    for (char c = 'a'; c <= 't'; ++c) {
        groups += "\tG";
        names += QByteArray("\t") + c;
        units += "\tV";
        for (int i = 0; i < 2; ++i)
            rows[i] += '\t' + QByteArray::number((c - 'a') * 10 + i);
    }
    return "[Header]\nCreated\t2020\n[Data]\n" + groups + '\n' + names + '\n' + units + '\n'
        + rows[0] + '\n' + rows[1] + '\n';
}

const char kPlotsOwnLeft[] = "#D90C00 #FF0000 #FF0700 #FF7D38 #FFAB7E";
const char kPlotsOwnRight[] = "#002E00 #0C6400 #428000 #54B100 #BFE88F";

struct VerticalAxis {
    const char *name;
    LogViewerItem::LogViewerAxis axis;
    QStringList plotsOwn;
};

QVector<VerticalAxis> verticalAxes()
{
    return {{"left", LogViewerItem::LeftAxis, QString(kPlotsOwnLeft).split(' ')},
            {"right", LogViewerItem::RightAxis, QString(kPlotsOwnRight).split(' ')}};
}

} // namespace

void tst_CurveColors::init()
{
    m_log.reset(new PlottedLog(wideLog()));
    m_source = &m_log->source;
    m_view = &m_log->view;
    m_log->look.setOfInstrument(true); // which draws colours as they are
    m_view->setLinesEnabled(LogViewerItem::LeftAxis, true);
    m_view->setLinesEnabled(LogViewerItem::RightAxis, true);
    m_source->setHorizontalVariable("Obs");
}

void tst_CurveColors::tick(int axis, int from, int to, bool on)
{
    for (int row = from; row <= to; ++row)
        m_source->updateVariableSelection(axis, row, on);
}

/** The colours that curves of an axis are drawn in, by name. */
QMap<QString, QString> tst_CurveColors::drawn(int axis) const
{
    QMap<QString, QString> colors;
    const QwtPlotItemList items = m_view->plot()->itemList(QwtPlotItem::Rtti_PlotCurve);
    for (QwtPlotItem *item : items) {
        if (item->yAxis() == axis)
            colors.insert(item->title().text(),
                          static_cast<QwtPlotCurve *>(item)->pen().color().name().toUpper());
    }
    return colors;
}

void tst_CurveColors::leavesThePlotsOwn()
{
    tick(1, 1, 5);
    QCOMPARE(drawn(QwtPlot::yLeft).values(),
             (QStringList{"#D90C00", "#FF0000", "#FF0700", "#FF7D38", "#FFAB7E"}));
}

void tst_CurveColors::givesFurtherColors_data()
{
    QTest::addColumn<int>("axis");
    QTest::addColumn<int>("listAxis");
    QTest::newRow("left") << int(LogViewerItem::LeftAxis) << 1;
    QTest::newRow("right") << int(LogViewerItem::RightAxis) << 2;
}

void tst_CurveColors::givesFurtherColors()
{
    QFETCH(int, axis);
    QFETCH(int, listAxis);
    const auto viewAxis = LogViewerItem::LogViewerAxis(axis);
    tick(listAxis, 1, 12);
    const QMap<QString, QString> colors = drawn(axis);
    QCOMPARE(colors.size(), 12);
    QStringList different = colors.values();
    QCOMPARE(different.removeDuplicates(), 0);
    QCOMPARE(colors.value("f"), CurveColors::further(viewAxis).first());
    // Whoever asks the plot hears of them as well.
    QCOMPARE(m_view->hexColorForAxisAndVariableName(listAxis, "f"), colors.value("f"));
    QCOMPARE(m_view->variableColors(viewAxis), colors);
    QVERIFY(CurveColors::further(LogViewerItem::BottomAxis).isEmpty());
}

void tst_CurveColors::paintsSymbols()
{
    m_view->setSymbolsEnabled(LogViewerItem::LeftAxis, true);
    tick(1, 1, 6);
    const QwtPlotItemList items = m_view->plot()->itemList(QwtPlotItem::Rtti_PlotCurve);
    auto *sixth = static_cast<QwtPlotCurve *>(items.last());
    QCOMPARE(sixth->title().text(), QString("f"));
    QCOMPARE(sixth->symbol()->brush().color(),
             QColor(CurveColors::further(LogViewerItem::LeftAxis).first()));
    QCOMPARE(sixth->symbol()->style(), QwtSymbol::Rect);
    QCOMPARE(sixth->symbol()->size(), QSize(6, 6));
}

void tst_CurveColors::keepsThem()
{
    tick(1, 1, 7);
    const QMap<QString, QString> before = drawn(QwtPlot::yLeft);
    tick(1, 1, 2, false);
    QMap<QString, QString> after = drawn(QwtPlot::yLeft);
    for (const char *name : {"c", "d", "e", "f", "g"})
        QCOMPARE(after.value(name), before.value(name));
    // One that comes now gets a colour of the plot's own that is free again.
    tick(1, 8, 8);
    after = drawn(QwtPlot::yLeft);
    QCOMPARE(after.value("h"), before.value("a"));
}

void tst_CurveColors::leavesTheRestGrey()
{
    tick(1, 1, 14);
    const QMap<QString, QString> colors = drawn(QwtPlot::yLeft);
    QCOMPARE(colors.size(), 14);
    QCOMPARE(colors.value("m"), QString("#333333"));
    QCOMPARE(colors.value("n"), QString("#333333"));
    QCOMPARE(colors.values().count("#333333"), 2);
    QCOMPARE(m_view->hexColorForAxisAndVariableName(1, "n"), QString("#333"));
}

/** Values that tables of both measures give. */
void tst_CurveColors::measuresAsOthersDo()
{
    QVERIFY(qAbs(ColorMeasures::contrast(Qt::black, Qt::white) - 21) < 0.001);
    QVERIFY(qAbs(ColorMeasures::contrast(QColor("#777777"), Qt::white) - 4.48) < 0.005);
    QVERIFY(qAbs(ColorMeasures::difference(Qt::black, Qt::white) - 100) < 0.1);
    const QVector3D red = ColorMeasures::lab(Qt::red);
    QVERIFY((red - QVector3D(53.24f, 80.09f, 67.20f)).length() < 0.1f);
}

void tst_CurveColors::areSeenOnTheirPage_data()
{
    QTest::addColumn<QColor>("color");
    QTest::addColumn<bool>("isDark");

    for (const VerticalAxis &axis : verticalAxes()) {
        for (const QString &color : axis.plotsOwn + CurveColors::further(axis.axis)) {
            QTest::newRow(qPrintable("light " + color)) << QColor(color) << false;
            QTest::newRow(qPrintable("dark " + color)) << QColor(color) << true;
        }
    }
    QTest::newRow("light rest") << QColor(CurveColors::Fallback) << false;
    QTest::newRow("dark rest") << QColor(CurveColors::Fallback) << true;
}

void tst_CurveColors::areSeenOnTheirPage()
{
    QFETCH(QColor, color);
    QFETCH(bool, isDark);
    const QColor drawn = ThemeColors::ofCurve(color, isDark);
    const double contrast = ColorMeasures::contrast(drawn, ThemeColors::color("plot", isDark));
    QVERIFY2(contrast >= 3, qPrintable(QString("%1: %2").arg(drawn.name()).arg(contrast)));
}

/** Each from all others of its axis. */
void tst_CurveColors::areToldApart_data()
{
    QTest::addColumn<int>("axis");
    QTest::addColumn<QStringList>("plotsOwn");
    QTest::addColumn<bool>("isDark");

    for (const VerticalAxis &axis : verticalAxes()) {
        for (bool isDark : {false, true}) {
            const QString page = isDark ? QStringLiteral("dark") : QStringLiteral("light");
            QTest::newRow(qPrintable(page + ' ' + axis.name))
                << int(axis.axis) << axis.plotsOwn << isDark;
        }
    }
}

void tst_CurveColors::areToldApart()
{
    QFETCH(int, axis);
    QFETCH(QStringList, plotsOwn);
    QFETCH(bool, isDark);
    const QStringList colors = plotsOwn + CurveColors::further(LogViewerItem::LogViewerAxis(axis));
    QStringList others{QColor(CurveColors::Fallback).name()};
    for (const QString &color : colors) {
        for (const QString &other : qAsConst(others)) {
            const double difference
                = ColorMeasures::difference(ThemeColors::ofCurve(QColor(color), isDark),
                                            ThemeColors::ofCurve(QColor(other), isDark));
            QVERIFY2(difference > 17,
                     qPrintable(QString("%1, %2: %3").arg(color, other).arg(difference)));
        }
        others.append(color);
    }
}

void tst_CurveColors::areAsManyAsIsSaid_data()
{
    givesFurtherColors_data();
}

void tst_CurveColors::areAsManyAsIsSaid()
{
    QFETCH(int, axis);
    QCOMPARE(CurveColors::OfThePlot
                 + CurveColors::further(LogViewerItem::LogViewerAxis(axis)).size(),
             int(CurveColors::OfAnAxis));
}

QTEST_MAIN(tst_CurveColors)
#include "tst_CurveColors.moc"

#include "ViewerUser.h"
#include "table/LogTableView.h"
#include "table/LogTableViewItem.h"
#include "viewer/PlotCurves.h"
#include "viewer/PlotSaver.h"
#include "viewer/ThemeColors.h"

#include <QApplication>
#include <QTableView>
#include <QTemporaryDir>

/** Light and dark, chosen in the menu, in all that is shown. */
class tst_Theme : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isLightUntilTold();
    void isDarkAllOver_data();
    void isDarkAllOver();
    void darkensCheckBoxes();
    void goesBackToLight();
    void followsTheDesktop();
    void keepsTheChoice();
    void showsCurvesOnADarkPage_data();
    void showsCurvesOnADarkPage();
    void colorsCurvesAsOnTheInstrument();
    void tellsThePlotsCurvesApart();
    void keepsHiddenCurvesAndLimits();
    void savesOnALightPage();

private:
    static bool choose(ViewerUser &user, int row)
    {
        QQuickItem *combo = nullptr;
        if (!user.click("menuButton") || !(combo = user.item("themeChoice")) || !user.settled()
            || !user.click("themeChoice") || !user.settled())
            return false;
        for (int i = combo->property("highlightedIndex").toInt(); i != row; i += i < row ? 1 : -1)
            user.key(i < row ? Qt::Key_Down : Qt::Key_Up);
        user.key(Qt::Key_Return);
        user.key(Qt::Key_Escape);
        return user.settled();
    }
    /** The part of an item's pixels that are darker than the middle. */
    static double darkness(const ViewerUser &user, const QQuickItem *item)
    {
        const QRect area = item->mapRectToScene(item->boundingRect()).toRect();
        const QImage image = user.window()->grabWindow().copy(area);
        int dark = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                dark += qGray(image.pixel(x, y)) < 128 ? 1 : 0;
        return double(dark) / qMax(1, image.width() * image.height());
    }

    /** As they are drawn. */
    static QList<QColor> curveColors(const ViewerUser &user)
    {
        QList<QColor> colors;
        const QList<PlotCurve> curves = PlotCurves::of(*user.plot()->plot());
        for (const PlotCurve &curve : curves)
            colors.append(curve.color);
        return colors;
    }
    static QColor swatch(const ViewerUser &user, const char *row)
    {
        const QQuickItem *item = user.item(row);
        const auto *color = item ? ViewerUser::within(item, "leftColor") : nullptr;
        return color ? color->property("color").value<QColor>() : QColor();
    }

    TemporaryLog m_log;
};

void tst_Theme::isLightUntilTold()
{
    ViewerUser user(m_log);
    QVERIFY(user.isReady());
    QVERIFY(user.settled());
    QVERIFY(darkness(user, user.window()->contentItem()) < 0.1);
}

void tst_Theme::isDarkAllOver_data()
{
    QTest::addColumn<int>("view");
    QTest::addColumn<QByteArray>("item");
    QTest::newRow("plot") << 0 << QByteArray("plot");
    QTest::newRow("variables") << 0 << QByteArray("variables");
    QTest::newRow("table") << 1 << QByteArray("table");
    QTest::newRow("criterion row") << 2 << QByteArray("builder");
    QTest::newRow("criteria") << 2 << QByteArray("criteriaList");
}

void tst_Theme::isDarkAllOver()
{
    QFETCH(int, view);
    QFETCH(QByteArray, item);
    ViewerOptions options;
    options.criteria << CriterionText::read("T>=25");
    ViewerUser user(m_log, options);
    QVERIFY(user.isReady());
    QVERIFY(user.clickTab("viewTabs", view));
    QVERIFY(darkness(user, user.item(item)) < 0.2);
    QVERIFY(choose(user, 2));
    QTRY_VERIFY2(darkness(user, user.item(item)) > 0.8,
                 qPrintable(QString::number(darkness(user, user.item(item)))));
    QVERIFY(darkness(user, user.window()->contentItem()) > 0.8);
    // What is on the dark page is light, or it could not be read.
    QVERIFY(darkness(user, user.item(item)) < 0.9995);
}

void tst_Theme::darkensCheckBoxes()
{
    ViewerUser user(m_log);
    QVERIFY(user.isReady());
    QVERIFY(user.clickTab("viewTabs", 1));
    const QAbstractItemView *view = user.find<LogTableViewItem>("table")->tableView();
    const auto middle = [&user, view](int row) {
        const QPointF at = user.cell(view, view->model()->index(row, 0));
        return user.window()->grabWindow().pixelColor(user.pointOf(user.item("table"), at));
    };
    QCOMPARE(middle(0), QColor(Qt::white));
    QVERIFY(choose(user, 2));
    QTRY_VERIFY2(middle(0).lightness() < 60, qPrintable(middle(0).name()));
    LogTableViewModel *rows = user.source()->tableModel();
    QVERIFY(rows->setData(rows->index(1, 0), Qt::Checked, Qt::CheckStateRole));
    QTRY_VERIFY(middle(1) != middle(0));
    QVERIFY(choose(user, 1));
    QTRY_COMPARE(middle(0), QColor(Qt::white));
}

void tst_Theme::goesBackToLight()
{
    ViewerUser user(m_log);
    QVERIFY(user.isReady());
    QVERIFY(user.settled());
    const QColor before = PlotCurves::of(*user.plot()->plot()).value(0).color;
    QVERIFY(choose(user, 2));
    QVERIFY(PlotCurves::of(*user.plot()->plot()).value(0).color != before);
    QVERIFY(darkness(user, user.plot()) > 0.8);
    QVERIFY(choose(user, 1));
    QTRY_VERIFY(darkness(user, user.plot()) < 0.1);
    QCOMPARE(PlotCurves::of(*user.plot()->plot()).value(0).color, before);
    QVERIFY(darkness(user, user.window()->contentItem()) < 0.1);
}

void tst_Theme::followsTheDesktop()
{
    const QPalette light = QApplication::palette();
    QPalette dark = light;
    dark.setColor(QPalette::Window, QColor(30, 30, 30));
    ViewerUser user(m_log);
    QVERIFY(user.isReady());
    QApplication::setPalette(dark);
    QTRY_VERIFY(darkness(user, user.plot()) > 0.8);
    QVERIFY(choose(user, 1));
    QTRY_VERIFY(darkness(user, user.plot()) < 0.1);
    QVERIFY(choose(user, 0));
    QTRY_VERIFY(darkness(user, user.plot()) > 0.8);
    QApplication::setPalette(light);
    QTRY_VERIFY(darkness(user, user.plot()) < 0.1);
}

void tst_Theme::keepsTheChoice()
{
    const QTemporaryDir directory;
    const QString file = directory.filePath("viewer.ini");
    {
        ViewerUser user(m_log, ViewerOptions(), QSize(1000, 640), file);
        QVERIFY(user.isReady());
        QVERIFY(choose(user, 2));
    }
    ViewerUser user(m_log, ViewerOptions(), QSize(1000, 640), file);
    QVERIFY(user.isReady());
    QVERIFY(user.settled());
    QVERIFY(darkness(user, user.plot()) > 0.8);
}

void tst_Theme::showsCurvesOnADarkPage_data()
{
    QTest::addColumn<QColor>("color");
    const QStringList names{"#D90C00", "#FF0000", "#FF0700", "#FF7D38", "#FFAB7E",
                            "#002E00", "#0C6400", "#428000", "#54B100", "#BFE88F",
                            "#333333", "#5D4037", "#3949AB", "#000000", "#000080"};
    for (const QString &name : names)
        QTest::newRow(qPrintable(name)) << QColor(name);
}

void tst_Theme::showsCurvesOnADarkPage()
{
    QFETCH(QColor, color);
    const QColor drawn = ThemeColors::ofCurve(color, true);
    const QColor page = ThemeColors::color("plot", true);
    QVERIFY2(qGray(drawn.rgb()) - qGray(page.rgb()) > 60, qPrintable(drawn.name()));
    QCOMPARE(ThemeColors::ofCurve(drawn, true), drawn);
    QCOMPARE(ThemeColors::ofCurve(color, false, true), color);
}

/** The switch is in the menu, and holds for the list of variables as for the plot. */
void tst_Theme::colorsCurvesAsOnTheInstrument()
{
    const QTemporaryDir directory;
    const QString file = directory.filePath("viewer.ini");
    ViewerOptions options;
    options.left << "T"
                 << "CO2";
    const QList<QColor> distinct{QColor("#D90C00"), QColor("#E67300")};
    const QList<QColor> ofInstrument{QColor("#D90C00"), QColor("#FF0000")};
    {
        ViewerUser user(m_log, options, QSize(1000, 640), file);
        QVERIFY(user.isReady());
        QCOMPARE(curveColors(user), distinct);
        QVERIFY(user.click("menuButton"));
        QVERIFY(user.click("instrumentColorsSwitch"));
        QTRY_COMPARE(curveColors(user), ofInstrument);
        QTRY_COMPARE(swatch(user, "variableRow2"), QColor("#FF0000"));
        QVERIFY(user.click("instrumentColorsSwitch"));
        QTRY_COMPARE(curveColors(user), distinct);
        QTRY_COMPARE(swatch(user, "variableRow2"), QColor("#E67300"));
        QVERIFY(user.click("instrumentColorsSwitch"));
    }
    ViewerUser user(m_log, options, QSize(1000, 640), file);
    QVERIFY(user.isReady());
    QCOMPARE(curveColors(user), ofInstrument);
}

void tst_Theme::tellsThePlotsCurvesApart()
{
    ViewerOptions options;
    options.x = "Obs";
    options.left << "T"
                 << "RH"
                 << "CO2";
    ViewerUser user(m_log, options);
    QVERIFY(user.isReady());
    QVERIFY(choose(user, 2));
    QSet<QRgb> colors;
    const QList<PlotCurve> curves = PlotCurves::of(*user.plot()->plot());
    for (const PlotCurve &curve : curves)
        colors.insert(curve.color.rgb());
    QCOMPARE(colors.size(), 3);
}

void tst_Theme::keepsHiddenCurvesAndLimits()
{
    ViewerOptions options;
    options.x = "Obs";
    options.left << "T"
                 << "RH";
    ViewerUser user(m_log, options);
    QVERIFY(user.isReady());
    QVERIFY(user.click("chip0"));
    user.plot()->setAxisScale(LogViewerItem::LeftAxis, 5, 95);
    user.plot()->replot();
    QVERIFY(choose(user, 2));
    const QList<PlotCurve> curves = PlotCurves::of(*user.plot()->plot());
    QCOMPARE(curves.size(), 2);
    QVERIFY(!curves.at(0).isVisible());
    QVERIFY(curves.at(1).isVisible());
    QCOMPARE(user.plot()->axisMinScale(LogViewerItem::LeftAxis), 5.0);
    QCOMPARE(user.plot()->axisMaxScale(LogViewerItem::LeftAxis), 95.0);
}

void tst_Theme::savesOnALightPage()
{
    ViewerOptions options;
    options.x = "Obs";
    options.left << "T";
    options.right << "CO2";
    ViewerUser user(m_log, options);
    QVERIFY(user.isReady());
    QVERIFY(user.settled());
    const QTemporaryDir directory;
    PlotSaver saver;
    saver.setView(user.plot());
    QCOMPARE(saver.save(directory.filePath("light.png"), 600, 400), QString());
    QVERIFY(choose(user, 2));
    QCOMPARE(saver.save(directory.filePath("dark.png"), 600, 400), QString());
    const QImage light(directory.filePath("light.png"));
    QCOMPARE(light.size(), QSize(600, 400));
    QCOMPARE(QImage(directory.filePath("dark.png")), light);
    // And the plot on the screen is as dark as before.
    QVERIFY(user.settled());
    QVERIFY(darkness(user, user.plot()) > 0.8);
    QCOMPARE(PlotCurves::of(*user.plot()->plot()).value(0).color.name(), QString("#ff5449"));
}

QTEST_MAIN(tst_Theme)
#include "tst_Theme.moc"

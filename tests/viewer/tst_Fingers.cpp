#include "Complaints.h"
#include "ViewerUser.h"
#include "table/LogTableView.h"
#include "table/LogTableViewItem.h"
#include "viewer/CellSelection.h"
#include "viewer/LogFollower.h"
#include "viewer/PlotCurves.h"
#include "viewer/PlotNavigator.h"
#include "viewer/RecentFiles.h"

#include <QApplication>
#include <QSettings>
#include <QXmlStreamReader>

#include <functional>

/** All by finger, on an instrument's screen: neither a mouse nor keys are there. */
class tst_Fingers : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void opensARecentLog();
    void forgetsRecentLogs();
    void readsTheLogAgain();
    void followsTheLogAndStops();
    void cancelsAReadAndGoesBack();
    void goesToATrouble();
    void choosesDarkColors();
    void switchesTheSidePanel();
    void colorsCurvesAsOnTheInstrument();
    void readsTheHelpSheet();
    void hidesACurve();
    void typesLimits();
    void zoomsBackAndShowsEverything();
    void choosesAllAndNoneOfAnAxis();
    void choosesTheLatestOfAnAxis();
    void savesADrawing();
    void hidesAGroupOfColumns();
    void findsText();

private:
    ViewerUser &user() const { return *m_user; }
    int rows() const { return user().source()->tableModel()->rowCount(); }
    QString fileName() const { return user().text("fileName"); }
    PlotNavigator *navigator() const { return user().find<PlotNavigator>("navigator"); }
    QList<PlotCurve> curves() const { return PlotCurves::of(*user().plot()->plot()); }
    LogTableView *table() const { return user().find<LogTableViewItem>("table")->tableView(); }
    int selectedRow() const { return CellSelection::of(table())->range().row; }
    bool isOpen(const char *popup) const
    {
        return user().find<QObject>(popup)->property("opened").toBool();
    }
    /** The one that is seen, wherever it is. */
    static const QQuickItem *buttonOf(const QQuickItem *parent, const QString &text);
    bool tapText(const QString &text);
    bool tapTab(const char *bar, int index);
    /** In place of what is there, as a keyboard on the screen does. */
    bool enter(const QQuickItem *field, const QString &text);
    /** Of an axis, in the popup of their limits. */
    const QQuickItem *limit(const char *axis, const char *name) const;
    void zoomIn();
    /** Does it as soon as an item is shown. */
    void whenShown(const char *name, const std::function<void()> &action);

    QScopedPointer<Complaints> m_complaints;
    QScopedPointer<QTemporaryDir> m_settings;
    QScopedPointer<TemporaryLog> m_log;
    QScopedPointer<ViewerUser> m_user;
    QTimer m_look;
};

namespace
{

const QByteArray kRow = "11\t10:00:11\t31.5\t39\t4011\n";

} // namespace

void tst_Fingers::initTestCase()
{
    QApplication::setStyle("fusion");
}

void tst_Fingers::init()
{
    m_complaints.reset(new Complaints);
    m_settings.reset(new QTemporaryDir);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_settings->path());
    m_log.reset(new TemporaryLog(TemporaryLog::oneDataSet()));
    m_user.reset(new ViewerUser(*m_log, QSize(800, 480)));
    QVERIFY(user().isReady());
    QTRY_COMPARE(user().window()->size(), QSize(800, 480));
    m_user->find<LogFollower>("follower")->setIntervals(20, 100);
}

/** Nothing that is done here may make the engine complain. */
void tst_Fingers::cleanup()
{
    m_look.stop();
    m_look.disconnect();
    m_user.reset();
    m_log.reset();
    const QString text = m_complaints->text();
    m_complaints.reset();
    QCOMPARE(text, QString());
}

void tst_Fingers::whenShown(const char *name, const std::function<void()> &action)
{
    connect(&m_look, &QTimer::timeout, this, [this, name, action] {
        if (!user().isShown(name))
            return;
        m_look.stop();
        action();
    });
    m_look.start(20);
}

const QQuickItem *tst_Fingers::buttonOf(const QQuickItem *parent, const QString &text)
{
    const QList<QQuickItem *> children = parent->childItems();
    for (const QQuickItem *child : children) {
        if (!child->isVisible())
            continue;
        if (child->inherits("QQuickAbstractButton") && child->property("text") == text)
            return child;
        if (const QQuickItem *found = buttonOf(child, text))
            return found;
    }
    return nullptr;
}

bool tst_Fingers::tapText(const QString &text)
{
    const QQuickItem *button = nullptr;
    return QTest::qWaitFor([this, &button, &text] {
               return (button = buttonOf(user().window()->contentItem(), text));
           })
        && user().tap(button);
}

bool tst_Fingers::tapTab(const char *bar, int index)
{
    const QQuickItem *tabs = user().item(bar);
    const double width = tabs->width() / tabs->property("count").toInt();
    return user().tap(tabs, QPointF((index + 0.5) * width, tabs->height() / 2))
        && tabs->property("currentIndex").toInt() == index;
}

bool tst_Fingers::enter(const QQuickItem *field, const QString &text)
{
    if (!user().tap(field) || !QTest::qWaitFor([field] { return field->hasActiveFocus(); }))
        return false;
    const int length = field->property("text").toString().size();
    QInputMethodEvent event;
    event.setCommitString(text, -field->property("cursorPosition").toInt(), length);
    QCoreApplication::sendEvent(user().window()->activeFocusItem(), &event);
    return field->property("text") == text;
}

const QQuickItem *tst_Fingers::limit(const char *axis, const char *name) const
{
    return ViewerUser::within(user().item(axis), name);
}

// The log

void tst_Fingers::opensARecentLog()
{
    const TemporaryLog other(TemporaryLog::oneDataSet(4), "other.log");
    user().find<RecentFiles>("recentFiles")->add(other.path());
    QVERIFY(user().tap("recentButton"));
    QVERIFY(user().tap("recent0"));
    QTRY_COMPARE(fileName(), QString("other.log"));
    QTRY_COMPARE(rows(), 4);
    QVERIFY(user().tap("recentButton"));
    QVERIFY(user().tap("recent1"));
    QTRY_COMPARE(fileName(), QString("test.log"));
    QTRY_COMPARE(rows(), 10);
}

/** One of them, and then all. */
void tst_Fingers::forgetsRecentLogs()
{
    const TemporaryLog other(TemporaryLog::oneDataSet(4), "other.log");
    auto *recent = user().find<RecentFiles>("recentFiles");
    recent->add(other.path());
    QCOMPARE(recent->rowCount(), 2);
    QVERIFY(user().tap("recentButton"));
    QTRY_VERIFY(user().isShown("recent0"));
    QVERIFY(user().tap(ViewerUser::within(user().item("recent0"), "forget")));
    QTRY_COMPARE(recent->rowCount(), 1);
    QCOMPARE(fileName(), QString("test.log"));
    QVERIFY(user().tap("clearRecent"));
    QTRY_COMPARE(recent->rowCount(), 0);
    QTRY_VERIFY(user().isShown("noRecent"));
}

void tst_Fingers::readsTheLogAgain()
{
    m_log->append(kRow);
    QCOMPARE(rows(), 10);
    QVERIFY(user().tap("reloadButton"));
    QTRY_COMPARE(rows(), 11);
}

void tst_Fingers::followsTheLogAndStops()
{
    const auto *follower = user().find<LogFollower>("follower");
    QVERIFY(user().tap("followButton"));
    QTRY_VERIFY(follower->isFollowing());
    m_log->append(kRow);
    QTRY_COMPARE(rows(), 11);
    QVERIFY(user().tap("followButton"));
    QTRY_VERIFY(!follower->isFollowing());
    m_log->append(kRow);
    QVERIFY(user().tap("reloadButton"));
    QTRY_COMPARE(rows(), 12);
}

void tst_Fingers::cancelsAReadAndGoesBack()
{
    const TemporaryLog large(TemporaryLog::oneDataSet() + kRow.repeated(1000000), "large.log");
    user().find<RecentFiles>("recentFiles")->add(large.path());
    bool isTapped = false;
    whenShown("cancelButton", [this, &isTapped] { isTapped = user().tap("cancelButton"); });
    QVERIFY(user().tap("recentButton"));
    QVERIFY(user().tap("recent0"));
    QTRY_VERIFY_WITH_TIMEOUT(user().isShown("errorPane"), 60000);
    QVERIFY(isTapped);
    QCOMPARE(user().text("errorTitle"), QString("Reading was cancelled"));
    QVERIFY(user().tap("back"));
    QTRY_VERIFY(!user().isShown("errorPane"));
    QTRY_COMPARE(rows(), 10);
    QCOMPARE(fileName(), QString("test.log"));
}

void tst_Fingers::goesToATrouble()
{
    m_log->append("door opened\n");
    QVERIFY(user().tap("reloadButton"));
    QVERIFY(user().tap("troublesButton"));
    QTRY_VERIFY(isOpen("troublesPopup"));
    QVERIFY(tapText("Line 17: door opened"));
    QTRY_VERIFY(!isOpen("troublesPopup"));
    QTRY_VERIFY(user().isShown("table"));
    QTRY_COMPARE(selectedRow(), 10);
    // Or none of them.
    QVERIFY(user().tap("troublesButton"));
    QVERIFY(user().tap("closeTroubles"));
    QTRY_VERIFY(!isOpen("troublesPopup"));
}

// The menu and the help

void tst_Fingers::choosesDarkColors()
{
    const auto isDark = [this] {
        const QImage image = user().window()->grabWindow();
        return qGray(image.pixel(2, 2)) < 128 && qGray(image.pixel(2, image.height() - 3)) < 128;
    };
    QVERIFY(!isDark());
    QVERIFY(user().tap("menuButton"));
    QVERIFY(user().tap("themeChoice"));
    QVERIFY(tapText("Dark"));
    QTRY_VERIFY(isDark());
    QVERIFY(user().tap("themeChoice"));
    QVERIFY(tapText("Light"));
    QTRY_VERIFY(!isDark());
    // A tap beside the menu closes it.
    QVERIFY(user().tap("plot"));
    QTRY_VERIFY(!isOpen("viewMenu"));
}

void tst_Fingers::switchesTheSidePanel()
{
    const auto width = [this] { return user().plot()->width(); };
    QTRY_COMPARE(width(), 512.0);
    QVERIFY(user().tap("menuButton"));
    QVERIFY(user().tap("panelSwitch"));
    QTRY_VERIFY(!user().isShown("variables"));
    QTRY_COMPARE(width(), 800.0);
    QVERIFY(user().tap("panelSwitch"));
    QTRY_VERIFY(user().isShown("variables"));
    QTRY_COMPARE(width(), 512.0);
}

void tst_Fingers::colorsCurvesAsOnTheInstrument()
{
    user().source()->updateVariableSelection(1, 3, true);
    QTRY_COMPARE(curves().size(), 3);
    const auto second = [this] { return curves().at(0).color; }; // RH, chosen after T
    QCOMPARE(second(), QColor("#E67300"));
    QVERIFY(user().tap("menuButton"));
    QVERIFY(user().tap("instrumentColorsSwitch"));
    QTRY_COMPARE(second(), QColor("#FF0000"));
    QVERIFY(user().tap("instrumentColorsSwitch"));
    QTRY_COMPARE(second(), QColor("#E67300"));
}

void tst_Fingers::readsTheHelpSheet()
{
    QVERIFY(user().tap("helpButton"));
    QTRY_VERIFY(isOpen("helpSheet"));
    QVERIFY(user().settled());
    const QQuickItem *scroller = user().item("helpScroller");
    const QPoint from = user().pointOf(scroller, scroller->boundingRect().center());
    QCOMPARE(scroller->property("contentY").toDouble(), 0.0);
    user().drag(from, QPoint(0, -120));
    QTRY_VERIFY(scroller->property("contentY").toDouble() >= 60);
    QVERIFY(user().tap("closeHelp"));
    QTRY_VERIFY(!isOpen("helpSheet"));
}

// The plot

void tst_Fingers::hidesACurve()
{
    QVERIFY(curves().at(0).isVisible());
    QVERIFY(user().tap("chip0"));
    QTRY_VERIFY(!curves().at(0).isVisible());
    QVERIFY(curves().at(1).isVisible());
    QVERIFY(user().tap("chip0"));
    QTRY_VERIFY(curves().at(0).isVisible());
}

void tst_Fingers::typesLimits()
{
    QVERIFY(user().tap("limits"));
    QTRY_VERIFY(isOpen("limitsPopup"));
    QVERIFY(enter(limit("limitsLeft", "lower"), "20"));
    QVERIFY(enter(limit("limitsLeft", "upper"), "27.5"));
    QVERIFY(!limit("limitsLeft", "automatic")->property("checked").toBool());
    QVERIFY(user().tap("applyLimits"));
    QTRY_VERIFY(!isOpen("limitsPopup"));
    QCOMPARE(navigator()->scales()[QwtPlot::yLeft].min, 20.0);
    QCOMPARE(navigator()->scales()[QwtPlot::yLeft].max, 27.5);
    QVERIFY(navigator()->isAutoscaled(PlotNavigator::Right));
    QVERIFY(user().tap("limits"));
    QVERIFY(user().tap(limit("limitsLeft", "automatic")));
    QVERIFY(user().tap(limit("limitsRight", "automatic")));
    QVERIFY(user().tap("applyLimits"));
    QTRY_VERIFY(!isOpen("limitsPopup"));
    QVERIFY(navigator()->isAutoscaled(PlotNavigator::Left));
    QVERIFY(!navigator()->isAutoscaled(PlotNavigator::Right));
    // Or none of it.
    QVERIFY(user().tap("limits"));
    QVERIFY(user().tap(limit("limitsRight", "automatic")));
    QVERIFY(user().tap("cancelLimits"));
    QTRY_VERIFY(!isOpen("limitsPopup"));
    QVERIFY(!navigator()->isAutoscaled(PlotNavigator::Right));
}

/** Into the middle half of what is shown. */
void tst_Fingers::zoomIn()
{
    const auto width = [this] {
        const AxisRange range = navigator()->scales()[QwtPlot::xBottom];
        return range.max - range.min;
    };
    const double before = width();
    QVERIFY(user().tap("zoomMode"));
    QVERIFY(user().settled());
    const QRectF canvas = user().plot()->mapRectToScene(navigator()->canvas());
    const QPoint way = (canvas.bottomRight() - canvas.topLeft()).toPoint() / 2;
    user().drag(canvas.center().toPoint() - way / 2, way);
    QTRY_VERIFY(width() < 0.7 * before);
}

void tst_Fingers::zoomsBackAndShowsEverything()
{
    const PlotScales all = navigator()->scales();
    zoomIn();
    const PlotScales half = navigator()->scales();
    zoomIn();
    QVERIFY(user().tap("zoomBack"));
    QTRY_COMPARE(navigator()->scales()[QwtPlot::xBottom].min, half[QwtPlot::xBottom].min);
    QCOMPARE(navigator()->scales()[QwtPlot::yLeft].max, half[QwtPlot::yLeft].max);
    QVERIFY(user().tap("showEverything"));
    QTRY_VERIFY(!navigator()->isZoomed());
    QCOMPARE(navigator()->scales()[QwtPlot::xBottom].min, all[QwtPlot::xBottom].min);
    QCOMPARE(navigator()->scales()[QwtPlot::yLeft].max, all[QwtPlot::yLeft].max);
}

void tst_Fingers::choosesAllAndNoneOfAnAxis()
{
    const auto left = [this] { return user().source()->YLeftData().keys(); };
    QVERIFY(user().tap("leftHead"));
    QVERIFY(user().tap("chooseNone"));
    QTRY_COMPARE(left(), QStringList());
    QTRY_VERIFY(!isOpen("axisMenu"));
    QVERIFY(user().tap("leftHead"));
    QVERIFY(user().tap("chooseListed"));
    QTRY_COMPARE(left(), (QStringList{"CO2", "Obs", "RH", "T", "Time"}));
    QVERIFY(user().tap("rightHead"));
    QVERIFY(user().tap("chooseNone"));
    QTRY_COMPARE(user().source()->YRightData().size(), 0);
    QVERIFY(user().tap("xHead"));
    QVERIFY(user().tap("chooseNone"));
    QTRY_COMPARE(user().text("xHeadState"), QString("none"));
}

void tst_Fingers::choosesTheLatestOfAnAxis()
{
    m_log->write("[Header]\nCreated\t2020-01-01\n[Data]\nS\tS\tS\tS\tS\tS\n"
                 "Obs\tB\tC\tD\tE\tF\n-\t-\t-\t-\t-\t-\n1\t2\t3\t4\t5\t6\n");
    QVERIFY(user().tap("reloadButton"));
    QTRY_COMPARE(rows(), 1);
    QVERIFY(user().tap("leftHead"));
    QVERIFY(user().tap("chooseListed"));
    QTRY_COMPARE(user().source()->YLeftData().size(), 6);
    QVERIFY(user().tap("leftHead"));
    QVERIFY(user().tap("chooseLatest"));
    QTRY_COMPARE(user().source()->YLeftData().size(), 5);
}

void tst_Fingers::savesADrawing()
{
    const QString path = m_log->directory() + "/test-plot.svg";
    QVERIFY(user().tap("saveAs"));
    QVERIFY(user().tap("saveKind"));
    QVERIFY(tapText("Drawing (SVG)"));
    QTRY_COMPARE(user().text("savePath"), path);
    const auto step = [this](const char *name, bool isUp) {
        const QQuickItem *box = user().item(name);
        return user().tap(box, QPointF(isUp ? box->width() - 22 : 22, box->height() / 2));
    };
    QVERIFY(step("saveWidth", true));
    QVERIFY(step("saveHeight", false));
    QVERIFY(step("saveHeight", false));
    QVERIFY(user().tap("save"));
    QTRY_COMPARE(user().text("saveDone"), "Saved " + path);
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QXmlStreamReader xml(&file);
    QVERIFY(xml.readNextStartElement());
    QCOMPARE(xml.attributes().value("viewBox").toString(), QString("0 0 1290 780"));
    QVERIFY(user().tap("closeSave"));
    QTRY_VERIFY(!isOpen("savePopup"));
}

// The table

void tst_Fingers::hidesAGroupOfColumns()
{
    const int gas = 5;
    QVERIFY(tapTab("viewTabs", 1));
    QTRY_VERIFY(table()->model()->columnCount() > gas);
    QVERIFY(!table()->isColumnHidden(gas));
    QVERIFY(user().tap("columnsButton"));
    QVERIFY(tapText("Gas"));
    QTRY_VERIFY(table()->isColumnHidden(gas));
    QVERIFY(!table()->isColumnHidden(gas - 1));
    QVERIFY(user().tap("hideAllGroups"));
    QTRY_VERIFY(table()->isColumnHidden(gas - 1));
    QVERIFY(user().tap("showAllGroups"));
    QTRY_VERIFY(!table()->isColumnHidden(gas));
    const int height = table()->rowHeight(0);
    QVERIFY(user().tap("compactRows"));
    QTRY_VERIFY(table()->rowHeight(0) < height);
    // A tap beside the popup closes it.
    const QQuickItem *list = user().item("table");
    QVERIFY(user().tap(list, QPointF(60, list->height() - 30)));
    QTRY_VERIFY(!user().isShown("compactRows"));
}

void tst_Fingers::findsText()
{
    QVERIFY(tapTab("viewTabs", 1));
    QVERIFY(user().tap("find"));
    QTRY_VERIFY(user().isShown("findField"));
    QVERIFY(enter(user().item("findField"), "401"));
    QTRY_COMPARE(user().text("matchText"), QString("1 of 2"));
    QCOMPARE(selectedRow(), 0);
    QVERIFY(user().tap("findNext"));
    QTRY_COMPARE(selectedRow(), 9);
    QCOMPARE(user().text("matchText"), QString("2 of 2"));
    QVERIFY(user().tap("findPrevious"));
    QTRY_COMPARE(selectedRow(), 0);
    QVERIFY(user().tap("closeFind"));
    QTRY_VERIFY(!user().isShown("findField"));
    QVERIFY(user().isShown("find"));
}

QTEST_MAIN(tst_Fingers)
#include "tst_Fingers.moc"

#include "viewer/ViewerWindow.h"

#include "TemporaryLog.h"
#include "plot/LogViewerItem.h"
#include "support/TestCompat.h"
#include "viewer/LogLoader.h"

#include <QApplication>
#include <QQuickItem>
#include <QQuickWindow>

#include <qwt_plot.h>
#include <qwt_plot_curve.h>

namespace
{

QStringList messages;

void collectMessage(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type != QtDebugMsg && type != QtInfoMsg)
        messages.append(message);
}

/** Of the first curve, at the edges of whose line there is some white in it. */
bool isRed(const QColor &color)
{
    return color.red() > 200 && color.green() < 120 && color.blue() < 120;
}

/** Large enough that a user sees it being read. */
QByteArray largeLog()
{
    const QByteArray row = "1\t11:00:00\t500\t1.5\n";
    return TemporaryLog::twoDataSets() + row.repeated(1000000);
}

/** Also finds what a view made, which is no child of the window as an object. */
QQuickItem *within(const QQuickItem *parent, const char *name)
{
    const QList<QQuickItem *> children = parent->childItems();
    for (QQuickItem *child : children) {
        if (child->objectName() == name)
            return child;
        if (QQuickItem *found = within(child, name))
            return found;
    }
    return nullptr;
}

enum Page { VariablesPage, DisplayPage };
enum Axis { X, Left, Right };

} // namespace

/** The window, used with a mouse and keys. */
class tst_ViewerWindow : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void showsTheLog();
    void appliesOptions();
    void tellsWrongUsage();
    void ticksVariables();
    void keepsOneHorizontalVariable();
    void hintsWhenNothingIsShown();
    void switchesLinesAndSymbols();
    void changesTheWindow();
    void changesTheDataSet();
    void tellsWhyALogFails();
    void opensAnotherLog();
    void showsProgressAndCancels();
    void closesDuringARead();
    void fitsItsWindow_data();
    void fitsItsWindow();

private:
    void start(const ViewerOptions &options);
    void open(const QString &path);
    QQuickItem *item(const char *name) const;
    template <class Item> Item *find(const char *name) const
    {
        return m_viewer->window()->findChild<Item *>(name);
    }
    void click(QQuickItem *item, const QPointF &at);
    void click(const char *name);
    void clickTab(const char *bar, int index, int count);
    void tick(Axis axis, int row);
    void choose(const char *combo, int index);
    void type(const QString &text);
    void showPage(Page page) { clickTab("pageTabs", page, 2); }
    int curves() const;
    QVector<double> leftValues(const char *name) const;

    QScopedPointer<TemporaryLog> m_log;
    QScopedPointer<ViewerWindow> m_viewer;
    LogDataSourceItem *m_source = nullptr;
    LogViewerItem *m_plot = nullptr;
    QtMessageHandler m_handler = nullptr;
};

void tst_ViewerWindow::initTestCase()
{
    QApplication::setStyle("fusion");
}

void tst_ViewerWindow::init()
{
    messages.clear();
    m_handler = qInstallMessageHandler(collectMessage);
    m_log.reset(new TemporaryLog);
    start(ViewerOptions());
    open(m_log->path());
}

/** Nothing that is done here may make the engine complain. */
void tst_ViewerWindow::cleanup()
{
    m_viewer.reset();
    m_log.reset();
    qInstallMessageHandler(m_handler);
    QCOMPARE(messages.join('\n'), QString());
}

void tst_ViewerWindow::start(const ViewerOptions &options)
{
    m_viewer.reset(new ViewerWindow(options));
    QVERIFY(m_viewer->window());
    QVERIFY(QTest::qWaitForWindowActive(m_viewer->window()));
    m_source = find<LogDataSourceItem>("dataSource");
    m_plot = find<LogViewerItem>("plot");
}

void tst_ViewerWindow::open(const QString &path)
{
    QSignalSpy opened(m_viewer.data(), SIGNAL(opened()));
    m_viewer->open(path);
    QVERIFY(waitForCount(opened, 1));
}

QQuickItem *tst_ViewerWindow::item(const char *name) const
{
    auto *found = m_viewer->window()->findChild<QQuickItem *>(name);
    return found ? found : within(m_viewer->window()->contentItem(), name);
}

void tst_ViewerWindow::click(QQuickItem *item, const QPointF &at)
{
    QVERIFY(item && item->isVisible());
    const QPoint point = item->mapToScene(at).toPoint();
    QVERIFY(QRect(QPoint(), m_viewer->window()->size()).contains(point));
    QTest::mouseClick(m_viewer->window(), Qt::LeftButton, Qt::NoModifier, point);
}

void tst_ViewerWindow::click(const char *name)
{
    QQuickItem *target = item(name);
    QVERIFY2(target, name);
    click(target, QPointF(target->width() / 2, target->height() / 2));
}

void tst_ViewerWindow::clickTab(const char *bar, int index, int count)
{
    QQuickItem *tabs = item(bar);
    QVERIFY(tabs);
    click(tabs, QPointF(tabs->width() * (index + 0.5) / count, tabs->height() / 2));
    QTRY_COMPARE(tabs->property("currentIndex").toInt(), index);
}

/** A tap on what puts the variable of a row on an axis. */
void tst_ViewerWindow::tick(Axis axis, int row)
{
    QQuickItem *rowItem = nullptr;
    const auto findRow = [this, row, &rowItem] {
        return QMetaObject::invokeMethod(item("variables"), "itemAtIndex",
                                         Q_RETURN_ARG(QQuickItem *, rowItem), Q_ARG(int, row))
            && rowItem;
    };
    QTRY_VERIFY(findRow());
    const char *const names[] = {"onX", "onLeft", "onRight"};
    auto *target = rowItem->findChild<QQuickItem *>(names[axis]);
    QVERIFY(target);
    click(target, target->boundingRect().center());
}

void tst_ViewerWindow::choose(const char *combo, int index)
{
    click(combo);
    auto *popup = item(combo)->property("popup").value<QObject *>();
    QTRY_VERIFY(popup->property("opened").toBool());
    auto *rows = popup->property("contentItem").value<QQuickItem *>();
    QQuickItem *row = nullptr;
    const auto findRow = [rows, index, &row] {
        return QMetaObject::invokeMethod(rows, "itemAtIndex", Q_RETURN_ARG(QQuickItem *, row),
                                         Q_ARG(int, index))
            && row;
    };
    QTRY_VERIFY(findRow());
    click(row, row->boundingRect().center());
    QTRY_VERIFY(!popup->property("visible").toBool());
    QCOMPARE(item(combo)->property("currentIndex").toInt(), index);
}

void tst_ViewerWindow::type(const QString &text)
{
    for (const QChar &c : text)
        QTest::keyClick(m_viewer->window(), c.toLatin1());
}

int tst_ViewerWindow::curves() const
{
    return m_plot->plot()->itemList(QwtPlotItem::Rtti_PlotCurve).size();
}

/** All pieces of a variable of the left axis. */
QVector<double> tst_ViewerWindow::leftValues(const char *name) const
{
    QVector<double> values;
    const QList<QVector<double>> pieces = m_source->YLeftData().value(name);
    for (const QVector<double> &piece : pieces)
        values += piece;
    return values;
}

// What is shown

void tst_ViewerWindow::showsTheLog()
{
    QCOMPARE(item("fileName")->property("text").toString(), QString("test.log"));
    QVERIFY(m_viewer->window()->title().contains("test.log"));
    QVERIFY(!item("errorPane")->isVisible());
    QVERIFY(!item("hint")->isVisible());
    QCOMPARE(m_source->xData().first, QString("Obs"));
    QCOMPARE(m_source->YLeftData().keys(), QStringList{"T"});
    QCOMPARE(m_source->YRightData().keys(), QStringList{"CO2"});
    QCOMPARE(leftValues("T").size(), 10);
    QCOMPARE(curves(), 2);
    const QImage image = m_viewer->window()->grabWindow();
    const QPointF corner = m_plot->mapToScene(QPointF());
    const QImage plot = image.copy(QRect(corner.toPoint(), m_plot->size().toSize()));
    int red = 0;
    for (int x = 0; x < plot.width(); ++x) {
        for (int y = 0; y < plot.height(); ++y)
            red += isRed(plot.pixelColor(x, y)) ? 1 : 0;
    }
    QVERIFY(red > 20);
}

void tst_ViewerWindow::appliesOptions()
{
    ViewerOptions options;
    options.dataSet = 2;
    options.x = "Time";
    options.left << "T"
                 << "CO2";
    options.criteria << CriterionText::read("CO2>500");
    options.range = ViewerOptions::HeadRows;
    options.rangeSize = 2;
    options.style = ViewerOptions::Both;
    start(options);
    open(m_log->path());
    QCOMPARE(m_source->currentDataSetIndex(), 1);
    QCOMPARE(m_source->xData().first, QString("Time"));
    QCOMPARE(leftValues("T"), (QVector<double>{1.5, 2.5}));
    QCOMPARE(leftValues("CO2"), QVector<double>{501});
    QCOMPARE(m_source->YRightData().size(), 0);
    // The controls tell what is set.
    QCOMPARE(item("dataSetChoice")->property("currentIndex").toInt(), 1);
    QCOMPARE(item("rangeType")->property("currentIndex").toInt(), 1);
    QCOMPARE(item("rangeSize")->property("value").toInt(), 2);
    auto *leftStyle = item("leftStyle");
    QVERIFY(leftStyle->findChild<QQuickItem *>("lines")->property("checked").toBool());
    QVERIFY(leftStyle->findChild<QQuickItem *>("symbols")->property("checked").toBool());
}

void tst_ViewerWindow::tellsWrongUsage()
{
    ViewerOptions options;
    options.left << "Q";
    start(options);
    QSignalSpy wrong(m_viewer.data(), SIGNAL(usageError(QString)));
    open(m_log->path());
    QCOMPARE(wrong.count(), 1);
    QCOMPARE(wrong.at(0).at(0).toString(),
             QString("there is no variable \"Q\" in data set 1; it has Obs, Time, T, RH, CO2"));
}

// Choosing

void tst_ViewerWindow::ticksVariables()
{
    QSignalSpy updated(m_plot, SIGNAL(plotUpdated()));
    tick(Left, 3);
    QTRY_COMPARE(m_source->YLeftData().keys(), (QStringList{"RH", "T"}));
    QCOMPARE(updated.count(), 1);
    QCOMPARE(curves(), 3);
    tick(Left, 2);
    QTRY_COMPARE(m_source->YLeftData().keys(), QStringList{"RH"});
    tick(Right, 2);
    QTRY_COMPARE(m_source->YRightData().keys(), (QStringList{"CO2", "T"}));
    QCOMPARE(updated.count(), 3);
    QCOMPARE(curves(), 3);
}

void tst_ViewerWindow::keepsOneHorizontalVariable()
{
    tick(X, 1);
    QTRY_COMPARE(m_source->xData().first, QString("Time"));
    QCOMPARE(m_source->checkedItemList(0), QList<int>{1});
    tick(X, 0);
    QTRY_COMPARE(m_source->xData().first, QString("Obs"));
    QCOMPARE(m_source->checkedItemList(0), QList<int>{0});
}

void tst_ViewerWindow::hintsWhenNothingIsShown()
{
    tick(Left, 2);
    QVERIFY(!item("hint")->isVisible());
    tick(Right, 4);
    QTRY_VERIFY(item("hint")->isVisible());
    QCOMPARE(curves(), 0);
    tick(Right, 4);
    QTRY_VERIFY(!item("hint")->isVisible());
}

void tst_ViewerWindow::switchesLinesAndSymbols()
{
    showPage(DisplayPage);
    auto *lines = item("leftStyle")->findChild<QQuickItem *>("lines");
    auto *symbols = item("leftStyle")->findChild<QQuickItem *>("symbols");
    click(lines, lines->boundingRect().center());
    QTRY_VERIFY(!m_plot->linesEnabled(LogViewerItem::LeftAxis));
    QCOMPARE(curves(), 1);
    click(symbols, symbols->boundingRect().center());
    QTRY_VERIFY(m_plot->symbolsEnabled(LogViewerItem::LeftAxis));
    QCOMPARE(curves(), 2);
    QVERIFY(m_plot->linesEnabled(LogViewerItem::RightAxis));
    auto *rightLines = item("rightStyle")->findChild<QQuickItem *>("lines");
    click(rightLines, rightLines->boundingRect().center());
    QTRY_VERIFY(!m_plot->linesEnabled(LogViewerItem::RightAxis));
    QCOMPARE(curves(), 1);
}

void tst_ViewerWindow::changesTheWindow()
{
    showPage(DisplayPage);
    QVERIFY(!item("rangeSize")->isVisible());
    QSignalSpy updated(m_plot, SIGNAL(plotUpdated()));
    choose("rangeType", 2);
    QTRY_VERIFY(item("rangeSize")->isVisible());
    QCOMPARE(updated.count(), 1);

    click("rangeSize");
    QTest::keySequence(m_viewer->window(), QKeySequence::SelectAll);
    type("4");
    QTest::keyClick(m_viewer->window(), Qt::Key_Return);
    QTRY_COMPARE(leftValues("T"), (QVector<double>{27.5, 28.5, 29.5, 30.5}));

    QQuickItem *step = item("step");
    click(step, QPointF(step->width() - 20, step->height() / 2));
    QTRY_COMPARE(leftValues("T"), (QVector<double>{27.5, 29.5}));

    choose("rangeType", 1);
    QTRY_COMPARE(leftValues("T"), (QVector<double>{21.5, 23.5}));
    choose("rangeType", 0);
    QTRY_COMPARE(leftValues("T"), (QVector<double>{21.5, 23.5, 25.5, 27.5, 29.5}));
    QCOMPARE(m_source->observationFrequency(), 2);
}

// Logs

void tst_ViewerWindow::changesTheDataSet()
{
    choose("dataSetChoice", 1);
    QTRY_COMPARE(m_source->currentDataSetIndex(), 1);
    QCOMPARE(leftValues("T"), (QVector<double>{1.5, 2.5, 3.5}));
    QCOMPARE(m_source->YRightData().keys(), QStringList{"CO2"});
    // The lists know the other data set's variables.
    QTRY_COMPARE(item("leftHeadState")->property("text").toString(), QString("1"));
    tick(Left, 3);
    QTRY_COMPARE(m_source->YLeftData().size(), 0);
}

void tst_ViewerWindow::tellsWhyALogFails()
{
    QSignalSpy failed(m_viewer.data(), SIGNAL(failed(QString)));
    m_viewer->open(m_log->directory() + "/missing.log");
    QVERIFY(waitForCount(failed, 1));
    QTRY_VERIFY(item("errorPane")->isVisible());
    const QString text = m_log->directory() + "/missing.log: there is no such file";
    QCOMPARE(failed.at(0).at(0).toString(), text);
    QCOMPARE(item("errorText")->property("text").toString(), text);
    open(m_log->path());
    QTRY_VERIFY(!item("errorPane")->isVisible());
    QCOMPARE(leftValues("T").size(), 10);
}

void tst_ViewerWindow::opensAnotherLog()
{
    const TemporaryLog other("[Header]\nCreated\t2020-01-02\n[Data]\nSys\tSys\tAir\nObs\tTime\tP\n"
                             "-\t-\tkPa\n1\t11:00:00\t100.5\n2\t11:00:01\t100.6\n",
                             "other.log");
    showPage(DisplayPage);
    choose("rangeType", 1);
    open(other.path());
    QCOMPARE(item("fileName")->property("text").toString(), QString("other.log"));
    QCOMPARE(leftValues("P"), (QVector<double>{100.5, 100.6}));
    QCOMPARE(m_source->YRightData().size(), 0);
    QCOMPARE(item("dataSetChoice")->property("count").toInt(), 1);
    // How to look at logs stays.
    QCOMPARE(item("rangeType")->property("currentIndex").toInt(), 1);
}

void tst_ViewerWindow::showsProgressAndCancels()
{
    const TemporaryLog large(largeLog(), "large.log");
    QSignalSpy failed(m_viewer.data(), SIGNAL(failed(QString)));
    auto *loader = m_viewer->window()->findChild<LogLoader *>();
    bool wasBusy = false;
    double part = 0;
    // The read lets events through, this among them; a look at the pane once it is there.
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [&] {
        QQuickItem *cancel = item("cancelButton");
        part = item("progressBar")->property("position").toDouble();
        if (!cancel->isVisible() || part <= 0)
            return;
        timer.stop();
        wasBusy = !item("openButton")->isEnabled() && !item("variables")->isEnabled();
        click("cancelButton");
    });
    timer.start(20);
    m_viewer->open(large.path());
    QVERIFY(waitForCount(failed, 1, 60000));
    QVERIFY(wasBusy);
    QVERIFY(part > 0 && part < 1);
    QVERIFY(loader->errorText().endsWith("large.log: reading was cancelled, "
                                         "nothing of it was kept"));
    QTRY_VERIFY(item("openButton")->isEnabled());
    QVERIFY(!item("cancelButton")->isVisible());
}

void tst_ViewerWindow::closesDuringARead()
{
    const TemporaryLog large(largeLog(), "large.log");
    QSignalSpy failed(m_viewer.data(), SIGNAL(failed(QString)));
    QTimer::singleShot(100, m_viewer->window(), &QQuickWindow::close);
    m_viewer->open(large.path());
    QVERIFY(waitForCount(failed, 1, 60000));
    QVERIFY(!m_source->parser()->isParsing());
    QVERIFY(!m_viewer->window()->isVisible());
}

// Sizes

void tst_ViewerWindow::fitsItsWindow_data()
{
    QTest::addColumn<QSize>("size");

    QTest::newRow("instrument") << QSize(800, 480);
    QTest::newRow("desk") << QSize(1280, 800);
}

/** What is to be hit is there, inside the window, and large enough for a finger. */
void tst_ViewerWindow::fitsItsWindow()
{
    QFETCH(QSize, size);
    m_viewer->window()->resize(size);
    QTRY_COMPARE(m_viewer->window()->size(), size);
    const QList<QList<const char *>> pages{
        {"openButton", "dataSetChoice", "pageTabs", "leftHead", "variableSearch", "chosenOnly"},
        {"leftStyle", "rightStyle", "rangeType", "step"}};
    for (int page = 0; page < pages.size(); ++page) {
        showPage(Page(page));
        for (const char *name : pages.at(page)) {
            QQuickItem *control = item(name);
            QTRY_VERIFY2(control->isVisible(), name);
            const QRectF area = control->mapRectToScene(QRectF(QPointF(), control->size()));
            QVERIFY2(QRectF(QPointF(), size).contains(area), name);
            QVERIFY2(qMin(area.width(), area.height()) >= 44, name);
        }
    }
    QVERIFY(m_plot->width() >= 0.6 * size.width());
}

QTEST_MAIN(tst_ViewerWindow)
#include "tst_ViewerWindow.moc"

#include "ViewerUser.h"
#include "table/LogTableView.h"
#include "table/LogTableViewItem.h"
#include "viewer/SetupFiles.h"
#include "viewer/Translations.h"

#include <QAccessible>

/** Every control of every page: as large as a finger, named for screen readers, nothing cut off. */
class tst_Controls : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void areForFingers_data() { addPages(); }
    void areForFingers();
    void haveNames_data() { addPages(); }
    void haveNames();
    void tellWhetherTheyAreOn_data();
    void tellWhetherTheyAreOn();
    void tellWhatIsRead();
    void showTheirTexts_data() { addPages(); }
    void showTheirTexts();
    void widenForTheirTexts();
    void areDrawnAtTheWindowsRatio();

private:
    /**
     * The pages by how a user gets there: tabs of the window, and then what is done one after the
     * other, told by a word and the name of an item, a key or a text.
     */
    static void addPages()
    {
        QTest::addColumn<int>("view");
        QTest::addColumn<int>("panel");
        QTest::addColumn<QStringList>("steps");
        QTest::addColumn<QString>("shown"); // when all is done; nothing where a tab is enough
        const auto page = [](const char *name, int view, int panel, const char *steps,
                             const char *shown) {
            QTest::newRow(name) << view << panel << QString(steps).split('\n', Qt::SkipEmptyParts)
                                << QString(shown);
        };
        page("plot", 0, 0, "", "");
        page("display", 0, 1, "", "");
        page("table", 1, 0, "", "");
        page("columns", 1, 0, "click columnsButton", "groupList");
        page("filter", 2, 0, "", "");
        page("limits", 0, 0, "click limits", "limitsX");
        page("save", 0, 0, "click saveAs", "saveKind");
        page("menu", 0, 0, "click menuButton", "themeChoice");
        page("help", 0, 0, "click helpButton", "helpScroller");
        page("recent", 0, 0, "click recentButton", "recentList");
        page("find", 1, 0, "click find", "findField");
        page("list to choose from", 0, 1, "click rangeType", "");
        page("all of an axis", 0, 0, "click leftHead", "chooseNone");
        page("troubles", 0, 0, "click troublesButton", "troubleList");
        page("number pad", 2, 0, "focus builder\nkey 5", "padValue");
        page("row at the cursor", 0, 0, "click pad\nclick rowActions", "excludeCursor");
        page("marker table", 0, 0, "click pad\nkey A", "curveRows");
        page("cell cut off", 1, 0, "remark", "cellBubble");
        page("error", 0, 0, "nonsense", "errorText");
        page("notice", 0, 0, "shorten\nkey F5", "openingNotice");
        page("good notice", 0, 0, "setup", "noticeText");
    }
    bool goTo(ViewerUser &user)
    {
        QFETCH(int, view);
        QFETCH(int, panel);
        QFETCH(QStringList, steps);
        QFETCH(QString, shown);
        if (!user.isReady() || !user.clickTab("viewTabs", view)
            || !user.clickTab("pageTabs", panel))
            return false;
        for (const QString &step : qAsConst(steps)) {
            if (!take(user, step.section(' ', 0, 0), step.section(' ', 1)))
                return false;
        }
        return user.settled() && user.settled() && (shown.isEmpty() || QTest::qWaitFor([&] {
                                                        return user.isShown(qPrintable(shown));
                                                    }));
    }
    bool take(ViewerUser &user, const QString &step, const QString &what)
    {
        const QByteArray name = what.toUtf8();
        if (step == "click")
            return user.click(name);
        if (step == "focus")
            user.item(name)->forceActiveFocus();
        else if (step == "key")
            user.key(Qt::Key(QKeySequence(what)[0]));
        else if (step == "remark")
            return user.clickCell(user.item("table"), view(user), 0, 3);
        else if (step == "shorten")
            m_log->write(TemporaryLog::twoDataSets().replace("CO2", "O2"));
        else if (step == "nonsense")
            user.viewer()->open(m_nonsense.path());
        else if (step == "setup")
            user.find<SetupFiles>("setupFiles")
                ->save(QUrl::fromLocalFile(m_log->directory() + "/setup.json"));
        return true;
    }
    static QAbstractItemView *view(const ViewerUser &user)
    {
        return user.find<LogTableViewItem>("table")->tableView();
    }
    /** With a remark, which is listed among the troubles and too long for its cell. */
    static QByteArray log()
    {
        return TemporaryLog::twoDataSets().replace(
            "ppm\n1\t10", "ppm\nRemark\t" + QByteArray(300, 'x') + "\n1\t10");
    }
    static ViewerOptions options()
    {
        ViewerOptions options;
        options.x = "Obs";
        options.left << "T"
                     << "RH";
        options.right << "CO2";
        options.criteria << CriterionText::read("T>=1");
        return options;
    }
    static QList<QQuickItem *> visibleItems(QQuickItem *parent)
    {
        QList<QQuickItem *> items;
        const QList<QQuickItem *> children = parent->childItems();
        for (QQuickItem *child : children) {
            if (!child->isVisible())
                continue;
            items.append(child);
            items += visibleItems(child);
        }
        return items;
    }
    /** Buttons, switches, tabs, fields, boxes, and areas that take taps on their own. */
    static QList<QQuickItem *> controls(const ViewerUser &user)
    {
        QList<QQuickItem *> found;
        const QList<QQuickItem *> items = visibleItems(user.window()->contentItem());
        for (QQuickItem *item : items) {
            const bool isControl = item->inherits("QQuickAbstractButton")
                || item->inherits("QQuickTextField") || item->inherits("QQuickComboBox")
                || item->inherits("QQuickSpinBox") || item->inherits("QQuickMouseArea");
            if (isControl && item->width() > 0 && item->height() > 0)
                found.append(item);
        }
        return found;
    }
    /** Controls, what is typed into within them, and whatever else has a name. */
    static QList<QQuickItem *> spokenOf(const ViewerUser &user)
    {
        QList<QQuickItem *> found;
        const QList<QQuickItem *> named = controls(user);
        const QList<QQuickItem *> items = visibleItems(user.window()->contentItem());
        for (QQuickItem *item : items) {
            if (item->inherits("QQuickMouseArea"))
                continue; // what it is in has the name
            QAccessibleInterface *told = QAccessible::queryAccessibleInterface(item);
            const bool isNamed = told && !told->text(QAccessible::Name).isEmpty();
            if (isNamed || named.contains(item) || item->inherits("QQuickTextInput"))
                found.append(item);
        }
        return found;
    }
    static QByteArray describe(const QQuickItem *item)
    {
        QByteArray text = item->metaObject()->className();
        text += ' ' + item->objectName().toUtf8() + ' ' + item->property("text").toByteArray();
        return text + ' ' + QByteArray::number(item->width()) + 'x'
            + QByteArray::number(item->height());
    }

    QScopedPointer<TemporaryLog> m_log;
    const TemporaryLog m_nonsense{"nonsense\n", "nonsense.log"};
};

void tst_Controls::init()
{
    m_log.reset(new TemporaryLog(log()));
}

void tst_Controls::areForFingers()
{
    ViewerUser user(*m_log, options(), QSize(800, 480));
    QVERIFY(goTo(user));
    const QList<QQuickItem *> all = controls(user);
    QVERIFY(all.size() > 15);
    for (const QQuickItem *control : all)
        QVERIFY2(qMin(control->width(), control->height()) >= 44, describe(control));
}

void tst_Controls::haveNames()
{
    ViewerUser user(*m_log, options(), QSize(1280, 800));
    QVERIFY(goTo(user));
    QAccessible::setActive(true); // as when someone starts to listen
    const QList<QQuickItem *> all = spokenOf(user);
    QVERIFY(all.size() > 15);
    for (QQuickItem *control : all) {
        QAccessibleInterface *told = QAccessible::queryAccessibleInterface(control);
        QVERIFY2(told, describe(control));
        QVERIFY2(!told->text(QAccessible::Name).isEmpty(), describe(control));
        const QAccessible::Role role = told->role();
        QVERIFY2(role != QAccessible::NoRole && role != QAccessible::Client, describe(control));
        if (control->inherits("QQuickTextField"))
            QCOMPARE(role, QAccessible::EditableText);
        if (control->inherits("QQuickComboBox"))
            QCOMPARE(role, QAccessible::ComboBox);
        if (control->inherits("QQuickSpinBox"))
            QCOMPARE(role, QAccessible::SpinBox);
        if (control->inherits("QQuickTabButton"))
            QCOMPARE(role, QAccessible::PageTab);
    }
}

void tst_Controls::tellWhetherTheyAreOn_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isOnAtFirst");
    QTest::newRow("rectangle") << QString("zoomMode") << false;
    QTest::newRow("marker A") << QString("markerA") << false;
    QTest::newRow("marker B") << QString("markerB") << false;
    QTest::newRow("follow") << QString("followButton") << false;
    QTest::newRow("chosen only") << QString("chosenOnly") << false;
    QTest::newRow("curve") << QString("chip0") << true;
}

void tst_Controls::tellWhetherTheyAreOn()
{
    QFETCH(QString, name);
    QFETCH(bool, isOnAtFirst);
    ViewerUser user(*m_log, options(), QSize(1280, 800));
    QVERIFY(user.isReady());
    QAccessible::setActive(true);
    QAccessibleInterface *told = QAccessible::queryAccessibleInterface(user.item(qPrintable(name)));
    QVERIFY(told);
    QVERIFY(told->state().checkable);
    QCOMPARE(bool(told->state().checked), isOnAtFirst);
    QVERIFY(user.click(qPrintable(name)));
    QTRY_COMPARE(bool(told->state().checked), !isOnAtFirst);
}

/** Readings stand beside the curves' names, in the legend and in the table of markers. */
void tst_Controls::tellWhatIsRead()
{
    ViewerUser user(*m_log, options(), QSize(1280, 800));
    QVERIFY(user.isReady());
    QAccessible::setActive(true);
    const auto told = [&user](const char *name) {
        return QAccessible::queryAccessibleInterface(user.item(name))
            ->text(QAccessible::Description);
    };
    QCOMPARE(told("chip0"), QString());
    QVERIFY(user.click("pad"));
    QTRY_VERIFY(!user.text("chipReading").isEmpty());
    QCOMPARE(told("chip0"), user.text("chipReading") + " C");
    user.key(Qt::Key_A);
    QTRY_VERIFY(user.isShown("curveRows"));
    QVERIFY(user.settled());
    const QString reading = user.text("readingA");
    QVERIFY(!reading.isEmpty());
    QCOMPARE(told("row0"), "Cursor: " + reading + ", A: " + reading);
}

void tst_Controls::showTheirTexts()
{
    const Translations german({"de"}); // which is longer
    ViewerUser user(*m_log, options(), QSize(800, 480));
    QVERIFY(goTo(user));
    const QList<QQuickItem *> all = controls(user);
    for (QQuickItem *control : all) {
        const QList<QQuickItem *> inside = visibleItems(control);
        for (const QQuickItem *text : inside)
            QVERIFY2(!text->property("truncated").toBool(), describe(text));
    }
}

/** As the word for "All" of some language is, or in the font that stands in for a missing one. */
void tst_Controls::widenForTheirTexts()
{
    ViewerUser user(*m_log, options());
    QVERIFY(user.isReady());
    QQuickItem *key = user.item("axesChoice");
    const qreal width = key->width();
    key->setProperty("text", "WWWW");
    QTRY_VERIFY(key->width() > width);
    const QList<QQuickItem *> inside = visibleItems(key);
    for (const QQuickItem *text : inside)
        QVERIFY2(!text->property("truncated").toBool(), describe(text));
}

/** The pixels of the items' images, beside those of the items. */
void tst_Controls::areDrawnAtTheWindowsRatio()
{
    ViewerUser user(*m_log, options());
    QVERIFY(user.isReady());
    QVERIFY(user.settled());
    const qreal ratio = user.window()->effectiveDevicePixelRatio();
    const QImage image = user.window()->grabWindow();
    QCOMPARE(image.size(), (QSizeF(user.window()->size()) * ratio).toSize());
    // Between two pixels of the same letters there is something new only at a higher ratio.
    const QRect axis = user.plot()->mapRectToScene(QRectF(0, 0, 40, 200)).toRect();
    const QImage part
        = image.copy(QRect((QPointF(axis.topLeft()) * ratio).toPoint(), axis.size() * ratio));
    int differing = 0;
    for (int y = 0; y + 1 < part.height(); y += 2)
        for (int x = 0; x + 1 < part.width(); x += 2)
            differing += part.pixel(x, y) != part.pixel(x + 1, y + 1) ? 1 : 0;
    QVERIFY(differing > 20);
}

QTEST_MAIN(tst_Controls)
#include "tst_Controls.moc"

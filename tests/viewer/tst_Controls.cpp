#include "ViewerUser.h"
#include "viewer/Translations.h"

#include <QAccessible>

/** Every control of every page: as large as a finger, named for screen readers, nothing cut off. */
class tst_Controls : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void areForFingers_data() { addPages(); }
    void areForFingers();
    void haveNames_data() { addPages(); }
    void haveNames();
    void tellWhetherTheyAreOn_data();
    void tellWhetherTheyAreOn();
    void showTheirTexts_data() { addPages(); }
    void showTheirTexts();
    void widenForTheirTexts();
    void areDrawnAtTheWindowsRatio();

private:
    /** The pages by how a user gets there: tabs of the window, and then what is clicked. */
    static void addPages()
    {
        QTest::addColumn<int>("view");
        QTest::addColumn<int>("panel");
        QTest::addColumn<QString>("opener");
        QTest::newRow("plot") << 0 << 0 << QString();
        QTest::newRow("display") << 0 << 1 << QString();
        QTest::newRow("table") << 1 << 0 << QString();
        QTest::newRow("columns") << 1 << 0 << QString("columnsButton");
        QTest::newRow("filter") << 2 << 0 << QString();
        QTest::newRow("limits") << 0 << 0 << QString("limits");
        QTest::newRow("save") << 0 << 0 << QString("saveAs");
        QTest::newRow("menu") << 0 << 0 << QString("menuButton");
        QTest::newRow("help") << 0 << 0 << QString("helpButton");
        QTest::newRow("recent") << 0 << 0 << QString("recentButton");
        QTest::newRow("find") << 1 << 0 << QString("find");
        QTest::newRow("list to choose from") << 0 << 1 << QString("rangeType");
        QTest::newRow("all of an axis") << 0 << 0 << QString("leftHead");
    }
    static bool goTo(ViewerUser &user)
    {
        QFETCH(int, view);
        QFETCH(int, panel);
        QFETCH(QString, opener);
        return user.isReady() && user.clickTab("viewTabs", view) && user.clickTab("pageTabs", panel)
            && (opener.isEmpty()
                || (user.click(qPrintable(opener)) && user.settled() && user.settled()));
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

    TemporaryLog m_log;
};

void tst_Controls::areForFingers()
{
    ViewerUser user(m_log, options(), QSize(800, 480));
    QVERIFY(goTo(user));
    const QList<QQuickItem *> all = controls(user);
    QVERIFY(all.size() > 15);
    for (const QQuickItem *control : all)
        QVERIFY2(qMin(control->width(), control->height()) >= 44, describe(control));
}

void tst_Controls::haveNames()
{
    ViewerUser user(m_log, options(), QSize(1280, 800));
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
    ViewerUser user(m_log, options(), QSize(1280, 800));
    QVERIFY(user.isReady());
    QAccessible::setActive(true);
    QAccessibleInterface *told = QAccessible::queryAccessibleInterface(user.item(qPrintable(name)));
    QVERIFY(told);
    QVERIFY(told->state().checkable);
    QCOMPARE(bool(told->state().checked), isOnAtFirst);
    QVERIFY(user.click(qPrintable(name)));
    QTRY_COMPARE(bool(told->state().checked), !isOnAtFirst);
}

void tst_Controls::showTheirTexts()
{
    const Translations german({"de"}); // which is longer
    ViewerUser user(m_log, options(), QSize(800, 480));
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
    ViewerUser user(m_log, options());
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
    ViewerUser user(m_log, options());
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

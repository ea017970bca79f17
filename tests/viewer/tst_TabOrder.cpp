#include "ViewerUser.h"
#include "filters/LogDataFilterBuilderItem.h"

#include <QComboBox>
#include <QGraphicsProxyWidget>
#include <QLineEdit>
#include <QPushButton>

/** All there is to choose can be reached, and left, by Tab alone. */
class tst_TabOrder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void goesRoundEachView_data();
    void goesRoundEachView();
    void goesThroughTheCriterionRow();
    void composesACriterionByKeys();

private:
    /** What has the keyboard: an item, and the widget in it. */
    static QString focus(const ViewerUser &user)
    {
        const QQuickItem *item = user.window()->activeFocusItem();
        if (!item)
            return QString();
        QString text = item->objectName();
        if (text.isEmpty())
            text = item->metaObject()->className();
        const auto *builder = qobject_cast<const LogDataFilterBuilderItem *>(item);
        const QWidget *widget = builder
            ? const_cast<LogDataFilterBuilderItem *>(builder)->container()->focusWidget()
            : nullptr;
        return widget ? text + '/' + widget->metaObject()->className() : text;
    }
    /** The stops of a round, at most so many. */
    static QStringList round(ViewerUser &user, Qt::Key key = Qt::Key_Tab)
    {
        QStringList stops;
        QQuickItem *const first = user.window()->activeFocusItem();
        for (int i = 0; i < 80; ++i) {
            user.key(key);
            stops.append(focus(user));
            if (user.window()->activeFocusItem() == first)
                break;
        }
        return stops;
    }
    static ViewerOptions options()
    {
        ViewerOptions options;
        options.criteria << CriterionText::read("T>=1");
        return options;
    }

    TemporaryLog m_log;
};

void tst_TabOrder::goesRoundEachView_data()
{
    QTest::addColumn<int>("view");
    QTest::addColumn<QString>("stop");
    QTest::newRow("plot") << 0 << "plotArea";
    QTest::newRow("table") << 1 << "table";
    QTest::newRow("filter") << 2 << "criteriaList";
}

void tst_TabOrder::goesRoundEachView()
{
    QFETCH(int, view);
    QFETCH(QString, stop);
    ViewerUser user(m_log, options());
    QVERIFY(user.isReady());
    QVERIFY(user.clickTab("viewTabs", view));
    user.item("openButton")->forceActiveFocus(Qt::TabFocusReason);
    const QStringList stops = round(user);
    QVERIFY2(stops.size() < 80, qPrintable(stops.join(' ')));
    for (const QString &name :
         {QString("menuButton"), QString("variableSearch"), QString("variableRow0"), stop})
        QVERIFY2(stops.contains(name), qPrintable(name + ": " + stops.join(' ')));
    // And the other way round.
    QCOMPARE(round(user, Qt::Key_Backtab).size(), stops.size());
}

void tst_TabOrder::goesThroughTheCriterionRow()
{
    ViewerUser user(m_log, options());
    QVERIFY(user.isReady());
    QVERIFY(user.clickTab("viewTabs", 2));
    user.item("openButton")->forceActiveFocus(Qt::TabFocusReason);
    const QStringList stops = round(user).filter("builder");
    QVERIFY2(stops.filter("QComboBox").size() == 2, qPrintable(stops.join(' ')));
    QVERIFY2(stops.filter("QPushButton").size() >= 1, qPrintable(stops.join(' ')));
}

void tst_TabOrder::composesACriterionByKeys()
{
    ViewerUser user(m_log);
    QVERIFY(user.isReady());
    QVERIFY(user.clickTab("viewTabs", 2));
    user.item("openButton")->forceActiveFocus(Qt::TabFocusReason);
    for (int i = 0; i < 80 && !focus(user).startsWith("builder"); ++i)
        user.key(Qt::Key_Tab);
    QCOMPARE(focus(user), QString("builder/QComboBox"));
    user.key(Qt::Key_Down); // another variable
    user.type("25");
    QTRY_VERIFY(user.isShown("padValue"));
    user.key(Qt::Key_Return);
    QTRY_COMPARE(user.source()->activeFilterModel()->rowCount(), 1);
}

QTEST_MAIN(tst_TabOrder)
#include "tst_TabOrder.moc"

#include "Complaints.h"
#include "ViewerUser.h"
#include "filters/LogDataFilterBuilderItem.h"
#include "lists/LogDataSetFilterListItem.h"
#include "support/AccessibleEvents.h"
#include "table/LogTableView.h"
#include "table/LogTableViewItem.h"
#include "viewer/CriterionText.h"
#include "viewer/CurveReadings.h"
#include "viewer/Translations.h"

#include <QComboBox>
#include <QListView>

/** The viewer as a screen reader tells it to somebody who uses keys. */
class tst_ScreenReader : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void treeIsWhole_data();
    void treeIsWhole();
    void applicationHasOneWindow();
    void cellOfTheTable();
    void arrowsTellCells();
    void excludedRowIsTicked();
    void criterionIsComposed();
    void criterionIsNamedInGerman();
    void tabTellsWidgets();
    void criteriaAreTickedInTheirList();
    void plotIsDescribed();
    void cursorOfThePlotIsRead();
    void legendIsTicked();
    void ticksOfVariables();
    void noticeIsAnAlert();

private:
    enum View { PlotView, TableView, FilterView };

    static ViewerOptions options()
    {
        ViewerOptions options;
        options.x = "Obs";
        options.left << "T";
        options.right << "CO2";
        options.criteria << CriterionText::read("T>=1");
        return options;
    }
    QAccessibleInterface *told() const { return AccessibleTree::of(m_user->window()); }
    QAccessibleInterface *told(const char *name) const
    {
        return AccessibleTree::of(m_user->item(name));
    }
    QString description(const char *name) const
    {
        return told(name)->text(QAccessible::Description);
    }
    QAccessibleInterface *table() const
    {
        return AccessibleTree::find(told("table"), QAccessible::Table);
    }
    /** The texts of the labels of @p box, which is where Unix has the names of combo boxes. */
    static QStringList labels(QAccessibleInterface *box)
    {
        QStringList names;
        const auto relations = box->relations(QAccessible::Label);
        for (const auto &relation : relations)
            names << AccessibleTree::name(relation.first);
        return names;
    }
    QList<QAccessibleInterface *> boxes() const
    {
        QList<QAccessibleInterface *> found;
        const QList<QAccessibleInterface *> all = AccessibleTree::within(told("builder"));
        for (QAccessibleInterface *one : all) {
            if (one->role() == QAccessible::ComboBox)
                found << one;
        }
        return found;
    }
    bool show(View view) { return m_user->clickTab("viewTabs", view) && m_user->settled(); }

    QScopedPointer<Complaints> m_complaints;
    QScopedPointer<TemporaryLog> m_log;
    QScopedPointer<ViewerUser> m_user;
};

void tst_ScreenReader::init()
{
    QVERIFY(AccessibleEvents::isSomebodyListening());
    m_complaints.reset(new Complaints);
    m_log.reset(new TemporaryLog(TemporaryLog::withUnits()));
    m_user.reset(new ViewerUser(*m_log, options(), QSize(1280, 800)));
    QVERIFY(m_user->isReady());
    QVERIFY(m_user->settled());
}

/** Nothing that is done here may make the engine complain. */
void tst_ScreenReader::cleanup()
{
    m_user.reset();
    m_log.reset();
    const QString text = m_complaints->text();
    m_complaints.reset();
    QCOMPARE(text, QString());
}

void tst_ScreenReader::treeIsWhole_data()
{
    QTest::addColumn<int>("view");
    QTest::addColumn<QByteArray>("item");
    QTest::newRow("plot") << int(PlotView) << QByteArray("plotArea");
    QTest::newRow("table") << int(TableView) << QByteArray("table");
    QTest::newRow("composing") << int(FilterView) << QByteArray("builder");
    QTest::newRow("criteria") << int(FilterView) << QByteArray("criteriaList");
}

void tst_ScreenReader::treeIsWhole()
{
    QFETCH(int, view);
    QFETCH(QByteArray, item);
    QVERIFY(show(View(view)));
    QCOMPARE(AccessibleTree::flaw(told(item)), QByteArray());
    const QList<QAccessibleInterface *> way = AccessibleTree::upFrom(told(item));
    QVERIFY(way.contains(told()));
    QVERIFY(AccessibleTree::within(told()).size() > 50);
}

void tst_ScreenReader::applicationHasOneWindow()
{
    for (View view : {PlotView, TableView, FilterView})
        QVERIFY(show(view));
    const QAccessibleInterface *application = AccessibleTree::of(qApp);
    QCOMPARE(application->childCount(), 1);
    QCOMPARE(AccessibleTree::name(application->child(0)), m_user->window()->title());
}

void tst_ScreenReader::cellOfTheTable()
{
    QVERIFY(show(TableView));
    QVERIFY(table());
    QAccessibleInterface *cell = table()->tableInterface()->cellAt(0, 3);
    QCOMPARE(AccessibleTree::name(cell), QString("21.5"));
    QCOMPARE(cell->tableCellInterface()->rowIndex(), 0);
    const QList<QAccessibleInterface *> headers = cell->tableCellInterface()->columnHeaderCells();
    QCOMPARE(headers.size(), 1);
    QAccessible::uniqueId(headers.first()); // whoever is given one has to see to its end
    QCOMPARE(AccessibleTree::name(headers.first()), QString("Air\nT\nC"));
    const QList<QAccessibleInterface *> way = AccessibleTree::upFrom(cell);
    QCOMPARE(way.last()->role(), QAccessible::Application);
    QVERIFY(way.contains(told("table")));
    QVERIFY(way.contains(told()));
    const QPoint middle = cell->rect().center();
    QVERIFY(told("table")->rect().contains(middle));
    QCOMPARE(AccessibleTree::name(told("table")->childAt(middle.x(), middle.y())), QString("21.5"));
}

void tst_ScreenReader::arrowsTellCells()
{
    QVERIFY(show(TableView));
    auto *item = m_user->find<LogTableViewItem>("table");
    AccessibleEvents events;
    QVERIFY(m_user->clickCell(item, item->tableView(), 1, 3));
    QCOMPARE(events.latest(QAccessible::Focus), QString("22.5"));
    QCOMPARE(told()->focusChild(), table());
    m_user->key(Qt::Key_Down);
    QCOMPARE(events.latest(QAccessible::Focus), QString("23.5"));
    m_user->key(Qt::Key_Right);
    QCOMPARE(events.latest(QAccessible::Focus), QString("47"));
}

void tst_ScreenReader::excludedRowIsTicked()
{
    QVERIFY(show(TableView));
    auto *item = m_user->find<LogTableViewItem>("table");
    QAccessibleInterface *box = table()->tableInterface()->cellAt(2, 0);
    QVERIFY(!box->state().checked);
    QVERIFY(m_user->clickCell(item, item->tableView(), 2, 0));
    QTRY_VERIFY(box->state().checked);
    QVERIFY(!table()->tableInterface()->cellAt(1, 0)->state().checked);
}

void tst_ScreenReader::criterionIsComposed()
{
    QVERIFY(show(FilterView));
    const QList<QAccessibleInterface *> all = boxes();
    QCOMPARE(all.size(), 2);
    QCOMPARE(labels(all.at(0)), QStringList("Variable"));
    QCOMPARE(all.at(0)->text(QAccessible::Value), QString("T"));
    QCOMPARE(labels(all.at(1)), QStringList("Comparison"));
    QCOMPARE(all.at(1)->text(QAccessible::Value), QString(">"));
    QVERIFY(AccessibleTree::find(told("builder"), QAccessible::EditableText, "Value"));
    QVERIFY(AccessibleTree::find(told("builder"), QAccessible::Button, "Add Criteria"));
}

void tst_ScreenReader::criterionIsNamedInGerman()
{
    m_user.reset();
    const Translations german({"de"});
    m_user.reset(new ViewerUser(*m_log, options(), QSize(1280, 800)));
    QVERIFY(m_user->isReady());
    QVERIFY(show(FilterView));
    QCOMPARE(labels(boxes().value(1)), QStringList("Vergleich"));
    QVERIFY(AccessibleTree::find(told("builder"), QAccessible::EditableText, "Wert"));
}

void tst_ScreenReader::tabTellsWidgets()
{
    QVERIFY(show(FilterView));
    auto *builder = m_user->find<LogDataFilterBuilderItem>("builder");
    AccessibleEvents events;
    builder->forceActiveFocus(Qt::TabFocusReason);
    QCOMPARE(events.latest(QAccessible::Focus), QString("T"));
    m_user->key(Qt::Key_Down);
    QVERIFY(events.had(QAccessible::ValueChanged, "RH"));
    m_user->key(Qt::Key_Tab);
    QCOMPARE(events.latest(QAccessible::Focus), QString(">"));
    QCOMPARE(AccessibleTree::name(told()->focusChild()), QString(">"));
}

void tst_ScreenReader::criteriaAreTickedInTheirList()
{
    QVERIFY(show(FilterView));
    QAccessibleInterface *list = AccessibleTree::find(told("criteriaList"), QAccessible::List);
    QVERIFY(list);
    QCOMPARE(list->childCount(), 1);
    QAccessibleInterface *row = list->child(0);
    auto *item = m_user->find<LogDataSetFilterListItem>("criteriaList");
    QCOMPARE(AccessibleTree::name(row), item->listView()->model()->index(0, 0).data().toString());
    QVERIFY(!AccessibleTree::name(row).isEmpty());
    QVERIFY(row->state().checked);
    row->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    QVERIFY(!list->child(0)->state().checked);
    AccessibleEvents events;
    item->forceActiveFocus(Qt::TabFocusReason);
    QCOMPARE(events.latest(QAccessible::Focus), AccessibleTree::name(list->child(0)));
}

void tst_ScreenReader::plotIsDescribed()
{
    QCOMPARE(told("plotArea")->role(), QAccessible::Chart);
    m_user->find<CurveReadings>("readings")->clearCursor(); // the pointer may be over the plot
    QTRY_COMPARE(description("plotArea"),
                 QString("Left axis from 20 to 32: T in C; Right axis from 0 to 4500: "
                         "CO2 in ppm; X axis from 0 to 10: Obs"));
    QVERIFY(m_user->click("chip0"));
    QTRY_VERIFY(!description("plotArea").contains("T in C"));
    QCOMPARE(told("plotArea")->childCount(), 0);
}

void tst_ScreenReader::cursorOfThePlotIsRead()
{
    auto *readings = m_user->find<CurveReadings>("readings");
    AccessibleEvents events;
    readings->placeAtCursor(CurveReadings::A);
    readings->clearMarkers();
    readings->moveCursor(0);
    readings->moveCursor(1);
    const QString name = readings->index(0).data(CurveReadings::NameRole).toString();
    const QString value = readings->index(0).data(CurveReadings::ReadingRole).toString();
    QCOMPARE(name, QString("T"));
    QCOMPARE(description("plotArea").section("; ", 1, 1), "T " + value + " C");
    QCOMPARE(description("plotArea").section("; ", 0, 0), "Obs " + readings->cursorText());
    QCOMPARE(events.latest(QAccessible::DescriptionChanged), QString("Plot"));
    readings->clearCursor();
    QVERIFY(description("plotArea").startsWith("Left axis"));
}

void tst_ScreenReader::legendIsTicked()
{
    QAccessibleInterface *chip = told("chip0");
    QCOMPARE(chip->role(), QAccessible::CheckBox);
    QVERIFY(chip->state().checked);
    chip->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    QTRY_VERIFY(!chip->state().checked);
    QCOMPARE(AccessibleTree::name(chip), QString("T, hidden"));
    chip->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QTRY_VERIFY(chip->state().checked);
}

void tst_ScreenReader::ticksOfVariables()
{
    QAccessibleInterface *tick
        = AccessibleTree::find(told(), QAccessible::CheckBox, "RH on the left axis");
    QVERIFY(tick);
    QVERIFY(!tick->state().checked);
    tick->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    QTRY_VERIFY(tick->state().checked);
    QCOMPARE(m_user->curves(), 3);
}

void tst_ScreenReader::noticeIsAnAlert()
{
    const auto alert = [this] {
        const QList<QAccessibleInterface *> all = AccessibleTree::within(told());
        for (QAccessibleInterface *one : all) {
            if (one->role() == QAccessible::AlertMessage && !one->state().invisible)
                return AccessibleTree::name(one);
        }
        return QString();
    };
    QCOMPARE(alert(), QString());
    AccessibleEvents events;
    m_user->viewer()->open(m_log->directory() + "/none.log");
    QTRY_VERIFY(alert().contains("none.log"));
    QVERIFY(events.had(QAccessible::ObjectShow, alert()));
}

QTEST_MAIN(tst_ScreenReader)
#include "tst_ScreenReader.moc"

#include "Complaints.h"
#include "ViewerUser.h"
#include "table/LogTableView.h"
#include "table/LogTableViewItem.h"
#include "viewer/CellSelection.h"
#include "viewer/CurveReadings.h"

#include <QApplication>
#include <QClipboard>
#include <QFileDialog>
#include <QSettings>

namespace
{

/** A key where it does something, and what is seen before and after it. */
struct KeyRow {
    const char *place; ///< the keys that it is one of
    const char *key;
    const char *before; ///< keys to press; items to click after "click:", to focus after "focus:"
    const char *observed;
    const char *was;
    const char *is;
};

// clang-format off
const KeyRow keyRows[] = {
    {"windowKeys", "F1", "", "helpSheet.opened", "false", "true"},
    {"windowKeys", "F10", "", "viewMenu.opened", "false", "true"},
    {"windowKeys", "Ctrl+O", "", "dialog", "none", "Open a log: to open"},
    {"windowKeys", "F5", "", "times read again", "0", "1"},
    {"windowKeys", "Ctrl+S", "", "dialog", "none", "Save the setup: to save"},
    {"windowKeys", "Ctrl+Shift+O", "", "dialog", "none", "Apply a setup: to open"},
    {"windowKeys", "Ctrl+1", "Ctrl+2", "plot.visible", "false", "true"},
    {"windowKeys", "Ctrl+2", "", "table.visible", "false", "true"},
    {"windowKeys", "Ctrl+3", "", "builder.visible", "false", "true"},
    {"windowKeys", "F9", "", "dataSetChoice.visible", "true", "false"},
    {"windowKeys", "F11", "", "window", "a window", "full screen"},
    {"windowKeys", "Ctrl+Q", "", "window", "a window", "closed"},

    {"plotKeys", "Left", "", "view", "0..1 0..1 0..1", "-0.1..0.9 0..1 0..1"},
    {"plotKeys", "Right", "", "view", "0..1 0..1 0..1", "0.1..1.1 0..1 0..1"},
    {"plotKeys", "Up", "", "view", "0..1 0..1 0..1", "0..1 0.1..1.1 0.1..1.1"},
    {"plotKeys", "Down", "", "view", "0..1 0..1 0..1", "0..1 -0.1..0.9 -0.1..0.9"},
    {"plotKeys", "+", "", "view", "0..1 0..1 0..1", "0.1..0.9 0.1..0.9 0.1..0.9"},
    {"plotKeys", "-", "", "view", "0..1 0..1 0..1", "-0.125..1.125 -0.125..1.125 -0.125..1.125"},
    {"plotKeys", "X", "", "navigator.axes", "7", "4"},
    {"plotKeys", "X", "X", "navigator.axes", "4", "7"},
    {"plotKeys", "L", "", "navigator.axes", "7", "1"},
    {"plotKeys", "R", "", "navigator.axes", "7", "2"},
    {"plotKeys", "Home", "+", "view", "0.1..0.9 0.1..0.9 0.1..0.9", "0..1 0..1 0..1"},
    {"plotKeys", "Backspace", "Left +", "view", "0..0.8 0.1..0.9 0.1..0.9",
     "-0.1..0.9 0..1 0..1"},
    {"plotKeys", "Alt+Left", "Left +", "view", "0..0.8 0.1..0.9 0.1..0.9",
     "-0.1..0.9 0..1 0..1"},
    {"plotKeys", "Alt+Right", "Left Backspace", "view", "0..1 0..1 0..1", "-0.1..0.9 0..1 0..1"},
    {"plotKeys", "Z", "", "pad.zoomMode", "false", "true"},
    {"plotKeys", ",", "", "readings.cursorText", "10", "9"},
    {"plotKeys", ".", "", "readings.cursorText", "10", "11"},
    {"plotKeys", "Ctrl+Left", "", "readings.cursorText", "10", "9"},
    {"plotKeys", "Ctrl+Right", "", "readings.cursorText", "10", "11"},
    {"plotKeys", "A", "", "readings.textA", "", "10"},
    {"plotKeys", "B", "", "readings.textB", "", "10"},
    {"plotKeys", "Delete", "A", "readings.hasA", "true", "false"},
    {"plotKeys", "H", "click:chip0 Ctrl+1", "readings.hasHidden", "true", "false"},
    {"plotKeys", "T", "", "cells", "none", "row 10, column 5, 1 x 5"},
    {"plotKeys", "E", "", "excluded", "", "10"},
    {"plotKeys", "Escape", "", "readings.hasCursor", "true", "false"},
    {"plotKeys", "Ctrl+L", "", "limitsPopup.opened", "false", "true"},
    {"plotKeys", "Ctrl+E", "", "savePopup.opened", "false", "true"},

    {"tableKeys", "Up", "", "cells", "row 5, column 3, 1 x 1", "row 4, column 3, 1 x 1"},
    {"tableKeys", "Down", "", "cells", "row 5, column 3, 1 x 1", "row 6, column 3, 1 x 1"},
    {"tableKeys", "Left", "", "cells", "row 5, column 3, 1 x 1", "row 5, column 2, 1 x 1"},
    {"tableKeys", "Right", "", "cells", "row 5, column 3, 1 x 1", "row 5, column 4, 1 x 1"},
    {"tableKeys", "Shift+Down", "", "cells", "row 5, column 3, 1 x 1", "row 6, column 3, 2 x 1"},
    {"tableKeys", "PgUp", "PgDown PgDown", "pages down", "2", "1"},
    {"tableKeys", "PgDown", "", "pages down", "0", "1"},
    {"tableKeys", "Home", "", "cells", "row 5, column 3, 1 x 1", "row 5, column 1, 1 x 1"},
    {"tableKeys", "End", "", "cells", "row 5, column 3, 1 x 1", "row 5, column 5, 1 x 1"},
    {"tableKeys", "Ctrl+Home", "", "cells", "row 5, column 3, 1 x 1", "row 1, column 3, 1 x 1"},
    {"tableKeys", "Ctrl+End", "", "cells", "row 5, column 3, 1 x 1", "row 40, column 3, 1 x 1"},
    {"tableKeys", "Ctrl+A", "", "cells", "row 5, column 3, 1 x 1", "row 40, column 5, 40 x 5"},
    {"tableKeys", "Ctrl+C", "", "clipboard", "untouched", "25.5\n"},
    {"tableKeys", "Ctrl+Shift+C", "", "clipboard", "untouched", "Air T C\n25.5\n"},
    {"tableKeys", "Space", "", "excluded", "", "5"},
    {"tableKeys", "Return", "", "readings.textA", "", "5"},
    {"tableKeys", "Enter", "", "readings.textA", "", "5"},
    {"tableKeys", "W", "Right", "column", "narrow", "wide"},
    {"tableKeys", "W", "Right W", "column", "wide", "narrow"},
    {"tableKeys", "Ctrl+F", "", "findField.visible", "false", "true"},
    {"tableKeys", "F3", "", "findField.visible", "false", "true"},
    {"tableKeys", "F3", "Ctrl+F W E T Ctrl+2", "cells", "row 10, column 4, 1 x 1",
     "row 20, column 4, 1 x 1"},
    {"tableKeys", "Shift+F3", "Ctrl+F W E T Ctrl+2", "cells", "row 10, column 4, 1 x 1",
     "row 40, column 4, 1 x 1"},
    {"tableKeys", "Escape", "", "cells", "row 5, column 3, 1 x 1", "none"},

    {"otherKeys", "Space", "focus:helpButton", "helpSheet.opened", "false", "true"},
    {"otherKeys", "Space", "focus:chosenOnly", "chosenOnly.checked", "false", "true"},
    {"otherKeys", "Down", "focus:variables", "variables.currentIndex", "0", "1"},
    {"otherKeys", "Escape", "F1", "helpSheet.opened", "true", "false"},
    {"otherKeys", "Delete", "click:recentButton", "recentList.count", "1", "0"},
};

/** What controls do by themselves: what is told of it, and the test that does it. */
const struct {
    const char *told;
    const char *test;
} otherKeys[] = {
    {"To the next control", "tst_TabOrder::goesRoundEachView"},
    {"To the control before", "tst_TabOrder::goesRoundEachView"},
    {"Press a button, turn a switch, open a list", "the rows above"},
    {"Another tab, another row", "the rows above"},
    {"Close what has popped up, cancel reading, leave an error",
     "the rows above, tst_FailedOpening::goesBackToTheLogBefore"},
    {"Put the variable on the X, the left or the right axis", "tst_Choosing"},
    {"Tick a criterion, exclude a row", "tst_TouchDelegate, tst_TableHand::excludesByKey"},
    {"Remove a criterion, forget a recent log", "tst_FilterTab::removesByKey, the rows above"},
    {"Open a recent log, show a row that was not taken",
     "tst_Opening::opensRecentLogs, tst_TableJump::goesFromTroublesToTheRow"},
    {"Type the number of a new criterion", "tst_TabOrder::composesACriterionByKeys"},
};
// clang-format on

} // namespace

/** Each key of the viewer's own, pressed where it does something. */
class tst_Keys : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void doesWhatTheSheetTells_data();
    void doesWhatTheSheetTells();
    void leavesNoKeyOut_data();
    void leavesNoKeyOut();
    void leavesNoOtherKeyOut();

private:
    static QByteArray log();
    void takeKeyboard(const QByteArray &place);
    void press(const QString &keys);
    QString observed(const QString &what) const;
    /** An object of the window, or an item that some view made. */
    const QObject *named(const QString &name) const
    {
        const auto *object = m_user->find<QObject>(qPrintable(name));
        return object ? object : m_user->item(qPrintable(name));
    }
    QString view() const;
    QString cells() const;
    QString column() const;
    QString pagesDown() const;
    QString excluded() const;
    QString window() const;
    static QFileDialog *dialog();
    PlotNavigator *navigator() const { return m_user->find<PlotNavigator>("navigator"); }
    LogTableView *table() const { return m_user->find<LogTableViewItem>("table")->tableView(); }
    CellRange range() const { return CellSelection::of(table())->range(); }

    QScopedPointer<Complaints> m_complaints;
    QScopedPointer<QTemporaryDir> m_settings;
    QScopedPointer<TemporaryLog> m_log;
    QScopedPointer<ViewerUser> m_user;
    QScopedPointer<QSignalSpy> m_opened;
    PlotScales m_start;
};

/** T counts from 21.5; RH is "Wet" each tenth time, and once too long for its column. */
QByteArray tst_Keys::log()
{
    QByteArray text = "[Header]\nCreated\t2020-01-01\n[Data]\n"
                      "Sys\tSys\tAir\tAir\tGas\nObs\tTime\tT\tRH\tCO2\n\ths\tC\t%\tppm\n";
    for (int i = 1; i <= 40; ++i) {
        const QByteArray n = QByteArray::number(i);
        const QByteArray humidity = i == 1 ? QByteArray(200, 'x') : i % 10 ? "dry" : "Wet";
        text += n + "\t10:00:00\t" + QByteArray::number(20 + i) + ".5\t" + humidity + "\t40" + n
            + '\n';
    }
    return text;
}

void tst_Keys::initTestCase()
{
    QApplication::setStyle("fusion");
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
}

void tst_Keys::init()
{
    m_complaints.reset(new Complaints);
    m_settings.reset(new QTemporaryDir);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_settings->path());
    QGuiApplication::clipboard()->setText("untouched");
    m_log.reset(new TemporaryLog(log()));
    m_user.reset(new ViewerUser(*m_log));
    QVERIFY(m_user->isReady());
    m_opened.reset(new QSignalSpy(m_user->viewer(), SIGNAL(opened())));
    QVERIFY(m_user->settled());
    navigator()->setStepPause(0); // each key is a step to come back from
}

/** Nothing that is done here may make the engine complain. */
void tst_Keys::cleanup()
{
    if (QFileDialog *open = dialog())
        open->reject();
    m_opened.reset();
    m_user.reset();
    const QString text = m_complaints->text();
    m_complaints.reset();
    QCOMPARE(text, QString());
}

// What is seen

/** A property of an object of the window, or one of the words below. */
QString tst_Keys::observed(const QString &what) const
{
    const int dot = what.indexOf('.');
    if (dot > 0 && what.endsWith(".visible"))
        return m_user->isShown(qPrintable(what.left(dot))) ? "true" : "false";
    if (dot > 0)
        return named(what.left(dot))->property(qPrintable(what.mid(dot + 1))).toString();
    if (what == "view")
        return view();
    if (what == "cells")
        return cells();
    if (what == "column")
        return column();
    if (what == "pages down")
        return pagesDown();
    if (what == "excluded")
        return excluded();
    if (what == "window")
        return window();
    if (what == "clipboard")
        return QGuiApplication::clipboard()->text();
    if (what == "times read again")
        return QString::number(m_opened->count());
    if (what == "dialog")
        return !dialog() ? QString("none")
                         : dialog()->windowTitle()
                + (dialog()->acceptMode() == QFileDialog::AcceptSave ? ": to save" : ": to open");
    return "no such observation";
}

/** X, the left and the right axis by parts of what they showed at first. */
QString tst_Keys::view() const
{
    QStringList axes;
    for (int axis : {QwtPlot::xBottom, QwtPlot::yLeft, QwtPlot::yRight}) {
        const AxisRange now = navigator()->scales()[axis];
        const AxisRange &start = m_start[axis];
        const auto part = [&start](double value) {
            return QString::number(qRound(1000 * (value - start.min) / start.span()) / 1000.0);
        };
        axes << part(now.min) + ".." + part(now.max);
    }
    return axes.join(' ');
}

QString tst_Keys::cells() const
{
    if (!m_user->item("table")) // which is made when it is entered
        return "none";
    const CellRange selected = range();
    if (!selected.isValid())
        return "none";
    return QString("row %1, column %2, %3 x %4")
        .arg(selected.row + 1)
        .arg(selected.column)
        .arg(selected.rowCount())
        .arg(selected.right() - selected.left() + 1);
}

QString tst_Keys::column() const
{
    return table()->columnWidth(range().column) > table()->viewport()->width() ? "wide" : "narrow";
}

QString tst_Keys::pagesDown() const
{
    const double rows = double(table()->viewport()->height()) / table()->rowHeight(0);
    return QString::number(qRound((range().row - 4) / rows));
}

QString tst_Keys::excluded() const
{
    QStringList rows;
    const LogTableViewModel *model = m_user->source()->tableModel();
    for (int row = 0; row < model->rowCount(); ++row) {
        if (model->rowExcluded(row))
            rows << QString::number(row + 1);
    }
    return rows.join(' ');
}

QString tst_Keys::window() const
{
    if (!m_user->window()->isVisible())
        return "closed";
    return m_user->window()->visibility() == QWindow::FullScreen ? "full screen" : "a window";
}

QFileDialog *tst_Keys::dialog()
{
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (QWidget *widget : widgets) {
        auto *candidate = qobject_cast<QFileDialog *>(widget);
        if (candidate && candidate->isVisible())
            return candidate;
    }
    return nullptr;
}

// What is done

/** Gives the plot or the table the keyboard, as a click does: on the tenth or the fifth row. */
void tst_Keys::takeKeyboard(const QByteArray &place)
{
    if (place == "plotKeys") {
        const QPointF at(navigator()->toPixelX(10), navigator()->canvas().center().y());
        QVERIFY(m_user->click(m_user->plot(), at));
        QTRY_COMPARE(observed("readings.cursorText"), QString("10"));
    } else if (place == "tableKeys") {
        QVERIFY(m_user->clickTab("viewTabs", 1));
        QVERIFY(m_user->clickCell(m_user->item("table"), table(), 4, 3));
        QTRY_COMPARE(cells(), QString("row 5, column 3, 1 x 1"));
    }
}

void tst_Keys::press(const QString &keys)
{
    const QStringList steps = keys.split(' ', Qt::SkipEmptyParts);
    for (const QString &step : steps) {
        if (step.startsWith("click:")) {
            QVERIFY2(m_user->click(qPrintable(step.mid(6))), qPrintable(step));
            continue;
        }
        if (step.startsWith("focus:")) {
            m_user->item(qPrintable(step.mid(6)))->forceActiveFocus();
            continue;
        }
        const int key = QKeySequence(step)[0];
        QVERIFY2(key != 0 && key != Qt::Key_unknown, qPrintable(step));
        QTest::keyClick(m_user->window(), Qt::Key(key & ~Qt::KeyboardModifierMask),
                        Qt::KeyboardModifiers(key & Qt::KeyboardModifierMask));
    }
}

void tst_Keys::doesWhatTheSheetTells_data()
{
    QTest::addColumn<QByteArray>("place");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("what");
    QTest::addColumn<QString>("was");
    QTest::addColumn<QString>("is");
    for (const KeyRow &row : keyRows) {
        const QByteArray before(row.before);
        const QByteArray name = QByteArray(row.place) + ": " + row.key;
        QTest::newRow(before.isEmpty() ? name : name + " after " + before)
            << QByteArray(row.place) << QString(row.key) << QString(row.before)
            << QString(row.observed) << QString(row.was) << QString(row.is);
    }
}

void tst_Keys::doesWhatTheSheetTells()
{
    QFETCH(QByteArray, place);
    QFETCH(QString, key);
    QFETCH(QString, before);
    QFETCH(QString, what);
    QFETCH(QString, was);
    QFETCH(QString, is);
    m_start = navigator()->scales();
    takeKeyboard(place);
    press(before);
    QVERIFY(!QTest::currentTestFailed());
    QTRY_COMPARE(observed(what), was);
    press(key);
    QTRY_COMPARE(observed(what), is);
}

void tst_Keys::leavesNoKeyOut_data()
{
    QTest::addColumn<QByteArray>("place");
    QTest::addColumn<int>("fewest");
    QTest::newRow("everywhere") << QByteArray("windowKeys") << 10;
    QTest::newRow("plot") << QByteArray("plotKeys") << 20;
    QTest::newRow("table") << QByteArray("tableKeys") << 20;
}

/** A key that comes needs a row above. */
void tst_Keys::leavesNoKeyOut()
{
    QFETCH(QByteArray, place);
    QFETCH(int, fewest);
    takeKeyboard(place); // the table's are made with the table
    QStringList pressed;
    for (const KeyRow &row : keyRows) {
        if (place == row.place)
            pressed << QKeySequence(QString(row.key)).toString();
    }
    const QVariantList bindings = m_user->find<QObject>(place)->property("bindings").toList();
    QVERIFY(bindings.size() >= fewest);
    QStringList missing;
    for (const QVariant &binding : bindings) {
        const QVariantMap map = binding.toMap();
        const int key = map.value("key").toInt() | map.value("modifiers").toInt();
        const QKeySequence sequence
            = key ? QKeySequence(key) : QKeySequence(map.value("sequence").toString());
        if (!pressed.contains(sequence.toString()))
            missing << sequence.toString();
    }
    QCOMPARE(missing.join(", "), QString());
}

void tst_Keys::leavesNoOtherKeyOut()
{
    QStringList tested;
    for (const auto &key : otherKeys)
        tested << key.told;
    QStringList told;
    for (const char *list : {"moving", "lists"}) {
        const QVariantList keys = m_user->find<QObject>("otherKeys")->property(list).toList();
        for (const QVariant &key : keys)
            told << key.toMap().value("text").toString();
    }
    QCOMPARE(told.join('\n'), tested.join('\n'));
}

QTEST_MAIN(tst_Keys)
#include "tst_Keys.moc"

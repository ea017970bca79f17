#include "filters/LogDataFilterBuilderItem.h"

#include "declarative/DeclarativeTypes.h"
#include "declarative/HostWindow.h"
#include "support/SmallLog.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>
#include <QScrollBar>

/** The filter builder in a window, in the hands of a user and made by a script. */
class tst_LogDataFilterBuilderItemInWindow : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void buttonsAdd();
    void buttonsClear();
    void touchAsksForAnEntryOnce();
    void clickAsksForAnEntryOnce();
    void eachVisitAsksAgain();
    void writingAValueAsksForNothing();
    void keysStillReachTheField();
    void choosingAVariablePlotsNothing();
    void quickTapOnAVariablePlotsNothing();
    void keysInTheListPlotNothing();
    void variablesHaveNoCheckBoxes();
    void longListsHaveAScrollBar();
    void scriptClearsCriteria();

private:
    QPoint centerOf(const QWidget *widget) const;
    QStringList criteria() const;
    QList<QPushButton *> buttons() const
    {
        return m_item->container()->findChildren<QPushButton *>();
    }
    QLineEdit *valueEdit() const { return m_item->container()->findChild<QLineEdit *>(); }
    QComboBox *variableBox() const { return m_item->container()->findChild<QComboBox *>(); }
    void touch(const QPoint &position);
    QPoint openAndFind(const char *variable);

    QScopedPointer<HostWindow> m_window;
    QScopedPointer<SmallLog> m_log;
    LogDataFilterBuilderItem *m_item;
    QTouchDevice *m_touch;
};

void tst_LogDataFilterBuilderItemInWindow::initTestCase()
{
    QApplication::setStyle(QLatin1String("fusion"));
    m_touch = QTest::createTouchDevice();
    registerDeclarativeType<LogDataFilterBuilderItem>("DataLog", 1, 0, "LogDataFilterBuilderItem");
    registerDeclarativeType<LogDataSourceItem>("DataLog", 1, 0, "LogDataSourceItem");
}

void tst_LogDataFilterBuilderItemInWindow::init()
{
    m_log.reset(new SmallLog("Obs Time Tleaf CO2|1 0 20 400|2 1 25 401"));
    m_window.reset(new HostWindow);
    m_window->resize(600, 300);
    m_item = new LogDataFilterBuilderItem;
    m_item->setParent(m_window->contentItem());
    m_item->setParentItem(m_window->contentItem());
    m_item->setSize(QSizeF(600, 60));
    m_item->setDataSource(m_log->source.data());
    QVERIFY(m_window->open());
    m_window->picture();
}

void tst_LogDataFilterBuilderItemInWindow::cleanup()
{
    m_window.reset();
    m_log.reset();
}

QPoint tst_LogDataFilterBuilderItemInWindow::centerOf(const QWidget *widget) const
{
    return widget->mapTo(m_item->container(), widget->rect().center());
}

QStringList tst_LogDataFilterBuilderItemInWindow::criteria() const
{
    QStringList texts;
    const QAbstractItemModel *model = m_log->source->activeFilterModel();
    for (int row = 0; row < model->rowCount(); ++row)
        texts << model->index(row, 0).data().toString();
    return texts;
}

void tst_LogDataFilterBuilderItemInWindow::touch(const QPoint &position)
{
    QTest::touchEvent(m_window.data(), m_touch).press(0, position, m_window.data());
    QTest::touchEvent(m_window.data(), m_touch).release(0, position, m_window.data());
}

/** Opens the list of variables and returns where one of them shows in the window. */
QPoint tst_LogDataFilterBuilderItemInWindow::openAndFind(const char *variable)
{
    m_window->click(centerOf(variableBox()));
    m_window->picture();
    const QAbstractItemView *view = variableBox()->view();
    const int row = variableBox()->findText(QLatin1String(variable));
    const QPoint inside = view->visualRect(view->model()->index(row, 0)).center();
    const QWidget *popup = view->window();
    const QPointF inScene = popup->graphicsProxyWidget()->mapToScene(
        view->viewport()->mapTo(const_cast<QWidget *>(popup), inside));
    return inScene.toPoint();
}

void tst_LogDataFilterBuilderItemInWindow::buttonsAdd()
{
    m_item->setValue(25);
    m_window->click(centerOf(buttons().first()));
    QCOMPARE(criteria(), QStringList() << QLatin1String("Obs>25"));
    touch(centerOf(buttons().first()));
    QTRY_COMPARE(criteria().size(), 2);
}

void tst_LogDataFilterBuilderItemInWindow::buttonsClear()
{
    m_item->setValue(25);
    m_window->click(centerOf(buttons().first()));
    QSignalSpy cleared(m_item, SIGNAL(clearFilters()));
    m_window->click(centerOf(buttons().last()));
    QCOMPARE(cleared.count(), 1);
    QCOMPARE(criteria().size(), 1);
}

void tst_LogDataFilterBuilderItemInWindow::touchAsksForAnEntryOnce()
{
    QSignalSpy editing(m_item, SIGNAL(startEditing()));
    touch(centerOf(valueEdit()));
    QVERIFY(waitForCount(editing, 1));
    m_window->picture();
    QCOMPARE(editing.count(), 1);
}

void tst_LogDataFilterBuilderItemInWindow::clickAsksForAnEntryOnce()
{
    QSignalSpy editing(m_item, SIGNAL(startEditing()));
    m_window->click(centerOf(valueEdit()));
    m_window->picture();
    QCOMPARE(editing.count(), 1);
}

void tst_LogDataFilterBuilderItemInWindow::eachVisitAsksAgain()
{
    QQuickItem entry;
    entry.setParentItem(m_window->contentItem());
    QSignalSpy editing(m_item, SIGNAL(startEditing()));
    m_window->click(centerOf(valueEdit()));
    entry.forceActiveFocus();
    m_item->setValue(7);
    m_window->picture();
    QCOMPARE(editing.count(), 1);
    m_window->click(centerOf(valueEdit()));
    m_window->picture();
    QCOMPARE(editing.count(), 2);
}

void tst_LogDataFilterBuilderItemInWindow::writingAValueAsksForNothing()
{
    QSignalSpy editing(m_item, SIGNAL(startEditing()));
    m_item->setValue(7);
    m_window->picture();
    QCOMPARE(valueEdit()->text(), QString::fromLatin1("7"));
    QCOMPARE(editing.count(), 0);
}

void tst_LogDataFilterBuilderItemInWindow::keysStillReachTheField()
{
    m_window->click(centerOf(valueEdit()));
    for (const char key : QByteArray("25.5"))
        QTest::keyClick(m_window.data(), key);
    m_window->click(centerOf(buttons().first()));
    QCOMPARE(criteria(), QStringList() << QLatin1String("Obs>25.5"));
}

void tst_LogDataFilterBuilderItemInWindow::choosingAVariablePlotsNothing()
{
    const QPoint row = openAndFind("Tleaf");
    // Shortly after it opens, a list takes no choice yet; a tap beside it would close it.
    QTRY_VERIFY(!variableBox()->view()->isVisible() || (m_window->click(row), false));
    QCOMPARE(variableBox()->currentText(), QString::fromLatin1("Tleaf"));
    QCOMPARE(m_log->source->checkedItemList(0), QList<int>());
}

void tst_LogDataFilterBuilderItemInWindow::quickTapOnAVariablePlotsNothing()
{
    m_window->click(openAndFind("Tleaf"));
    m_window->picture();
    QCOMPARE(m_log->source->checkedItemList(0), QList<int>());
}

void tst_LogDataFilterBuilderItemInWindow::keysInTheListPlotNothing()
{
    openAndFind("Obs");
    QVERIFY(variableBox()->view()->isVisible());
    QTest::keyClick(variableBox()->view(), Qt::Key_Down);
    QTest::keyClick(variableBox()->view(), Qt::Key_Space);
    QTest::keyClick(variableBox()->view(), Qt::Key_Return);
    QCOMPARE(variableBox()->currentText(), QString::fromLatin1("Time"));
    QCOMPARE(m_log->source->checkedItemList(0), QList<int>());
}

void tst_LogDataFilterBuilderItemInWindow::variablesHaveNoCheckBoxes()
{
    openAndFind("Obs");
    const QImage before = m_window->picture();
    m_log->source->updateVariableSelection(0, 2, true);
    QCOMPARE(m_window->picture(), before);
}

void tst_LogDataFilterBuilderItemInWindow::longListsHaveAScrollBar()
{
    QByteArray names = "V0";
    for (int i = 1; i < 100; ++i)
        names += " V" + QByteArray::number(i);
    m_log->load(names);
    openAndFind("V0");
    QVERIFY(variableBox()->view()->verticalScrollBar()->isVisible());
    QVERIFY(variableBox()->view()->window()->height() < 300);
}

void tst_LogDataFilterBuilderItemInWindow::scriptClearsCriteria()
{
    QQmlEngine engine;
    engine.rootContext()->setContextProperty(QLatin1String("source"), m_log->source.data());
    QQmlComponent component(&engine);
    component.setData("import DataLog 1.0\n"
                      "LogDataFilterBuilderItem {\n"
                      "  property int asked: 0\n"
                      "  width: 600; height: 60\n"
                      "  dataSource: source\n"
                      "  value: 12\n"
                      "  onClearFilters: source.clearCriteria()\n"
                      "  onStartEditing: ++asked\n"
                      "}",
                      QUrl());
    const QScopedPointer<QObject> made(component.create());
    QVERIFY2(made, qPrintable(component.errorString()));
    m_item = qobject_cast<LogDataFilterBuilderItem *>(made.data());
    QCOMPARE(m_item->container()->size(), QSize(600, 60));
    buttons().first()->click();
    QCOMPARE(criteria(), QStringList() << QLatin1String("Obs>12"));
    buttons().last()->click();
    QCOMPARE(criteria(), QStringList());
    QCOMPARE(made->property("asked").toInt(), 0);
}

QTEST_MAIN(tst_LogDataFilterBuilderItemInWindow)
#include "tst_LogDataFilterBuilderItemInWindow.moc"

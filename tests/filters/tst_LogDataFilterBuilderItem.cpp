#include "filters/LogDataFilterBuilderItem.h"
#include "support/MessageCapture.h"
#include "support/SmallLog.h"
#include "support/TestCompat.h"

#include <QApplication>
#include <QBoxLayout>
#include <QComboBox>
#include <QFocusEvent>
#include <QGraphicsProxyWidget>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

/** A source that has the slot that others lack. */
class ClearingSource : public LogDataSourceItem
{
    Q_OBJECT

public:
    ClearingSource()
        : cleared(0)
    {
    }
    int cleared;

public slots:
    void clearFilters() { ++cleared; }
};

class tst_LogDataFilterBuilderItem : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void rowOfWidgets();
    void listsOperators();
    void listsVariablesOfTheHorizontalAxis();
    void addsACriterion_data();
    void addsACriterion();
    void addsTheSameAgain();
    void addsWhatTheSourceBuildsItself_data();
    void addsWhatTheSourceBuildsItself();
    void refusesWhatIsNoNumber_data();
    void refusesWhatIsNoNumber();
    void addsWithoutVariables();
    void clearOnlyEmits();
    void clearReachesASlotOfThatName();
    void readsTheValue_data();
    void readsTheValue();
    void writesTheValue();
    void writingKeepsFocusAway();
    void focusAsksForAnEntry();
    void otherEventsPass();
    void settersEmitNothing();
    void namesAreForScreenReaders();
    void followsItsSize();
    void longNamesLeaveRoomForTheButtons();
    void withoutASource();
    void sourceMayGoFirst();
    void sourceIsReplacedByNone();
    void followsANewLog();
    void logStaysClean();

private:
    QComboBox *variableBox() const { return widget<QComboBox>(0); }
    QComboBox *operatorBox() const { return widget<QComboBox>(1); }
    QLineEdit *valueEdit() const { return widget<QLineEdit>(2); }
    QPushButton *addButton() const { return widget<QPushButton>(3); }
    QPushButton *clearButton() const { return widget<QPushButton>(4); }
    template <class Widget> Widget *widget(int index) const
    {
        return qobject_cast<Widget *>(m_item->container()->layout()->itemAt(index)->widget());
    }
    void compose(const char *variable, int filterOperator, const char *value);
    QStringList criteria() const;

    QScopedPointer<SmallLog> m_log;
    QScopedPointer<LogDataFilterBuilderItem> m_item;
};

void tst_LogDataFilterBuilderItem::init()
{
    m_log.reset(new SmallLog("Obs Time Tleaf CO2|1 0 20 400|2 1 25 401"));
    m_item.reset(new LogDataFilterBuilderItem);
    m_item->setDataSource(m_log->source.data());
}

void tst_LogDataFilterBuilderItem::cleanup()
{
    m_item.reset();
    m_log.reset();
}

void tst_LogDataFilterBuilderItem::compose(const char *variable, int filterOperator,
                                           const char *value)
{
    variableBox()->setCurrentIndex(variableBox()->findText(QLatin1String(variable)));
    operatorBox()->setCurrentIndex(filterOperator);
    valueEdit()->setText(QString::fromUtf8(value));
}

QStringList tst_LogDataFilterBuilderItem::criteria() const
{
    QStringList texts;
    const QAbstractItemModel *model = m_log->source->activeFilterModel();
    for (int row = 0; row < model->rowCount(); ++row)
        texts << model->index(row, 0).data().toString();
    return texts;
}

void tst_LogDataFilterBuilderItem::rowOfWidgets()
{
    QVERIFY(variableBox() && operatorBox() && valueEdit());
    QCOMPARE(addButton()->text(), QString::fromLatin1("Add Criteria"));
    QCOMPARE(clearButton()->text(), QString::fromLatin1("Clear Criteria"));
    QCOMPARE(valueEdit()->focusPolicy(), Qt::ClickFocus);
    const QBoxLayout *layout = qobject_cast<QBoxLayout *>(m_item->container()->layout());
    QVERIFY(layout);
    QCOMPARE(layout->direction(), QBoxLayout::LeftToRight);
    QCOMPARE(layout->count(), 5);
    for (int i = 0; i < 5; ++i)
        QCOMPARE(layout->stretch(i), 0);
    for (int i = 0; i < 5; ++i)
        QCOMPARE(int(layout->itemAt(i)->alignment()), 0);
}

void tst_LogDataFilterBuilderItem::listsOperators()
{
    QStringList texts;
    for (int i = 0; i < operatorBox()->count(); ++i)
        texts << operatorBox()->itemText(i);
    QCOMPARE(texts.join(QLatin1String(" ")), QString::fromLatin1("> >= < <= == !="));
    QCOMPARE(operatorBox()->currentIndex(), 0);
}

void tst_LogDataFilterBuilderItem::listsVariablesOfTheHorizontalAxis()
{
    QVERIFY(variableBox()->model() == m_log->source->xVariableModel());
    QCOMPARE(variableBox()->count(), 4);
    QCOMPARE(variableBox()->currentText(), QString::fromLatin1("Obs"));
}

void tst_LogDataFilterBuilderItem::addsACriterion_data()
{
    QTest::addColumn<QByteArray>("variable");
    QTest::addColumn<int>("filterOperator");
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QString>("criterion");
    QTest::newRow("greater") << QByteArray("CO2") << 0 << QByteArray("400") << "CO2>400";
    QTest::newRow("at least") << QByteArray("Tleaf") << 1 << QByteArray("12.5") << "Tleaf>=12.5";
    QTest::newRow("less") << QByteArray("Tleaf") << 2 << QByteArray("-3") << "Tleaf<-3";
    QTest::newRow("at most") << QByteArray("Tleaf") << 3 << QByteArray("1e3") << "Tleaf<=1000";
    QTest::newRow("equal") << QByteArray("Obs") << 4 << QByteArray("2") << "Obs=2";
    QTest::newRow("not equal") << QByteArray("Obs") << 5 << QByteArray("2") << "Obs!=2";
    QTest::newRow("blanks around") << QByteArray("Obs") << 0 << QByteArray(" 2 ") << "Obs>2";
}

void tst_LogDataFilterBuilderItem::addsACriterion()
{
    QFETCH(QByteArray, variable);
    QFETCH(int, filterOperator);
    QFETCH(QByteArray, value);
    QFETCH(QString, criterion);
    compose(variable, filterOperator, value);
    QSignalSpy updated(m_log->source.data(), SIGNAL(criteriaUpdated()));
    addButton()->click();
    QCOMPARE(updated.count(), 1);
    QCOMPARE(criteria(), QStringList() << criterion);
    const QModelIndex row = m_log->source->activeFilterModel()->index(0, 0);
    const LogDataSetFilter *filter = row.data(Qt::UserRole + 1).value<LogDataSetFilter *>();
    QCOMPARE(filter->filterOperator(), filterOperator);
    QVERIFY(!filter->parent());
    // What was composed stays, to be changed a little for the next one.
    QCOMPARE(variableBox()->currentText(), QString::fromLatin1(variable));
    QCOMPARE(operatorBox()->currentIndex(), filterOperator);
    QCOMPARE(valueEdit()->text(), QString::fromLatin1(value));
}

void tst_LogDataFilterBuilderItem::addsTheSameAgain()
{
    compose("CO2", 0, "400");
    addButton()->click();
    addButton()->click();
    QCOMPARE(criteria(), QStringList() << QLatin1String("CO2>400") << QLatin1String("CO2>400"));
}

void tst_LogDataFilterBuilderItem::addsWhatTheSourceBuildsItself_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::newRow("rounded to a float") << QByteArray("16777217");
    QTest::newRow("beyond a float") << QByteArray("1e39");
    QTest::newRow("far below") << QByteArray("-1e300");
    QTest::newRow("too small for a float") << QByteArray("1e-60");
    QTest::newRow("infinite") << QByteArray("inf");
}

void tst_LogDataFilterBuilderItem::addsWhatTheSourceBuildsItself()
{
    QFETCH(QByteArray, value);
    compose("CO2", 0, value);
    addButton()->click();
    m_log->source->buildFilter(3, 0, QString::fromLatin1(value));
    QCOMPARE(criteria().size(), 2);
    QCOMPARE(criteria().at(0), criteria().at(1));
    float values[2];
    for (int row = 0; row < 2; ++row) {
        const QVariant filter
            = m_log->source->activeFilterModel()->index(row, 0).data(Qt::UserRole + 1);
        values[row] = filter.value<LogDataSetFilter *>()->value();
    }
    QVERIFY(values[0] == values[1]);
}

void tst_LogDataFilterBuilderItem::refusesWhatIsNoNumber_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::newRow("a comma") << QByteArray("12,5");
    QTest::newRow("nothing") << QByteArray("");
    QTest::newRow("letters") << QByteArray("abc");
    QTest::newRow("a unit") << QByteArray("12 ppm");
}

void tst_LogDataFilterBuilderItem::refusesWhatIsNoNumber()
{
    QFETCH(QByteArray, value);
    compose("CO2", 0, value);
    QTest::ignoreMessage(QtDebugMsg, "Failed to convert value from filter value line edit.");
    addButton()->click();
    QCOMPARE(criteria(), QStringList());
}

void tst_LogDataFilterBuilderItem::addsWithoutVariables()
{
    LogDataSourceItem empty;
    m_item->setDataSource(&empty);
    compose("", 1, "2");
    addButton()->click();
    QCOMPARE(empty.activeFilterModel()->item(0)->text(), QString::fromLatin1(">=2"));
    m_item->setDataSource(nullptr);
}

void tst_LogDataFilterBuilderItem::clearOnlyEmits()
{
    compose("CO2", 0, "400");
    addButton()->click();
    QSignalSpy cleared(m_item.data(), SIGNAL(clearFilters()));
    clearButton()->click();
    QCOMPARE(cleared.count(), 1);
    QCOMPARE(criteria(), QStringList() << QLatin1String("CO2>400"));
}

void tst_LogDataFilterBuilderItem::clearReachesASlotOfThatName()
{
    ClearingSource source;
    m_item->setDataSource(&source);
    m_item->setDataSource(&source);
    clearButton()->click();
    QCOMPARE(source.cleared, 1);
    m_item->setDataSource(m_log->source.data());
    clearButton()->click();
    QCOMPARE(source.cleared, 1);
}

void tst_LogDataFilterBuilderItem::readsTheValue_data()
{
    QTest::addColumn<QByteArray>("written");
    QTest::addColumn<int>("value");
    QTest::newRow("an integer") << QByteArray("42") << 42;
    QTest::newRow("below zero") << QByteArray("-7") << -7;
    QTest::newRow("a fraction") << QByteArray("12.5") << 0;
    QTest::newRow("nothing") << QByteArray("") << 0;
    QTest::newRow("letters") << QByteArray("abc") << 0;
    QTest::newRow("octal is decimal") << QByteArray("010") << 10;
    QTest::newRow("too large") << QByteArray("99999999999") << 0;
}

void tst_LogDataFilterBuilderItem::readsTheValue()
{
    QFETCH(QByteArray, written);
    QFETCH(int, value);
    valueEdit()->setText(QLatin1String(written));
    QCOMPARE(m_item->value(), value);
    QCOMPARE(m_item->property("value").toInt(), value);
}

void tst_LogDataFilterBuilderItem::writesTheValue()
{
    m_item->setValue(7);
    QCOMPARE(valueEdit()->text(), QString::fromLatin1("7"));
    m_item->setProperty("value", -12);
    QCOMPARE(valueEdit()->text(), QString::fromLatin1("-12"));
    compose("CO2", 0, "1");
    m_item->setValue(401);
    addButton()->click();
    QCOMPARE(criteria(), QStringList() << QLatin1String("CO2>401"));
}

void tst_LogDataFilterBuilderItem::writingKeepsFocusAway()
{
    QSignalSpy editing(m_item.data(), SIGNAL(startEditing()));
    m_item->setValue(7);
    QCOMPARE(editing.count(), 0);
    QVERIFY(!valueEdit()->hasFocus());
    QCOMPARE(valueEdit()->focusPolicy(), Qt::ClickFocus);
}

void tst_LogDataFilterBuilderItem::focusAsksForAnEntry()
{
    QSignalSpy editing(m_item.data(), SIGNAL(startEditing()));
    QFocusEvent in(QEvent::FocusIn, Qt::MouseFocusReason);
    QVERIFY(m_item->eventFilter(valueEdit(), &in));
    QCOMPARE(editing.count(), 1);
    QApplication::sendEvent(valueEdit(), &in);
    QCOMPARE(editing.count(), 2);
}

void tst_LogDataFilterBuilderItem::otherEventsPass()
{
    QSignalSpy editing(m_item.data(), SIGNAL(startEditing()));
    QFocusEvent in(QEvent::FocusIn);
    QFocusEvent out(QEvent::FocusOut);
    QVERIFY(!m_item->eventFilter(variableBox(), &in));
    QVERIFY(!m_item->eventFilter(valueEdit(), &out));
    QVERIFY(!m_item->eventFilter(nullptr, &in));
    QTest::keyClicks(valueEdit(), QLatin1String("12"));
    QCOMPARE(valueEdit()->text(), QString::fromLatin1("12"));
    QCOMPARE(editing.count(), 0);
}

void tst_LogDataFilterBuilderItem::settersEmitNothing()
{
    QSignalSpy source(m_item.data(), SIGNAL(dataSourceChanged()));
    QSignalSpy value(m_item.data(), SIGNAL(valueChanged()));
    m_item->setDataSource(nullptr);
    m_item->setDataSource(m_log->source.data());
    m_item->setValue(3);
    valueEdit()->setText(QLatin1String("4"));
    QCOMPARE(source.count() + value.count(), 0);
    QVERIFY(m_item->dataSource() == m_log->source.data());
}

/** Labels that nobody sees name what shows just a value. */
void tst_LogDataFilterBuilderItem::namesAreForScreenReaders()
{
    QHash<const QWidget *, QString> names;
    foreach (const QLabel *label, m_item->container()->findChildren<QLabel *>()) {
        QVERIFY(label->isHidden());
        names.insert(label->buddy(), label->text());
    }
    QCOMPARE(names.size(), 3);
    QCOMPARE(names.value(variableBox()), QString(QLatin1String("Variable")));
    QCOMPARE(names.value(operatorBox()), QString(QLatin1String("Comparison")));
    QCOMPARE(names.value(valueEdit()), QString(QLatin1String("Value")));
}

void tst_LogDataFilterBuilderItem::followsItsSize()
{
    m_item->setWidth(612);
    m_item->setHeight(80);
    QCOMPARE(m_item->container()->size(), QSize(612, 80));
    QCOMPARE(m_item->container()->graphicsProxyWidget()->pos(), QPointF(0, 0));
}

void tst_LogDataFilterBuilderItem::longNamesLeaveRoomForTheButtons()
{
    const SmallLog log(QByteArray(300, 'W') + " Time|1 0");
    LogDataFilterBuilderItem item;
    item.setDataSource(log.source.data());
    item.setWidth(600);
    item.setHeight(60);
    // With another style sizes are asked for anew.
    QEvent restyled(QEvent::StyleChange);
    QApplication::sendEvent(item.container()->findChild<QComboBox *>(), &restyled);
    item.setWidth(610);
    QCOMPARE(item.container()->size(), QSize(610, 60));
    item.container()->layout()->activate();
    const QPushButton *last = item.container()->findChildren<QPushButton *>().last();
    QVERIFY(item.container()->rect().contains(last->geometry()));
}

void tst_LogDataFilterBuilderItem::withoutASource()
{
    LogDataFilterBuilderItem item;
    QVERIFY(!item.dataSource());
    item.setDataSource(nullptr);
    item.setValue(3);
    QSignalSpy cleared(&item, SIGNAL(clearFilters()));
    foreach (QPushButton *button, item.container()->findChildren<QPushButton *>())
        button->click();
    QCOMPARE(cleared.count(), 1);
}

void tst_LogDataFilterBuilderItem::sourceMayGoFirst()
{
    m_log->source.reset();
    QVERIFY(!m_item->dataSource());
    QCOMPARE(variableBox()->count(), 0);
    m_item->setValue(3);
    addButton()->click();
    clearButton()->click();
    SmallLog another("A B|1 2");
    m_item->setDataSource(another.source.data());
    QCOMPARE(variableBox()->currentText(), QString::fromLatin1("A"));
    addButton()->click();
    QCOMPARE(another.source->activeFilterModel()->rowCount(), 1);
    m_item->setDataSource(nullptr);
}

void tst_LogDataFilterBuilderItem::sourceIsReplacedByNone()
{
    m_item->setDataSource(nullptr);
    QCOMPARE(variableBox()->count(), 0);
    m_item->setValue(3);
    addButton()->click();
    QCOMPARE(criteria(), QStringList());
}

void tst_LogDataFilterBuilderItem::followsANewLog()
{
    compose("CO2", 0, "1");
    m_log->load("Obs Time Lux|1 0 1");
    QCOMPARE(variableBox()->count(), 3);
    QCOMPARE(variableBox()->currentText(), QString::fromLatin1("Obs"));
    addButton()->click();
    QCOMPARE(criteria(), QStringList() << QLatin1String("Obs>1"));
}

void tst_LogDataFilterBuilderItem::logStaysClean()
{
    const MessageCapture capture;
    LogDataFilterBuilderItem item;
    item.setDataSource(m_log->source.data());
    item.setDataSource(m_log->source.data());
    item.setDataSource(nullptr);
    foreach (const QString &message, capture.messages())
        QVERIFY2(!message.contains(QLatin1String("connect")), qPrintable(message));
}

QTEST_MAIN(tst_LogDataFilterBuilderItem)
#include "tst_LogDataFilterBuilderItem.moc"

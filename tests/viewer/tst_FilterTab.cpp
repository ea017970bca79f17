#include "Complaints.h"
#include "ViewerUser.h"
#include "filters/LogDataFilterBuilderItem.h"
#include "lists/LogDataSetFilterListItem.h"

#include <QApplication>
#include <QComboBox>
#include <QGraphicsProxyWidget>
#include <QLayout>
#include <QLineEdit>
#include <QListView>

namespace
{

enum View { PlotView, TableView, FilterView };
enum Part { VariableBox, OperatorBox, ValueField, AddButton, ClearButton };

} // namespace

/** The viewer's criteria, used with a mouse, keys and a finger. */
class tst_FilterTab : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void addsACriterion();
    void addsACriterionByTouch();
    void addsACriterionByKeys();
    void typesANumberAnywhereInTheRow();
    void setsAValueForLater();
    void asksAgain();
    void cancelsAnEntry();
    void editsByKeysOfThePad();
    void refusesWhatIsNoNumber_data();
    void refusesWhatIsNoNumber();
    void suggestsThePlottedVariable();
    void listsTheVariablesOfTheDataSet();
    void ticksCriteria();
    void removesOneCriterion();
    void removesOneCriterionByTouch();
    void removesOnlyByAWholeTap();
    void removesByKey();
    void clearsCriteria();
    void keepsExcludedRows();
    void showsThePlotWhereThereIsRoom();
    void fitsItsWindow_data();
    void fitsItsWindow();

private:
    QWidget *part(Part part) const;
    QComboBox *box(Part which) const { return qobject_cast<QComboBox *>(part(which)); }
    QString value() const { return qobject_cast<QLineEdit *>(part(ValueField))->text(); }
    QPointF centerOf(Part which) const;
    void click(Part which);
    void choose(Part which, const char *text);
    void openPad();
    void tapKeys(const QString &keys);
    void waitUntilPadIsGone();
    LogDataSetFilterListItem *list() const;
    QPointF cross(int row) const;
    QStringList criteria() const;
    void add(const char *first, const char *second);

    QScopedPointer<Complaints> m_complaints;
    QScopedPointer<TemporaryLog> m_log;
    QScopedPointer<ViewerUser> m_user;
};

void tst_FilterTab::initTestCase()
{
    QApplication::setStyle("fusion");
}

void tst_FilterTab::init()
{
    m_complaints.reset(new Complaints);
    m_log.reset(new TemporaryLog);
    m_user.reset(new ViewerUser(*m_log));
    QVERIFY(m_user->isReady());
    QVERIFY(m_user->clickTab("viewTabs", FilterView));
}

/** Nothing that is done here may make the engine complain. */
void tst_FilterTab::cleanup()
{
    m_user.reset();
    m_log.reset();
    const QString text = m_complaints->text();
    m_complaints.reset();
    QCOMPARE(text, QString());
}

/** Of the row that composes a criterion. */
QWidget *tst_FilterTab::part(Part part) const
{
    return m_user->find<LogDataFilterBuilderItem>("builder")
        ->container()
        ->layout()
        ->itemAt(part)
        ->widget();
}

QPointF tst_FilterTab::centerOf(Part which) const
{
    const QWidget *container = m_user->find<LogDataFilterBuilderItem>("builder")->container();
    return part(which)->mapTo(container, part(which)->rect().center());
}

void tst_FilterTab::click(Part which)
{
    QVERIFY(m_user->settled());
    QVERIFY(part(which)->isEnabled());
    QVERIFY(m_user->click(m_user->item("builder"), centerOf(which)));
}

void tst_FilterTab::choose(Part which, const char *text)
{
    QComboBox *combo = box(which);
    click(which);
    QTRY_VERIFY(combo->view()->isVisible());
    const auto clickRow = [this, combo, text] {
        m_user->settled();
        QAbstractItemView *view = combo->view();
        if (!view->isVisible())
            return true;
        QWidget *popup = view->window();
        const int row = combo->findText(text);
        const QPoint inside = view->visualRect(view->model()->index(row, 0)).center();
        const QPointF inScene
            = popup->graphicsProxyWidget()->mapToScene(view->viewport()->mapTo(popup, inside));
        m_user->click(m_user->item("builder"), inScene);
        return false;
    };
    // Shortly after it opens, a list takes no choice yet.
    QTRY_VERIFY(clickRow());
    QCOMPARE(combo->currentText(), QString(text));
}

void tst_FilterTab::openPad()
{
    click(ValueField);
    QTRY_VERIFY(m_user->isShown("padValue"));
    QTRY_VERIFY(m_user->item("padValue")->hasActiveFocus());
    QVERIFY(m_user->settled());
}

void tst_FilterTab::tapKeys(const QString &keys)
{
    for (const QChar &key : keys) {
        const QByteArray name = QByteArray("key") + QString(key).toUtf8();
        QVERIFY2(m_user->isForFingers(name), name);
        const QQuickItem *item = m_user->item(name);
        m_user->drag(m_user->pointOf(item, item->boundingRect().center()));
    }
}

/** For good: it must not come back by itself. */
void tst_FilterTab::waitUntilPadIsGone()
{
    QTRY_VERIFY(!m_user->isShown("padValue"));
    QVERIFY(m_user->settled());
    QVERIFY(!m_user->isShown("padValue"));
}

LogDataSetFilterListItem *tst_FilterTab::list() const
{
    return m_user->find<LogDataSetFilterListItem>("criteriaList");
}

QPointF tst_FilterTab::cross(int row) const
{
    QListView *view = list()->listView();
    const QRect rect = view->visualRect(view->model()->index(row, 0));
    return QPointF(rect.right() - 22, rect.center().y());
}

QStringList tst_FilterTab::criteria() const
{
    QStringList texts;
    const QStandardItemModel *model = m_user->source()->activeFilterModel();
    for (int row = 0; row < model->rowCount(); ++row)
        texts.append(model->item(row)->text());
    return texts;
}

/** Two criteria on T, just there. */
void tst_FilterTab::add(const char *first, const char *second)
{
    m_user->source()->buildFilter(2, 0, first);
    m_user->source()->buildFilter(2, 2, second);
    QVERIFY(m_user->settled());
    QVERIFY(list()->isVisible());
}

// Adding

void tst_FilterTab::addsACriterion()
{
    QVERIFY(!part(AddButton)->isEnabled());
    QSignalSpy updated(m_user->plot(), SIGNAL(plotUpdated()));
    choose(VariableBox, "T");
    choose(OperatorBox, "!=");
    openPad();
    QCOMPARE(m_user->text("padTitle"), QString("T !="));
    m_user->type("25.5");
    QVERIFY(m_user->click("padAdd"));
    QTRY_COMPARE(criteria(), QStringList{"T!=25.5"});
    QCOMPARE(updated.count(), 1);
    QCOMPARE(m_user->source()->YLeftData().value("T").size(), 2);
    QCOMPARE(m_user->leftValues("T"),
             (QVector<double>{21.5, 22.5, 23.5, 24.5, 26.5, 27.5, 28.5, 29.5, 30.5}));
    QTRY_VERIFY(list()->isVisible());
    waitUntilPadIsGone();
}

void tst_FilterTab::addsACriterionByTouch()
{
    m_user->drag(m_user->pointOf(m_user->item("builder"), centerOf(ValueField)));
    QTRY_VERIFY(m_user->isShown("padValue"));
    QTRY_VERIFY(m_user->item("padValue")->hasActiveFocus());
    QVERIFY(m_user->settled());
    tapKeys(QString::fromUtf8("28.55⌫"));
    QCOMPARE(m_user->text("padValue"), QString("28.5"));
    const QQuickItem *addKey = m_user->item("padAdd");
    m_user->drag(m_user->pointOf(addKey, addKey->boundingRect().center()));
    QTRY_COMPARE(criteria(), QStringList{"T>28.5"});
    QCOMPARE(m_user->leftValues("T"), (QVector<double>{29.5, 30.5}));
    waitUntilPadIsGone();
}

void tst_FilterTab::addsACriterionByKeys()
{
    openPad();
    m_user->type("28");
    m_user->key(Qt::Key_Return);
    QTRY_COMPARE(m_user->leftValues("T"), (QVector<double>{28.5, 29.5, 30.5}));
    waitUntilPadIsGone();
}

void tst_FilterTab::typesANumberAnywhereInTheRow()
{
    choose(OperatorBox, "<");
    m_user->type("2");
    QTRY_VERIFY(m_user->isShown("padValue"));
    QTRY_VERIFY(m_user->item("padValue")->hasActiveFocus());
    m_user->type("3");
    m_user->key(Qt::Key_Return);
    QTRY_COMPARE(criteria(), QStringList{"T<23"});
    waitUntilPadIsGone();
}

/** The row then does what it always did: each press on its button adds. */
void tst_FilterTab::setsAValueForLater()
{
    openPad();
    m_user->type("-1.25");
    QVERIFY(m_user->click("padSet"));
    waitUntilPadIsGone();
    QCOMPARE(value(), QString("-1.25"));
    QCOMPARE(criteria(), QStringList());
    choose(VariableBox, "RH");
    choose(OperatorBox, "==");
    click(AddButton);
    QTRY_COMPARE(criteria(), QStringList{"RH=-1.25"});
    choose(OperatorBox, "<=");
    click(AddButton);
    QTRY_COMPARE(criteria(), (QStringList{"RH=-1.25", "RH<=-1.25"}));
}

void tst_FilterTab::asksAgain()
{
    openPad();
    m_user->type("7");
    QVERIFY(m_user->click("padSet"));
    waitUntilPadIsGone();
    openPad();
    // What is there is replaced by what is typed.
    QCOMPARE(m_user->text("padValue"), QString("7"));
    tapKeys("3");
    QCOMPARE(m_user->text("padValue"), QString("3"));
}

void tst_FilterTab::cancelsAnEntry()
{
    openPad();
    m_user->type("7");
    QVERIFY(m_user->click("padCancel"));
    waitUntilPadIsGone();
    QCOMPARE(value(), QString());
    openPad();
    m_user->type("8");
    m_user->key(Qt::Key_Escape);
    waitUntilPadIsGone();
    QCOMPARE(value(), QString());
    QCOMPARE(criteria(), QStringList());
}

void tst_FilterTab::editsByKeysOfThePad()
{
    openPad();
    tapKeys(QString::fromUtf8("1234567890±"));
    QCOMPARE(m_user->text("padValue"), QString("-1234567890"));
    tapKeys(QString::fromUtf8("±⌫⌫"));
    QCOMPARE(m_user->text("padValue"), QString("12345678"));
    QVERIFY(m_user->item("padValue")->hasActiveFocus());
}

void tst_FilterTab::refusesWhatIsNoNumber_data()
{
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("shown");

    QTest::newRow("nothing") << QString() << QString();
    QTest::newRow("sign") << "-"
                          << "-";
    QTest::newRow("letters and a comma") << "x,-"
                                         << "-";
    QTest::newRow("unfinished exponent") << "1e"
                                         << "1e";
}

void tst_FilterTab::refusesWhatIsNoNumber()
{
    QFETCH(QString, keys);
    QFETCH(QString, shown);
    openPad();
    m_user->type(keys);
    QCOMPARE(m_user->text("padValue"), shown);
    QVERIFY(!m_user->item("padAdd")->isEnabled());
    QVERIFY(!m_user->item("padSet")->isEnabled());
    m_user->key(Qt::Key_Return);
    QVERIFY(m_user->settled());
    QVERIFY(m_user->isShown("padValue"));
    QCOMPARE(criteria(), QStringList());
}

// The row

void tst_FilterTab::suggestsThePlottedVariable()
{
    QCOMPARE(box(VariableBox)->currentText(), QString("T"));
    m_user->source()->updateVariableSelection(1, 2, false);
    QCOMPARE(box(VariableBox)->currentText(), QString("CO2"));
    m_user->source()->updateVariableSelection(1, 3, true);
    QCOMPARE(box(VariableBox)->currentText(), QString("RH"));
    // Until one is chosen.
    choose(VariableBox, "Obs");
    m_user->source()->updateVariableSelection(1, 2, true);
    QCOMPARE(box(VariableBox)->currentText(), QString("Obs"));
}

void tst_FilterTab::listsTheVariablesOfTheDataSet()
{
    choose(VariableBox, "RH");
    QVERIFY(m_user->click("dataSetChoice"));
    auto *popup = m_user->item("dataSetChoice")->property("popup").value<QObject *>();
    QTRY_VERIFY(popup->property("opened").toBool());
    m_user->key(Qt::Key_Down);
    m_user->key(Qt::Key_Return);
    QTRY_COMPARE(m_user->source()->currentDataSetIndex(), 1);
    QCOMPARE(box(VariableBox)->count(), 4);
    QCOMPARE(box(VariableBox)->itemText(2), QString("CO2"));
    // What was chosen there counts no more.
    QCOMPARE(box(VariableBox)->currentText(), QString("T"));
}

// The list

void tst_FilterTab::ticksCriteria()
{
    add("28", "30");
    QCOMPARE(m_user->leftValues("T"), (QVector<double>{28.5, 29.5}));
    QVERIFY(m_user->clickCell(list(), list()->listView(), 0));
    QTRY_COMPARE(m_user->leftValues("T").size(), 9);
    QVERIFY(m_user->clickCell(list(), list()->listView(), 0));
    QTRY_COMPARE(m_user->leftValues("T").size(), 2);
}

void tst_FilterTab::removesOneCriterion()
{
    add("28", "30");
    QVERIFY(m_user->click(list(), cross(0)));
    QTRY_COMPARE(criteria(), QStringList{"T<30"});
    QCOMPARE(m_user->leftValues("T").size(), 9);
    QVERIFY(m_user->settled());
    QVERIFY(m_user->click(list(), cross(0)));
    QTRY_COMPARE(criteria(), QStringList());
    QCOMPARE(m_user->leftValues("T").size(), 10);
    QTRY_VERIFY(!list()->isVisible());
}

void tst_FilterTab::removesOneCriterionByTouch()
{
    add("28", "30");
    m_user->drag(m_user->pointOf(list(), cross(1)));
    QTRY_COMPARE(criteria(), QStringList{"T>28"});
}

void tst_FilterTab::removesOnlyByAWholeTap()
{
    add("28", "30");
    const QPoint on = m_user->pointOf(list(), cross(0));
    const QPoint beside = on - QPoint(200, 0);
    for (const auto &way : {qMakePair(on, beside), qMakePair(beside, on)}) {
        QTest::mousePress(m_user->window(), Qt::LeftButton, Qt::NoModifier, way.first);
        QTest::mouseRelease(m_user->window(), Qt::LeftButton, Qt::NoModifier, way.second);
        QVERIFY(m_user->settled());
        QCOMPARE(criteria().size(), 2);
        // Nor does that tick.
        QCOMPARE(m_user->leftValues("T").size(), 2);
    }
}

void tst_FilterTab::removesByKey()
{
    add("28", "30");
    QVERIFY(m_user->clickCell(list(), list()->listView(), 1));
    QTRY_COMPARE(m_user->leftValues("T").size(), 3);
    QVERIFY(m_user->settled());
    m_user->key(Qt::Key_Down);
    m_user->key(Qt::Key_Delete);
    QTRY_COMPARE(criteria().size(), 1);
}

void tst_FilterTab::clearsCriteria()
{
    QVERIFY(!part(ClearButton)->isEnabled());
    add("28", "30");
    click(ClearButton);
    QTRY_COMPARE(m_user->leftValues("T").size(), 10);
    QCOMPARE(criteria(), QStringList());
    QTRY_VERIFY(!list()->isVisible());
    QVERIFY(!part(ClearButton)->isEnabled());
}

void tst_FilterTab::keepsExcludedRows()
{
    LogTableViewModel *table = m_user->source()->tableModel();
    QVERIFY(table->setData(table->index(8, 0), Qt::Checked, Qt::CheckStateRole));
    QCOMPARE(m_user->leftValues("T").size(), 9);
    openPad();
    m_user->type("27");
    m_user->key(Qt::Key_Return);
    QTRY_COMPARE(m_user->leftValues("T"), (QVector<double>{27.5, 28.5, 30.5}));
}

// Sizes

void tst_FilterTab::showsThePlotWhereThereIsRoom()
{
    QVERIFY(m_user->isShown("plot"));
    QVERIFY(m_user->plot()->height() >= 200);
    m_user->window()->resize(800, 599);
    QTRY_VERIFY(!m_user->isShown("plot"));
    m_user->window()->resize(800, 600);
    QTRY_VERIFY(m_user->isShown("plot"));
    QVERIFY(m_user->settled());
    const qreal below = m_user->plot()->height();
    QVERIFY(m_user->clickTab("viewTabs", PlotView));
    QVERIFY(m_user->plot()->height() >= below + 80);
}

void tst_FilterTab::fitsItsWindow_data()
{
    QTest::addColumn<QSize>("size");

    QTest::newRow("instrument") << QSize(800, 480);
    QTest::newRow("desk") << QSize(1280, 800);
}

/** What is to be hit is there, inside the window, and large enough for a finger. */
void tst_FilterTab::fitsItsWindow()
{
    QFETCH(QSize, size);
    m_user->window()->resize(size);
    QTRY_COMPARE(m_user->window()->size(), size);
    add("22", "30");
    QVERIFY(m_user->isForFingers("builder"));
    const QQuickItem *builder = m_user->item("builder");
    for (Part which : {VariableBox, OperatorBox, ValueField, AddButton, ClearButton}) {
        const QPoint center = centerOf(which).toPoint();
        QRect area = part(which)->rect();
        area.moveCenter(center);
        QVERIFY(builder->boundingRect().contains(area));
        QVERIFY(qMin(area.width(), area.height()) >= 44);
    }
    QVERIFY(list()->listView()->sizeHintForRow(0) >= 44);
    QVERIFY(list()->height() >= 3 * 44);
    openPad();
    for (const char *name : {"padValue", "padCancel", "padSet", "padAdd", "key0", "key7", "key3"})
        QVERIFY2(m_user->isForFingers(name), name);
}

QTEST_MAIN(tst_FilterTab)
#include "tst_FilterTab.moc"

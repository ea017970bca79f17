// Views and proxies on every model of the data source, while all is changed under them.

#include "datasource/SourceFixture.h"
#include "support/EventAction.h"
#include "support/ModelTester.h"

#include <QListView>
#include <QSharedPointer>
#include <QSortFilterProxyModel>
#include <QTableView>

/** A list or table, and another over a proxy that follows every change. */
class ModelViews
{
public:
    ModelViews(QAbstractItemModel *model, QAbstractItemView *direct, QAbstractItemView *indirect)
        : m_direct(direct)
        , m_indirect(indirect)
    {
        m_proxy.setDynamicSortFilter(true);
        m_proxy.setSourceModel(model);
        m_proxy.sort(0);
        m_direct->setModel(model);
        m_indirect->setModel(&m_proxy);
        m_direct->resize(300, 200);
        m_indirect->resize(300, 200);
        m_direct->show();
        m_indirect->show();
    }

    QAbstractItemView *direct() const { return m_direct.data(); }
    QAbstractItemView *indirect() const { return m_indirect.data(); }
    QString mismatch() const
    {
        const QAbstractItemModel *model = m_direct->model();
        if (!model || m_proxy.rowCount() == model->rowCount())
            return QString();
        return QString::fromLatin1("%1 rows of %2").arg(m_proxy.rowCount()).arg(model->rowCount());
    }

private:
    QSortFilterProxyModel m_proxy;
    QScopedPointer<QAbstractItemView> m_direct;
    QScopedPointer<QAbstractItemView> m_indirect;
};

typedef QList<QSharedPointer<ModelViews>> AllViews;

class tst_LogDataSourceViews : public QObject
{
    Q_OBJECT

private slots:
    void followLoadsAndChoices();
    void clicksToggleCriteria_data();
    void clicksToggleCriteria();
    void clicksChooseVariablesAndDataSets_data();
    void clicksChooseVariablesAndDataSets();
    void excludedRowsAreClearedUnderAProxy();
    void mayOutliveTheSource_data();
    void mayOutliveTheSource();
};

namespace
{

QByteArray log(int rows)
{
    QByteArray text;
    for (int i = 0; i < rows; ++i)
        text += (i > 0 ? "|" : "") + QByteArray::number(i) + " 10:00:00 5 6";
    return logBlock("Sys Sys Gas Gas", "Obs Time co2 H2O", text, "Gain:A 1|Gain:A 2|Off:B 1")
        + logBlock("A A A", "a b c", "1 2 3|4 5 6");
}

template <class View> QSharedPointer<ModelViews> viewsOf(QAbstractItemModel *model)
{
    return QSharedPointer<ModelViews>(new ModelViews(model, new View, new View));
}

/** Views on every model. @param onTable whether a proxy stands on the table itself too. */
AllViews viewAll(LogDataSourceItem &source, bool onTable = true)
{
    AllViews views;
    views << viewsOf<QListView>(source.dataSetModel())
          << viewsOf<QListView>(source.xVariableModel())
          << viewsOf<QListView>(source.yVariableModel())
          << viewsOf<QListView>(source.zVariableModel())
          << viewsOf<QListView>(source.activeFilterModel())
          << viewsOf<QTableView>(source.constTableModel())
          << viewsOf<QTableView>(source.analysisTableModel())
          << viewsOf<QTableView>(source.observationFilteredTableModel());
    if (onTable)
        views << viewsOf<QTableView>(source.tableModel());
    return views;
}

QString mismatch(const AllViews &views)
{
    QCoreApplication::processEvents();
    for (int i = 0; i < views.size(); ++i) {
        if (!views.at(i)->mismatch().isEmpty())
            return QString::fromLatin1("%1: %2").arg(i).arg(views.at(i)->mismatch());
    }
    return QString();
}

/** Clicks the check box of a row, which stands at its left edge. */
void clickCheckBox(QAbstractItemView *view, int row)
{
    const QModelIndex index = view->model()->index(row, 0);
    view->scrollTo(index);
    const QRect cell = view->visualRect(index);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier,
                      QPoint(cell.left() + 9, cell.center().y()));
}

} // namespace

void tst_LogDataSourceViews::followLoadsAndChoices()
{
    SourceFixture f;
    LogDataSourceItem &source = *f.source;
    const AllViews views = viewAll(source);
    QList<QSharedPointer<ModelTester>> testers;
    for (int i = 0; i < views.size(); ++i) {
        testers << QSharedPointer<ModelTester>(new ModelTester(views.at(i)->direct()->model()))
                << QSharedPointer<ModelTester>(new ModelTester(views.at(i)->indirect()->model()));
    }
    const QByteArray logs[] = {log(100), log(3), QByteArray(), QByteArray("broken"), log(0)};
    for (int i = 0; i < 5; ++i) {
        f.load(logs[i]);
        QCOMPARE(mismatch(views), QString());
        source.setHorizontalVariable(text("Obs"));
        for (int dataSet = 0; dataSet < 2; ++dataSet) {
            source.selectDataSet(dataSet);
            QCOMPARE(mismatch(views), QString());
            source.updateVariableSelection(0, 0, true);
            source.updateVariableSelection(1, 2, true);
            source.setRightVariable(text("H2O"));
            source.buildFilter(2, 0, text("1"));
            QCOMPARE(mismatch(views), QString());
            f.exclude(1);
            source.setObservationFilterType(
                LogObservationSortFilterProxyModel::LogObservationSortFilterType(i % 3));
            source.setObservationRange(10 * i);
            source.setObservationFrequency(i - 2);
            QCOMPARE(mismatch(views), QString());
            source.updateCriteriaSelection(0, i % 2 == 0);
            QCOMPARE(mismatch(views), QString());
        }
    }
    source.clearCriteria();
    QCOMPARE(mismatch(views), QString());
    QCOMPARE(source.activeFilterModel()->rowCount(), 0);
}

void tst_LogDataSourceViews::clicksToggleCriteria_data()
{
    QTest::addColumn<bool>("throughProxy");
    QTest::newRow("list") << false;
    QTest::newRow("list over a proxy") << true;
}

/** Each click rebuilds the very list that is clicked. */
void tst_LogDataSourceViews::clicksToggleCriteria()
{
    QFETCH(bool, throughProxy);
    SourceFixture f;
    f.show(log(20));
    const AllViews views = viewAll(*f.source);
    ModelTester tester(f.source->activeFilterModel());
    for (int value = 1; value < 4; ++value)
        f.source->buildFilter(2, 0, QString::number(value));
    QCOMPARE(mismatch(views), QString());
    QAbstractItemView *view = throughProxy ? views.at(4)->indirect() : views.at(4)->direct();
    f.recorder.take();
    for (int round = 0; round < 3; ++round) {
        for (int row = 0; row < 3; ++row) {
            const bool wasChecked = f.source->checkedItemList(4).contains(row);
            clickCheckBox(view, row);
            QCOMPARE(f.recorder.take(), text("dataUpdated criteriaUpdated"));
            QCOMPARE(f.source->checkedItemList(4).contains(row), !wasChecked);
            QCOMPARE(mismatch(views), QString());
        }
    }
    QCOMPARE(rowTexts(view->model()), text("co2>1,co2>2,co2>3"));
    QTest::keyClick(view, Qt::Key_Space);
    QCOMPARE(mismatch(views), QString());
}

void tst_LogDataSourceViews::clicksChooseVariablesAndDataSets_data()
{
    clicksToggleCriteria_data();
}

void tst_LogDataSourceViews::clicksChooseVariablesAndDataSets()
{
    QFETCH(bool, throughProxy);
    SourceFixture f;
    f.show(log(20));
    const AllViews views = viewAll(*f.source);
    for (int list = 1; list < 4; ++list) {
        QAbstractItemView *view
            = throughProxy ? views.at(list)->indirect() : views.at(list)->direct();
        clickCheckBox(view, 2);
        QCOMPARE(f.recorder.take(), text("graphDataUpdated"));
        QCOMPARE(f.source->checkedItemList(list - 1).size(), 1);
    }
    QVERIFY(!f.source->YLeftData().isEmpty());
    QVERIFY(!f.source->YRightData().isEmpty());
    QAbstractItemView *view = throughProxy ? views.at(0)->indirect() : views.at(0)->direct();
    clickCheckBox(view, 1);
    QCOMPARE(f.recorder.take(), text("dataUpdated graphDataUpdated"));
    QCOMPARE(intTexts(f.source->checkedItemList(3)), text("0,1"));
    QCOMPARE(f.source->currentDataSetIndex(), 1);
    QCOMPARE(mismatch(views), QString());
    clickCheckBox(view, 0);
    QCOMPARE(f.source->currentDataSetIndex(), 0);
    QCOMPARE(intTexts(f.source->checkedItemList(3)), text("1"));
}

/** The change that is told ends one past the last cell; the window's proxy has to clip it. */
void tst_LogDataSourceViews::excludedRowsAreClearedUnderAProxy()
{
    SourceFixture f;
    f.show(log(20));
    const AllViews views = viewAll(*f.source, false);
    QTableView table;
    table.setModel(f.source->tableModel());
    table.show();
    ModelTester tester(f.source->observationFilteredTableModel());
    QSignalSpy changes(f.source->observationFilteredTableModel(),
                       SIGNAL(dataChanged(QModelIndex,QModelIndex)));
    for (int type = 0; type < 3; ++type) {
        f.source->setObservationFilterType(
            LogObservationSortFilterProxyModel::LogObservationSortFilterType(type));
        f.source->setObservationRange(5);
        f.exclude(type == 2 ? 19 : 0);
        changes.clear();
        f.source->clearExcludedPoints();
        QCOMPARE(changes.count(), 1);
        const QModelIndex last = changes.at(0).at(1).value<QModelIndex>();
        QCOMPARE(last.row(), f.source->observationFilteredTableModel()->rowCount() - 1);
        QCOMPARE(last.column(), 4);
        QCOMPARE(mismatch(views), QString());
    }
    f.source->setObservationRange(0);
    f.source->clearExcludedPoints();
    f.load(log(0));
    f.source->selectDataSet(0);
    f.source->clearExcludedPoints();
    QCOMPARE(mismatch(views), QString());
}

void tst_LogDataSourceViews::mayOutliveTheSource_data()
{
    QTest::addColumn<bool>("duringARead");
    QTest::newRow("idle") << false;
    QTest::newRow("during a read") << true;
}

void tst_LogDataSourceViews::mayOutliveTheSource()
{
    QFETCH(bool, duringARead);
    SourceFixture f;
    f.show(log(20));
    f.source->buildFilter(2, 0, text("1"));
    const AllViews views = viewAll(*f.source);
    QCOMPARE(mismatch(views), QString());
    if (duringARead) {
        const QString path = f.dir.write(text("next.txt"), log(50));
        EventAction action([&f]() { f.source.reset(); });
        f.source->setLogFilePath(path);
        QCOMPARE(action.runs(), 1);
    } else {
        f.source.reset();
    }
    QVERIFY(!f.source);
    QCoreApplication::processEvents();
    for (int i = 0; i < views.size(); ++i) {
        QCOMPARE(views.at(i)->direct()->model() ? views.at(i)->direct()->model()->rowCount() : 0,
                 0);
        QCOMPARE(views.at(i)->indirect()->model()->rowCount(), 0);
        views.at(i)->direct()->repaint();
        views.at(i)->indirect()->repaint();
    }
}

QTEST_MAIN(tst_LogDataSourceViews)
#include "tst_LogDataSourceViews.moc"

#include "lists/LogDataSetFilterListItem.h"
#include "table/LogTableView.h"
#include "table/LogTableViewItem.h"
#include "viewer/CriteriaListStyle.h"
#include "viewer/TableStyle.h"
#include "viewer/TouchDelegate.h"

#include <QListView>
#include <QtTest>

namespace
{

/** What draws the rows of @p view, and nothing from before. */
void compareDelegate(const QAbstractItemView *view, int rowHeight)
{
    const QList<TouchDelegate *> delegates = view->findChildren<TouchDelegate *>();
    QCOMPARE(delegates.size(), 1);
    QVERIFY(view->itemDelegate() == delegates.first());
    QCOMPARE(delegates.first()->sizeHint(QStyleOptionViewItem(), QModelIndex()).height(),
             rowHeight);
}

void changeLooks(ViewStyle *style, QQuickItem *item, const QAbstractItemView *view)
{
    style->setItem(item);
    compareDelegate(view, style->rowHeight());
    const QString light = view->styleSheet();
    style->setDark(true);
    compareDelegate(view, style->rowHeight());
    QVERIFY(view->styleSheet() != light);
    style->setDark(false);
    QCOMPARE(view->styleSheet(), light);
    style->setRowHeight(70);
    compareDelegate(view, 70);
}

} // namespace

class tst_ViewStyle : public QObject
{
    Q_OBJECT

private slots:
    void dressesListOfCriteria();
    void dressesTable();
    void leavesOthersAsTheyAre();
};

void tst_ViewStyle::dressesListOfCriteria()
{
    LogDataSetFilterListItem list;
    CriteriaListStyle style;
    changeLooks(&style, &list, list.listView());
}

void tst_ViewStyle::dressesTable()
{
    LogTableViewItem table;
    TableStyle style;
    changeLooks(&style, &table, table.tableView());
}

void tst_ViewStyle::leavesOthersAsTheyAre()
{
    LogDataSetFilterListItem list;
    const QString plain = list.listView()->styleSheet();
    TableStyle style;
    style.setItem(&list);
    QCOMPARE(list.listView()->styleSheet(), plain);
    QVERIFY(list.listView()->findChildren<TouchDelegate *>().isEmpty());
}

QTEST_MAIN(tst_ViewStyle)
#include "tst_ViewStyle.moc"

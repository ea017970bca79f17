#include "support/ModelTester.h"
#include "support/TestCompat.h"
#include "support/TextTable.h"
#include "table/LogTableViewAnalysisModel.h"

class tst_LogTableViewAnalysisModel : public QObject
{
    Q_OBJECT

private slots:
    void staysEmpty();
};

void tst_LogTableViewAnalysisModel::staysEmpty()
{
    QObject parent;
    LogTableViewAnalysisModel *model = new LogTableViewAnalysisModel(&parent);
    ModelTester tester(model);
    QSignalSpy resets(model, SIGNAL(modelReset()));
    model->setColumnHeaderData(listsOf("A|B"));
    model->setGridData(QList<Observation *>() << nullptr);
    QCOMPARE(model->parent(), &parent);
    QCOMPARE(model->rowCount(), 0);
    QCOMPARE(model->columnCount(), 0);
    QVERIFY(!model->headerData(0, Qt::Horizontal).isValid());
    QVERIFY(!model->headerData(0, Qt::Vertical).isValid());
    QVERIFY(!model->data(QModelIndex()).isValid());
    QVERIFY(!model->setData(QModelIndex(), 1));
    QCOMPARE(resets.count(), 0);
}

QTEST_GUILESS_MAIN(tst_LogTableViewAnalysisModel)
#include "tst_LogTableViewAnalysisModel.moc"

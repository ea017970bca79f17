#include "viewer/CellCopy.h"

#include "support/TestCompat.h"

#include <QStandardItemModel>

/** Cells as text for other programs. */
class tst_CellCopy : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void copies_data();
    void copies();

private:
    QScopedPointer<QStandardItemModel> m_model;
};

void tst_CellCopy::init()
{
    m_model.reset(new QStandardItemModel(3, 3));
    m_model->setHorizontalHeaderLabels({"Sys\nObs\n", "Air\nT\nC", "Note"});
    for (int row = 0; row < 3; ++row) {
        m_model->setItem(row, 0, new QStandardItem(QString::number(row + 1)));
        m_model->setItem(row, 1, new QStandardItem(QString::number(row + 20.5)));
    }
    m_model->setItem(1, 2, new QStandardItem("a\tb\nc"));
}

void tst_CellCopy::copies_data()
{
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("last");
    QTest::addColumn<QVector<int>>("columns");
    QTest::addColumn<bool>("hasHeader");
    QTest::addColumn<QString>("text");
    QTest::newRow("a cell") << 0 << 0 << QVector<int>{1} << false << "20.5\n";
    QTest::newRow("rows") << 0 << 1 << QVector<int>{0, 1} << false << "1\t20.5\n2\t21.5\n";
    QTest::newRow("headers") << 2 << 2 << QVector<int>{0, 1} << true
                             << "Sys Obs\tAir T C\n3\t22.5\n";
    QTest::newRow("some columns") << 0 << 0 << QVector<int>{0, 2} << true << "Sys Obs\tNote\n1\t\n";
    QTest::newRow("tabs within") << 1 << 1 << QVector<int>{0, 2} << false << "2\ta b c\n";
    QTest::newRow("no columns") << 0 << 1 << QVector<int>() << true << "";
}

void tst_CellCopy::copies()
{
    QFETCH(int, first);
    QFETCH(int, last);
    QFETCH(QVector<int>, columns);
    QFETCH(bool, hasHeader);
    QTEST(CellCopy::text(*m_model, first, last, columns, hasHeader), "text");
}

QTEST_MAIN(tst_CellCopy)
#include "tst_CellCopy.moc"

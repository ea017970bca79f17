#include "support/TestCompat.h"
#include "table/TableFitter.h"

#include <QApplication>
#include <QHeaderView>
#include <QStandardItemModel>
#include <QTableView>

/** Tells how often it is asked, and can have as many rows as a test likes. */
class CountingModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    CountingModel(int rows, int columns)
        : asked(0)
        , m_rows(rows)
        , m_columns(columns)
    {
    }
    int rowCount(const QModelIndex & = QModelIndex()) const override { return m_rows; }
    int columnCount(const QModelIndex & = QModelIndex()) const override { return m_columns; }
    QVariant data(const QModelIndex &index, int role) const override
    {
        ++asked;
        return role == Qt::DisplayRole ? QVariant(QString::number(index.row())) : QVariant();
    }

    mutable qint64 asked;

private:
    int m_rows;
    int m_columns;
};

class tst_TableFitter : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void fitsAsTheTableItselfDoes_data();
    void fitsAsTheTableItselfDoes();
    void hiddenColumnsAreFitted();
    void longCellsFarDownCount();
    void shortCellsFarDownDoNot();
    void keepsTheLimitsOfTheHeader();
    void rowsThatComeLaterHaveTheHeight();
    void heightIsToldToTheTable();
    void tellsWhatWasNeeded();
    void nothingToFit();
    void asksFewCells_data();
    void asksFewCells();

private:
    void addRow(const char *cells);

    QScopedPointer<QTableView> m_view;
    QScopedPointer<QStandardItemModel> m_model;
};

void tst_TableFitter::initTestCase()
{
    QApplication::setStyle(QLatin1String("fusion"));
}

void tst_TableFitter::init()
{
    m_view.reset();
    m_model.reset(new QStandardItemModel);
    m_view.reset(new QTableView);
    m_view->resize(400, 300);
    m_view->setModel(m_model.data());
}

void tst_TableFitter::addRow(const char *cells)
{
    QList<QStandardItem *> items;
    foreach (const QString &cell, QString::fromUtf8(cells).split(QLatin1Char('|')))
        items << new QStandardItem(cell);
    m_model->appendRow(items);
}

void tst_TableFitter::fitsAsTheTableItselfDoes_data()
{
    QTest::addColumn<QByteArray>("headers");
    QTest::addColumn<QByteArray>("cells");
    QTest::addColumn<bool>("grid");
    QTest::newRow("wide cells") << QByteArray("A|B") << QByteArray("a long text in a cell|1")
                                << true;
    QTest::newRow("wide headers") << QByteArray("A long header|Another one") << QByteArray("1|2")
                                  << true;
    QTest::newRow("headers of lines")
        << QByteArray("Group\nA name\nunit|B\nC\nD") << QByteArray("1|2") << true;
    QTest::newRow("no grid") << QByteArray("A|B") << QByteArray("a long text in a cell|1") << false;
    QTest::newRow("empty cells") << QByteArray("A|B") << QByteArray("|") << true;
}

void tst_TableFitter::fitsAsTheTableItselfDoes()
{
    QFETCH(QByteArray, headers);
    QFETCH(QByteArray, cells);
    QFETCH(bool, grid);
    for (int row = 0; row < 20; ++row)
        addRow(cells);
    m_model->setHorizontalHeaderLabels(QString::fromUtf8(headers).split(QLatin1Char('|')));
    m_view->setShowGrid(grid);
    QTableView reference;
    reference.resize(400, 300);
    reference.setShowGrid(grid);
    reference.setModel(m_model.data());
    reference.resizeColumnsToContents();
    reference.resizeRowsToContents();

    TableFitter fitter(m_view.data());
    fitter.fit();
    for (int column = 0; column < m_model->columnCount(); ++column)
        QCOMPARE(m_view->columnWidth(column), reference.columnWidth(column));
    for (int row = 0; row < 20; ++row)
        QCOMPARE(m_view->rowHeight(row), reference.rowHeight(row));
}

void tst_TableFitter::hiddenColumnsAreFitted()
{
    addRow("a long text in a cell that is wider than columns are|1");
    m_model->setHorizontalHeaderLabels(QStringList()
                                       << QLatin1String("A")
                                       << QLatin1String("A header that is wider than columns are"));
    TableFitter fitter(m_view.data());
    fitter.fit();
    const int first = m_view->columnWidth(0);
    const int second = m_view->columnWidth(1);
    m_view->setColumnWidth(0, 50);
    m_view->setColumnWidth(1, 50);
    m_view->setColumnHidden(0, true);
    m_view->setColumnHidden(1, true);
    fitter.fit();
    QVERIFY(m_view->isColumnHidden(0) && m_view->isColumnHidden(1));
    m_view->setColumnHidden(0, false);
    m_view->setColumnHidden(1, false);
    QCOMPARE(m_view->columnWidth(0), first);
    QCOMPARE(m_view->columnWidth(1), second);
}

void tst_TableFitter::longCellsFarDownCount()
{
    for (int row = 0; row < 400; ++row)
        addRow(row == 399 ? "a long text in a cell far below the ones on screen" : "1");
    TableFitter fitter(m_view.data());
    fitter.fit();
    const QModelIndex cell = m_model->index(399, 0);
    QCOMPARE(m_view->columnWidth(0), m_view->sizeHintForIndex(cell).width() + 1);
}

void tst_TableFitter::shortCellsFarDownDoNot()
{
    for (int row = 0; row < 400; ++row)
        addRow("123456");
    TableFitter fitter(m_view.data());
    fitter.fit();
    const int width = m_view->columnWidth(0);
    m_model->item(399)->setText(QLatin1String("123"));
    fitter.fit();
    QCOMPARE(m_view->columnWidth(0), width);
}

void tst_TableFitter::keepsTheLimitsOfTheHeader()
{
    addRow("1");
    m_view->horizontalHeader()->setMinimumSectionSize(90);
    TableFitter fitter(m_view.data());
    fitter.fit();
    QCOMPARE(m_view->columnWidth(0), 90);
}

void tst_TableFitter::rowsThatComeLaterHaveTheHeight()
{
    addRow("1");
    m_view->setFont(QFont(m_view->font().family(), 40));
    TableFitter fitter(m_view.data());
    fitter.fit();
    const int height = m_view->rowHeight(0);
    QVERIFY(height > 40);
    addRow("2");
    QCOMPARE(m_view->rowHeight(1), height);
    QVERIFY(!m_view->verticalHeader()->signalsBlocked());
}

void tst_TableFitter::heightIsToldToTheTable()
{
    for (int row = 0; row < 100; ++row)
        addRow("1");
    m_view->show();
    m_view->verticalHeader()->setDefaultSectionSize(1000);
    TableFitter fitter(m_view.data());
    fitter.fit();
    QCOMPARE(m_view->rowAt(m_view->rowHeight(0) + 1), 1);
    QCOMPARE(m_view->verticalHeader()->length(), 100 * m_view->rowHeight(0));
}

void tst_TableFitter::tellsWhatWasNeeded()
{
    addRow("a long text in a cell that is wider than columns are|1");
    m_model->setHorizontalHeaderLabels(QStringList()
                                       << QLatin1String("A")
                                       << QLatin1String("A header that is wider than columns are"));
    TableFitter fitter(m_view.data());
    QCOMPARE(fitter.contentsWidth(0), 0);
    QSignalSpy fitted(&fitter, SIGNAL(fitted()));
    fitter.fit();
    QCOMPARE(fitted.count(), 1);
    QCOMPARE(fitter.contentsWidth(0), m_view->columnWidth(0));
    QVERIFY(fitter.headerWidth(0) < m_view->columnWidth(0));
    QCOMPARE(fitter.headerWidth(1), m_view->columnWidth(1));
    QVERIFY(fitter.contentsWidth(1) < m_view->columnWidth(1));
    QCOMPARE(fitter.contentsWidth(2), 0);
    QCOMPARE(fitter.contentsWidth(-1), 0);
}

void tst_TableFitter::nothingToFit()
{
    TableFitter fitter(m_view.data());
    const int height = m_view->verticalHeader()->defaultSectionSize();
    fitter.fit();
    m_view->setModel(nullptr);
    fitter.fit();
    QCOMPARE(m_view->verticalHeader()->defaultSectionSize(), height);
}

void tst_TableFitter::asksFewCells_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("columns");
    QTest::addColumn<int>("most");
    QTest::newRow("a million rows") << 1000000 << 20 << 40000;
    QTest::newRow("ten thousand columns") << 100 << 10000 << 1000000;
}

void tst_TableFitter::asksFewCells()
{
    QFETCH(int, rows);
    QFETCH(int, columns);
    QFETCH(int, most);
    CountingModel model(rows, columns);
    m_view->setModel(&model);
    TableFitter fitter(m_view.data());
    model.asked = 0;
    fitter.fit();
    QVERIFY2(model.asked > columns && model.asked < most, qPrintable(QString::number(model.asked)));
    m_view->setModel(nullptr);
}

QTEST_MAIN(tst_TableFitter)
#include "tst_TableFitter.moc"

#include "viewer/CellSearch.h"

#include "support/TestCompat.h"

#include <QElapsedTimer>

typedef QPair<int, int> Cell;
Q_DECLARE_METATYPE(Cell)

/** Finding a text in cells, step by step. */
class tst_CellSearch : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_search.reset(new CellSearch); }
    void findsNothing_data();
    void findsNothing();
    void countsMatches();
    void ignoresCase();
    void walksForward_data();
    void walksForward();
    void walksBackward_data();
    void walksBackward();
    void knowsWhatLiesAhead();
    void forgetsWhenStopped();
    void blocksNobody();

private:
    void search(const QString &text);

    const QList<QStringList> m_cells
        = {{"Air", "20.5", "x"}, {"", "21", "-"}, {"hair", "1", "AIR"}, {"fair", "", ""}};
    QScopedPointer<CellSearch> m_search;
};

/** In columns 0 and 2, of which the second stands for a hidden one between them. */
void tst_CellSearch::search(const QString &text)
{
    QSignalSpy finished(m_search.data(), SIGNAL(finished()));
    m_search->start(text, m_cells.size(), {0, 2},
                    [this](int row, int column) { return m_cells.at(row).at(column); });
    QVERIFY(m_search->isRunning());
    QVERIFY(waitForCount(finished, 1));
    QVERIFY(!m_search->isRunning());
}

void tst_CellSearch::findsNothing_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << "";
    QTest::newRow("absent") << "water";
    QTest::newRow("in a hidden column") << "20.5";
}

void tst_CellSearch::findsNothing()
{
    QFETCH(QString, text);
    search(text);
    QCOMPARE(m_search->count(), 0);
    QVERIFY(!m_search->next(0, 0).isValid());
    QVERIFY(!m_search->previous(0, 0).isValid());
}

void tst_CellSearch::countsMatches()
{
    search("air");
    QCOMPARE(m_search->count(), 4);
    QCOMPARE(m_search->searchedRows(), 4);
    search("hair");
    QCOMPARE(m_search->count(), 1);
}

void tst_CellSearch::ignoresCase()
{
    search("aIR");
    QCOMPARE(m_search->count(), 4);
}

void tst_CellSearch::walksForward_data()
{
    QTest::addColumn<Cell>("from");
    QTest::addColumn<Cell>("to");
    QTest::addColumn<int>("number");
    QTest::newRow("from before all") << Cell(0, -1) << Cell(0, 0) << 1;
    QTest::newRow("to another row") << Cell(0, 0) << Cell(2, 0) << 2;
    QTest::newRow("from a cell that is none") << Cell(1, 2) << Cell(2, 0) << 2;
    QTest::newRow("within a row") << Cell(2, 0) << Cell(2, 2) << 3;
    QTest::newRow("from the last of a row") << Cell(2, 2) << Cell(3, 0) << 4;
    QTest::newRow("around") << Cell(3, 0) << Cell(0, 0) << 1;
}

void tst_CellSearch::walksForward()
{
    QFETCH(Cell, from);
    search("air");
    const CellSearch::Match match = m_search->next(from.first, from.second);
    QTEST(Cell(match.row, match.column), "to");
    QTEST(match.number, "number");
}

void tst_CellSearch::walksBackward_data()
{
    QTest::addColumn<Cell>("from");
    QTest::addColumn<Cell>("to");
    QTest::addColumn<int>("number");
    QTest::newRow("within a row") << Cell(2, 2) << Cell(2, 0) << 2;
    QTest::newRow("to the last of a row") << Cell(3, 0) << Cell(2, 2) << 3;
    QTest::newRow("from a cell that is none") << Cell(1, 0) << Cell(0, 0) << 1;
    QTest::newRow("around") << Cell(0, 0) << Cell(3, 0) << 4;
}

void tst_CellSearch::walksBackward()
{
    QFETCH(Cell, from);
    search("air");
    const CellSearch::Match match = m_search->previous(from.first, from.second);
    QTEST(Cell(match.row, match.column), "to");
    QTEST(match.number, "number");
}

void tst_CellSearch::knowsWhatLiesAhead()
{
    search("air");
    QVERIFY(m_search->hasAfter(0, -1));
    QVERIFY(m_search->hasAfter(2, 0));
    QVERIFY(m_search->hasAfter(2, 2));
    QVERIFY(!m_search->hasAfter(3, 0));
}

void tst_CellSearch::forgetsWhenStopped()
{
    search("air");
    m_search->stop();
    QCOMPARE(m_search->count(), 0);
    QVERIFY(!m_search->next(0, -1).isValid());
}

/** Between two steps others have their turn, and what is found so far can be used. */
void tst_CellSearch::blocksNobody()
{
    const int rows = 2000000;
    QSignalSpy progressed(m_search.data(), SIGNAL(progressed()));
    QSignalSpy finished(m_search.data(), SIGNAL(finished()));
    m_search->start("7", rows, {0}, [](int row, int) { return QString::number(row); });
    QVERIFY(waitForCount(progressed, 1));
    QVERIFY(m_search->searchedRows() < rows / 4);
    QVERIFY(m_search->isRunning());
    QCOMPARE(m_search->next(0, 0).row, 7);
    QCOMPARE(m_search->next(7, 0).row, 17);
    QVERIFY(waitForCount(finished, 1));
    QVERIFY(progressed.count() > 4);
    QCOMPARE(m_search->searchedRows(), rows);
    // Of a million numbers of six digits, leading zeros included, 9^6 have no 7.
    QCOMPARE(m_search->count(), 2 * (1000000 - 531441));
    QCOMPARE(m_search->previous(0, 0).row, 1999997);
}

QTEST_MAIN(tst_CellSearch)
#include "tst_CellSearch.moc"

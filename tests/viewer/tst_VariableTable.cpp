#include "viewer/VariableTable.h"

#include "PlottedLog.h"
#include "support/ModelTester.h"
#include "support/TestCompat.h"

/** The list from which variables are chosen. */
class tst_VariableTable : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void listsGroupByGroup();
    void namesWhatHasNoName();
    void searches_data();
    void searches();
    void followsTheDataSet();
    void staysWhereItIsForTheSameVariables();
    void tellsWhatIsOnAnAxis();
    void putsOneOnTheXAxis();
    void togglesOnce();
    void choosesListed();
    void stopsAtTooMany();
    void choosesNone();
    void choosesTheLatest();
    void listsOnlyTheChosen();
    void tellsColors();
    void ignoresWhatIsNone();
    void isQuickWithManyColumns();

private:
    QStringList names() const;
    QVariant cell(int row, int role) const { return m_table->index(row).data(role); }
    QStringList ticked(int axis) const;

    QScopedPointer<PlottedLog> m_log;
    QScopedPointer<VariableTable> m_table;
    QScopedPointer<ModelTester> m_tester;
};

namespace
{

/** A log of a group's columns that stand apart, and of one without a name. */
QByteArray mixedLog()
{
    return "[Header]\nCreated\t2020\n[Data]\n"
           "Sys\tAir\tSys\tGas\tAir\nObs\tT in\tDoor\t\tT out\n\tC\t1\tppm\tC\n"
           "1\t2\t3\t4\t5\n2\t3\t4\t5\t6\n";
}

QByteArray wideLog(int columns)
{
    QByteArray groups;
    QByteArray names;
    QByteArray units;
    QByteArray row;
    for (int i = 0; i < columns; ++i) {
        const QByteArray separator = i > 0 ? "\t" : "";
        groups += separator + "G" + QByteArray::number(i / 100);
        names += separator + "V" + QByteArray::number(i);
        units += separator + "-";
        row += separator + QByteArray::number(i);
    }
    return "[Header]\nCreated\t2020\n[Data]\n" + groups + '\n' + names + '\n' + units + '\n' + row
        + '\n' + row + '\n';
}

} // namespace

void tst_VariableTable::init()
{
    m_table.reset(new VariableTable);
    m_tester.reset(new ModelTester(m_table.data()));
    m_log.reset(new PlottedLog(TemporaryLog::withUnits()));
    m_table->setDataSets(&m_log->dataSets);
    m_table->setView(&m_log->view);
}

void tst_VariableTable::cleanup()
{
    m_tester.reset();
    m_table.reset();
    m_log.reset();
}

QStringList tst_VariableTable::names() const
{
    QStringList names;
    for (int row = 0; row < m_table->rowCount(); ++row)
        names.append(cell(row, VariableTable::NameRole).toString());
    return names;
}

QStringList tst_VariableTable::ticked(int axis) const
{
    QStringList names;
    for (int row : m_log->source.checkedItemList(axis))
        names.append(m_log->source.xVariableModel()->item(row)->text());
    return names;
}

void tst_VariableTable::listsGroupByGroup()
{
    const PlottedLog log(mixedLog());
    VariableTable table;
    const ModelTester tester(&table);
    QCOMPARE(table.rowCount(), 0);
    PlottedLog other(mixedLog());
    table.setDataSets(&other.dataSets);
    QStringList rows;
    for (int row = 0; row < table.rowCount(); ++row)
        rows.append(table.index(row).data(VariableTable::GroupRole).toString() + '/'
                    + table.index(row).data(VariableTable::NameRole).toString() + '/'
                    + table.index(row).data(VariableTable::UnitRole).toString());
    QCOMPARE(
        rows,
        (QStringList{"Sys/Obs/", "Sys/Door/1", "Air/T in/C", "Air/T out/C", "Gas/Column 4/ppm"}));
    // A tick finds its column wherever the row stands.
    table.toggle(1, 1);
    QCOMPARE(other.source.checkedItemList(1), QList<int>{2});
    table.setDataSets(nullptr);
    QCOMPARE(table.rowCount(), 0);
}

void tst_VariableTable::namesWhatHasNoName()
{
    PlottedLog log(mixedLog());
    m_table->setDataSets(&log.dataSets);
    m_table->toggle(4, 2);
    QCOMPARE(log.source.checkedItemList(2), QList<int>{3});
    m_table->setDataSets(nullptr);
}

void tst_VariableTable::searches_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("found");

    const QStringList all{"Obs", "Time", "T", "RH", "CO2"};
    QTest::newRow("nothing") << "" << all;
    QTest::newRow("blanks") << "  " << all;
    QTest::newRow("part of names") << "t" << QStringList{"Time", "T"};
    QTest::newRow("other case") << "rh" << QStringList{"RH"};
    QTest::newRow("group") << "air" << QStringList{"T", "RH"};
    QTest::newRow("unit") << "ppm" << QStringList{"CO2"};
    QTest::newRow("words of both") << "air %" << QStringList{"RH"};
    QTest::newRow("words of neither") << "air ppm" << QStringList();
}

void tst_VariableTable::searches()
{
    QFETCH(QString, text);
    QFETCH(QStringList, found);
    m_table->setSearch(text);
    QCOMPARE(names(), found);
    QCOMPARE(m_table->count(), found.size());
}

void tst_VariableTable::followsTheDataSet()
{
    QSignalSpy count(m_table.data(), SIGNAL(countChanged()));
    m_log->dataSets.show(1);
    QCOMPARE(names(), (QStringList{"Obs", "Time", "CO2", "T"}));
    QCOMPARE(count.count(), 1);
    m_table->setSearch("air");
    QCOMPARE(names(), QStringList{"T"});
    m_log->dataSets.show(0);
    QCOMPARE(names(), (QStringList{"T", "RH"}));
}

void tst_VariableTable::staysWhereItIsForTheSameVariables()
{
    m_table->setSearch("R");
    m_log->source.setLeftVariable("RH");
    const QStringList listed = names();
    QSignalSpy reset(m_table.data(), SIGNAL(modelReset()));
    QSignalSpy told(m_table.data(), SIGNAL(dataChanged(QModelIndex, QModelIndex, QVector<int>)));
    m_log->dataSets.show(0);
    QCOMPARE(reset.count(), 0);
    QVERIFY(told.count() > 0);
    QCOMPARE(names(), listed);
    // No data set is shown with what was ticked in the one before.
    QCOMPARE(m_table->property("leftCount").toInt(), 0);
    m_log->dataSets.show(1);
    QVERIFY(reset.count() > 0);
}

void tst_VariableTable::tellsWhatIsOnAnAxis()
{
    QSignalSpy ticks(m_table.data(), SIGNAL(ticksChanged()));
    QCOMPARE(m_table->xName(), QString());
    VariableChoice choice;
    choice.x << "Obs";
    choice.left << "T"
                << "RH";
    choice.right << "T";
    choice.applyTo(&m_log->source);
    QCOMPARE(ticks.count(), 1);
    QCOMPARE(m_table->xName(), QString("Obs"));
    QCOMPARE(m_table->leftCount(), 2);
    QCOMPARE(m_table->rightCount(), 1);
    QVERIFY(cell(0, VariableTable::OnXRole).toBool());
    QVERIFY(!cell(0, VariableTable::OnLeftRole).toBool());
    QVERIFY(cell(2, VariableTable::OnLeftRole).toBool());
    QVERIFY(cell(2, VariableTable::OnRightRole).toBool());
    QVERIFY(!cell(3, VariableTable::OnRightRole).toBool());
    m_log->dataSets.show(1);
    QCOMPARE(m_table->xName(), QString());
    QCOMPARE(m_table->leftCount(), 0);
}

void tst_VariableTable::putsOneOnTheXAxis()
{
    QSignalSpy computed(&m_log->source, SIGNAL(graphDataUpdated()));
    m_table->toggle(1, 0);
    QCOMPARE(ticked(0), QStringList{"Time"});
    m_table->toggle(3, 0);
    QCOMPARE(ticked(0), QStringList{"RH"});
    QCOMPARE(computed.count(), 2);
    m_table->toggle(3, 0);
    QCOMPARE(ticked(0), QStringList{"RH"});
}

void tst_VariableTable::togglesOnce()
{
    QSignalSpy computed(&m_log->source, SIGNAL(graphDataUpdated()));
    m_table->setSearch("air");
    m_table->toggle(1, 1);
    QCOMPARE(ticked(1), QStringList{"RH"});
    m_table->toggle(1, 2);
    QCOMPARE(ticked(2), QStringList{"RH"});
    m_table->toggle(1, 1);
    QCOMPARE(ticked(1), QStringList());
    QCOMPARE(computed.count(), 3);
}

void tst_VariableTable::choosesListed()
{
    m_table->toggle(4, 1);
    m_table->setSearch("air");
    QSignalSpy computed(&m_log->source, SIGNAL(graphDataUpdated()));
    QCOMPARE(m_table->chooseListed(1), 0);
    QCOMPARE(ticked(1), (QStringList{"T", "RH", "CO2"}));
    QCOMPARE(computed.count(), 1);
    // The horizontal axis has room for one.
    QCOMPARE(m_table->chooseListed(0), 0);
    QCOMPARE(ticked(0), QStringList());
}

void tst_VariableTable::stopsAtTooMany()
{
    PlottedLog log(wideLog(120));
    m_table->setDataSets(&log.dataSets);
    m_table->toggle(110, 1);
    QCOMPARE(m_table->chooseListed(1), 70);
    QCOMPARE(m_table->leftCount(), 50);
    QVERIFY(log.source.checkedItemList(1).contains(110));
    QVERIFY(log.source.checkedItemList(1).contains(48));
    QVERIFY(!log.source.checkedItemList(1).contains(49));
    m_table->setDataSets(nullptr);
}

void tst_VariableTable::choosesNone()
{
    m_table->toggle(0, 0);
    m_table->toggle(2, 1);
    m_table->toggle(2, 2);
    m_table->setSearch("ppm"); // what is not listed goes, too
    QSignalSpy computed(&m_log->source, SIGNAL(graphDataUpdated()));
    m_table->chooseNone(1);
    QCOMPARE(ticked(1), QStringList());
    QCOMPARE(ticked(2), QStringList{"T"});
    QCOMPARE(computed.count(), 1);
    m_table->chooseNone(0);
    QCOMPARE(m_table->xName(), QString());
}

void tst_VariableTable::choosesTheLatest()
{
    PlottedLog log(wideLog(9));
    m_table->setDataSets(&log.dataSets);
    for (int row : {8, 0, 7, 1, 6, 2, 5})
        m_table->toggle(row, 1);
    m_table->toggle(0, 1);
    m_table->toggle(0, 1); // comes back as the last
    m_table->chooseLatest(1);
    QCOMPARE(log.source.checkedItemList(1), (QList<int>{0, 1, 2, 5, 6}));
    m_table->chooseLatest(1);
    QCOMPARE(m_table->leftCount(), 5);
    m_table->setDataSets(nullptr);
}

void tst_VariableTable::listsOnlyTheChosen()
{
    m_table->toggle(0, 0);
    m_table->toggle(2, 1);
    m_table->setChosenOnly(true);
    QCOMPARE(names(), (QStringList{"Obs", "T"}));
    // A row does not go from under the finger.
    m_table->toggle(1, 1);
    QCOMPARE(names(), (QStringList{"Obs", "T"}));
    m_table->toggle(1, 1);
    m_log->source.setRightVariable("CO2");
    QCOMPARE(names(), (QStringList{"Obs", "T", "CO2"}));
    m_log->dataSets.choose(1);
    QCOMPARE(names(), (QStringList{"Obs", "CO2", "T"}));
    m_table->setChosenOnly(false);
    QCOMPARE(m_table->count(), 4);
}

void tst_VariableTable::tellsColors()
{
    m_log->view.setLinesEnabled(LogViewerItem::LeftAxis, true);
    m_log->view.setLinesEnabled(LogViewerItem::RightAxis, true);
    QSignalSpy changed(m_table.data(), SIGNAL(dataChanged(QModelIndex, QModelIndex, QVector<int>)));
    m_table->toggle(0, 0);
    m_table->toggle(2, 1);
    m_table->toggle(2, 2);
    m_table->toggle(3, 1);
    QTRY_VERIFY(changed.last().at(2).value<QVector<int>>().contains(VariableTable::LeftColorRole));
    QCOMPARE(cell(2, VariableTable::LeftColorRole).toString(), QString("#D90C00"));
    QCOMPARE(cell(3, VariableTable::LeftColorRole).toString(), QString("#FF0000"));
    QCOMPARE(cell(2, VariableTable::RightColorRole).toString(), QString("#002E00"));
    QCOMPARE(cell(4, VariableTable::LeftColorRole).toString(), QString());
    QCOMPARE(cell(0, VariableTable::LeftColorRole).toString(), QString());
}

void tst_VariableTable::ignoresWhatIsNone()
{
    m_table->toggle(-1, 1);
    m_table->toggle(5, 1);
    m_table->toggle(0, 3);
    m_table->chooseNone(-1);
    m_table->chooseLatest(7);
    QCOMPARE(m_table->chooseListed(3), 0);
    QCOMPARE(ticked(1), QStringList());
    VariableTable empty;
    empty.toggle(0, 0);
    empty.chooseNone(1);
    QCOMPARE(empty.chooseListed(1), 0);
    QVERIFY(!empty.index(0).data(VariableTable::NameRole).isValid());
}

void tst_VariableTable::isQuickWithManyColumns()
{
    PlottedLog log(wideLog(10000));
    m_table->setDataSets(&log.dataSets);
    QCOMPARE(m_table->count(), 10000);
    QElapsedTimer timer;
    timer.start();
    for (const char *text : {"V", "V9", "V99", "V999", "V9999", "G99 V99", ""})
        m_table->setSearch(text);
    m_table->toggle(9999, 1);
    m_table->toggle(9999, 0);
    // A fraction of a second on any machine; work that grows with the square takes minutes.
    QVERIFY2(timer.elapsed() < 5000, qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(m_table->xName(), QString("V9999"));
    m_table->setDataSets(nullptr);
}

QTEST_MAIN(tst_VariableTable)
#include "tst_VariableTable.moc"

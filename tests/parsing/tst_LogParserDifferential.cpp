#include "ParserFixture.h"
#include "RandomLog.h"
#include "ReferenceLog.h"
#include "support/TestCompat.h"

/** Random logs read twice: by the parser, and by the plain reference. */
class tst_LogParserDifferential : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void randomLogs_data();
    void randomLogs();

private:
    void compareLog(quint32 seed);
    void compareBlock(const TabularParser &table, int index, const ReferenceBlock &expected);
    void compareHeader(const TabularParser &table, int index, const ReferenceBlock &expected);
    void compareData(const TabularParser &table, int index, const ReferenceBlock &expected);
    void compareGroups(const TabularParser &table, int index, const ReferenceBlock &expected);

    int m_blocks;
    int m_rows;
    int m_errors;
};

void tst_LogParserDifferential::randomLogs_data()
{
    QTest::addColumn<int>("firstSeed");
    for (int seed = 0; seed < 2000; seed += 100)
        QTest::newRow(QByteArray::number(seed).constData()) << seed;
}

void tst_LogParserDifferential::randomLogs()
{
    QFETCH(int, firstSeed);
    m_blocks = 0;
    m_rows = 0;
    m_errors = 0;
    for (int seed = firstSeed; seed < firstSeed + 100; ++seed) {
        compareLog(quint32(seed));
        if (QTest::currentTestFailed())
            QFAIL(qPrintable(QString::fromLatin1("seed %1").arg(seed)));
    }
    // The logs are worth comparing: most are read, with a good number of rows, and some are not.
    QVERIFY2(m_blocks > 100, QByteArray::number(m_blocks).constData());
    QVERIFY2(m_rows > 1000, QByteArray::number(m_rows).constData());
    QVERIFY2(m_errors > 0 && m_errors < 50, QByteArray::number(m_errors).constData());
}

void tst_LogParserDifferential::compareLog(quint32 seed)
{
    RandomLog log(seed);
    ParserFixture fixture(log.separator() == ',' ? LogParser::CsvType : LogParser::LogType);
    const QString path = fixture.dir.write(QLatin1String("random.log"), log.text());
    const ReferenceLog expected(path, QLatin1Char(log.separator()));

    QCOMPARE(fixture.parsePath(path), expected.error);
    QCOMPARE(fixture.count(), expected.blocks.size());
    QCOMPARE(fixture.table().rawData(), expected.rawRows);
    for (int i = 0; i < expected.blocks.size(); ++i) {
        compareBlock(fixture.table(), i, expected.blocks.at(i));
        m_rows += expected.blocks.at(i).observations.size();
    }
    m_blocks += expected.blocks.size();
    m_errors += expected.error.isEmpty() ? 0 : 1;
}

void tst_LogParserDifferential::compareBlock(const TabularParser &table, int index,
                                             const ReferenceBlock &expected)
{
    const LogDataSet *set = table.dataSets().at(index);
    QCOMPARE(set->dataSetIndex(), index);
    QCOMPARE(set->dataSetCreatedDate(), expected.createdDate);
    QCOMPARE(table.dataSets().at(index)->dataSetName(), expected.name(index));
    compareHeader(table, index, expected);
    compareData(table, index, expected);
    compareGroups(table, index, expected);
}

void tst_LogParserDifferential::compareHeader(const TabularParser &table, int index,
                                              const ReferenceBlock &expected)
{
    QCOMPARE(table.constHeader(index), QStringList(expected.constants.keys()));
    QCOMPARE(table.constData(index), expected.constants.values());
    QCOMPARE(table.constGroups(index), expected.constGroups);
    QCOMPARE(table.headerData(index), expected.headers);
    QCOMPARE(table.variables(index), expected.variables);
}

void tst_LogParserDifferential::compareData(const TabularParser &table, int index,
                                            const ReferenceBlock &expected)
{
    QCOMPARE(table.columnData(index), expected.columns);
    for (int column = 0; column < expected.columns.size(); ++column)
        QCOMPARE(table.dataForColumn(index, column), expected.columns.at(column));
    QCOMPARE(table.grid(index)->toLists(), expected.columns);
    QCOMPARE(valuesOf(table.observations(index)), expected.observations);
}

void tst_LogParserDifferential::compareGroups(const TabularParser &table, int index,
                                              const ReferenceBlock &expected)
{
    QList<QStringList> groups;
    const QStringList names = expected.groups.keys();
    for (int i = 0; i < names.size(); ++i)
        groups.append(QStringList(names.at(i)) + expected.groups.value(names.at(i)));
    QCOMPARE(namesOf(table.groups(index)), groups);
    for (int i = 0; i < names.size(); ++i)
        QCOMPARE(table.groupForName(names.at(i), index), table.groups(index).at(i));
}

QTEST_GUILESS_MAIN(tst_LogParserDifferential)
#include "tst_LogParserDifferential.moc"

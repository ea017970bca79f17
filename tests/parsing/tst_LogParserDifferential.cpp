#include "LogComparison.h"
#include "ParserFixture.h"
#include "RandomLog.h"
#include "RandomLogRows.h"
#include "support/TestCompat.h"

/**
 * Random logs read twice: by the parser, and by the plain reference. DATALOG_LOGS tells how many.
 */
class tst_LogParserDifferential : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void randomLogs_data();
    void randomLogs();

private:
    void compareLog(quint32 seed);

    int m_blocks;
    int m_rows;
    int m_errors;
};

void tst_LogParserDifferential::randomLogs_data()
{
    addRandomLogRows(2000);
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
    // The logs are worth comparing: most are read, with a good number of rows.
    QVERIFY2(m_blocks > 100, QByteArray::number(m_blocks).constData());
    QVERIFY2(m_rows > 500, QByteArray::number(m_rows).constData());
    QVERIFY2(m_errors < 50, QByteArray::number(m_errors).constData());
}

void tst_LogParserDifferential::compareLog(quint32 seed)
{
    RandomLog log(seed);
    ParserFixture fixture(log.separator() == ',' ? LogParser::CsvType : LogParser::LogType);
    const QString path = fixture.dir.write(QLatin1String("random.log"), log.text());
    const ReferenceLog expected(path, QLatin1Char(log.separator()));

    QCOMPARE(fixture.parsePath(path), expected.error);
    QCOMPARE(LogComparison::difference(fixture.table(), expected), QString());
    for (int i = 0; i < expected.blocks.size(); ++i)
        m_rows += expected.blocks.at(i).observations.size();
    m_blocks += expected.blocks.size();
    m_errors += expected.error.isEmpty() ? 0 : 1;
}

QTEST_GUILESS_MAIN(tst_LogParserDifferential)
#include "tst_LogParserDifferential.moc"

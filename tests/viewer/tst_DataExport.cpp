#include "viewer/DataExport.h"

#include "TemporaryLog.h"
#include "datasource/LogDataSourceItem.h"
#include "support/FullDisk.h"

#include <QtTest>

#include <sys/stat.h>

class tst_DataExport : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void writesNamesAndUnits();
    void writesTheLogsOwnTexts();
    void leavesCellsEmptyThatAreFiltered();
    void leavesOutRowsThatAreExcluded();
    void writesTheRowsOfTheWindow();
    void writesAVariableOfEachAxis();
    void writesManyRows();
    void makesNamesHarmless();
    void needsAHorizontalVariable();
    void tellsWhatCanNotBeWritten();
    void keepsTheOldFileWithoutSpace();
    void asksWhetherToGoOn();
    void givesUpForOtherData();

private:
    void open(const QByteArray &log);
    QString path() const { return m_log->directory() + "/data.csv"; }
    QStringList lines();

    QScopedPointer<TemporaryLog> m_log;
    QScopedPointer<LogDataSourceItem> m_source;
};

void tst_DataExport::init()
{
    open("[Header]\nCreated\t2020-01-01\n[Data]\n"
         "Sys\tSys\tAir\tAir\nObs\tTime\tT\tRH\n\thh:mm:ss\tC\t-\n"
         "1\t10:00:01\t21.50\t-1e2\n"
         "2\t10:00:02\t22.5\tx,y\n"
         "3\t10:00:03\t---\t53\n"
         "4\t10:00:04\t24.5\t54\n");
}

void tst_DataExport::cleanup()
{
    m_source.reset();
    m_log.reset();
}

void tst_DataExport::open(const QByteArray &log)
{
    m_log.reset(new TemporaryLog(log));
    m_source.reset(new LogDataSourceItem);
    m_source->setObservationFilterType(LogObservationSortFilterProxyModel::All);
    m_source->setLogFilePath(m_log->path());
    m_source->selectDataSet(0);
    m_source->updateVariableSelection(0, 1, true);
    m_source->updateVariableSelection(1, 2, true);
}

/** What a next export writes. */
QStringList tst_DataExport::lines()
{
    DataExport data(m_source.data());
    QFile file(path());
    if (!data.write(path()) || !file.open(QIODevice::ReadOnly))
        return QStringList(data.errorText());
    const QString text = QString::fromUtf8(file.readAll());
    return text.endsWith("\r\n") ? text.chopped(2).split("\r\n") : QStringList("no line end");
}

void tst_DataExport::writesNamesAndUnits()
{
    m_source->updateVariableSelection(2, 3, true);
    QCOMPARE(lines().first(), QString("Time (hh:mm:ss),T (C),RH"));
}

void tst_DataExport::writesTheLogsOwnTexts()
{
    m_source->updateVariableSelection(1, 3, true);
    QCOMPARE(lines().mid(1),
             (QStringList{"10:00:01,21.50,-1e2", "10:00:02,22.5,\"x,y\"", "10:00:03,,53",
                          "10:00:04,24.5,54"}));
}

void tst_DataExport::leavesCellsEmptyThatAreFiltered()
{
    m_source->updateVariableSelection(1, 3, true);
    m_source->buildFilter(2, 0, "22");
    QCOMPARE(lines().mid(1),
             (QStringList{"10:00:01,,-1e2", "10:00:02,22.5,\"x,y\"", "10:00:03,,53",
                          "10:00:04,24.5,54"}));
    // Of the horizontal variable nothing is left out.
    m_source->updateVariableSelection(0, 1, false);
    m_source->updateVariableSelection(0, 2, true);
    QCOMPARE(lines().value(1), QString("21.50,,-1e2"));
}

void tst_DataExport::leavesOutRowsThatAreExcluded()
{
    LogTableViewModel *table = m_source->tableModel();
    QVERIFY(table->setData(table->index(1, 0), Qt::Checked, Qt::CheckStateRole));
    QCOMPARE(lines().mid(1), (QStringList{"10:00:01,21.50", "10:00:03,", "10:00:04,24.5"}));
}

void tst_DataExport::writesTheRowsOfTheWindow()
{
    m_source->setObservationFilterType(LogObservationSortFilterProxyModel::Tail);
    m_source->setObservationRange(3);
    m_source->setObservationFrequency(2);
    QCOMPARE(lines().mid(1), (QStringList{"10:00:02,22.5", "10:00:04,24.5"}));
}

void tst_DataExport::writesAVariableOfEachAxis()
{
    m_source->updateVariableSelection(2, 2, true);
    m_source->updateVariableSelection(1, 0, true);
    QCOMPARE(lines().mid(0, 2),
             (QStringList{"Time (hh:mm:ss),Obs,T (C),T (C)", "10:00:01,1,21.50,21.50"}));
}

void tst_DataExport::writesManyRows()
{
    QByteArray log = "[Header]\nCreated\t2020-01-01\n[Data]\nS\tS\tS\nObs\tTime\tT\n\t\tC\n";
    for (int i = 0; i < 10000; ++i)
        log += QByteArray::number(i) + "\t10:00:00\t" + QByteArray::number(2 * i) + "\n";
    open(log);
    m_source->updateVariableSelection(0, 1, false);
    m_source->updateVariableSelection(0, 0, true);
    const QStringList all = lines();
    QCOMPARE(all.size(), 10001);
    QCOMPARE(all.at(4097), QString("4096,8192"));
    QCOMPARE(all.last(), QString("9999,19998"));
}

void tst_DataExport::makesNamesHarmless()
{
    open("[Header]\nCreated\t2020-01-01\n[Data]\nS\tS\tS\nObs\t=cmd()\t@a,b\n\t-\tC\n"
         "1\t=1+1\t2\n2\t10:00:01\t-3\n");
    QCOMPARE(lines(), (QStringList{"'=cmd(),\"'@a,b (C)\"", "'=1+1,2", "10:00:01,-3"}));
}

void tst_DataExport::needsAHorizontalVariable()
{
    m_source->updateVariableSelection(0, 1, false);
    DataExport data(m_source.data());
    QVERIFY(!data.write(path()));
    QCOMPARE(data.errorText(), QString("there is no variable on the X axis"));
    QVERIFY(!QFile::exists(path()));
}

void tst_DataExport::tellsWhatCanNotBeWritten()
{
    DataExport data(m_source.data());
    QVERIFY(!data.write(m_log->directory() + "/missing/data.csv"));
    QVERIFY(!data.errorText().isEmpty());
    QVERIFY(!data.write(m_log->directory()));
    QCOMPARE(data.errorText(), QString("Filename refers to a directory"));
    // As root, the file would replace the device.
    const QString pipe = m_log->directory() + "/pipe.csv";
    QCOMPARE(mkfifo(qPrintable(pipe), 0600), 0);
    QVERIFY(!data.write(pipe));
    QCOMPARE(data.errorText(), QString("it is no ordinary file"));
}

void tst_DataExport::keepsTheOldFileWithoutSpace()
{
    QFile old(path());
    QVERIFY(old.open(QIODevice::WriteOnly));
    old.write("old");
    old.close();
    DataExport data(m_source.data());
    {
        const FullDisk disk(20);
        QVERIFY(!data.write(path()));
    }
    QVERIFY(!data.errorText().isEmpty());
    QVERIFY(old.open(QIODevice::ReadOnly));
    QCOMPARE(old.readAll(), QByteArray("old"));
}

void tst_DataExport::asksWhetherToGoOn()
{
    DataExport data(m_source.data());
    QVector<double> parts;
    data.setWatcher([&parts](double part) {
        parts.append(part);
        return false;
    });
    QVERIFY(!data.write(path()));
    QCOMPARE(parts, QVector<double>{0});
    QCOMPARE(data.errorText(), QString("it was cancelled"));
    QVERIFY(!QFile::exists(path()));
    data.setWatcher([](double) { return true; });
    QVERIFY(data.write(path()));
}

/** What is read while a file is written would be mixed with what is there already. */
void tst_DataExport::givesUpForOtherData()
{
    DataExport data(m_source.data());
    data.setWatcher([this](double) {
        m_source->setLogFilePath(m_log->path());
        m_source->selectDataSet(0);
        return true;
    });
    QVERIFY(!data.write(path()));
    QCOMPARE(data.errorText(), QString("other data was opened meanwhile"));
    QVERIFY(!QFile::exists(path()));
}

QTEST_MAIN(tst_DataExport)
#include "tst_DataExport.moc"

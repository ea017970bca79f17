#include "bench/LogWriter.h"

#include "support/TestCompat.h"

#include <QBuffer>
#include <QTemporaryFile>
#include <QtTest>

class tst_LogWriter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void preamble();
    void firstCells();
    void everyRowIsComplete();
    void clockPassesMidnight();
    void rowHasUsualSize();
    void sameSizeGivesSameBytes();
    void noRows();
    void tooFewColumnsAreTwo();
    void replacesFile();
    void tellsWhyItFails();

private:
    static QByteArray text(int rows, int columns);
    static QList<QByteArray> dataRows(int rows, int columns);
};

QByteArray tst_LogWriter::text(int rows, int columns)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    return LogWriter(rows, columns).write(&buffer) ? buffer.data() : QByteArray();
}

QList<QByteArray> tst_LogWriter::dataRows(int rows, int columns)
{
    const QByteArray log = text(rows, columns);
    return log.left(log.size() - 1).split('\n').mid(7);
}

void tst_LogWriter::preamble()
{
    QCOMPARE(text(0, 7),
             QByteArray("[Header]\n"
                        "Created\t2016-03-14 16:38:02\n"
                        "Sys:Serial\tCC-1042\n"
                        "[Data]\n"
                        "Group0\tGroup0\tGroup0\tGroup0\tGroup0\tGroup1\tGroup1\n"
                        "Obs\tTime\tValue2\tValue3\tValue4\tValue5\tValue6\n"
                        "\thh:mm:ss\tV\tV\tV\tV\tV\n"));
}

void tst_LogWriter::firstCells()
{
    const QList<QByteArray> rows = dataRows(12, 4);
    QVERIFY(rows.at(0).startsWith("1\t00:00:00\t"));
    QVERIFY(rows.at(11).startsWith("12\t00:00:11\t"));
}

void tst_LogWriter::everyRowIsComplete()
{
    const QList<QByteArray> rows = dataRows(5000, 20);
    QCOMPARE(rows.size(), 5000);
    foreach (const QByteArray &row, rows) {
        const QList<QByteArray> cells = row.split('\t');
        QCOMPARE(cells.size(), 20);
        for (int column = 2; column < 20; ++column) {
            bool ok = false;
            cells.at(column).toDouble(&ok);
            QVERIFY2(ok, row.constData());
            QCOMPARE(cells.at(column).size(), column % 6 == 0 ? 7 : 6);
        }
    }
}

void tst_LogWriter::clockPassesMidnight()
{
    const QList<QByteArray> rows = dataRows(86401, 2);
    QCOMPARE(rows.at(3725), QByteArray("3726\t01:02:05"));
    QCOMPARE(rows.at(86399), QByteArray("86400\t23:59:59"));
    QCOMPARE(rows.at(86400), QByteArray("86401\t00:00:00"));
}

void tst_LogWriter::rowHasUsualSize()
{
    const int rows = 100000;
    const int size = text(rows, 20).size() / rows;
    QVERIFY2(size >= 140 && size <= 150, QByteArray::number(size).constData());
}

void tst_LogWriter::sameSizeGivesSameBytes()
{
    QCOMPARE(text(3000, 20), text(3000, 20));
    QVERIFY(text(3000, 20).startsWith(text(2999, 20)));
}

void tst_LogWriter::noRows()
{
    QCOMPARE(text(0, 3).count('\n'), 7);
    QCOMPARE(text(-1, 3), text(0, 3));
}

void tst_LogWriter::tooFewColumnsAreTwo()
{
    QCOMPARE(text(3, 0), text(3, 2));
}

void tst_LogWriter::replacesFile()
{
    QTemporaryFile file;
    QVERIFY(file.open());
    file.write(QByteArray(100000, 'x'));
    QVERIFY(file.flush());
    QString error = QLatin1String("untouched");
    QVERIFY(LogWriter(5, 3).write(file.fileName(), &error));
    QCOMPARE(error, QString());
    QFile written(file.fileName());
    QVERIFY(written.open(QIODevice::ReadOnly));
    QCOMPARE(written.readAll(), text(5, 3));
}

void tst_LogWriter::tellsWhyItFails()
{
    QString error;
    QVERIFY(!LogWriter(5, 3).write(QLatin1String("/no/such/folder/file.log"), &error));
    QVERIFY(!error.isEmpty());
}

QTEST_GUILESS_MAIN(tst_LogWriter)
#include "tst_LogWriter.moc"

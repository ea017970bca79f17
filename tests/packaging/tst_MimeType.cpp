#include "support/TestCompat.h"

#include <QMimeDatabase>

/** What Qt programs take logs for, by the installed MIME type. */
class tst_MimeType : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsLogsByContent_data();
    void tellsLogsByContent();
};

void tst_MimeType::tellsLogsByContent_data()
{
    QTest::addColumn<QString>("fileName");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("type");
    const QString ours = QLatin1String("text/x-datalog");
    const QByteArray rest("Created\t2016-03-14\n[Data]\n");
    QTest::newRow("log") << "a.log"
                         << "[Header]\n" + rest << ours;
    QTest::newRow("comma-separated") << "a.csv"
                                     << "[Header]\n" + rest << ours;
    QTest::newRow("no suffix") << "a"
                               << "[Header]\n" + rest << ours;
    QTest::newRow("lower case") << "a"
                                << "[header]\n" + rest << ours;
    QTest::newRow("mixed case") << "a.log"
                                << "[HEADer]\n" + rest << ours;
    QTest::newRow("DOS line ends") << "a.log"
                                   << "[Header]\r\n" + rest << ours;
    QTest::newRow("blanks around the mark") << "a.log"
                                            << " [Header] \n" + rest << ours;
    QTest::newRow("byte order mark") << "a.log"
                                     << "\xef\xbb\xbf[Header]\n" + rest << ours;
    QTest::newRow("own suffix") << "a.datalog" << QByteArray("anything") << ours;
    QTest::newRow("another log") << "a.log" << QByteArray("started\n") << "text/x-log";
    QTest::newRow("another table") << "a.csv" << QByteArray("a,b\n1,2\n") << "text/csv";
    QTest::newRow("more on the first line") << "a" << QByteArray("[Header]more\n") << "text/plain";
}

void tst_MimeType::tellsLogsByContent()
{
    QFETCH(QString, fileName);
    QFETCH(QByteArray, text);
    QFETCH(QString, type);
    const QMimeDatabase database;
    const QMimeType found = database.mimeTypeForFileNameAndData(fileName, text);
    QCOMPARE(found.name(), type);
}

QTEST_GUILESS_MAIN(tst_MimeType)
#include "tst_MimeType.moc"

#include "viewer/LogTroubles.h"

#include "TemporaryLog.h"
#include "parsing/FakePython.h"
#include "support/TestCompat.h"

class tst_LogTroubles : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void tellsThemByLine();
    void boundsTheirNumber();
    void forgetsThoseOfAnotherLog();
    void staysAliveMeanwhile();
    void endsWithItsLog();
    void readsWideEncodings();
    void tellsThoseOfASpreadsheet();
    void tellsThatTheConvertedTextIsGone();

private:
    QStringList texts() const;

    QScopedPointer<LogDataSourceItem> m_source;
    QScopedPointer<LogLoader> m_loader;
    QScopedPointer<LogTroubles> m_troubles;
};

void tst_LogTroubles::init()
{
    m_source.reset(new LogDataSourceItem);
    m_loader.reset(new LogLoader);
    m_loader->setSource(m_source.data());
    m_troubles.reset(new LogTroubles);
    m_troubles->setLoader(m_loader.data());
}

void tst_LogTroubles::cleanup()
{
    m_troubles.reset();
    m_loader.reset();
    m_source.reset();
}

QStringList tst_LogTroubles::texts() const
{
    QStringList texts;
    const QVariantList entries = m_troubles->entries();
    for (const QVariant &entry : entries)
        texts.append(entry.toMap().value("section").toString() + " | "
                     + entry.toMap().value("text").toString());
    return texts;
}

void tst_LogTroubles::tellsThemByLine()
{
    const TemporaryLog log(TemporaryLog::withUnits() + "note\n1\t2\t3\n");
    QVERIFY(m_loader->open(log.path()));
    QVERIFY(m_troubles->isScanning());
    QTRY_VERIFY(!m_troubles->isScanning());
    QCOMPARE(texts(),
             (QStringList{"Rows taken for remarks (1) | Line 26: note",
                          "Rows with too few cells (1) | Line 27: 3 cells for 4 columns"}));
    QCOMPARE(m_troubles->count(), 2.0);
    // By commas where the parser takes commas.
    const TemporaryLog csv("[Header]\nCreated,2020\n[Data]\nS,S,A\nO,T,X\n,,C\n1,2,3\n", "a.csv");
    QVERIFY(m_loader->open(csv.path()));
    QTRY_VERIFY(!m_troubles->isScanning());
    QCOMPARE(texts(), QStringList());
}

void tst_LogTroubles::boundsTheirNumber()
{
    const TemporaryLog log(TemporaryLog::withUnits() + QByteArray("note\n").repeated(1334));
    QVERIFY(m_loader->open(log.path()));
    QTRY_VERIFY(!m_troubles->isScanning());
    QCOMPARE(m_troubles->count(), 1334.0);
    QCOMPARE(m_troubles->entries().size(), 101);
    QCOMPARE(texts().last(), QString("Rows taken for remarks (1,334) | and 1,234 more"));
}

void tst_LogTroubles::forgetsThoseOfAnotherLog()
{
    const TemporaryLog log(TemporaryLog::withUnits() + "note\n");
    const TemporaryLog sound(TemporaryLog::withUnits());
    QVERIFY(m_loader->open(log.path()));
    QTRY_COMPARE(m_troubles->count(), 1.0);
    // Of the same log they stay until it is known anew.
    QVERIFY(m_loader->open(log.path()));
    QCOMPARE(m_troubles->count(), 1.0);
    QVERIFY(m_loader->open(sound.path()));
    QCOMPARE(m_troubles->count(), 0.0);
    QVERIFY(m_loader->open(log.path()));
    QTRY_COMPARE(m_troubles->count(), 1.0);
    QVERIFY(!m_loader->open("missing.log"));
    QCOMPARE(m_troubles->count(), 0.0);
}

void tst_LogTroubles::staysAliveMeanwhile()
{
    const TemporaryLog log(TemporaryLog::withUnits()
                           + QByteArray("1\t11:00:00\t500\t1.5\n").repeated(400000) + "note\n");
    QVERIFY(m_loader->open(log.path()));
    int events = 0;
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [&events] { ++events; });
    timer.start(0);
    QTRY_VERIFY_WITH_TIMEOUT(!m_troubles->isScanning(), 30000);
    QVERIFY2(events >= 2, qPrintable(QString::number(events)));
    QCOMPARE(texts(), QStringList("Rows taken for remarks (1) | Line 400,026: note"));
}

void tst_LogTroubles::endsWithItsLog()
{
    const TemporaryLog log(TemporaryLog::withUnits()
                           + QByteArray("1\t11:00:00\t500\t1.5\n").repeated(100000));
    QVERIFY(m_loader->open(log.path()));
    QVERIFY(m_troubles->isScanning());
    QVERIFY(!m_loader->open("missing.log"));
    QVERIFY(!m_troubles->isScanning());
    QVERIFY(m_loader->open(log.path()));
    m_troubles.reset(); // in the midst of it
}

void tst_LogTroubles::readsWideEncodings()
{
    const QString text = QString::fromLatin1(TemporaryLog::withUnits()) + "B\xfcro\n";
    QByteArray bytes("\xff\xfe", 2);
    for (const QChar &c : text)
        bytes += QByteArray(1, char(c.cell())) + QByteArray(1, char(c.row()));
    const TemporaryLog log(bytes);
    QVERIFY2(m_loader->open(log.path()), qPrintable(m_loader->errorText()));
    QTRY_VERIFY(!m_troubles->isScanning());
    QCOMPARE(texts().size(), 1);
    QVERIFY(texts().at(0).startsWith("Rows taken for remarks (1) | Line 26: B"));
}

/** The script writes what it makes of the spreadsheet's name into a file of its own. */
void tst_LogTroubles::tellsThoseOfASpreadsheet()
{
    const FakePython python("cp \"$2.txt\" \"$FAKE/converted.csv\"; echo \"$FAKE/converted.csv\"");
    const TemporaryLog sheet("PK: no text at all", "sheet.xlsx");
    const QByteArray text
        = "[Header]\nCreated,2020\n[Data]\nS,S,A\nO,T,X\n,,C\n1,2,3\nnote\n1,2,3,4\n";
    QFile converted(sheet.path() + ".txt");
    QVERIFY(converted.open(QIODevice::WriteOnly));
    QCOMPARE(converted.write(text), qint64(text.size()));
    converted.close();
    const QStringList found{"Rows taken for remarks (1) | Line 8: note",
                            "Rows with too many cells (1) | Line 9: 4 cells for 3 columns"};
    QVERIFY2(m_loader->open(sheet.path()), qPrintable(m_loader->errorText()));
    QTRY_VERIFY(!m_troubles->isScanning());
    QCOMPARE(texts(), found);
    QVERIFY(m_troubles->isConverted());
    QCOMPARE(m_troubles->entries().at(0).toMap().value("row").toInt(), 1);
    QVERIFY(m_loader->refresh());
    QTRY_VERIFY(!m_troubles->isScanning());
    QCOMPARE(texts(), found);
    const TemporaryLog log;
    QVERIFY(m_loader->open(log.path()));
    QVERIFY(!m_troubles->isConverted());
}

void tst_LogTroubles::tellsThatTheConvertedTextIsGone()
{
    const FakePython python(
        "printf '[Header]\\nCreated\\n' > \"$FAKE/a.csv\"; echo \"$FAKE/a.csv\"");
    const TemporaryLog sheet("PK: no text at all", "sheet.xls");
    connect(m_source.data(), &LogDataSourceItem::logFileLoaded, this,
            [&python] { QVERIFY(QFile::remove(python.filePath("a.csv"))); });
    QVERIFY2(m_loader->open(sheet.path()), qPrintable(m_loader->errorText()));
    QVERIFY(!m_troubles->isScanning());
    QCOMPARE(m_troubles->count(), 1.0);
    QCOMPARE(texts(),
             QStringList("Spreadsheet | The text that it was converted to is gone, so it was "
                         "not looked through for rows that were not taken."));
}

QTEST_MAIN(tst_LogTroubles)
#include "tst_LogTroubles.moc"

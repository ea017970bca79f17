#include "viewer/TroubleScan.h"

#include "support/TestCompat.h"

/** What of a log is told not to have been taken as it stands. */
class tst_TroubleScan : public QObject
{
    Q_OBJECT

private slots:
    void findsTroubles_data();
    void findsTroubles();
    void keepsTheFirst();
    void shortensTexts();
    void knowsTheRows();
};

namespace
{

const char kHeader[] = "[Header]\nCreated\t2020\n[Data]\n";
const char kColumns[] = "S\tS\tA\tA\nObs\tTime\tT\tP\n\t-\tC\tkPa\n";

TroubleScan scanOf(const QByteArray &text, char separator = '\t')
{
    TroubleScan scan(separator);
    QList<QByteArray> lines = text.split('\n');
    if (lines.last().isEmpty())
        lines.removeLast();
    for (const QByteArray &line : lines)
        scan.takeLine(line.constData(), line.size());
    scan.end();
    return scan;
}

QStringList findings(const TroubleScan &scan)
{
    QStringList result;
    for (int kind = 0; kind < TroubleScan::KindCount; ++kind) {
        for (const TroubleScan::Finding &finding : scan.findings(TroubleScan::Kind(kind)))
            result.append(QString("%1 %2: %3").arg(kind).arg(finding.line).arg(finding.text));
    }
    return result;
}

QString finding(TroubleScan::Kind kind, int line, const char *text)
{
    return QString("%1 %2: %3").arg(kind).arg(line).arg(QString::fromUtf8(text));
}

} // namespace

void tst_TroubleScan::findsTroubles_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<char>("separator");
    QTest::addColumn<QStringList>("found");

    const QByteArray start = QByteArray(kHeader) + kColumns;
    const QByteArray header = kHeader;
    typedef TroubleScan T;
    const auto add = [](const char *name, const QByteArray &text, const QStringList &found) {
        QTest::newRow(name) << text << '\t' << found;
    };
    const auto addOne = [&add](const char *name, const QByteArray &text, T::Kind kind, int line,
                               const char *told) { add(name, text, {finding(kind, line, told)}); };
    add("nothing", QByteArray(), {});
    add("sound", start + "1\t10:00:00\t20\t100\n", {});
    add("carriage returns", start + "1\t10:00:00\t20\t100\r\n", {});
    add("last cells empty", start + "1\t2\t3\t\n", {});
    addOne("remark", start + "1\t2\t3\t4\ndoor opened\n", T::Remark, 8, "door opened");
    addOne("remark of two cells", start + "door\topened\n", T::Remark, 7, "door\topened");
    addOne("empty line", start + "1\t2\t3\t4\n \t\n", T::Remark, 8, "an empty line");
    addOne("data mark among rows", start + "[Data]\n", T::Remark, 7, "[Data]");
    addOne("short row", start + "1\t2\t3\n", T::ShortRow, 7, "3 cells for 4 columns");
    addOne("too few with empty ones", header + "S\tS\tA\tA\tA\nO\tT\tX\tY\tZ\n\t-\tC\n1\t2\t3\t\n",
           T::ShortRow, 7, "3 cells for 5 columns");
    addOne("long row", start + "1\t2\t3\t4\t5\n", T::LongRow, 7, "5 cells for 4 columns");
    addOne("first cell empty", start + "\t2\t3\t4\n", T::ShiftedRow, 7,
           "its cells stand too far left by 1");
    addOne("nameless column", header + "S\tS\tA\nObs\t\tT\n\t-\tC\n", T::NamelessColumn, 5,
           "column 2");
    addOne("names missing at the end", header + "S\tS\tA\nObs\tTime\n\t-\tC\n", T::NamelessColumn,
           5, "column 3");
    addOne("more names than groups", header + "S\tS\nObs\tTime\tT\n\t-\n", T::Header, 5,
           "3 names for 2 groups: the last names are left out");
    addOne("first group empty", header + "\tS\tA\nObs\tTime\n\t-\tC\n", T::Header, 4,
           "the first groups are empty, so the others stand too far left");
    addOne("first unit not empty", header + "S\tS\tA\nObs\tTime\tT\n-\t-\tC\n", T::Header, 6,
           "the first unit is not empty, so units stand one column too far right");
    addOne("two units empty", header + "S\tS\tA\nObs\tTime\tT\n\t\tC\n", T::Header, 6,
           "several units at the start are empty, so the others stand too far left");
    addOne("ends in a header", start + "1\t2\t3\t4\n[header]\nCreated\t2021\n", T::Header, 9,
           "the log ends here, before the data of its last data set");
    add("mark among the header rows", header + "S\tS\tA\n[Header]\n\t-\tC\n",
        {finding(T::Header, 5, "[Header] stands among the rows of groups, names and units"),
         finding(T::NamelessColumn, 5, "column 2"), finding(T::NamelessColumn, 5, "column 3")});
    add("second data set",
        start + "[Header]\nCreated\t2021\n[data]\nS\tS\tA\nO\tT\tX\n\t\tC\n1\t2\t3\n1\t2\t3\t4\n",
        {finding(T::Header, 12,
                 "several units at the start are empty, so the others stand too far left"),
         finding(T::LongRow, 14, "4 cells for 3 columns")});
    QTest::newRow("commas") << QByteArray(start).replace('\t', ',') + ",2,3,4\n1,2,3,\n1,2,3\n"
                            << ',' << QStringList(finding(T::ShortRow, 9, "3 cells for 4 columns"));
}

void tst_TroubleScan::findsTroubles()
{
    QFETCH(QByteArray, text);
    QFETCH(char, separator);
    QFETCH(QStringList, found);
    const TroubleScan scan = scanOf(text, separator);
    QCOMPARE(findings(scan), found);
    QCOMPARE(scan.count(), qint64(found.size()));
}

void tst_TroubleScan::keepsTheFirst()
{
    const TroubleScan scan
        = scanOf(QByteArray(kHeader) + kColumns + QByteArray("note\n").repeated(1334));
    QCOMPARE(scan.findings(TroubleScan::Remark).size(), int(TroubleScan::MostKept));
    QCOMPARE(scan.findings(TroubleScan::Remark).last().line, qint64(106));
    QCOMPARE(scan.count(TroubleScan::Remark), qint64(1334));
    QCOMPARE(scan.count(), qint64(1334));
}

void tst_TroubleScan::shortensTexts()
{
    const QByteArray umlauts = QByteArray("\xc3\xbc").repeated(5000);
    const TroubleScan scan = scanOf(QByteArray(kHeader) + kColumns + umlauts + '\n');
    const QString text = scan.findings(TroubleScan::Remark).value(0).text;
    QCOMPARE(text, QString(120, QChar(0xfc)) + QChar(0x2026));
}

void tst_TroubleScan::knowsTheRows()
{
    const QByteArray row = "1\t10:00:00\t3\t4\n";
    const QByteArray block = QByteArray(kHeader) + kColumns + row + "note\n" + row;
    const TroubleScan scan = scanOf(block + block + row + "1\t2\t3\n");
    const QList<TroubleScan::Finding> remarks = scan.findings(TroubleScan::Remark);
    QCOMPARE(remarks.size(), 2);
    QCOMPARE(remarks.at(0).dataSet, 0);
    QCOMPARE(remarks.at(0).row, 1);
    QCOMPARE(remarks.at(1).dataSet, 1);
    QCOMPARE(remarks.at(1).row, 1);
    QCOMPARE(scan.findings(TroubleScan::ShortRow).value(0).row, 4);
    const TroubleScan header = scanOf(block + kHeader + "S\n");
    QCOMPARE(header.findings(TroubleScan::Header).size(), 1);
    QCOMPARE(header.findings(TroubleScan::Header).at(0).row, -1);
}

QTEST_GUILESS_MAIN(tst_TroubleScan)
#include "tst_TroubleScan.moc"

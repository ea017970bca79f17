#include "viewer/CsvText.h"

#include <QtTest>

class tst_CsvText : public QObject
{
    Q_OBJECT

private slots:
    void writesCells_data();
    void writesCells();
};

void tst_CsvText::writesCells_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("cell");

    QTest::newRow("nothing") << ""
                             << "";
    QTest::newRow("number") << "25.50"
                            << "25.50";
    QTest::newRow("negative number") << "-0.5"
                                     << "-0.5";
    QTest::newRow("number with a plus") << "+1e-3"
                                        << "+1e-3";
    QTest::newRow("no number") << "nan"
                               << "nan";
    QTest::newRow("clock time") << "10:00:01"
                                << "10:00:01";
    QTest::newRow("comma") << "1,5"
                           << "\"1,5\"";
    QTest::newRow("quote") << "5\" tube"
                           << "\"5\"\" tube\"";
    QTest::newRow("line break") << "a\nb"
                                << "\"a\nb\"";
    QTest::newRow("blank at an end") << "a "
                                     << "\"a \"";
    QTest::newRow("blank inside") << "a b"
                                  << "a b";
    QTest::newRow("formula") << "=1+2"
                             << "'=1+2";
    QTest::newRow("plus") << "+cmd"
                          << "'+cmd";
    QTest::newRow("minus") << "-5+x"
                           << "'-5+x";
    QTest::newRow("only a minus") << "-"
                                  << "'-";
    QTest::newRow("at") << "@SUM(A1)"
                        << "'@SUM(A1)";
    QTest::newRow("tab") << "\tx"
                         << "'\tx";
    QTest::newRow("carriage return") << "\rx"
                                     << "\"'\rx\"";
    QTest::newRow("apostrophe") << "'t Hooft"
                                << "''t Hooft";
    QTest::newRow("formula with quotes") << "=A(\"b\",1)"
                                         << "\"'=A(\"\"b\"\",1)\"";
    QTest::newRow("later signs") << "a=b"
                                 << "a=b";
    QTest::newRow("other letters") << QString::fromUtf8("µmol") << QString::fromUtf8("µmol");
}

void tst_CsvText::writesCells()
{
    QFETCH(QString, text);
    QTEST(CsvText::cell(text), "cell");
}

QTEST_APPLESS_MAIN(tst_CsvText)
#include "tst_CsvText.moc"

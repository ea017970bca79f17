#include "viewer/CriterionText.h"

#include <QtTest>

class tst_CriterionText : public QObject
{
    Q_OBJECT

private slots:
    void reads_data();
    void reads();
    void refuses_data();
    void refuses();
};

void tst_CriterionText::reads_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("variable");
    QTest::addColumn<int>("operatorIndex");
    QTest::addColumn<QString>("value");

    QTest::newRow("greater") << "T>25.5"
                             << "T" << 0 << "25.5";
    QTest::newRow("greater or equal") << "T>=25.5"
                                      << "T" << 1 << "25.5";
    QTest::newRow("less") << "T<25.5"
                          << "T" << 2 << "25.5";
    QTest::newRow("less or equal") << "T<=25.5"
                                   << "T" << 3 << "25.5";
    QTest::newRow("equal") << "T=25.5"
                           << "T" << 4 << "25.5";
    QTest::newRow("equal, doubled") << "T==25.5"
                                    << "T" << 4 << "25.5";
    QTest::newRow("not equal") << "T!=25.5"
                               << "T" << 5 << "25.5";
    QTest::newRow("blanks") << "  T air >= 25.5 "
                            << "T air" << 1 << "25.5";
    QTest::newRow("sign and exponent") << "T<-1e-3"
                                       << "T" << 2 << "-1e-3";
    QTest::newRow("operator in the name") << "a>b>=3"
                                          << "a>b" << 1 << "3";
    QTest::newRow("beyond ASCII") << QString::fromUtf8("µ>1") << QString::fromUtf8("µ") << 0 << "1";
}

void tst_CriterionText::reads()
{
    QFETCH(QString, text);
    const CriterionText criterion = CriterionText::read(text);
    QVERIFY(criterion.isValid());
    QTEST(criterion.variable, "variable");
    QTEST(criterion.operatorIndex, "operatorIndex");
    QTEST(criterion.value, "value");
}

void tst_CriterionText::refuses_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("nothing") << "";
    QTest::newRow("no operator") << "Tair";
    QTest::newRow("no variable") << ">=25.5";
    QTest::newRow("no value") << "Tair>=";
    QTest::newRow("no number") << "Tair>=warm";
    QTest::newRow("number and unit") << "Tair>=25 C";
    QTest::newRow("decimal comma") << "Tair>=25,5";
    QTest::newRow("infinite") << "Tair>inf";
    QTest::newRow("not a number") << "Tair!=nan";
    QTest::newRow("too large to compare with") << "Tair<1e300";
    QTest::newRow("turned operator") << "Tair=>25";
    QTest::newRow("other operator") << "Tair<>25";
}

void tst_CriterionText::refuses()
{
    QFETCH(QString, text);
    QVERIFY(!CriterionText::read(text).isValid());
}

QTEST_GUILESS_MAIN(tst_CriterionText)
#include "tst_CriterionText.moc"

#include "viewer/NameSuggestions.h"

#include <QtTest>

class tst_NameSuggestions : public QObject
{
    Q_OBJECT

private slots:
    void measuresDistance_data();
    void measuresDistance();
    void findsTheClosest_data();
    void findsTheClosest();
    void joins();
};

void tst_NameSuggestions::measuresDistance_data()
{
    QTest::addColumn<QString>("a");
    QTest::addColumn<QString>("b");
    QTest::addColumn<int>("distance");

    QTest::newRow("equal") << "Tair"
                           << "Tair" << 0;
    QTest::newRow("case") << "tair"
                          << "TAIR" << 0;
    QTest::newRow("replaced") << "Tair"
                              << "Tain" << 1;
    QTest::newRow("left out") << "Tair"
                              << "Tai" << 1;
    QTest::newRow("put in") << "Tair"
                            << "Taair" << 1;
    QTest::newRow("swapped") << "Tair"
                             << "Tiar" << 1;
    QTest::newRow("first from nothing") << ""
                                        << "Tair" << 4;
    QTest::newRow("second from nothing") << "Tair"
                                         << "" << 4;
    QTest::newRow("both nothing") << ""
                                  << "" << 0;
    QTest::newRow("classic") << "kitten"
                             << "sitting" << 3;
}

void tst_NameSuggestions::measuresDistance()
{
    QFETCH(QString, a);
    QFETCH(QString, b);
    QTEST(NameSuggestions::editDistance(a, b), "distance");
    QTEST(NameSuggestions::editDistance(b, a), "distance");
}

void tst_NameSuggestions::findsTheClosest_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("closest");

    QTest::newRow("slip") << "Tiar" << QStringList{"Tair"};
    QTest::newRow("case") << "TAIR" << QStringList{"Tair"};
    QTest::newRow("best first") << "Tset1" << QStringList{"Tset"};
    QTest::newRow("beginning") << "PARl" << QStringList{"PARleaf"};
    QTest::newRow("no more than three") << "T" << QStringList{"Tair", "Tset", "Tdew"};
    QTest::newRow("told once") << "CO" << QStringList{"CO2"};
    QTest::newRow("several slips away") << "Tlaef1" << QStringList{"Tleaf"};
    QTest::newRow("equally near") << "Tsir" << QStringList{"Tair"};
    QTest::newRow("one letter is no hint") << "q" << QStringList();
    QTest::newRow("nothing near") << "Voltage" << QStringList();
    QTest::newRow("nothing at all") << "" << QStringList();
}

void tst_NameSuggestions::findsTheClosest()
{
    const QStringList names{"Tair", "Tset", "Tdew", "Tleaf", "RH1", "CO2", "CO2", "PAR", "PARleaf"};
    QFETCH(QString, name);
    QTEST(NameSuggestions::closest(name, names), "closest");
}

void tst_NameSuggestions::joins()
{
    QCOMPARE(NameSuggestions::joined({}), QString());
    QCOMPARE(NameSuggestions::joined({"a"}), QString("a"));
    QCOMPARE(NameSuggestions::joined({"a", "b"}), QString("a or b"));
    QCOMPARE(NameSuggestions::joined({"a", "b", "c"}), QString("a, b or c"));
}

QTEST_GUILESS_MAIN(tst_NameSuggestions)
#include "tst_NameSuggestions.moc"

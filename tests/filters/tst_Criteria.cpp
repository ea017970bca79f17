#include "filters/Criteria.h"

#include "filters/LogDataSetFilter.h"
#include "model/NumberText.h"
#include "support/TestCompat.h"

#include <QPointer>
#include <QScopedPointer>

typedef LogDataSetFilter::Builder Builder;

namespace
{

LogDataSetFilter *makeFilter(const char *variable, int filterOperator, float value)
{
    Builder builder;
    builder.variable(QString::fromUtf8(variable)).filterOperator(filterOperator).value(value);
    return new LogDataSetFilter(&builder, nullptr);
}

QStringList split(const QString &texts)
{
    return texts.split(QLatin1Char(' '));
}

/** The values kept, worked out on numbers that were read before. */
QStringList applyToNumbers(const Criteria &criteria, const QString &name, const QStringList &values)
{
    const QVector<LogDataSetFilter *> filters = criteria.participating(name);
    QStringList result = values;
    for (int i = 0; i < values.size(); ++i) {
        const QByteArray text = values.at(i).toUtf8();
        bool ok = false;
        const double number = NumberText::toDouble(text.constData(), text.size(), &ok);
        const float x = NumberText::toFloat(number);
        for (int f = 0; f < filters.size(); ++f) {
            if (!filters.at(f)->accepts(x))
                result[i] = QLatin1String("---");
        }
    }
    return result;
}

QStringList awkwardTexts()
{
    QStringList texts;
    texts << split(QLatin1String("0 -0 1 -1 3 3.0 03 +3 3. .5 5e-1 1e3 1e39 -1e39 1e400 -1e400"));
    texts << split(QLatin1String("1e38 3.4028234663852886e38 3.4028235677973366e38 3.5e38 1e-46"));
    texts << split(QLatin1String("1e-45 -1e-46 1e-320 1e-400 inf -inf nan 0x10 1,5 abc --- 1_000"));
    texts << split(QLatin1String("0.1 0.10000000149011612 16777217 16777216 123456789012345678"));
    texts << QString() << QLatin1String(" 3 ") << QLatin1String("\t3") << QLatin1String("3 4");
    texts << QLatin1String("3\r") << QString(QChar(0x663)) << QString(QChar(0xff13));
    texts << QString::fromLatin1("3\0", 2) << QLatin1String("1e5000") << QLatin1String("-.5e+2");
    return texts;
}

} // namespace

class tst_Criteria : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsOrder();
    void ignoresNull();
    void takesFiltersFromTheirParent();
    void removesEveryOccurrence();
    void deletesOnRemovalWithoutListing();
    void clears();
    void clearsNothing();
    void deletesItsFiltersAtTheEnd();
    void applies_data();
    void applies();
    void leavesValuesWhenInactive();
    void appliesAnUnknownOperatorToNothing();
    void tellsParticipants();
    void agreesOnTextsAndNumbers_data();
    void agreesOnTextsAndNumbers();
};

void tst_Criteria::keepsOrder()
{
    Criteria criteria;
    QVERIFY(criteria.filters().isEmpty());
    LogDataSetFilter *second = makeFilter("b", 0, 1);
    LogDataSetFilter *first = makeFilter("c", 0, 1);
    LogDataSetFilter *third = makeFilter("a", 0, 1);
    criteria.add(first);
    criteria.add(second);
    criteria.add(third);
    QCOMPARE(criteria.filters(), QList<LogDataSetFilter *>() << first << second << third);
    criteria.remove(second);
    QCOMPARE(criteria.filters(), QList<LogDataSetFilter *>() << first << third);
}

void tst_Criteria::ignoresNull()
{
    Criteria criteria;
    criteria.add(nullptr);
    QVERIFY(criteria.filters().isEmpty());
    LogDataSetFilter *filter = makeFilter("x", 0, 1);
    criteria.add(filter);
    criteria.remove(nullptr);
    QCOMPARE(criteria.filters(), QList<LogDataSetFilter *>() << filter);
}

void tst_Criteria::takesFiltersFromTheirParent()
{
    Criteria criteria;
    QScopedPointer<QObject> parent(new QObject);
    QPointer<LogDataSetFilter> filter = makeFilter("x", 0, 1);
    filter->setParent(parent.data());
    criteria.add(filter);
    parent.reset();
    QVERIFY(filter);
    QCOMPARE(criteria.filters(), QList<LogDataSetFilter *>() << filter.data());
}

void tst_Criteria::removesEveryOccurrence()
{
    Criteria criteria;
    QPointer<LogDataSetFilter> twice = makeFilter("x", 0, 1);
    LogDataSetFilter *other = makeFilter("x", 0, 1);
    criteria.add(twice);
    criteria.add(other);
    criteria.add(twice);
    QCOMPARE(criteria.filters().size(), 3);
    criteria.remove(twice);
    QVERIFY(!twice);
    QCOMPARE(criteria.filters(), QList<LogDataSetFilter *>() << other);
}

void tst_Criteria::deletesOnRemovalWithoutListing()
{
    Criteria criteria;
    LogDataSetFilter *listed = makeFilter("x", 0, 1);
    QPointer<LogDataSetFilter> stranger = makeFilter("x", 0, 1);
    criteria.add(listed);
    criteria.remove(stranger);
    QVERIFY(!stranger);
    QCOMPARE(criteria.filters(), QList<LogDataSetFilter *>() << listed);
}

void tst_Criteria::clears()
{
    Criteria criteria;
    QPointer<LogDataSetFilter> twice = makeFilter("x", 0, 1);
    QPointer<LogDataSetFilter> once = makeFilter("y", 0, 1);
    criteria.add(twice);
    criteria.add(once);
    criteria.add(twice);
    criteria.clear();
    QVERIFY(criteria.filters().isEmpty());
    QVERIFY(!twice);
    QVERIFY(!once);
}

void tst_Criteria::clearsNothing()
{
    Criteria criteria;
    criteria.clear();
    QVERIFY(criteria.filters().isEmpty());
}

void tst_Criteria::deletesItsFiltersAtTheEnd()
{
    QPointer<LogDataSetFilter> twice = makeFilter("x", 0, 1);
    {
        Criteria criteria;
        criteria.add(twice);
        criteria.add(twice);
        QVERIFY(twice);
    }
    QVERIFY(!twice);
}

void tst_Criteria::applies_data()
{
    QTest::addColumn<QString>("criteria"); // name operator value, separated by blanks and ;
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("values");
    QTest::addColumn<QString>("expected");

    QTest::newRow("text reads as 0") << "x 0 3"
                                     << "x"
                                     << "5 abc 12"
                                     << "5 --- 12";
    QTest::newRow("text is kept as 0") << "x 2 3"
                                       << "x"
                                       << "5 abc 1"
                                       << "--- abc 1";
    QTest::newRow("no criteria") << ""
                                 << "x"
                                 << "5 abc 12"
                                 << "5 abc 12";
    QTest::newRow("case of the name") << "co2 0 3"
                                      << "CO2"
                                      << "2 4"
                                      << "--- 4";
    QTest::newRow("other variable") << "H2O 0 3"
                                    << "CO2"
                                    << "2 4"
                                    << "2 4";
    QTest::newRow("between, bounds out") << "x 0 3;x 2 10"
                                         << "x"
                                         << "3 3.5 9.5 10 11"
                                         << "--- 3.5 9.5 --- ---";
    QTest::newRow("order does not matter") << "x 2 10;x 0 3"
                                           << "x"
                                           << "3 3.5 9.5 10 11"
                                           << "--- 3.5 9.5 --- ---";
    QTest::newRow("contradiction") << "x 0 3;x 2 3"
                                   << "x"
                                   << "2 3 4"
                                   << "--- --- ---";
    // The mark itself would read as 0: the second criterion tests what came in.
    QTest::newRow("tests the input") << "x 0 3;x 4 0"
                                     << "x"
                                     << "0 3 4"
                                     << "--- --- ---";
    QTest::newRow("same twice") << "x 0 3;x 0 3"
                                << "x"
                                << "2 4"
                                << "--- 4";
    QTest::newRow("only its own") << "x 0 3;y 0 100"
                                  << "x"
                                  << "2 4"
                                  << "--- 4";
    QTest::newRow("mark on input") << "x 0 3"
                                   << "x"
                                   << "--- 4"
                                   << "--- 4";
    QTest::newRow("mark on input reads as 0") << "x 4 0"
                                              << "x"
                                              << "--- 4"
                                              << "--- ---";
    QTest::newRow("single precision") << "x 4 0.1"
                                      << "x"
                                      << "0.1 0.1000000001 0.10001"
                                      << "0.1 0.1000000001 ---";
    QTest::newRow("not equal keeps NaN") << "x 5 3"
                                         << "x"
                                         << "nan 3 4"
                                         << "nan --- 4";
    QTest::newRow("others reject NaN") << "x 1 -1e30"
                                       << "x"
                                       << "nan 3 4"
                                       << "--- 3 4";
    QTest::newRow("decimal comma is no number") << "x 0 1"
                                                << "x"
                                                << "1,5 1.5"
                                                << "--- 1.5";
    QTest::newRow("empty cell reads as 0") << "x 0 -1"
                                           << "x"
                                           << " 3"
                                           << " 3";
}

void tst_Criteria::applies()
{
    QFETCH(QString, criteria);
    QFETCH(QString, name);
    QFETCH(QString, values);

    Criteria under;
    foreach (const QString &text, criteria.split(QLatin1Char(';'))) {
        const QStringList parts = split(text);
        if (parts.size() != 3)
            continue;
        under.add(makeFilter(parts.at(0).toUtf8().constData(), parts.at(1).toInt(),
                             parts.at(2).toFloat()));
    }
    const QStringList input = split(values);
    const QStringList result = under.applyFilters(name, input);
    QTEST(result.join(QLatin1String(" ")), "expected");
    QCOMPARE(input.join(QLatin1String(" ")), values);
    QCOMPARE(applyToNumbers(under, name, input), result);
}

void tst_Criteria::leavesValuesWhenInactive()
{
    Criteria criteria;
    LogDataSetFilter *filter = makeFilter("x", 0, 3);
    criteria.add(filter);
    const QStringList values = split(QLatin1String("2 4"));
    QCOMPARE(criteria.applyFilters(QLatin1String("x"), values), split(QLatin1String("--- 4")));
    filter->setActive(false);
    QCOMPARE(criteria.applyFilters(QLatin1String("x"), values), values);
    QVERIFY(criteria.participating(QLatin1String("x")).isEmpty());
}

void tst_Criteria::appliesAnUnknownOperatorToNothing()
{
    Criteria criteria;
    criteria.add(makeFilter("x", 6, 3));
    criteria.add(makeFilter("x", -1, 3));
    const QStringList values = split(QLatin1String("2 3 4 nan abc"));
    QCOMPARE(criteria.applyFilters(QLatin1String("x"), values), values);
}

void tst_Criteria::tellsParticipants()
{
    Criteria criteria;
    LogDataSetFilter *first = makeFilter("CO2", 0, 3);
    LogDataSetFilter *idle = makeFilter("CO2", 1, 3);
    LogDataSetFilter *other = makeFilter("H2O", 0, 3);
    LogDataSetFilter *last = makeFilter("co2", 2, 3);
    criteria.add(first);
    criteria.add(idle);
    criteria.add(other);
    criteria.add(last);
    idle->setActive(false);
    QCOMPARE(criteria.participating(QLatin1String("Co2")),
             QVector<LogDataSetFilter *>() << first << last);
    QCOMPARE(criteria.participating(QLatin1String("H2O")), QVector<LogDataSetFilter *>() << other);
    QVERIFY(criteria.participating(QLatin1String("CO")).isEmpty());
    QVERIFY(criteria.participating(QString()).isEmpty());
}

void tst_Criteria::agreesOnTextsAndNumbers_data()
{
    QTest::addColumn<int>("filterOperator");
    for (int i = -1; i <= LogDataSetFilter::operators.size(); ++i) {
        const QString text = LogDataSetFilter::operators.value(i, QString::number(i));
        QTest::newRow(text.toLatin1().constData()) << i;
    }
}

void tst_Criteria::agreesOnTextsAndNumbers()
{
    QFETCH(int, filterOperator);

    const QStringList texts = awkwardTexts();
    const QString name = QLatin1String("x");
    foreach (const QString &bound, texts) {
        Criteria criteria;
        criteria.add(makeFilter("x", filterOperator, bound.toFloat()));
        QCOMPARE(applyToNumbers(criteria, name, texts), criteria.applyFilters(name, texts));
    }
}

QTEST_GUILESS_MAIN(tst_Criteria)
#include "tst_Criteria.moc"

#include "filters/LogDataSetFilter.h"

#include "support/TestCompat.h"

#include <QScopedPointer>

#include <limits>

typedef LogDataSetFilter::Builder Builder;

namespace
{

// Made while this program loads, in no known order with the list of operator texts.
Builder earlyBuilder()
{
    Builder builder;
    builder.variable(QLatin1String("early")).filterOperator(LogDataSetFilter::LessThanOrEqual);
    return builder;
}
Builder theEarlyBuilder = earlyBuilder();
const LogDataSetFilter theEarlyFilter(&theEarlyBuilder, nullptr);

const float kNaN = std::numeric_limits<float>::quiet_NaN();
const float kInfinity = std::numeric_limits<float>::infinity();

} // namespace

class tst_LogDataSetFilter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void addsNothingToTheMetaObject();
    void listsOperatorTexts();
    void numbersOperators();
    void isMadeWhileTheLibraryLoads();
    void builderStartsAsKnown();
    void builderChains();
    void builderIsAValue();
    void isEmptyWithoutABuilder();
    void isEmptyWithANullBuilder();
    void copiesTheBuilder();
    void startsActiveFromABuilder();
    void keepsDescriptionWhenSwitched();
    void belongsToItsParent();
    void describes_data();
    void describes();
    void livesWithAnUnknownOperator_data();
    void livesWithAnUnknownOperator();
    void concernsByName_data();
    void concernsByName();
    void accepts_data();
    void accepts();
    void comparesInSinglePrecision();
};

void tst_LogDataSetFilter::addsNothingToTheMetaObject()
{
    const QMetaObject &meta = LogDataSetFilter::staticMetaObject;
    QCOMPARE(QByteArray(meta.className()), QByteArray("LogDataSetFilter"));
    QCOMPARE(QByteArray(meta.superClass()->className()), QByteArray("QObject"));
    QCOMPARE(meta.propertyCount(), QObject::staticMetaObject.propertyCount());
    QCOMPARE(meta.methodCount(), QObject::staticMetaObject.methodCount());
    QCOMPARE(meta.enumeratorCount(), QObject::staticMetaObject.enumeratorCount());
}

void tst_LogDataSetFilter::listsOperatorTexts()
{
    QCOMPARE(LogDataSetFilter::operators.join(QLatin1String(" ")),
             QString::fromLatin1("> >= < <= = !="));
}

void tst_LogDataSetFilter::numbersOperators()
{
    const QStringList &texts = LogDataSetFilter::operators;
    QCOMPARE(texts.at(LogDataSetFilter::GreaterThan), QString::fromLatin1(">"));
    QCOMPARE(texts.at(LogDataSetFilter::GreaterThanOrEqual), QString::fromLatin1(">="));
    QCOMPARE(texts.at(LogDataSetFilter::LessThan), QString::fromLatin1("<"));
    QCOMPARE(texts.at(LogDataSetFilter::LessThanOrEqual), QString::fromLatin1("<="));
    QCOMPARE(texts.at(LogDataSetFilter::Equal), QString::fromLatin1("="));
    QCOMPARE(texts.at(LogDataSetFilter::NotEqual), QString::fromLatin1("!="));
    QCOMPARE(int(LogDataSetFilter::NotEqual), 5);
}

void tst_LogDataSetFilter::isMadeWhileTheLibraryLoads()
{
    QCOMPARE(theEarlyFilter.toString(), QString::fromLatin1("early<=0"));
}

void tst_LogDataSetFilter::builderStartsAsKnown()
{
    const Builder builder;
    QCOMPARE(builder.variable(), QString::fromLatin1(">"));
    QCOMPARE(builder.filterOperator(), int(LogDataSetFilter::GreaterThan));
    QCOMPARE(builder.value(), 0.0f);
}

void tst_LogDataSetFilter::builderChains()
{
    Builder builder;
    Builder &same = builder.variable(QLatin1String("CO2"))
                        .filterOperator(LogDataSetFilter::NotEqual)
                        .value(-1.5f);
    QCOMPARE(&same, &builder);
    QCOMPARE(&builder.filterOperator(3), &builder);
    QCOMPARE(builder.variable(), QString::fromLatin1("CO2"));
    QCOMPARE(builder.filterOperator(), int(LogDataSetFilter::LessThanOrEqual));
    QCOMPARE(builder.value(), -1.5f);
}

void tst_LogDataSetFilter::builderIsAValue()
{
    Builder first;
    first.variable(QLatin1String("a")).value(1);
    Builder second = first;
    second.variable(QLatin1String("b")).value(2);
    QCOMPARE(first.variable(), QString::fromLatin1("a"));
    QCOMPARE(first.value(), 1.0f);
    QCOMPARE(second.variable(), QString::fromLatin1("b"));
}

void tst_LogDataSetFilter::isEmptyWithoutABuilder()
{
    const LogDataSetFilter filter(static_cast<QObject *>(nullptr));
    QCOMPARE(filter.variable(), QString());
    QCOMPARE(filter.toString(), QString());
    QCOMPARE(filter.filterOperator(), int(LogDataSetFilter::GreaterThan));
    QCOMPARE(filter.value(), 0.0f);
    QVERIFY(!filter.active());
}

void tst_LogDataSetFilter::isEmptyWithANullBuilder()
{
    const LogDataSetFilter filter(nullptr, nullptr);
    QCOMPARE(filter.variable(), QString());
    QCOMPARE(filter.toString(), QString());
    QVERIFY(!filter.active());
}

void tst_LogDataSetFilter::copiesTheBuilder()
{
    Builder builder;
    builder.variable(QLatin1String("Tleaf")).filterOperator(1).value(25.5f);
    const LogDataSetFilter filter(&builder, nullptr);
    builder.variable(QLatin1String("other")).filterOperator(2).value(1);
    QCOMPARE(filter.variable(), QString::fromLatin1("Tleaf"));
    QCOMPARE(filter.filterOperator(), 1);
    QCOMPARE(filter.operatorText(), QString::fromLatin1(">="));
    QCOMPARE(filter.value(), 25.5f);
    QCOMPARE(filter.toString(), QString::fromLatin1("Tleaf>=25.5"));
}

void tst_LogDataSetFilter::startsActiveFromABuilder()
{
    Builder builder;
    const LogDataSetFilter filter(&builder, nullptr);
    QVERIFY(filter.active());
}

void tst_LogDataSetFilter::keepsDescriptionWhenSwitched()
{
    Builder builder;
    builder.variable(QLatin1String("x")).value(3);
    LogDataSetFilter filter(&builder, nullptr);
    filter.setActive(false);
    QVERIFY(!filter.active());
    QCOMPARE(filter.toString(), QString::fromLatin1("x>3"));
    filter.setActive(true);
    QVERIFY(filter.active());
    QCOMPARE(filter.toString(), QString::fromLatin1("x>3"));
}

void tst_LogDataSetFilter::belongsToItsParent()
{
    QScopedPointer<QObject> parent(new QObject);
    Builder builder;
    LogDataSetFilter *filter = new LogDataSetFilter(&builder, parent.data());
    QCOMPARE(filter->parent(), parent.data());
    QSignalSpy destroyed(filter, SIGNAL(destroyed(QObject *)));
    parent.reset();
    QCOMPARE(destroyed.count(), 1);
}

void tst_LogDataSetFilter::describes_data()
{
    QTest::addColumn<QString>("variable");
    QTest::addColumn<int>("filterOperator");
    QTest::addColumn<float>("value");
    QTest::addColumn<QString>("description");

    QTest::newRow("no blanks") << "Tleaf" << 1 << 25.5f << "Tleaf>=25.5";
    QTest::newRow("greater") << "x" << 0 << 3.0f << "x>3";
    QTest::newRow("less") << "x" << 2 << 3.0f << "x<3";
    QTest::newRow("less or equal") << "x" << 3 << 3.0f << "x<=3";
    QTest::newRow("equal is one sign") << "x" << 4 << 12.5f << "x=12.5";
    QTest::newRow("not equal") << "x" << 5 << -3.0f << "x!=-3";
    QTest::newRow("a thousand") << "x" << 0 << 1e3f << "x>1000";
    QTest::newRow("six digits") << "x" << 0 << 1234567.0f << "x>1.23457e+06";
    QTest::newRow("single precision does not show") << "x" << 0 << 0.1f << "x>0.1";
    QTest::newRow("small") << "x" << 0 << 0.00001f << "x>1e-05";
    QTest::newRow("no variable") << "" << 0 << 1.0f << ">1";
    QTest::newRow("place marker in the name") << "%1 of %2" << 4 << 7.0f << "%1 of %2=7";
    QTest::newRow("infinity") << "x" << 2 << kInfinity << "x<inf";
}

void tst_LogDataSetFilter::describes()
{
    QFETCH(QString, variable);
    QFETCH(int, filterOperator);
    QFETCH(float, value);

    Builder builder;
    builder.variable(variable).filterOperator(filterOperator).value(value);
    QTEST(LogDataSetFilter(&builder, nullptr).toString(), "description");
}

void tst_LogDataSetFilter::livesWithAnUnknownOperator_data()
{
    QTest::addColumn<int>("filterOperator");

    QTest::newRow("before the first") << -1;
    QTest::newRow("after the last") << 6;
    QTest::newRow("largest") << std::numeric_limits<int>::max();
    QTest::newRow("smallest") << std::numeric_limits<int>::min();
}

void tst_LogDataSetFilter::livesWithAnUnknownOperator()
{
    QFETCH(int, filterOperator);

    Builder builder;
    builder.variable(QLatin1String("x")).filterOperator(filterOperator).value(2.5f);
    const LogDataSetFilter filter(&builder, nullptr);
    QCOMPARE(filter.toString(), QString::fromLatin1("x2.5"));
    QCOMPARE(filter.operatorText(), QString());
    QCOMPARE(filter.filterOperator(), filterOperator);
    QVERIFY(filter.accepts(-1e30f));
    QVERIFY(filter.accepts(2.5f));
    QVERIFY(filter.accepts(1e30f));
    QVERIFY(filter.accepts(kNaN));
}

void tst_LogDataSetFilter::concernsByName_data()
{
    QTest::addColumn<QString>("variable");
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("concerned");

    QTest::newRow("same") << "CO2"
                          << "CO2" << true;
    QTest::newRow("other case") << "co2"
                                << "CO2" << true;
    QTest::newRow("other case beyond ASCII")
        << QString(QChar(0xe4)) << QString(QChar(0xc4)) << true;
    QTest::newRow("only part") << "CO2"
                               << "CO2_r" << false;
    QTest::newRow("blank behind") << "CO2"
                                  << "CO2 " << false;
    QTest::newRow("other") << "CO2"
                           << "H2O" << false;
    QTest::newRow("both empty") << ""
                                << "" << true;
    QTest::newRow("empty name") << "CO2"
                                << "" << false;
}

void tst_LogDataSetFilter::concernsByName()
{
    QFETCH(QString, variable);
    QFETCH(QString, name);

    Builder builder;
    builder.variable(variable);
    QTEST(LogDataSetFilter(&builder, nullptr).concerns(name), "concerned");
}

void tst_LogDataSetFilter::accepts_data()
{
    QTest::addColumn<int>("filterOperator");
    QTest::addColumn<float>("value");
    // Which of 2, 3, 4 and NaN are kept, as a row of + and -.
    QTest::addColumn<QString>("kept");

    QTest::newRow(">") << 0 << 3.0f << "--+-";
    QTest::newRow(">=") << 1 << 3.0f << "-++-";
    QTest::newRow("<") << 2 << 3.0f << "+---";
    QTest::newRow("<=") << 3 << 3.0f << "++--";
    QTest::newRow("=") << 4 << 3.0f << "-+--";
    QTest::newRow("!=") << 5 << 3.0f << "+-++";
    QTest::newRow("> NaN") << 0 << kNaN << "----";
    QTest::newRow(">= NaN") << 1 << kNaN << "----";
    QTest::newRow("< NaN") << 2 << kNaN << "----";
    QTest::newRow("<= NaN") << 3 << kNaN << "----";
    QTest::newRow("= NaN") << 4 << kNaN << "----";
    QTest::newRow("!= NaN") << 5 << kNaN << "++++";
    QTest::newRow("< infinity") << 2 << kInfinity << "+++-";
    QTest::newRow("> minus infinity") << 0 << -kInfinity << "+++-";
}

void tst_LogDataSetFilter::accepts()
{
    QFETCH(int, filterOperator);
    QFETCH(float, value);

    Builder builder;
    builder.filterOperator(filterOperator).value(value);
    const LogDataSetFilter filter(&builder, nullptr);
    const float numbers[] = {2.0f, 3.0f, 4.0f, kNaN};
    QString kept;
    for (int i = 0; i < 4; ++i)
        kept.append(QLatin1Char(filter.accepts(numbers[i]) ? '+' : '-'));
    QTEST(kept, "kept");
}

void tst_LogDataSetFilter::comparesInSinglePrecision()
{
    Builder builder;
    builder.filterOperator(LogDataSetFilter::Equal).value(0.1f);
    const LogDataSetFilter filter(&builder, nullptr);
    QVERIFY(filter.accepts(float(0.1)));
    QVERIFY(filter.accepts(float(0.1000000001)));
    QVERIFY(!filter.accepts(float(0.10001)));
    builder.value(-0.0f);
    QVERIFY(LogDataSetFilter(&builder, nullptr).accepts(0.0f));
}

QTEST_GUILESS_MAIN(tst_LogDataSetFilter)
#include "tst_LogDataSetFilter.moc"

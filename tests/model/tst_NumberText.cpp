#include "model/NumberText.h"

#include "support/TestCompat.h"

#include <QRegExp>
#include <QTime>

#include <cmath>
#include <cstring>
#include <limits>
#include <random>

namespace
{

typedef std::mt19937 Random; // the same numbers everywhere for the same seed

int below(Random &random, int limit)
{
    return int(random() % uint(limit));
}

/** A row for each of the texts between bars, named after it. */
void addRows(const char *texts)
{
    QTest::addColumn<QString>("text");
    foreach (const QString &text, QString::fromLatin1(texts).split(QLatin1Char('|'))) {
        QByteArray name = '"' + text.toLatin1() + '"';
        name.replace('\n', "\\n").replace('\r', "\\r").replace('\t', "\\t");
        QTest::newRow(name.constData()) << text;
    }
}

/** Equal to the last bit; one NaN is as good as another. */
bool same(double a, double b)
{
    return (std::isnan(a) && std::isnan(b)) || std::memcmp(&a, &b, sizeof a) == 0;
}

/** Equal as far as any comparison can tell. */
bool alike(float a, float b)
{
    return (std::isnan(a) && std::isnan(b)) || a == b;
}

/** What is wrong with how @p text is read, empty if nothing is. */
QString complaint(const QString &text)
{
    bool expectedOk = false;
    const double expected = text.toDouble(&expectedOk);
    const QByteArray utf8 = text.toUtf8();
    bool ok = !expectedOk;
    const double number = NumberText::toDouble(utf8.constData(), utf8.size(), &ok);
    const QString readAs = QLatin1Char('"') + text + QLatin1String("\" was read as ");
    if (ok != expectedOk || !same(number, expected))
        return readAs + QString::number(number, 'g', 17) + QLatin1String(ok ? ", ok" : ", not ok");
    const float single = NumberText::toFloat(number);
    if (!alike(single, text.toFloat()))
        return readAs + QString::number(double(single), 'g', 9) + QLatin1String(" in float");
    return QString();
}

QString digits(Random &random, int count)
{
    QString text;
    for (int i = 0; i < count; ++i)
        text.append(QLatin1Char(char('0' + below(random, 10))));
    return text;
}

QString randomDecimal(Random &random)
{
    const char *const signs[] = {"", "", "-", "+"};
    QString text = QLatin1String(signs[below(random, 4)]);
    text += digits(random, below(random, 19));
    if (below(random, 2))
        text += QLatin1Char('.') + digits(random, below(random, 19));
    if (below(random, 3) == 0) {
        text += QLatin1Char(below(random, 2) ? 'e' : 'E') + QLatin1String(signs[below(random, 4)])
            + digits(random, below(random, 4));
    }
    return text;
}

QString randomJunk(Random &random)
{
    static const QString alphabet = QString::fromUtf8("0123456789..--++eE  ,x:infa\t\"'_\xc2\xa0");
    QString text;
    for (int i = below(random, 9); i > 0; --i)
        text.append(alphabet.at(below(random, alphabet.size())));
    return text;
}

/** Seconds since midnight as the engine reads a time of the one form that logs have, else -1. */
int expectedSeconds(const QString &text)
{
    const QRegExp form(QLatin1String("[0-9]{2}:[0-9]{2}:[0-9]{2}([.,][0-9]+)?"));
    if (!form.exactMatch(text))
        return -1;
    const QTime time = QTime::fromString(text.left(8), Qt::TextDate);
    return time.isValid() ? QTime(0, 0, 0).secsTo(time) : -1;
}

QString timeComplaint(const QString &text)
{
    const QByteArray utf8 = text.toUtf8();
    const int fromBytes = NumberText::secondsOfDay(utf8.constData(), utf8.size());
    const int fromText = NumberText::secondsOfDay(text);
    if (fromBytes == expectedSeconds(text) && fromText == fromBytes)
        return QString();
    return QString::fromLatin1("\"%1\" was read as %2 and %3")
        .arg(text)
        .arg(fromBytes)
        .arg(fromText);
}

} // namespace

class tst_NumberText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsPlainDecimals_data();
    void readsPlainDecimals();
    void readsAsQStringDoes_data();
    void readsAsQStringDoes();
    void readsAnyDecimalAsQStringDoes();
    void readsShortestFormsBack();
    void readsAnythingAsQStringDoes();
    void stopsAtTheGivenSize();
    void readsNothing();
    void narrows_data();
    void narrows();
    void readsClockTimes_data();
    void readsClockTimes();
    void readsEverySecondOfADay();
    void readsTimesOfOneForm_data();
    void readsTimesOfOneForm();
    void readsAnyTextAsOfThatForm();
};

void tst_NumberText::readsPlainDecimals_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("number");

    QTest::newRow("0") << "0" << 0.0;
    QTest::newRow("-0") << "-0" << -0.0;
    QTest::newRow("5") << "5" << 5.0;
    QTest::newRow("-12.25") << "-12.25" << -12.25;
    QTest::newRow("0.1") << "0.1" << 0.1;
    QTest::newRow("007") << "007" << 7.0;
    QTest::newRow("1e3") << "1e3" << 1000.0;
    QTest::newRow("2.5E-3") << "2.5E-3" << 0.0025;
    QTest::newRow("999999999999999") << "999999999999999" << 999999999999999.0;
    QTest::newRow("0.999999999999999") << "0.999999999999999" << 0.999999999999999;
    QTest::newRow("1e22") << "1e22" << 1e22;
    QTest::newRow("1e-22") << "1e-22" << 1e-22;
    QTest::newRow("1e23, which is not exact") << "1e23" << 1e23;
    QTest::newRow("9007199254740993, a tie") << "9007199254740993" << 9007199254740992.0;
}

void tst_NumberText::readsPlainDecimals()
{
    QFETCH(QString, text);
    QFETCH(double, number);

    const QByteArray utf8 = text.toUtf8();
    bool ok = false;
    QVERIFY(same(NumberText::toDouble(utf8.constData(), utf8.size(), &ok), number));
    QVERIFY(ok);
    QCOMPARE(complaint(text), QString());
}

void tst_NumberText::readsAsQStringDoes_data()
{
    addRows("| |\t|+|-|--1|+-1|-+1|+5|-5|- 5|+ 5|.|5.|.5|-.5|+.5|-5.|..5|5..|1.2.3|00|-00.0|"
            "000123.4500|e|e5|.e5|5e|5e+|5e-|5e+5|5.e5|.5e5|5E5|5e05|5e0005|5e00005|5e5.0|5 e5|"
            "5e 5|1e22|1e-22|1e23|1e-23|1e37|1e38|1e39|-1e39|1e40|1e308|1.7976931348623157e308|"
            "1.7976931348623159e308|1e309|1e400|-1e400|1e5000|1e99999|1e-5000|1e-300|"
            "2.2250738585072014e-308|1e-308|5e-324|2e-324|-5e-324|1e-400|0e400|0e-400|0e5000|"
            "3.4028234663852886e38|3.4028235e38|3.4028235677973366e38|-3.4028236e38|1.4e-45|"
            "7e-46|1e-46|-1e-46|inf|-inf|+inf|INF|Inf|infinity|nan|NAN|NaN|-nan|+nan|nan(1)|0x10|"
            "0x1p3|010|1,5|1,000|1,000.5|1'000|1_000| 5|5 | 5 |\t5|5\t|5\r|\n5|5 5|5a|a5|5%|5f|"
            "5L|\"5\"|123456789012345|1234567890123456|12345678901234567|"
            "123456789012345678901234567890|0.123456789012345|0.1234567890123456|"
            "0.12345678901234567890|9007199254740991|9007199254740992|9007199254740993|"
            "9007199254740995|18446744073709551616|1.00000000000000011102230246251565404|"
            "1.00000000000000033306690738754696213|0.000000000000000000000000000001|"
            "1000000000000000000000000000000|1e1e1|---|abc|true|12:30:00|2019-01-01");
    QTest::newRow("NUL behind") << QString::fromLatin1("5\0", 2);
    QTest::newRow("NUL between") << QString::fromLatin1("5\0005", 3);
    QTest::newRow("NUL in front") << QString::fromLatin1("\0005", 2);
    QTest::newRow("NUL alone") << QString::fromLatin1("\0", 1);
    QTest::newRow("Arabic-Indic digit") << QString(QChar(0x663));
    QTest::newRow("full-width digit") << QString(QChar(0xff13));
    QTest::newRow("minus sign") << QString(QChar(0x2212)) + QLatin1Char('5');
    QTest::newRow("no-break space") << QLatin1Char('5') + QString(QChar(0xa0));
    QTest::newRow("infinity sign") << QString(QChar(0x221e));
    QTest::newRow("superscript") << QString(QChar(0xb2));
    QTest::newRow("byte order mark") << QString(QChar(0xfeff)) + QLatin1Char('5');
    QTest::newRow("replacement") << QString(QChar(0xfffd)) + QLatin1Char('5');
}

void tst_NumberText::readsAsQStringDoes()
{
    QFETCH(QString, text);
    QCOMPARE(complaint(text), QString());
}

void tst_NumberText::readsAnyDecimalAsQStringDoes()
{
    Random random(1);
    for (int i = 0; i < 50000; ++i)
        QCOMPARE(complaint(randomDecimal(random)), QString());
}

void tst_NumberText::readsShortestFormsBack()
{
    Random random(2);
    for (int i = 0; i < 20000; ++i) {
        const quint64 bits = (quint64(random()) << 32) | random();
        double number = 0;
        std::memcpy(&number, &bits, sizeof number);
        QCOMPARE(complaint(QString::number(number, 'g', 1 + below(random, 17))), QString());
        number = (int(random()) / 1000) / 1000.0;
        QCOMPARE(complaint(QString::number(number, 'f', below(random, 8))), QString());
    }
}

void tst_NumberText::readsAnythingAsQStringDoes()
{
    Random random(3);
    for (int i = 0; i < 50000; ++i)
        QCOMPARE(complaint(randomJunk(random)), QString());
}

void tst_NumberText::stopsAtTheGivenSize()
{
    bool ok = false;
    QCOMPARE(NumberText::toDouble("12345", 2, &ok), 12.0);
    QVERIFY(ok);
    QCOMPARE(NumberText::toDouble("1.5e3", 3, &ok), 1.5);
    QVERIFY(ok);
    QCOMPARE(NumberText::toDouble("1.5e3", 4, &ok), 0.0);
    QVERIFY(!ok);
    QCOMPARE(NumberText::secondsOfDay("01:00:00:00", 8), 3600);
}

void tst_NumberText::readsNothing()
{
    bool ok = true;
    QCOMPARE(NumberText::toDouble("", 0, &ok), 0.0);
    QVERIFY(!ok);
    QCOMPARE(NumberText::secondsOfDay("", 0), -1);
    QCOMPARE(NumberText::secondsOfDay(QString()), -1);
}

void tst_NumberText::narrows_data()
{
    QTest::addColumn<double>("number");
    QTest::addColumn<float>("expected");

    QTest::newRow("exact") << 1.5 << 1.5f;
    QTest::newRow("rounded") << 0.1 << 0.1f;
    QTest::newRow("tie to even") << 16777217.0 << 16777216.0f;
    QTest::newRow("largest") << double(std::numeric_limits<float>::max())
                             << std::numeric_limits<float>::max();
    QTest::newRow("denormal") << 1e-45 << std::numeric_limits<float>::denorm_min();
    QTest::newRow("too small") << 1e-46 << 0.0f;
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity()
                              << std::numeric_limits<float>::infinity();
    QTest::newRow("minus infinite")
        << -std::numeric_limits<double>::infinity() << -std::numeric_limits<float>::infinity();
    QTest::newRow("too large") << 1e39 << QString::fromLatin1("1e39").toFloat();
    QTest::newRow("too large below 0") << -1e300 << QString::fromLatin1("-1e300").toFloat();
    QTest::newRow("NaN") << std::numeric_limits<double>::quiet_NaN()
                         << std::numeric_limits<float>::quiet_NaN();
}

void tst_NumberText::narrows()
{
    QFETCH(double, number);
    QFETCH(float, expected);
    QVERIFY(alike(NumberText::toFloat(number), expected));
}

void tst_NumberText::readsClockTimes_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("seconds");

    QTest::newRow("midnight") << "00:00:00" << 0;
    QTest::newRow("ten") << "10:00:00" << 36000;
    QTest::newRow("last second") << "23:59:59" << 86399;
    QTest::newRow("hour too large") << "24:00:00" << -1;
    QTest::newRow("minute too large") << "10:60:00" << -1;
    QTest::newRow("second too large") << "10:00:60" << -1;
    QTest::newRow("no time") << "abcdefgh" << -1;
    QTest::newRow("a number") << "12.5" << -1;
    QTest::newRow("other separator") << "10.00.00" << -1;
    QTest::newRow("no seconds") << "10:00" << -1;
    QTest::newRow("one digit of seconds") << "10:00:5" << -1;
    QTest::newRow("a fraction") << "10:00:05.9" << 36005;
    QTest::newRow("quoted") << "\"10:00:00\"" << -1;
    QTest::newRow("empty") << "" << -1;
}

void tst_NumberText::readsClockTimes()
{
    QFETCH(QString, text);
    const QByteArray utf8 = text.toUtf8();
    QTEST(NumberText::secondsOfDay(text), "seconds");
    QTEST(NumberText::secondsOfDay(utf8.constData(), utf8.size()), "seconds");
}

void tst_NumberText::readsEverySecondOfADay()
{
    for (int second = 0; second < 24 * 60 * 60; ++second) {
        const QByteArray text
            = QTime(0, 0).addSecs(second).toString(QLatin1String("hh:mm:ss")).toLatin1();
        QCOMPARE(NumberText::secondsOfDay(text.constData(), text.size()), second);
    }
}

void tst_NumberText::readsTimesOfOneForm_data()
{
    addRows("1:00:00|10:00|1:2:3|10:00:00.5|10:00:00.999|10:00:00.9999|10:00:00,5|10:00:00.|"
            "10:00:0|10:0:00|10:00:000| 10:00:00|10:00:00 |-1:00:00|10:-1:00|+1:00:00|10:+1:00|"
            "10:00:00Z|10:00:00+01:00|10:00:00 AM|10:00:00 pm|T10:00:00|100000|10|:|::|10::00|"
            "1a:00:00|10:0a:00|10:00:0a|0x:00:00|99:99:99|23:59:60|10-00-00|10;00;00");
    QTest::newRow("byte order mark") << QString(QChar(0xfeff)) + QLatin1String("10:00:00");
    QTest::newRow("other digits") << QString(QChar(0x661)) + QLatin1String("0:00:00");
    QTest::newRow("NUL behind") << QString::fromLatin1("10:00:00\0", 9);
    QTest::newRow("NUL inside") << QString::fromLatin1("10:00:0\0", 8);
}

void tst_NumberText::readsTimesOfOneForm()
{
    QFETCH(QString, text);
    QCOMPARE(timeComplaint(text), QString());
}

void tst_NumberText::readsAnyTextAsOfThatForm()
{
    static const QString alphabet = QLatin1String("0123456789::. -+a");
    Random random(4);
    for (int i = 0; i < 30000; ++i) {
        QString text = QLatin1String("12:34:56");
        for (int changes = below(random, 4); changes > 0; --changes)
            text[below(random, text.size())] = alphabet.at(below(random, alphabet.size()));
        if (below(random, 4) == 0)
            text.chop(below(random, 8));
        QCOMPARE(timeComplaint(text), QString());
    }
}

QTEST_GUILESS_MAIN(tst_NumberText)
#include "tst_NumberText.moc"

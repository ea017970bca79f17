#include "viewer/ExactNumber.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QtTest>

#include <cmath>
#include <cstring>
#include <limits>

class tst_ExactNumber : public QObject
{
    Q_OBJECT

private slots:
    void isShort_data();
    void isShort();
    void comesBackExactly();
    void keepsWhatIsNoNumber();
    void refuses_data();
    void refuses();

private:
    static QByteArray text(float value);
};

QByteArray tst_ExactNumber::text(float value)
{
    return QJsonDocument(QJsonArray{ExactNumber::toJson(value)}).toJson(QJsonDocument::Compact);
}

void tst_ExactNumber::isShort_data()
{
    QTest::addColumn<float>("value");
    QTest::addColumn<QByteArray>("text");

    QTest::newRow("whole") << 60.0f << QByteArray("[60]");
    QTest::newRow("tenths") << 25.1f << QByteArray("[25.1]");
    QTest::newRow("negative") << -0.3f << QByteArray("[-0.3]");
    QTest::newRow("nine digits") << 16777.2168f << QByteArray("[16777.217]");
    QTest::newRow("infinite") << std::numeric_limits<float>::infinity() << QByteArray("[\"inf\"]");
    QTest::newRow("minus infinite")
        << -std::numeric_limits<float>::infinity() << QByteArray("[\"-inf\"]");
}

void tst_ExactNumber::isShort()
{
    QFETCH(float, value);
    QTEST(text(value), "text");
}

/** All sorts of bit patterns, by way of the text of a file. */
void tst_ExactNumber::comesBackExactly()
{
    quint32 bits = 1;
    for (int i = 0; i < 20000; ++i) {
        bits = bits * 1664525u + 1013904223u;
        float value;
        std::memcpy(&value, &bits, sizeof value);
        if (std::isnan(value))
            continue;
        float back = 0;
        QVERIFY(ExactNumber::fromJson(QJsonDocument::fromJson(text(value)).array().at(0), &back));
        QCOMPARE(back == value, true);
    }
    const float extremes[]
        = {std::numeric_limits<float>::max(), std::numeric_limits<float>::min(),
           std::numeric_limits<float>::denorm_min(), -std::numeric_limits<float>::max()};
    for (float value : extremes) {
        float back = 0;
        QVERIFY(ExactNumber::fromJson(QJsonDocument::fromJson(text(value)).array().at(0), &back));
        QCOMPARE(back == value, true);
    }
}

void tst_ExactNumber::keepsWhatIsNoNumber()
{
    QCOMPARE(text(std::numeric_limits<float>::quiet_NaN()), QByteArray("[\"nan\"]"));
    float back = 0;
    QVERIFY(ExactNumber::fromJson(QJsonValue(QLatin1String("nan")), &back));
    QVERIFY(std::isnan(back));
    QVERIFY(ExactNumber::fromJson(QJsonValue(QLatin1String("-inf")), &back));
    QVERIFY(std::isinf(back) && back < 0);
}

void tst_ExactNumber::refuses_data()
{
    QTest::addColumn<QJsonValue>("json");

    QTest::newRow("nothing") << QJsonValue(QJsonValue::Undefined);
    QTest::newRow("null") << QJsonValue();
    QTest::newRow("text") << QJsonValue(QLatin1String("25.5"));
    QTest::newRow("flag") << QJsonValue(true);
    QTest::newRow("too large") << QJsonValue(1e39);
    QTest::newRow("far too large") << QJsonValue(-1e308);
}

void tst_ExactNumber::refuses()
{
    QFETCH(QJsonValue, json);
    float back = 0;
    QVERIFY(!ExactNumber::fromJson(json, &back));
}

QTEST_GUILESS_MAIN(tst_ExactNumber)
#include "tst_ExactNumber.moc"

#include "viewer/SessionJson.h"

#include "viewer/SessionKeys.h"

#include <QJsonDocument>
#include <QtTest>

class tst_SessionJson : public QObject
{
    Q_OBJECT

private slots:
    void marksItself();
    void keepsEveryField();
    void keepsNames_data();
    void keepsNames();
    void keepsWhatIsNotTold();
    void ignoresUnknownKeys();
    void refuses_data();
    void refuses();
    void readsNoEndOfNesting();

private:
    static SessionState full();
    static void compare(const SessionState &a, const SessionState &b);
};

SessionState tst_SessionJson::full()
{
    SessionState state;
    state.dataSet = 2;
    state.created = "2016-03-15 21:06:40";
    for (int axis = 0; axis < SessionState::AxisCount; ++axis) {
        SessionVariable first;
        first.name = QString("V%1").arg(axis);
        SessionVariable second = first;
        second.occurrence = 3;
        state.axes[axis].isTold = true;
        state.axes[axis].variables << first << second;
        state.axes[axis].colors.insert(first.name, QString("#D90C0%1").arg(axis));
        state.axes[axis].hidden << first.name;
    }
    const QVariantMap scale{{"autoscale", false}, {"min", "1.2345678901234567"}, {"max", "7"}};
    const QVariantMap bottom{{"group", "Sys"}, {"variable", "Obs"}};
    const QVariantMap left{
        {"lines", true}, {"symbols", false}, {"group", "Air"}, {"variable", "T"}};
    const QVariantMap right{{"lines", false}, {"symbols", true}};
    state.graphDefinition = QVariantMap{
        {"scaling", QVariantMap{{"xbottom", scale}, {"yleft", QVariantMap{{"autoscale", true}}}}},
        {"xbottom", bottom},
        {"yleft", left},
        {"yright", right}};
    state.hasCriteria = true;
    for (int op = 0; op < 6; ++op) {
        SessionCriterion criterion;
        criterion.variable = QString("C%1").arg(op);
        criterion.operatorIndex = op;
        criterion.value = 1.0f / (op + 3);
        criterion.isActive = op % 2 == 0;
        state.criteria << criterion;
    }
    state.rangeType = 2;
    state.rangeSize = 2147483647;
    state.step = 7;
    state.hasExcludedRows = true;
    bool ok = false;
    state.excludedRows = RowRuns::read("3-5, 9", &ok);
    return state;
}

void tst_SessionJson::compare(const SessionState &a, const SessionState &b)
{
    QCOMPARE(a.dataSet, b.dataSet);
    QCOMPARE(a.created, b.created);
    for (int axis = 0; axis < SessionState::AxisCount; ++axis) {
        QCOMPARE(a.axes[axis].isTold, b.axes[axis].isTold);
        QCOMPARE(a.axes[axis].variables == b.axes[axis].variables, true);
        QCOMPARE(a.axes[axis].colors, b.axes[axis].colors);
        QCOMPARE(a.axes[axis].hidden, b.axes[axis].hidden);
    }
    QCOMPARE(a.graphDefinition, b.graphDefinition);
    QCOMPARE(a.hasCriteria, b.hasCriteria);
    QCOMPARE(a.replacesCriteria, b.replacesCriteria);
    QCOMPARE(a.criteria.size(), b.criteria.size());
    for (int i = 0; i < a.criteria.size(); ++i) {
        QCOMPARE(a.criteria.at(i).variable, b.criteria.at(i).variable);
        QCOMPARE(a.criteria.at(i).operatorIndex, b.criteria.at(i).operatorIndex);
        QCOMPARE(a.criteria.at(i).value == b.criteria.at(i).value, true);
        QCOMPARE(a.criteria.at(i).isActive, b.criteria.at(i).isActive);
    }
    QCOMPARE(a.rangeType, b.rangeType);
    QCOMPARE(a.rangeSize, b.rangeSize);
    QCOMPARE(a.step, b.step);
    QCOMPARE(a.hasExcludedRows, b.hasExcludedRows);
    QCOMPARE(a.excludedRows.runs(), b.excludedRows.runs());
}

void tst_SessionJson::marksItself()
{
    const QJsonObject json = QJsonDocument::fromJson(SessionJson::text(full())).object();
    QCOMPARE(json.value("format").toString(), QString("DataLog session"));
    QCOMPARE(json.value("version").toInt(), 1);
    QCOMPARE(json.value("criteria").toArray().at(1).toObject().value("operator").toString(),
             QString(">="));
    QCOMPARE(json.value("window").toObject().value("rows").toString(), QString("tail"));
    QCOMPARE(json.value("excludedRows").toString(), QString("3-5, 9"));
}

void tst_SessionJson::keepsEveryField()
{
    SessionJson json;
    SessionState back;
    QVERIFY2(json.read(SessionJson::text(full()), &back), qPrintable(json.errorText()));
    compare(back, full());
    QCOMPARE(SessionJson::text(back), SessionJson::text(full()));
}

void tst_SessionJson::keepsNames_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("empty") << "";
    QTest::newRow("blanks") << "  T  ";
    QTest::newRow("quotes") << "\"T\" 'x' \\\"";
    QTest::newRow("line ends") << "a\nb\r\nc";
    QTest::newRow("control") << QString("a") + QChar(1) + QChar(0) + "b";
    QTest::newRow("unicode") << QString::fromUtf8("CO₂ Ü 温度 🌡");
    QTest::newRow("half a pair") << QString(QChar(0xd83c));
    QTest::newRow("bars and commas") << "CO2 | ppm, dry; {x} [y] : z";
    QTest::newRow("like a key") << "version";
}

void tst_SessionJson::keepsNames()
{
    QFETCH(QString, name);
    SessionState state = full();
    state.created = name;
    for (SessionAxis &axis : state.axes) {
        axis.variables[0].name = name;
        axis.variables[1].name = name;
        axis.colors.insert(name, "#000000");
        axis.hidden << name;
    }
    state.criteria[0].variable = name;
    state.graphDefinition.insert("xbottom", QVariantMap{{"group", name}, {"variable", name}});
    SessionJson json;
    SessionState back;
    QVERIFY2(json.read(SessionJson::text(state), &back), qPrintable(json.errorText()));
    compare(back, state);
}

void tst_SessionJson::keepsWhatIsNotTold()
{
    SessionJson json;
    SessionState state;
    QVERIFY(json.read("{\"format\": \"DataLog session\", \"version\": 1}", &state));
    compare(state, SessionState());
    QVERIFY(json.read(SessionJson::text(SessionState()), &state));
    compare(state, SessionState());
}

void tst_SessionJson::ignoresUnknownKeys()
{
    QJsonObject session = QJsonDocument::fromJson(SessionJson::text(full())).object();
    const auto extend = [](QJsonObject object) {
        object.insert("future", QJsonArray{1, QJsonObject{{"deep", QJsonValue()}}});
        return object;
    };
    for (const char *key : {"dataSet", "left", "window", "graphDefinition"})
        session.insert(key, extend(session.value(key).toObject()));
    QJsonArray criteria = session.value("criteria").toArray();
    criteria[0] = extend(criteria.at(0).toObject());
    session.insert("criteria", criteria);
    SessionJson json;
    SessionState back;
    QVERIFY2(json.read(QJsonDocument(extend(session)).toJson(), &back),
             qPrintable(json.errorText()));
    compare(back, full());
}

void tst_SessionJson::refuses_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("error");

    const auto raw = [](const char *name, const QByteArray &text, const char *error) {
        QTest::newRow(name) << text << QString(error);
    };
    raw("empty", "", "it is no JSON: illegal value at byte 0");
    raw("no JSON", "hello", "it is no JSON: illegal value at byte 1");
    raw("cut short", "{\"format\": \"DataLog ses", "it is no JSON: unterminated string at byte 24");
    raw("no UTF-8", "{\"format\": \"\xff\xfe\"}", "it is no JSON: invalid UTF8 string at byte 12");
    raw("array", "[]", "it is no session of this viewer");
    raw("other object", "{\"format\": 1}", "it is no session of this viewer");
    raw("other format", "{\"format\": \"x\", \"version\": 1}", "it is no session of this viewer");
    raw("no version", "{\"format\": \"DataLog session\"}", "it does not tell its version");
    raw("version is a text", "{\"format\": \"DataLog session\", \"version\": \"1\"}",
        "it does not tell its version");
    raw("later version", "{\"format\": \"DataLog session\", \"version\": 2}",
        "it is of version 2, of which this viewer knows nothing; it reads version 1");

    const auto row = [raw](const char *json, const char *error) {
        raw(json, QByteArray("{\"format\": \"DataLog session\", \"version\": 1, ") + json + "}",
            error);
    };
    row("\"dataSet\": 2", "\"dataSet\" in it must be an object");
    row("\"dataSet\": null", "\"dataSet\" in it must be an object");
    row("\"dataSet\": {\"number\": \"2\"}", "\"number\" in it must be a number");
    row("\"dataSet\": {\"number\": 0}", "\"number\" in it must be a whole number from 1 on");
    row("\"dataSet\": {\"number\": 1.5}", "\"number\" in it must be a whole number from 1 on");
    row("\"dataSet\": {\"number\": 1e300}", "\"number\" in it must be a whole number from 1 on");
    row("\"dataSet\": {\"created\": 3}", "\"created\" in it must be a text");
    row("\"left\": []", "\"left\" in it must be an object");
    row("\"left\": {\"variables\": \"T\"}", "\"variables\" in it must be an array");
    row("\"x\": {\"variables\": [1]}", "\"variables\" in it must be names");
    row("\"x\": {\"variables\": [{}]}", "\"variables\" in it must be names");
    row("\"x\": {\"variables\": [{\"name\": \"T\", \"occurrence\": 0}]}",
        "\"occurrence\" in it must be a whole number from 1 on");
    row("\"right\": {\"colors\": {\"T\": \"red\"}}",
        "the color of \"T\" in it must be such as \"#D90C00\"");
    row("\"right\": {\"hidden\": [null]}", "\"hidden\" in it must be names");
    row("\"criteria\": {}", "\"criteria\" in it must be an array");
    row("\"criteria\": [3]", "\"criteria\" in it must be objects");
    row("\"criteria\": [{\"operator\": \">\", \"value\": 1}]",
        "a criterion in it has no \"variable\"");
    row("\"criteria\": [{\"variable\": \"T\", \"value\": 1}]",
        "a criterion in it has no \"operator\"");
    row("\"criteria\": [{\"variable\": \"T\", \"operator\": \">\"}]",
        "a criterion in it has no \"value\"");
    row("\"criteria\": [{\"variable\": 1, \"operator\": \">\", \"value\": 1}]",
        "\"variable\" in it must be a text");
    row("\"criteria\": [{\"variable\": \"T\", \"operator\": \"=>\", \"value\": 1}]",
        "there is no operator \"=>\"");
    row("\"criteria\": [{\"variable\": \"T\", \"operator\": 1, \"value\": 1}]",
        "\"operator\" in it must be a text");
    row("\"criteria\": [{\"variable\": \"T\", \"operator\": \">\", \"value\": \"1\"}]",
        "the value of a criterion in it must be a number of single precision");
    row("\"criteria\": [{\"variable\": \"T\", \"operator\": \">\", \"value\": 1, \"active\": 1}]",
        "\"active\" in it must be true or false");
    row("\"window\": 1", "\"window\" in it must be an object");
    row("\"window\": {\"rows\": \"some\"}", "\"rows\" in it must be \"all\", \"head\" or \"tail\"");
    row("\"window\": {\"size\": -1}", "\"size\" in it must be a whole number from 0 on");
    row("\"window\": {\"step\": 0}", "\"step\" in it must be a whole number from 1 on");
    row("\"excludedRows\": [1, 2]", "\"excludedRows\" in it must be a text");
    row("\"excludedRows\": \"2, 1\"",
        "\"excludedRows\" in it must be ascending rows such as \"3-5, 9\"");
    row("\"graphDefinition\": 1", "\"graphDefinition\" in it must be an object");
    row("\"graphDefinition\": {\"scaling\": []}", "\"scaling\" in it must be an object");
    row("\"graphDefinition\": {\"scaling\": {\"yleft\": 1}}", "\"yleft\" in it must be an object");
    row("\"graphDefinition\": {\"scaling\": {\"yleft\": {\"min\": 1}}}",
        "\"min\" in it must be a text");
    row("\"graphDefinition\": {\"yright\": {\"lines\": 1}}",
        "\"lines\" in it must be true or false");

    QByteArray many = "{\"format\": \"DataLog session\", \"version\": 1, \"criteria\": [";
    many += QByteArray("{\"variable\": \"T\", \"operator\": \">\", \"value\": 1},").repeated(1001);
    many.chop(1);
    raw("many criteria", many + "]}", "it has more than 1000 criteria");
    const QByteArray longName(100000, 'x');
    raw("long name",
        "{\"format\": \"DataLog session\", \"version\": 1, \"left\": {\"colors\": {\"" + longName
            + "\": 1}}}",
        qPrintable("the color of \"" + QString(60, 'x') + QChar(0x2026)
                   + "\" in it must be such as \"#D90C00\""));
}

void tst_SessionJson::refuses()
{
    QFETCH(QByteArray, text);
    SessionJson json;
    SessionState state;
    QVERIFY(!json.read(text, &state));
    QTEST(json.errorText(), "error");
}

void tst_SessionJson::readsNoEndOfNesting()
{
    SessionJson json;
    SessionState state;
    for (const QByteArray &open : {QByteArray("["), QByteArray("{\"a\":")}) {
        QVERIFY(!json.read(open.repeated(1000000), &state));
        QVERIFY2(json.errorText().startsWith("it is no JSON: too deeply nested"),
                 qPrintable(json.errorText()));
    }
}

QTEST_GUILESS_MAIN(tst_SessionJson)
#include "tst_SessionJson.moc"

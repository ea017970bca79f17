#include "viewer/SessionJson.h"

#include "filters/LogDataSetFilter.h"
#include "viewer/ExactNumber.h"
#include "viewer/NameList.h"
#include "viewer/SessionKeys.h"

#include <QJsonDocument>
#include <QRegularExpression>

#include <limits>

namespace
{

const char kFormat[] = "DataLog session";
const int kVersion = 1;
const char *const kRangeTypes[] = {"all", "head", "tail"};

const char kFormatKey[] = "format";
const char kVersionKey[] = "version";
const char kDataSet[] = "dataSet";
const char kNumber[] = "number";
const char kCreated[] = "created";
const char kVariables[] = "variables";
const char kColors[] = "colors";
const char kHidden[] = "hidden";
const char kName[] = "name";
const char kOccurrence[] = "occurrence";
const char kDefinition[] = "graphDefinition";
const char kCriteria[] = "criteria";
const char kVariable[] = "variable";
const char kOperator[] = "operator";
const char kValue[] = "value";
const char kActive[] = "active";
const char kWindow[] = "window";
const char kRows[] = "rows";
const char kSize[] = "size";
const char kStep[] = "step";
const char kExcluded[] = "excludedRows";

QLatin1String latin1(const char *text)
{
    return QLatin1String(text);
}

// Writing

QJsonArray variablesJson(const QList<SessionVariable> &variables)
{
    QJsonArray array;
    for (const SessionVariable &variable : variables) {
        if (variable.occurrence == 1)
            array.append(variable.name);
        else
            array.append(QJsonObject{{latin1(kName), variable.name},
                                     {latin1(kOccurrence), variable.occurrence}});
    }
    return array;
}

QJsonObject axisJson(const SessionAxis &axis)
{
    QJsonObject colors;
    for (auto it = axis.colors.constBegin(); it != axis.colors.constEnd(); ++it)
        colors.insert(it.key(), it.value());
    QJsonObject json;
    json.insert(latin1(kVariables), variablesJson(axis.variables));
    if (!colors.isEmpty())
        json.insert(latin1(kColors), colors);
    if (!axis.hidden.isEmpty())
        json.insert(latin1(kHidden), QJsonArray::fromStringList(axis.hidden));
    return json;
}

QJsonArray criteriaJson(const QList<SessionCriterion> &criteria)
{
    QJsonArray array;
    for (const SessionCriterion &criterion : criteria) {
        QJsonObject json;
        json.insert(latin1(kVariable), criterion.variable);
        json.insert(latin1(kOperator), LogDataSetFilter::operators.value(criterion.operatorIndex));
        json.insert(latin1(kValue), ExactNumber::toJson(criterion.value));
        json.insert(latin1(kActive), criterion.isActive);
        array.append(json);
    }
    return array;
}

QJsonObject windowJson(const SessionState &state)
{
    QJsonObject json;
    if (state.rangeType >= 0 && state.rangeType < 3)
        json.insert(latin1(kRows), latin1(kRangeTypes[state.rangeType]));
    if (state.rangeSize >= 0)
        json.insert(latin1(kSize), state.rangeSize);
    if (state.step > 0)
        json.insert(latin1(kStep), state.step);
    return json;
}

} // namespace

QByteArray SessionJson::text(const SessionState &state)
{
    QJsonObject session;
    session.insert(latin1(kFormatKey), latin1(kFormat));
    session.insert(latin1(kVersionKey), kVersion);
    if (state.dataSet > 0)
        session.insert(
            latin1(kDataSet),
            QJsonObject{{latin1(kNumber), state.dataSet}, {latin1(kCreated), state.created}});
    for (const SessionKeys::Axis &axis : SessionKeys::axes()) {
        if (state.axes[axis.index].isTold)
            session.insert(latin1(axis.shortName), axisJson(state.axes[axis.index]));
    }
    session.insert(latin1(kDefinition), QJsonObject::fromVariantMap(state.graphDefinition));
    if (state.hasCriteria)
        session.insert(latin1(kCriteria), criteriaJson(state.criteria));
    session.insert(latin1(kWindow), windowJson(state));
    if (state.hasExcludedRows)
        session.insert(latin1(kExcluded), state.excludedRows.text());
    return QJsonDocument(session).toJson();
}

// Reading

void SessionJson::fail(const QString &text)
{
    if (m_errorText.isEmpty())
        m_errorText = text;
}

/** Undefined where there is no such key, or one of another type, which is an error. */
QJsonValue SessionJson::value(const QJsonObject &parent, const QString &key, QJsonValue::Type type)
{
    const QJsonValue value = parent.value(key);
    if (value.isUndefined() || value.type() == type)
        return value;
    const QString kind = type == QJsonValue::Object ? tr("an object")
        : type == QJsonValue::Array                 ? tr("an array")
        : type == QJsonValue::String                ? tr("a text")
        : type == QJsonValue::Bool                  ? tr("true or false")
                                                    : tr("a number");
    fail(tr("%1 in it must be %2").arg(NameList::quoted(key), kind));
    return QJsonValue(QJsonValue::Undefined);
}

QJsonObject SessionJson::object(const QJsonObject &parent, const char *key)
{
    return value(parent, latin1(key), QJsonValue::Object).toObject();
}

QJsonArray SessionJson::array(const QJsonObject &parent, const char *key)
{
    return value(parent, latin1(key), QJsonValue::Array).toArray();
}

QString SessionJson::string(const QJsonObject &parent, const char *key)
{
    return value(parent, latin1(key), QJsonValue::String).toString();
}

int SessionJson::wholeNumber(const QJsonObject &parent, const char *key, int least, int unless)
{
    const QJsonValue number = value(parent, latin1(key), QJsonValue::Double);
    if (number.isUndefined())
        return unless;
    const double given = number.toDouble();
    if (given >= least && given <= std::numeric_limits<int>::max() && given == int(given))
        return int(given);
    fail(tr("%1 in it must be a whole number from %2 on")
             .arg(NameList::quoted(latin1(key)))
             .arg(least));
    return unless;
}

bool SessionJson::read(const QByteArray &text, SessionState *state)
{
    m_errorText.clear();
    *state = SessionState();
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    if (error.error != QJsonParseError::NoError)
        fail(tr("it is no JSON: %1 at byte %2").arg(error.errorString()).arg(error.offset));
    const QJsonObject session = document.object();
    if (!isSession(session))
        return false;
    readDataSet(object(session, kDataSet), state);
    for (const SessionKeys::Axis &axis : SessionKeys::axes())
        readAxis(session, axis.shortName, &state->axes[axis.index]);
    readCriteria(session, state);
    readWindow(object(session, kWindow), state);
    state->graphDefinition = graphDefinition(object(session, kDefinition));
    bool areRows = true;
    state->hasExcludedRows = session.contains(latin1(kExcluded));
    state->excludedRows = RowRuns::read(string(session, kExcluded), &areRows);
    if (!areRows)
        fail(tr("%1 in it must be ascending rows such as \"3-5, 9\"")
                 .arg(NameList::quoted(latin1(kExcluded))));
    return m_errorText.isEmpty();
}

bool SessionJson::isSession(const QJsonObject &session)
{
    if (session.value(latin1(kFormatKey)) != QJsonValue(latin1(kFormat)))
        fail(tr("it is no session of this viewer"));
    const QJsonValue version = session.value(latin1(kVersionKey));
    if (!version.isDouble())
        fail(tr("it does not tell its version"));
    else if (version.toDouble() != kVersion)
        fail(tr("it is of version %1, of which this viewer knows nothing; it reads version %2")
                 .arg(version.toDouble())
                 .arg(kVersion));
    return m_errorText.isEmpty();
}

void SessionJson::readDataSet(const QJsonObject &dataSet, SessionState *state)
{
    state->dataSet = wholeNumber(dataSet, kNumber, 1, 0);
    state->created = string(dataSet, kCreated);
}

void SessionJson::readAxis(const QJsonObject &session, const char *name, SessionAxis *axis)
{
    const QJsonObject json = object(session, name);
    axis->isTold = json.contains(latin1(kVariables));
    const QJsonArray variables = array(json, kVariables);
    for (const QJsonValue &entry : variables)
        axis->variables.append(variable(entry));
    axis->colors = colors(object(json, kColors));
    axis->hidden = strings(array(json, kHidden), kHidden);
}

SessionVariable SessionJson::variable(const QJsonValue &value)
{
    SessionVariable variable;
    const QJsonObject object = value.toObject();
    if (value.isString()) {
        variable.name = value.toString();
    } else if (object.value(latin1(kName)).isString()) {
        variable.name = object.value(latin1(kName)).toString();
        variable.occurrence = wholeNumber(object, kOccurrence, 1, 1);
    } else {
        fail(tr("%1 in it must be names").arg(NameList::quoted(latin1(kVariables))));
    }
    return variable;
}

QMap<QString, QString> SessionJson::colors(const QJsonObject &colors)
{
    static const QRegularExpression pattern(QStringLiteral("^#[0-9A-Fa-f]{6}$"));
    QMap<QString, QString> result;
    for (auto it = colors.constBegin(); it != colors.constEnd(); ++it) {
        const QString color = it.value().toString();
        if (!pattern.match(color).hasMatch())
            fail(tr("the color of %1 in it must be such as \"#D90C00\"")
                     .arg(NameList::quoted(it.key())));
        result.insert(it.key(), color);
    }
    return result;
}

QStringList SessionJson::strings(const QJsonArray &array, const char *key)
{
    QStringList result;
    for (const QJsonValue &entry : array) {
        if (!entry.isString())
            fail(tr("%1 in it must be names").arg(NameList::quoted(latin1(key))));
        result.append(entry.toString());
    }
    return result;
}

// Criteria

void SessionJson::readCriteria(const QJsonObject &session, SessionState *state)
{
    state->hasCriteria = session.contains(latin1(kCriteria));
    const QJsonArray criteria = array(session, kCriteria);
    if (criteria.size() > SessionState::MostCriteria)
        fail(tr("it has more than %1 criteria").arg(SessionState::MostCriteria));
    for (int i = 0; i < criteria.size() && m_errorText.isEmpty(); ++i) {
        if (!criteria.at(i).isObject())
            fail(tr("%1 in it must be objects").arg(NameList::quoted(latin1(kCriteria))));
        state->criteria.append(criterion(criteria.at(i).toObject()));
    }
}

SessionCriterion SessionJson::criterion(const QJsonObject &json)
{
    SessionCriterion criterion;
    const char *const needed[] = {kVariable, kOperator, kValue};
    for (const char *key : needed) {
        if (!json.contains(latin1(key)))
            fail(tr("a criterion in it has no %1").arg(NameList::quoted(latin1(key))));
    }
    criterion.variable = string(json, kVariable);
    const QString text = string(json, kOperator);
    criterion.operatorIndex = LogDataSetFilter::operators.indexOf(text);
    if (criterion.operatorIndex < 0)
        fail(tr("there is no operator %1").arg(NameList::quoted(text)));
    criterion.value = criterionValue(json.value(latin1(kValue)));
    criterion.isActive = value(json, latin1(kActive), QJsonValue::Bool).toBool(true);
    return criterion;
}

float SessionJson::criterionValue(const QJsonValue &value)
{
    float number = 0;
    if (!ExactNumber::fromJson(value, &number))
        fail(tr("the value of a criterion in it must be a number of single precision"));
    return number;
}

// The rest

void SessionJson::readWindow(const QJsonObject &window, SessionState *state)
{
    state->rangeSize = wholeNumber(window, kSize, 0, -1);
    state->step = wholeNumber(window, kStep, 1, 0);
    if (!window.contains(latin1(kRows)))
        return;
    const QString rows = string(window, kRows);
    for (int type = 0; type < 3; ++type) {
        if (rows == latin1(kRangeTypes[type]))
            state->rangeType = type;
    }
    if (state->rangeType < 0)
        fail(tr("%1 in it must be \"all\", \"head\" or \"tail\"")
                 .arg(NameList::quoted(latin1(kRows))));
}

/** Only what a definition is made of. */
QVariantMap SessionJson::graphDefinition(const QJsonObject &json)
{
    QVariantMap definition;
    const QJsonObject scaling = value(json, SessionKeys::scaling(), QJsonValue::Object).toObject();
    QVariantMap scales;
    for (const SessionKeys::Axis &axis : SessionKeys::axes()) {
        const QVariantMap scale = settings(scaling, axis.key());
        const QVariantMap other = settings(json, axis.key());
        if (!scale.isEmpty())
            scales.insert(axis.key(), scale);
        if (!other.isEmpty())
            definition.insert(axis.key(), other);
    }
    if (!scales.isEmpty())
        definition.insert(SessionKeys::scaling(), scales);
    return definition;
}

QVariantMap SessionJson::settings(const QJsonObject &parent, const QString &key)
{
    static const QStringList flags{SessionKeys::autoscale(), SessionKeys::lines(),
                                   SessionKeys::symbols()};
    static const QStringList texts{SessionKeys::min(), SessionKeys::max(), QStringLiteral("group"),
                                   QStringLiteral("variable")};
    const QJsonObject json = value(parent, key, QJsonValue::Object).toObject();
    QVariantMap settings;
    for (const QString &flag : flags) {
        const QJsonValue given = value(json, flag, QJsonValue::Bool);
        if (!given.isUndefined())
            settings.insert(flag, given.toBool());
    }
    for (const QString &text : texts) {
        const QJsonValue given = value(json, text, QJsonValue::String);
        if (!given.isUndefined())
            settings.insert(text, given.toString());
    }
    return settings;
}

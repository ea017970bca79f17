#ifndef DATALOG_VIEWER_SESSIONJSON_H
#define DATALOG_VIEWER_SESSIONJSON_H

#include "viewer/SessionState.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonObject>

/**
 * The text of a session: a JSON object with the mark "format", a "version", and all that a
 * SessionState holds.
 *
 * Reading ignores keys that it does not know, so that a later version can add some. A missing key
 * is told as such by the state. What is there must be of the right kind, or all is refused.
 */
class SessionJson
{
    Q_DECLARE_TR_FUNCTIONS(SessionJson)

public:
    /** Numbers come back exactly. */
    static QByteArray text(const SessionState &state);

    /** False with an errorText(), one line, when @p text is no session; @p state is then unusable.
     */
    bool read(const QByteArray &text, SessionState *state);
    QString errorText() const { return m_errorText; }

private:
    // The first thing that is wrong is told; after that nothing matters.
    void fail(const QString &text);
    QJsonValue value(const QJsonObject &parent, const QString &key, QJsonValue::Type type);
    QJsonObject object(const QJsonObject &parent, const char *key);
    QJsonArray array(const QJsonObject &parent, const char *key);
    QString string(const QJsonObject &parent, const char *key);
    int wholeNumber(const QJsonObject &parent, const char *key, int least, int unless);

    bool isSession(const QJsonObject &session);
    void readDataSet(const QJsonObject &dataSet, SessionState *state);
    void readAxis(const QJsonObject &session, const char *name, SessionAxis *axis);
    SessionVariable variable(const QJsonValue &value);
    QMap<QString, QString> colors(const QJsonObject &colors);
    QStringList strings(const QJsonArray &array, const char *key);
    void readCriteria(const QJsonObject &session, SessionState *state);
    SessionCriterion criterion(const QJsonObject &criterion);
    float criterionValue(const QJsonValue &value);
    void readWindow(const QJsonObject &window, SessionState *state);
    QVariantMap graphDefinition(const QJsonObject &definition);
    QVariantMap settings(const QJsonObject &parent, const QString &key);

    QString m_errorText;
};

#endif

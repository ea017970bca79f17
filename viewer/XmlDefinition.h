#ifndef DATALOG_VIEWER_XMLDEFINITION_H
#define DATALOG_VIEWER_XMLDEFINITION_H

#include "viewer/SessionState.h"

#include <QCoreApplication>

class LogDataSourceItem;

/** Definitions as XML, which holds variables and criteria, and not all of these. */
class XmlDefinition
{
    Q_DECLARE_TR_FUNCTIONS(XmlDefinition)

public:
    /** False with an errorText() when the file at @p path is no XML that can be read. */
    bool read(const QString &path, SessionState *state);
    /** What @p source shows; empty with an errorText() when it can't be written. */
    QByteArray text(LogDataSourceItem *source);
    /** Why the last of these failed: a cause, without the file's name. */
    QString errorText() const { return m_errorText; }

    /** What of @p state does not come back from text(), which was called before; a phrase each. */
    QStringList losses(const SessionState &state) const;
    /** Whether @p state names anything at all. */
    static bool isEmpty(const SessionState &state);
    /** What may have been meant otherwise than @p state, which read() gave, says; one line each. */
    static QStringList doubts(const SessionState &state);

private:
    bool parse(const QString &path, SessionState *state);
    bool areVariablesKept(const SessionState &state) const;
    static QStringList criteriaLosses(const QList<SessionCriterion> &criteria);

    QString m_errorText;
    SessionState m_written; ///< as it reads back
};

#endif

#ifndef DATALOG_VIEWER_DEFINITIONFILE_H
#define DATALOG_VIEWER_DEFINITIONFILE_H

#include "viewer/SessionState.h"

#include <QCoreApplication>

class LogDataSourceItem;

/**
 * A definition in a file: how a plot is set up. The end of the file's name tells its kind, see
 * DefinitionFormat.
 */
class DefinitionFile
{
    Q_DECLARE_TR_FUNCTIONS(DefinitionFile)

public:
    explicit DefinitionFile(const QString &path);

    /** Reads the file; changes nothing else. False with an errorText() when it can't be used. */
    bool read(SessionState *state);
    /** Brings what read() gave to the log that is open. */
    void apply(const SessionState &state, DataSets *dataSets, LogViewerItem *view);
    /**
     * Writes what is shown. The file is written whole or stays as it was; false with an
     * errorText() then.
     */
    bool write(DataSets *dataSets, LogViewerItem *view);

    /** One line that names the file and the cause. */
    QString errorText() const { return m_errorText; }
    /** What got lost on the way, one line each, which name the file. */
    QStringList remarks() const { return m_remarks; }

private:
    bool readSession(SessionState *state);
    bool readXml(SessionState *state);
    QByteArray sessionText(const SessionState &state);
    QByteArray xmlText(const SessionState &state, LogDataSourceItem *source);
    bool save(const QByteArray &text);
    bool fail(const QString &text);
    void remark(const QStringList &texts);

    QString m_path;
    QString m_errorText;
    QStringList m_remarks;
};

#endif

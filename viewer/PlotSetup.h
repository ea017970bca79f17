#ifndef DATALOG_VIEWER_PLOTSETUP_H
#define DATALOG_VIEWER_PLOTSETUP_H

#include "viewer/DataSets.h"
#include "viewer/ViewerOptions.h"

class DefinitionFile;
class LogViewerItem;
struct SessionState;

/**
 * Brings what a user asked for on the command line, a saved definition among it, to the log that
 * was opened, and chooses what the user left open. A log that is opened later shows what suits it,
 * with style and window as they are.
 */
class PlotSetup : public QObject
{
    Q_OBJECT

public:
    explicit PlotSetup(const ViewerOptions &options, QObject *parent = nullptr);

    /**
     * To be called when a log was opened. What asks for something that the log does not have
     * changes nothing and is told by usageError(); false then. A definition that can't be used, or
     * saved, is told by failed(), and the rest is done.
     */
    Q_INVOKABLE bool apply(DataSets *dataSets, LogViewerItem *view);
    const ViewerOptions &options() const { return m_options; }

signals:
    void usageError(const QString &text);
    /** A definition can't be used: one line that names the file and the cause. */
    void failed(const QString &text);
    /** What of a definition got lost: one line that names the file. */
    void remarked(const QString &text);

private:
    bool applyOptions(DataSets *dataSets, LogViewerItem *view);
    bool readDefinition(DefinitionFile *file, SessionState *state);
    void dropWhatIsGiven(SessionState *state);
    void dropDataSet(SessionState *state);
    void applyDefinition(DefinitionFile *file, const SessionState &state, DataSets *dataSets,
                         LogViewerItem *view);
    void saveDefinition(DataSets *dataSets, LogViewerItem *view);
    int dataSetOf(const SessionState &definition, int count) const;
    QString problem(int dataSets, int dataSet, const QStringList &names) const;
    QString unknownVariable(int dataSet, const QStringList &names) const;
    VariableChoice choice(const TabularParser &log, int dataSet) const;
    void setWindow(LogDataSourceItem *source) const;
    void setStyle(LogViewerItem *view) const;
    void addCriteria(LogDataSourceItem *source, const QStringList &names) const;

    ViewerOptions m_options;
    bool m_isApplied;
};

#endif

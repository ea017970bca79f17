#ifndef DATALOG_VIEWER_PLOTSETUP_H
#define DATALOG_VIEWER_PLOTSETUP_H

#include "viewer/DataSets.h"
#include "viewer/ViewerOptions.h"

class LogViewerItem;

/**
 * Brings what a user asked for on the command line to the log that was opened, and chooses what the
 * user left open. A log that is opened later shows what suits it, with style and window as they
 * are.
 */
class PlotSetup : public QObject
{
    Q_OBJECT

public:
    explicit PlotSetup(const ViewerOptions &options, QObject *parent = nullptr);

    /**
     * To be called when a log was opened. What asks for something that the log does not have
     * changes nothing and is told by usageError(); false then.
     */
    Q_INVOKABLE bool apply(DataSets *dataSets, LogViewerItem *view);
    const ViewerOptions &options() const { return m_options; }

signals:
    void usageError(const QString &text);

private:
    bool applyOptions(DataSets *dataSets, LogViewerItem *view);
    QString problem(int dataSets, const QStringList &names) const;
    QString unknownVariable(const QStringList &names) const;
    VariableChoice choice(const VariableChoice &suitable) const;
    void setWindow(LogDataSourceItem *source) const;
    void setStyle(LogViewerItem *view) const;
    void addCriteria(LogDataSourceItem *source, const QStringList &names) const;

    ViewerOptions m_options;
    bool m_isApplied;
};

#endif

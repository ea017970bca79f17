#ifndef DATALOG_VIEWER_EXPORTRUN_H
#define DATALOG_VIEWER_EXPORTRUN_H

#include "plot/LogViewerItem.h"
#include "viewer/CriteriaKeeper.h"
#include "viewer/DataSets.h"
#include "viewer/LogLoader.h"
#include "viewer/PlotLook.h"
#include "viewer/PlotSetup.h"

/** The viewer without a window: opens a log, draws its plot into a file or
 * writes the plotted data, and is done. */
class ExportRun
{
    Q_DECLARE_TR_FUNCTIONS(ExportRun)

public:
    enum Status { Done = 0, UnusableFile = 1, WrongUsage = 2 };

    explicit ExportRun(const ViewerOptions &options);

    /** Draws the plot of @p logFile into @p exportFile, or writes the data there. */
    Status run(const QString &logFile, const QString &exportFile);
    /** One line about what went wrong. */
    QString errorText() const { return m_errorText; }
    /** What of a definition got lost, one line each. */
    QStringList remarks() const { return m_remarks; }

private:
    bool hasData();
    Status drawPlot(const QString &file);
    Status writeData(const QString &file);
    Status fail(Status status, const QString &text);

    LogDataSourceItem m_source;
    LogViewerItem m_view;
    LogLoader m_loader;
    DataSets m_dataSets;
    CriteriaKeeper m_criteriaKeeper;
    PlotLook m_look;
    PlotSetup m_setup;
    QString m_errorText;
    QStringList m_remarks;
};

#endif

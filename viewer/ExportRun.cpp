#include "viewer/ExportRun.h"

#include "viewer/FailureText.h"
#include "viewer/PlotExport.h"

ExportRun::ExportRun(const ViewerOptions &options)
    : m_setup(options)
{
    m_view.setDataSource(&m_source);
    m_loader.setSource(&m_source);
    m_dataSets.setSource(&m_source);
    m_criteriaKeeper.setSource(&m_source);
    m_look.setView(&m_view);
    QObject::connect(&m_setup, &PlotSetup::usageError,
                     [this](const QString &text) { m_errorText = text; });
}

ExportRun::Status ExportRun::run(const QString &logFile, const QString &exportFile)
{
    if (!m_loader.open(logFile))
        return fail(UnusableFile, m_loader.errorText());
    if (!hasData())
        return fail(UnusableFile, FailureText::ofLog(logFile, tr("there is no data in it")));
    if (!m_setup.apply(&m_dataSets, &m_view))
        return WrongUsage;
    PlotExport plot(&m_view, m_setup.options().size);
    if (!plot.write(exportFile))
        return fail(UnusableFile, FailureText::ofExport(exportFile, plot.errorText()));
    return Done;
}

/** Whether the data set asked for has variables; one that there is not is another mistake. */
bool ExportRun::hasData()
{
    const TabularParser &log = m_source.parser()->tabularParser();
    const int dataSet = m_setup.options().dataSet - 1;
    const int count = log.dataSets().size();
    return count > 0 && (dataSet >= count || !log.variables(dataSet).isEmpty());
}

ExportRun::Status ExportRun::fail(Status status, const QString &text)
{
    m_errorText = text;
    return status;
}

#include "viewer/ExportRun.h"

#include "viewer/DataExport.h"
#include "viewer/FailureText.h"
#include "viewer/PlotExport.h"
#include "viewer/PlotFormat.h"

ExportRun::ExportRun(const ViewerOptions &options)
    : m_setup(options)
{
    m_view.setDataSource(&m_source);
    m_loader.setSource(&m_source);
    m_dataSets.setSource(&m_source);
    m_criteriaKeeper.setSource(&m_source);
    m_look.setView(&m_view);
    m_look.setHasLegend(false); // pictures get one that is not for tapping
    QObject::connect(&m_setup, &PlotSetup::usageError,
                     [this](const QString &text) { m_errorText = text; });
    QObject::connect(&m_setup, &PlotSetup::failed,
                     [this](const QString &text) { m_errorText = text; });
    QObject::connect(&m_setup, &PlotSetup::remarked,
                     [this](const QString &text) { m_remarks.append(text); });
}

ExportRun::Status ExportRun::run(const QString &logFile, const QString &exportFile)
{
    if (!m_loader.open(logFile))
        return fail(UnusableFile, m_loader.errorText());
    if (!hasData())
        return fail(UnusableFile, FailureText::ofLog(logFile, tr("there is no data in it")));
    if (!m_setup.apply(&m_dataSets, &m_view))
        return WrongUsage;
    if (!m_errorText.isEmpty())
        return UnusableFile;
    const bool isData = PlotFormat::ofFile(exportFile) == PlotFormat::Csv;
    return isData ? writeData(exportFile) : drawPlot(exportFile);
}

ExportRun::Status ExportRun::drawPlot(const QString &file)
{
    PlotExport plot(&m_view, m_setup.options().size);
    if (!plot.write(file))
        return fail(UnusableFile, FailureText::ofExport(file, plot.errorText()));
    return Done;
}

ExportRun::Status ExportRun::writeData(const QString &file)
{
    DataExport data(&m_source);
    if (!data.write(file))
        return fail(UnusableFile, FailureText::ofExport(file, data.errorText()));
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

#include "viewer/LogReloader.h"

#include "viewer/SessionRestorer.h"

LogReloader::LogReloader(QObject *parent)
    : QObject(parent)
{
}

void LogReloader::setLoader(LogLoader *loader)
{
    if (loader == m_loader)
        return;
    if (m_loader)
        disconnect(m_loader, nullptr, this, nullptr);
    m_loader = loader;
    if (m_loader)
        connect(m_loader.data(), &LogLoader::aboutToReplace, this, &LogReloader::remember);
    emit loaderChanged();
}

void LogReloader::setDataSets(DataSets *dataSets)
{
    if (dataSets == m_dataSets)
        return;
    m_dataSets = dataSets;
    emit dataSetsChanged();
}

void LogReloader::setView(LogViewerItem *view)
{
    if (view == m_view)
        return;
    m_view = view;
    emit viewChanged();
}

bool LogReloader::reload()
{
    if (!isReady() || m_loader->isReading() || m_loader->filePath().isEmpty())
        return false;
    remember();
    return m_loader->open(m_loader->filePath());
}

void LogReloader::remember()
{
    if (!isReady() || !m_loader->isLoaded())
        return;
    // Of a log that is still empty, nothing was chosen yet.
    const bool hasVariables = !m_dataSets->variableNames().isEmpty();
    if (hasVariables)
        m_state = SessionState::of(m_dataSets, m_view);
    setPath(hasVariables ? m_loader->filePath() : QString());
    emit remembered();
}

bool LogReloader::restore()
{
    const bool isKnown = isReady() && !m_path.isEmpty() && m_path == m_loader->filePath();
    setPath(QString());
    QStringList remarks;
    if (isKnown) {
        const int count = m_dataSets->source()->parser()->tabularParser().dataSets().size();
        const bool isThere = m_state.dataSet <= count;
        m_dataSets->show(isThere ? m_state.dataSet - 1 : 0);
        SessionRestorer restorer(m_dataSets, m_view);
        restorer.apply(m_state);
        remarks = restorer.remarks();
    }
    setRemarks(remarks);
    return isKnown;
}

void LogReloader::setPath(const QString &path)
{
    if (path == m_path)
        return;
    m_path = path;
    emit rememberedPathChanged();
}

void LogReloader::setRemarks(const QStringList &remarks)
{
    if (remarks == m_remarks)
        return;
    m_remarks = remarks;
    emit remarksChanged();
}

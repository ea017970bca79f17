#include "viewer/SetupFiles.h"

#include "viewer/DefinitionFile.h"
#include "viewer/FailureText.h"
#include "viewer/LocalPath.h"
#include "viewer/PlotSetup.h"

#include <QFileInfo>

namespace
{

/** Not every dialog adds it. */
QString withSuffix(const QString &path)
{
    return QFileInfo(path).suffix().isEmpty() ? path + QLatin1String(".json") : path;
}

} // namespace

SetupFiles::SetupFiles(QObject *parent)
    : QObject(parent)
    , m_isGood(true)
{
}

void SetupFiles::setDataSets(DataSets *dataSets)
{
    if (dataSets == m_dataSets)
        return;
    m_dataSets = dataSets;
    emit dataSetsChanged();
}

void SetupFiles::setView(LogViewerItem *view)
{
    if (view == m_view)
        return;
    m_view = view;
    emit viewChanged();
}

void SetupFiles::setSetup(QObject *setup)
{
    if (setup == m_setup)
        return;
    if (m_setup)
        disconnect(m_setup, nullptr, this, nullptr);
    m_setup = setup;
    if (auto *plotSetup = qobject_cast<PlotSetup *>(setup)) {
        connect(plotSetup, &PlotSetup::failed, this, &SetupFiles::tell);
        connect(plotSetup, &PlotSetup::remarked, this, &SetupFiles::tell);
    }
    emit setupChanged();
}

bool SetupFiles::save(const QUrl &file)
{
    if (!isReady())
        return false;
    const QString asked = LocalPath::of(file);
    const QString path = withSuffix(asked);
    // The dialog asked about replacing the file as it was named.
    if (path != asked && QFileInfo::exists(path)) {
        tellFailure(FailureText::ofExport(
            path, tr("there is such a file already; give its whole name to replace it")));
        return false;
    }
    DefinitionFile definition(path);
    const bool isSaved = definition.write(m_dataSets, m_view);
    tellOutcome(definition, tr("%1 was saved").arg(QFileInfo(path).fileName()));
    return isSaved;
}

bool SetupFiles::apply(const QUrl &file)
{
    if (!isReady())
        return false;
    DefinitionFile definition(LocalPath::of(file));
    SessionState state;
    const bool isRead = definition.read(&state);
    if (isRead)
        definition.apply(state, m_dataSets, m_view);
    tellOutcome(definition, tr("%1 was applied").arg(QFileInfo(LocalPath::of(file)).fileName()));
    if (isRead)
        emit applied();
    return isRead;
}

void SetupFiles::dismiss()
{
    m_notice.clear();
    m_isGood = true;
    emit noticeChanged();
}

void SetupFiles::tellOutcome(const DefinitionFile &file, const QString &success)
{
    m_isGood = file.errorText().isEmpty() && file.remarks().isEmpty();
    if (file.errorText().isEmpty())
        m_notice = QStringList(success) + file.remarks();
    else
        m_notice = QStringList(file.errorText());
    emit noticeChanged();
}

void SetupFiles::tellFailure(const QString &text)
{
    m_isGood = false;
    m_notice = QStringList(text);
    emit noticeChanged();
}

void SetupFiles::tell(const QString &line)
{
    m_isGood = false;
    m_notice.append(line);
    emit noticeChanged();
}

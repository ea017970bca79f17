#include "viewer/PlotSaver.h"

#include "viewer/DataExport.h"
#include "viewer/FailureText.h"
#include "viewer/PlotExport.h"
#include "viewer/PlotFormat.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

PlotSaver::PlotSaver(QObject *parent)
    : QObject(parent)
    , m_progress(0)
    , m_isSaving(false)
    , m_isCancelled(false)
{
}

void PlotSaver::setView(LogViewerItem *view)
{
    if (view == m_view)
        return;
    m_view = view;
    emit viewChanged();
}

QString PlotSaver::suggestion(const QString &logPath, const QString &suffix,
                              const QUrl &folder) const
{
    const QFileInfo log(logPath);
    const bool isKnown = !folder.isEmpty() || !logPath.isEmpty();
    const QString wanted = folder.isEmpty() ? log.absolutePath() : LocalPath::of(folder);
    const QDir directory = isKnown && QFileInfo(wanted).isWritable() ? QDir(wanted) : QDir::home();
    const bool isData = suffix == QLatin1String("csv");
    const QString name = log.completeBaseName()
        + (isData ? QStringLiteral("-data.") : QStringLiteral("-plot.")) + suffix;
    return QDir::toNativeSeparators(directory.absoluteFilePath(name));
}

bool PlotSaver::areNeighbours(const QString &path, const QString &other) const
{
    return QFileInfo(path).absoluteDir() == QFileInfo(other).absoluteDir();
}

QUrl PlotSaver::folderOf(const QString &path) const
{
    return LocalPath::toUrl(QFileInfo(path).absolutePath());
}

QString PlotSaver::withSuffix(const QString &path, const QString &suffix) const
{
    if (PlotFormat::ofFile(path) == PlotFormat::Unknown)
        return path + QLatin1Char('.') + suffix;
    const int dot = path.lastIndexOf(QLatin1Char('.'));
    return path.left(dot + 1) + suffix;
}

bool PlotSaver::exists(const QString &path) const
{
    return QFileInfo::exists(path);
}

QString PlotSaver::save(const QString &path, int width, int height)
{
    if (m_isSaving || !m_view || !m_view->dataSource())
        return QString();
    const PlotFormat::Format format = PlotFormat::ofFile(path);
    if (format == PlotFormat::Unknown)
        return tr("The name of the file has to end in %1.").arg(PlotFormat::suffixes());
    if (format == PlotFormat::Csv) {
        DataExport data(m_view->dataSource());
        return write(&data, path);
    }
    PlotExport plot(m_view, QSize(width, height));
    return write(&plot, path);
}

template <class File> QString PlotSaver::write(File *file, const QString &path)
{
    const QPointer<PlotSaver> self(this);
    const QPointer<LogDataSourceItem> source(m_view->dataSource());
    file->setWatcher([self, source](double part) {
        if (self)
            self->setProgress(part);
        QCoreApplication::processEvents();
        return self && source && !self->m_isCancelled;
    });
    m_isCancelled = false;
    setProgress(0);
    setSaving(true);
    const bool isSaved = file->write(path);
    if (self)
        setSaving(false);
    if (isSaved)
        return QString();
    return self && m_isCancelled ? cancelText() : FailureText::ofExport(path, file->errorText());
}

QString PlotSaver::cancelText()
{
    return tr("Saving was cancelled, the file is as it was before.");
}

void PlotSaver::setProgress(double progress)
{
    m_progress = progress;
    emit progressChanged();
}

void PlotSaver::setSaving(bool isSaving)
{
    m_isSaving = isSaving;
    emit savingChanged();
}

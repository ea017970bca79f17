#include "viewer/RecentFiles.h"

#include "viewer/ViewerSettings.h"

#include <QDir>
#include <QFileInfo>

namespace
{

const char kKey[] = "recentFiles";

QStringList kept()
{
    return ViewerSettings().value(QLatin1String(kKey)).toStringList().mid(0, RecentFiles::Most);
}

} // namespace

RecentFiles::RecentFiles(QObject *parent)
    : QAbstractListModel(parent)
{
    refresh();
}

int RecentFiles::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_paths.size();
}

QVariant RecentFiles::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return QVariant();
    const QFileInfo file(m_paths.at(index.row()));
    switch (role) {
    case PathRole:
        return file.filePath();
    case Qt::DisplayRole:
    case NameRole:
        return file.fileName();
    case FolderRole:
        return QDir::toNativeSeparators(file.path());
    case IsThereRole:
        return m_areThere.at(index.row());
    default:
        return QVariant();
    }
}

QHash<int, QByteArray> RecentFiles::roleNames() const
{
    return {
        {PathRole, "path"}, {NameRole, "name"}, {FolderRole, "folder"}, {IsThereRole, "isThere"}};
}

/** By the path that a user knows, links and all. */
bool RecentFiles::add(const QString &path)
{
    if (path.isEmpty() || path == m_leftOut)
        return false;
    const QString file = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    QStringList paths = kept();
    if (paths.value(0) == file && m_paths == paths)
        return true; // a log that is followed comes again and again
    paths.removeAll(file);
    paths.prepend(file);
    keep(paths.mid(0, Most));
    return true;
}

void RecentFiles::remove(int row)
{
    QStringList paths = kept();
    paths.removeAll(m_paths.value(row));
    keep(paths);
}

void RecentFiles::clear()
{
    keep(QStringList());
}

void RecentFiles::refresh()
{
    show(kept());
}

bool RecentFiles::isThere(const QString &path) const
{
    return QFileInfo(path).isFile();
}

void RecentFiles::keep(const QStringList &paths)
{
    ViewerSettings().setValue(QLatin1String(kKey), paths);
    show(paths);
}

void RecentFiles::show(const QStringList &paths)
{
    beginResetModel();
    m_paths = paths;
    m_areThere.clear();
    for (const QString &path : paths)
        m_areThere.append(isThere(path));
    endResetModel();
    emit countChanged();
}

#ifndef DATALOG_VIEWER_PLOTSAVER_H
#define DATALOG_VIEWER_PLOTSAVER_H

#include "plot/LogViewerItem.h"
#include "viewer/LocalPath.h"

#include <QPointer>
#include <QUrl>

/**
 * Saves the plot of a window, or the data behind it, in a file that a user names.
 *
 * That may take long: events are let through inside save(), so that all stays alive meanwhile.
 */
class PlotSaver : public QObject
{
    Q_OBJECT
    Q_PROPERTY(LogViewerItem *view READ view WRITE setView NOTIFY viewChanged)
    Q_PROPERTY(bool saving READ isSaving NOTIFY savingChanged)
    Q_PROPERTY(double progress READ progress NOTIFY progressChanged)

public:
    explicit PlotSaver(QObject *parent = nullptr);

    LogViewerItem *view() const { return m_view; }
    void setView(LogViewerItem *view);
    /** Whether something is being saved. */
    bool isSaving() const { return m_isSaving; }
    /** The part of it that is saved, up to 1. */
    double progress() const { return m_progress; }

    /**
     * A name in @p folder, or without one beside the log; at home where nothing can be written
     * there.
     */
    Q_INVOKABLE QString suggestion(const QString &logPath, const QString &suffix,
                                   const QUrl &folder = QUrl()) const;
    Q_INVOKABLE bool areNeighbours(const QString &path, const QString &other) const;
    /** The folder of a file that need not be there. */
    Q_INVOKABLE QUrl folderOf(const QString &path) const;
    /** @p path with another suffix in place of one of those a plot can have. */
    Q_INVOKABLE QString withSuffix(const QString &path, const QString &suffix) const;
    Q_INVOKABLE QString localPath(const QUrl &url) const { return LocalPath::of(url); }
    Q_INVOKABLE bool exists(const QString &path) const;
    /** Empty, or one line about what went wrong. @param width, height of a picture, in pixels. */
    Q_INVOKABLE QString save(const QString &path, int width, int height);
    /** Leaves the file as it was. */
    Q_INVOKABLE void cancel() { m_isCancelled = true; }

signals:
    void viewChanged();
    void savingChanged();
    void progressChanged();

private:
    template <class File> QString write(File *file, const QString &path);
    static QString cancelText();
    void setProgress(double progress);
    void setSaving(bool isSaving);

    QPointer<LogViewerItem> m_view;
    double m_progress;
    bool m_isSaving;
    bool m_isCancelled;
};

#endif

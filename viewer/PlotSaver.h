#ifndef DATALOG_VIEWER_PLOTSAVER_H
#define DATALOG_VIEWER_PLOTSAVER_H

#include "plot/LogViewerItem.h"

#include <QPointer>
#include <QUrl>

/** Saves the plot of a window, or the data behind it, in a file that a user names. */
class PlotSaver : public QObject
{
    Q_OBJECT
    Q_PROPERTY(LogViewerItem *view READ view WRITE setView NOTIFY viewChanged)

public:
    explicit PlotSaver(QObject *parent = nullptr);

    LogViewerItem *view() const { return m_view; }
    void setView(LogViewerItem *view);

    /** A name beside the log, or at home where nothing can be written there. */
    Q_INVOKABLE QString suggestion(const QString &logPath, const QString &suffix) const;
    /** @p path with another suffix in place of one of those a plot can have. */
    Q_INVOKABLE QString withSuffix(const QString &path, const QString &suffix) const;
    Q_INVOKABLE QString localPath(const QUrl &url) const { return url.toLocalFile(); }
    Q_INVOKABLE bool exists(const QString &path) const;
    /** Empty, or one line about what went wrong. @param width, height of a picture, in pixels. */
    Q_INVOKABLE QString save(const QString &path, int width, int height);

signals:
    void viewChanged();

private:
    QPointer<LogViewerItem> m_view;
};

#endif

#ifndef DATALOG_VIEWER_PLOTEXPORT_H
#define DATALOG_VIEWER_PLOTEXPORT_H

#include "viewer/PlotPicture.h"

#include <QCoreApplication>

class LogViewerItem;
class QwtPlot;

/**
 * Draws a plot, as it is on the screen but always on a light page, into pictures of the kinds that
 * PlotFormat knows. Hidden curves are left out. A file is written whole or not at all.
 */
class PlotExport
{
    Q_DECLARE_TR_FUNCTIONS(PlotExport)

public:
    typedef PlotPicture::Watcher Watcher;

    /**
     * @param size in pixels. A view without a window takes this size and keeps it; one that is
     * shown stays as it is.
     */
    PlotExport(LogViewerItem *view, const QSize &size);

    /**
     * Is told, again and again, which part is done, and says whether to go on. It may let events
     * through, and even delete the view: a plot that is shown is drawn in a thread of its own then,
     * as it was when write() was called.
     */
    void setWatcher(const Watcher &watcher) { m_watcher = watcher; }

    /** False with an errorText() when the file can't be written. */
    bool write(const QString &path);
    QString errorText() const { return m_errorText; }
    /** The plot as an image of the size. */
    QImage image() const;

private:
    PlotPicture picture() const;
    bool writeAside(const QString &path);
    bool write(const QString &path, const QByteArray &content);

    LogViewerItem *m_view;
    QwtPlot *m_plot;
    QSize m_size;
    bool m_isShown;
    Watcher m_watcher;
    QString m_errorText;
};

#endif

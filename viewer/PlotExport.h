#ifndef DATALOG_VIEWER_PLOTEXPORT_H
#define DATALOG_VIEWER_PLOTEXPORT_H

#include <QCoreApplication>
#include <QImage>
#include <QSize>

class LogViewerItem;
class QIODevice;
class QwtPlot;

/**
 * Draws a plot, as it is on the screen but always on a light page, into pictures of the kinds that
 * PlotFormat knows. Hidden curves are left out. A file is written whole or not at all.
 */
class PlotExport
{
    Q_DECLARE_TR_FUNCTIONS(PlotExport)

public:
    /**
     * @param size in pixels. A view without a window takes this size and keeps it; one that is
     * shown stays as it is.
     */
    PlotExport(LogViewerItem *view, const QSize &size);

    /** False with an errorText() when the file can't be written. */
    bool write(const QString &path);
    QString errorText() const { return m_errorText; }
    /** The plot as an image of the size. */
    QImage image() const;

private:
    bool draw(int format, QIODevice *device) const;
    bool drawSvg(QIODevice *device) const;
    bool drawPdf(QIODevice *device) const;

    LogViewerItem *m_view;
    QwtPlot *m_plot;
    QSize m_size;
    bool m_isShown;
    QString m_errorText;
};

#endif

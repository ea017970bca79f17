#ifndef DATALOG_VIEWER_PLOTPICTURE_H
#define DATALOG_VIEWER_PLOTPICTURE_H

#include "viewer/PlotFormat.h"
#include "viewer/PlotSheet.h"

#include <QImage>

/** A sheet in the formats that a plot can be saved in. Any thread may draw it. */
class PlotPicture
{
public:
    typedef PlotSheet::Watcher Watcher;

    /** @param size in pixels, which the sheet was made for. */
    PlotPicture(const PlotSheet &sheet, const QSize &size);

    /** An empty page. */
    static QImage page(const QSize &size);

    /** Null when @p watcher, which may be empty, did not want to go on. */
    QImage image(const Watcher &watcher) const;
    /** What a file of it holds; empty when the watcher did not want to go on, or without a picture.
     */
    QByteArray content(PlotFormat::Format format, const Watcher &watcher) const;

private:
    bool draw(PlotFormat::Format format, QIODevice *device, const Watcher &watcher) const;
    bool drawPng(QIODevice *device, const Watcher &watcher) const;
    bool drawSvg(QIODevice *device, const Watcher &watcher) const;
    bool drawPdf(QIODevice *device, const Watcher &watcher) const;

    PlotSheet m_sheet;
    QSize m_size;
};

#endif

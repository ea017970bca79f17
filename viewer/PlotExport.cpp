#include "viewer/PlotExport.h"

#include "plot/LogViewerItem.h"
#include "viewer/Aside.h"
#include "viewer/PlotTheme.h"
#include "viewer/PngWriter.h"
#include "viewer/TemporaryLegend.h"
#include "viewer/WholeFile.h"

#include <QBuffer>

#include <qwt_plot.h>

#include <memory>

namespace
{

QByteArray png(const QImage &image)
{
    QBuffer content;
    content.open(QIODevice::WriteOnly);
    return PngWriter(&content).write(image) ? content.data() : QByteArray();
}

} // namespace

PlotExport::PlotExport(LogViewerItem *view, const QSize &size)
    : m_view(view)
    , m_plot(view->plot())
    , m_size(size)
    , m_isShown(view->window())
{
    if (m_isShown)
        return;
    view->setSize(size);
    // The plot and its legend find their places in events of their own.
    QCoreApplication::sendPostedEvents();
    m_plot->updateLayout();
    m_plot->replot();
}

bool PlotExport::write(const QString &path)
{
    if (m_isShown && m_watcher)
        return writeAside(path);
    const PlotFormat::Format format = PlotFormat::ofFile(path);
    return write(path,
                 format == PlotFormat::Png ? png(image()) : picture().content(format, Watcher()));
}

/** Who gives up need not wait until a picture has been packed; a file is written to its end. */
bool PlotExport::writeAside(const QString &path)
{
    const PlotPicture drawn = picture();
    const auto content = std::make_shared<QByteArray>();
    const auto draw = [drawn, path, content](const Watcher &watcher) {
        *content = drawn.content(PlotFormat::ofFile(path), watcher);
    };
    if (!Aside::run(draw, m_watcher)) {
        m_errorText = tr("it was cancelled");
        return false;
    }
    bool isWritten = false;
    const auto keep = [&](const Watcher & /*watcher*/) { isWritten = write(path, *content); };
    Aside::run(keep, [this](double) {
        m_watcher(1);
        return true;
    });
    return isWritten;
}

/** All at once, for the vector formats don't tell when they can't be written. */
bool PlotExport::write(const QString &path, const QByteArray &content)
{
    if (!content.isEmpty())
        return WholeFile::write(path, content, &m_errorText);
    m_errorText = tr("the plot can't be drawn into it");
    return false;
}

/** The plot looks as it is to be drawn for a moment only, which nobody sees. */
PlotPicture PlotExport::picture() const
{
    const TemporaryPlotTheme theme(m_view, false);
    const TemporaryLegend legend(m_plot);
    return PlotPicture(PlotSheet(m_plot, m_size), m_size);
}

/** A plot that is not shown has the size itself, and draws itself as it would be shown. */
QImage PlotExport::image() const
{
    if (m_isShown)
        return picture().image(Watcher());
    const TemporaryPlotTheme theme(m_view, false);
    const TemporaryLegend legend(m_plot);
    m_plot->updateLayout();
    QImage image = PlotPicture::page(m_size);
    m_plot->render(&image);
    return image;
}

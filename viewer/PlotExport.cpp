#include "viewer/PlotExport.h"

#include "plot/LogViewerItem.h"
#include "viewer/PlotFormat.h"
#include "viewer/PlotTheme.h"
#include "viewer/PngWriter.h"
#include "viewer/TemporaryLegend.h"
#include "viewer/ThemeColors.h"
#include "viewer/WholeFile.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>

#include <qwt_plot.h>
#include <qwt_plot_renderer.h>

namespace
{

const int kPixelsPerInch = 96;

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

/** Drawn in memory, for the vector formats don't tell when they can't be written. */
bool PlotExport::write(const QString &path)
{
    const TemporaryPlotTheme theme(m_view, false);
    const TemporaryLegend legend(m_plot);
    QBuffer content;
    content.open(QIODevice::WriteOnly);
    if (draw(PlotFormat::ofFile(path), &content))
        return WholeFile::write(path, content.data(), &m_errorText);
    m_errorText = tr("the plot can't be drawn into it");
    return false;
}

bool PlotExport::draw(int format, QIODevice *device) const
{
    switch (format) {
    case PlotFormat::Png:
        return PngWriter(device).write(image());
    case PlotFormat::Svg:
        return drawSvg(device);
    case PlotFormat::Pdf:
        return drawPdf(device);
    default:
        return false;
    }
}

QImage PlotExport::image() const
{
    const TemporaryPlotTheme theme(m_view, false);
    QImage image(m_size, QImage::Format_RGB32);
    image.fill(ThemeColors::color("plot", false));
    if (m_isShown)
        QwtPlotRenderer().renderTo(m_plot, image);
    else
        m_plot->render(&image);
    return image;
}

bool PlotExport::drawSvg(QIODevice *device) const
{
    QSvgGenerator generator;
    generator.setOutputDevice(device);
    generator.setSize(m_size);
    generator.setViewBox(QRect(QPoint(), m_size));
    generator.setResolution(kPixelsPerInch);
    QwtPlotRenderer().renderTo(m_plot, generator);
    return true;
}

bool PlotExport::drawPdf(QIODevice *device) const
{
    QPdfWriter writer(device);
    writer.setResolution(kPixelsPerInch);
    const QSizeF inches = QSizeF(m_size) / kPixelsPerInch;
    writer.setPageSize(QPageSize(inches, QPageSize::Inch));
    writer.setPageMargins(QMarginsF());
    QPainter painter(&writer);
    QwtPlotRenderer().render(m_plot, &painter, QRectF(QPointF(), m_size));
    return painter.end();
}

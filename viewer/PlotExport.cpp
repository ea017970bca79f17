#include "viewer/PlotExport.h"

#include "plot/LogViewerItem.h"
#include "viewer/PlotFormat.h"

#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>
#include <QSvgGenerator>

#include <qwt_plot.h>
#include <qwt_plot_renderer.h>

namespace
{

const int kPixelsPerInch = 96;

} // namespace

PlotExport::PlotExport(LogViewerItem *view, const QSize &size)
    : m_plot(view->plot())
    , m_size(size)
{
    view->setSize(size);
    // The plot and its legend find their places in events of their own.
    QCoreApplication::sendPostedEvents();
    m_plot->updateLayout();
    m_plot->replot();
}

bool PlotExport::write(const QString &path)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        m_errorText = file.errorString();
        return false;
    }
    const bool isDrawn = draw(PlotFormat::ofFile(path), &file);
    if (isDrawn && file.commit())
        return true;
    m_errorText = isDrawn ? file.errorString() : tr("the plot can't be drawn into it");
    return false;
}

bool PlotExport::draw(int format, QIODevice *device) const
{
    switch (format) {
    case PlotFormat::Png:
        return image().save(device, "PNG");
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
    QImage image(m_size, QImage::Format_RGB32);
    image.fill(Qt::white);
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

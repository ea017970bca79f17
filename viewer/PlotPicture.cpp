#include "viewer/PlotPicture.h"

#include "viewer/PngWriter.h"
#include "viewer/ThemeColors.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>

#include <new>

namespace
{

const int kPixelsPerInch = 96;
const double kPaintedPart = 0.3; // of the time that a large image takes

/** Hears of one stretch of the work as of a part of all. */
PlotPicture::Watcher stretch(const PlotPicture::Watcher &watcher, double from, double to)
{
    if (!watcher)
        return watcher;
    return [watcher, from, to](double part) { return watcher(from + part * (to - from)); };
}

} // namespace

PlotPicture::PlotPicture(const PlotSheet &sheet, const QSize &size)
    : m_sheet(sheet)
    , m_size(size)
{
}

QImage PlotPicture::page(const QSize &size)
{
    QImage page(size, QImage::Format_RGB32);
    page.fill(ThemeColors::color("plot", false));
    return page;
}

QImage PlotPicture::image(const Watcher &watcher) const
{
    QImage image = page(m_size);
    QPainter painter(&image);
    return m_sheet.paint(&painter, watcher) ? image : QImage();
}

QByteArray PlotPicture::content(PlotFormat::Format format, const Watcher &watcher) const
{
    QBuffer content;
    content.open(QIODevice::WriteOnly);
    return draw(format, &content, watcher) ? content.data() : QByteArray();
}

bool PlotPicture::draw(PlotFormat::Format format, QIODevice *device, const Watcher &watcher) const
{
    switch (format) {
    case PlotFormat::Png:
        return drawPng(device, watcher);
    case PlotFormat::Svg:
        return drawSvg(device, watcher);
    case PlotFormat::Pdf:
        return drawPdf(device, watcher);
    default:
        return false;
    }
}

bool PlotPicture::drawPng(QIODevice *device, const Watcher &watcher) const
{
    const QImage drawn = image(stretch(watcher, 0, kPaintedPart));
    return !drawn.isNull() && PngWriter(device, stretch(watcher, kPaintedPart, 1)).write(drawn);
}

bool PlotPicture::drawSvg(QIODevice *device, const Watcher &watcher) const
{
    QScopedPointer<QSvgGenerator> generator(new QSvgGenerator);
    generator->setOutputDevice(device);
    generator->setSize(m_size);
    generator->setViewBox(QRect(QPoint(), m_size));
    generator->setResolution(kPixelsPerInch);
    QScopedPointer<QPainter> painter(new QPainter(generator.data()));
    try {
        const bool isPainted = m_sheet.paint(painter.data(), watcher);
        return painter->end() && isPainted; // it writes what there is even then
    } catch (const std::bad_alloc &) {
        // The generator keeps all in one text, which has an end. Its own would try to write that,
        // and take the program along: memory that is lost is the lesser evil.
        painter.take();
        generator.take();
        return false;
    }
}

bool PlotPicture::drawPdf(QIODevice *device, const Watcher &watcher) const
{
    QPdfWriter writer(device);
    writer.setResolution(kPixelsPerInch);
    const QSizeF inches = QSizeF(m_size) / kPixelsPerInch;
    writer.setPageSize(QPageSize(inches, QPageSize::Inch));
    writer.setPageMargins(QMarginsF());
    QPainter painter(&writer);
    // Packing the page, at the end, takes as long as painting it.
    return m_sheet.paint(&painter, stretch(watcher, 0, 0.5)) && painter.end();
}

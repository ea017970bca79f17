#include "declarative/qt5/ScenePainter.h"

#include "declarative/qt5/SceneView.h"

#include <QPainter>

namespace
{

/** Beyond this many rectangles, painting their bounds at once costs less than each by itself. */
const int kMaximalRectangles = 8;

QRegion simplified(const QRegion &region)
{
    return region.rectCount() > kMaximalRectangles ? QRegion(region.boundingRect()) : region;
}

/** What of @p size an image can show; sides that are no numbers count as none. */
QSizeF bounded(const QSizeF &size, qreal ratio)
{
    const qreal side = ScenePainter::MaximalSide / ratio;
    const qreal width = size.width() > 0 ? qMin(size.width(), side) : 0;
    const qreal height = size.height() > 0 ? qMin(size.height(), side) : 0;
    const qreal pixels = width * height * ratio * ratio;
    return QSizeF(width,
                  pixels > ScenePainter::MaximalPixels
                      ? height * ScenePainter::MaximalPixels / pixels
                      : height);
}

} // namespace

ScenePainter::ScenePainter(SceneView *view)
    : m_view(view)
{
}

void ScenePainter::setArea(const QRectF &area, qreal ratio)
{
    const QRectF seen(area.topLeft(), bounded(area.size(), ratio));
    m_view->setArea(seen.toAlignedRect());
    const QRect deviceArea = QRectF(seen.topLeft() * ratio, seen.size() * ratio).toAlignedRect();
    if (deviceArea != m_deviceArea || !qFuzzyCompare(ratio, m_ratio))
        reshape(deviceArea, ratio);
}

void ScenePainter::reshape(const QRect &deviceArea, qreal ratio)
{
    const QRect kept = qFuzzyCompare(ratio, m_ratio) ? deviceArea & m_deviceArea : QRect();
    QImage image(deviceArea.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    if (!kept.isEmpty()) {
        QPainter painter(&image);
        m_image.setDevicePixelRatio(1);
        painter.setCompositionMode(QPainter::CompositionMode_Source);
        painter.drawImage(kept.topLeft() - deviceArea.topLeft(), m_image,
                          kept.translated(-m_deviceArea.topLeft()));
    }
    m_image = image;
    m_image.setDevicePixelRatio(ratio);
    m_deviceArea = deviceArea;
    m_ratio = ratio;
    ++m_generation;
    const QRegion fresh = QRegion(deviceArea) - kept;
    for (const QRect &rect : fresh)
        invalidate(fromDevice(rect).toAlignedRect());
}

void ScenePainter::invalidate(const QRegion &region)
{
    m_dirty = simplified(m_dirty + region);
}

bool ScenePainter::paint()
{
    QRegion region;
    for (const QRect &rect : m_dirty)
        region += toDevice(rect) & m_deviceArea;
    m_dirty = QRegion();
    if (region.isEmpty())
        return false;
    m_lastRegion = QRegion();
    for (const QRect &rect : region)
        render(rect);
    ++m_generation;
    return true;
}

void ScenePainter::render(const QRect &deviceRect)
{
    const QRectF source = fromDevice(deviceRect);
    const QRectF target = fromDevice(deviceRect.translated(-m_deviceArea.topLeft()));
    QPainter painter(&m_image);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.fillRect(target, Qt::transparent);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter.setClipRect(target);
    painter.translate(target.topLeft() - source.topLeft());
    m_view->draw(&painter, source.toAlignedRect());
    m_lastRegion += source.toAlignedRect();
}

QRectF ScenePainter::imageArea() const
{
    return fromDevice(m_deviceArea);
}

QRect ScenePainter::toDevice(const QRectF &area) const
{
    return QRectF(area.topLeft() * m_ratio, area.size() * m_ratio).toAlignedRect();
}

QRectF ScenePainter::fromDevice(const QRect &area) const
{
    return QRectF(QPointF(area.topLeft()) / m_ratio, QSizeF(area.size()) / m_ratio);
}

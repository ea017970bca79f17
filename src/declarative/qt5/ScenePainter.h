#ifndef DATALOG_DECLARATIVE_QT5_SCENEPAINTER_H
#define DATALOG_DECLARATIVE_QT5_SCENEPAINTER_H

#include <QImage>
#include <QRegion>

class SceneView;

/**
 * Keeps an image of what a view sees of its scene up to date, painting only what changed. For the
 * thread of the user interface: widgets can be painted nowhere else.
 */
class ScenePainter
{
public:
    enum {
        MaximalSide = 16384, ///< device pixels: no screen has more, and textures take no more
        MaximalPixels = 64 * 1024 * 1024
    };

    explicit ScenePainter(SceneView *view);

    /**
     * Sets the part of the scene to see and the device pixels per unit of it. What the image
     * already shows of the part is kept unless the ratio differs. Of an area that is too large for
     * an image, which a script can ask for by a slip, the top and left are seen.
     */
    void setArea(const QRectF &area, qreal ratio);
    /** Marks @p region, in scene coordinates, as to be painted again. */
    void invalidate(const QRegion &region);
    /** Paints what is marked; false when nothing was and the image is as it was. */
    bool paint();

    /** The image, at the ratio given; null while the area is empty. */
    const QImage &image() const { return m_image; }
    /** What the image shows, in scene coordinates: the area, out to whole device pixels. */
    QRectF imageArea() const;
    /** Counts the changes of the image. */
    quint64 generation() const { return m_generation; }
    /** What the last paint() that painted anything painted, in scene coordinates. */
    QRegion lastRegion() const { return m_lastRegion; }

private:
    QRect toDevice(const QRectF &area) const;
    QRectF fromDevice(const QRect &area) const;
    void reshape(const QRect &deviceArea, qreal ratio);
    void render(const QRect &deviceRect);

    SceneView *m_view;
    QImage m_image;
    QRect m_deviceArea;
    qreal m_ratio = 1;
    QRegion m_dirty;
    QRegion m_lastRegion;
    quint64 m_generation = 0;
};

#endif

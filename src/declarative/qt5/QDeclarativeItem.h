#ifndef DATALOG_DECLARATIVE_QT5_QDECLARATIVEITEM_H
#define DATALOG_DECLARATIVE_QT5_QDECLARATIVEITEM_H

#include <QGraphicsItem>
#include <QQuickItem>
#include <QRegion>
#include <QScopedPointer>

class HostedAccess;

/**
 * The base of items, under the name it has on Qt 4, for Qt Quick: an item that can show graphics
 * items, and so widgets, in a scene of its own.
 *
 * The scene is made by the first graphicsParent(); an item that never asks for it stays as light as
 * its base. Widgets are painted on the thread of the user interface into an image, only where they
 * changed; the render thread just shows the image. Content is cut at the item's edges, but pop-ups
 * (of combo boxes, say) are shown whole, above everything else in the window.
 */
class QDeclarativeItem : public QQuickItem
{
    Q_OBJECT

public:
    explicit QDeclarativeItem(QDeclarativeItem *parent = nullptr);
    ~QDeclarativeItem() override;

    using QQuickItem::setFlag;
    /**
     * Takes a flag as items of Qt 4 do. Only QGraphicsItem::ItemHasNoContents means something to
     * this engine; the others are left alone.
     */
    void setFlag(QGraphicsItem::GraphicsItemFlag flag, bool enabled = true);

    /** The root of the item's scene, made on first use; owned by the item. */
    QGraphicsItem *graphicsRoot();
    /** What the last frame that changed the item's image painted of it, in item coordinates. */
    QRegion lastRenderedRegion() const;
    /** How assistive tools get at the item's widgets; null while it has no scene. */
    HostedAccess *hostedAccess() const;

    bool contains(const QPointF &point) const override;
    QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;

protected:
    void geometryChanged(const QRectF &newGeometry, const QRectF &oldGeometry) override;
    void itemChange(ItemChange change, const ItemChangeData &value) override;
    void updatePolish() override;
    QSGNode *updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *data) override;

    bool event(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseUngrabEvent() override;
    void hoverEnterEvent(QHoverEvent *event) override;
    void hoverMoveEvent(QHoverEvent *event) override;
    void hoverLeaveEvent(QHoverEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    struct Hosting;

    void startHosting();
    void followWindow(QQuickWindow *window);
    void exposed(const QRegion &region);
    void giveFocus(const QPointF &position);
    void forwardText(QEvent *event);
    void forwardFocus(QFocusEvent *event);

    QScopedPointer<Hosting> m_hosting;
};

#endif

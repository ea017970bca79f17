#include "declarative/DeclarativeItem.h"
#include "declarative/qt5/HostedAccess.h"
#include "declarative/qt5/ImageNode.h"
#include "declarative/qt5/PopupLayer.h"
#include "declarative/qt5/SceneHost.h"
#include "declarative/qt5/SceneInput.h"
#include "declarative/qt5/ScenePainter.h"

#include <QQuickWindow>
#include <QWidget>

QGraphicsItem *graphicsParent(QDeclarativeItem *item)
{
    return item->graphicsRoot();
}

/** All that an item with a scene has and another one does without. */
struct QDeclarativeItem::Hosting {
    explicit Hosting(QDeclarativeItem *owner)
        : input(&scene)
        , painter(scene.view())
        , popups(owner, &scene, &input)
        , access(new HostedAccess(owner, &scene, &input))
    {
    }

    SceneHost scene;
    SceneInput input;
    ScenePainter painter;
    PopupLayer popups;
    QScopedPointer<HostedAccess> access;
    QMetaObject::Connection activation;
};

QDeclarativeItem::QDeclarativeItem(QDeclarativeItem *parent)
    : QQuickItem(parent)
{
}

QDeclarativeItem::~QDeclarativeItem()
{
    if (!m_hosting)
        return;
    disconnect(m_hosting->activation);
    m_hosting->access.reset(); // before what it tells of
}

void QDeclarativeItem::setFlag(QGraphicsItem::GraphicsItemFlag flag, bool enabled)
{
    if (flag == QGraphicsItem::ItemHasNoContents)
        QQuickItem::setFlag(ItemHasContents, !enabled);
}

QGraphicsItem *QDeclarativeItem::graphicsRoot()
{
    if (!m_hosting)
        startHosting();
    return m_hosting->scene.root();
}

void QDeclarativeItem::startHosting()
{
    m_hosting.reset(new Hosting(this));
    connect(m_hosting->scene.view(), &SceneView::exposed, this, &QDeclarativeItem::exposed);
    QQuickItem::setFlag(ItemHasContents);
    QQuickItem::setFlag(ItemAcceptsInputMethod);
    setAcceptedMouseButtons(Qt::AllButtons);
    setAcceptHoverEvents(true);
    m_hosting->scene.root()->setVisible(isVisible());
    m_hosting->scene.root()->setEnabled(isEnabled());
    followWindow(window());
    polish();
}

QRegion QDeclarativeItem::lastRenderedRegion() const
{
    return m_hosting ? m_hosting->painter.lastRegion() : QRegion();
}

HostedAccess *QDeclarativeItem::hostedAccess() const
{
    return m_hosting ? m_hosting->access.data() : nullptr;
}

bool QDeclarativeItem::contains(const QPointF &point) const
{
    return QQuickItem::contains(point)
        || (m_hosting && m_hosting->scene.popupArea().contains(point));
}

void QDeclarativeItem::geometryChanged(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickItem::geometryChanged(newGeometry, oldGeometry);
    if (!m_hosting || newGeometry.size() == oldGeometry.size())
        return;
    m_hosting->scene.boundWidgets();
    polish();
}

void QDeclarativeItem::itemChange(ItemChange change, const ItemChangeData &value)
{
    QQuickItem::itemChange(change, value);
    if (!m_hosting)
        return;
    switch (change) {
    case ItemSceneChange:
        followWindow(value.window);
        m_hosting->popups.followPopups();
        polish();
        break;
    case ItemDevicePixelRatioHasChanged:
        polish();
        break;
    case ItemVisibleHasChanged:
        m_hosting->scene.root()->setVisible(value.boolValue);
        m_hosting->popups.followPopups();
        polish();
        break;
    case ItemEnabledHasChanged:
        m_hosting->scene.root()->setEnabled(value.boolValue);
        break;
    default:
        break;
    }
}

void QDeclarativeItem::followWindow(QQuickWindow *window)
{
    disconnect(m_hosting->activation);
    m_hosting->input.setActive(window && window->isActive());
    m_hosting->access->followWindow(window);
    if (window) {
        m_hosting->activation = connect(window, &QWindow::activeChanged, this, [this, window] {
            m_hosting->input.setActive(window->isActive());
        });
    }
}

void QDeclarativeItem::exposed(const QRegion &region)
{
    m_hosting->painter.invalidate(region);
    polish();
}

void QDeclarativeItem::updatePolish()
{
    if (!m_hosting)
        return;
    m_hosting->access->adoptWidgets();
    if (!window() || !isVisible())
        return;
    m_hosting->scene.restoreMapping();
    const quint64 before = m_hosting->painter.generation();
    m_hosting->painter.setArea(boundingRect(), window()->effectiveDevicePixelRatio());
    m_hosting->scene.catchUp();
    m_hosting->painter.paint();
    if (m_hosting->painter.generation() != before)
        update();
}

QSGNode *QDeclarativeItem::updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *)
{
    if (!m_hosting)
        return oldNode;
    return ImageNode::updated(oldNode, window(), m_hosting->painter, smooth());
}

bool QDeclarativeItem::event(QEvent *event)
{
    if (m_hosting && event->type() == QEvent::ShortcutOverride) {
        m_hosting->input.text(event);
        return event->isAccepted();
    }
    return QQuickItem::event(event);
}

void QDeclarativeItem::giveFocus(const QPointF &position)
{
    QWidget *widget = m_hosting->input.clickFocusWidget(position);
    if (!widget)
        return;
    forceActiveFocus(Qt::MouseFocusReason);
    widget->setFocus(Qt::MouseFocusReason);
}

void QDeclarativeItem::mousePressEvent(QMouseEvent *event)
{
    if (!m_hosting)
        return QQuickItem::mousePressEvent(event);
    m_hosting->input.setScreenPosition(mapToGlobal(QPointF()));
    if (m_hosting->scene.popups().isEmpty())
        giveFocus(event->localPos());
    m_hosting->input.mouse(event, event->localPos());
    // What a widget takes, a flickable around it must not take away halfway.
    setKeepMouseGrab(event->isAccepted());
    setKeepTouchGrab(event->isAccepted());
    updateInputMethod();
}

void QDeclarativeItem::mouseMoveEvent(QMouseEvent *event)
{
    if (m_hosting)
        m_hosting->input.mouse(event, event->localPos());
    else
        QQuickItem::mouseMoveEvent(event);
}

void QDeclarativeItem::mouseReleaseEvent(QMouseEvent *event)
{
    if (!m_hosting)
        return QQuickItem::mouseReleaseEvent(event);
    m_hosting->input.mouse(event, event->localPos());
    updateInputMethod();
}

void QDeclarativeItem::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (m_hosting)
        m_hosting->input.mouse(event, event->localPos());
    else
        QQuickItem::mouseDoubleClickEvent(event);
}

void QDeclarativeItem::mouseUngrabEvent()
{
    if (m_hosting)
        m_hosting->input.cancelPress();
}

void QDeclarativeItem::hoverEnterEvent(QHoverEvent *event)
{
    hoverMoveEvent(event);
}

void QDeclarativeItem::hoverMoveEvent(QHoverEvent *event)
{
    if (!m_hosting)
        return QQuickItem::hoverMoveEvent(event);
    m_hosting->input.enter();
    m_hosting->input.hover(event->posF(), event->modifiers());
    setCursor(m_hosting->input.cursor());
}

void QDeclarativeItem::hoverLeaveEvent(QHoverEvent *event)
{
    if (!m_hosting)
        return QQuickItem::hoverLeaveEvent(event);
    m_hosting->input.leave();
    unsetCursor();
}

void QDeclarativeItem::wheelEvent(QWheelEvent *event)
{
    if (m_hosting)
        m_hosting->input.wheel(event, event->position());
    else
        QQuickItem::wheelEvent(event);
}

void QDeclarativeItem::keyPressEvent(QKeyEvent *event)
{
    forwardText(event);
}

void QDeclarativeItem::keyReleaseEvent(QKeyEvent *event)
{
    forwardText(event);
}

void QDeclarativeItem::inputMethodEvent(QInputMethodEvent *event)
{
    forwardText(event);
}

void QDeclarativeItem::forwardText(QEvent *event)
{
    if (!m_hosting)
        return event->ignore();
    m_hosting->input.setScreenPosition(mapToGlobal(QPointF()));
    m_hosting->input.text(event);
    updateInputMethod();
}

QVariant QDeclarativeItem::inputMethodQuery(Qt::InputMethodQuery query) const
{
    return m_hosting ? m_hosting->input.inputMethodQuery(query)
                     : QQuickItem::inputMethodQuery(query);
}

void QDeclarativeItem::focusInEvent(QFocusEvent *event)
{
    forwardFocus(event);
}

void QDeclarativeItem::focusOutEvent(QFocusEvent *event)
{
    forwardFocus(event);
}

void QDeclarativeItem::forwardFocus(QFocusEvent *event)
{
    if (!m_hosting)
        return;
    m_hosting->input.focus(event);
    if (event->gotFocus())
        m_hosting->access->tellFocus();
    updateInputMethod();
}

#include "declarative/qt5/PopupLayer.h"

#include "declarative/qt5/ImageNode.h"
#include "declarative/qt5/SceneHost.h"
#include "declarative/qt5/SceneInput.h"

#include <QQuickWindow>

namespace
{

/** Above what else puts itself on top of a window, such as the overlay of dialogs. */
const qreal kTopmost = 2e6;

} // namespace

PopupLayer::PopupLayer(QQuickItem *owner, SceneHost *host, SceneInput *input)
    : m_owner(owner)
    , m_host(host)
    , m_input(input)
{
    setZ(kTopmost);
    setFlag(ItemHasContents);
    setAcceptedMouseButtons(Qt::AllButtons);
    setAcceptHoverEvents(true);
    connect(host->scene(), &HostedScene::processed, this, &PopupLayer::followPopups);
}

void PopupLayer::followPopups()
{
    QQuickWindow *window = m_owner->window();
    if (window && !m_host->popups().isEmpty())
        open(window);
    else if (m_surface)
        close();
}

void PopupLayer::open(QQuickWindow *window)
{
    if (!m_surface) {
        m_surface.reset(new Surface(m_host->scene()));
        connect(&m_surface->view, &SceneView::exposed, this, &PopupLayer::exposed);
    }
    setParentItem(window->contentItem());
    m_host->keepPopupsWithin(m_owner->mapRectFromScene(QRectF(QPointF(), QSizeF(window->size()))));
    polish();
}

void PopupLayer::close()
{
    setParentItem(nullptr);
    m_surface.reset();
    m_input->popupsClosed();
}

void PopupLayer::exposed(const QRegion &region)
{
    m_surface->painter.invalidate(region);
    polish();
}

void PopupLayer::updatePolish()
{
    m_host->catchUp();
    if (!m_surface || !window())
        return;
    m_surface->painter.setArea(m_host->popupArea(), window()->effectiveDevicePixelRatio());
    m_surface->painter.paint();
    m_matrix = QMatrix4x4(m_owner->itemTransform(this, nullptr));
    update();
}

QSGNode *PopupLayer::updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *)
{
    if (!m_surface)
        return oldNode;
    ImageNode *node = ImageNode::updated(oldNode, window(), m_surface->painter, m_owner->smooth());
    if (node)
        node->setMatrix(m_matrix);
    return node;
}

void PopupLayer::mousePressEvent(QMouseEvent *event)
{
    const QPointF position = toScene(event->localPos());
    if (m_host->popups().isEmpty()) {
        event->ignore();
    } else if (m_host->popupArea().contains(position)) {
        m_input->mouse(event, position);
        event->accept();
    } else {
        m_host->closePopups();
    }
}

void PopupLayer::mouseMoveEvent(QMouseEvent *event)
{
    m_input->mouse(event, toScene(event->localPos()));
}

void PopupLayer::mouseReleaseEvent(QMouseEvent *event)
{
    m_input->mouse(event, toScene(event->localPos()));
}

void PopupLayer::mouseDoubleClickEvent(QMouseEvent *event)
{
    m_input->mouse(event, toScene(event->localPos()));
}

void PopupLayer::mouseUngrabEvent()
{
    m_input->cancelPress();
}

void PopupLayer::hoverMoveEvent(QHoverEvent *event)
{
    m_input->hover(toScene(event->posF()), event->modifiers());
}

void PopupLayer::wheelEvent(QWheelEvent *event)
{
    m_input->wheel(event, toScene(event->position()));
    event->setAccepted(!m_host->popups().isEmpty());
}

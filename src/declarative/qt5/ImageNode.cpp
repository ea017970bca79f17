#include "declarative/qt5/ImageNode.h"

#include "declarative/qt5/ScenePainter.h"

#include <QQuickWindow>

ImageNode::ImageNode(QQuickWindow *window)
    : m_window(window)
{
}

ImageNode::~ImageNode() = default;

ImageNode *ImageNode::updated(QSGNode *oldNode, QQuickWindow *window, const ScenePainter &painter,
                              bool smooth)
{
    if (painter.image().isNull()) {
        delete oldNode;
        return nullptr;
    }
    ImageNode *node = oldNode ? static_cast<ImageNode *>(oldNode) : new ImageNode(window);
    node->show(painter, smooth);
    return node;
}

void ImageNode::show(const ScenePainter &painter, bool smooth)
{
    if (!m_image) {
        m_image = m_window->createImageNode();
        m_image->setFlag(QSGNode::OwnedByParent);
    }
    if (!m_texture || m_generation != painter.generation()) {
        QScopedPointer<QSGTexture> fresh(m_window->createTextureFromImage(painter.image()));
        m_image->setTexture(fresh.data());
        m_texture.swap(fresh);
        m_generation = painter.generation();
    }
    m_image->setFiltering(smooth ? QSGTexture::Linear : QSGTexture::Nearest);
    m_image->setRect(painter.imageArea());
    // A node without a texture must not be drawn, so it joins the graph only now.
    if (!m_image->parent())
        appendChildNode(m_image);
}

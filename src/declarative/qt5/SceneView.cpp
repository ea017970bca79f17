#include "declarative/qt5/SceneView.h"

#include <QPaintEvent>
#include <QWindow>

SceneView::SceneView(QGraphicsScene *scene)
    : QGraphicsView(scene)
{
    setFrameShape(NoFrame);
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setAttribute(Qt::WA_DontShowOnScreen);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_QuitOnClose, false);
    // Nothing is painted unless asked for: no backgrounds, and no painter of its own.
    for (QWidget *widget : {static_cast<QWidget *>(this), viewport()}) {
        widget->setAutoFillBackground(false);
        widget->setAttribute(Qt::WA_OpaquePaintEvent);
        widget->setAttribute(Qt::WA_NoSystemBackground);
    }
    setArea(QRect());
    show();
    disguiseWindow(this);
}

void SceneView::disguiseWindow(const QWidget *widget)
{
    QWindow *window = widget->windowHandle();
    if (!window || window->type() == Qt::Popup)
        return;
    // The one kind that isn't listed. The widget itself stays what it is: it must close nothing.
    window->setFlags((window->flags() & ~Qt::WindowType_Mask) | Qt::Popup);
}

void SceneView::setArea(const QRect &area)
{
    // The scene rectangle is as large as the viewport, so that the view has nothing to scroll: a
    // scrolled view would send events beside what they meant.
    m_origin = area.topLeft();
    // Never without area: Qt takes such a window off the screen, and forgets to put one that is not
    // shown there back, which would then swallow every update of it.
    resize(area.size().expandedTo(QSize(1, 1)));
    setSceneRect(QRectF(m_origin, QSizeF(viewport()->size())));
}

void SceneView::draw(QPainter *painter, const QRect &rect)
{
    m_drawing = true;
    viewport()->render(painter, rect.topLeft(), rect.translated(-m_origin), RenderFlags());
    m_drawing = false;
}

void SceneView::paintEvent(QPaintEvent *event)
{
    if (m_drawing)
        QGraphicsView::paintEvent(event);
    else
        emit exposed(event->region().translated(m_origin));
}

#include "declarative/qt5/SceneInput.h"

#include "declarative/qt5/SceneHost.h"

#include <QCoreApplication>
#include <QGraphicsProxyWidget>
#include <QMouseEvent>
#include <QWheelEvent>
#include <QWidget>

namespace
{

/** Far from any widget, so that nothing there can be clicked. */
const QPointF kNowhere(-100000, -100000);

QGraphicsProxyWidget *proxyOf(QGraphicsItem *item)
{
    return qgraphicsitem_cast<QGraphicsProxyWidget *>(item);
}

} // namespace

SceneInput::SceneInput(SceneHost *host)
    : m_host(host)
{
}

void SceneInput::mouse(QMouseEvent *event, const QPointF &position)
{
    m_pressed = event->buttons();
    QMouseEvent copy(event->type(), position, event->windowPos(), event->screenPos(),
                     event->button(), event->buttons(), event->modifiers(), event->source());
    copy.setTimestamp(event->timestamp());
    m_host->view()->deliver(&copy);
    event->setAccepted(copy.isAccepted());
}

void SceneInput::hover(const QPointF &position, Qt::KeyboardModifiers modifiers)
{
    const QPoint screen = m_host->view()->mapToGlobal(position.toPoint());
    QMouseEvent move(QEvent::MouseMove, position, position, screen, Qt::NoButton, Qt::NoButton,
                     modifiers);
    m_host->view()->deliver(&move);
}

void SceneInput::leave()
{
    m_leavePending = true;
    if (m_host->popups().isEmpty())
        popupsClosed();
}

void SceneInput::popupsClosed()
{
    if (!m_leavePending)
        return;
    m_leavePending = false;
    QEvent leave(QEvent::Leave);
    m_host->view()->deliver(&leave);
}

void SceneInput::wheel(QWheelEvent *event, const QPointF &position)
{
    QWheelEvent copy(position, event->globalPosition(), event->pixelDelta(), event->angleDelta(),
                     event->buttons(), event->modifiers(), event->phase(), event->inverted(),
                     event->source());
    m_host->view()->deliver(&copy);
    event->setAccepted(copy.isAccepted());
}

void SceneInput::cancelPress()
{
    if (m_pressed == Qt::NoButton)
        return;
    m_pressed = Qt::NoButton;
    QMouseEvent release(QEvent::MouseButtonRelease, kNowhere, kNowhere, kNowhere, Qt::LeftButton,
                        Qt::NoButton, Qt::NoModifier);
    m_host->view()->deliver(&release);
}

void SceneInput::text(QEvent *event)
{
    QCoreApplication::sendEvent(m_host->scene(), event);
}

void SceneInput::focus(QFocusEvent *event)
{
    if (event->gotFocus())
        setActive(true);
    QCoreApplication::sendEvent(m_host->scene(), event);
}

void SceneInput::setActive(bool active)
{
    if (active == m_host->scene()->isActive())
        return;
    QEvent event(active ? QEvent::WindowActivate : QEvent::WindowDeactivate);
    QCoreApplication::sendEvent(m_host->scene(), &event);
}

QWidget *SceneInput::clickFocusWidget(const QPointF &position) const
{
    QGraphicsProxyWidget *proxy = proxyOf(m_host->scene()->itemAt(position, QTransform()));
    if (!proxy || !proxy->widget())
        return nullptr;
    const QPoint inside = proxy->mapFromScene(position).toPoint();
    QWidget *widget = proxy->widget()->childAt(inside);
    if (!widget)
        widget = proxy->widget();
    while (widget && !(widget->isEnabled() && (widget->focusPolicy() & Qt::ClickFocus)))
        widget = widget->isWindow() ? nullptr : widget->parentWidget();
    return widget;
}

QWidget *SceneInput::focusWidget() const
{
    QGraphicsProxyWidget *proxy = proxyOf(m_host->scene()->focusItem());
    if (!proxy || !proxy->widget())
        return nullptr;
    QWidget *inner = proxy->widget()->focusWidget();
    return inner ? inner : proxy->widget();
}

QVariant SceneInput::inputMethodQuery(Qt::InputMethodQuery query) const
{
    QWidget *widget = focusWidget();
    if (query == Qt::ImEnabled)
        return widget && widget->testAttribute(Qt::WA_InputMethodEnabled);
    if (query == Qt::ImHints)
        return widget ? int(widget->inputMethodHints()) : int(Qt::ImhNone);
    return m_host->scene()->inputMethodQuery(query);
}

QCursor SceneInput::cursor() const
{
    return m_host->view()->viewport()->cursor();
}

void SceneInput::setScreenPosition(const QPointF &position)
{
    m_host->view()->move(position.toPoint());
}

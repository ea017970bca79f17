#ifndef DATALOG_DECLARATIVE_QT5_SCENEINPUT_H
#define DATALOG_DECLARATIVE_QT5_SCENEINPUT_H

#include <QCursor>
#include <QPoint>
#include <QVariant>

class QFocusEvent;
class QHoverEvent;
class QInputMethodEvent;
class QMouseEvent;
class QWheelEvent;
class QWidget;
class SceneHost;

/**
 * Hands the events of an item to the widgets of its scene. Positions of events are in scene
 * coordinates. Each call leaves the event accepted or not as the widgets did.
 */
class SceneInput
{
public:
    explicit SceneInput(SceneHost *host);

    /** Press, release, move or double click; a press reports whether a widget took it. */
    void mouse(QMouseEvent *event);
    void hover(QHoverEvent *event);
    void leave();
    void wheel(QWheelEvent *event);
    /** Lets go of a press that somebody else took over, so that it clicks nothing. */
    void cancelPress();

    /** Key presses and releases, input method events and the question of a shortcut. */
    void text(QEvent *event);
    void focus(QFocusEvent *event);
    /** Whether the window has the user's attention: widgets look and blink accordingly. */
    void setActive(bool active);

    /**
     * The widget at @p position that wants focus from a click, null for none. A press doesn't give
     * focus by itself here, since widgets take it only from the window system's own events.
     */
    QWidget *clickFocusWidget(const QPointF &position) const;
    /** The widget that text goes to, null for none. */
    QWidget *focusWidget() const;
    QVariant inputMethodQuery(Qt::InputMethodQuery query) const;
    /** The mouse pointer that the widget under it asks for. */
    QCursor cursor() const;

private:
    SceneHost *m_host;
    Qt::MouseButtons m_pressed = Qt::NoButton;
};

#endif

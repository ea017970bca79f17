#ifndef DATALOG_DECLARATIVE_QT5_SCENEINPUT_H
#define DATALOG_DECLARATIVE_QT5_SCENEINPUT_H

#include <QCursor>
#include <QPoint>
#include <QVariant>

class QFocusEvent;
class QMouseEvent;
class QWheelEvent;
class QWidget;
class SceneHost;

/**
 * Hands the events of an item to the widgets of its scene. Positions are in scene coordinates.
 * Each call leaves the event accepted or not as the widgets did.
 */
class SceneInput
{
public:
    explicit SceneInput(SceneHost *host);

    /** Press, release, move or double click; a press reports whether a widget took it. */
    void mouse(QMouseEvent *event, const QPointF &position);
    void hover(const QPointF &position, Qt::KeyboardModifiers modifiers);
    /** The pointer came to the item. */
    void enter() { m_leavePending = false; }
    /**
     * The pointer left the item. A scene that is left closes its pop-ups, though the pointer may
     * be on its way to them, so widgets only hear of it when none is open any more.
     */
    void leave();
    /** To be called when the last pop-up has closed. */
    void popupsClosed();
    void wheel(QWheelEvent *event, const QPointF &position);
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
    /** Tells the widgets that scene position (0, 0) is at @p position on the screen. */
    void setScreenPosition(const QPointF &position);

private:
    SceneHost *m_host;
    Qt::MouseButtons m_pressed = Qt::NoButton;
    bool m_leavePending = false;
};

#endif

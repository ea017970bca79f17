#ifndef DATALOG_DECLARATIVE_QT5_HOSTEDACCESS_H
#define DATALOG_DECLARATIVE_QT5_HOSTEDACCESS_H

#include <QAccessible>
#include <QMetaObject>
#include <QVector>

class QDeclarativeItem;
class QQuickWindow;
class QWidget;
class SceneHost;
class SceneInput;

/**
 * Shows the widgets of an item's scene to screen readers and other assistive tools, which otherwise
 * would end at the item, and find the widgets in windows that nobody sees.
 *
 * It makes nothing before a tool asks, but for the mark that the item is worth asking.
 */
class HostedAccess
{
public:
    HostedAccess(QDeclarativeItem *item, SceneHost *host, SceneInput *input);
    ~HostedAccess();

    /** What the item's script says of it as attached properties; null where there are none. */
    static QObject *attached(QObject *item, bool create = false);

    void followWindow(QQuickWindow *window);
    /** Tells what has the keyboard, now that the item got it. */
    void tellFocus() const;

    /** The hosted widgets that have something to tell. */
    QVector<QWidget *> tellingWidgets() const;
    /** The innermost that has the keyboard, such as a cell of a table; null when none has. */
    QAccessibleInterface *focus() const;
    /** Lets the widgets know where on the screen they are seen. */
    void placeOnScreen() const;
    /** Makes hosted widgets parts of the item for tools, however they came into the scene. */
    void adoptWidgets() const;

    /** The interface of the item, for as long as there is one. */
    void setInterface(QAccessibleInterface *interface) { m_interface = interface; }

private:
    QVector<QWidget *> hosted() const;
    void adopt(QWidget *widget) const;

    QDeclarativeItem *m_item;
    SceneHost *m_host;
    SceneInput *m_input;
    QAccessibleInterface *m_interface = nullptr;
    QVector<QMetaObject::Connection> m_connections;
};

#endif

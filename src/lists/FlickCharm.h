#ifndef DATALOG_LISTS_FLICKCHARM_H
#define DATALOG_LISTS_FLICKCHARM_H

#include <QObject>
#include <QScopedPointer>

class FlickCharmPrivate;
class QWidget;

/**
 * Lets a finger drag scroll lists and tables instead of selecting in them.
 *
 * Presses, moves and releases of the left button are taken from an activated area. A drag moves its
 * scroll bars; a tap is handed back as a press and a release, so it does what it always did. The
 * area stops where the finger leaves it, and the next touch ends the gesture: a tap right after a
 * drag only does that. Events with a keyboard modifier, and other buttons, pass untouched.
 */
class FlickCharm : public QObject
{
    Q_OBJECT

public:
    explicit FlickCharm(QObject *parent = nullptr);
    ~FlickCharm() override;

    /**
     * Starts to scroll @p widget, a scroll area, by drags; any other widget is left alone, with two
     * lines of debug output. An area may go away while it is activated, and so may the charm.
     */
    void activateOn(QWidget *widget);
    /** Leaves @p widget as it was before activateOn(). */
    void deactivateFrom(QWidget *widget);

    bool eventFilter(QObject *object, QEvent *event) override;

protected:
    /** One step of the movement after a drag. The charm's own ticker is not running. */
    void timerEvent(QTimerEvent *event) override;

private:
    QScopedPointer<FlickCharmPrivate> d;
};

#endif

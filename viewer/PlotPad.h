#ifndef DATALOG_VIEWER_PLOTPAD_H
#define DATALOG_VIEWER_PLOTPAD_H

#include "viewer/PlotNavigator.h"

#include <QQuickItem>
#include <QVariant>

/**
 * What fingers, mouse and wheel do to a plot below it.
 *
 * A drag moves the axes under it, two fingers pinch them, a wheel zooms them where the pointer is,
 * with Ctrl the horizontal axis only and with Shift the vertical ones; on a scale that is its axis
 * alone. A rectangle to zoom into is drawn with the right button, with Shift, or by any drag while
 * zoomMode is on. A double tap shows everything again. What stands on the plot can be dragged aside
 * by its handles. The pad only follows the pointer, taps and handles; what they point at is for
 * others to say.
 */
class PlotPad : public QQuickItem
{
    Q_OBJECT
    Q_PROPERTY(PlotNavigator *navigator READ navigator WRITE setNavigator NOTIFY navigatorChanged)
    Q_PROPERTY(bool zoomMode READ zoomMode WRITE setZoomMode NOTIFY zoomModeChanged)
    Q_PROPERTY(QRectF band READ band NOTIFY bandChanged)
    Q_PROPERTY(QVariantList handles READ handles WRITE setHandles NOTIFY handlesChanged)

public:
    explicit PlotPad(QQuickItem *parent = nullptr);

    PlotNavigator *navigator() const { return m_navigator; }
    void setNavigator(PlotNavigator *navigator);
    bool zoomMode() const { return m_zoomMode; }
    void setZoomMode(bool on);
    /** The rectangle being drawn; empty while there is none. */
    QRectF band() const { return m_band; }
    /**
     * Where upright lines are that a drag to a side takes along, by their x; none where it is no
     * number.
     */
    QVariantList handles() const { return m_handles; }
    void setHandles(const QVariantList &handles);
    /** Gives up a rectangle that is being drawn. */
    Q_INVOKABLE void cancel();

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    void navigatorChanged();
    void zoomModeChanged();
    void bandChanged();
    void handlesChanged();
    /** A handle, by its place in the list, is to be there, within the canvas. */
    void handleDragged(int handle, const QPointF &position);
    /** The mouse is over the canvas. */
    void hovered(const QPointF &position);
    /** A press and release in one place of the canvas, by mouse or finger. */
    void tapped(const QPointF &position);
    /** Something was pressed: the time to take the keyboard. */
    void touched();

protected:
    void itemChange(ItemChange change, const ItemChangeData &data) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseUngrabEvent() override;
    void hoverEnterEvent(QHoverEvent *event) override { hoverMoveEvent(event); }
    void hoverMoveEvent(QHoverEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void touchEvent(QTouchEvent *event) override;
    void touchUngrabEvent() override;

private:
    /** What a press turns into once it moves. */
    enum Action { Nothing, Undecided, Pan, Band, Pinch, Handle };

    void press(const QPointF &position, bool drawsBand);
    void move(const QPointF &position);
    void decide(const QPointF &position);
    void release(const QPointF &position);
    void tap(const QPointF &position);
    void doubleTap(const QPointF &position);
    void finish();
    void setBand(const QRectF &band);
    QRectF bandTo(const QPointF &position) const;
    int bandAxes() const;
    int handleAt(const QPointF &position) const;
    void dragHandle(const QPointF &position);
    void zoomToBand();
    void lift(const QPointF &position);
    void startPinch(const QList<QTouchEvent::TouchPoint> &points);

    QPointer<PlotNavigator> m_navigator;
    bool m_zoomMode;
    Action m_action;
    bool m_drawsBand; ///< what a drag is to be
    bool m_isRight; ///< of a press with the right button
    int m_axes;
    QPointF m_start;
    int m_handle; ///< where the press was; -1 where there is none
    double m_handleX; ///< of that, then
    QPointF m_pinchStart[2];
    PlotScales m_startScales;
    QRectF m_band;
    QVariantList m_handles;
    QElapsedTimer m_lastTap; ///< of fingers; a mouse tells double clicks itself
    QPointF m_lastTapPosition;
    QPointF m_lastHover;
    bool m_hasPointer; ///< that moved in the window since the plot is shown
};

#endif

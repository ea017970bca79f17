#ifndef DATALOG_LISTS_FLICKCHARMPRIVATE_H
#define DATALOG_LISTS_FLICKCHARMPRIVATE_H

#include "lists/FlickData.h"

#include <QBasicTimer>
#include <QHash>
#include <QObject>

class QMouseEvent;

/** What a flick charm keeps: a gesture for each scroll area, by its viewport. */
class FlickCharmPrivate : public QObject
{
    Q_OBJECT

public:
    FlickCharmPrivate() { }
    ~FlickCharmPrivate() override;

    /** A fresh gesture for @p area, found by @p viewport; it goes with the viewport. */
    void add(QWidget *viewport, QWidget *area);
    void remove(QWidget *viewport);

    /** Takes the gesture on @p viewport one event further; true when nobody else may have it. */
    bool handle(QObject *viewport, QMouseEvent *event, FlickData *data);
    /** Takes one gesture one tick further; false when it needs no more ticks. */
    bool tick(FlickData *data);

    QHash<QWidget *, FlickData *> flickData;
    QBasicTimer ticker;

private slots:
    void forget(QObject *viewport);

private:
    bool handleSteady(QMouseEvent *event, FlickData *data);
    bool handlePressed(QObject *viewport, QMouseEvent *event, FlickData *data);
    bool handleManualScroll(QMouseEvent *event, FlickData *data);
    bool handleAutoScroll(QMouseEvent *event, FlickData *data);
    bool handleStop(QMouseEvent *event, FlickData *data);
    void replayTap(QObject *viewport, QMouseEvent *release, FlickData *data);

    Q_DISABLE_COPY(FlickCharmPrivate)
};

#endif

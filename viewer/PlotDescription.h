#ifndef DATALOG_VIEWER_PLOTDESCRIPTION_H
#define DATALOG_VIEWER_PLOTDESCRIPTION_H

#include "viewer/CurveReadings.h"

/**
 * Says in words what a plot shows, for those who can't see it: the ranges of its axes and the
 * curves on them; or, while there is a cursor, what is read off the curves there.
 */
class PlotDescription : public QObject
{
    Q_OBJECT
    Q_PROPERTY(CurveReadings *readings READ readings WRITE setReadings NOTIFY readingsChanged)
    Q_PROPERTY(QString text READ text NOTIFY textChanged)

public:
    explicit PlotDescription(QObject *parent = nullptr);

    CurveReadings *readings() const { return m_readings; }
    void setReadings(CurveReadings *readings);
    /** Empty without curves. */
    QString text() const;

signals:
    void readingsChanged();
    void textChanged();

private:
    QString summary() const;
    QString atCursor() const;
    QString axis(int axis, const QString &title, const QString &content) const;
    QStringList curves(bool areRight) const;
    QString value(int row, int role) const;

    QPointer<CurveReadings> m_readings;
};

#endif

#ifndef DATALOG_DATASOURCE_LOGAXISDATA_H
#define DATALOG_DATASOURCE_LOGAXISDATA_H

#include <QList>
#include <QMap>
#include <QObject>
#include <QString>
#include <QVector>

/** Curve pieces by variable name: one vector of values a piece. */
typedef QMap<QString, QList<QVector<double>>> AxisSeries;

/**
 * The series to plot: for each variable of the left and of the right axis, the pieces of its curve.
 * The X and the Y pieces of a variable pair up, in number and in length.
 */
class LogAxisData : public QObject
{
    Q_OBJECT

public:
    explicit LogAxisData(QObject *parent = nullptr);

    AxisSeries XLeftData() const { return m_xLeft; }
    AxisSeries XRightData() const { return m_xRight; }
    AxisSeries YLeftData() const { return m_yLeft; }
    AxisSeries YRightData() const { return m_yRight; }

    /** Appends one piece to a variable of the left axis. */
    void addYLeftAxisDataSeries(const QString &name, const QVector<double> &x,
                                const QVector<double> &y);
    /** Appends one piece to a variable of the right axis. */
    void addYRightAxisDataSeries(const QString &name, const QVector<double> &x,
                                 const QVector<double> &y);
    void clear();
    /** Writes the left pieces of a variable to the debug output. */
    void print(const QString &name);

private:
    AxisSeries m_xLeft;
    AxisSeries m_xRight;
    AxisSeries m_yLeft;
    AxisSeries m_yRight;
};

#endif

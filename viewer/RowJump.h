#ifndef DATALOG_VIEWER_ROWJUMP_H
#define DATALOG_VIEWER_ROWJUMP_H

#include "viewer/CurveReadings.h"

/** The way from a place on the plot to the row of the log behind it, and back. */
class RowJump : public QObject
{
    Q_OBJECT
    Q_PROPERTY(CurveReadings *readings READ readings WRITE setReadings NOTIFY readingsChanged)

public:
    explicit RowJump(QObject *parent = nullptr);

    CurveReadings *readings() const { return m_readings; }
    void setReadings(CurveReadings *readings);

    /** The log's row of the sample that a marker or the cursor stands at; -1 without one. */
    Q_INVOKABLE int rowAt(int spot) const;
    /** The row at the cursor, else at marker A, else at marker B. */
    Q_INVOKABLE int currentRow() const;
    /**
     * Puts a marker at a row of the log: A, or B where only A is taken. The view moves there when
     * it shows another part. False, and nothing changes, where the row is not plotted.
     */
    Q_INVOKABLE bool show(int row);
    /** Leaves the row of a marker or the cursor out of the plot. */
    Q_INVOKABLE void exclude(int row);

signals:
    void readingsChanged();

private:
    LogDataSourceItem *source() const;
    void bringIntoView(double x, int axis, double y);
    int freeMarker(double pixel) const;

    QPointer<CurveReadings> m_readings;
};

#endif

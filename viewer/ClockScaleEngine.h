#ifndef DATALOG_VIEWER_CLOCKSCALEENGINE_H
#define DATALOG_VIEWER_CLOCKSCALEENGINE_H

#include <qwt_scale_engine.h>

/** Puts the ticks of a scale of seconds where clocks have theirs: at whole minutes, hours and so
 * on. */
class ClockScaleEngine : public QwtLinearScaleEngine
{
public:
    /** @param base seconds since midnight at 0 of the scale. */
    explicit ClockScaleEngine(int base);

    void autoScale(int maxSteps, double &x1, double &x2, double &stepSize) const override;
    QwtScaleDiv divideScale(double x1, double x2, int maxMajorSteps, int maxMinorSteps,
                            double stepSize) const override;

private:
    int m_base;
};

#endif

#include "viewer/ClockScaleEngine.h"

#include <cmath>

namespace
{

// A label takes more room than that of a short number.
const int kMostMajorSteps = 6;

const double kMinute = 60;
const double kHour = 60 * kMinute;

struct Step {
    double major;
    double minor;
};

// What clocks are divided by; below a second and above a day numbers do.
const Step kSteps[] = {{1, 0.5},
                       {2, 1},
                       {5, 1},
                       {10, 5},
                       {15, 5},
                       {30, 10},
                       {kMinute, 15},
                       {2 * kMinute, 30},
                       {5 * kMinute, kMinute},
                       {10 * kMinute, 5 * kMinute},
                       {15 * kMinute, 5 * kMinute},
                       {30 * kMinute, 10 * kMinute},
                       {kHour, 15 * kMinute},
                       {2 * kHour, 30 * kMinute},
                       {3 * kHour, kHour},
                       {6 * kHour, kHour},
                       {12 * kHour, 3 * kHour},
                       {24 * kHour, 6 * kHour}};

/** The smallest step that divides a span into no more than so many parts; null beyond a day. */
const Step *stepFor(double span, int maxSteps)
{
    const double least = span / qBound(1, maxSteps, kMostMajorSteps);
    if (least < kSteps[0].major / 2)
        return nullptr;
    for (const Step &step : kSteps) {
        if (step.major >= least)
            return &step;
    }
    return nullptr;
}

QList<double> ticks(double from, double to, double step, double base)
{
    QList<double> ticks;
    const double first = std::ceil((from + base) / step - 1e-9);
    for (double i = first; i * step - base <= to + step * 1e-9; ++i)
        ticks.append(i * step - base);
    return ticks;
}

QList<double> without(const QList<double> &ticks, const QList<double> &others)
{
    QList<double> result;
    for (double tick : ticks) {
        if (!others.contains(tick))
            result.append(tick);
    }
    return result;
}

} // namespace

ClockScaleEngine::ClockScaleEngine(int base)
    : m_base(base)
{
}

void ClockScaleEngine::autoScale(int maxSteps, double &x1, double &x2, double &stepSize) const
{
    const Step *step = stepFor(x2 - x1, maxSteps);
    if (!step) {
        QwtLinearScaleEngine::autoScale(maxSteps, x1, x2, stepSize);
        return;
    }
    x1 = std::floor((x1 + m_base) / step->minor + 1e-9) * step->minor - m_base;
    x2 = std::ceil((x2 + m_base) / step->minor - 1e-9) * step->minor - m_base;
    stepSize = step->major;
}

QwtScaleDiv ClockScaleEngine::divideScale(double x1, double x2, int maxMajorSteps,
                                          int maxMinorSteps, double stepSize) const
{
    const Step *step = stepFor(std::fabs(x2 - x1), maxMajorSteps);
    if (!step || x1 > x2)
        return QwtLinearScaleEngine::divideScale(x1, x2, maxMajorSteps, maxMinorSteps, stepSize);
    const QList<double> major = ticks(x1, x2, step->major, m_base);
    QList<double> all[QwtScaleDiv::NTickTypes];
    all[QwtScaleDiv::MajorTick] = major;
    all[QwtScaleDiv::MinorTick] = without(ticks(x1, x2, step->minor, m_base), major);
    return QwtScaleDiv(x1, x2, all);
}

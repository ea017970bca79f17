#ifndef DATALOG_VIEWER_CLOCKSCALEDRAW_H
#define DATALOG_VIEWER_CLOCKSCALEDRAW_H

#include <qwt_scale_draw.h>

/** Labels a scale of seconds with clock times. */
class ClockScaleDraw : public QwtScaleDraw
{
public:
    /** @param base seconds since midnight at 0 of the scale. */
    explicit ClockScaleDraw(int base);

    QwtText label(double value) const override;

private:
    int m_base;
};

#endif

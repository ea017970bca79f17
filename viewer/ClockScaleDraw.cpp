#include "viewer/ClockScaleDraw.h"

#include "viewer/ClockTime.h"

ClockScaleDraw::ClockScaleDraw(int base)
    : m_base(base)
{
}

QwtText ClockScaleDraw::label(double value) const
{
    return QwtText(ClockTime::text(m_base + value), QwtText::PlainText);
}

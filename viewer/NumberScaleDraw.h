#ifndef DATALOG_VIEWER_NUMBERSCALEDRAW_H
#define DATALOG_VIEWER_NUMBERSCALEDRAW_H

#include <qwt_scale_draw.h>

/**
 * Labels a scale with numbers that can be told from those of a log, which have decimal points:
 * where the user's language has points between thousands, there is nothing between them.
 * Millions are written out.
 */
class NumberScaleDraw : public QwtScaleDraw
{
public:
    QwtText label(double value) const override;
};

#endif

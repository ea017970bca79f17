#ifndef DATALOG_VIEWER_ELIDEDTEXTENGINE_H
#define DATALOG_VIEWER_ELIDEDTEXTENGINE_H

#include <qwt_text_engine.h>

class QwtText;

/**
 * Draws plain text with an ellipsis amid it for what its room can't take: the end may be a unit.
 * The text itself stays whole, so
 * that each drawing shows what fits there: a small screen less than a large picture.
 */
class ElidedTextEngine : public QwtPlainTextEngine
{
public:
    /** @p text, to be drawn by this engine and looking the same otherwise. */
    static QwtText elided(const QwtText &text);

    void draw(QPainter *painter, const QRectF &rect, int flags, const QString &text) const override;
    /** Only what asks for it. */
    bool mightRender(const QString &text) const override;
};

#endif

#include "viewer/ElidedTextEngine.h"

#include <QPainter>

#include <qwt_text.h>

namespace
{

const QwtText::TextFormat kFormat = QwtText::OtherFormat;

} // namespace

QwtText ElidedTextEngine::elided(const QwtText &text)
{
    if (!QwtText::textEngine(kFormat))
        QwtText::setTextEngine(kFormat, new ElidedTextEngine); // which Qwt owns
    QwtText elided = text;
    elided.setText(text.text(), kFormat);
    return elided;
}

void ElidedTextEngine::draw(QPainter *painter, const QRectF &rect, int flags,
                            const QString &text) const
{
    const QFontMetricsF metrics(painter->font(), painter->device());
    const QString shown = metrics.elidedText(text, Qt::ElideMiddle, rect.width());
    QwtPlainTextEngine::draw(painter, rect, flags, shown);
}

bool ElidedTextEngine::mightRender(const QString & /*text*/) const
{
    return false;
}

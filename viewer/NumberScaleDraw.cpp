#include "viewer/NumberScaleDraw.h"

#include <QLocale>

QwtText NumberScaleDraw::label(double value) const
{
    const bool hasPoints = QLocale().decimalPoint() == QLatin1Char('.');
    const QLocale locale = hasPoints ? QLocale() : QLocale::c();
    return QwtText(locale.toString(value), QwtText::PlainText);
}

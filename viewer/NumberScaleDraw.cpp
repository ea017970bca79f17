#include "viewer/NumberScaleDraw.h"

#include <QLocale>

namespace
{

const int kDigits = 10; // enough for counts of rows, too few to show the noise of sums

} // namespace

QwtText NumberScaleDraw::label(double value) const
{
    const bool hasPoints = QLocale().decimalPoint() == QLatin1Char('.');
    const QLocale locale = hasPoints ? QLocale() : QLocale::c();
    return QwtText(locale.toString(value, 'g', kDigits), QwtText::PlainText);
}

#ifndef DATALOG_TESTS_VIEWER_COLORMEASURES_H
#define DATALOG_TESTS_VIEWER_COLORMEASURES_H

#include <QColor>
#include <QVector3D>

#include <cmath>

/** How well colours are seen on each other, and told apart. */
namespace ColorMeasures
{

inline double linear(double part)
{
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

inline double luminance(const QColor &color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF())
        + 0.0722 * linear(color.blueF());
}

/** The contrast ratio of WCAG 2, from 1 to 21; graphics need 3. */
inline double contrast(const QColor &one, const QColor &other)
{
    const double first = luminance(one) + 0.05;
    const double second = luminance(other) + 0.05;
    return qMax(first, second) / qMin(first, second);
}

/** CIE L*a*b* in the light of day (D65). */
inline QVector3D lab(const QColor &color)
{
    const double r = linear(color.redF());
    const double g = linear(color.greenF());
    const double b = linear(color.blueF());
    const auto root = [](double t) { return t > 0.008856 ? std::cbrt(t) : 7.787 * t + 16.0 / 116; };
    const double x = root((0.4124 * r + 0.3576 * g + 0.1805 * b) / 0.9505);
    const double y = root(luminance(color));
    const double z = root((0.0193 * r + 0.1192 * g + 0.9505 * b) / 1.089);
    return QVector3D(float(116 * y - 16), float(500 * (x - y)), float(200 * (y - z)));
}

/** CIE 1976: 2 is just seen side by side; thin lines apart need many times that. */
inline double difference(const QColor &one, const QColor &other)
{
    return double(lab(one).distanceToPoint(lab(other)));
}

} // namespace ColorMeasures

#endif

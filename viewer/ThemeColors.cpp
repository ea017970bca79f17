#include "viewer/ThemeColors.h"

#include <cmath>

namespace
{

struct Entry {
    const char *name;
    const char *light;
    const char *dark;
};

const Entry kEntries[] = {
    {"page", "#F3F5F7", "#14181D"},
    {"surface", "#FFFFFF", "#1D232A"},
    {"pressed", "#E1EAF3", "#2E3B48"},
    {"border", "#C9D1DA", "#3D4A57"},
    {"line", "#DDE3E9", "#2C353F"}, // between rows
    {"text", "#1F2933", "#E4E9EE"},
    {"mutedText", "#52606D", "#A3B1BF"},
    {"disabledText", "#9AA5B1", "#66727E"},
    {"accent", "#0B5CAD", "#62B0F4"},
    {"accentText", "#FFFFFF", "#0C1722"},
    {"error", "#B42318", "#FF8F84"},
    {"errorPage", "#FEF3F2", "#3B2220"},
    {"selected", "#EAF2FB", "#24364A"},
    {"stripe", "#EEF3F9", "#232B34"}, // every other row of a table
    {"handle", "#8793A0", "#6B7885"}, // of a scroll bar
    {"off", "#7B8794", "#75828F"}, // of a switch
    {"plot", "#FFFFFF", "#171C22"},
    {"plotText", "#000000", "#E4E9EE"},
    {"grid", "#E3E7EB", "#2C353F"},
    // The first colours of the curves' palettes, to tell the axes apart.
    {"leftAxis", "#D90C00", "#FF6257"},
    {"rightAxis", "#0C6400", "#5FC24E"},
};

/** The plot's own colours, and those that the viewer adds, as they are drawn. */
const struct {
    QRgb color;
    QRgb light;
    QRgb dark;
} kCurves[] = {
    // Left.
    {0xFFD90C00, 0xFFD90C00, 0xFFFF5449},
    {0xFFFF0000, 0xFFE67300, 0xFFFFA39B},
    {0xFFFF0700, 0xFFC2188B, 0xFFFF2E63},
    {0xFFFF7D38, 0xFF7A3B00, 0xFFFF9A3D},
    {0xFFFFAB7E, 0xFF6F3FF0, 0xFFFFD0A8},
    // Right.
    {0xFF002E00, 0xFF0B7A1E, 0xFF2FA866},
    {0xFF0C6400, 0xFF1A73E8, 0xFF6FD65C},
    {0xFF428000, 0xFF00838F, 0xFFB4DC4A},
    {0xFF54B100, 0xFF7C9A00, 0xFF00C8A0},
    {0xFFBFE88F, 0xFF14246E, 0xFFDDF5B8},
    // Those that the viewer adds, left and right.
    {0xFF8E24AA, 0xFF8E24AA, 0xFFE575ED},
    {0xFF8D6E00, 0xFF8D6E00, 0xFF9A9335},
    {0xFFE83E8C, 0xFFE83E8C, 0xFFDE76B1},
    {0xFF5D4037, 0xFF5D4037, 0xFFB57C53},
    {0xFFC77D00, 0xFFC77D00, 0xFFF1C926},
    {0xFFA66BF0, 0xFFA66BF0, 0xFFCBAAF9},
    {0xFFAD1457, 0xFFAD1457, 0xFFE6C4D5},
    {0xFF0277BD, 0xFF0277BD, 0xFF32A5FE},
    {0xFF0A9E80, 0xFF0A9E80, 0xFF50FAFE},
    {0xFF3949AB, 0xFF3949AB, 0xFF7B84F5},
    {0xFF009DC6, 0xFF009DC6, 0xFF9BD4F0},
    {0xFF607D8B, 0xFF607D8B, 0xFF548AB4},
    {0xFF5A35E6, 0xFF5A35E6, 0xFF966EFF},
    {0xFF00695C, 0xFF00695C, 0xFF1C9394},
};

// Thin lines need as much as text to be seen by all.
const double kLeastContrast = 4.5;
const int kStep = 8;

double linear(double part)
{
    return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double luminance(const QColor &color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF())
        + 0.0722 * linear(color.blueF());
}

double contrast(const QColor &light, const QColor &dark)
{
    return (luminance(light) + 0.05) / (luminance(dark) + 0.05);
}

/** Until it is seen on a dark page; keeps the hue, so that greens stay greens. */
QColor lightened(const QColor &color, const QColor &page)
{
    int lightness = color.lightness();
    QColor lighter = color;
    while (contrast(lighter, page) < kLeastContrast && lightness < 255) {
        lightness = qMin(255, lightness + kStep);
        const int saturation = qMin(color.hslSaturation(), 200);
        lighter = QColor::fromHsl(qMax(0, color.hslHue()), saturation, lightness);
    }
    return lighter;
}

} // namespace

ThemeColors::ThemeColors(QObject *parent)
    : QObject(parent)
{
}

QVariantMap ThemeColors::all(bool isDark) const
{
    QVariantMap colors;
    for (const Entry &entry : kEntries)
        colors.insert(QLatin1String(entry.name), color(entry.name, isDark));
    return colors;
}

QColor ThemeColors::curve(const QColor &color, bool isDark, bool isOfInstrument) const
{
    return ofCurve(color, isDark, isOfInstrument);
}

QColor ThemeColors::color(const char *name, bool isDark)
{
    for (const Entry &entry : kEntries) {
        if (qstrcmp(entry.name, name) == 0)
            return QColor(QLatin1String(isDark ? entry.dark : entry.light));
    }
    return QColor();
}

QColor ThemeColors::ofCurve(const QColor &color, bool isDark, bool isOfInstrument)
{
    if (!color.isValid() || (isOfInstrument && !isDark))
        return color;
    for (const auto &curve : kCurves) {
        if (curve.color == color.rgb())
            return QColor(isDark ? curve.dark : curve.light);
    }
    return isDark ? lightened(color, ThemeColors::color("plot", true)) : color;
}

QString ThemeColors::filled(const char *styleSheet, bool isDark)
{
    QString text = QLatin1String(styleSheet);
    for (const Entry &entry : kEntries)
        text.replace(QLatin1Char('%') + QLatin1String(entry.name) + QLatin1Char('%'),
                     color(entry.name, isDark).name());
    return text;
}
